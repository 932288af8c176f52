// SPDX-License-Identifier: MIT
#include "values/shortdate.h"

#include "values/dateformat.h"

#include <QLocale>
#include <QRegularExpression>

#include <stdexcept>

namespace values {

namespace {

/// Some servers send a column of days with the time of the day, "2026-10-08 10:30:00.000" or "2026-10-08T10:30:00".
QString withoutTime(const QString &text)
{
    static const QRegularExpression time(
        QStringLiteral("[ T](?:[01]?[0-9]|2[0-3]):[0-5][0-9](?::[0-5][0-9](?:\\.[0-9]{1,9})?)?$"));
    const QRegularExpressionMatch match = time.match(text);
    return match.hasMatch() ? text.left(match.capturedStart()) : text;
}

} // namespace

QString shortDateFormat()
{
    for (const char *variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const QString name = qEnvironmentVariable(variable).section(u'.', 0, 0);
        if (name.isEmpty())
            continue;
        if (name == QStringLiteral("C") || name == QStringLiteral("POSIX"))
            break;
        return QLocale(name).dateFormat(QLocale::ShortFormat);
    }
    return QStringLiteral("yyyy-MM-dd");
}

QDate parseShortDate(const QString &given)
{
    const QString text = withoutTime(given);
    if (const auto date = parseDate(text))
        return *date;
    const QDate date = QDate::fromString(text, shortDateFormat());
    if (!date.isValid() || date.year() < 1) // "-2026-11-20" is read as a year before our era
        throw std::invalid_argument(QStringLiteral("“%1”不是有效的日期。").arg(text).toStdString());
    return date;
}

} // namespace values
