// SPDX-License-Identifier: MIT
// The pages with bills without a mouse.
#include "data/statements/feedetail.h"
#include "tests/support/modalvisit.h"
#include "tests/uMain/billpages.h"

#include <QAbstractButton>

using namespace expected;

namespace {

class BillKeyboardTest : public BillPageTest {
protected:
    void openWindow()
    {
        open();
        form().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form()));
    }
    void key(QWidget &list, Qt::Key key) const
    {
        list.setFocus();
        QTest::keyClick(&list, key);
    }
    [[nodiscard]] QString recordsOf(const char *number) const
    {
        if (m_page == &History)
            return openSql(
                data::historyRecords(QStringLiteral("1"), {QStringLiteral("42990101"), QString::fromUtf8(number)}));
        return openSql(ofBill(m_page->records, number));
    }
    [[nodiscard]] QString patient() const { return QString::fromUtf8(m_page->grid) + QStringLiteral("PatientName"); }
    [[nodiscard]] QString detail() const
    {
        return m_page == &History ? QStringLiteral("frmDjOld") : QStringLiteral("frmDjDetail");
    }
};

/// The pages that have buttons.
class BillMnemonicsTest : public BillKeyboardTest {
protected:
    /// A button pressed by its letter clicks a moment later.
    void press(Qt::Key letter, const char *button) const
    {
        bool clicked = false;
        const auto connection = QObject::connect(&hands::find<QAbstractButton>(form(), button),
                                                 &QAbstractButton::clicked, [&clicked] { clicked = true; });
        QTest::keyClick(&form(), letter, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&clicked] { return clicked; })) << button;
        QObject::disconnect(connection);
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Pages, BillKeyboardTest, testing::Values(&Reported, &Returned, &History), pageName);
INSTANTIATE_TEST_SUITE_P(Pages, BillMnemonicsTest, testing::Values(&Reported, &Returned), pageName);

TEST_P(BillKeyboardTest, arrowsInTheTreeLoadOneBillAtATime)
{
    openWindow();
    key(tree(), Qt::Key_Down);
    EXPECT_EQ(said(), QStringList({recordsOf("21"), QStringLiteral("DataCtl.CloseSql()")}));
    EXPECT_EQ(grid().count(), 2);
    key(tree(), Qt::Key_Down);
    EXPECT_EQ(said(), QStringList({recordsOf("20"), QStringLiteral("DataCtl.CloseSql()")}));
    EXPECT_EQ(grid().count(), 1);
    key(tree(), Qt::Key_Home);
    EXPECT_TRUE(said().isEmpty()) << "the institution has no records of its own";
    EXPECT_EQ(grid().count(), 0);
}

TEST_P(BillKeyboardTest, enterOpensTheFocusedRecord)
{
    openWindow();
    choose(Two);
    key(grid(), Qt::Key_Down);
    {
        const ModalVisit visit(detail(), [](QWidget &) {});
        key(grid(), Qt::Key_Return);
    }
    const QStringList statements = said().filter(QStringLiteral("OpenSql"));
    ASSERT_EQ(statements.size(), 2);
    for (const QString &statement : statements)
        EXPECT_TRUE(statement.contains(QStringLiteral("CoopMedCode='0102'"))) << statement.toStdString();
    {
        const ModalVisit visit(detail(), [](QWidget &) {});
        key(grid(), Qt::Key_Enter);
    }
    EXPECT_EQ(said().filter(QStringLiteral("OpenSql")), statements) << "of the number pad, too";
}

TEST_P(BillKeyboardTest, withoutARecordNothingOpens)
{
    openWindow();
    key(grid(), Qt::Key_Return);
    QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, grid().viewport()->rect().center());
    choose(Two);
    QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {},
                       {grid().viewport()->width() / 2, grid().viewport()->height() - 5}); // below the records
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(said().isEmpty());
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_P(BillMnemonicsTest, altCTakesTheFocusedRecordOfThisPageOut)
{
    openWindow();
    choose(Two);
    m_desk->conversation().answerNo();
    press(Qt::Key_C, m_page->cancelOne);
    EXPECT_EQ(said(), QStringList(ask(m_page->cancelOneQuestion, false)));
}

TEST_P(BillMnemonicsTest, altAAddsToTheBillOfThisPage)
{
    openWindow();
    choose(Two);
    {
        const ModalVisit visit(QStringLiteral("frmAddBill"), [this](QWidget &) { (void)said(); });
        press(Qt::Key_A, m_page->add);
    }
    EXPECT_EQ(said(), unbilledTree() + candidates() + records("21"));
}

TEST_P(BillMnemonicsTest, altUUploadsNothing)
{
    openWindow();
    choose(Two);
    press(Qt::Key_U, m_page->uploadOne);
    EXPECT_TRUE(said().isEmpty());
}

TEST_P(BillMnemonicsTest, altELeaves)
{
    openWindow();
    press(Qt::Key_E, m_page->exit);
    EXPECT_FALSE(form().isVisible());
}
