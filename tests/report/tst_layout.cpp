// SPDX-License-Identifier: MIT
// Where things stand on the pages.
#include "report/document.h"
#include "report/template/templateerror.h"
#include "report/template/templatereader.h"

#include "host/clientdataset.h"
#include "tests/report/pagedump.h"
#include "tests/report/samplepaper.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace report;

/// A page with 190 mm between its margins.
Document makeDocument(const QByteArray &bands, const samplepaper::Rows &rows,
                      const QByteArray &attributes = "columns='20,30,*'", GetValue answer = {})
{
    const QByteArray xml =
        "<report paper='A5' margins='10,10,10,10' size='10' " + attributes + ">\n" + bands + "</report>";
    TClientDataSet list;
    samplepaper::fill(list, samplepaper::names("Name,Fee,Day"), rows);
    return Document(parseTemplate(xml, QStringLiteral("单.rmf")), RowSource(list), {}, std::move(answer));
}

samplepaper::Rows rows(int count)
{
    samplepaper::Rows result;
    for (int at = 1; at <= count; ++at)
        result.push_back({"行" + std::to_string(at), std::to_string(at) + ".5", "日" + std::to_string((at + 2) / 3)});
    return result;
}

constexpr const char *Title = "<title height='30'><text x='0' y='0' w='50' h='8'>题</text></title>";
constexpr const char *Heading = "<columnHeader height='10'><text x='0' y='0' w='50' h='8'>头</text></columnHeader>";
constexpr const char *Row40 = "<detail height='40'><text x='0' y='0' w='50' h='8'>[Name]</text></detail>";
constexpr const char *Total = "<footer height='20'><text x='0' y='0' w='50' h='8'>共[Count()]</text></footer>";
constexpr const char *Foot =
    "<pageFooter height='10'><text x='0' y='0' w='50' h='8'>[Page]/[Pages]</text></pageFooter>";

QByteArray list(std::initializer_list<const char *> bands)
{
    QByteArray result;
    for (const char *band : bands)
        result += band;
    return result;
}

TEST(Layout, PlacesEverythingOfABoxedForm)
{
    Document document =
        makeDocument("<title><table columns='20,30' rowHeight='8' frame='0.5'>"
                     "<row><cell align='center' fill='#EEEEEE'>姓名</cell><cell>[Name]</cell></row>"
                     "<row><cell rows='2' align='center'>费用<br/>合计</cell><cell valign='top'>一二三</cell></row>"
                     "<row><cell align='right' valign='bottom'>元</cell></row></table>"
                     "<line x1='0' y1='30' x2='50' y2='30'/></title>",
                     {{"欧阳小梅", "1", ""}});
    ASSERT_TRUE(document.finish());
    ASSERT_EQ(document.pageCount(), 1);
    EXPECT_EQ(pagedump::everything(document.page(0)), R"(fill 1000,1000 2000x800 #eeeeee
line 1000,1000-6000,1000 w20
line 1000,1000-6000,1000 w50
line 1000,1800-6000,1800 w20
line 3000,2600-6000,2600 w20
line 1000,3400-6000,3400 w20
line 1000,3400-6000,3400 w50
line 1000,4000-6000,4000 w20
line 1000,1000-1000,3400 w20
line 1000,1000-1000,3400 w50
line 3000,1000-3000,3400 w20
line 6000,1000-6000,3400 w20
line 6000,1000-6000,3400 w50
text 1000,1000 2000x800 s100 |1647,1534 姓名|
text 3000,1000 3000x800 s100 |3100,1534 欧阳小梅|
text 1000,1800 2000x1600 s100 |1647,2505 费用| |1647,2964 合计|
text 3000,1800 3000x800 s100 |3100,2224 一二三|
text 3000,2600 3000x800 s100 |5547,3305 元|
)");
}

