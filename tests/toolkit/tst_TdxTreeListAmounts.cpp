// SPDX-License-Identifier: MIT
// Columns of amounts: as wide as their widest amount, never showing a part of one.
#include "tests/support/hints.h"
#include "tests/toolkit/amountslist.h"

#include <QClipboard>

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

TEST_F(Amounts, oneOfManyMayBeWiderForItsSignOrItsDecimals)
{
    const struct {
        const char *format;
        const char *first;
        const char *second;
        const char *shown;
    } rows[] = {
        {"", "         123456", "      123456.78", "123456.78"},
        {",0.00;-,0.00 (退回的费用)", "     1234567.00", "     -234567.00", "-234,567.00 (退回的费用)"},
        {"0.0", "         100.00", "         999.99", "1000.0"},
        {"0.00", "         100.00", "         999.99", "999.99"},
    };
    for (const auto &row : rows) {
        list.setColumns(patientColumns());
        setFormat(row.format);
        loadAmounts({"1"});
        loadAmounts({row.first, row.second});
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
