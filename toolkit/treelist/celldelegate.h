// SPDX-License-Identifier: MIT
// Paints one cell: fill, check box or one line of text; makes the editors of editable cells.
#pragma once

#include <QIcon>
#include <QStyledItemDelegate>

#include <functional>

namespace toolkit::treelist {

/// All that a cell shows.
struct CellLook {
    QColor background;
    QColor foreground;
    QString text; ///< not shown in a check cell
    QIcon image;
    Qt::Alignment alignment = Qt::AlignLeft;
    bool amount = false; ///< where it does not fit, no part of the text is shown
    bool check = false;
    bool ticked = false;
    bool current = false; ///< the cell that the keyboard acts on
    bool lines = false; ///< thin lines at the right and the bottom
};

class CellDelegate final : public QStyledItemDelegate {
    Q_OBJECT

public:
    using Look = std::function<CellLook(const QModelIndex &index)>;

    CellDelegate(Look look, QObject *parent);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    /// An amount that the clerk has not changed is not written back.
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    /// Shows the whole text of a cell that cuts it short.
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

protected:
    /// An amount that is left unfinished goes, and the clerk is told.
    bool eventFilter(QObject *watched, QEvent *event) override;
    /// A tick is the list's business: it is a question to the form's handler, not an edit.
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    Look m_look;
};

} // namespace toolkit::treelist
