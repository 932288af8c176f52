// SPDX-License-Identifier: MIT
// Columns, nodes, update bracket and focus.
#include "tests/toolkit/treelistfixture.h"

#include <stdexcept>

namespace {

class List : public TreeListTest { };

TEST_F(List, FindsColumnsByNamePositionAndClass)
{
    EXPECT_EQ(list.columnCount(), 9);
    EXPECT_EQ(list.columnByName(QStringLiteral("listFee")), list.column(Fee));
    EXPECT_EQ(list.columnByName(QStringLiteral("listfee")), nullptr);
    EXPECT_EQ(list.findChild<TdxTreeListColumn *>(QStringLiteral("listName")), list.column(Name));
    EXPECT_EQ(list.column(Fee)->metaObject(), &TdxTreeListCurrencyColumn::staticMetaObject);
    EXPECT_EQ(list.column(Check)->metaObject(), &TdxTreeListCheckColumn::staticMetaObject);
    EXPECT_EQ(list.column(Card)->metaObject(), &TdxTreeListColumn::staticMetaObject);
    EXPECT_EQ(list.column(Card)->caption(), QStringLiteral("合作医疗证号"));
    EXPECT_EQ(list.column(Number)->field(), QString());
    EXPECT_THROW((void)list.column(9), std::out_of_range);
}

TEST_F(List, AlignsByKind)
{
    EXPECT_EQ(list.column(Fee)->alignment(), Qt::AlignRight);
    EXPECT_EQ(list.column(Check)->alignment(), Qt::AlignHCenter);
    EXPECT_EQ(list.column(Age)->alignment(), Qt::AlignRight);
    EXPECT_EQ(list.column(Name)->alignment(), Qt::AlignLeft);
}

TEST_F(List, HidesAndShowsColumns)
{
    EXPECT_FALSE(list.column(Key)->isVisible());
    EXPECT_TRUE(list.column(Fee)->isVisible());
    list.column(Fee)->setVisible(false);
    EXPECT_FALSE(list.column(Fee)->isVisible());
    list.column(Fee)->setVisible(true);
    EXPECT_TRUE(list.column(Fee)->isVisible());
    EXPECT_GT(list.header()->sectionSize(Fee), 0);
}

TEST_F(List, ReplacesColumns)
{
    load();
    list.setColumns({{.name = "other", .caption = "别的", .field = "Age"}});
    EXPECT_EQ(list.columnCount(), 1);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.columnByName(QStringLiteral("listFee")), nullptr);
    EXPECT_EQ(list.findChildren<TdxTreeListColumn *>().size(), 1);
    load();
    EXPECT_EQ(list.node(1).text(0), QStringLiteral("5岁"));
}

TEST_F(List, HoldsFieldsBehindItsColumns)
{
    list.setColumns({{.name = "other", .caption = "别的"}});
    list.setValueFields({QString(), QStringLiteral("age")});
    load();
    EXPECT_EQ(list.node(1).text(0), QString());
    EXPECT_EQ(list.node(1).value(1), QVariant());
    EXPECT_EQ(list.node(1).value(2), QVariant(QStringLiteral("5岁")));
    list.node(1).setValue(2, QStringLiteral("6岁"));
    EXPECT_EQ(list.node(1).text(2), QStringLiteral("6岁"));
    EXPECT_EQ(list.model()->columnCount(), 1);
}

TEST_F(List, AFieldBehindTheColumnsHasToBeThere)
{
    list.setValueFields({QStringLiteral("NoSuchField")});
    EXPECT_THROW(load(), std::runtime_error);
}

TEST_F(List, ReadsRowsByFieldWhateverTheLetterCase)
{
    load();
    EXPECT_EQ(list.count(), 5);
    EXPECT_EQ(shown(Card), "001 002 003 004 005");
    EXPECT_EQ(list.node(2).text(Name), QStringLiteral("阿依古丽"));
    EXPECT_EQ(list.node(2).text(Key), QStringLiteral("13")); // hidden columns keep their values
    EXPECT_EQ(list.node(0).value(Fee), QVariant(QStringLiteral("         1234.50")));
    EXPECT_FALSE(list.node(3).value(Fee).isValid());
    EXPECT_EQ(list.node(3).text(Fee), QString());
    EXPECT_FALSE(list.node(0).value(Number).isValid());
}

TEST_F(List, NamesAMissingField)
{
    load();
    DataPacketBuilder builder({QStringLiteral("Card"), QStringLiteral("PatientName")});
    const DataPacketPtr packet = builder.finish();
    try {
        list.addRows(packet);
        FAIL() << "a field is missing";
    } catch (const std::runtime_error &error) {
        EXPECT_STREQ(error.what(), "查询结果中没有列“Age”。");
    }
    EXPECT_EQ(list.count(), 5);
}

