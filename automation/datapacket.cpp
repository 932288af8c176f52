// SPDX-License-Identifier: MIT
#include "automation/datapacket.h"

#include <stdexcept>

namespace automation {

int DataPacket::columnIndex(QStringView name) const
{
    for (std::size_t i = 0; i < m_names.size(); ++i) {
        if (name.compare(m_names[i], Qt::CaseInsensitive) == 0)
            return static_cast<int>(i);
    }
    return -1;
}

std::size_t DataPacket::memoryUse() const noexcept
{
    return m_arena.capacity() + m_offsets.capacity() * sizeof(std::uint32_t);
}

DataPacketBuilder::DataPacketBuilder(std::vector<QString> columnNames)
    : m_packet(std::make_shared<DataPacket>())
{
    m_packet->m_names = std::move(columnNames);
}

DataPacketPtr DataPacketBuilder::finish()
{
    const std::size_t cells = m_packet->m_offsets.size();
    const std::size_t columns = m_packet->m_names.size();
    if ((columns == 0 && cells != 0) || (columns != 0 && cells % columns != 0))
        throw std::logic_error("a data packet must hold whole rows");
    m_packet->m_rowCount = columns == 0 ? 0 : static_cast<int>(cells / columns);
    m_packet->m_offsets.push_back(static_cast<std::uint32_t>(m_packet->m_arena.size()));
    return std::exchange(m_packet, std::make_shared<DataPacket>());
}

void DataPacketBuilder::tooLarge()
{
    throw std::length_error("查询结果过大，无法载入。");
}

} // namespace automation
