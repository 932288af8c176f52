// SPDX-License-Identifier: MIT
// Where nodes and their values stand.
#include "toolkit/treelist/nodestore.h"
#include "toolkit/treelist/storedvalues.h"

#include <gtest/gtest.h>

namespace {

using automation::DataPacketBuilder;
using toolkit::treelist::NodeStore;
using toolkit::treelist::StoredValues;

constexpr int Top = NodeStore::None;

automation::DataPacketPtr twoRows()
{
    DataPacketBuilder builder({QStringLiteral("A"), QStringLiteral("B")});
    builder.append("甲");
    builder.appendNull();
    builder.append("");
    builder.append("b2");
    return builder.finish();
}

TEST(StoredValues, TellsIntegerFromTextOfTheSameSpelling)
{
    StoredValues values;
    values.set(0, 2);
    values.set(1, QStringLiteral("2"));
    EXPECT_EQ(values.value(0).metaType(), QMetaType::fromType<int>());
    EXPECT_EQ(values.value(1).metaType(), QMetaType::fromType<QString>());
    EXPECT_EQ(values.text(0), QStringLiteral("2"));
    std::string scratch;
    EXPECT_EQ(values.utf8(0, scratch), "2");
    EXPECT_EQ(values.utf8(1, scratch), "2");
}

TEST(StoredValues, KnowsWhatWasNeverSet)
{
    StoredValues values;
    EXPECT_FALSE(values.has(0));
    values.set(3, QStringLiteral("x"));
    EXPECT_FALSE(values.has(2));
    EXPECT_TRUE(values.has(3));
    EXPECT_FALSE(values.has(4));
}

TEST(StoredValues, KeepsManyDistinctValues)
{
    StoredValues values;
    for (int node = 0; node < 1000; ++node)
        values.set(node, QStringLiteral("值%1").arg(node));
    std::string scratch;
    for (int node = 0; node < 1000; ++node) {
        ASSERT_EQ(values.text(node), QStringLiteral("值%1").arg(node));
        ASSERT_EQ(values.utf8(node, scratch), "值" + std::to_string(node));
        ASSERT_EQ(values.value(node), QVariant(QStringLiteral("值%1").arg(node)));
    }
    values.set(999, QStringLiteral("值0")); // from a value of its own to a common one
    EXPECT_EQ(values.text(999), QStringLiteral("值0"));
    values.set(0, QStringLiteral("值999"));
    EXPECT_EQ(values.text(0), QStringLiteral("值999"));
}

TEST(StoredValues, SetsAllAtOnce)
{
    StoredValues values;
    values.set(5, QStringLiteral("old"));
    values.setAll(4, QStringLiteral("1"));
    EXPECT_TRUE(values.has(3));
    EXPECT_FALSE(values.has(4));
    EXPECT_FALSE(values.has(5));
    EXPECT_EQ(values.text(3), QStringLiteral("1"));
}

TEST(NodeStore, ReadsRowsThroughTheColumnsGiven)
{
    NodeStore store;
    const int source = store.addSource(twoRows(), {-1, 1, 0});
    const int first = store.addRow(Top, source, 0);
    const int second = store.addRow(Top, source, 1);
    EXPECT_EQ(store.text(first, 0), QString());
    EXPECT_EQ(store.text(first, 2), QStringLiteral("甲"));
    EXPECT_EQ(store.text(second, 1), QStringLiteral("b2"));
    EXPECT_EQ(store.text(second, 9), QString());
}

TEST(NodeStore, NullIsInvalidAndEmptyIsNot)
{
    NodeStore store;
    const int source = store.addSource(twoRows(), {0, 1});
    const int first = store.addRow(Top, source, 0);
    const int second = store.addRow(Top, source, 1);
    EXPECT_FALSE(store.value(first, 1).isValid());
    EXPECT_TRUE(store.value(second, 0).isValid());
    EXPECT_EQ(store.value(second, 0), QVariant(QString()));
    EXPECT_FALSE(store.value(first, 7).isValid());
}

TEST(NodeStore, SetValuesLieOverTheRow)
{
    NodeStore store;
    const int node = store.addRow(Top, store.addSource(twoRows(), {0, 1}), 0);
    std::string scratch;
    EXPECT_EQ(store.utf8(node, 0, scratch), "甲");
    store.setValue(node, 0, QStringLiteral("乙"));
    EXPECT_EQ(store.utf8(node, 0, scratch), "乙");
    store.setValue(node, 0, QVariant());
    EXPECT_EQ(store.utf8(node, 0, scratch), "");
    EXPECT_FALSE(store.value(node, 0).isValid());
    EXPECT_THROW(store.setValue(node, -1, 1), std::out_of_range);
}

TEST(NodeStore, ReadsTextInPlace)
{
    NodeStore store;
    const automation::DataPacketPtr packet = twoRows();
    const int node = store.addRow(Top, store.addSource(packet, {0}), 0);
    std::string scratch;
    EXPECT_EQ(store.utf8(node, 0, scratch).data(), packet->text(0, 0).data());
}

TEST(NodeStore, KeepsLevelsAndRanks)
{
    NodeStore store;
    EXPECT_FALSE(store.hasLevels());
    const int group = store.addNode(Top);
    const int other = store.addNode(Top);
    const int first = store.addNode(group);
    const int second = store.addNode(group);
    EXPECT_TRUE(store.hasLevels());
    EXPECT_EQ(store.children(Top), (std::vector<int>{group, other}));
    EXPECT_EQ(store.children(group), (std::vector<int>{first, second}));
    EXPECT_TRUE(store.children(other).empty());
    EXPECT_EQ(store.parent(second), group);
    EXPECT_EQ(store.level(second), 1);
    EXPECT_EQ(store.level(other), 0);
    EXPECT_EQ(store.rank(second), 1);
    EXPECT_EQ(store.parents(), (std::vector<int>{Top, group}));
    store.reorder(group, {second, first});
    EXPECT_EQ(store.rank(second), 0);
    EXPECT_EQ(store.rank(first), 1);
}

TEST(NodeStore, SetsTopLevelOnly)
{
    NodeStore store;
    const int group = store.addNode(Top);
    const int child = store.addNode(group);
    store.setValueOfTop(0, QStringLiteral("1"));
    EXPECT_EQ(store.text(group, 0), QStringLiteral("1"));
    EXPECT_EQ(store.text(child, 0), QString());
}

TEST(NodeStore, ClearingForgetsAndStartsANewGeneration)
{
    NodeStore store;
    const int group = store.addNode(Top);
    store.addNode(group);
    store.setValue(group, 2, 7);
    const int generation = store.generation();
    store.clear();
    EXPECT_EQ(store.nodeCount(), 0);
    EXPECT_FALSE(store.hasLevels());
    EXPECT_NE(store.generation(), generation);
    EXPECT_EQ(store.lastPacket(), nullptr);
    EXPECT_FALSE(store.value(store.addNode(Top), 2).isValid());
}

} // namespace
