// SPDX-License-Identifier: MIT
// What a module asks the code look-up for, and what follows from it.
#pragma once

#include "vortaq/app/lookup/lookupmatch.h"

#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>
#include <QStringList>

namespace vortaq {

struct LookupRequest {
    QString table;
    QString where; ///< a condition without the word; empty for all rows
    QString orderBy; ///< empty: by the code itself
    QString fieldList; ///< "OrgCode as 代码,OrgName as 名称"
    QString customField; ///< the field, as the table names it, that holds the code
    LookupMatch match;
    QString code; ///< the key that opened the look-up
    QPoint offset;
    int rowHeight = 0; ///< least height of a row, in pixels
};

/// The one query of a look-up.
[[nodiscard]] QString lookupStatement(const LookupRequest &request);

/// The fields of the field list as the table names them, in its order.
[[nodiscard]] QStringList lookupFields(const LookupRequest &request);

/// Position of the code field in the field list; 0 when it is not there.
[[nodiscard]] int codeColumn(const LookupRequest &request);

/// The text to begin filtering with. The key arrives as a virtual-key code: a letter or a digit stands for itself, the
/// digits of the numeric pad lie at 0x60, and any other key (among them character 0) opens an unfiltered list.
[[nodiscard]] QString initialFilter(const QString &code);

/// Where the list goes: below the field, above it when there is no room, and never outside the screen.
[[nodiscard]] QPoint lookupPosition(const QRect &field, const QSize &list, const QPoint &offset, const QRect &screen);

} // namespace vortaq