TEST_F(List, TakesAPacketWithoutColumnsForNoRows)
{
    load(DataPacketBuilder({}).finish());
    EXPECT_EQ(list.count(), 0);
    EXPECT_TRUE(list.topNode().isNull());
    EXPECT_TRUE(list.focusedNode().isNull());
}

TEST_F(List, TakesSingleRowsOnAnyLevel)
{
    const DataPacketPtr packet = packetOf(somePatients);
    list.beginUpdate();
    const TdxTreeListNode group = list.addNode();
    group.setValue(Name, QStringLiteral("组"));
    list.addRow(packet, 4, group);
    list.addRow(packet, 1, group);
    list.endUpdate();
    EXPECT_EQ(list.count(), 1);
    ASSERT_EQ(group.childCount(), 2);
    EXPECT_EQ(group.child(0).text(Card), QStringLiteral("005"));
    EXPECT_EQ(group.child(1).text(Card), QStringLiteral("002"));
    EXPECT_EQ(group.child(1).parent(), group);
    EXPECT_EQ(group.child(1).level(), 1);
    EXPECT_TRUE(group.child(2).isNull());
    EXPECT_TRUE(group.child(-1).isNull());
    EXPECT_THROW(list.addRow(packet, 5), std::out_of_range);
    EXPECT_THROW(list.addRow(packet, -1), std::out_of_range);
}

TEST_F(List, KeepsValuesBeyondTheColumns)
{
    load();
    list.node(0).setValue(20, QStringLiteral("code"));
    EXPECT_EQ(list.node(0).text(20), QStringLiteral("code"));
    EXPECT_EQ(list.node(1).text(20), QString());
}

TEST_F(List, SetsOneValueOfAll)
{
    load();
    list.node(1).setValue(Check, 2);
    list.setValueOfAll(Check, QStringLiteral("1"));
    EXPECT_EQ(shown(Check), "1 1 1 1 1");
    std::string scratch;
    EXPECT_EQ(list.node(1).utf8(Check, scratch), "1");
    list.clearNodes();
    list.setValueOfAll(Check, QStringLiteral("1"));
    load();
    EXPECT_EQ(shown(Check), "    "); // a reload comes without ticks
}

TEST_F(List, NullAndStaleHandlesAreErrors)
{
    EXPECT_THROW((void)TdxTreeListNode().text(0), std::logic_error);
    load();
    const TdxTreeListNode gone = list.node(0);
    const TdxTreeListNode same = list.topNode();
    EXPECT_EQ(gone, same);
    load();
    EXPECT_NE(gone, list.node(0));
    EXPECT_THROW((void)gone.text(Card), std::logic_error);
    EXPECT_THROW(list.setFocusedNode(gone), std::logic_error);
    EXPECT_THROW(list.addNode(gone), std::logic_error);
    EXPECT_EQ(list.count(), 5);
    EXPECT_TRUE(list.node(5).isNull());
    EXPECT_TRUE(list.node(-1).isNull());
}

TEST_F(List, HandlesOfAnotherListAreErrors)
{
    load();
    TdxTreeList other;
    other.setColumns(patientColumns());
    EXPECT_THROW(other.setFocusedNode(list.node(0)), std::logic_error);
}

// ---- focus

TEST_F(List, FocusesTheTopNodeAfterALoadAndTellsNobody)
{
    load();
    EXPECT_EQ(focus(), "001");
    EXPECT_EQ(list.currentIndex().column(), Card); // type-ahead means a text, not the tick
    EXPECT_EQ(focusTold, Texts{});
    list.setFocusedNode(list.node(3));
    focusTold.clear();
    load();
    EXPECT_EQ(focus(), "001");
    EXPECT_EQ(focusTold, Texts{});
}

TEST_F(List, AnEmptyLoadLosesTheFocusSilently)
{
    load();
    load(packetOf({}));
    EXPECT_TRUE(list.focusedNode().isNull());
    EXPECT_FALSE(list.currentIndex().isValid());
    list.clearNodes();
    EXPECT_EQ(focusTold, Texts{});
}

TEST_F(List, TellsOnceForEachMove)
{
    load();
    list.setFocusedNode(list.node(2));
    list.setFocusedNode(list.node(2));
    list.setFocusedNode(list.node(0));
    list.setFocusedNode({});
    EXPECT_EQ(focusTold, (Texts{"003", "001", "none"}));
    EXPECT_EQ(focus(), "none");
}