TEST(Layout, RowsBreakBetweenPagesAndHeadingsStandAgain)
{
    // 190 - 10 for the page's footer: three rows below the title and the heading, four on the others.
    Document document = makeDocument(list({Title, Heading, Row40, Foot}), rows(8));
    EXPECT_EQ(pagedump::texts(document),
              "10 题, 40 头, 50 行1, 90 行2, 130 行3, 190 1/3\n"
              "10 头, 20 行4, 60 行5, 100 行6, 140 行7, 190 2/3\n"
              "10 头, 20 行8, 190 3/3\n");
}

TEST(Layout, ARowThatFitsExactlyStays)
{
    const QByteArray exact = "<detail height='95'><text x='0' y='0' w='50' h='8'>[Name]</text></detail>";
    const QByteArray over = "<detail height='95.01'><text x='0' y='0' w='50' h='8'>[Name]</text></detail>";
    Document two = makeDocument(exact, rows(2));
    EXPECT_EQ(pagedump::texts(two), "10 行1, 105 行2\n");
    Document one = makeDocument(over, rows(2));
    EXPECT_EQ(pagedump::texts(one), "10 行1\n10 行2\n");
}

TEST(Layout, TheFooterTakesTheLastRowAlong)
{
    Document document = makeDocument(list({Row40, Total}), rows(4));
    EXPECT_EQ(pagedump::texts(document), "10 行1, 50 行2, 90 行3, 130 行4, 170 共4\n");
    Document next = makeDocument(list({Heading, Row40, Total, "<pageFooter height='10'/>"}), rows(4));
    EXPECT_EQ(pagedump::texts(next), "10 头, 20 行1, 60 行2, 100 行3\n10 头, 20 行4, 60 共4\n");
}

TEST(Layout, AnEmptyListStillHasItsHeadingAndFooter)
{
    Document document = makeDocument(list({Title, Heading, Row40, Total, Foot}), {});
    EXPECT_EQ(pagedump::texts(document), "10 题, 40 头, 50 共0, 190 1/1\n");
}

TEST(Layout, PageHeadersMaySkipTheFirstPage)
{
    const QByteArray header =
        "<pageHeader firstPage='no' height='5'><text x='0' y='0' w='50' h='5'>[Name]起</text></pageHeader>";
    Document document = makeDocument(header + Title + Row40, rows(5));
    EXPECT_EQ(pagedump::texts(document), "10 题, 40 行1, 80 行2, 120 行3, 160 行4\n10 行5起, 15 行5\n");
}

constexpr const char *GroupHeader =
    "<groupHeader height='10'><text x='0' y='0' w='50' h='8'>[Day]</text></groupHeader>";
constexpr const char *GroupFooter =
    "<groupFooter height='10'><text x='0' y='0' w='50' h='8'>[Day]共[Count()]，[Sum(Fee)|0.00]</text></groupFooter>";

TEST(Layout, GroupsHaveHeadingsAgainAfterAPageBreakAndKeepTheirFooter)
{
    Document document = makeDocument(list({Heading, GroupHeader, Row40, GroupFooter}), rows(5), "group='day'");
    EXPECT_EQ(pagedump::texts(document),
              "10 头, 20 日1, 30 行1, 70 行2, 110 行3, 150 日1共3，7.50\n"
              "10 头, 20 日2, 30 行4, 70 行5, 110 日2共2，10.00\n");
    // The third row would fit the first page, but not with the footer of its group.
    Document longer = makeDocument(list({Title, Heading, GroupHeader, Row40, GroupFooter, "<pageFooter height='15'/>"}),
                                   rows(5), "group='day'");
    EXPECT_EQ(pagedump::texts(longer),
              "10 题, 40 头, 50 日1, 60 行1, 100 行2\n"
              "10 头, 20 日1, 30 行3, 70 日1共3，7.50, 80 日2, 90 行4, 130 行5, 170 日2共2，10.00\n");
}

TEST(Layout, PageFootersSumTheirPage)
{
    const QByteArray footer =
        "<pageFooter height='10'><text x='0' y='0' w='50' h='8'>[Count()]项[Sum(Fee)|0.0]</text></pageFooter>";
    Document document = makeDocument(Row40 + footer, rows(6));
    EXPECT_EQ(pagedump::texts(document), "10 行1, 50 行2, 90 行3, 130 行4, 190 4项12.0\n10 行5, 50 行6, 190 2项12.0\n");
}

