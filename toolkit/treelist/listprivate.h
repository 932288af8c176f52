// SPDX-License-Identifier: MIT
// The inside of a tree list, shared by its source files.
#pragma once

#include "toolkit/TdxTreeList.h"
#include "toolkit/treelist/celldelegate.h"
#include "toolkit/treelist/columnfit.h"
#include "toolkit/treelist/footer.h"
#include "toolkit/treelist/header.h"
#include "toolkit/treelist/model.h"
#include "toolkit/treelist/nodestore.h"

#include <QPersistentModelIndex>

#include <map>

class TdxTreeList::Private {
public:
    static constexpr int None = toolkit::treelist::NodeStore::None;

    explicit Private(TdxTreeList *list);

    // ---- nodes and handles
    [[nodiscard]] TdxTreeListNode handle(int node) const { return {q, node, store.generation()}; }
    [[nodiscard]] TdxTreeListNode handleOrNull(int node) const
    {
        return node == None ? TdxTreeListNode() : handle(node);
    }
    /// None for a null handle; throws std::logic_error for one whose node is gone or in another list.
    [[nodiscard]] int nodeOf(const TdxTreeListNode &node) const;
    /// Packet column of each position's field; throws std::runtime_error when one is missing.
    [[nodiscard]] std::vector<int> packetColumns(const automation::DataPacket &packet) const;
    /// Number of the packet in the store.
    [[nodiscard]] int sourceOf(const automation::DataPacketPtr &packet);
    void valueChanged(int node, int position);
    void valuesOfTopChanged(int position);

    // ---- update bracket
    /// An empty list is filled, and a list is cleared, behind one model reset; else rows are inserted one by one.
    void startReset();
    void finishReset();
    void flushChanges();
    int insert(int parent, const std::function<int()> &add);

    // ---- focus
    void focusMoved(const QModelIndex &current);
    void focusSilently(int node);
    /// The focus does not stay on a node that nobody sees: commands would act on it.
    void branchClosed(const QModelIndex &branch) const;
    [[nodiscard]] int firstFocusColumn() const;

    // ---- order
    void sortChosen(int column, Qt::SortOrder order);
    [[nodiscard]] std::vector<std::pair<int, std::vector<int>>> orders() const;

    // ---- look
    void columnLookChanged(int position);
    [[nodiscard]] toolkit::treelist::CellLook look(const QModelIndex &index);
    [[nodiscard]] QString drawnText(int node, const TdxTreeListColumn &column);
    [[nodiscard]] QRect rowRect(const QModelIndex &index) const;
    void reportDrawingError(const QString &message);
    [[nodiscard]] QColor listColour() const;

    // ---- commands
    [[nodiscard]] bool isEditableCheck(const QModelIndex &index) const;
    /// The cell that the space bar toggles: the current one, else the focused row's first; invalid for none.
    [[nodiscard]] QModelIndex checkForSpace() const;
    void toggle(const QModelIndex &index) const;
    void copyCurrentText() const;

    TdxTreeList *q;
    toolkit::treelist::NodeStore store;
    toolkit::treelist::Model *model;
    toolkit::treelist::Header *header;
    toolkit::treelist::Footer *footer;
    toolkit::treelist::ColumnFit fit;
    std::vector<std::unique_ptr<TdxTreeListColumn>> ownedColumns;
    std::vector<TdxTreeListColumn *> columns; // the same
    QStringList valueFields; // of the positions behind the columns

    int updates = 0;
    bool resetting = false;
    std::map<int, std::pair<int, int>> changed; // within a bracket: first and last position changed, by parent

    int focused = None;
    int focusColumn = -1; // the cell that Left and Right move
    int focusWanted = None; // set within a bracket
    bool silent = false;

    int sortColumn = -1;
    Qt::SortOrder sortOrder = Qt::AscendingOrder;

    toolkit::WindowsColour colour = toolkit::WindowColour;
    toolkit::CellDrawing drawing;
    bool drawingErrorShown = false;

    QPointer<QMenu> menu;
    QPersistentModelIndex pressedCheck; // editable check cell under a pressed button
};
