// SPDX-License-Identifier: MIT
// The nodes of a list: who is whose child, in which order, and where each value stands. No widgets.
#pragma once

#include "automation/datapacket.h"
#include "toolkit/treelist/storedvalues.h"

#include <QString>
#include <QVariant>

#include <string>
#include <string_view>
#include <vector>

namespace toolkit::treelist {

/// Nodes are numbered from 0 in the order they were added. A node may stand for a row of a data packet, whose text
/// is read where it is; values that were set lie over it.
class NodeStore {
public:
    static constexpr int None = -1;

    void clear();
    /// Grows with each clear().
    [[nodiscard]] int generation() const noexcept { return m_generation; }

    /// Under `parent`, or at the top when it is None.
    int addNode(int parent);
    /// `columns`: packet column of each position, -1 for none. Returns the packet's number for addRow().
    int addSource(const automation::DataPacketPtr &packet, const std::vector<int> &columns);
    /// The packet added last; null when there is none.
    [[nodiscard]] automation::DataPacketPtr lastPacket() const noexcept
    {
        return m_sources.empty() ? nullptr : m_sources.back().packet;
    }
    [[nodiscard]] int lastSource() const noexcept { return static_cast<int>(m_sources.size()) - 1; }
    int addRow(int parent, int source, int row);
    void reserve(int nodes);

    [[nodiscard]] int nodeCount() const noexcept { return static_cast<int>(m_nodes.size()); }
    [[nodiscard]] bool hasLevels() const noexcept { return m_children.size() > 1; }
    /// In the order shown; the top level for None.
    [[nodiscard]] const std::vector<int> &children(int node) const noexcept;
    [[nodiscard]] int parent(int node) const noexcept { return at(node).parent; }
    [[nodiscard]] int rank(int node) const noexcept { return at(node).rank; }
    [[nodiscard]] int level(int node) const noexcept;
    /// Nodes that have children, and None for the top level.
    [[nodiscard]] std::vector<int> parents() const;
    /// `order` is a permutation of the children.
    void reorder(int node, std::vector<int> order);

    [[nodiscard]] QString text(int node, int position) const;
    [[nodiscard]] std::string_view utf8(int node, int position, std::string &scratch) const;
    [[nodiscard]] QVariant value(int node, int position) const;
    void setValue(int node, int position, const QVariant &value);
    void setValueOfTop(int position, const QVariant &value);

    [[nodiscard]] int image(int node, bool selected) const noexcept
    {
        return selected ? at(node).selectedImage : at(node).image;
    }
    void setImages(int node, int image, int selectedImage);

private:
    struct Node {
        int parent = None;
        int rank = 0;
        int children = None; ///< position in m_children
        int row = None;
        std::int16_t source = None;
        std::int16_t image = None;
        std::int16_t selectedImage = None;
    };
    struct Source {
        automation::DataPacketPtr packet;
        std::vector<int> columns;
    };

    [[nodiscard]] const Node &at(int node) const noexcept { return m_nodes[static_cast<std::size_t>(node)]; }
    [[nodiscard]] Node &at(int node) noexcept { return m_nodes[static_cast<std::size_t>(node)]; }
    [[nodiscard]] const StoredValues *stored(int node, int position) const noexcept;
    [[nodiscard]] StoredValues &valuesAt(int position);
    /// Null when the position is not filled from a row, or its cell is null.
    [[nodiscard]] const automation::DataPacket *packetCell(const Node &node, int position, int &column) const noexcept;

    std::vector<Node> m_nodes;
    std::vector<std::vector<int>> m_children{1}; // first the top level, then one list for each node with children
    std::vector<Source> m_sources;
    std::vector<StoredValues> m_values; // by position
    int m_generation = 1;
};

} // namespace toolkit::treelist
