// SPDX-License-Identifier: MIT
// The columns of a tree list: objects that can be found by component name and by class.
#pragma once

#include "toolkit/celldrawing.h"
#include "toolkit/columndefinition.h"

#include <QObject>
#include <QString>

class TdxTreeList;

/// A text column, and the base of the others.
class TdxTreeListColumn : public QObject {
    Q_OBJECT

public:
    TdxTreeListColumn(const toolkit::ColumnDefinition &definition, int position, TdxTreeList *list);

    [[nodiscard]] int position() const noexcept { return m_position; } ///< from 0; moves with no user action
    [[nodiscard]] QString caption() const;
    [[nodiscard]] QString field() const; ///< empty when no row fills it
    [[nodiscard]] bool isEditable() const noexcept { return m_definition.editable; }
    [[nodiscard]] Qt::Alignment alignment() const noexcept;
    [[nodiscard]] bool isVisible() const noexcept;
    void setVisible(bool visible);

    /// Asked for every painted cell of this column, after the list's own drawing. May change the text shown, which
    /// is also what is read out, copied and measured.
    void setCustomDrawCell(toolkit::CellDrawing drawing);
    [[nodiscard]] const toolkit::CellDrawing &customDrawCell() const noexcept { return m_drawing; }

    [[nodiscard]] const toolkit::ColumnDefinition &definition() const noexcept { return m_definition; }
    [[nodiscard]] TdxTreeList *list() const noexcept { return m_list; }

private:
    toolkit::ColumnDefinition m_definition;
    int m_position;
    TdxTreeList *m_list;
    toolkit::CellDrawing m_drawing;
};

/// Shows amounts through a display format (see toolkit/displayformat.h); the value stays the text it was.
class TdxTreeListCurrencyColumn final : public TdxTreeListColumn {
    Q_OBJECT

public:
    TdxTreeListCurrencyColumn(const toolkit::ColumnDefinition &definition, int position, TdxTreeList *list);

    [[nodiscard]] const QString &displayFormat() const noexcept { return m_displayFormat; }
    void setDisplayFormat(const QString &format);

private:
    QString m_displayFormat;
};

/// Shows a box that is ticked when the value equals the checked text.
class TdxTreeListCheckColumn final : public TdxTreeListColumn {
    Q_OBJECT

public:
    using TdxTreeListColumn::TdxTreeListColumn;

    [[nodiscard]] QString valueChecked() const;
    [[nodiscard]] QString valueUnchecked() const;
};
