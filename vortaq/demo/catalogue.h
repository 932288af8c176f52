// SPDX-License-Identifier: MIT
// What the demo county has: institutions, fee types, fee items, reimbursement formulas.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace vortaq::demo {

/// Money in hundredths of a yuan.
using Cents = std::int64_t;

inline constexpr std::string_view areaCode = "429901";
inline constexpr std::string_view countyName = "岚溪县";

enum class Level { Township = 1, County = 2, OutOfCounty = 3 };

struct Institution {
    std::string_view code;
    std::string_view name;
    Level level;
    std::string_view town; ///< the township whose people it serves; empty: everybody
    int currentShare; ///< percent of the current billed stays
    int archivedShare; ///< percent of the archived stays
    int dischargedWeight; ///< how often an unbilled discharged patient was here
    int inHospitalWeight; ///< how often a patient is here
};

[[nodiscard]] std::span<const Institution> institutions();

/// Positions in institutions().
inline constexpr int countyHospital = 0;
inline constexpr int clerksHospital = 2;
inline constexpr int secondGrantedHospital = 3;
inline constexpr int archiveOnlyHospital = 6;
inline constexpr int inHospitalOnlyHospital = 7;

struct FeeType {
    std::string_view code; ///< two characters: a top-level type
    std::string_view name;
};

[[nodiscard]] std::span<const FeeType> feeTypes();
inline constexpr int topLevelTypes = 12; ///< they stand first in feeTypes()

struct FeeItem {
    std::string_view code;
    std::string_view name;
    std::string_view packing;
    std::string_view unit;
    std::int64_t price; ///< ten-thousandths of a yuan
    int feeType; ///< position in feeTypes()
    int rate; ///< percent that can be reimbursed; 0: not compensable
    int most; ///< largest quantity on one line
    bool needsApproval = false; ///< compensable only where a special approval was granted
    std::string_view onlyFor = {}; ///< how the diagnosis code must begin
};

[[nodiscard]] std::span<const FeeItem> feeItems();
/// Positions in feeItems(): charged once a day of the stay.
inline constexpr int bedItem = 0;
inline constexpr int nursingItem = 1;

/// The top-level type of a fee type: its place among the first topLevelTypes.
[[nodiscard]] int topLevelOf(const FeeType &type);

struct Formula {
    std::string_view id;
    std::string_view name;
    Cents deductible;
    int rate; ///< percent of what exceeds the deductible
};

/// By level of the institution first (township, county, out of county), then for single diseases, deliveries, others.
[[nodiscard]] std::span<const Formula> formulas();

struct HomeProperty {
    std::string_view code;
    std::string_view name;
};

[[nodiscard]] std::span<const HomeProperty> homeProperties();

} // namespace vortaq::demo
