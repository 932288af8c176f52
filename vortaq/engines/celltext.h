// SPDX-License-Identifier: MIT
// Rows as the text that a client sees, by the type that a column is bound to.
#pragma once

#include "automation/datapacket.h"
#include "vortaq/sql/tree.h"

#include <string_view>
#include <vector>

namespace vortaq::engines {

/// Still without rows.
[[nodiscard]] automation::DataPacketBuilder packetOf(const std::vector<sql::OutputColumn> &columns);

/// A value in the one spelling of its type (sql::Literal); moments lose their milliseconds.
void appendText(automation::DataPacketBuilder &packet, const sql::Type &type, std::string_view text);
/// A Float: fifteen digits, as the server prints it.
void appendFloat(automation::DataPacketBuilder &packet, double number);

} // namespace vortaq::engines
