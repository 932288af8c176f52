// SPDX-License-Identifier: MIT
// Making a bill: choose records, look the institution up, save.
#include "vortaq/app/tour/steps.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>

#include <string_view>

namespace vortaq {

namespace {

QString field(Guide &guide, const char *name)
{
    return guide.find<QLineEdit>(QString::fromLatin1(name)).text();
}

/// Bills that the database holds for the institution.
int billCount(TourScene &scene, const QString &billCode)
{
    const automation::DataPacketPtr rows =
        scene.session.engine().query(QStringLiteral("select BillNo from o_CbZyZdb where BillCode='%1'").arg(billCode));
    return rows->rowCount();
}

} // namespace

void showBillMakingPage(TourScene &scene)
{
    choosePage(scene.guide, QStringLiteral("TabSheet3"));
    const auto &grid = scene.guide.find<QAbstractItemView>(QStringLiteral("dxTLUp"));
    if (grid.model()->rowCount() < 3)
        throw TourError(QStringLiteral("待制单的报销记录不足三笔。"));
    scene.guide.picture(QStringLiteral("报销制单"));
}

void openFeeDetail(TourScene &scene)
{
    auto &grid = scene.guide.find<QAbstractItemView>(QStringLiteral("dxTLUp"));
    showDetail(scene.guide, grid, QStringLiteral("费用信息"));
}

void tickCandidates(TourScene &scene)
{
    auto &grid = scene.guide.find<QAbstractItemView>(QStringLiteral("dxTLUp"));
    scene.guide.clickIndex(grid, Guide::cell(grid, 0, QStringLiteral("选择")));
    scene.guide.clickIndex(grid, Guide::cell(grid, 1, QStringLiteral("选择")));
    scene.guide.press(grid, Qt::Key_Down);
    scene.guide.press(grid, Qt::Key_Space, QStringLiteral(" "));
    if (field(scene.guide, "edtUpNum") != QStringLiteral("3"))
        throw TourError(QStringLiteral("合计的人次不是 3。"));
    scene.guide.picture(QStringLiteral("选择三笔记录"));
}

void lookInstitutionUp(TourScene &scene)
{
    Guide &guide = scene.guide;
    auto &code = guide.find<QLineEdit>(QStringLiteral("edtOrgCode"));
    const QString own = code.text();
    guide.withModal([&] { guide.press(code, static_cast<Qt::Key>(own.at(0).unicode()), own.left(1)); },
                    [&](QWidget &) {
                        guide.picture(QStringLiteral("代码查询"));
                        auto &filter = guide.find<QLineEdit>(QStringLiteral("codeSearchFilter"));
                        guide.type(filter, own.mid(1));
                        guide.press(filter, Qt::Key_Return, QStringLiteral("\r"));
                    });
    if (code.text() != own)
        throw TourError(QStringLiteral("查询得到的机构代码是“%1”，应为“%2”。").arg(code.text(), own));
}

void saveBill(TourScene &scene)
{
    Guide &guide = scene.guide;
    const QString billCode = field(guide, "edtOrgCode");
    const int before = billCount(scene, billCode);
    guide.click(guide.find<QPushButton>(QStringLiteral("btnSave")));
    takeHint(guide, QStringLiteral("制单成功！"), QStringLiteral("保存制单"));
    if (billCount(scene, billCode) != before + 1)
        throw TourError(QStringLiteral("数据库中没有新的制单。"));
}

} // namespace vortaq
