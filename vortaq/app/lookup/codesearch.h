// SPDX-License-Identifier: MIT
// The host object "VortaqCore.CodeSearch": a modal look-up in one table of the database.
#pragma once

#include "vortaq/app/session.h"

#include "automation/datapacket.h"

#include <QObject>
#include <QPoint>
#include <QVariant>

#include <memory>

namespace vortaq {

/// Order of use: Init, the properties, SetPosition, Show, GetCodeValue. A search that was cancelled, or never shown,
/// answers every GetCodeValue with empty text.
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

    /// Forgets the previous search and what it found.
    Q_INVOKABLE void Init();
    /// Where the list drops down: offset from the lower left corner of the focused field, and the least height of a
    /// row.
    Q_INVOKABLE void SetPosition(int x, int y, int rowHeight);
    /// Loads the rows and lets the clerk choose. Raises what the engine raises.
    Q_INVOKABLE void Show();
    /// The chosen row's column of that name, letter case ignored. Raises an error for a name that the field list lacks.
    Q_INVOKABLE QString GetCodeValue(const QString &columnName);

private:
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
    int m_chosenRow = -1;
};

} // namespace vortaq
