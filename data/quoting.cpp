// SPDX-License-Identifier: MIT
// The one gate through which a text value enters a statement.
#include "data/quoting.h"

#include <QByteArrayView>

#include <algorithm>

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

bool comesBackUnchanged(std::string_view utf8)
{
    const auto isPlain = [](char byte) { return byte != 0 && static_cast<unsigned char>(byte) < 0x80; };
    if (std::all_of(utf8.begin(), utf8.end(), isPlain))
        return true;
    const QByteArrayView bytes(utf8.data(), static_cast<qsizetype>(utf8.size()));
    return !bytes.contains('\0') && QString::fromUtf8(bytes).toUtf8() == bytes;
}

} // namespace data
