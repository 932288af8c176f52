// SPDX-License-Identifier: MIT
// Texts that pages compose from data: tree nodes and the vertical titles of the narrow panels.
#include "data/captions.h"

#include "data/codes.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

QString organisationCaption(const QString &code, const QString &name)
{
    return u'(' + code + u')' + name;
}

QString historyBillCaption(const QString &writeDate, const QString &checkStatus)
{
    return writeDate + u"【"_s + statusName(checkStatus) + u"】"_s;
}

QString registrationTitle()
{
    return u"住\r\n \r\n院\r\n \r\n登\r\n \r\n记\r\n \r\n信\r\n \r\n息\r\n \r\n表"_s;
}

QString reimbursementTitle()
{
    return u"住\r\n \r\n院\r\n \r\n报\r\n \r\n销\r\n \r\n登\r\n \r\n记\r\n \r\n表"_s;
}

} // namespace data
