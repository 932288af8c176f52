// SPDX-License-Identifier: MIT
// The order that a header click gives.
#include "tests/toolkit/treelistfixture.h"

#include "toolkit/treelist/nodestore.h"
#include "toolkit/treelist/sorter.h"

#include <ostream>

namespace {

using toolkit::treelist::NodeStore;
using toolkit::treelist::SortKind;

struct Case {
    const char *name;
    SortKind kind;
    Qt::SortOrder order;
    std::vector<const char *> texts;
    std::vector<int> expected; // numbers of the texts above in sorted order
};

void PrintTo(const Case &row, std::ostream *stream)
{
    *stream << row.name;
}

class Sorted : public testing::TestWithParam<Case> { };

TEST_P(Sorted, InOrder)
{
    NodeStore store;
    std::vector<int> nodes;
    for (const char *text : GetParam().texts) {
        nodes.push_back(store.addNode(NodeStore::None));
        store.setValue(nodes.back(), 0, QString::fromUtf8(text));
    }
    EXPECT_EQ(sortedNodes(store, nodes, 0, GetParam().kind, GetParam().order), GetParam().expected);
}

constexpr auto Up = Qt::AscendingOrder;
constexpr auto Down = Qt::DescendingOrder;

INSTANTIATE_TEST_SUITE_P(
    All, Sorted,
    testing::Values(Case{"NamesByPinyin", SortKind::Texts, Up, {"赵", "王", "李", "张", "阿"}, {4, 2, 1, 3, 0}},
                    Case{"NamesByPinyinDown", SortKind::Texts, Down, {"赵", "王", "李", "张", "阿"}, {0, 3, 1, 2, 4}},
                    Case{"LongerNameBehindItsBeginning", SortKind::Texts, Up, {"李丽", "李"}, {1, 0}},
                    Case{"NumbersInATextColumn", SortKind::Texts, Up, {"10", "9", "-1", "2.5"}, {2, 3, 1, 0}},
                    Case{"OneWordMakesTheColumnText", SortKind::Texts, Up, {"10", "9", "无", "100"}, {1, 0, 3, 2}},
                    Case{"AmountsWithBlanks", SortKind::Amounts, Up, {"   1000.00", "    20.00", "-3.00"}, {2, 1, 0}},
                    Case{"EmptyFirst", SortKind::Amounts, Up, {"1", "", "-5", "   "}, {1, 3, 2, 0}},
                    Case{"EmptyLastDown", SortKind::Amounts, Down, {"1", "", "-5"}, {0, 2, 1}},
                    Case{"WhatIsNoAmountComesBehind", SortKind::Amounts, Up, {"未结", "7", "3"}, {2, 1, 0}},
                    Case{"EqualRowsKeepTheirOrder", SortKind::Texts, Up, {"女", "男", "女", "男"}, {1, 3, 0, 2}},
                    Case{"EqualRowsKeepTheirOrderDown", SortKind::Texts, Down, {"女", "男", "女", "男"}, {0, 2, 1, 3}},
                    Case{"EqualNumbersKeepTheirOrder", SortKind::Texts, Down, {"1.0", "1", "2"}, {2, 0, 1}},
                    Case{"NoValueAtAll", SortKind::Texts, Down, {"", "", ""}, {0, 1, 2}},
                    Case{"AgesByTheirNumber", SortKind::Texts, Up, {"45岁", "5岁", "101岁"}, {1, 0, 2}},
                    Case{"Dates", SortKind::Texts, Up, {"2024-01-10", "2023-12-31", "2024-01-09"}, {1, 2, 0}},
                    Case{"LongCardNumbersExactly",
                         SortKind::Texts,
                         Up,
                         {"371402000000000000000003", "371402000000000000000001", "371402000000000000000002"},
                         {1, 2, 0}},
                    Case{"TicksAsText", SortKind::Texts, Up, {"2", "1", "", "1"}, {2, 1, 3, 0}}),
    [](const testing::TestParamInfo<Case> &row) { return row.param.name; });

TEST(Sorted, NothingGivesNothing)
{
    const NodeStore store;
    EXPECT_TRUE(sortedNodes(store, {}, 0, SortKind::Texts, Up).empty());
}

TEST(Sorted, ManyEqualRowsKeepTheirOrder)
{
    NodeStore store;
    std::vector<int> nodes;
    std::vector<int> men;
    std::vector<int> women;
    for (int i = 0; i < 5000; ++i) {
        nodes.push_back(store.addNode(NodeStore::None));
        store.setValue(nodes.back(), 0, i % 3 == 0 ? QStringLiteral("男") : QStringLiteral("女"));
        (i % 3 == 0 ? men : women).push_back(nodes.back());
    }
    std::vector<int> up = men;
    up.insert(up.end(), women.begin(), women.end());
    std::vector<int> down = women;
    down.insert(down.end(), men.begin(), men.end());
    EXPECT_EQ(sortedNodes(store, nodes, 0, SortKind::Texts, Up), up);
    EXPECT_EQ(sortedNodes(store, nodes, 0, SortKind::Texts, Down), down);
}

class HeaderSort : public TreeListTest {
protected:
    HeaderSort()
    {
        load();
        show();
    }

