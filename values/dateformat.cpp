// SPDX-License-Identifier: MIT
// The one date format, yyyy-mm-dd, for input, comparison and display.
#include "values/dateformat.h"

#include <QStringView>

namespace values {

namespace {

/// The number that ASCII digits make; empty when another character is among them.
std::optional<int> digits(QStringView text)
{
    int number = 0;
    for (const QChar character : text) {
        if (character < u'0' || character > u'9')
            return std::nullopt;
        number = number * 10 + (character.unicode() - u'0');
    }
    return number;
}

} // namespace

std::optional<QDate> parseDate(const QString &text)
{
    const QStringView view(text);
    if (view.size() != 10 || view[4] != u'-' || view[7] != u'-')
        return std::nullopt;
    const auto year = digits(view.sliced(0, 4));
    const auto month = digits(view.sliced(5, 2));
    const auto day = digits(view.sliced(8, 2));
    if (!year || !month || !day || !QDate::isValid(*year, *month, *day))
        return std::nullopt;
    return QDate(*year, *month, *day);
}

QString formatDate(const QDate &date)
{
    return date.toString(Qt::ISODate);
}

} // namespace values
