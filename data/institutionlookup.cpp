// SPDX-License-Identifier: MIT
// What the host's look-up dialog is told to search an institution's code.
#include "data/institutionlookup.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

QString lookupTable()
{
    return u"p_ylfwdw"_s;
}

QString lookupWhere(const QString &areaCode)
{
    return u" OrgCode like '"_s + areaCode + u"%'"_s;
}

QString lookupFieldList()
{
    return u"OrgCode as 医疗服务单位代码,OrgName as 医疗服务单位名称"_s;
}

QString lookupCustomField()
{
    return u"OrgCode"_s;
}

QString lookupCodeColumn()
{
    return u"医疗服务单位代码"_s;
}

QString lookupNameColumn()
{
    return u"医疗服务单位名称"_s;
}

} // namespace data
