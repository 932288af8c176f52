// SPDX-License-Identifier: MIT
#include "uMain/SavingBill.h"

#include "host/change.h"
#include "host/clientdataset.h"
#include "toolkit/messageboxes.h"
#include "uMain/workbench.h"

namespace {

const QString Title = QStringLiteral("提示");
const QString BilledMeanwhile = QStringLiteral("当前选择记录有已被制单信息！");
const QString ReturnedMeanwhile = QStringLiteral("当前选择记录有已被退单信息！");
const QString Continue = QStringLiteral("是否继续？");
const QString LineBreak = QStringLiteral("\r\n");
const QString Failure = QStringLiteral("制单失败！");
const QString Success = QStringLiteral("制单成功！");

} // namespace

SavingBill::SavingBill(Workbench &workbench, TClientDataSet &scratch, QWidget *window)
    : m_workbench(workbench)
    , m_scratch(scratch)
    , m_window(window)
{
}

SavingBill::Check SavingBill::check(const std::vector<data::RecordKey> &records, const QString &writeDate)
{
    m_condition = data::RecordChoice(records);
    Workbench::Reloads &reload = m_workbench.reload;
    if (m_workbench.session.connStyle == 1) {
        if (!confirmWithoutLost(data::alreadyBilled(m_condition.text()), BilledMeanwhile)) {
            reload.unbilledTree();
            reload.candidates();
            reload.reportedBills();
            reload.history();
            return Check::Declined;
        }
        if (!confirmWithoutLost(data::noLongerDischarged(m_condition.text()), ReturnedMeanwhile)) {
            reload.unbilledTree();
            reload.candidates();
            return Check::Declined;
        }
    }
    m_workbench.LoadDataSet(data::dischargedAfter(m_condition.text(), writeDate), m_scratch);
    return m_scratch.isEmpty() ? Check::Passed : Check::DischargedLater;
}

bool SavingBill::confirmWithoutLost(const QString &statement, const QString &question)
{
    m_workbench.LoadDataSet(statement, m_scratch);
    if (m_scratch.isEmpty())
        return true;
    QString lost;
    for (m_scratch.first(); !m_scratch.eof(); m_scratch.next()) {
        const data::RecordKey key{m_scratch.text(QStringLiteral("OrgCode")),
                                  m_scratch.text(QStringLiteral("CoopMedCode")), m_scratch.text(QStringLiteral("IDNo")),
                                  m_scratch.text(QStringLiteral("DiagNo"))};
        lost += LineBreak + key.coopMedCode + QStringLiteral("   ") + m_scratch.text(QStringLiteral("PatientName"));
        m_condition.cut(key);
    }
    return toolkit::messageBoxes().ask(m_window, Title, question + lost + LineBreak + Continue);
}

QString SavingBill::GetNewBillNo(const QString &billCode)
{
    m_workbench.LoadDataSet(data::highestBillNo(billCode), m_scratch);
    return QString::number(m_scratch.integer(QStringLiteral("BillNo")) + 1);
}

void SavingBill::write(data::NewBill bill)
{
    // The reloads lie inside the guarded block: one that fails after the commit is still answered by a rollback, which
    // finds nothing to roll back, and by the alert.
    host::runChange(m_workbench.host(), Failure, host::FailingBegin::Propagates, [&] {
        bill.key.number = GetNewBillNo(bill.key.code);
        m_workbench.execSql(data::insertBill(bill, m_condition.text()));
        m_workbench.execSql(data::assignRecords(bill.key, m_condition.text()));
        m_workbench.host().DataCtl.CommitTran();
        m_workbench.host().FuncStorage.ShowHint(Success);
        m_workbench.reload.unbilledTree();
        m_workbench.reload.candidates();
        m_workbench.reload.reportedBills();
        m_workbench.reload.history();
    });
}
