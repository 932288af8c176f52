// SPDX-License-Identifier: MIT
// The life of a bill on the pages "上报制单" and "退单制单": extended, cut, reported, cancelled, reported again.
#include "vortaq/app/tour/steps.h"

#include <QAbstractItemView>
#include <QMenu>

namespace vortaq {

namespace {

QAbstractItemView &view(Guide &guide, const char *name)
{
    return guide.find<QAbstractItemView>(QString::fromLatin1(name));
}

/// Bills of the clerk's own institution in one state (see CheckStatus).
int bills(Session &session, const char *status)
{
    const QString code = session.parameter(QStringLiteral("OrgCode")).toString();
    return session.engine()
        .query(QStringLiteral("select BillNo from o_CbZyZdb where CheckStatus='%1' and BillCode='%2'")
                   .arg(QString::fromLatin1(status), code))
        ->rowCount();
}

void requireBills(Session &session, const char *status, int wanted)
{
    if (bills(session, status) != wanted)
        throw TourError(QStringLiteral("数据库中的制单状态不对。"));
}

void requireRecords(const QAbstractItemView &grid, int wanted)
{
    if (grid.model()->rowCount() != wanted)
        throw TourError(QStringLiteral("制单中的记录是 %1 笔，应为 %2 笔。").arg(grid.model()->rowCount()).arg(wanted));
}

/// Does what asks a question, takes the question's picture and says yes.
void confirm(Guide &guide, const std::function<void()> &act, const QString &caption)
{
    guide.withModal(act, [&](QWidget &question) {
        guide.picture(caption);
        guide.clickButton(question, QStringLiteral("是"));
    });
}

/// Chooses an item of the first bill's menu and confirms it.
void actOnFirstBill(Guide &guide, const char *tree, const char *item, const QString &caption)
{
    auto &bills = view(guide, tree);
    guide.withMenu(bills, chooseFirstBill(guide, bills), [&](QMenu &menu) {
        guide.picture(caption);
        confirm(
            guide, [&] { guide.choose(menu, QString::fromLatin1(item)); }, QStringLiteral("确认%1").arg(caption));
    });
}

} // namespace

void showReportedPage(TourScene &scene)
{
    choosePage(scene.guide, QStringLiteral("tbUp"));
    chooseFirstBill(scene.guide, view(scene.guide, "dxTLUpOrgInfo"));
    requireRows(view(scene.guide, "dxTLUpBill"));
    scene.guide.picture(QStringLiteral("上报制单"));
}

void addRecord(TourScene &scene)
{
    Guide &guide = scene.guide;
    auto &grid = view(guide, "dxTLUpBill");
    const int before = grid.model()->rowCount();
    guide.clickIndex(grid, Guide::cell(grid, 0, QStringLiteral("患者姓名")));
    guide.withModal([&guide] { guide.click(guide.find<QWidget>(QStringLiteral("btnUpAdd"))); },
                    [&guide](QWidget &) {
                        auto &candidates = view(guide, "dxTLUp");
                        guide.clickIndex(candidates, Guide::cell(candidates, 0, QStringLiteral("选择")));
                        guide.picture(QStringLiteral("添加单据"));
                        guide.click(guide.find<QWidget>(QStringLiteral("btnSave")));
                    });
    takeHint(guide, QStringLiteral("添加制单成功！"), QStringLiteral("添加成功"));
    requireRecords(grid, before + 1);
}

void takeRecordOut(TourScene &scene)
{
    Guide &guide = scene.guide;
    auto &grid = view(guide, "dxTLUpBill");
    const int before = grid.model()->rowCount();
    guide.clickIndex(grid, Guide::cell(grid, before - 1, QStringLiteral("患者姓名")));
    confirm(
        guide, [&guide] { guide.click(guide.find<QWidget>(QStringLiteral("btnUpCancel"))); },
        QStringLiteral("单笔取消制单"));
    takeHint(guide, QStringLiteral("取消制单成功！"), QStringLiteral("取消一笔"));
    requireRecords(grid, before - 1);
}

void reportBill(TourScene &scene)
{
    const int before = bills(scene.session, "2");
    actOnFirstBill(scene.guide, "dxTLUpOrgInfo", "mUpSave", QStringLiteral("整批上报制单"));
    takeHint(scene.guide, QStringLiteral("上报制单成功！"), QStringLiteral("上报成功"));
    requireBills(scene.session, "2", before + 1);
}

void cancelBill(TourScene &scene)
{
    const int before = bills(scene.session, "1");
    actOnFirstBill(scene.guide, "dxTLUpOrgInfo", "mUpCancel", QStringLiteral("整批取消制单"));
    takeHint(scene.guide, QStringLiteral("取消制单成功！"), QStringLiteral("取消成功"));
    requireBills(scene.session, "1", before - 1);
}

void showReturnedPage(TourScene &scene)
{
    choosePage(scene.guide, QStringLiteral("tbBack"));
    chooseFirstBill(scene.guide, view(scene.guide, "dxTLBackOrg"));
    requireRows(view(scene.guide, "dxTLBackBill"));
    scene.guide.picture(QStringLiteral("退单制单"));
}

void reportAgain(TourScene &scene)
{
    const int before = bills(scene.session, "2");
    actOnFirstBill(scene.guide, "dxTLBackOrg", "mBackUp", QStringLiteral("重新上报"));
    takeHint(scene.guide, QStringLiteral("上报制单成功！"), QStringLiteral("重新上报成功"));
    requireBills(scene.session, "2", before + 1);
}

} // namespace vortaq
