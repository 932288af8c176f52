// SPDX-License-Identifier: MIT
// Columns of amounts: as wide as their widest amount, never showing a part of one, and taking nothing but amounts.
#include "tests/support/hints.h"
#include "tests/toolkit/treelistfixture.h"

#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>

namespace {

constexpr char Money[] = ",0.00;-,0.00";

class Amounts : public TreeListTest {
protected:
    Amounts()
    {
        setFormat(Money);
        show();
    }

    void setFormat(const char *format)
    {
        static_cast<TdxTreeListCurrencyColumn *>(list.column(Fee))->setDisplayFormat(QString::fromUtf8(format));
    }

    void loadAmounts(const std::vector<const char *> &amounts)
    {
        std::vector<Patient> patients;
        for (const char *amount : amounts)
            patients.push_back({"001", "王秀英", "45岁", amount, "True", "11"});
        load(packetOf(patients));
    }

    [[nodiscard]] int width() const { return list.header()->sectionSize(Fee); }
    /// Whether the column shows a text of its own whole.
    [[nodiscard]] bool hasRoomFor(const char *text) const
    {
        return width() > list.fontMetrics().horizontalAdvance(QString::fromUtf8(text));
    }
    [[nodiscard]] QImage cellPicture(int row) const
    {
        const QRect cell = list.visualRect(at(row, Fee));
        return const_cast<TdxTreeList &>(list).viewport()->grab(cell.adjusted(1, 1, -2, -2)).toImage();
    }
    void dragTo(int wanted)
    {
        QWidget *header = list.header()->viewport();
        const int edge = list.visualRect(at(0, Fee)).right();
        const QPointF place(edge + wanted - width(), 5);
        QTest::mousePress(header, Qt::LeftButton, {}, QPoint(edge, 5));
        QMouseEvent move(QEvent::MouseMove, place, header->mapToGlobal(place), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(header, &move);
        QTest::mouseRelease(header, Qt::LeftButton, {}, place.toPoint());
    }
};

} // namespace

// ---- widths

TEST_F(Amounts, everyLoadWidensTheColumn)
{
    loadAmounts({"         1.00"});
    const int first = width();
    loadAmounts({"         1.00", "  123456789012.34"});
    EXPECT_GT(width(), first);
    EXPECT_TRUE(hasRoomFor("123,456,789,012.34"));
    const int wide = width();
    loadAmounts({"         1.00"});
    EXPECT_EQ(width(), wide) << "the table does not jump about";
}

TEST_F(Amounts, theWidestMayStandAnywhere)
{
    std::vector<const char *> amounts(5000, "   1.00");
    amounts[3210] = "-1234567890.12";
    loadAmounts({"1"});
    loadAmounts(amounts);
    EXPECT_TRUE(hasRoomFor("-1,234,567,890.12"));
}

TEST_F(Amounts, theFirstLoadCountsThemAllToo)
{
    std::vector<const char *> amounts(5000, "   1.00");
    amounts[3210] = "-1234567890.12";
    loadAmounts(amounts);
    EXPECT_TRUE(hasRoomFor("-1,234,567,890.12"));
}

TEST_F(Amounts, whatItsFormatMakesOfThemHasRoom)
{
    const struct {
        const char *format;
        const char *amount;
        const char *shown;
    } rows[] = {
        {Money, "999999999.995", "1,000,000,000.00"},
        {"￥,0.0000;-￥,0.0000", "-123456789.5", "-￥123,456,789.5000"},
        {"0.00元;(0.00)元", "-123456789", "(123456789.00)元"},
        {"0.##;-0.##", "123456789.25", "123456789.25"},
        {"0.00;-0.00;没有发生任何费用", "0.00", "没有发生任何费用"},
        {"", "  123456789012.3456 ", "123456789012.3456"},
        {Money, "1.25e12", "1,250,000,000,000.00"},
        {Money, "0000000001.25", "1.25"},
        {Money, "88888888888888888888888888888", "8.88888888888889E28"},
    };
    for (const auto &row : rows) {
        list.setColumns(patientColumns());
        setFormat(row.format);
        loadAmounts({"1"});
        loadAmounts({"1", row.amount});
        EXPECT_EQ(list.model()->data(at(1, Fee), Qt::AccessibleTextRole).toString().toStdString(), row.shown);
        EXPECT_TRUE(hasRoomFor(row.shown)) << row.shown;
    }
}

TEST_F(Amounts, textsThatAreNoneWidenNothing)
{
    loadAmounts({"1"});
    const int fitted = width();
    loadAmounts({"abc abc abc abc abc abc abc", "", "  ", "-", ".", "+.", "1.2.3.4.5.6.7.8.9.10.11.12", nullptr});
    EXPECT_EQ(width(), fitted);
}

TEST_F(Amounts, theWidthThatAClerkChoseStays)
{
    loadAmounts({"1.00"});
    dragTo(50);
    ASSERT_EQ(width(), 50);
    loadAmounts({"123456789012.34"});
    EXPECT_EQ(width(), 50);
}

TEST_F(Amounts, anAmountThatComesByItselfHasRoom)
{
    loadAmounts({"1.00"});
    list.node(0).setValue(Fee, QStringLiteral("123456789012.34"));
    EXPECT_TRUE(hasRoomFor("123,456,789,012.34"));
}

TEST_F(Amounts, soHasASumBelow)
{
    loadAmounts({"1.00"});
    const int name = list.header()->sectionSize(Name);
    list.setFooterVisible(true);
    list.setFooterText(Fee, QStringLiteral("123,456,789,012.34"));
    list.setFooterText(Name, QStringLiteral("共 123,456,789,012.34 人次，一个很长的说明"));
    EXPECT_TRUE(hasRoomFor("123,456,789,012.34"));
    EXPECT_EQ(list.header()->sectionSize(Name), name) << "words may be cut";
}

// ---- too little room

TEST_F(Amounts, withoutRoomCrossesAreShown)
{
    loadAmounts({"1.00", "1234567.89", "####", "-1234567.89"});
    dragTo(list.fontMetrics().horizontalAdvance(QStringLiteral("1,234,567.8")));
    EXPECT_EQ(cellPicture(1), cellPicture(2)) << "no part of the figure";
    EXPECT_EQ(cellPicture(3), cellPicture(2));
    EXPECT_EQ(hints::over(*list.viewport(), middleOf(1, Fee)), "1,234,567.89");
    EXPECT_EQ(list.model()->data(at(1, Fee), Qt::AccessibleTextRole).toString(), QStringLiteral("1,234,567.89"));
    list.setCurrentIndex(at(1, Fee));
    key(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("1,234,567.89"));
}

TEST_F(Amounts, whatFitsIsShownAtTheRight)
{
    loadAmounts({"1.00", "7.00"});
    dragTo(200);
    EXPECT_NE(cellPicture(1), cellPicture(0));
    const QImage picture = cellPicture(1).scaled(list.visualRect(at(1, Fee)).adjusted(1, 1, -2, -2).size());
    const QRgb background = picture.pixel(1, 1);
    for (int x = 0; x < picture.width() / 2; ++x)
        for (int y = 0; y < picture.height(); ++y)
            ASSERT_EQ(picture.pixel(x, y), background) << "the left half is empty";
}

TEST_F(Amounts, aSumWithoutRoomIsCrossesToo)
{
    loadAmounts({"1.00"});
    list.setFooterVisible(true);
    dragTo(60);
    const auto picture = [&](const char *text) {
        list.setFooterText(Fee, QString::fromUtf8(text));
        QCoreApplication::processEvents();
        return list.grab(QRect(0, list.viewport()->geometry().bottom() + 1, list.width(), 20)).toImage();
    };
    const QImage crosses = picture("####");
    EXPECT_EQ(picture("123,456,789,012.34"), crosses);
    EXPECT_NE(picture("12.34"), crosses);
    (void)picture("123,456,789,012.34");
    QWidget *footer = list.childAt(list.viewport()->geometry().bottomLeft() + QPoint(5, 8));
    ASSERT_NE(footer, nullptr);
    EXPECT_EQ(hints::over(*footer, {list.visualRect(at(0, Fee)).center().x(), 5}), "123,456,789,012.34");
    EXPECT_EQ(hints::over(*footer, {list.visualRect(at(0, Name)).center().x(), 5}), "");
}

TEST_F(Amounts, aHintShowsDataAsItIsWritten)
{
    const std::string name = "<img src=\"x.png\">" + std::string(9000, 'x');
    load(packetOf({{"001", name.c_str(), "1岁", "1", "True", "1"}}));
    const std::string hint = hints::over(*list.viewport(), middleOf(0, Name));
    EXPECT_EQ(hint.find("<img"), std::string::npos);
    EXPECT_NE(hint.find("&lt;img"), std::string::npos);
    EXPECT_LT(hint.size(), 8000U);
}

// ---- typing

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
