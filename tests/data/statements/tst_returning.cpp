// SPDX-License-Identifier: MIT
// The texts of data/statements/returning.h, byte for byte.
#include "data/statements/returning.h"

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

class ReturningStatement : public testing::TestWithParam<Row> { };

TEST_P(ReturningStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"ClearDischargePlain", clearDischarge(RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " update o_cbzybxdj  set OutDate=null,DayCount=null,JsDate=null  where OrgCode='4201'   and"
     " CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3"},
    {"ClearDischargeQuotesAndChinese", clearDischarge(RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " update o_cbzybxdj  set OutDate=null,DayCount=null,JsDate=null  where OrgCode='42''01'   and"
     " CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1"},
    {"ClearDischargeEmpty", clearDischarge(RecordKey{u""_s, u""_s, u""_s, u""_s}),
     " update o_cbzybxdj  set OutDate=null,DayCount=null,JsDate=null  where OrgCode=''   and"
     " CoopMedCode=''   and IDNo= and DiagNo="},
    {"DeleteSettlementFeesPlain", deleteSettlementFees(RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " delete from o_CbZyJsMxb  where CoopMedCode='420106001200'   and IDNo=1 and DiagNo=3   and"
     " OrgCode='4201'"},
    {"DeleteSettlementFeesQuotesAndChinese",
     deleteSettlementFees(RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " delete from o_CbZyJsMxb  where CoopMedCode='合作''证''''7'   and IDNo=002 and DiagNo=-1   and"
     " OrgCode='42''01'"},
    {"DeleteSettlementFeesEmpty", deleteSettlementFees(RecordKey{u""_s, u""_s, u""_s, u""_s}),
     " delete from o_CbZyJsMxb  where CoopMedCode=''   and IDNo= and DiagNo=   and OrgCode=''"},
    {"DeleteSettlementPlain", deleteSettlement(RecordKey{u"4201"_s, u"420106001200"_s, u"1"_s, u"3"_s}),
     " delete from o_CbZyJsb  where OrgCode='4201'   and CoopMedCode='420106001200'   and IDNo=1 and"
     " DiagNo=3"},
    {"DeleteSettlementQuotesAndChinese", deleteSettlement(RecordKey{u"42'01"_s, u"合作'证''7"_s, u"002"_s, u"-1"_s}),
     " delete from o_CbZyJsb  where OrgCode='42''01'   and CoopMedCode='合作''证''''7'   and IDNo=002 and"
     " DiagNo=-1"},
    {"DeleteSettlementEmpty", deleteSettlement(RecordKey{u""_s, u""_s, u""_s, u""_s}),
     " delete from o_CbZyJsb  where OrgCode=''   and CoopMedCode=''   and IDNo= and DiagNo="},
};

INSTANTIATE_TEST_SUITE_P(Texts, ReturningStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
