// SPDX-License-Identifier: MIT
// The grid and the tree of every page: columns with component names, nodes with values by position.
#pragma once

#include "automation/datapacket.h"
#include "toolkit/TdxTreeListColumn.h"
#include "toolkit/TdxTreeListNode.h"
#include "toolkit/celldrawing.h"

#include <QIcon>
#include <QPointer>
#include <QTreeView>

#include <memory>
#include <vector>

class QMenu;

/// A list (nodes on one level, filled from a data packet without copying its text) or a tree (nodes on several levels;
/// the top level is expanded when loaded). With its header hidden, or with one column, it shows no lines and the last
/// column takes the width there is. Signals are emitted guarded: an error that a handler raises is displayed by the
/// host.
///
/// Focus: endUpdate() after a clearNodes() or the first filling focuses the top node (none when the list is empty)
/// without telling anybody; moving the focus by keyboard, mouse or setFocusedNode() emits changeNode once.
class TdxTreeList : public QTreeView {
    Q_OBJECT

public:
    explicit TdxTreeList(QWidget *parent = nullptr);
    ~TdxTreeList() override;

    // ---- columns
    /// Replaces all columns and clears the list. Column objects become children of the list under their names.
    void setColumns(const std::vector<toolkit::ColumnDefinition> &columns);
    /// Fields that rows of a packet hold at the positions behind the columns; an empty name for none.
    void setValueFields(QStringList fields);
    [[nodiscard]] int columnCount() const;
    [[nodiscard]] TdxTreeListColumn *column(int position) const;
    /// Null when there is none of that component name.
    [[nodiscard]] TdxTreeListColumn *columnByName(const QString &name) const;
    /// The first `columns` columns stay in place when the others scroll sideways (fewer in a list too narrow for them).
    void setFixedBand(int columns);
    /// Whether a click on a header sorts (default: yes): ascending, descending, then as loaded. Amounts, and columns of
    /// nothing but numbers, sort as numbers, Chinese by pinyin; equal rows stand as loaded. Reloads keep the sort.
    void setAutoSort(bool enabled);

    // ---- nodes
    void beginUpdate();
    /// Paints once, however much has changed since the outermost beginUpdate().
    void endUpdate();
    void clearNodes();
    /// Adds a node behind the last child of `parent` (behind the last top-level node when it is null).
    TdxTreeListNode addNode(const TdxTreeListNode &parent = {});
    /// Adds one top-level node for each row of the packet. A column, or value, reads the packet column named by its
    /// field; throws std::runtime_error when a field is missing from a packet that has columns.
    void addRows(const automation::DataPacketPtr &rows);
    /// The same for one row, on any level.
    TdxTreeListNode addRow(const automation::DataPacketPtr &rows, int row, const TdxTreeListNode &parent = {});

    [[nodiscard]] int count() const; ///< top-level nodes
    [[nodiscard]] TdxTreeListNode node(int index) const; ///< top-level node in the order shown; null beyond the last
    [[nodiscard]] TdxTreeListNode topNode() const;
    [[nodiscard]] TdxTreeListNode focusedNode() const;
    void setFocusedNode(const TdxTreeListNode &node);
    /// Stores one value at `position` of every top-level node, with one repaint.
    void setValueOfAll(int position, const QVariant &value);

    // ---- looks
    /// Background of the list; also used for cells without a colour of their own.
    void setColor(toolkit::WindowsColour colour);
    [[nodiscard]] toolkit::WindowsColour color() const noexcept;
    /// Asked for every painted cell. Without it the focused row has the palette's highlight.
    void setCustomDrawCell(toolkit::CellDrawing drawing);
    void setImages(const QList<QIcon> &images);
    void setFooterVisible(bool visible);
    /// Text of the footer cell below a column.
    void setFooterText(int position, const QString &text);
    [[nodiscard]] QString footerText(int position) const;

    // ---- commands
    /// Shown on a context-menu request, after the row under the mouse is focused; null or disabled for none. Borrowed.
    void setPopupMenu(QMenu *menu);
    [[nodiscard]] QMenu *popupMenu() const;

    [[nodiscard]] QRect visualRect(const QModelIndex &index) const override;
    [[nodiscard]] QModelIndex indexAt(const QPoint &point) const override;
    void scrollTo(const QModelIndex &index, ScrollHint hint = EnsureVisible) override;
    void dataChanged(const QModelIndex &topLeft, const QModelIndex &bottomRight, const QList<int> &roles = {}) override;

Q_SIGNALS:
    /// The focused node is another one now (null when the focus was lost).
    void changeNode(const TdxTreeListNode &node);
    /// The user toggled an editable check cell of the focused row by click or space. Nothing is stored: `newState` is
    /// the text the cell would take, and storing it is the handler's decision.
    void toggleClick(TdxTreeListColumn *column, const QString &newState);
    /// Double-click on a row (an editable cell keeps the click to itself), or Enter with a focused row.
    void dblClick();

protected:
    void paintEvent(QPaintEvent *event) override;
    void drawRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void updateGeometries() override;

private:
    friend class TdxTreeListNode;
    friend class TdxTreeListColumn;
    friend class TdxTreeListCurrencyColumn;
    class Private;
    std::unique_ptr<Private> d;
};
