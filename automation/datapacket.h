// SPDX-License-Identifier: MIT
// The row set that a query returns: complete, immutable and shared.
#pragma once

#include "automation/export.h"

#include <QMetaType>
#include <QString>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace automation {

/// All cells of a row set as UTF-8 text in one contiguous arena, row after row, with one offset a cell.
/// A null cell is distinct from an empty one. Rows and columns count from 0. Text is at most 2 GiB.
class AUTOMATION_EXPORT DataPacket {
public:
    [[nodiscard]] int columnCount() const noexcept { return static_cast<int>(m_names.size()); }
    [[nodiscard]] int rowCount() const noexcept { return m_rowCount; }

    [[nodiscard]] const std::vector<QString> &columnNames() const noexcept { return m_names; }
    /// Position of the column of that name, letter case ignored; -1 when there is none.
    [[nodiscard]] int columnIndex(QStringView name) const;

    /// The cell's UTF-8 text, valid as long as the packet lives; empty for a null cell.
    [[nodiscard]] std::string_view text(int row, int column) const noexcept
    {
        const std::size_t cell = cellAt(row, column);
        const std::uint32_t begin = m_offsets[cell] & OffsetMask;
        return {m_arena.data() + begin, (m_offsets[cell + 1] & OffsetMask) - begin};
    }
    [[nodiscard]] bool isNull(int row, int column) const noexcept
    {
        return (m_offsets[cellAt(row, column)] & NullBit) != 0;
    }

    /// Bytes held by the arena and the offsets.
    [[nodiscard]] std::size_t memoryUse() const noexcept;

private:
    friend class DataPacketBuilder;
    static constexpr std::uint32_t NullBit = 0x80000000U;
    static constexpr std::uint32_t OffsetMask = 0x7FFFFFFFU;

    [[nodiscard]] std::size_t cellAt(int row, int column) const noexcept
    {
        return static_cast<std::size_t>(row) * m_names.size() + static_cast<std::size_t>(column);
    }

    std::vector<QString> m_names;
    std::string m_arena;
    std::vector<std::uint32_t> m_offsets; // one a cell and one behind the last; the top bit marks a null cell
    int m_rowCount = 0;
};

using DataPacketPtr = std::shared_ptr<const DataPacket>;

/// Fills a packet cell by cell, row after row.
class AUTOMATION_EXPORT DataPacketBuilder {
public:
    explicit DataPacketBuilder(std::vector<QString> columnNames);

    /// Throws std::length_error when the text of the packet would pass 2 GiB.
    void append(std::string_view utf8)
    {
        const std::size_t begin = m_packet->m_arena.size();
        if (utf8.size() > DataPacket::OffsetMask - begin)
            tooLarge();
        m_packet->m_offsets.push_back(static_cast<std::uint32_t>(begin));
        m_packet->m_arena.append(utf8);
    }
    void appendNull()
    {
        m_packet->m_offsets.push_back(static_cast<std::uint32_t>(m_packet->m_arena.size()) | DataPacket::NullBit);
    }

    /// Ends the packet; the cells appended so far must fill whole rows. The builder is empty afterwards.
    [[nodiscard]] DataPacketPtr finish();

private:
    [[noreturn]] static void tooLarge();

    std::shared_ptr<DataPacket> m_packet;
};

} // namespace automation

Q_DECLARE_METATYPE(automation::DataPacketPtr)
