// SPDX-License-Identifier: MIT
// The item model over the nodes of a list.
#include "toolkit/treelist/model.h"

#include "toolkit/TdxTreeListColumn.h"
#include "toolkit/treelist/amounteditor.h"
#include "values/displayformat.h"

#include <stdexcept>
#include <string_view>

namespace toolkit::treelist {

bool isTicked(const NodeStore &store, int node, const TdxTreeListColumn &checkColumn)
{
    std::string scratch;
    return store.utf8(node, checkColumn.position(), scratch) == std::string_view(checkColumn.definition().checked);
}

Model::Model(NodeStore &store, QObject *parent)
    : QAbstractItemModel(parent)
    , m_store(store)
{
}

void Model::setColumns(std::vector<TdxTreeListColumn *> columns)
{
    beginResetModel();
    m_columns = std::move(columns);
    endResetModel();
}

void Model::setImages(const QList<QIcon> &images)
{
    m_images = images;
}

QModelIndex Model::indexOf(int node, int column) const
{
    if (node == NodeStore::None || column < 0 || column >= columnCount())
        return {};
    return createIndex(m_store.rank(node), column, static_cast<quintptr>(node));
}

int Model::nodeOf(const QModelIndex &index) noexcept
{
    return index.isValid() ? static_cast<int>(index.internalId()) : NodeStore::None;
}

TdxTreeListColumn *Model::columnOf(const QModelIndex &index) const
{
    return index.isValid() ? m_columns[static_cast<std::size_t>(index.column())] : nullptr;
}

QString Model::shownText(int node, const TdxTreeListColumn &column) const
{
    const auto *currency = qobject_cast<const TdxTreeListCurrencyColumn *>(&column);
    if (currency == nullptr)
        return m_store.text(node, column.position());
    QString text = m_store.text(node, column.position()).trimmed();
    if (text.isEmpty() || currency->displayFormat().isEmpty())
        return text;
    try {
        return values::formatFloat(currency->displayFormat(), values::parseAmount(text));
    } catch (const std::invalid_argument &) {
        return text; // a list must be readable whatever stands in it; sums complain about the text
    }
}

QIcon Model::image(int node, bool selected) const
{
    const int image = m_store.image(node, selected);
    return image >= 0 && image < m_images.size() ? m_images[image] : QIcon();
}

void Model::beginInsert(int parent)
{
    const auto row = static_cast<int>(m_store.children(parent).size());
    beginInsertRows(indexOf(parent, 0), row, row);
}

void Model::reorder(std::vector<std::pair<int, std::vector<int>>> orders)
{
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    for (std::pair<int, std::vector<int>> &change : orders)
        m_store.reorder(change.first, std::move(change.second));
    const QModelIndexList before = persistentIndexList();
    QModelIndexList after;
    after.reserve(before.size());
    for (const QModelIndex &index : before)
        after.append(indexOf(nodeOf(index), index.column()));
    changePersistentIndexList(before, after);
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

void Model::valuesChanged(int parent, int firstPosition, int lastPosition)
{
    const std::vector<int> &children = m_store.children(parent);
    const int last = std::min(lastPosition, columnCount() - 1);
    if (!children.empty() && firstPosition <= last)
        emit dataChanged(indexOf(children.front(), firstPosition), indexOf(children.back(), last));
}

void Model::valueChanged(int node, int position)
{
    const QModelIndex index = indexOf(node, position);
    if (index.isValid())
        emit dataChanged(index, index);
}

void Model::headerChanged()
{
    if (columnCount() > 0)
        emit headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

QModelIndex Model::index(int row, int column, const QModelIndex &parent) const
{
    if (row < 0 || row >= rowCount(parent) || column < 0 || column >= columnCount())
        return {};
    const int node = m_store.children(nodeOf(parent))[static_cast<std::size_t>(row)];
    return createIndex(row, column, static_cast<quintptr>(node));
}

QModelIndex Model::parent(const QModelIndex &child) const
{
    return child.isValid() ? indexOf(m_store.parent(nodeOf(child)), 0) : QModelIndex();
}

int Model::rowCount(const QModelIndex &parent) const
{
    if (parent.column() > 0)
        return 0;
    return static_cast<int>(m_store.children(nodeOf(parent)).size());
}

int Model::columnCount(const QModelIndex &) const
{
    return static_cast<int>(m_columns.size());
}

bool Model::hasChildren(const QModelIndex &parent) const
{
    return rowCount(parent) > 0;
}

QVariant Model::accessibleText(int node, const TdxTreeListColumn &column) const
{
    if (column.definition().kind == ColumnKind::Check)
        return isTicked(m_store, node, column) ? QStringLiteral("已勾选") : QStringLiteral("未勾选");
    return m_drawnText ? m_drawnText(node, column) : shownText(node, column);
}

QVariant Model::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int node = nodeOf(index);
    const TdxTreeListColumn &column = *columnOf(index);
    switch (role) {
    case Qt::DisplayRole:
        return shownText(node, column);
    case Qt::EditRole:
        return m_store.text(node, column.position()).trimmed();
    case Qt::AccessibleTextRole:
        return accessibleText(node, column);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(column.alignment() | Qt::AlignVCenter);
    case Qt::DecorationRole:
        return index.column() == 0 ? QVariant(image(node, false)) : QVariant();
    case Qt::CheckStateRole:
        if (column.definition().kind != ColumnKind::Check)
            return {};
        return static_cast<int>(isTicked(m_store, node, column) ? Qt::Checked : Qt::Unchecked);
    default:
        return {};
    }
}

bool Model::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    QString text = value.toString();
    if (const auto *amounts = qobject_cast<const TdxTreeListCurrencyColumn *>(columnOf(index))) {
        const std::optional<QString> amount = typedAmount(text, values::showsThousands(amounts->displayFormat()));
        if (!amount)
            return false; // sums over the column would fail
        text = *amount;
    }
    m_edited(nodeOf(index), index.column(), text);
    return true;
}

QVariant Model::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return {};
    if (role == Qt::DisplayRole)
        return m_columns[static_cast<std::size_t>(section)]->caption();
    return {};
}

Qt::ItemFlags Model::flags(const QModelIndex &index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const TdxTreeListColumn &column = *columnOf(index);
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (column.isEditable())
        flags |= column.definition().kind == ColumnKind::Check ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable;
    return flags;
}

} // namespace toolkit::treelist
