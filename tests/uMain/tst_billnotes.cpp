// SPDX-License-Identifier: MIT
// A bill's number, records and amounts: as its node's tooltip, and in the status bar of the window around the form.
#include "tests/uMain/billpages.h"
#include "uMain/billtrees.h"

#include <QHelpEvent>
#include <QMainWindow>
#include <QStatusBar>
#include <QToolTip>

namespace {

class BillNotesTest : public BillPageTest {
protected:
    void openInWindow(const Desk::Options &options = Desk::Options())
    {
        open(options);
        m_window = std::make_unique<QMainWindow>();
        m_window->setCentralWidget(&form());
        m_window->statusBar()->show();
        m_window->show();
        form().show();
        (void)said();
    }
    void TearDown() override
    {
        form().setParent(nullptr); // the desk frees it
        m_window.reset();
    }
    [[nodiscard]] QString status() const { return m_window->statusBar()->currentMessage(); }
    /// What stands over the node; empty when there was no tooltip yet.
    [[nodiscard]] QString tip(int child) const
    {
        QModelIndex index = tree().model()->index(0, 0);
        if (child >= 0)
            index = tree().model()->index(child, 0, index);
        const QPoint place = tree().visualRect(index).center();
        QHelpEvent request(QEvent::ToolTip, place, tree().viewport()->mapToGlobal(place));
        QApplication::sendEvent(tree().viewport(), &request);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    }
    [[nodiscard]] bool isHistory() const { return m_page == &History; }
    [[nodiscard]] static QString text(const char *utf8) { return QString::fromUtf8(utf8); }

    std::unique_ptr<QMainWindow> m_window;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, BillNotesTest, testing::Values(&Reported, &Returned, &History), pageName);

TEST_P(BillNotesTest, aNodeTellsNumberAndAmounts)
{
    openInWindow();
    EXPECT_EQ(tip(Two),
              isHistory() ? text("2026-03-02【制单】\n制单号：21\n总费用：1,200.30\n可报销费用：950.15\n"
                                 "一审费用：0.00\n二审费用：0.00")
                          : text("2026-03-02\n制单号：21\n总费用：1,200.30\n可报销费用：950.15"));
    EXPECT_TRUE(said().isEmpty()) << "nothing is asked of the host for it";
}

TEST_P(BillNotesTest, aListedBillTellsItsRecordsToo)
{
    openInWindow();
    choose(Single);
    EXPECT_EQ(tip(Single),
              isHistory() ? text("2026-03-01【制单】\n制单号：20\n人次：1\n总费用：5.50\n"
                                 "可报销费用：0.00\n一审费用：0.00\n二审费用：0.00")
                          : text("2026-03-01\n制单号：20\n人次：1\n总费用：5.50\n可报销费用：0.00"));
}

TEST_P(BillNotesTest, theStatusBarTellsTheChosenBill)
{
    openInWindow();
    EXPECT_EQ(status(), QString());
    choose(Two);
    EXPECT_EQ(status(),
              isHistory()
                  ? text("制单号：21，人次：2，总费用：1,200.30，可报销费用：950.15，一审费用：0.00，二审费用：0.00")
                  : text("制单号：21，人次：2，总费用：1,200.30，可报销费用：950.15"));
    choose(Single);
    EXPECT_TRUE(status().startsWith(text("制单号：20，人次：1，总费用：5.50，"))) << status().toStdString();
    hands::clickNode(tree(), 0);
    EXPECT_EQ(status(), QString()) << "an institution";
}

TEST_P(BillNotesTest, theStatusBarIsThatOfThePageInFront)
{
    openInWindow();
    choose(Two);
    const QString chosen = status();
    hands::showPage(form(), "TabSheet3");
    EXPECT_EQ(status(), QString());
    hands::showPage(form(), m_page->page);
    EXPECT_EQ(status(), chosen);
    form().hide();
    EXPECT_EQ(status(), QString());
}

TEST_P(BillNotesTest, aListThatFailsTellsNothing)
{
    openInWindow();
    choose(Two);
    m_desk->engine().failCall(1);
    choose(Single);
    EXPECT_EQ(status(), QString());
}

TEST_P(BillNotesTest, amountsHaveTheHostsFormat)
{
    Desk::Options options;
    options.parameters = {{QStringLiteral("DigitalFormat"), QStringLiteral("￥0.0")}};
    openInWindow(options);
    choose(Two);
    EXPECT_TRUE(status().contains(text("总费用：￥1200.3，可报销费用：￥950.2"))) << status().toStdString();
    EXPECT_TRUE(tip(Single).contains(text("总费用：￥5.5\n"))) << tip(Single).toStdString();
}

TEST_P(BillNotesTest, anAmountThatIsNoNumberIsShownAsItIs)
{
    openInWindow();
    const int position = isHistory() ? billnode::Fee : billnode::NotedFee;
    tree().topNode().child(Single).setValue(position, QStringLiteral("五元"));
    EXPECT_TRUE(tip(Single).contains(text("总费用：五元\n"))) << tip(Single).toStdString();
}
