// SPDX-License-Identifier: MIT
// The place of a refusal, shown in the statement itself.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace vortaq::sql {

/// The line that the byte at `offset` lies in, with ▶ before the place: “where ▶or OrgCode='4201'”. Of a long line some
/// forty characters to either side, “…” where it is cut. Blanks of any kind are one blank each, bytes that are no UTF-8
/// a “�”. At the end of a line that has no text, the place is the end of the text before. Empty when there is no text.
///
/// The mark stands in the line and not below it: an error box has proportional letters and wraps long lines, and the
/// trace writes a line break as \n, so that a mark of its own line would point anywhere.
[[nodiscard]] std::string excerpt(std::string_view text, std::size_t offset);

} // namespace vortaq::sql
