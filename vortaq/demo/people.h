// SPDX-License-Identifier: MIT
// Names and places of the demo county's people.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace vortaq::demo {

class Random;

inline constexpr std::string_view male = "男";
inline constexpr std::string_view female = "女";

[[nodiscard]] std::string_view randomSurname(Random &random);
/// A surname with one or two characters after it.
[[nodiscard]] std::string personName(std::string_view surname, std::string_view sex, Random &random);

/// The townships, in the order of their number in certificate numbers (from 1).
[[nodiscard]] std::span<const std::string_view> towns();
/// The villages of every township, numbered likewise.
[[nodiscard]] std::span<const std::string_view> villages();

[[nodiscard]] std::span<const std::string_view> doctors();

struct Clerk {
    std::string_view code;
    std::string_view name;
};

/// Two clerks of an institution enter its stays; the first answers for its bills.
[[nodiscard]] Clerk clerkOf(int institution, int which);

inline constexpr Clerk firstReviewer{"S01", "周审核"};
inline constexpr Clerk secondReviewer{"S08", "吴复审"};

} // namespace vortaq::demo