TEST(Layout, ARowGrowsWithItsTextAndMovesWhatIsBelow)
{
    // Ten characters of 3.53 mm: five stand in the 18 mm inside the second column's padding.
    Document document = makeDocument("<detail><table rowHeight='6' columns='20,20'><row><cell>[Row]</cell>"
                                     "<cell overflow='grow'>[Name]</cell></row></table></detail>"
                                         + QByteArray(Total),
                                     {{"一二三四五六七八九十", "0", ""}, {"短", "0", ""}});
    ASSERT_TRUE(document.finish());
    EXPECT_EQ(pagedump::everything(document.page(0)), R"(line 1000,1000-5000,1000 w20
line 1000,2038-5000,2038 w20
line 1000,2638-5000,2638 w20
line 1000,1000-1000,2638 w20
line 3000,1000-3000,2638 w20
line 5000,1000-5000,2638 w20
text 1000,1000 2000x1038 s100 |1100,1653 1|
text 3000,1000 2000x1038 s100 |3100,1424 一二三四五| |3100,1883 六七八九十|
text 1000,2038 2000x600 s100 |1100,2472 2|
text 3000,2038 2000x600 s100 |3100,2472 短|
text 1000,2638 5000x800 s100 |1000,3172 共2|
)");
}

TEST(Layout, ARowTooTallForAnyPageBeginsOnItsOwnAndGoesOnOnTheNext)
{
    std::string tall;
    for (int at = 0; at < 60; ++at)
        tall += "一二三四五";
    Document document =
        makeDocument("<detail><table rowHeight='6' columns='20'><row><cell overflow='grow'>[Name]</cell>"
                     "</row></table></detail>",
                     {{"前", "0", ""}, {tall, "0", ""}, {"后", "0", ""}});
    ASSERT_TRUE(document.finish());
    ASSERT_EQ(document.pageCount(), 3);
    const Page page = document.page(1);
    ASSERT_EQ(page.texts.size(), 1U);
    EXPECT_EQ(page.texts[0].box, (Rect{1000, 1000, 2000, 19000}));
    EXPECT_EQ(page.texts[0].lines.size(), 41U); // of 4.59 mm
    EXPECT_EQ(page.texts[0].lines.back().text, QStringLiteral("一二三四五"));
    EXPECT_EQ(page.strokes.back(), (Stroke{3000, 1000, 3000, 20000, 20}));
    EXPECT_EQ(page.strokes[1], (Stroke{1000, 20000, 3000, 20000, 20}));
    const Page last = document.page(2);
    ASSERT_EQ(last.texts.size(), 2U);
    EXPECT_EQ(last.texts[0].box, (Rect{1000, 1000, 2000, 8841}));
    EXPECT_EQ(last.texts[0].lines.size(), 19U);
    EXPECT_EQ(page.texts[0].text + last.texts[0].text, QString::fromStdString(tall));
    EXPECT_EQ(last.texts[1].text, QStringLiteral("后"));
    EXPECT_EQ(last.texts[1].box.top, 9841);
}

constexpr const char *Form = "<title><table columns='10,40,*' rowHeight='10' frame='0.5'>"
                             "<row><cell rows='2'>说<br/>明</cell><cell>名</cell><cell>[Name]</cell></row>"
                             "<row height='20'><cell>算</cell><cell overflow='grow' valign='top'>[Day]</cell></row>"
                             "<row height='40'><cell>签</cell><cell>甲</cell><cell>乙</cell></row>"
                             "</table></title>";

std::string repeated(const char *text, int count)
{
    std::string result;
    for (int at = 0; at < count; ++at)
        result += text;
    return result;
}

