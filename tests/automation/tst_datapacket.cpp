// SPDX-License-Identifier: MIT
// Row sets: cells, nulls, names, misuse.
#include "automation/datapacket.h"

#include <gtest/gtest.h>

#include <QVariant>

using automation::DataPacketBuilder;
using automation::DataPacketPtr;

TEST(DataPacket, keepsCellsByRowAndColumn)
{
    DataPacketBuilder builder({QStringLiteral("OrgCode"), QStringLiteral("OrgName")});
    builder.append("4201");
    builder.append("城关镇卫生院");
    builder.append("");
    builder.appendNull();
    const DataPacketPtr packet = builder.finish();

    EXPECT_EQ(packet->rowCount(), 2);
    EXPECT_EQ(packet->columnCount(), 2);
    EXPECT_EQ(packet->text(0, 0), "4201");
    EXPECT_EQ(packet->text(0, 1), "城关镇卫生院");
    EXPECT_EQ(packet->text(1, 0), "");
    EXPECT_EQ(packet->text(1, 1), "");
    EXPECT_FALSE(packet->isNull(1, 0)) << "empty is not null";
    EXPECT_TRUE(packet->isNull(1, 1));
    EXPECT_FALSE(packet->isNull(0, 1));
}

TEST(DataPacket, nullBeforeTextLeavesTheTextWhole)
{
    DataPacketBuilder builder({QStringLiteral("A")});
    builder.appendNull();
    builder.append("x");
    builder.appendNull();
    const DataPacketPtr packet = builder.finish();
    EXPECT_EQ(packet->text(0, 0), "");
    EXPECT_EQ(packet->text(1, 0), "x");
    EXPECT_EQ(packet->text(2, 0), "");
}

TEST(DataPacket, columnsAreFoundWithoutRegardToLetterCase)
{
    DataPacketBuilder builder({QStringLiteral("OrgCode"), QStringLiteral("IDNO")});
    const DataPacketPtr packet = builder.finish();
    EXPECT_EQ(packet->columnIndex(u"IDNo"), 1);
    EXPECT_EQ(packet->columnIndex(u"orgcode"), 0);
    EXPECT_EQ(packet->columnIndex(u"Missing"), -1);
    EXPECT_EQ(packet->rowCount(), 0);
}

TEST(DataPacket, withoutColumnsIsValidAndEmpty)
{
    const DataPacketPtr packet = DataPacketBuilder({}).finish();
    EXPECT_EQ(packet->rowCount(), 0);
    EXPECT_EQ(packet->columnCount(), 0);
}

TEST(DataPacket, refusesHalfARow)
{
    DataPacketBuilder builder({QStringLiteral("A"), QStringLiteral("B")});
    builder.append("1");
    EXPECT_THROW((void)builder.finish(), std::logic_error);
    DataPacketBuilder none({});
    none.append("1");
    EXPECT_THROW((void)none.finish(), std::logic_error);
}

TEST(DataPacket, isSharedNotCopied)
{
    DataPacketBuilder builder({QStringLiteral("A")});
    builder.append("text");
    const DataPacketPtr packet = builder.finish();
    const QVariant variant = QVariant::fromValue(packet);
    EXPECT_EQ(variant.value<DataPacketPtr>()->text(0, 0).data(), packet->text(0, 0).data());
}
