// SPDX-License-Identifier: MIT
// The pages around bill making: unbilled patients, reported, returned and historical bills.
#include "vortaq/app/tour/steps.h"

#include <QAbstractItemView>
#include <QMenu>

namespace vortaq {

namespace {

QAbstractItemView &view(Guide &guide, const char *name)
{
    return guide.find<QAbstractItemView>(QString::fromLatin1(name));
}

void requireRows(const QAbstractItemView &grid)
{
    if (grid.model()->rowCount() == 0)
        throw TourError(QStringLiteral("表格“%1”是空的。").arg(grid.objectName()));
}

/// Bills of the clerk's own institution that have been reported.
int reportedBills(Session &session)
{
    const QString code = session.parameter(QStringLiteral("OrgCode")).toString();
    return session.engine()
        .query(QStringLiteral("select BillNo from o_CbZyZdb where CheckStatus='2' and BillCode='%1'").arg(code))
        ->rowCount();
}

} // namespace

void showUnbilledPage(TourScene &scene)
{
    choosePage(scene.guide, QStringLiteral("TabSheet1"));
    requireRows(view(scene.guide, "dxTLBxDjDetail"));
    scene.guide.picture(QStringLiteral("未制单病人查询"));
}

void showReportedPage(TourScene &scene)
{
    choosePage(scene.guide, QStringLiteral("tbUp"));
    chooseFirstBill(scene.guide, view(scene.guide, "dxTLUpOrgInfo"));
    requireRows(view(scene.guide, "dxTLUpBill"));
    scene.guide.picture(QStringLiteral("上报制单"));
}

void reportBill(TourScene &scene)
{
    Guide &guide = scene.guide;
    auto &tree = view(guide, "dxTLUpOrgInfo");
    const int before = reportedBills(scene.session);
    guide.withMenu(tree, chooseFirstBill(guide, tree), [&guide](QMenu &menu) {
        guide.picture(QStringLiteral("整批上报制单"));
        guide.withModal([&] { guide.choose(menu, QStringLiteral("mUpSave")); },
                        [&guide](QWidget &question) {
                            guide.picture(QStringLiteral("确认上报"));
                            guide.clickButton(question, QStringLiteral("是"));
                        });
    });
    takeHint(guide, QStringLiteral("上报制单成功！"), QStringLiteral("上报成功"));
    if (reportedBills(scene.session) != before + 1)
        throw TourError(QStringLiteral("数据库中的制单没有上报。"));
}

void offerFurtherRecords(TourScene &scene)
{
    Guide &guide = scene.guide;
    auto &grid = view(guide, "dxTLUpBill");
    guide.clickIndex(grid, Guide::cell(grid, 0, QStringLiteral("患者姓名")));
    guide.withModal([&guide] { guide.click(guide.find<QWidget>(QStringLiteral("btnUpAdd"))); },
                    [&guide](QWidget &dialog) {
                        guide.picture(QStringLiteral("添加单据"));
                        guide.press(dialog, Qt::Key_Escape);
                    });
}

void showReturnedPage(TourScene &scene)
{
    choosePage(scene.guide, QStringLiteral("tbBack"));
    chooseFirstBill(scene.guide, view(scene.guide, "dxTLBackOrg"));
    requireRows(view(scene.guide, "dxTLBackBill"));
    scene.guide.picture(QStringLiteral("退单制单"));
}

void showHistoryPage(TourScene &scene)
{
    choosePage(scene.guide, QStringLiteral("TabSheet2"));
    chooseFirstBill(scene.guide, view(scene.guide, "dxTLOldOrg"));
    auto &grid = view(scene.guide, "dxTLOldBill");
    requireRows(grid);
    scene.guide.picture(QStringLiteral("历史制单查询"));
    showDetail(scene.guide, grid, QStringLiteral("历史费用信息"));
}

} // namespace vortaq
