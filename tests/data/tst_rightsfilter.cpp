// SPDX-License-Identifier: MIT
// The texts of the rights filter, byte for byte.
#include "data/rightsfilter.h"

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

class RightsFilterStatement : public testing::TestWithParam<Row> { };

TEST_P(RightsFilterStatement, isByteForByte)
{
    EXPECT_EQ(GetParam().built.toStdString(), GetParam().expected);
}

const Row Rows[] = {
    {"InstitutionsWithUnbilled", institutionsWithUnbilled(),
     " select OrgCode,OrgName  from p_Ylfwdw  where OrgCode in (select OrgCode from o_CbZyBxDj"
     "                    where BillNo is null                    group by OrgCode ) order by OrgCode "},
    {"GrantedInstitutionsWithUnbilledPlain", grantedInstitutionsWithUnbilled(Grant{u"02"_s, u"0301"_s}),
     " select d.OrgCode,e.OrgName  from r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d,"
     "p_Ylfwdw e where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode    and b.RoleCode=d.RoleCode"
     " and b.RightCode=d.RightCode and b.SubSysCode=d.SubSysCode   and d.OrgCode=e.OrgCode and d.OrgCode"
     " in (select OrgCode from o_CbZyBxDj                                            where BillNo is null"
     "                                            group by OrgCode )   and b.IsBillAll='2' and"
     " c.SubSysCode='1' and d.BillCheck='1'    and a.UserCode='02'   and b.RightCode='0301' order by"
     " d.OrgCode "},
    {"GrantedInstitutionsWithUnbilledQuotesAndChinese", grantedInstitutionsWithUnbilled(Grant{u"李'会计"_s, u"'"_s}),
     " select d.OrgCode,e.OrgName  from r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d,"
     "p_Ylfwdw e where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode    and b.RoleCode=d.RoleCode"
     " and b.RightCode=d.RightCode and b.SubSysCode=d.SubSysCode   and d.OrgCode=e.OrgCode and d.OrgCode"
     " in (select OrgCode from o_CbZyBxDj                                            where BillNo is null"
     "                                            group by OrgCode )   and b.IsBillAll='2' and"
     " c.SubSysCode='1' and d.BillCheck='1'    and a.UserCode='李''会计'   and b.RightCode='''' order by"
     " d.OrgCode "},
    {"GrantedInstitutionsWithUnbilledEmpty", grantedInstitutionsWithUnbilled(Grant{u""_s, u""_s}),
     " select d.OrgCode,e.OrgName  from r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d,"
     "p_Ylfwdw e where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode    and b.RoleCode=d.RoleCode"
     " and b.RightCode=d.RightCode and b.SubSysCode=d.SubSysCode   and d.OrgCode=e.OrgCode and d.OrgCode"
     " in (select OrgCode from o_CbZyBxDj                                            where BillNo is null"
     "                                            group by OrgCode )   and b.IsBillAll='2' and"
     " c.SubSysCode='1' and d.BillCheck='1'    and a.UserCode=''   and b.RightCode='' order by d.OrgCode "},
    {"RecordFilterPlain", recordFilter(Grant{u"02"_s, u"0301"_s}, {.tables = 17, .conditions = 20}),
     " and OrgCode in (select OrgCode                  from r_UserRights a,r_RoleItem b,r_SubSysInfo c,"
     "r_BillCheckList d                  where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode"
     "                     and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and"
     " b.SubSysCode=d.SubSysCode                    and b.IsBillAll='2' and c.SubSysCode='1' and"
     " d.BillCheck='1'                     and a.UserCode='02'                    and b.RightCode='0301')"},
    {"RecordFilterQuotesAndChinese", recordFilter(Grant{u"李'会计"_s, u"'"_s}, {.tables = 17, .conditions = 20}),
     " and OrgCode in (select OrgCode                  from r_UserRights a,r_RoleItem b,r_SubSysInfo c,"
     "r_BillCheckList d                  where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode"
     "                     and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and"
     " b.SubSysCode=d.SubSysCode                    and b.IsBillAll='2' and c.SubSysCode='1' and"
     " d.BillCheck='1'                     and a.UserCode='李''会计'                    and"
     " b.RightCode='''')"},
    {"RecordFilterEmpty", recordFilter(Grant{u""_s, u""_s}, {.tables = 17, .conditions = 20}),
     " and OrgCode in (select OrgCode                  from r_UserRights a,r_RoleItem b,r_SubSysInfo c,"
     "r_BillCheckList d                  where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode"
     "                     and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and"
     " b.SubSysCode=d.SubSysCode                    and b.IsBillAll='2' and c.SubSysCode='1' and"
     " d.BillCheck='1'                     and a.UserCode=''                    and b.RightCode='')"},
};

INSTANTIATE_TEST_SUITE_P(Texts, RightsFilterStatement, testing::ValuesIn(Rows),
                         [](const testing::TestParamInfo<Row> &row) { return row.param.name; });

} // namespace
