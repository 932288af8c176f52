// SPDX-License-Identifier: MIT
// The history's statement names the clerk's institution twice, and the host is asked for each.
#include "automation/registry.h"
#include "tests/support/desk.h"
#include "tests/uMain/expected.h"
#include "tests/uMain/movingclerk.h"
#include "uMain/HistoryPage.h"

#include <gtest/gtest.h>

using namespace expected;

TEST(HistoryCodes, eachHalfTakesTheReadingMadeForIt)
{
    Desk desk;
    auto *page = desk.open().findChild<HistoryPage *>();
    ASSERT_NE(page, nullptr);
    const QString identifier = QString::fromUtf16(host::FuncStorageProxy::Identifier);
    automation::registerObject(identifier, [] { return std::make_unique<MovingClerk>(); });
    host::shared().FuncStorage = host::FuncStorageProxy(automation::LateBound(identifier));
    (void)desk.conversation().take();
    page->LoadOldBills();
    EXPECT_EQ(desk.conversation().take(),
              QStringList({read("OrgCode"), read("OrgCode")})
                  + query(data::historyBills(QStringLiteral("42990101"), QStringLiteral("4299'02"))));
}