/// 78 mm beside the captions, 76 inside the padding: 21 characters of 10 points a line.
TEST(Layout, ATitleGoesOnOnTheNextPageAndKeepsBoxesWhole)
{
    Document document =
        makeDocument(list({Form, Foot}), {{"张", "1", repeated("一二三四五六七八九十甲", 21 * 60 / 11)}});
    ASSERT_TRUE(document.finish());
    ASSERT_EQ(document.pageCount(), 2);
    const Page first = document.page(0);
    const Page second = document.page(1);
    // The calculation fills the first page to its footer; frame and sides are closed there and begin again.
    EXPECT_EQ(first.texts.at(4).box, (Rect{6000, 2000, 7800, 17000}));
    EXPECT_EQ(first.texts.at(4).lines.size(), 36U);
    const auto has = [](const Page &page, const Stroke &wanted) {
        return std::find(page.strokes.begin(), page.strokes.end(), wanted) != page.strokes.end();
    };
    EXPECT_TRUE(has(first, {1000, 19000, 13800, 19000, 50}));
    EXPECT_TRUE(has(second, {1000, 1000, 13800, 1000, 50}));
    // Captions stand again, the rest of the calculation follows, and the row for signatures is as high as ever.
    EXPECT_EQ(second.texts.at(0).text, QStringLiteral("说\n明"));
    EXPECT_EQ(second.texts.at(1).text, QStringLiteral("算"));
    EXPECT_EQ(second.texts.at(2).lines.size(), 24U);
    for (const std::size_t at : {3U, 4U, 5U})
        EXPECT_EQ(second.texts.at(at).box.height, 4000);
    EXPECT_EQ(second.texts.back().text, QStringLiteral("2/2"));
}

TEST(Layout, AFormStaysOnOnePageWhileSmallerTypeCanKeepItThere)
{
    Document document =
        makeDocument(list({Form, Foot}), {{"张", "1", repeated("一二三四五六七八九十甲", 1 + 21 * 30 / 11)}});
    ASSERT_TRUE(document.finish());
    ASSERT_EQ(document.pageCount(), 1);
    EXPECT_LT(document.page(0).texts.at(4).font.size, 100);
    EXPECT_GE(document.page(0).texts.at(4).font.size, 75);
}

TEST(Layout, BlankRoomBelowATitleMakesNoPage)
{
    const QByteArray title = "<title height='100'><text x='0' y='0' w='50' h='8' overflow='grow'>[Name]</text></title>";
    Document document = makeDocument(title + Foot, {{repeated("一二三四五六七八九十", 50), "", ""}});
    ASSERT_TRUE(document.finish());
    ASSERT_EQ(document.pageCount(), 1);
    EXPECT_EQ(document.page(0).texts.at(0).lines.size(), 36U);
}

TEST(Layout, HeadingsAreNotLeftAloneBelowATitle)
{
    const QByteArray title = "<title height='150'><text x='0' y='0' w='50' h='8'>题</text></title>";
    Document document = makeDocument(title + Heading + Row40, rows(1));
    EXPECT_EQ(pagedump::texts(document), "10 题\n10 头, 20 行1\n");
}

TEST(Layout, AFooterOfThePageGrowsAndTakesItsRoomFromTheRows)
{
    const QByteArray footer = "<pageFooter height='10'><text x='0' y='0' w='30' h='10' overflow='grow'>[Name][Name]"
                              "</text></pageFooter>";
    Document document = makeDocument(
        Row40 + footer,
        {{"一二三四五六七八九十", "", ""}, {"短", "", ""}, {"短", "", ""}, {"短", "", ""}, {"短", "", ""}});
    EXPECT_EQ(pagedump::texts(document),
              "10 一二三四五六七八九十, 50 短, 90 短, 130 短, 185.03 一二三四五六七八/九十一二三四五六/七八九十\n"
              "10 短, 190 短短\n");
}

TEST(Layout, AFooterTallerThanThePageIsReportedEvenWhereNothingElseStands)
{
    Document document = makeDocument("<pageFooter><text x='0' y='0' w='30' h='8'>[Name]</text></pageFooter>",
                                     {{repeated("一二三四五", 200), "", ""}});
    EXPECT_THROW((void)document.finish(), TemplateError);
}

