// SPDX-License-Identifier: MIT
// What an editor over an amount takes.
#include "tests/support/hints.h"
#include "tests/toolkit/amountslist.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

namespace {

class TypedAmounts : public Amounts {
protected:
    TypedAmounts()
    {
        std::vector<ColumnDefinition> columns = patientColumns();
        columns[Fee].editable = true;
        list.setColumns(columns);
        setFormat(Money);
        loadAmounts({"50.02", nullptr, "12.5000", "abc"});
    }

    QLineEdit *open(int row)
    {
        list.setCurrentIndex(at(row, Fee));
        key(Qt::Key_F2);
        return editor();
    }
    [[nodiscard]] QLineEdit *editor() const
    {
        for (QLineEdit *line : list.viewport()->findChildren<QLineEdit *>()) {
            if (line->isVisible())
                return line;
        }
        return nullptr;
    }
    /// Over the selected old text; what the editor then holds.
    std::string typed(int row, const char *text)
    {
        QLineEdit *line = open(row);
        for (const QChar character : QString::fromUtf8(text))
            character < QChar(0x80) ? QTest::keyClick(line, character.toLatin1()) : commit(*line, character);
        const std::string held = line->text().toStdString();
        QTest::keyClick(line, Qt::Key_Escape);
        QCoreApplication::processEvents();
        return held;
    }
    /// As an input method does it.
    static void commit(QLineEdit &line, const QString &text)
    {
        QInputMethodEvent event;
        event.setCommitString(text);
        QApplication::sendEvent(&line, &event);
    }
    static void enter(QLineEdit *line)
    {
        QTest::keyClick(line, Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    [[nodiscard]] std::string stored(int row) const { return list.node(row).text(Fee).toStdString(); }
};

} // namespace

TEST_F(TypedAmounts, onlyWhatCanBecomeAnAmountIsTaken)
{
    const struct {
        const char *keys;
        const char *held;
    } rows[] = {
        {"77.5", "77.5"},
        {"-77.55", "-77.55"},
        {"+1", "+1"},
        {".5", ".5"},
        {"1.999", "1.99"},
        {"1..5", "1.5"},
        {"1-2", "12"},
        {"1e5", "15"},
        {"a1b2c", "12"},
        {"12345678901234", "1234567890123"},
        {"1234567890123.456", "1234567890123.45"},
        {"1,234.5", "1,234.5"},
        {",1", "1"},
        {"1.2,3", "1.23"},
        {" 5", "5"},
        {"１２。５", "12.5"},
        {"－１，２３４．５", "-1,234.5"},
        {"壹", "50.02"},
        {"0x1F", "01"},
        {"inf", "50.02"},
        {"$5", "5"},
        {"5%", "5"},
        {"١٢", "50.02"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(typed(0, row.keys), row.held) << row.keys;
    EXPECT_EQ(stored(0), "50.02");
}

TEST_F(TypedAmounts, aRefusedKeyIsToldAtOnce)
{
    QLineEdit *line = open(0);
    EXPECT_EQ(hints::shown(), "");
    QTest::keyClicks(line, QStringLiteral("a"));
    EXPECT_EQ(line->text(), QStringLiteral("50.02"));
    EXPECT_EQ(hints::shown(), "这里只能输入金额：最多13位整数和2位小数，例如 1,234.50。");
    setFormat("0.00");
    QTest::keyClick(line, Qt::Key_Escape);
    QTest::keyClicks(open(0), QStringLiteral(","));
    EXPECT_EQ(hints::shown(), "这里只能输入金额：最多13位整数和2位小数，例如 1234.50。")
        << "no commas where none are shown";
}

TEST_F(TypedAmounts, pastedTextIsTakenWholeOrNotAtAll)
{
    const struct {
        const char *pasted;
        const char *held;
        bool told;
    } rows[] = {{"1,234.50", "1,234.50", false},
                {"        123.45\n", "123.45", false},
                {"12abc", "50.02", true},
                {"1234567890123456", "50.02", true},
                {"１２３．４", "123.4", false}};
    for (const auto &row : rows) {
        hints::forget();
        QApplication::clipboard()->setText(QString::fromUtf8(row.pasted));
        QLineEdit *line = open(0);
        QTest::keyClick(line, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(line->text().toStdString(), row.held) << row.pasted;
        EXPECT_EQ(!hints::shown().empty(), row.told) << row.pasted;
        QTest::keyClick(line, Qt::Key_Escape);
        QCoreApplication::processEvents();
    }
}

TEST_F(TypedAmounts, anInputMethodsTextIsTakenLikewise)
{
    QLineEdit *line = open(0);
    commit(*line, QStringLiteral("元"));
    EXPECT_EQ(line->text(), QStringLiteral("50.02"));
    EXPECT_NE(hints::shown(), "");
    commit(*line, QStringLiteral("８８。５"));
    EXPECT_EQ(line->text(), QStringLiteral("88.5"));
    enter(line);
    EXPECT_EQ(stored(0), "88.5");
}

TEST_F(TypedAmounts, commasAreForTheEyeOnly)
{
    QLineEdit *line = open(0);
    QTest::keyClicks(line, QStringLiteral("1,234,567.5"));
    enter(line);
    EXPECT_EQ(stored(0), "1234567.5");
    EXPECT_EQ(list.model()->data(at(0, Fee), Qt::AccessibleTextRole).toString(), QStringLiteral("1,234,567.50"));
    EXPECT_TRUE(hasRoomFor("1,234,567.50"));
}

TEST_F(TypedAmounts, whatIsUnfinishedStaysInTheEditorAndIsTold)
{
    for (const char *keys : {"-", ".", "-.", "12,34", "1,2345"}) {
        hints::forget();
        QLineEdit *line = open(0);
        QTest::keyClicks(line, QString::fromUtf8(keys));
        enter(line);
        EXPECT_EQ(editor(), line) << keys;
        EXPECT_NE(hints::shown(), "") << keys;
        QTest::keyClick(line, Qt::Key_Escape);
        QCoreApplication::processEvents();
    }
    QLineEdit *line = open(0);
    QTest::keyClick(line, Qt::Key_Delete);
    EXPECT_EQ(line->text(), QString());
    enter(line);
    EXPECT_EQ(editor(), line) << "an amount is never empty";
    EXPECT_NE(hints::shown(), "");
    QTest::keyClicks(line, QStringLiteral("7"));
    enter(line);
    EXPECT_EQ(stored(0), "7");
}

TEST_F(TypedAmounts, whatIsLeftUnfinishedIsDroppedAndTold)
{
    QLineEdit *line = open(0);
    QTest::keyClick(line, Qt::Key_Delete);
    list.setFocus();
    QCoreApplication::processEvents();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(stored(0), "50.02");
    EXPECT_EQ(hints::shown(),
              "没有输完的金额未采用，仍为原来的数值。\n这里只能输入金额：最多13位整数和2位小数，例如 1,234.50。");
}

TEST_F(TypedAmounts, arrowsLeaveTheEditorWithAnAmountOnly)
{
    QLineEdit *line = open(2);
    QTest::keyClicks(line, QStringLiteral("8.5"));
    QTest::keyClick(line, Qt::Key_Up);
    QCoreApplication::processEvents();
    EXPECT_EQ(stored(2), "8.5");
    EXPECT_EQ(hints::shown(), "");
    line = open(2);
    QTest::keyClicks(line, QStringLiteral("-"));
    QTest::keyClick(line, Qt::Key_Up);
    QCoreApplication::processEvents();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(stored(2), "8.5");
    EXPECT_NE(hints::shown(), "");
}

TEST_F(TypedAmounts, anotherRowsEditorTakesTheOldOnesAmountAlong)
{
    QTest::keyClicks(open(0), QStringLiteral("3.5"));
    click(2, Name);
    QCoreApplication::processEvents();
    EXPECT_EQ(stored(0), "3.5");
    QTest::keyClick(open(0), Qt::Key_Backspace);
    click(2, Name);
    QCoreApplication::processEvents();
    EXPECT_EQ(editor(), nullptr);
    EXPECT_EQ(stored(0), "3.5");
}

TEST_F(TypedAmounts, lookingChangesNothing)
{
    for (int row = 0; row < 4; ++row) {
        const QVariant value = list.node(row).value(Fee);
        enter(open(row));
        EXPECT_EQ(editor(), nullptr) << row;
        EXPECT_EQ(list.node(row).value(Fee), value) << row;
    }
    EXPECT_EQ(hints::shown(), "");
}

TEST_F(TypedAmounts, whateverStoodThereCanBeTypedOver)
{
    for (int row = 0; row < 4; ++row) {
        QLineEdit *line = open(row);
        QTest::keyClicks(line, QStringLiteral("1x0.5"));
        enter(line);
        EXPECT_EQ(stored(row), "10.5");
    }
}

TEST_F(TypedAmounts, noOtherWayIntoTheCellTakesMore)
{
    EXPECT_FALSE(list.model()->setData(at(0, Fee), QStringLiteral("abc"), Qt::EditRole));
    EXPECT_FALSE(list.model()->setData(at(0, Fee), QString(), Qt::EditRole));
    EXPECT_EQ(stored(0), "50.02");
    EXPECT_TRUE(list.model()->setData(at(0, Fee), QStringLiteral("77.5"), Qt::EditRole));
    EXPECT_EQ(stored(0), "77.5");
}

TEST_F(TypedAmounts, aLetterThatWouldOpenTheEditorIsRefusedThere)
{
    list.setCurrentIndex(at(0, Fee));
    QTest::keyClick(&list, Qt::Key_A);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("50.02"));
    QTest::keyClick(editor(), Qt::Key_Escape);
    QTest::keyClick(&list, Qt::Key_7);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), QStringLiteral("7"));
}
