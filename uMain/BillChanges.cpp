// SPDX-License-Identifier: MIT
#include "uMain/BillChanges.h"

#include "automation/error.h"
#include "data/codes.h"
#include "host/change.h"
#include "host/clientdataset.h"
#include "toolkit/messageboxes.h"

#include <QCoreApplication>
#include <QEventLoop>

namespace {

const QString CancelFailure = QStringLiteral("取消制单失败！");
const QString CancelSuccess = QStringLiteral("取消制单成功！");

/// Clicks and keys wait: a second change would run into the transaction that is still open.
void letTheHintShow()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

bool BillChanges::CheckBillStatus(const data::BillKey &bill, const QString &allowedList)
{
    if (m_workbench.session.connStyle != 1)
        return true;
    m_workbench.LoadDataSet(data::statusOutside(bill, allowedList), m_scratch);
    if (m_scratch.isEmpty())
        return true;
    const QString status = m_scratch.text(QStringLiteral("CheckStatus"));
    toolkit::messageBoxes().tell(m_window, QStringLiteral("提示"),
                                 QStringLiteral("该单据现在状态为:") + data::refusedStatusName(status));
    Workbench::Reloads &reload = m_workbench.reload;
    if (status == data::StatusMade) {
        reload.unbilledTree();
        reload.candidates();
        reload.reportedBills();
        reload.returnedBills();
        reload.history();
    } else if (status == data::StatusFirstReview || status == data::StatusSecondReview) {
        reload.reportedBills();
        reload.returnedBills();
        reload.history();
    }
    return false;
}

void BillChanges::report(const data::BillKey &bill)
{
    host::FuncStorageProxy &user = m_workbench.host().FuncStorage;
    try {
        if (!CheckBillStatus(bill, data::reportableStatuses()))
            return;
        m_workbench.execSql(data::reportBill(bill));
        user.ShowHint(QStringLiteral("上报制单成功！"));
        letTheHintShow();
        reloadOwnTree();
        m_workbench.reload.history();
    } catch (...) {
        user.Alert(QStringLiteral("上报制单失败！\r\n") + automation::messageOfCurrent());
    }
}

void BillChanges::cancel(const data::BillKey &bill)
{
    host::runChange(m_workbench.host(), CancelFailure, host::FailingBegin::IsAlerted, [&] {
        m_workbench.execSql(data::releaseAllRecords(m_kind.spelling, bill));
        m_workbench.execSql(data::deleteBill(m_kind.spelling, bill));
        m_workbench.host().FuncStorage.ShowHint(CancelSuccess); // the clerk sees the hint before the commit
        letTheHintShow();
        m_workbench.host().DataCtl.CommitTran();
        m_workbench.reload.unbilledTree();
        m_workbench.reload.candidates();
        reloadOwnTree();
        m_workbench.reload.history();
    });
}

void BillChanges::takeOut(const data::BillKey &bill, const data::RecordKey &record, bool isLastRecord,
                          const std::function<void()> &reloadRecords)
{
    host::runChange(m_workbench.host(), CancelFailure, host::FailingBegin::IsAlerted, [&] {
        m_workbench.execSql(data::releaseRecord(m_kind.spelling, record));
        m_workbench.execSql(data::clearDeductions(m_kind.spelling, record));
        m_workbench.execSql(data::recomputeAfterRelease(bill));
        if (isLastRecord)
            m_workbench.execSql(data::deleteEmptiedBill(m_kind.spelling, bill));
        m_workbench.host().DataCtl.CommitTran();
        m_workbench.host().FuncStorage.ShowHint(CancelSuccess);
        if (isLastRecord)
            reloadOwnTree();
        else
            reloadRecords();
        m_workbench.reload.unbilledTree();
        m_workbench.reload.candidates();
    });
}