TEST_F(List, FocusWishedForWithinABracketIsToldAtItsEnd)
{
    load();
    list.beginUpdate();
    list.clearNodes();
    list.addRows(packetOf(somePatients));
    list.setFocusedNode(list.node(3));
    EXPECT_EQ(list.focusedNode(), list.node(3));
    EXPECT_EQ(focusTold, Texts{});
    list.endUpdate();
    EXPECT_EQ(focusTold, Texts{"004"});
    EXPECT_EQ(focus(), "004");
}

TEST_F(List, ClearingWithinABracketLeavesNoFocus)
{
    load();
    list.beginUpdate();
    list.clearNodes();
    EXPECT_TRUE(list.focusedNode().isNull());
    EXPECT_TRUE(list.topNode().isNull());
    EXPECT_FALSE(list.currentIndex().isValid());
    QCoreApplication::processEvents(); // nobody may meet a node that is gone
    list.endUpdate();
    EXPECT_EQ(focusTold, Texts{});
}

TEST_F(List, BracketsNest)
{
    list.beginUpdate();
    load();
    EXPECT_FALSE(list.updatesEnabled());
    EXPECT_TRUE(list.focusedNode().isNull());
    list.endUpdate();
    EXPECT_TRUE(list.updatesEnabled());
    EXPECT_EQ(focus(), "001");
}

TEST_F(List, AddingToAFilledListKeepsTheFocus)
{
    load();
    list.setFocusedNode(list.node(2));
    focusTold.clear();
    list.beginUpdate();
    list.addNode().setValue(Card, QStringLiteral("006"));
    list.endUpdate();
    EXPECT_EQ(shown(Card), "001 002 003 004 005 006");
    EXPECT_EQ(focus(), "003");
    EXPECT_EQ(focusTold, Texts{});
}

TEST_F(List, ReloadFromItsOwnFocusHandler)
{
    load();
    show();
    QObject::connect(&list, &TdxTreeList::changeNode, &list, [this] { load(); });
    click(3, Name);
    EXPECT_EQ(focusTold, Texts{"004"});
    EXPECT_EQ(focus(), "001");
    click(2, Check);
    EXPECT_EQ(toggles, Texts{}); // the row that was clicked is gone
}

TEST_F(List, ErrorOfAHandlerIsDisplayed)
{
    load();
    QObject::connect(&list, &TdxTreeList::changeNode, &list, [] { throw std::runtime_error("查询失败"); });
    list.setFocusedNode(list.node(2));
    EXPECT_EQ(errors, Texts{"查询失败"});
    EXPECT_EQ(focus(), "003");
}

// ---- size

TEST_F(List, HoldsAHundredThousandRows)
{
    load(manyPatients(100000));
    show();
    EXPECT_EQ(list.count(), 100000);
    list.setFocusedNode(list.node(99999));
    EXPECT_EQ(focus(), "P99999");
    EXPECT_TRUE(list.viewport()->rect().contains(middleOf(99999, Card)));
    list.setValueOfAll(Check, QStringLiteral("1"));
    list.node(50000).setValue(Check, 2);
    std::string scratch;
    int ticked = 0;
    for (int row = 0; row < list.count(); ++row)
        ticked += list.node(row).utf8(Check, scratch) == "1" ? 1 : 0;
    EXPECT_EQ(ticked, 99999);
    list.header()->setSortIndicator(Fee, Qt::DescendingOrder);
    EXPECT_EQ(list.topNode().text(Card), QStringLiteral("P99999"));
    EXPECT_EQ(focus(), "P99999");
    EXPECT_EQ(list.focusedNode().index(), 0);
}

TEST_F(List, HoldsTwentyThousandChildrenOfTenValues)
{
    constexpr int bills = 20000;
    list.beginUpdate();
    list.clearNodes();
    const TdxTreeListNode group = list.addNode();
    for (int bill = 0; bill < bills; ++bill) {
        TdxTreeListNode node = list.addNode(group);
        for (int position = 0; position < 10; ++position)
            node.setValue(position, QStringLiteral("%1-%2").arg(bill).arg(position));
        node.setImages(1, 2);
    }
    list.endUpdate();
    EXPECT_EQ(group.childCount(), bills);
    EXPECT_EQ(group.child(19999).text(9), QStringLiteral("19999-9"));
    EXPECT_TRUE(list.isExpanded(at(0, 0)));
    EXPECT_TRUE(list.rootIsDecorated());
    EXPECT_EQ(list.focusedNode(), group);
}

TEST_F(List, AListHasNoBranches)
{
    load();
    EXPECT_FALSE(list.rootIsDecorated());
}

} // namespace
