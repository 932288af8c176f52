// SPDX-License-Identifier: MIT
// Which of the two sets of tables a statement addresses: names begin with "o" (in use) or "s" (archive).
#include "data/tables.h"

#include "data/codes.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

QString tablePrefix(int billType)
{
    if (billType == static_cast<int>(BillType::Current))
        return u"o"_s;
    return billType == static_cast<int>(BillType::Archived) ? u"s"_s : QString();
}

QString approvalTablePrefix(int billType)
{
    return billType == static_cast<int>(BillType::Current) ? u"o"_s : u"s"_s;
}

QString historyTablePrefix(const QString &billType)
{
    if (billType == u"1")
        return u" o"_s;
    return billType == u"2" ? u" s"_s : QString();
}

QString historyRecordTable(const QString &billType)
{
    return billType == u"1" ? u"o_CbZyBxDj"_s : u"s_CbZyBxDj"_s;
}

} // namespace data
