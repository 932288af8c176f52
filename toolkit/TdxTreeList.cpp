// SPDX-License-Identifier: MIT
// Columns, nodes and looks of a tree list.
#include "toolkit/TdxTreeList.h"

#include "toolkit/treelist/listprivate.h"

#include <QMenu>
#include <QScrollBar>

#include <algorithm>

using namespace toolkit::treelist;

TdxTreeList::TdxTreeList(QWidget *parent)
    : QTreeView(parent)
    , d(std::make_unique<Private>(this))
{
    setHeader(d->header);
    setItemDelegate(new CellDelegate([this](const QModelIndex &index) { return d->look(index); }, this));
    d->model->setDrawnText([this](int node, const TdxTreeListColumn &column) { return d->drawnText(node, column); });
    d->model->setEdited(
        [this](int node, int position, const QString &text) { d->handle(node).setValue(position, text); });
    setModel(d->model);

    setUniformRowHeights(true); // without it every change of a value measures all rows
    setRootIsDecorated(false);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setEditTriggers(EditKeyPressed | AnyKeyPressed | DoubleClicked);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerItem);
    setAttribute(Qt::WA_InputMethodEnabled);
    d->footer->hide();
    setAutoSort(true);

    connect(d->header, &Header::resizedByUser, this, [this](int column) { d->fit.keep(column); });
    connect(d->header, &QHeaderView::sectionHandleDoubleClicked, this, [this](int column) { d->fit.keep(column); });
    connect(d->header, &QHeaderView::sortIndicatorChanged, this,
            [this](int column, Qt::SortOrder order) { d->sortChosen(column, order); });
    connect(this, &QTreeView::collapsed, this, [this](const QModelIndex &branch) { d->branchClosed(branch); });
    // Scrolling moves painted pixels, those of the band too: it has to be painted again.
    const auto repaint = [this] {
        d->header->viewport()->update();
        viewport()->update();
        d->footer->update();
    };
    connect(d->header, &QHeaderView::sectionResized, this, repaint);
    connect(horizontalScrollBar(), &QScrollBar::valueChanged, this, repaint);
}

TdxTreeList::~TdxTreeList() = default;

// ---- columns

void TdxTreeList::setColumns(const std::vector<toolkit::ColumnDefinition> &columns)
{
    clearNodes();
    std::vector<std::unique_ptr<TdxTreeListColumn>> made;
    for (const toolkit::ColumnDefinition &definition : columns) {
        const auto position = static_cast<int>(made.size());
        switch (definition.kind) {
        case toolkit::ColumnKind::Text:
            made.push_back(std::make_unique<TdxTreeListColumn>(definition, position, this));
            break;
        case toolkit::ColumnKind::Currency:
            made.push_back(std::make_unique<TdxTreeListCurrencyColumn>(definition, position, this));
            break;
        case toolkit::ColumnKind::Check:
            made.push_back(std::make_unique<TdxTreeListCheckColumn>(definition, position, this));
            break;
        }
    }
    d->header->setSortIndicator(-1, Qt::AscendingOrder);
    d->footer->clear();
    d->focusColumn = -1;
    d->columns.clear();
    for (const std::unique_ptr<TdxTreeListColumn> &column : made)
        d->columns.push_back(column.get());
    d->model->setColumns(d->columns);
    d->ownedColumns.swap(made); // those before go at the end of this function
    for (const TdxTreeListColumn *column : d->columns)
        setColumnHidden(column->position(), column->definition().hidden);
    for (const TdxTreeListColumn *column : d->columns) {
        if (column->definition().sortedAtFirst)
            d->header->setSortIndicator(column->position(), Qt::AscendingOrder);
    }
    d->fit.columnsReplaced(d->columns);
}

int TdxTreeList::columnCount() const
{
    return static_cast<int>(d->columns.size());
}

TdxTreeListColumn *TdxTreeList::column(int position) const
{
    return d->columns.at(static_cast<std::size_t>(position));
}

TdxTreeListColumn *TdxTreeList::columnByName(const QString &name) const
{
    const auto found = std::find_if(d->columns.begin(), d->columns.end(),
                                    [&name](const TdxTreeListColumn *column) { return column->objectName() == name; });
    return found == d->columns.end() ? nullptr : *found;
}

void TdxTreeList::setFixedBand(int columns)
{
    d->header->setBand(columns);
    viewport()->update();
    d->footer->update();
}

