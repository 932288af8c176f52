// SPDX-License-Identifier: MIT
// Statements kept as text files with the reason each is there.
#pragma once

#include "vortaq/sql/prepare.h"

#include <string>
#include <string_view>
#include <vector>

namespace vortaq::sql::test {

/// A file is a row of entries, each
///     == query|change: what it is for
///     the statement, over as many lines as it needs
///     => what is expected, up to the next entry (left out where the file asks only that it binds)
/// Lines before the first entry are comments.
struct CorpusEntry {
    Due due = Due::Query;
    std::string title;
    std::string statement; ///< without the last line break
    std::string expected; ///< likewise
};

/// Throws std::runtime_error for a file that is missing or not of this form.
[[nodiscard]] std::vector<CorpusEntry> readCorpus(std::string_view fileName);

} // namespace vortaq::sql::test
