// SPDX-License-Identifier: MIT
// What goes wrong between a module and a host object before the operation itself runs.
#pragma once

#include "automation/export.h"

#include <QString>

#include <stdexcept>

namespace automation {

/// A named failure of late binding. `what()` is a UTF-8 message in the user's language; failures raised by an
/// operation itself pass through unchanged (anything derived from std::exception, `what()` in UTF-8).
class AUTOMATION_EXPORT Error : public std::runtime_error {
public:
    enum class Reason {
        UnknownIdentifier, ///< no object is registered under the identifier
        NoObject, ///< the reference is empty
        UnknownOperation, ///< the object has no operation of that name and kind
        ArgumentCount, ///< the operation exists but takes another number of arguments
        ArgumentType ///< an argument or the result cannot be converted
    };

    Error(Reason reason, const QString &message);
    ~Error() override;

    [[nodiscard]] Reason reason() const noexcept { return m_reason; }

private:
    Reason m_reason;
};

/// The message of any exception as text (UTF-8 in `what()`).
[[nodiscard]] inline QString messageOf(const std::exception &error)
{
    return QString::fromUtf8(error.what());
}

/// The message of the exception that a handler has caught, whatever it is: "未知错误。" for one that is not derived
/// from std::exception.
[[nodiscard]] AUTOMATION_EXPORT QString messageOfCurrent();

} // namespace automation
