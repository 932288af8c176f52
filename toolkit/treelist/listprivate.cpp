// SPDX-License-Identifier: MIT
// Update bracket, focus, order and look of a tree list.
#include "toolkit/treelist/listprivate.h"

#include "toolkit/guard.h"
#include "toolkit/treelist/sorter.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMetaObject>
#include <QScopedValueRollback>

#include <algorithm>
#include <stdexcept>

using namespace toolkit::treelist;

namespace {

std::runtime_error missingColumn(const QString &field)
{
    return std::runtime_error(QStringLiteral("查询结果中没有列“%1”。").arg(field).toStdString());
}

} // namespace

TdxTreeList::Private::Private(TdxTreeList *list)
    : q(list)
    , model(new Model(store, list))
    , header(new Header(list))
    , footer(new Footer(list, *header,
                        [this](int position) -> const TdxTreeListColumn & { return *columns[std::size_t(position)]; }))
    , fit(*list, *header, *model, store)
{
}

int TdxTreeList::Private::nodeOf(const TdxTreeListNode &node) const
{
    if (node.isNull())
        return None;
    if (node.m_list != q || node.m_generation != store.generation())
        throw std::logic_error("表格的这一行已不存在。");
    return node.m_id;
}

std::vector<int> TdxTreeList::Private::packetColumns(const automation::DataPacket &packet) const
{
    std::vector<int> found;
    const auto find = [&](const QString &field) {
        found.push_back(field.isEmpty() ? -1 : packet.columnIndex(field));
        if (!field.isEmpty() && found.back() < 0)
            throw missingColumn(field);
    };
    for (const TdxTreeListColumn *column : columns)
        find(column->field());
    for (const QString &field : valueFields)
        find(field);
    return found;
}

int TdxTreeList::Private::sourceOf(const automation::DataPacketPtr &packet)
{
    if (store.lastPacket() == packet)
        return store.lastSource(); // row after row of one packet: its columns are found already
    return store.addSource(packet, packetColumns(*packet));
}

void TdxTreeList::Private::valueChanged(int node, int position)
{
    if (resetting)
        return;
    if (updates == 0) {
        fit.makeRoomFor(node, position);
        model->valueChanged(node, position);
        return;
    }
    const auto [range, added] = changed.try_emplace(store.parent(node), position, position);
    range->second.first = std::min(range->second.first, position);
    range->second.second = std::max(range->second.second, position);
}

void TdxTreeList::Private::valuesOfTopChanged(int position)
{
    if (store.children(None).empty() || resetting)
        return;
    if (updates > 0)
        valueChanged(store.children(None).front(), position);
    else
        model->valuesChanged(None, position, position);
}

void TdxTreeList::Private::startReset()
{
    if (resetting)
        return;
    changed.clear();
    pressedCheck = QPersistentModelIndex();
    {
        const QScopedValueRollback quiet(silent, true);
        q->selectionModel()->clear();
    }
    focused = None;
    focusWanted = None;
    resetting = true;
    model->beginReset();
}

void TdxTreeList::Private::finishReset()
{
    for (auto &[parent, order] : orders())
        store.reorder(parent, std::move(order));
    resetting = false;
    model->endReset();
    q->setRootIsDecorated(store.hasLevels());
    if (store.hasLevels())
        q->expandToDepth(0);
    fit.loaded();
    const std::vector<int> &top = store.children(None);
    const int wanted = std::exchange(focusWanted, None);
    if (wanted != None)
        q->setFocusedNode(handle(wanted));
    else
        focusSilently(top.empty() ? None : top.front());
}

void TdxTreeList::Private::flushChanges()
{
    for (const auto &[parent, range] : std::exchange(changed, {}))
        model->valuesChanged(parent, range.first, range.second);
}

int TdxTreeList::Private::insert(int parent, const std::function<int()> &add)
{
    if (updates > 0 && store.nodeCount() == 0)
        startReset();
    if (resetting)
        return add();
    model->beginInsert(parent);
    const int node = add();
    model->endInsert();
    q->setRootIsDecorated(store.hasLevels());
    return node;
}

int TdxTreeList::Private::firstFocusColumn() const
{
    for (const TdxTreeListColumn *column : columns) {
        // Type-ahead and copying mean a text, so the tick and the row number are passed over.
        if (column->isVisible() && column->definition().kind != toolkit::ColumnKind::Check
            && !column->field().isEmpty())
            return column->position();
    }
    return header->shownColumnBeside(-1, 1);
}

void TdxTreeList::Private::focusSilently(int node)
{
    const QScopedValueRollback quiet(silent, true);
    if (focusColumn < 0 || focusColumn >= header->count() || header->isSectionHidden(focusColumn))
        focusColumn = firstFocusColumn();
    q->setCurrentIndex(model->indexOf(node, focusColumn));
}

void TdxTreeList::Private::branchClosed(const QModelIndex &branch) const
{
    for (QModelIndex above = q->currentIndex().parent(); above.isValid(); above = above.parent()) {
        if (above == branch) {
            q->setCurrentIndex(branch);
            return;
        }
    }
}

void TdxTreeList::Private::focusMoved(const QModelIndex &current)
{
    if (current.isValid())
        focusColumn = current.column();
    const int node = Model::nodeOf(current);
    if (node == focused)
        return;
    focused = node;
    if (!silent)
        toolkit::guarded([this, node] { emit q->changeNode(handleOrNull(node)); });
}

