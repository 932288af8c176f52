// SPDX-License-Identifier: MIT
// What a user may see: the institutions that he may bill.
#include "data/rightsfilter.h"

#include "data/quoting.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

QString institutionsWithUnbilled()
{
    return u" select OrgCode,OrgName"
           u"  from p_Ylfwdw"
           u"  where OrgCode in (select OrgCode from o_CbZyBxDj"
           u"                    where BillNo is null"
           u"                    group by OrgCode )"
           u" order by OrgCode "_s;
}

QString grantedInstitutionsWithUnbilled(const Grant &grant)
{
    return u" select d.OrgCode,e.OrgName"
           u"  from r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d,p_Ylfwdw e"
           u" where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode"
           u"    and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and b.SubSysCode=d.SubSysCode"
           u"   and d.OrgCode=e.OrgCode and d.OrgCode in (select OrgCode from o_CbZyBxDj"
           u"                                            where BillNo is null"
           u"                                            group by OrgCode )"
           u"   and b.IsBillAll='2' and c.SubSysCode='1' and d.BillCheck='1'"
           u"    and a.UserCode="_s + quotedStr(grant.userCode)
         + u"   and b.RightCode="_s + quotedStr(grant.rightCode)
         + u" order by d.OrgCode "_s;
}

QString recordFilter(const Grant &grant, const RecordFilterIndent &indent)
{
    const QString tables(indent.tables, u' ');
    const QString conditions(indent.conditions, u' ');
    return u" and OrgCode in (select OrgCode "_s
         + tables + u"from r_UserRights a,r_RoleItem b,r_SubSysInfo c,r_BillCheckList d "_s
         + tables + u"where a.RoleCode=b.RoleCode and b.SubSysCode=c.SubSysCode "_s
         + conditions + u"and b.RoleCode=d.RoleCode and b.RightCode=d.RightCode and b.SubSysCode=d.SubSysCode"_s
         + conditions + u"and b.IsBillAll='2' and c.SubSysCode='1' and d.BillCheck='1' "_s
         + conditions + u"and a.UserCode="_s + quotedStr(grant.userCode)
         + conditions + u"and b.RightCode="_s + quotedStr(grant.rightCode) + u")"_s;
}

// clang-format on

} // namespace data
