// SPDX-License-Identifier: MIT
// The discharge settlement sheet and the approval form of one stay.
#pragma once

#include "data/recordkey.h"
#include "print/SettlementInterface.h"

#include <QObject>
#include <QVariant>

class TClientDataSet;
class TRMDBDataSet;
class TRMReport;
class TdxTreeList;

namespace host {
class StatementBuffer;
}

namespace print {

/// What start-up has found out, as it stands at the moment of printing.
struct PrintSettings {
    int connStyle = 0;
    SettlementRoute route = SettlementRoute::None;
};

/// Prints for a grid's focused row, of whatever grid names its key columns after itself; does nothing without one.
/// Type 1 means the tables in use, 2 the archive. Errors reach the caller.
class PrintedDocuments : public QObject {
    Q_OBJECT

public:
    /// `scratch` is the form's data set for single questions; it holds the fee types while a document is shown. Both
    /// are borrowed.
    PrintedDocuments(host::StatementBuffer &statements, TClientDataSet &scratch, QObject *parent);

    void PrintSettlementSheet(const TdxTreeList &grid, int billType, const PrintSettings &settings);
    void PrintApprovalForm(const TdxTreeList &grid, int billType, const PrintSettings &settings);

    [[nodiscard]] SettlementInterface &settlement() noexcept { return m_settlement; }

private:
    [[nodiscard]] QString householdText(const data::RecordKey &key);
    /// Answers a variable of the templates: the fee types' names and amounts, numbered by two digits.
    void RMReport2GetValue(const QString &name, QVariant &value);

    host::StatementBuffer &m_statements;
    SettlementInterface m_settlement;
    TClientDataSet &CDSTmp;
    TClientDataSet *CDSPrint;
    TClientDataSet *CDSPrintFee;
    TClientDataSet *CDSHomeProperty;
    TRMReport *RMReport2;
    TRMDBDataSet *RMDBDataSet1;
};

/// How the approval form words a limit: "0…" is 不限, "1500" is 限额500, "2800" is 定额800, others stand as they are.
[[nodiscard]] QString limitText(const QString &limitDef);

} // namespace print
