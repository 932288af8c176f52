// SPDX-License-Identifier: MIT
// Conditions on a bill's key.
#include "data/billkey.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;
using namespace data;

namespace {

TEST(BillKey, quotesTheCodeAndNotTheNumber)
{
    EXPECT_EQ(billCondition({u"42'01"_s, u"17"_s}), u"BillCode='42''01' and BillNo=17"_s);
}

TEST(BillKey, hasAWideSpelling)
{
    EXPECT_EQ(billCondition({u"4201"_s, u"17"_s}, WideAndBillNo), u"BillCode='4201'   and BillNo=17"_s);
}

TEST(BillKey, comparesBothParts)
{
    EXPECT_EQ((BillKey{u"4201"_s, u"1"_s}), (BillKey{u"4201"_s, u"1"_s}));
    EXPECT_NE((BillKey{u"4201"_s, u"1"_s}), (BillKey{u"4201"_s, u"2"_s}));
    EXPECT_NE((BillKey{u"4201"_s, u"1"_s}), (BillKey{u"4202"_s, u"1"_s}));
}

} // namespace
