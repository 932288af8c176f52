// SPDX-License-Identifier: MIT
// Cells straight into the packet's arena.
#include "vortaq/engines/celltext.h"

#include <array>
#include <charconv>
#include <utility>

namespace vortaq::engines {

namespace {

constexpr std::size_t secondLength = std::string_view("2024-01-31 08:00:00").size();
constexpr int digitsOfFloat = 15;

} // namespace

automation::DataPacketBuilder packetOf(const std::vector<sql::OutputColumn> &columns)
{
    std::vector<QString> names;
    names.reserve(columns.size());
    for (const sql::OutputColumn &column : columns)
        names.push_back(QString::fromStdString(column.name));
    return automation::DataPacketBuilder(std::move(names));
}

void appendText(automation::DataPacketBuilder &packet, const sql::Type &type, std::string_view text)
{
    packet.append(type.kind == sql::Kind::DateTime ? text.substr(0, secondLength) : text);
}

void appendFloat(automation::DataPacketBuilder &packet, double number)
{
    std::array<char, 32> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, std::chars_format::general, digitsOfFloat)
            .ptr;
    packet.append({buffer.data(), static_cast<std::size_t>(end - buffer.data())});
}

} // namespace vortaq::engines
