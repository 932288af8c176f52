// SPDX-License-Identifier: MIT
// Amounts typed into the dialog "添加制单": they feed the totals and nothing else.
#include "tests/support/hints.h"
#include "tests/uAddBill/addbill.h"

#include <QClipboard>
#include <QInputMethodEvent>

namespace {

class AddBillEditingTest : public AddBillTest {
protected:
    /// The editor that is open; one that has been left goes only when the dialog is idle.
    [[nodiscard]] static QLineEdit *editor(QWidget &dialog)
    {
        for (QLineEdit *line : grid(dialog).viewport()->findChildren<QLineEdit *>()) {
            if (line->isVisible())
                return line;
        }
        return nullptr;
    }
    /// Into the editor that a click on the cell opens.
    static void type(QWidget &dialog, int row, const char *text)
    {
        hands::clickCell(grid(dialog), row, "dxTLUpFreeFee");
        QLineEdit *line = editor(dialog);
        ASSERT_NE(line, nullptr) << "a click opens the editor";
        line->selectAll();
        QTest::keyClicks(line, QString::fromUtf8(text));
    }
    static void typeAndEnter(QWidget &dialog, int row, const char *text)
    {
        type(dialog, row, text);
        enter(dialog);
    }
    /// An editor takes its text over when the key's own handling is done.
    static void enter(QWidget &dialog)
    {
        if (QLineEdit *line = editor(dialog))
            QTest::keyClick(line, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] static QString freeFee(QWidget &dialog, int row)
    {
        return hands::columnTexts(grid(dialog), "dxTLUpFreeFee").value(row);
    }
};

} // namespace

TEST_F(AddBillEditingTest, aTypedAmountCountsFromTheNextTickOn)
{
    inDialog([this](QWidget &dialog) {
        tick(dialog, {0});
        (void)said();
        const QStringList before = m_desk->contents();
        typeAndEnter(dialog, 0, "77.5");
        EXPECT_EQ(freeFee(dialog, 0), QStringLiteral("77.5"));
        EXPECT_EQ(totals(dialog), QStringLiteral("1|100.10|80.05|50.02")) << "not yet";
        tick(dialog, {1});
        EXPECT_EQ(totals(dialog), QStringLiteral("2|300.30|230.05|177.50"));
        EXPECT_TRUE(said().isEmpty());
        EXPECT_EQ(m_desk->contents(), before);
        EXPECT_TRUE(dialog.isVisible()) << "Enter in a cell presses no button";
        hands::click(dialog, "btnSave");
    });
    EXPECT_EQ(m_desk->rows("select FreeFee from o_CbZyBxDj where BillNo=3 order by CoopMedCode"),
              QStringList({QStringLiteral("50.02"), QStringLiteral("100"), QStringLiteral("5")}))
        << "what was typed is not saved";
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(AddBillEditingTest, aTickTakesAnAmountThatIsStillInItsEditor)
{
    inDialog([](QWidget &dialog) {
        type(dialog, 0, "12.25");
        tick(dialog, {0});
        EXPECT_EQ(freeFee(dialog, 0), QStringLiteral("12.25"));
        EXPECT_EQ(totals(dialog), QStringLiteral("1|100.10|80.05|12.25"));
    });
}

TEST_F(AddBillEditingTest, movingIntoTheCellOpensItsEditor)
{
    inDialog([](QWidget &dialog) {
        hands::clickCell(grid(dialog), 1, "dxTLUpCanFee");
        EXPECT_EQ(editor(dialog), nullptr) << "the amounts beside it are for reading";
        QTest::keyClick(&grid(dialog), Qt::Key_Right);
        QLineEdit *line = editor(dialog);
        ASSERT_NE(line, nullptr);
        QTest::keyClicks(line, QStringLiteral("9"));
        enter(dialog);
        EXPECT_EQ(freeFee(dialog, 1), QStringLiteral("9")) << "what stood there was selected";
    });
}

TEST_F(AddBillEditingTest, escapeLeavesTheAmountAndTheDialog)
{
    inDialog([](QWidget &dialog) {
        type(dialog, 0, "1");
        ASSERT_NE(editor(dialog), nullptr);
        QTest::keyClick(editor(dialog), Qt::Key_Escape);
        QCoreApplication::processEvents();
        EXPECT_EQ(editor(dialog), nullptr);
        EXPECT_EQ(freeFee(dialog, 0), QStringLiteral("50.02"));
        EXPECT_TRUE(dialog.isVisible());
    });
}

TEST_F(AddBillEditingTest, lettersAreRefusedAtOnceAndTheTotalsGoOn)
{
    inDialog([this](QWidget &dialog) {
        tick(dialog, {1});
        (void)said();
        hints::forget();
        type(dialog, 0, "abc");
        EXPECT_EQ(editor(dialog)->text(), QStringLiteral("50.02"));
        EXPECT_EQ(hints::shown(), "这里只能输入金额：最多13位整数和2位小数，例如 1,234.50。");
        enter(dialog);
        EXPECT_EQ(freeFee(dialog, 0), QStringLiteral("50.02"));
        tick(dialog, {0});
        EXPECT_EQ(totals(dialog), QStringLiteral("2|300.30|230.05|150.02"));
        typeAndEnter(dialog, 0, "1,234.5x");
        tick(dialog, {1});
        EXPECT_EQ(totals(dialog), QStringLiteral("1|100.10|80.05|1,234.50"));
        EXPECT_TRUE(said().isEmpty());
    });
    EXPECT_TRUE(m_desk->errors().isEmpty());
}

TEST_F(AddBillEditingTest, anEmptiedCellKeepsItsAmount)
{
    inDialog([this](QWidget &dialog) {
        QCoreApplication::processEvents(); // the dialog becomes active, which takes hints away
        type(dialog, 0, "");
        QTest::keyClick(editor(dialog), Qt::Key_Delete);
        EXPECT_EQ(editor(dialog)->text(), QString());
        enter(dialog);
        ASSERT_NE(editor(dialog), nullptr) << "Enter waits for an amount";
        EXPECT_NE(hints::shown(), "");
        tick(dialog, {0});
        EXPECT_EQ(editor(dialog), nullptr);
        EXPECT_EQ(freeFee(dialog, 0), QStringLiteral("50.02"));
        EXPECT_EQ(totals(dialog), QStringLiteral("1|100.10|80.05|50.02"));
        EXPECT_TRUE(m_desk->errors().isEmpty());
    });
}

TEST_F(AddBillEditingTest, anInputMethodAndTheClipboardBringAmountsOnly)
{
    inDialog([this](QWidget &dialog) {
        type(dialog, 0, "");
        QInputMethodEvent chinese;
        chinese.setCommitString(QStringLiteral("五十"));
        QApplication::sendEvent(editor(dialog), &chinese);
        QApplication::clipboard()->setText(QStringLiteral("50元"));
        QTest::keyClick(editor(dialog), Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(editor(dialog)->text(), QStringLiteral("50.02"));
        QApplication::clipboard()->setText(QStringLiteral("        1,050.50"));
        QTest::keyClick(editor(dialog), Qt::Key_V, Qt::ControlModifier);
        enter(dialog);
        EXPECT_EQ(freeFee(dialog, 0), QStringLiteral("1050.50"));
        tick(dialog, {0});
        EXPECT_EQ(totals(dialog), QStringLiteral("1|100.10|80.05|1,050.50"));
        EXPECT_TRUE(m_desk->errors().isEmpty());
    });
}

TEST_F(AddBillEditingTest, otherColumnsTakeNoTyping)
{
    inDialog([](QWidget &dialog) {
        for (const char *column : {"dxTLUpCoopMedCode", "dxTLUpPatientName", "dxTLUpTotalFee", "dxTLUpCanFee"}) {
            hands::clickCell(grid(dialog), 0, column);
            QTest::keyClick(&grid(dialog), Qt::Key_F2);
            QTest::keyClicks(&grid(dialog), QStringLiteral("1"));
            EXPECT_EQ(editor(dialog), nullptr) << column;
        }
    });
}
