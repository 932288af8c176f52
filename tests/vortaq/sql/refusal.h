// SPDX-License-Identifier: MIT
// What a refusal says, apart from where it shows it.
#pragma once

#include "vortaq/SqlError.h"

#include <string>

namespace vortaq::sql::test {

[[nodiscard]] inline std::string firstLineOf(const SqlError &error)
{
    const std::string message = error.what();
    return message.substr(0, message.find('\n'));
}

} // namespace vortaq::sql::test
