// SPDX-License-Identifier: MIT
// What the look-up dialog is told.
#include "data/institutionlookup.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

TEST(InstitutionLookup, namesTableAndColumns)
{
    EXPECT_EQ(data::lookupTable(), u"p_ylfwdw"_s);
    EXPECT_EQ(data::lookupFieldList(), u"OrgCode as 医疗服务单位代码,OrgName as 医疗服务单位名称"_s);
    EXPECT_EQ(data::lookupCustomField(), u"OrgCode"_s);
    EXPECT_EQ(data::lookupCodeColumn(), u"医疗服务单位代码"_s);
    EXPECT_EQ(data::lookupNameColumn(), u"医疗服务单位名称"_s);
}

TEST(InstitutionLookup, takesTheAreaCodeRaw)
{
    EXPECT_EQ(data::lookupWhere(u"420106"_s), u" OrgCode like '420106%'"_s);
    EXPECT_EQ(data::lookupWhere(u"42'01"_s), u" OrgCode like '42'01%'"_s);
    EXPECT_EQ(data::lookupWhere(QString()), u" OrgCode like '%'"_s);
}

} // namespace
