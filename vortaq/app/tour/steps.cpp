// SPDX-License-Identifier: MIT
// The order of the tour, and what several stations do.
#include "vortaq/app/tour/steps.h"

#include <QAbstractItemView>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

#include <array>

namespace vortaq {

std::span<const TourStep> tourSteps()
{
    static constexpr std::array Steps = {
        TourStep{"未制单病人查询", &showUnbilledPage}, TourStep{"打开报销制单", &showBillMakingPage},
        TourStep{"查看费用信息", &openFeeDetail},      TourStep{"选择报销记录", &tickCandidates},
        TourStep{"查询制单机构", &lookInstitutionUp},  TourStep{"保存制单", &saveBill},
        TourStep{"打开上报制单", &showReportedPage},   TourStep{"添加单据", &addRecord},
        TourStep{"单笔取消制单", &takeRecordOut},      TourStep{"整批上报制单", &reportBill},
        TourStep{"整批取消制单", &cancelBill},         TourStep{"打开退单制单", &showReturnedPage},
        TourStep{"重新上报退单", &reportAgain},        TourStep{"打开历史制单查询", &showHistoryPage},
        TourStep{"打印结算单", &printSettlementSheet}, TourStep{"打印住院审批表", &printApprovalForm},
        TourStep{"打印费用清单", &printFeeLists},
    };
    return Steps;
}

void choosePage(Guide &guide, const QString &page)
{
    auto &pages = guide.find<QTabWidget>(QStringLiteral("PageControl1"));
    for (int i = 0; i < pages.count(); ++i) {
        if (pages.widget(i)->objectName() != page)
            continue;
        guide.click(*pages.tabBar(), pages.tabBar()->tabRect(i).center());
        guide.waitFor([&pages, i] { return pages.currentIndex() == i; }, QStringLiteral("页 %1").arg(page));
        return;
    }
    throw TourError(QStringLiteral("没有页“%1”。").arg(page));
}

QModelIndex chooseFirstBill(Guide &guide, QAbstractItemView &tree)
{
    const QModelIndex institution = tree.model()->index(0, 0);
    const QModelIndex bill = tree.model()->index(0, 0, institution);
    if (!bill.isValid())
        throw TourError(QStringLiteral("“%1”中没有制单。").arg(tree.objectName()));
    guide.clickIndex(tree, bill);
    return bill;
}

void requireRows(const QAbstractItemView &grid)
{
    if (grid.model()->rowCount() == 0)
        throw TourError(QStringLiteral("表格“%1”是空的。").arg(grid.objectName()));
}

void showDetail(Guide &guide, QAbstractItemView &grid, const QString &caption)
{
    const QModelIndex patient = Guide::cell(grid, 0, QStringLiteral("患者姓名"));
    guide.withModal([&] { guide.doubleClickIndex(grid, patient); },
                    [&](QWidget &dialog) {
                        guide.picture(caption);
                        guide.press(dialog, Qt::Key_Escape);
                    });
}

void takeHint(Guide &guide, const QString &text, const QString &caption)
{
    const auto hint = [&guide] { return guide.window().findChild<QLabel *>(QStringLiteral("hintLabel")); };
    guide.waitFor([&] { return hint() && hint()->isVisible() && hint()->text() == text; },
                  QStringLiteral("提示“%1”").arg(text));
    guide.picture(caption);
    guide.waitFor([&] { return !hint()->isVisible(); }, QStringLiteral("提示消失"));
}

} // namespace vortaq
