// SPDX-License-Identifier: MIT
// The status check before a report, by itself.
#include "host/clientdataset.h"
#include "tests/support/desk.h"
#include "tests/uMain/expected.h"
#include "uMain/BillChanges.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace expected;

namespace {

class CheckBillStatusTest : public testing::Test {
protected:
    CheckBillStatusTest()
    {
        m_desk.open();
        m_desk.conversation().take();
        m_workbench.session.connStyle = 1;
        m_workbench.reload = {
            .unbilledTree = [this] { m_reloaded.append(QStringLiteral("unbilled")); },
            .candidates = [this] { m_reloaded.append(QStringLiteral("candidates")); },
            .reportedBills = [this] { m_reloaded.append(QStringLiteral("reported")); },
            .returnedBills = [this] { m_reloaded.append(QStringLiteral("returned")); },
            .history = [this] { m_reloaded.append(QStringLiteral("history")); },
        };
    }

    /// Bill 3 of the small hospital, which is made.
    [[nodiscard]] bool check(const char *allowed)
    {
        return BillChanges(m_workbench, m_scratch, ReportedBills, &m_desk.form())
            .CheckBillStatus({QStringLiteral("42990102"), QStringLiteral("3")}, QString::fromUtf8(allowed));
    }

    Desk m_desk;
    Workbench m_workbench;
    TClientDataSet m_scratch;
    QStringList m_reloaded;
};

} // namespace

TEST_F(CheckBillStatusTest, aMadeBillThatIsNotAllowedReloadsEverything)
{
    // No caller excludes made bills, so no page can show this.
    EXPECT_FALSE(check(" '9' "));
    EXPECT_EQ(m_desk.conversation().take(),
              query(QStringLiteral(" select CheckStatus from o_CbZyZdb  where BillCode='42990102'   and BillNo=3   and "
                                   "CheckStatus not in ( '9' ) "))
                  + QStringList(QStringLiteral("tell(提示,该单据现在状态为:)")));
    EXPECT_EQ(m_reloaded,
              QStringList({QStringLiteral("unbilled"), QStringLiteral("candidates"), QStringLiteral("reported"),
                           QStringLiteral("returned"), QStringLiteral("history")}));
}

TEST_F(CheckBillStatusTest, anAllowedStatusSaysNothing)
{
    EXPECT_TRUE(check(" '1','9' "));
    EXPECT_EQ(m_desk.conversation().take().size(), 2);
    EXPECT_TRUE(m_reloaded.isEmpty());
}

TEST_F(CheckBillStatusTest, aBillThatIsGonePasses)
{
    m_desk.sqlite("delete from o_CbZyZdb");
    EXPECT_TRUE(check(" '9' "));
    EXPECT_TRUE(m_reloaded.isEmpty());
}

TEST_F(CheckBillStatusTest, otherConnStylesAskNothing)
{
    for (const int style : {0, 2, -1}) {
        m_workbench.session.connStyle = style;
        EXPECT_TRUE(check(" '9' "));
    }
    EXPECT_TRUE(m_desk.conversation().take().isEmpty());
}

TEST_F(CheckBillStatusTest, aListThatFailsKeepsTheRestFromLoading)
{
    const auto fail = [] { throw std::runtime_error("故障"); };
    m_workbench.reload.returnedBills = fail;
    EXPECT_THROW((void)check(" '9' "), std::runtime_error);
    EXPECT_EQ(m_reloaded,
              QStringList({QStringLiteral("unbilled"), QStringLiteral("candidates"), QStringLiteral("reported")}));
    EXPECT_TRUE(m_desk.conversation().take().last().startsWith(QStringLiteral("tell("))) << "it was told before";
}
