// SPDX-License-Identifier: MIT
// From invented people to rows.
#include "vortaq/demo/recordwriter.h"

#include "vortaq/demo/people.h"
#include "vortaq/demo/random.h"

#include <algorithm>

namespace vortaq::demo {
namespace {

constexpr std::string_view recordColumns =
    "OrgCode,CoopMedCode,IDNo,DiagNo,HospitalCode,HospitalName,PatientName,HouseHolder,Sex,Age,AgeUnit,InDate,"
    "OutDate,DayCount,JsDate,PatientNo,InHosCount,IllCode,IllName,ExpenseKind,TotalFee,CanFreeFee,FreeFee,"
    "DoctorName,InputerCode,InputerName,InterfaceIn,AreaCode,ExpressionsID,LimitDef,Ke,BillCode,BillNo,"
    "CheckerCode1,CheckerName1,CheckOneFee,CheckDate1,Checkone,CheckerCode,CheckerName,CheckFee,CheckDate,"
    "CheckRemark";
constexpr std::string_view lineColumns =
    "OrgCode,CoopMedCode,IDNo,DiagNo,FeeNo,ItemCode,ItemName,FeeTypeCode,FeeTypeName,IfPass,Unit,Price,Num,Fee,"
    "CanFreeFee,KnockOffFee1,KnockOffFee,YyDate,InputDate";
constexpr std::string_view settlementColumns =
    "OrgCode,CoopMedCode,IDNo,DiagNo,HospitalName,HouseHolder,PatientName,Sex,BirthDay,RelationName,Address,"
    "InDate,OutDate,DayCount,PatientNo,IllName,InHosCount,Fee,CanFreeFee,FreeFee,MzFee,HosFee";

bool wasReviewed(const Bill *bill)
{
    return bill != nullptr && (bill->status == '3' || bill->status == '4' || bill->status == '9');
}

// A bill comes back from the first review or only from the second.
bool wasReviewedTwice(const Bill *bill)
{
    return bill != nullptr && (bill->status == '4' || (bill->status == '9' && bill->number % 2 == 0));
}

int idNoOf(const Stay &stay)
{
    return static_cast<int>(stay.member) + 1;
}

int dayCount(const Stay &stay)
{
    return std::max(1, stay.discharged - stay.admitted);
}

} // namespace

RecordWriter::Tables::Tables(sqlite3 *database, const std::string &prefix)
    : record(database, prefix + "_CbZyBxDj", recordColumns)
    , line(database, prefix + "_CbZyBxDjZb", lineColumns)
    , approval(database, prefix + "_CbZyBxTpb", "OrgCode,CoopMedCode,IDNo,DiagNo,ItemCode,Status")
    , settlement(database, prefix + "_CbZyJsb", settlementColumns)
    , settledType(database, prefix + "_CbZyJsMxb", "OrgCode,CoopMedCode,IDNo,DiagNo,FeeTypeCode,Fee,CanFreeFee,FreeFee")
    , bill(database, prefix + "_CbZyZdb",
           "BillCode,BillNo,BillName,WriteDate,Fee,CanFreeFee,CheckFee1,CheckFee,CheckStatus,PrincipalName")
{
}

RecordWriter::RecordWriter(sqlite3 *database, const Calendar &calendar, Plan &plan, int averageLines, Random &random)
    : m_calendar(calendar)
    , m_plan(plan)
    , m_averageLines(averageLines)
    , m_random(random)
    , m_current(database, "o")
    , m_archived(database, "s")
    , m_member(database, "p_CbNhGrXx", "CoopMedCode,IDNo,isHouseHolder,Address,HomeProperty")
{
}

void RecordWriter::write(const Household &household)
{
    writeMembers(household);
    for (const Stay &stay : household.stays)
        writeStay(household, stay);
}

void RecordWriter::writeMembers(const Household &household)
{
    for (std::size_t i = 0; i < household.members.size(); ++i) {
        m_member.text(household.certificate).number(static_cast<int>(i) + 1).text(i == 0 ? "1" : "0");
        m_member.text(household.address);
        if (household.property.empty())
            m_member.null();
        else
            m_member.text(household.property);
        m_member.run();
    }
}

void RecordWriter::writeStay(const Household &household, const Stay &stay)
{
    const StayPlan &plan = *stay.plan;
    const Member &member = household.members[stay.member];
    const Institution &hospital = hospitalOf(plan);
    const Diagnosis &diagnosis = diagnosisOf(member, stay);
    const Formula &formula = formulaFor(diagnosis, hospital.level);
    Fees fees = makeFees(stay.admitted, stay.discharged, diagnosis, m_averageLines, m_random);
    Bill *const bill = isBilled(plan.kind) ? &m_plan.bills[plan.bill] : nullptr;
    if (bill != nullptr)
        addToBill(*bill, fees);
    // A stay is settled on discharge and not before.
    const Reimbursement reimbursement =
        isInHospital(plan.kind) ? Reimbursement{} : settle(fees, formula, diagnosis.limit);

    const std::string year(m_calendar.text(stay.admitted).substr(0, 4));
    const Facts facts{household,
                      member,
                      stay,
                      bill,
                      institutions()[plan.institution],
                      hospital,
                      diagnosis,
                      formula,
                      std::move(fees),
                      reimbursement,
                      "ZY" + year + std::to_string(100000 + ++m_admissions)};
    Tables &tables = plan.kind == StayKind::Archived ? m_archived : m_current;
    writeRecord(tables.record, facts);
    writeLines(tables, facts);
    if (!isInHospital(plan.kind))
        writeSettlement(tables, facts);
}

const Institution &RecordWriter::hospitalOf(const StayPlan &plan)
{
    const Institution &institution = institutions()[plan.institution];
    // A township's hospital also enters what its people were treated for at the county hospital.
    const bool elsewhere = institution.level == Level::Township && m_random.percent(12);
    return elsewhere ? institutions()[countyHospital] : institution;
}

const Diagnosis &RecordWriter::diagnosisOf(const Member &member, const Stay &stay)
{
    const Age age = ageOn(stay.admitted, member.birthDay);
    const int years = age.unit == "岁" ? age.number : 0;
    for (;;) {
        const Diagnosis &diagnosis = m_random.pick(diagnoses());
        if (suits(diagnosis, years, member.sex) && m_random.below(mostWeight) < diagnosis.weight)
            return diagnosis;
    }
}

void RecordWriter::addToBill(Bill &bill, Fees &fees)
{
    bill.fee += fees.total;
    bill.reimbursable += fees.reimbursable;
    if (!wasReviewed(&bill))
        return;
    review(fees, wasReviewedTwice(&bill), m_random);
    bill.firstApproved += fees.firstApproved;
    if (wasReviewedTwice(&bill))
        bill.secondApproved += fees.secondApproved;
}

void RecordWriter::writeKey(Inserter &row, const Facts &facts)
{
    row.text(facts.institution.code).text(facts.household.certificate);
    row.number(idNoOf(facts.stay)).number(facts.stay.visit);
}

void RecordWriter::writeRecord(Inserter &record, const Facts &facts)
{
    const Age age = ageOn(facts.stay.admitted, facts.member.birthDay);
    writeKey(record, facts);
    record.text(facts.hospital.code).text(facts.hospital.name);
    record.text(facts.member.name).text(facts.household.members.front().name).text(facts.member.sex);
    record.number(age.number).text(age.unit).text(m_calendar.text(facts.stay.admitted));
    if (isInHospital(facts.stay.plan->kind))
        record.null().null().null();
    else
        record.text(m_calendar.text(facts.stay.discharged))
            .number(dayCount(facts.stay))
            .text(m_calendar.text(facts.stay.settled));
    record.text(facts.patientNo).number(facts.stay.visit);
    writeTreatment(record, facts);
    if (facts.bill == nullptr)
        record.null().null();
    else
        record.text(facts.institution.code).number(facts.bill->number);
    writeReviews(record, facts);
    record.run();
}

void RecordWriter::writeTreatment(Inserter &record, const Facts &facts)
{
    const int institution = facts.stay.plan->institution;
    const int doctor = institution * 3 + m_random.below(5);
    const Clerk clerk = clerkOf(institution, m_random.below(2));
    record.text(facts.diagnosis.code).text(facts.diagnosis.name).text(facts.diagnosis.expenseKind);
    record.money(facts.fees.total).money(facts.fees.reimbursable).money(facts.reimbursement.reimbursed);
    record.text(doctors()[static_cast<std::size_t>(doctor) % doctors().size()]).text(clerk.code).text(clerk.name);
    record.text(m_random.percent(30) ? "1" : "2").text(areaCode);
    record.text(facts.formula.id).text(facts.diagnosis.limit).money(facts.reimbursement.deducted);
}

void RecordWriter::writeReviews(Inserter &record, const Facts &facts)
{
    const Bill *const bill = facts.bill;
    if (!wasReviewed(bill)) {
        record.null().null().money(0).null().null();
        record.null().null().money(0).null().null();
        return;
    }
    const Day first = std::min(m_calendar.today(), bill->writeDate + 3 + bill->number % 5);
    const Day second = std::min(m_calendar.today(), first + 5 + bill->number % 7);
    const bool twice = wasReviewedTwice(bill);
    const bool sentBack = bill->status == '9';
    record.text(firstReviewer.code).text(firstReviewer.name).money(facts.fees.firstApproved);
    record.text(m_calendar.text(first)).text(sentBack && !twice ? "材料不全，退回补正" : "同意");
    if (!twice) {
        record.null().null().money(0).null().null();
        return;
    }
    record.text(secondReviewer.code).text(secondReviewer.name).money(facts.fees.secondApproved);
    record.text(m_calendar.text(second)).text(sentBack ? "费用清单与病历不符，退回" : "同意补偿");
}

void RecordWriter::writeLines(Tables &tables, const Facts &facts)
{
    int number = 0;
    for (const FeeLine &line : facts.fees.lines) {
        const FeeType &type = feeTypes()[static_cast<std::size_t>(line.item->feeType)];
        Inserter &row = tables.line;
        writeKey(row, facts);
        row.number(++number).text(line.item->code).text(line.item->name).text(type.code).text(type.name);
        row.text(line.compensable ? "1" : "2").text(line.item->unit).price(line.item->price).money(line.quantity);
        row.money(line.fee).money(line.reimbursable).money(line.firstStruck).money(line.secondStruck);
        row.text(m_calendar.text(line.used)).text(m_calendar.text(line.entered)).run();
    }
    for (const Approval &approval : facts.fees.approvals) {
        writeKey(tables.approval, facts);
        tables.approval.text(approval.item->code).text(std::string_view(&approval.status, 1)).run();
    }
}

void RecordWriter::writeSettlement(Tables &tables, const Facts &facts)
{
    const Cents total = facts.fees.total;
    // Some have paid for examinations before they were admitted.
    const Cents outpatient = m_random.percent(15) ? total * m_random.between(1, 10) / 100 : 0;
    Inserter &row = tables.settlement;
    writeKey(row, facts);
    row.text(facts.hospital.name).text(facts.household.members.front().name).text(facts.member.name);
    row.text(facts.member.sex).text(m_calendar.text(facts.member.birthDay)).text(facts.member.relation);
    row.text(facts.household.address).text(m_calendar.text(facts.stay.admitted));
    row.text(m_calendar.text(facts.stay.discharged)).number(dayCount(facts.stay)).text(facts.patientNo);
    row.text(facts.diagnosis.name).number(facts.stay.visit).money(total).money(facts.fees.reimbursable);
    row.money(facts.reimbursement.reimbursed).money(outpatient).money(total - outpatient).run();

    for (std::size_t i = 0; i < facts.reimbursement.types.size(); ++i) {
        const TypeSum &sum = facts.reimbursement.types[i];
        if (sum.fee == 0)
            continue;
        writeKey(tables.settledType, facts);
        tables.settledType.text(feeTypes()[i].code).money(sum.fee).money(sum.reimbursable).money(sum.reimbursed).run();
    }
}

void RecordWriter::writeBills()
{
    for (const Bill &bill : m_plan.bills) {
        const Institution &institution = institutions()[static_cast<std::size_t>(bill.institution)];
        Inserter &row = bill.archived ? m_archived.bill : m_current.bill;
        row.text(institution.code).number(bill.number).text(institution.name);
        row.text(m_calendar.text(bill.writeDate)).money(bill.fee).money(bill.reimbursable);
        row.money(bill.firstApproved).money(bill.secondApproved).text(std::string_view(&bill.status, 1));
        row.text(clerkOf(bill.institution, 0).name).run();
    }
}

} // namespace vortaq::demo
