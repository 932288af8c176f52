// SPDX-License-Identifier: MIT
// Today, behind its seam.
#include "toolkit/clock.h"

#include <gtest/gtest.h>

namespace {

TEST(Clock, canBeReplacedAndRestored)
{
    toolkit::setClock([] { return QDate(2001, 2, 3); });
    EXPECT_EQ(toolkit::today(), QDate(2001, 2, 3));
    toolkit::setClock({});
    EXPECT_GT(toolkit::today(), QDate(2001, 2, 3));
}

} // namespace
