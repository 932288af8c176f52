// SPDX-License-Identifier: MIT
// Today's date, behind a seam.
#include "toolkit/clock.h"

#include <utility>

namespace toolkit {

namespace {

std::function<QDate()> &clockInUse()
{
    static std::function<QDate()> clock;
    return clock;
}

} // namespace

QDate today()
{
    return clockInUse() ? clockInUse()() : QDate::currentDate();
}

void setClock(std::function<QDate()> clock)
{
    clockInUse() = std::move(clock);
}

} // namespace toolkit
