// SPDX-License-Identifier: MIT
// One row of a tree list.
#pragma once

#include <QString>
#include <QVariant>

#include <string>
#include <string_view>

class TdxTreeList;
namespace toolkit::treelist {
class NodeStore;
}

/// A light handle; copies name the same node. It is valid until its list is cleared: after that, and for a null
/// handle, every use but isNull() and comparing throws std::logic_error. Positions count from 0 and are columns first
/// (hidden ones included); positions beyond the last column are values without a column.
class TdxTreeListNode {
public:
    TdxTreeListNode() = default;

    [[nodiscard]] bool isNull() const noexcept { return m_list == nullptr; }
    explicit operator bool() const noexcept { return m_list != nullptr; }
    friend bool operator==(const TdxTreeListNode &, const TdxTreeListNode &) = default;

    /// Position among its siblings in the order shown, from 0.
    [[nodiscard]] int index() const;
    /// 0 for top-level nodes.
    [[nodiscard]] int level() const;
    [[nodiscard]] TdxTreeListNode parent() const;
    [[nodiscard]] int childCount() const;
    /// Null beyond the last child.
    [[nodiscard]] TdxTreeListNode child(int index) const;

    /// The value as text; empty when it is null or was never set.
    [[nodiscard]] QString text(int position) const;
    /// The same as UTF-8 without a copy where the value still stands in its data packet; else it may be put in
    /// `scratch`. Valid until the value is set, the list is cleared or `scratch` changes.
    [[nodiscard]] std::string_view utf8(int position, std::string &scratch) const;
    /// What setValue() stored, else the packet's text as QString; invalid when never set or null.
    [[nodiscard]] QVariant value(int position) const;
    void setValue(int position, const QVariant &value) const;

    /// Positions in the list's images; -1 for none.
    void setImages(int image, int selectedImage) const;

private:
    friend class TdxTreeList;
    TdxTreeListNode(TdxTreeList *list, int id, int generation) noexcept
        : m_list(list)
        , m_id(id)
        , m_generation(generation)
    {
    }

    /// Throws std::logic_error when there is no such node (any more).
    [[nodiscard]] toolkit::treelist::NodeStore &contents() const;

    TdxTreeList *m_list = nullptr;
    int m_id = -1;
    int m_generation = 0; // of the list's contents: a handle to cleared nodes is told from one to present nodes
};