TEST(Layout, WhatStandsOnEveryPageIsReportedWhenItLeavesNoRoom)
{
    for (const char *band : {"pageHeader", "columnHeader", "pageFooter", "groupHeader"}) {
        const QByteArray xml =
            "<" + QByteArray(band) + "><text x='0' y='0' w='30' h='8'>[Name]</text></" + band + ">\n" + Row40;
        Document document = makeDocument(xml, {{repeated("一二三四五", 200), "0", "日"}}, "group='day'");
        try {
            (void)document.finish();
            ADD_FAILURE() << band;
        } catch (const TemplateError &error) {
            EXPECT_TRUE(QString::fromUtf8(error.what()).contains(QStringLiteral("一页放不下"))) << error.what();
        }
    }
}

TEST(Layout, TextsThatDoNotFitEndInAnEllipsisOnlyWhereTheTemplateSaysSo)
{
    Document document = makeDocument(
        "<title><text x='0' y='0' w='18' h='6' overflow='clip'>一二三四五六</text>"
        "<text x='0' y='10' w='18' h='6'>一二三四五六</text>"
        "<text x='0' y='20' w='18' h='10' wrap='yes' overflow='clip'>一二三四五六七八九十甲乙</text></title>",
        {});
    EXPECT_EQ(pagedump::texts(document), "10 一二三四…, 20 一二三四五六, 30 一二三四五/六七八九…\n");
    EXPECT_EQ(document.page(0).texts.at(1).font.size, 85);
}

/// Ten points and 18 mm: five characters; seven and a half: six.
TEST(Layout, WordsShrinkThenWrapThenMakeTheirBoxHigher)
{
    Document document = makeDocument("<title><text x='0' y='0' w='18' h='9'>一二三四五六</text>"
                                     "<text x='0' y='20' w='18' h='9'>一二三四五六七八</text>"
                                     "<text x='0' y='40' w='18' h='9'>一二三四五六七八九十甲乙丙丁戊</text>"
                                     "<text x='0' y='60' w='18' h='6' size='6'>一二三四五六七八九十</text></title>",
                                     {});
    EXPECT_EQ(
        pagedump::texts(document),
        "10 一二三四五六, 30 一二三四五/六七八, 50 一二三四五六/七八九十甲乙/丙丁戊, 72.55 一二三四五六七八/九十\n");
    const Page page = document.page(0);
    EXPECT_EQ(page.texts.at(0).font.size, 85);
    EXPECT_EQ(page.texts.at(1).font.size, 95) << "two lines may be larger again";
    EXPECT_EQ(page.texts.at(2).box.height, 3 * 345 + 120) << "three lines of 7.5 points";
    EXPECT_EQ(page.texts.at(2).font.size, 80) << "and what the room around them allows";
    EXPECT_EQ(page.texts.at(3).font.size, 60) << "never larger than the template has it";
}

TEST(Layout, NumbersAmongWordsAreNotTornApart)
{
    Document document =
        makeDocument("<title><text x='0' y='0' w='22' h='6' overflow='grow'>合计[Fee|,0.00]元，[Name]</text>"
                     "<text x='0' y='30' w='4' h='6' overflow='grow'>计[Fee|0.00]，[Name]</text></title>",
                     {{"张三", "1234567.89", ""}});
    EXPECT_EQ(pagedump::texts(document), "10 合计/1,234,567.89/元，张三, 48.97 计/####/，张/三\n");
}

TEST(Layout, AUnitWithoutAValueIsNotPrinted)
{
    const char *const title = "<title><text x='0' y='0' w='30' h='6' hideEmpty='yes'>第 [Fee] 次</text>"
                              "<text x='0' y='10' w='30' h='6'>第 [Fee] 次</text>"
                              "<text x='0' y='20' w='30' h='6' hideEmpty='yes'>￥[Fee|0.00]</text>"
                              "<text x='0' y='30' w='30' h='6' hideEmpty='yes'>说明</text></title>";
    Document empty = makeDocument(title, {{"", "", ""}});
    EXPECT_EQ(pagedump::texts(empty), "10 , 20 第  次, 30 , 40 说明\n");
    Document filled = makeDocument(title, {{"", "2", ""}});
    EXPECT_EQ(pagedump::texts(filled), "10 第 2 次, 20 第 2 次, 30 ￥2.00, 40 说明\n");
}

