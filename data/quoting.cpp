// SPDX-License-Identifier: MIT
// The one gate through which a text value enters a statement.
#include "data/quoting.h"

namespace data {

QString quotedStr(const QString &value)
{
    QString quoted;
    quoted.reserve(value.size() + 2);
    quoted += u'\'';
    for (const QChar character : value) {
        if (character == u'\'')
            quoted += u'\'';
        quoted += character;
    }
    quoted += u'\'';
    return quoted;
}

} // namespace data
