// SPDX-License-Identifier: MIT
// Row sets in memory: cursor, columns by name, filter.
#include "automation/error.h"
#include "host/clientdataset.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

QVariant feeLines()
{
    automation::DataPacketBuilder builder(
        {QStringLiteral("FeeTypeCode"), QStringLiteral("IfPass"), QStringLiteral("Fee")});
    for (const auto &[type, pass, fee] : {std::tuple{"01", "1", "      12.5000"}, std::tuple{"02", "2", "3"},
                                          std::tuple{"0'1", "1", "x"}, std::tuple{"01", "2", ""}}) {
        builder.append(type);
        builder.append(pass);
        builder.append(fee);
    }
    builder.appendNull();
    builder.appendNull();
    builder.appendNull();
    return QVariant::fromValue(builder.finish());
}

QStringList codes(TClientDataSet &set)
{
    QStringList result;
    for (set.first(); !set.eof(); set.next())
        result.append(set.text(QStringLiteral("feetypecode")));
    return result;
}

QString messageOf(const std::function<void()> &action)
{
    try {
        action();
    } catch (const std::exception &error) {
        return automation::messageOf(error);
    }
    return {};
}

} // namespace

TEST(ClientDataSet, isEmptyBeforeTheFirstLoad)
{
    const TClientDataSet set;
    EXPECT_TRUE(set.isEmpty());
    EXPECT_TRUE(set.eof());
    EXPECT_EQ(set.recordCount(), 0);
}

TEST(ClientDataSet, walksItsRows)
{
    TClientDataSet set;
    set.setData(feeLines());
    EXPECT_EQ(set.recordCount(), 5);
    EXPECT_EQ(codes(set),
              QStringList({QStringLiteral("01"), QStringLiteral("02"), QStringLiteral("0'1"), QStringLiteral("01"),
                           QString()}));
    set.next();
    EXPECT_TRUE(set.eof()) << "next() at the end stays there";
}

TEST(ClientDataSet, readsNumbersAndNulls)
{
    TClientDataSet set;
    set.setData(feeLines());
    EXPECT_EQ(set.number(QStringLiteral("Fee")), 12.5);
    set.next();
    EXPECT_EQ(set.integer(QStringLiteral("Fee")), 3);
    EXPECT_FALSE(set.isNull(QStringLiteral("Fee")));
    set.next();
    EXPECT_EQ(messageOf([&] { (void)set.number(QStringLiteral("Fee")); }),
              QStringLiteral("“Fee”的值“x”不是有效的数值。"));
    set.next();
    set.next();
    EXPECT_TRUE(set.isNull(QStringLiteral("Fee")));
    EXPECT_EQ(set.integer(QStringLiteral("Fee")), 0);
}

TEST(ClientDataSet, filterShowsMatchingRowsInPlace)
{
    TClientDataSet set;
    set.setData(feeLines());
    set.setFilter(QStringLiteral(" FeeTypeCode='01'"));
    EXPECT_EQ(set.recordCount(), 5) << "a filter that is switched off passes everything";
    set.setFiltered(true);
    EXPECT_EQ(codes(set), QStringList({QStringLiteral("01"), QStringLiteral("01")}));
    set.setFilter(QStringLiteral(" IfPass = '2' "));
    EXPECT_EQ(codes(set), QStringList({QStringLiteral("02"), QStringLiteral("01")}));
    set.first();
    EXPECT_EQ(set.packetRow(), 1);
    set.setFilter(QStringLiteral("FeeTypeCode='0''1'"));
    EXPECT_EQ(codes(set), QStringList({QStringLiteral("0'1")}));
    set.setFilter(QStringLiteral("FeeTypeCode=''"));
    EXPECT_TRUE(set.isEmpty()) << "null equals nothing, the empty text included";
    set.setFilter(QString());
    EXPECT_EQ(set.recordCount(), 5);
    set.setFiltered(false);
    EXPECT_EQ(set.recordCount(), 5);
}

TEST(ClientDataSet, filterHoldsForTheNextLoad)
{
    TClientDataSet set;
    set.setFilter(QStringLiteral("IfPass='2'"));
    set.setFiltered(true);
    set.setData(feeLines());
    EXPECT_EQ(set.recordCount(), 2);
}

TEST(ClientDataSet, refusesWhatItCannotDo)
{
    TClientDataSet set;
    set.setData(feeLines());
    EXPECT_EQ(messageOf([&] { set.setFilter(QStringLiteral("Fee > 3")); }), QStringLiteral("筛选条件无效：Fee > 3"));
    EXPECT_EQ(messageOf([&] { (void)set.text(QStringLiteral("Missing")); }),
              QStringLiteral("数据集中没有字段“Missing”。"));
    while (!set.eof())
        set.next();
    EXPECT_EQ(messageOf([&] { (void)set.text(QStringLiteral("Fee")); }), QStringLiteral("数据集中没有当前记录。"));
}

TEST(ClientDataSet, anythingButAPacketLeavesTheRowsAsTheyWere)
{
    TClientDataSet set;
    set.setData(feeLines());
    EXPECT_EQ(messageOf([&] { set.setData(QVariant(1)); }), QStringLiteral("主程序返回的不是数据集。"));
    EXPECT_EQ(set.recordCount(), 5);
}
