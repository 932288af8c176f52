// SPDX-License-Identifier: MIT
// The illnesses of the demo county.
#pragma once

#include <span>
#include <string_view>

namespace vortaq::demo {

struct Diagnosis {
    std::string_view code;
    std::string_view name;
    int leastAge; ///< full years
    int mostAge;
    std::string_view sex; ///< empty: both
    std::string_view expenseKind;
    std::string_view limit; ///< LimitDef of the stays: "0", or 1 (capped) or 2 (fixed) followed by yuan
    int weight = 1; ///< how often it occurs, up to mostWeight
};

inline constexpr int mostWeight = 5;

[[nodiscard]] std::span<const Diagnosis> diagnoses();
[[nodiscard]] bool suits(const Diagnosis &diagnosis, int years, std::string_view sex);

} // namespace vortaq::demo