void TdxTreeList::setAutoSort(bool enabled)
{
    d->header->setSectionsClickable(enabled);
    d->header->setSortIndicatorShown(enabled);
    if (!enabled)
        d->header->setSortIndicator(-1, Qt::AscendingOrder);
}

// ---- nodes

void TdxTreeList::beginUpdate()
{
    if (d->updates++ == 0)
        setUpdatesEnabled(false);
}

void TdxTreeList::endUpdate()
{
    Q_ASSERT_X(d->updates > 0, "TdxTreeList::endUpdate", "no update has begun");
    if (d->updates > 1) {
        --d->updates;
        return;
    }
    if (d->resetting)
        d->finishReset();
    d->updates = 0;
    d->flushChanges();
    setUpdatesEnabled(true);
}

void TdxTreeList::setValueFields(QStringList fields)
{
    d->valueFields = std::move(fields);
}

void TdxTreeList::clearNodes()
{
    beginUpdate();
    d->startReset();
    d->store.clear();
    d->focusWanted = Private::None;
    d->drawingErrorShown = false;
    endUpdate();
}

TdxTreeListNode TdxTreeList::addNode(const TdxTreeListNode &parent)
{
    const int above = d->nodeOf(parent);
    return d->handle(d->insert(above, [this, above] { return d->store.addNode(above); }));
}

void TdxTreeList::addRows(const automation::DataPacketPtr &rows)
{
    if (rows->columnCount() == 0)
        return;
    const int source = d->sourceOf(rows);
    beginUpdate();
    d->store.reserve(rows->rowCount());
    for (int row = 0; row < rows->rowCount(); ++row)
        d->insert(Private::None, [&] { return d->store.addRow(Private::None, source, row); });
    endUpdate();
}

TdxTreeListNode TdxTreeList::addRow(const automation::DataPacketPtr &rows, int row, const TdxTreeListNode &parent)
{
    if (row < 0 || row >= rows->rowCount())
        throw std::out_of_range("a data packet has no such row");
    const int above = d->nodeOf(parent);
    const int source = d->sourceOf(rows);
    return d->handle(d->insert(above, [&] { return d->store.addRow(above, source, row); }));
}

int TdxTreeList::count() const
{
    return static_cast<int>(d->store.children(Private::None).size());
}

TdxTreeListNode TdxTreeList::node(int index) const
{
    const std::vector<int> &top = d->store.children(Private::None);
    const auto at = static_cast<std::size_t>(index);
    return at < top.size() ? d->handle(top[at]) : TdxTreeListNode();
}

TdxTreeListNode TdxTreeList::topNode() const
{
    return node(0);
}

TdxTreeListNode TdxTreeList::focusedNode() const
{
    return d->handleOrNull(d->resetting ? d->focusWanted : d->focused);
}

void TdxTreeList::setFocusedNode(const TdxTreeListNode &node)
{
    const int wanted = d->nodeOf(node);
    if (d->resetting) {
        d->focusWanted = wanted;
        return;
    }
    if (d->focusColumn < 0)
        d->focusColumn = d->firstFocusColumn();
    setCurrentIndex(d->model->indexOf(wanted, d->focusColumn));
}

void TdxTreeList::setValueOfAll(int position, const QVariant &value)
{
    d->store.setValueOfTop(position, value);
    d->valuesOfTopChanged(position);
}

// ---- looks

void TdxTreeList::setColor(toolkit::WindowsColour colour)
{
    d->colour = colour;
    QPalette colours = viewport()->palette();
    colours.setColor(QPalette::Base, d->listColour());
    viewport()->setPalette(colours);
    viewport()->update();
}

toolkit::WindowsColour TdxTreeList::color() const noexcept
{
    return d->colour;
}

void TdxTreeList::setCustomDrawCell(toolkit::CellDrawing drawing)
{
    d->drawing = std::move(drawing);
    viewport()->update();
}

void TdxTreeList::setImages(const QList<QIcon> &images)
{
    d->model->setImages(images);
    scheduleDelayedItemsLayout();
}

void TdxTreeList::setFooterVisible(bool visible)
{
    d->footer->setVisible(visible);
    updateGeometries();
}

void TdxTreeList::setFooterText(int position, const QString &text)
{
    d->footer->setText(position, text);
    d->fit.makeRoomFor(text, position);
}

QString TdxTreeList::footerText(int position) const
{
    return d->footer->text(position);
}

// ---- commands

void TdxTreeList::setPopupMenu(QMenu *menu)
{
    d->menu = menu;
}

QMenu *TdxTreeList::popupMenu() const
{
    return d->menu;
}
