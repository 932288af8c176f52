// SPDX-License-Identifier: MIT
// The pages that are only looked at: unbilled patients and the history of bills.
#include "vortaq/app/tour/steps.h"

#include <QAbstractItemView>

namespace vortaq {

namespace {

/// The bill furthest down: the oldest, archived and reviewed twice.
QModelIndex oldestBill(const QAbstractItemView &tree)
{
    const QModelIndex institution = tree.model()->index(0, 0);
    return tree.model()->index(tree.model()->rowCount(institution) - 1, 0, institution);
}

} // namespace

void showUnbilledPage(TourScene &scene)
{
    choosePage(scene.guide, QStringLiteral("TabSheet1"));
    requireRows(scene.guide.find<QAbstractItemView>(QStringLiteral("dxTLBxDjDetail")));
    scene.guide.picture(QStringLiteral("未制单病人查询"));
}

void showHistoryPage(TourScene &scene)
{
    Guide &guide = scene.guide;
    choosePage(guide, QStringLiteral("TabSheet2"));
    auto &tree = guide.find<QAbstractItemView>(QStringLiteral("dxTLOldOrg"));
    auto &grid = guide.find<QAbstractItemView>(QStringLiteral("dxTLOldBill"));
    chooseFirstBill(guide, tree);
    requireRows(grid);
    guide.picture(QStringLiteral("历史制单查询"));
    guide.clickIndex(tree, oldestBill(tree));
    requireRows(grid);
    guide.picture(QStringLiteral("已归档的制单"));
    showDetail(guide, grid, QStringLiteral("历史明细"));
}

} // namespace vortaq
