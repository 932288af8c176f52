// SPDX-License-Identifier: MIT
#include "toolkit/shortdate.h"

#include "toolkit/dateformat.h"

#include <QLocale>

#include <stdexcept>

namespace toolkit {

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

QDate parseShortDate(const QString &text)
{
    if (const auto date = parseDate(text))
        return *date;
    const QDate date = QDate::fromString(text, shortDateFormat());
    if (!date.isValid() || date.year() < 1) // "-2026-11-20" is read as a year before our era
        throw std::invalid_argument(QStringLiteral("“%1”不是有效的日期。").arg(text).toStdString());
    return date;
}

} // namespace toolkit
