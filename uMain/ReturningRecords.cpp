// SPDX-License-Identifier: MIT
#include "uMain/ReturningRecords.h"

#include "data/statements/returning.h"
#include "host/change.h"
#include "toolkit/messageboxes.h"
#include "uMain/workbench.h"

void returnRecords(Workbench &workbench, const std::vector<data::RecordKey> &records, QWidget *window)
{
    if (!toolkit::messageBoxes().askBeforeLoss(window, QStringLiteral("确认"),
                                               QStringLiteral("您确认要退回所有打勾的记录吗？")))
        return;
    host::runChange(workbench.host(), QStringLiteral("退单失败！"), host::FailingBegin::Propagates, [&] {
        for (const data::RecordKey &record : records) {
            workbench.execSql(data::clearDischarge(record));
            workbench.execSql(data::deleteSettlementFees(record));
            workbench.execSql(data::deleteSettlement(record));
        }
        workbench.host().DataCtl.CommitTran();
        workbench.reload.candidates();
        workbench.reload.unbilledTree();
        workbench.host().FuncStorage.ShowHint(QStringLiteral("退单成功！"));
    });
}
