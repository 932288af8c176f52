// SPDX-License-Identifier: MIT
// Where things stand on the pages.
#include "report/document.h"
#include "report/template/templateerror.h"
#include "report/template/templatereader.h"

#include "host/clientdataset.h"
#include "tests/report/pagedump.h"
#include "tests/report/samplepaper.h"

#include <gtest/gtest.h>

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

TEST(Layout, ARowTooTallForAnyPageStandsAloneAndIsCut)
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
    EXPECT_EQ(page.texts[0].lines.back().text, QStringLiteral("一二三四…"));
    EXPECT_EQ(page.strokes.back(), (Stroke{3000, 1000, 3000, 20000, 20}));
    EXPECT_EQ(page.strokes[1], (Stroke{1000, 20000, 3000, 20000, 20}));
    EXPECT_EQ(document.page(2).texts.at(0).text, QStringLiteral("后"));
}

TEST(Layout, TextsThatDoNotFitEndInAnEllipsisOrShrink)
{
    Document document =
        makeDocument("<title><text x='0' y='0' w='18' h='6'>一二三四五六</text>"
                     "<text x='0' y='10' w='18' h='6' overflow='shrink'>一二三四五六</text>"
                     "<text x='0' y='20' w='18' h='10' wrap='yes'>一二三四五六七八九十甲乙</text></title>",
                     {});
    EXPECT_EQ(pagedump::texts(document), "10 一二三四…, 20 一二三四五六, 30 一二三四五/六七八九…\n");
    EXPECT_EQ(document.page(0).texts.at(1).font.size, 85);
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
