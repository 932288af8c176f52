// SPDX-License-Identifier: MIT
// The tables of a hospital's database as SQLite statements.
//
// The business tables exist twice with the same columns: "o_..." holds the working set, "s_..." the archive.
// Every column carries the type a server database would give it (varchar(n), int, decimal(p,s), date): the SQL
// engine reads these declarations to decide how values compare and print. Dates are ISO text (yyyy-mm-dd), money
// is a number with two decimals, fee lines have four.
//
// Names that statements write without a table in a join occur in one of the joined tables only: of the rights
// tables just r_BillCheckList has OrgCode, the item catalogue p_BxXm shares nothing but ItemCode with the fee
// lines, and record tables know neither WriteDate nor CheckStatus. New columns must keep to that.
//
// Besides the scheme's tables there are the host's own:
//   v_User       the people who may work with the host, with the function numbers granted to them
//   v_Parameter  named session values; the row of a user goes before the row with the empty UserCode (every user)
//   v_Procedure  stored procedures by name
//   SysObjects   a view with the names of all tables, views and procedures
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vortaq {

/// PRAGMA application_id of every database of the reference host ("Tarw").
inline constexpr std::int32_t databaseApplicationId = 0x54617277;
/// PRAGMA user_version: raised whenever a table changes.
inline constexpr std::int32_t databaseSchemaVersion = 1;

/// The marks above, then all tables and views. Each string is one statement without a trailing semicolon.
[[nodiscard]] std::vector<std::string> schemaTableStatements();

/// The indexes that keep lists fast. Filling large tables first and indexing them afterwards is several times faster.
[[nodiscard]] std::vector<std::string> schemaIndexStatements();

/// Tables and indexes in the order in which they can run on an empty database.
[[nodiscard]] std::vector<std::string> schemaStatements();

} // namespace vortaq
