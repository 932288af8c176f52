// SPDX-License-Identifier: MIT
// The widths of columns before a user chooses them.
#pragma once

#include <QString>

#include <vector>

class QTreeView;
class TdxTreeListColumn;
class TdxTreeListCurrencyColumn;

namespace toolkit::treelist {

class Header;
class Model;
class NodeStore;

/// Widths are fitted once, to the captions and the first rows loaded; measuring every row of every load would cost
/// more than the load. Columns of amounts grow with every load, for no part of an amount is ever shown. What the user
/// resized stays.
class ColumnFit {
public:
    ColumnFit(QTreeView &view, Header &header, const Model &model, const NodeStore &store);

    void columnsReplaced(std::vector<TdxTreeListColumn *> columns);
    /// The list holds new rows.
    void loaded();
    /// Format or drawing of a column changed.
    void refit(int column);
    /// An amount came into the column by itself. Nothing for other columns.
    void makeRoomFor(int node, int column);
    /// The same for a sum below it.
    void makeRoomFor(const QString &sum, int column);
    /// The user resized it.
    void keep(int column);
    /// In a plain list (a tree) the last column takes the width that is left; longer texts scroll.
    void fillWidth();

private:
    /// Widest text of the rows that a first look shows, and of the last row.
    [[nodiscard]] int rowsWidth(int column) const;
    /// Of columns `first` to `last`, the width that the widest amount of all rows needs; 0 for other columns.
    [[nodiscard]] std::vector<int> amountsWidths(int first, int last) const;
    /// To caption, first rows and amounts.
    void fit(int column, int amountsWidth);
    [[nodiscard]] int treeWidth(int column) const;
    [[nodiscard]] int textWidth(const QString &text) const;
    [[nodiscard]] int withMargins(int width) const;
    [[nodiscard]] int cellWidth(int node, int column) const;
    [[nodiscard]] bool numbersRows(int column) const;
    /// The column when it is one of amounts, else null.
    [[nodiscard]] const TdxTreeListCurrencyColumn *amounts(int column) const;
    void widen(int column, int width);
    void setWidth(int column, int width);

    QTreeView &m_view;
    Header &m_header;
    const Model &m_model;
    const NodeStore &m_store;
    std::vector<TdxTreeListColumn *> m_columns;
    std::vector<bool> m_kept;
    bool m_fitted = false;
    int m_treeWidth = 0; // what the last column of a plain list needs
};

} // namespace toolkit::treelist
