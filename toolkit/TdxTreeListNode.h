// SPDX-License-Identifier: MIT
// One row of a tree list.
#pragma once

#include <QString>
#include <QVariant>

#include <string>
#include <string_view>

class TdxTreeList;

/// A light handle; copies name the same node. It is valid until its list is cleared. Positions count from 0 and
/// are columns first (hidden ones included); positions beyond the last column are values without a column.
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
    [[nodiscard]] TdxTreeListNode child(int index) const;

    /// The value as text; empty when it is null or was never set.
    [[nodiscard]] QString text(int position) const;
    /// The same as UTF-8 without a copy where the value still stands in its data packet; else it is put in `scratch`.
    [[nodiscard]] std::string_view utf8(int position, std::string &scratch) const;
    /// What setValue() stored, else the packet's text as QString; invalid when never set or null.
    [[nodiscard]] QVariant value(int position) const;
    void setValue(int position, const QVariant &value);

    /// Positions in the list's images; -1 for none.
    void setImages(int image, int selectedImage);

private:
    friend class TdxTreeList;
    TdxTreeListNode(TdxTreeList *list, int id) noexcept
        : m_list(list)
        , m_id(id)
    {
    }

    TdxTreeList *m_list = nullptr;
    int m_id = -1;
};
