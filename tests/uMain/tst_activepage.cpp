// SPDX-License-Identifier: MIT
// Reporting takes the bill of the page in front, whichever page's menu item is used; the item's page is reloaded.
#include "tests/uMain/billpages.h"

using namespace expected;

namespace {

/// Bill 21 made, bill 20 returned; both chosen on their pages.
class ActivePageTest : public BillPageTest {
protected:
    void openBoth()
    {
        open(Reported);
        m_desk->sqlite("update o_CbZyZdb set CheckStatus='9' where BillNo=20");
        form().hide();
        form().show();
        for (const char *name : {Returned.page, Reported.page}) {
            hands::showPage(form(), name);
            hands::clickNode(hands::find<TdxTreeList>(form(), name == Reported.page ? Reported.tree : Returned.tree), 0,
                             0);
        }
        (void)said();
    }
    [[nodiscard]] static QString reporting(const char *number)
    {
        return execSql(QStringLiteral(" update o_cbzyzdb    set CheckStatus='2'  where BillCode='42990101'   and "
                                      "BillNo=%1")
                           .arg(QString::fromUtf8(number)));
    }
    [[nodiscard]] QString states() const
    {
        return m_desk->rows("select BillNo||'='||CheckStatus from o_CbZyZdb where BillNo in (20,21) order by 1 desc")
            .join(u' ');
    }
};

} // namespace

TEST_F(ActivePageTest, theReturnedPagesItemReportsTheBillOfTheReportedPage)
{
    openBoth();
    hands::showPage(form(), Reported.page);
    const QStringList lines = triggerAndConfirm(Returned.report);
    EXPECT_TRUE(lines.contains(reporting("21"))) << lines.join(u'\n').toStdString();
    EXPECT_EQ(lines.mid(lines.indexOf(hint("上报制单成功！")) + 1), returnedBills() + history());
    EXPECT_EQ(states(), QStringLiteral("21=2 20=9"));
}

TEST_F(ActivePageTest, theReportedPagesItemReportsTheBillOfTheReturnedPage)
{
    openBoth();
    hands::showPage(form(), Returned.page);
    const QStringList lines = triggerAndConfirm(Reported.report);
    EXPECT_TRUE(lines.contains(reporting("20"))) << lines.join(u'\n').toStdString();
    EXPECT_EQ(lines.mid(lines.indexOf(hint("上报制单成功！")) + 1), reportedBills() + history());
    EXPECT_EQ(states(), QStringLiteral("21=1 20=2"));
}

TEST_F(ActivePageTest, onAPageWithoutSuchBillsNothingIsReported)
{
    openBoth();
    hands::showPage(form(), "TabSheet3");
    EXPECT_EQ(triggerAndConfirm(Reported.report), QStringList(ask("您确认上报此笔制单记录吗？")));
    EXPECT_EQ(states(), QStringLiteral("21=1 20=9"));
}

TEST_F(ActivePageTest, cancellingTakesTheBillOfTheItemsOwnPage)
{
    openBoth();
    hands::showPage(form(), Reported.page);
    EXPECT_TRUE(triggerAndConfirm(Returned.cancel).contains(execSql(ofBill(Returned.deleteBill, "20"))));
}
