// SPDX-License-Identifier: MIT
// Texts that hold several items between separators.
#include "Common/splittext.h"

#include "Common/blanks.h"

#include <QStringView>

namespace common {

namespace {

struct Halves {
    QStringView before;
    QStringView after;
};

Halves halvesOf(QStringView source, QStringView separator)
{
    const qsizetype at = separator.isEmpty() ? -1 : source.indexOf(separator);
    if (at < 0)
        return {source, {}};
    return {source.first(at), source.sliced(at + separator.size())};
}

int countItems(QStringView source, QStringView separator)
{
    if (source.isEmpty())
        return 0;
    int count = 1;
    for (qsizetype at = 0; !separator.isEmpty() && (at = source.indexOf(separator, at)) >= 0; at += separator.size())
        ++count;
    return count;
}

} // namespace

QString splitString(const QString &source, const QString &separator, Side side)
{
    const Halves halves = halvesOf(source, separator);
    return (side == Side::Before ? halves.before : halves.after).toString();
}

int splitItemCount(const QString &source, const QString &separator)
{
    return countItems(source, separator);
}

QString splitItem(const QString &source, const QString &separator, int index)
{
    QStringView rest = trimmed(source);
    if (index < 0 || index >= countItems(rest, separator))
        return {};
    for (int skipped = 0; skipped < index; ++skipped)
        rest = halvesOf(rest, separator).after;
    return trimmed(halvesOf(rest, separator).before).toString();
}

} // namespace common