std::vector<std::pair<int, std::vector<int>>> TdxTreeList::Private::orders() const
{
    std::vector<std::pair<int, std::vector<int>>> result;
    for (const int parent : store.parents()) {
        std::vector<int> order = store.children(parent);
        std::sort(order.begin(), order.end()); // nodes are numbered in the order they came
        if (sortColumn >= 0) {
            const bool amounts = columns[std::size_t(sortColumn)]->definition().kind == toolkit::ColumnKind::Currency;
            order = sortedNodes(store, order, sortColumn, amounts ? SortKind::Amounts : SortKind::Texts, sortOrder);
        }
        result.emplace_back(parent, std::move(order));
    }
    return result;
}

void TdxTreeList::Private::sortChosen(int column, Qt::SortOrder order)
{
    sortColumn = column;
    sortOrder = order;
    if (!resetting)
        model->reorder(orders());
}

void TdxTreeList::Private::columnLookChanged(int position)
{
    fit.refit(position);
    q->viewport()->update();
}

QColor TdxTreeList::Private::listColour() const
{
    const QColor own = toolkit::toColour(colour, q->palette());
    return own.isValid() ? own : q->palette().color(QPalette::Base);
}

QRect TdxTreeList::Private::rowRect(const QModelIndex &index) const
{
    const QRect cell = q->QTreeView::visualRect(index);
    return {0, cell.top(), q->viewport()->width(), cell.height()};
}

void TdxTreeList::Private::reportDrawingError(const QString &message)
{
    if (std::exchange(drawingErrorShown, true))
        return;
    // A message box must not open while the list is being painted.
    QMetaObject::invokeMethod(
        q, [message] { automation::displayError(message); }, Qt::QueuedConnection);
}

QString TdxTreeList::Private::drawnText(int node, const TdxTreeListColumn &column)
{
    toolkit::CellStyle style{.background = colour, .text = model->shownText(node, column)};
    if (!column.customDrawCell())
        return style.text;
    QString plain = style.text;
    try {
        column.customDrawCell()(handle(node), column, node == focused, style);
        return style.text;
    } catch (const std::exception &error) {
        reportDrawingError(automation::messageOf(error));
    }
    return plain;
}

CellLook TdxTreeList::Private::look(const QModelIndex &index)
{
    const int node = Model::nodeOf(index);
    const TdxTreeListColumn &column = *model->columnOf(index);
    const bool isFocused = node == focused;
    const toolkit::CellStyle plain{.background = colour, .text = model->shownText(node, column)};
    toolkit::CellStyle style = plain;
    bool coloured = false; // somebody decided about colours
    try {
        if (drawing) {
            drawing(handle(node), column, isFocused, style);
            coloured = true;
        }
        if (column.customDrawCell()) {
            column.customDrawCell()(handle(node), column, isFocused, style);
            coloured = coloured || style.background != plain.background || style.font != plain.font;
        }
    } catch (const std::exception &error) {
        style = plain;
        coloured = false;
        reportDrawingError(automation::messageOf(error));
    }

    CellLook look;
    look.text = style.text;
    look.alignment = column.alignment();
    look.amount = column.definition().kind == toolkit::ColumnKind::Currency;
    look.check = column.definition().kind == toolkit::ColumnKind::Check;
    look.ticked = look.check && isTicked(store, node, column);
    look.image = index.column() == 0 ? model->image(node, isFocused) : QIcon();
    look.lines = !header->isPlain();
    look.current = q->hasFocus() && index == q->currentIndex();
    const bool highlighted = isFocused && !coloured;
    const QColor background = toolkit::toColour(style.background, q->palette());
    const QColor font = toolkit::toColour(style.font, q->palette());
    look.background =
        highlighted ? q->palette().color(QPalette::Highlight) : (background.isValid() ? background : listColour());
    look.foreground = highlighted ? q->palette().color(QPalette::HighlightedText)
                                  : (font.isValid() ? font : q->palette().color(QPalette::Text));
    return look;
}

bool TdxTreeList::Private::isEditableCheck(const QModelIndex &index) const
{
    return index.isValid() && index.flags().testFlag(Qt::ItemIsUserCheckable);
}

QModelIndex TdxTreeList::Private::checkForSpace() const
{
    const QModelIndex current = q->currentIndex();
    if (isEditableCheck(current))
        return current;
    for (const TdxTreeListColumn *column : columns) {
        const QModelIndex index = current.siblingAtColumn(column->position());
        if (column->isVisible() && isEditableCheck(index))
            return index;
    }
    return {};
}

void TdxTreeList::Private::toggle(const QModelIndex &index) const
{
    auto *column = qobject_cast<TdxTreeListCheckColumn *>(model->columnOf(index));
    const bool ticked = isTicked(store, Model::nodeOf(index), *column);
    const QString newState = ticked ? column->valueUnchecked() : column->valueChecked();
    toolkit::guarded([&] { emit q->toggleClick(column, newState); });
}

void TdxTreeList::Private::copyCurrentText() const
{
    const QModelIndex current = q->currentIndex();
    if (!current.isValid())
        return;
    const TdxTreeListColumn &column = *model->columnOf(current);
    const bool check = column.definition().kind == toolkit::ColumnKind::Check;
    QGuiApplication::clipboard()->setText(current.data(check ? Qt::DisplayRole : Qt::AccessibleTextRole).toString());
}
