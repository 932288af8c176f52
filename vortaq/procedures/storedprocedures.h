// SPDX-License-Identifier: MIT
// Stored procedures for databases that have none: one query a procedure, kept as text in the table v_Procedure.
#pragma once

#include "vortaq/procedures/ProcedureCall.h"

namespace vortaq {

class Engine;

/// Runs a call on the engine and returns the value of its output parameter.
///
/// The procedure is a query of one row and one column, which is that value; null reads as an empty text. Each @Name in
/// it, outside of string literals and without regard to letter case, stands for the argument of that name as a quoted
/// text. Throws SqlError: Syntax for a malformed call; Binding for an unknown procedure, an argument that the procedure
/// does not use, a name that it uses without an argument, a result that is not one value; and what the engine throws.
[[nodiscard]] QString execProcedure(Engine &engine, const QString &call);

/// The procedure's text with the arguments in their places.
[[nodiscard]] QString withArguments(const QString &procedureText, const ProcedureCall &call);

} // namespace vortaq
