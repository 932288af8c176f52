// SPDX-License-Identifier: MIT
#include "uMain/billtrees.h"

#include "data/captions.h"
#include "host/clientdataset.h"
#include "toolkit/TreeListUpdate.h"
#include "uMain/trees.h"

namespace {

constexpr auto GroupLevel = u"1";
constexpr auto BillLevel = u"2";

constexpr int GroupImage = 0;
constexpr int BillImage = 1;
constexpr int SelectedBillImage = 2;

TdxTreeListNode addGroup(TdxTreeList &tree, const QString &code, const QString &name)
{
    TdxTreeListNode group = tree.addNode();
    group.setValue(billnode::Text, data::organisationCaption(code, name));
    group.setValue(billnode::Level, QString::fromUtf16(GroupLevel));
    group.setValue(billnode::BillCode, code);
    group.setImages(GroupImage, GroupImage);
    return group;
}

} // namespace

void setUpBillTree(TdxTreeList &tree, const char *columnName, const QStringList &fields)
{
    setUpTree(tree, columnName);
    tree.setValueFields(QStringList{QString(), QStringLiteral("BillCode"), QStringLiteral("BillNo")} + fields);
}

void rebuildBillTree(TdxTreeList &tree, TClientDataSet &bills, const std::function<void(TdxTreeListNode &bill)> &fill)
{
    const TreeListUpdate update(tree);
    tree.clearNodes();
    QString lastCode;
    TdxTreeListNode group;
    for (; !bills.eof(); bills.next()) {
        const QString code = bills.text(QStringLiteral("BillCode"));
        if (code != lastCode) {
            group = addGroup(tree, code, bills.text(QStringLiteral("BillName")));
            lastCode = code;
        }
        TdxTreeListNode bill = tree.addRow(bills.packet(), bills.packetRow(), group);
        bill.setValue(billnode::Level, QString::fromUtf16(BillLevel));
        bill.setImages(BillImage, SelectedBillImage);
        fill(bill);
    }
}

bool isBillNode(const TdxTreeListNode &node)
{
    return node && node.text(billnode::Level) == QStringView(BillLevel);
}

data::BillKey billKeyOf(const TdxTreeListNode &bill)
{
    return {bill.text(billnode::BillCode), bill.text(billnode::BillNo)};
}
