// SPDX-License-Identifier: MIT
// The host object "VortaqCore.CodeSearch": a modal look-up in one table of the database.
#pragma once

#include "vortaq/app/session.h"

#include "automation/datapacket.h"

#include <QObject>
#include <QPoint>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace vortaq {

/// Order of use: Init, the properties, SetPosition, Show, GetCodeValue. A module takes over whatever is answered, so a
/// search that is given up answers what the module's field holds already: what was last chosen from the same list, at
/// first the clerk's own, that is the host parameters named like the table's fields. One never shown answers with empty
/// text.
class CodeSearch : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString Table MEMBER m_table)
    Q_PROPERTY(QString Where MEMBER m_where)
    Q_PROPERTY(QString OrderBy MEMBER m_orderBy)
    Q_PROPERTY(QString FieldList MEMBER m_fieldList)
    Q_PROPERTY(QString CustomField MEMBER m_customField)
    Q_PROPERTY(QVariant CodeType MEMBER m_codeType)
    Q_PROPERTY(QString Code MEMBER m_code)

public:
    explicit CodeSearch(std::shared_ptr<Session> session);

    /// Forgets the previous search, but for what was chosen in it.
    Q_INVOKABLE void Init();
    /// Where the list drops down: offset from the lower left corner of the focused field, and the least height of a
    /// row.
    Q_INVOKABLE void SetPosition(int x, int y, int rowHeight);
    /// Loads the rows and lets the clerk choose. Raises what the engine raises.
    Q_INVOKABLE void Show();
    /// The answer's column of that name, letter case ignored. Raises an error for a name that the field list lacks.
    Q_INVOKABLE QString GetCodeValue(const QString &columnName);

private:
    [[nodiscard]] QStringList ownValues(const QStringList &fields) const;

    std::shared_ptr<Session> m_session;
    QString m_table;
    QString m_where;
    QString m_orderBy;
    QString m_fieldList;
    QString m_customField;
    QVariant m_codeType;
    QString m_code;
    QPoint m_offset;
    int m_rowHeight = 0;
    automation::DataPacketPtr m_rows;
    QStringList m_values; // the answer, in the order of the columns; empty before the first showing
    QString m_lastList; // table and fields that the last choice was made from
    QStringList m_lastValues;
};

} // namespace vortaq
