// SPDX-License-Identifier: MIT
// The texts of data/statements/startup.h, byte for byte.
#include "data/statements/startup.h"

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

class StartupStatement : public testing::TestWithParam<Row> { };

TEST_P(StartupStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"SettlementProcedureLookup", settlementProcedureLookup(),
     " select name from SysObjects where name ='Pro_Zy_FeeInterFace' "},
};

INSTANTIATE_TEST_SUITE_P(Texts, StartupStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
