// SPDX-License-Identifier: MIT
// The named host parameters, and how their variants are read.
#pragma once

#include <QString>
#include <QVariant>

#include <cstdint>

namespace host {

namespace parameter {

inline const QString AreaCode = QStringLiteral("AreaCode");
inline const QString OrgCode = QStringLiteral("OrgCode");
inline const QString OrgName = QStringLiteral("OrgName");
inline const QString OrgType = QStringLiteral("OrgType");
inline const QString OrgGrade = QStringLiteral("OrgGrade");
/// "1": bills for every organisation with pending records; "2": for the granted ones only.
inline const QString IsBillAll = QStringLiteral("isBillAll");
inline const QString RightCode = QStringLiteral("RightCode");
inline const QString DigitalFormat = QStringLiteral("DigitalFormat");
inline const QString FocusedRowColour = QStringLiteral("Color-1");
inline const QString OddRowColour = QStringLiteral("Color-2");
inline const QString BackgroundColour = QStringLiteral("Color-5");
inline const QString ApprovedItemColour = QStringLiteral("Color-6");
inline const QString DeductedItemColour = QStringLiteral("Color-7");

} // namespace parameter

/// Whether the variant equals the text, as variants compare: a number equals its decimal text.
[[nodiscard]] bool equals(const QVariant &value, const QString &text);

/// A Windows colour integer. Throws std::invalid_argument when the variant holds no integer of 32 bits.
[[nodiscard]] std::uint32_t toColour(const QVariant &value);

} // namespace host