TEST(Layout, DigitsOfAnAmountAreNeverCutOff)
{
    Document document = makeDocument("<title><text x='0' y='0' w='10' h='6'>[Fee|0.00]</text>"
                                     "<text x='0' y='10' w='3' h='6'>￥[Fee|0.00]</text></title>",
                                     {{"", "123456.78", ""}});
    (void)document.finish();
    const Page page = document.page(0);
    EXPECT_EQ(page.texts.at(0).lines.at(0).text, QStringLiteral("123456.78"));
    EXPECT_LT(page.texts.at(0).font.size, 100);
    const QString hidden = page.texts.at(1).lines.at(0).text;
    EXPECT_EQ(hidden, QString(hidden.size(), u'#'));
}

TEST(Layout, ShapedAndAddedUpWidthsAgree)
{
    const TemplatePtr form = parseTemplate("<report size='10'/>", QStringLiteral("单.rmf"));
    const Fonts fonts(form);
    for (const bool bold : {false, true}) {
        const FontStyle style{0, 100, bold};
        for (const QString &text :
             {QStringLiteral("腹腔镜下胆囊切除术（含T管引流）"), QStringLiteral("1,234.56"),
              QStringLiteral("office AVA fl"),
              QStringLiteral("ABCDEGHIJKLMNOPQRSTUVWXYZ abcdeghijklmnopqrstuvwxyz (0123456789) To Te AT"),
              QStringLiteral("℃～±“引”—…"), QStringLiteral("e\u0301")})
            EXPECT_NEAR(fonts.width(style, text), fonts.metrics(style).horizontalAdvance(text), 1)
                << text.toStdString();
    }
}

TEST(Layout, TheNumberOfPagesIsOpenUntilAllAreLaidOut)
{
    Document document = makeDocument(list({Row40, Foot}), rows(9));
    document.layOutNext();
    EXPECT_EQ(document.pageCount(), 1);
    EXPECT_FALSE(document.isFinished());
    EXPECT_EQ(document.permille(), 444);
    EXPECT_EQ(document.page(0).texts.back().text, QStringLiteral("1/…"));
    ASSERT_TRUE(document.finish());
    EXPECT_EQ(document.page(0).texts.back().text, QStringLiteral("1/3"));
}

TEST(Layout, StopsWhenToldToAndGoesOnLater)
{
    Document document = makeDocument(list({Row40}), rows(12));
    EXPECT_FALSE(document.finish([](int permille) { return permille < 500; }));
    EXPECT_EQ(document.pageCount(), 2);
    EXPECT_FALSE(document.endless([](int permille) { return permille < 500; }).has_value());
    EXPECT_TRUE(document.finish());
    EXPECT_EQ(document.pageCount(), 3);
    EXPECT_EQ(document.endless()->texts.size(), 12U);
}

TEST(Layout, ErrorsInValuesNameTheLineOfTheTemplate)
{
    Document document = makeDocument("<title>\n<text x='0' y='0' w='50' h='8'>[Name|0.00]</text></title>", rows(1));
    try {
        document.layOutNext();
        FAIL() << "accepted";
    } catch (const TemplateError &error) {
        EXPECT_STREQ(error.what(), "单.rmf, 第3行: “Name”的值“行1”不是有效的数值");
    }
    Document grouped = makeDocument("<detail height='5'/>", rows(1), "group='Ward'");
    try {
        grouped.layOutNext();
        FAIL() << "accepted";
    } catch (const TemplateError &error) {
        EXPECT_STREQ(error.what(), "单.rmf, 第1行: 清单中没有字段“Ward”");
    }
}

} // namespace
