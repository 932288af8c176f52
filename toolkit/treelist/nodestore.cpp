// SPDX-License-Identifier: MIT
// Nodes, their order and their values.
#include "toolkit/treelist/nodestore.h"

#include <limits>
#include <numeric>
#include <stdexcept>
#include <utility>

namespace toolkit::treelist {

void NodeStore::clear()
{
    m_nodes.clear();
    m_children.assign(1, {});
    m_sources.clear();
    m_values.clear();
    ++m_generation;
}

int NodeStore::addNode(int parent)
{
    const int node = nodeCount();
    std::size_t list = 0;
    if (parent != None) {
        if (at(parent).children == None) {
            at(parent).children = static_cast<int>(m_children.size());
            m_children.emplace_back();
        }
        list = static_cast<std::size_t>(at(parent).children);
    }
    m_nodes.push_back({.parent = parent, .rank = static_cast<int>(m_children[list].size())});
    m_children[list].push_back(node);
    return node;
}

int NodeStore::addSource(const automation::DataPacketPtr &packet, const std::vector<int> &columns)
{
    if (m_sources.size() == std::numeric_limits<std::int16_t>::max())
        throw std::length_error("表格的数据来源过多。");
    m_sources.push_back({packet, columns});
    return lastSource();
}

int NodeStore::addRow(int parent, int source, int row)
{
    const int node = addNode(parent);
    at(node).source = static_cast<std::int16_t>(source);
    at(node).row = row;
    return node;
}

void NodeStore::reserve(int nodes)
{
    m_nodes.reserve(m_nodes.size() + static_cast<std::size_t>(nodes));
}

const std::vector<int> &NodeStore::children(int node) const noexcept
{
    static const std::vector<int> none;
    if (node == None)
        return m_children.front();
    const int list = at(node).children;
    return list == None ? none : m_children[static_cast<std::size_t>(list)];
}

int NodeStore::level(int node) const noexcept
{
    int level = 0;
    for (int above = parent(node); above != None; above = parent(above))
        ++level;
    return level;
}

std::vector<int> NodeStore::parents() const
{
    std::vector<int> found{None};
    for (int node = 0; hasLevels() && node < nodeCount(); ++node) {
        if (at(node).children != None)
            found.push_back(node);
    }
    return found;
}

void NodeStore::reorder(int node, std::vector<int> order)
{
    for (std::size_t i = 0; i < order.size(); ++i)
        at(order[i]).rank = static_cast<int>(i);
    const auto list = node == None ? std::size_t{0} : static_cast<std::size_t>(at(node).children);
    m_children[list] = std::move(order);
}

const StoredValues *NodeStore::stored(int node, int position) const noexcept
{
    const auto place = static_cast<std::size_t>(position);
    return place < m_values.size() && m_values[place].has(node) ? &m_values[place] : nullptr;
}

StoredValues &NodeStore::valuesAt(int position)
{
    if (position < 0)
        throw std::out_of_range("a value needs a position from 0");
    const auto place = static_cast<std::size_t>(position);
    if (place >= m_values.size())
        m_values.resize(place + 1);
    return m_values[place];
}

const automation::DataPacket *NodeStore::packetCell(const Node &node, int position, int &column) const noexcept
{
    if (node.source == None)
        return nullptr;
    const Source &source = m_sources[static_cast<std::size_t>(node.source)];
    const auto place = static_cast<std::size_t>(position);
    if (place >= source.columns.size())
        return nullptr;
    column = source.columns[place];
    return column < 0 || source.packet->isNull(node.row, column) ? nullptr : source.packet.get();
}

QString NodeStore::text(int node, int position) const
{
    if (const StoredValues *values = stored(node, position))
        return values->text(node);
    int column = None;
    const automation::DataPacket *packet = packetCell(at(node), position, column);
    if (packet == nullptr)
        return {};
    const std::string_view utf8 = packet->text(at(node).row, column);
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::string_view NodeStore::utf8(int node, int position, std::string &scratch) const
{
    if (const StoredValues *values = stored(node, position))
        return values->utf8(node, scratch);
    int column = None;
    const automation::DataPacket *packet = packetCell(at(node), position, column);
    return packet == nullptr ? std::string_view{} : packet->text(at(node).row, column);
}

QVariant NodeStore::value(int node, int position) const
{
    if (const StoredValues *values = stored(node, position))
        return values->value(node);
    int column = None;
    return packetCell(at(node), position, column) == nullptr ? QVariant() : QVariant(text(node, position));
}

void NodeStore::setValue(int node, int position, const QVariant &value)
{
    valuesAt(position).set(node, value);
}

void NodeStore::setValueOfTop(int position, const QVariant &value)
{
    StoredValues &values = valuesAt(position);
    if (!hasLevels()) {
        values.setAll(nodeCount(), value);
        return;
    }
    for (const int node : m_children.front())
        values.set(node, value);
}

void NodeStore::setImages(int node, int image, int selectedImage)
{
    at(node).image = static_cast<std::int16_t>(image);
    at(node).selectedImage = static_cast<std::int16_t>(selectedImage);
}

} // namespace toolkit::treelist
