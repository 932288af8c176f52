// SPDX-License-Identifier: MIT
// A call of a stored procedure, taken to pieces.
#pragma once

#include <QString>

#include <vector>

namespace vortaq {

struct ProcedureArgument {
    QString name; ///< without the @, as the caller spells it
    QString value; ///< the text meant, without quotes
};

/// " Name @First='text',@Second='it''s',@Result=:Result OutPut "
struct ProcedureCall {
    QString name;
    std::vector<ProcedureArgument> arguments; ///< in the order of the call, all names different
    QString output; ///< name of the one output parameter, without the @
};

/// Names are compared without regard to letter case. Throws SqlError (Syntax) with the place for everything that is no
/// such call: other values than quoted texts, a name given twice, none or several output parameters.
[[nodiscard]] ProcedureCall parseProcedureCall(const QString &text);

/// Whether a character may stand in a name; `first`: at its beginning.
[[nodiscard]] bool isNameCharacter(QChar character, bool first);

} // namespace vortaq
