// SPDX-License-Identifier: MIT
// What the view, the editors and assistive software see of a list's nodes.
#pragma once

#include "toolkit/treelist/nodestore.h"

#include <QAbstractItemModel>
#include <QIcon>

#include <functional>
#include <vector>

class TdxTreeListColumn;

namespace toolkit::treelist {

/// Indexes carry the node's number. Who changes the store tells the model through the bracket that fits.
class Model final : public QAbstractItemModel {
    Q_OBJECT

public:
    /// Text of a cell after the column's own drawing.
    using DrawnText = std::function<QString(int node, const TdxTreeListColumn &column)>;

    Model(NodeStore &store, QObject *parent);

    void setColumns(std::vector<TdxTreeListColumn *> columns);
    void setImages(const QList<QIcon> &images);
    void setDrawnText(DrawnText drawnText) { m_drawnText = std::move(drawnText); }
    /// Called when an editor has finished.
    void setEdited(std::function<void(int node, int position, const QString &text)> edited)
    {
        m_edited = std::move(edited);
    }

    [[nodiscard]] QModelIndex indexOf(int node, int column) const;
    /// None for an invalid index.
    [[nodiscard]] static int nodeOf(const QModelIndex &index) noexcept;
    [[nodiscard]] TdxTreeListColumn *columnOf(const QModelIndex &index) const;
    /// The value as the column shows it by itself: through its display format, without blanks around amounts.
    [[nodiscard]] QString shownText(int node, const TdxTreeListColumn &column) const;
    [[nodiscard]] QIcon image(int node, bool selected) const;

    void beginReset() { beginResetModel(); }
    void endReset() { endResetModel(); }
    void beginInsert(int parent);
    void endInsert() { endInsertRows(); }
    /// Sets each list of children to the order given (parent, order), keeping focus, selection and expansion.
    void reorder(std::vector<std::pair<int, std::vector<int>>> orders);
    /// The values of all children of `parent` between two positions may have changed.
    void valuesChanged(int parent, int firstPosition, int lastPosition);
    void valueChanged(int node, int position);
    void headerChanged();

    // QAbstractItemModel
    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex &child) const override;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    /// Columns of amounts take amounts only.
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    [[nodiscard]] QVariant accessibleText(int node, const TdxTreeListColumn &column) const;

    NodeStore &m_store;
    std::vector<TdxTreeListColumn *> m_columns;
    QList<QIcon> m_images;
    DrawnText m_drawnText;
    std::function<void(int, int, const QString &)> m_edited;
};

/// Whether the cell holds the text that its check column shows as ticked.
[[nodiscard]] bool isTicked(const NodeStore &store, int node, const TdxTreeListColumn &checkColumn);

} // namespace toolkit::treelist
