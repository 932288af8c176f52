// SPDX-License-Identifier: MIT
// The texts of data/statements/addbill.h, byte for byte.
#include "data/statements/addbill.h"

#include <gtest/gtest.h>

#include <ostream>

using namespace Qt::Literals::StringLiterals;
using namespace data;

namespace {

struct Row {
    const char *name;
    QString built;
    const char *expected; ///< UTF-8
};

void PrintTo(const Row &row, std::ostream *out)
{
    *out << row.name;
}

class AddBillStatement : public testing::TestWithParam<Row> { };

TEST_P(AddBillStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"RecomputeAfterAddingPlain", recomputeAfterAdding(BillKey{u"4201"_s, u"17"_s}),
     " update o_CbZyZdb set o_CbZyZdb.Fee=a.TotalFee,o_CbZyZdb.CanFreeFee=a.CanFreeFee  from      ( select"
     " sum(TotalFee) as TotalFee,sum(CanFreeFee) as CanFreeFee        from o_CbZyBxDj a        where"
     " a.BillCode='4201' and a.BillNo=17) a where o_CbZyZdb.BillCode='4201' and o_CbZyZdb.BillNo=17"},
    {"RecomputeAfterAddingQuotesAndChinese", recomputeAfterAdding(BillKey{u"院'"_s, u"5 "_s}),
     " update o_CbZyZdb set o_CbZyZdb.Fee=a.TotalFee,o_CbZyZdb.CanFreeFee=a.CanFreeFee  from      ( select"
     " sum(TotalFee) as TotalFee,sum(CanFreeFee) as CanFreeFee        from o_CbZyBxDj a        where"
     " a.BillCode='院''' and a.BillNo=5 ) a where o_CbZyZdb.BillCode='院''' and o_CbZyZdb.BillNo=5 "},
    {"RecomputeAfterAddingEmpty", recomputeAfterAdding(BillKey{u""_s, u""_s}),
     " update o_CbZyZdb set o_CbZyZdb.Fee=a.TotalFee,o_CbZyZdb.CanFreeFee=a.CanFreeFee  from      ( select"
     " sum(TotalFee) as TotalFee,sum(CanFreeFee) as CanFreeFee        from o_CbZyBxDj a        where"
     " a.BillCode='' and a.BillNo=) a where o_CbZyZdb.BillCode='' and o_CbZyZdb.BillNo="},
};

INSTANTIATE_TEST_SUITE_P(Texts, AddBillStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
