// SPDX-License-Identifier: MIT
// Statement, first filter and place of a code look-up.
#include "vortaq/app/lookup/lookuprequest.h"

#include <algorithm>

namespace vortaq {

QString lookupStatement(const LookupRequest &request)
{
    QString sql = QStringLiteral("select ") + request.fieldList + QStringLiteral(" from ") + request.table;
    if (!request.where.trimmed().isEmpty())
        sql += QStringLiteral(" where ") + request.where;
    const QString order = request.orderBy.trimmed().isEmpty() ? request.customField : request.orderBy;
    if (!order.trimmed().isEmpty())
        sql += QStringLiteral(" order by ") + order;
    return sql;
}

QStringList lookupFields(const LookupRequest &request)
{
    QStringList fields;
    for (const QString &field : request.fieldList.split(QLatin1Char(',')))
        fields.append(field.trimmed().section(QLatin1Char(' '), 0, 0));
    return fields;
}

int codeColumn(const LookupRequest &request)
{
    const QStringList fields = lookupFields(request);
    for (qsizetype i = 0; i < fields.size(); ++i) {
        if (fields[i].compare(request.customField.trimmed(), Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    return 0;
}

QString initialFilter(const QString &code)
{
    if (code.size() != 1)
        return {};
    const char16_t key = code.at(0).unicode();
    if ((key >= u'A' && key <= u'Z') || (key >= u'0' && key <= u'9'))
        return code;
    constexpr char16_t NumericPadZero = 0x60;
    if (key >= NumericPadZero && key < NumericPadZero + 10)
        return QString(QChar(static_cast<char16_t>(u'0' + (key - NumericPadZero))));
    return {};
}

QPoint lookupPosition(const QRect &field, const QSize &list, const QPoint &offset, const QRect &screen)
{
    QPoint place(field.left() + offset.x(), field.top() + field.height() + offset.y());
    if (place.y() + list.height() > screen.top() + screen.height()) {
        const int above = field.top() - offset.y() - list.height();
        if (above >= screen.top())
            place.setY(above);
    }
    const int right = screen.left() + screen.width() - list.width();
    const int bottom = screen.top() + screen.height() - list.height();
    place.setX(std::max(screen.left(), std::min(place.x(), right)));
    place.setY(std::max(screen.top(), std::min(place.y(), bottom)));
    return place;
}

} // namespace vortaq
