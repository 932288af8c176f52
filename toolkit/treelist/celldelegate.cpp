// SPDX-License-Identifier: MIT
// Painting and editing of cells.
#include "toolkit/treelist/celldelegate.h"

#include "toolkit/TdxTreeListColumn.h"
#include "toolkit/datatip.h"
#include "toolkit/treelist/amounteditor.h"
#include "toolkit/treelist/celllayout.h"
#include "toolkit/treelist/model.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>

namespace toolkit::treelist {

namespace {

void paintCheckBox(QPainter &painter, const QRect &cell, bool ticked, const QWidget &widget)
{
    QStyleOptionViewItem box;
    box.initFrom(&widget);
    box.rect = QRect(QPoint(), checkBoxSize(widget));
    box.rect.moveCenter(cell.center());
    box.state.setFlag(QStyle::State_HasFocus, false);
    box.state |= ticked ? QStyle::State_On : QStyle::State_Off;
    widget.style()->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &box, &painter, &widget);
}

void paintLines(QPainter &painter, const QRect &cell, const QWidget &widget)
{
    QColor line = widget.palette().color(QPalette::Text);
    line.setAlpha(36); // whatever colour the row has, the line is a shade of it
    painter.fillRect(QRect(cell.right(), cell.top(), 1, cell.height()), line);
    painter.fillRect(QRect(cell.left(), cell.bottom(), cell.width() - 1, 1), line);
}

int imageSpace(const QStyleOptionViewItem &option)
{
    return option.decorationSize.width() + textMargin(*option.widget);
}

} // namespace

CellDelegate::CellDelegate(Look look, QObject *parent)
    : QStyledItemDelegate(parent)
    , m_look(std::move(look))
{
}

void CellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const CellLook look = m_look(index);
    const QWidget &widget = *option.widget;
    const QRect inside = option.rect.adjusted(0, 0, look.lines ? -1 : 0, look.lines ? -1 : 0);
    painter->fillRect(option.rect, look.background);
    if (look.lines)
        paintLines(*painter, option.rect, widget);
    if (look.check) {
        paintCheckBox(*painter, inside, look.ticked, widget);
    } else {
        QRect place = inside;
        if (!look.image.isNull()) {
            const QRect image(place.left() + textMargin(widget), place.top(), option.decorationSize.width(),
                              place.height());
            look.image.paint(painter, image);
            place.setLeft(place.left() + imageSpace(option));
        }
        if (!look.text.isEmpty()) {
            painter->setPen(look.foreground);
            const WhenTooWide whenTooWide = look.amount ? WhenTooWide::Crosses : WhenTooWide::Cut;
            drawCellText(*painter, place, look.text, look.alignment, whenTooWide, widget);
        }
    }
    if (look.current) {
        painter->setPen(QPen(look.foreground, 1, Qt::DotLine));
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(inside.adjusted(0, 0, -1, -1));
    }
}

QSize CellDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    // Measuring is not painting: the list's drawing, which asks the host for colours, stays out of it.
    const QWidget &widget = *option.widget;
    const bool check = index.data(Qt::CheckStateRole).isValid();
    const bool image = !index.data(Qt::DecorationRole).value<QIcon>().isNull();
    const int content = check ? checkBoxSize(widget).width()
                              : option.fontMetrics.horizontalAdvance(index.data(Qt::AccessibleTextRole).toString());
    const int width = content + (image ? imageSpace(option) : 0) + 2 * textMargin(widget) + 1;
    return {width, std::max(rowHeight(widget), image ? option.decorationSize.height() + 2 : 0)};
}

QWidget *CellDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &, const QModelIndex &index) const
{
    const TdxTreeListColumn *column = qobject_cast<const Model *>(index.model())->columnOf(index);
    const auto *amounts = qobject_cast<const TdxTreeListCurrencyColumn *>(column);
    auto *editor = amounts == nullptr ? new QLineEdit(parent) : new AmountEditor(*amounts, parent);
    editor->setFrame(false);
    editor->setAutoFillBackground(true);
    editor->setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
    return editor;
}

void CellDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    if (auto *amount = qobject_cast<AmountEditor *>(editor))
        amount->begin(index.data(Qt::EditRole).toString());
    else
        QStyledItemDelegate::setEditorData(editor, index);
}

void CellDelegate::setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const
{
    const auto *amount = qobject_cast<const AmountEditor *>(editor);
    if (amount == nullptr)
        QStyledItemDelegate::setModelData(editor, model, index);
    else if (amount->hasChanged() && !model->setData(index, amount->text(), Qt::EditRole))
        amount->tellItIsDropped(); // the arrow keys leave the editor whatever stands in it
}

bool CellDelegate::eventFilter(QObject *watched, QEvent *event)
{
    const auto *amount = qobject_cast<const AmountEditor *>(watched);
    const bool unfinished = amount != nullptr && !amount->hasAcceptableInput();
    const bool taken = QStyledItemDelegate::eventFilter(watched, event);
    if (unfinished && event->type() == QEvent::FocusOut && amount->isHidden())
        amount->tellItIsDropped();
    if (unfinished && event->type() == QEvent::KeyPress && taken && !amount->isHidden())
        amount->tellWhatIsExpected(); // Enter and Tab stay in the editor
    return taken;
}

bool CellDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                             const QModelIndex &index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return false;
    const CellLook look = m_look(index);
    if (look.check || sizeHint(option, index).width() <= option.rect.width())
        return false; // the list's own hint is shown
    showDataTip(event->globalPos(), look.text, view->viewport(), option.rect);
    return true;
}

bool CellDelegate::editorEvent(QEvent *, QAbstractItemModel *, const QStyleOptionViewItem &, const QModelIndex &)
{
    return false;
}

} // namespace toolkit::treelist
