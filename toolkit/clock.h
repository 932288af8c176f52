// SPDX-License-Identifier: MIT
// Today's date, behind a seam.
#pragma once

#include <QDate>

#include <functional>

namespace toolkit {

[[nodiscard]] QDate today();
/// An empty function restores the system's clock.
void setClock(std::function<QDate()> clock);

} // namespace toolkit
