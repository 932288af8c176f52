// SPDX-License-Identifier: MIT
// Writes households with everything that belongs to their stays, and in the end the bills.
#pragma once

#include "vortaq/demo/fees.h"
#include "vortaq/demo/household.h"
#include "vortaq/demo/inserter.h"

#include <string>

namespace vortaq::demo {

class RecordWriter {
public:
    /// Everything is borrowed. The bills of the plan are added up as their stays are written.
    RecordWriter(sqlite3 *database, const Calendar &calendar, Plan &plan, int averageLines, Random &random);

    void write(const Household &household);
    void writeBills();

private:
    /// The twin tables, current or archived.
    struct Tables {
        Tables(sqlite3 *database, const std::string &prefix);

        Inserter record;
        Inserter line;
        Inserter approval;
        Inserter settlement;
        Inserter settledType;
        Inserter bill;
    };
    /// Everything that is known of one stay.
    struct Facts {
        const Household &household;
        const Member &member;
        const Stay &stay;
        const Bill *bill; ///< null while unbilled
        const Institution &institution;
        const Institution &hospital; ///< where the patient was treated
        const Diagnosis &diagnosis;
        const Formula &formula;
        Fees fees;
        Reimbursement reimbursement;
        std::string patientNo;
    };

    void writeMembers(const Household &household);
    void writeStay(const Household &household, const Stay &stay);
    [[nodiscard]] const Institution &hospitalOf(const StayPlan &plan);
    [[nodiscard]] const Diagnosis &diagnosisOf(const Member &member, const Stay &stay);
    void addToBill(Bill &bill, Fees &fees);
    void writeRecord(Inserter &record, const Facts &facts);
    void writeTreatment(Inserter &record, const Facts &facts);
    void writeReviews(Inserter &record, const Facts &facts);
    void writeLines(Tables &tables, const Facts &facts);
    void writeSettlement(Tables &tables, const Facts &facts);
    static void writeKey(Inserter &row, const Facts &facts);

    const Calendar &m_calendar;
    Plan &m_plan;
    int m_averageLines;
    Random &m_random;
    Tables m_current;
    Tables m_archived;
    Inserter m_member;
    int m_admissions = 0;
};

} // namespace vortaq::demo