    void clickHeader(int column)
    {
        QHeaderView &header = *list.header();
        const int x = header.sectionViewportPosition(column) + header.sectionSize(column) / 2;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, QPoint(x, header.height() / 2));
    }
};

TEST_F(HeaderSort, SortsUpThenDownThenAsLoaded)
{
    clickHeader(Name);
    EXPECT_EQ(shown(Name), "阿依古丽 李建国 李丽 王秀英 张伟");
    EXPECT_EQ(list.header()->sortIndicatorSection(), Name);
    clickHeader(Name);
    EXPECT_EQ(shown(Name), "张伟 王秀英 李丽 李建国 阿依古丽");
    clickHeader(Name);
    EXPECT_EQ(shown(Name), "王秀英 张伟 阿依古丽 李建国 李丽");
    EXPECT_EQ(list.header()->sortIndicatorSection(), -1);
}

TEST_F(HeaderSort, MayBeginSorted)
{
    list.setColumns({{.name = "a", .field = "Card"}, {.name = "b", .field = "PatientName", .sortedAtFirst = true}});
    load();
    EXPECT_EQ(shown(1), "阿依古丽 李建国 李丽 王秀英 张伟");
    EXPECT_EQ(list.header()->sortIndicatorSection(), 1);
    EXPECT_EQ(list.header()->sortIndicatorOrder(), Qt::AscendingOrder);
    list.setColumns({{.name = "a", .field = "Card"}});
    EXPECT_EQ(list.header()->sortIndicatorSection(), -1);
}

TEST_F(HeaderSort, SortsAmountsAsNumbers)
{
    clickHeader(Fee);
    EXPECT_EQ(shown(Card), "004 005 002 001 003");
}

TEST_F(HeaderSort, ColumnWithoutValuesShowsTheOrderLoaded)
{
    clickHeader(Name);
    clickHeader(Number);
    EXPECT_EQ(shown(Card), "001 002 003 004 005");
    clickHeader(Number);
    EXPECT_EQ(shown(Card), "001 002 003 004 005");
}

TEST_F(HeaderSort, SortsTicksAsText)
{
    list.node(2).setValue(Check, QStringLiteral("1"));
    list.node(4).setValue(Check, 2);
    clickHeader(Check);
    EXPECT_EQ(shown(Card), "001 002 004 003 005");
}

TEST_F(HeaderSort, KeepsTheFocusedNodeWithoutTelling)
{
    list.setFocusedNode(list.node(1));
    focusTold.clear();
    clickHeader(Name);
    EXPECT_EQ(focus(), "002");
    EXPECT_EQ(list.focusedNode().index(), 4);
    EXPECT_EQ(list.currentIndex().row(), 4);
    EXPECT_EQ(focusTold, Texts{});
}

TEST_F(HeaderSort, StaysThroughAReload)
{
    clickHeader(Name);
    load();
    EXPECT_EQ(shown(Name), "阿依古丽 李建国 李丽 王秀英 张伟");
    EXPECT_EQ(focus(), "003");
    clickHeader(Name);
    clickHeader(Name);
    load();
    EXPECT_EQ(shown(Card), "001 002 003 004 005");
}

TEST_F(HeaderSort, SettingAValueDoesNotMoveTheRow)
{
    clickHeader(Fee);
    list.node(0).setValue(Fee, QStringLiteral("99999"));
    EXPECT_EQ(shown(Card), "004 005 002 001 003");
}

TEST_F(HeaderSort, SwitchedOffLeavesTheOrder)
{
    clickHeader(Name);
    list.setAutoSort(false);
    EXPECT_EQ(shown(Card), "001 002 003 004 005");
    clickHeader(Name);
    EXPECT_EQ(shown(Card), "001 002 003 004 005");
}

TEST_F(HeaderSort, SortsEachLevelOfATreeByItself)
{
    list.clearNodes();
    list.beginUpdate();
    const TdxTreeListNode second = list.addNode();
    const TdxTreeListNode first = list.addNode();
    second.setValue(Name, QStringLiteral("乙"));
    first.setValue(Name, QStringLiteral("甲"));
    for (const char *name : {"王", "李"})
        list.addNode(second).setValue(Name, QString::fromUtf8(name));
    list.endUpdate();
    clickHeader(Name);
    EXPECT_EQ(shown(Name), "甲 乙");
    EXPECT_EQ(second.child(0).text(Name), QStringLiteral("李"));
    EXPECT_EQ(second.index(), 1);
}

} // namespace
