// SPDX-License-Identifier: MIT
// Templates: what is read, and what is refused, with the line.
#include "report/template/templateerror.h"
#include "report/template/templatereader.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace {

using namespace report;

TemplatePtr parse(const QByteArray &xml)
{
    return parseTemplate(xml, QStringLiteral("单.rmf"));
}

struct Bad {
    const char *name;
    const char *xml;
    const char *message;
};

void PrintTo(const Bad &bad, std::ostream *out)
{
    *out << bad.name;
}

class BadTemplate : public testing::TestWithParam<Bad> { };

TEST_P(BadTemplate, IsRefusedWithFileLineAndReason)
{
    try {
        (void)parse(GetParam().xml);
        FAIL() << "accepted";
    } catch (const TemplateError &error) {
        EXPECT_STREQ(error.what(), GetParam().message);
    }
}

const Bad BadTemplates[] = {
    {"empty", "", "单.rmf, 第1行: 文件不完整，有元素没有结束"},
    {"otherRoot", "<form/>", "单.rmf, 第1行: 最外层的元素应是 <report>，现为 <form>"},
    {"doctype", "<!DOCTYPE report [<!ENTITY a \"b\">]>\n<report/>", "单.rmf, 第1行: 模板中不能有 <!DOCTYPE>"},
    {"otherEncoding", "<report>\n<title>\xD7\xDC</title></report>",
     "单.rmf, 第2行: 不是 UTF-8 编码的文字，请把文件另存为 UTF-8 编码"},
    {"endsEarly", "<report>\n<title>\n", "单.rmf, 第3行: 文件不完整，有元素没有结束"},
    {"unknownBand", "<report>\n <header/>\n</report>", "单.rmf, 第2行: <report> 中不能有 <header>"},
    {"bandTwice", "<report>\n <title/>\n <title/>\n</report>", "单.rmf, 第3行: <title> 只能有一个"},
    {"strayText", "<report>\n <title>\n  合计\n </title></report>", "单.rmf, 第4行: 这里不能有文字“合计”"},
    {"unknownAttribute",
     "<report>\n <title>\n  <text x=\"0\" y=\"0\" w=\"9\" h=\"9\" algin=\"left\"/>\n </title></report>",
     "单.rmf, 第3行: <text> 没有名为 algin 的属性"},
    {"wrongChoice", "<report>\n <title align=\"middle\"/></report>",
     "单.rmf, 第2行: <title> 的属性 align 只能是 left、center、right"},
    {"wrongNumber", "<report><title>\n<text x=\"1,5\" y=\"0\" w=\"9\" h=\"9\"/></title></report>",
     "单.rmf, 第2行: <text> 的属性 x 应是 0 到 2000 之间的毫米数，现为“1,5”"},
    {"wrongFileName", "<report\n fileName='[Name'/>", "单.rmf, 第2行: <report> 的属性 fileName 不对：“[”没有对应的“]”"},
    {"notANumber", "<report><title>\n<text x=\"nan\" y=\"0\" w=\"9\" h=\"9\"/></title></report>",
     "单.rmf, 第2行: <text> 的属性 x 应是 0 到 2000 之间的毫米数，现为“nan”"},
    {"missingPlace", "<report><title>\n<text x=\"1\" w=\"9\" h=\"9\"/></title></report>",
     "单.rmf, 第2行: <text> 的属性 y 没有写"},
    {"fontTooSmall", "<report size=\"3\"/>", "单.rmf, 第1行: <report> 的属性 size 应是 4 到 200 之间的磅数，现为“3”"},
    {"colour", "<report><title>\n<text x=\"0\" y=\"0\" w=\"9\" h=\"9\" fill=\"grey\"/></title></report>",
     "单.rmf, 第2行: <text> 的属性 fill 应写成 #RRGGBB，现为“grey”"},
    {"pattern", "<report><title>\n<text x=\"0\" y=\"0\" w=\"9\" h=\"9\">[Fee</text></title></report>",
     "单.rmf, 第2行: “[”没有对应的“]”"},
    {"elementInText", "<report><title>\n<text x=\"0\" y=\"0\" w=\"9\" h=\"9\">合<b>计</b></text></title></report>",
     "单.rmf, 第2行: 文字中只能有 <br/>，不能有 <b>"},
    {"beyondTheMargin",
     "<report margins=\"10,10,10,10\"><title>\n<text x=\"0\" y=\"0\" w=\"191\" h=\"9\"/></title></report>",
     "单.rmf, 第2行: 超出纸张的右边距"},
    {"slantedLine", "<report><title>\n<line x1=\"0\" y1=\"0\" x2=\"9\" y2=\"1\"/></title></report>",
     "单.rmf, 第2行: <line> 的属性 y2 不对：线只能是水平或垂直的"},
    {"noColumns", "<report><title>\n<table rowHeight=\"5\"/></title></report>",
     "单.rmf, 第2行: <table> 的属性 columns 没有写"},
    {"columnsTooWide", "<report columns=\"100,81\"/>",
     "单.rmf, 第1行: <report> 的属性 columns 各栏之和超出可用的宽度（180 毫米）"},
    {"twoStars", "<report columns=\"*,*\"/>", "单.rmf, 第1行: <report> 的属性 columns 只能有一个“*”"},
    {"tooManyCells",
     "<report columns=\"9,9\"><detail><table "
     "rowHeight=\"5\"><row>\n<cell/><cell/>\n<cell/></row></table></detail></report>",
     "单.rmf, 第3行: 这一行放不下这个单元格，表格共 2 栏"},
    {"cellIntoTaken",
     "<report columns=\"9,9\"><detail><table rowHeight=\"5\">\n<row><cell/><cell rows=\"2\"/></row>\n<row><cell "
     "span=\"2\"/></row></table></detail></report>",
     "单.rmf, 第3行: 这一行放不下这个单元格，表格共 2 栏"},
    {"cellBelowTheTable",
     "<report columns=\"9\"><detail><table rowHeight=\"5\">\n<row><cell rows=\"2\"/></row></table></detail></report>",
     "单.rmf, 第2行: 单元格占 2 行，下面没有这么多行"},
    {"rowWithoutHeight", "<report columns=\"9\"><detail><table>\n<row/></table></detail></report>",
     "单.rmf, 第2行: <row> 的属性 height 没有写（<table> 也没有 rowHeight）"},
    {"rowWithoutCells", "<report columns=\"9\"><detail><table rowHeight=\"5\">\n<cell/></table></detail></report>",
     "单.rmf, 第2行: <table> 中只能有 <row>，不能有 <cell>"},
    {"bandTooLow", "<report>\n<title height=\"5\"><text x=\"0\" y=\"0\" w=\"9\" h=\"5.5\"/></title></report>",
     "单.rmf, 第2行: 内容高 5.5 毫米，超出版面带的高度"},
    {"noRoomForRow",
     "<report margins=\"10,10,10,10\">\n<pageHeader height=\"200\"/>\n<detail height=\"77.5\"/></report>",
     "单.rmf, 第3行: 一页放不下：可用高度 277 毫米，需要 277.5 毫米"},
    {"margins", "<report margins=\"1,2,3\"/>", "单.rmf, 第1行: <report> 的属性 margins 应是四个毫米数：左,上,右,下"},
    {"marginsTooWide", "<report margins=\"100,1,110,1\"/>",
     "单.rmf, 第1行: <report> 的属性 margins 没有给内容留下位置"},
    {"groupWithoutField", "<report>\n<detail/>\n<groupFooter/></report>",
     "单.rmf, 第3行: 有分组的版面带，<report> 却没有写 group=\"字段名\""},
    {"headerWithoutRows", "<report>\n<columnHeader/></report>", "单.rmf, 第2行: 没有 <detail>，这个版面带不会打印"},
};

INSTANTIATE_TEST_SUITE_P(Table, BadTemplate, testing::ValuesIn(BadTemplates),
                         [](const auto &tested) { return std::string(tested.param.name); });

TEST(TemplateReader, NamesTheLineOfBrokenXml)
{
    try {
        (void)parse("<report>\n<title></report>");
        FAIL() << "accepted";
    } catch (const TemplateError &error) {
        EXPECT_TRUE(std::string(error.what()).starts_with("单.rmf, 第2行: 不是正确的 XML：")) << error.what();
    }
}

TEST(TemplateReader, MissingFileNamesThePath)
{
    try {
        (void)loadTemplate(QStringLiteral("没有这个目录/结算单.rmf"));
        FAIL() << "accepted";
    } catch (const std::runtime_error &error) {
        EXPECT_TRUE(std::string(error.what()).starts_with("无法打开报表模板“没有这个目录/结算单.rmf”："))
            << error.what();
    }
}

TEST(TemplateReader, ReadsPaperAndStyles)
{
    const TemplatePtr form =
        parse("<report title='单' paper='A5' orientation='landscape' margins='10,11,12,13' size='9'"
              " font='A, B'><title bold='yes'>"
              "<text x='1' y='2' w='3' h='4' size='10.5' font='C'>甲</text></title></report>");
    EXPECT_EQ(form->title, QStringLiteral("单"));
    EXPECT_EQ(form->pageWidth, 21000);
    EXPECT_EQ(form->pageHeight, 14800);
    EXPECT_EQ(form->bodyWidth(), 18800);
    EXPECT_EQ(form->marginTop, 1100);
    EXPECT_EQ(form->marginBottom, 1300);
    const QStringList usual{QStringLiteral("Noto Sans CJK SC"), QStringLiteral("WenQuanYi Zen Hei")};
    EXPECT_EQ(form->families.at(0), (QStringList{QStringLiteral("A"), QStringLiteral("B")} + usual));
    EXPECT_EQ(form->families.at(1), (QStringList{QStringLiteral("C")} + usual));
    const TextItem &text = form->titleBand->texts.at(0);
    EXPECT_EQ(text.box, (Rect{100, 200, 300, 400}));
    EXPECT_EQ(text.font, (FontStyle{1, 105, true}));
    EXPECT_EQ(text.padding, 0);
    EXPECT_EQ(text.sides, NoSide);
    EXPECT_EQ(form->titleBand->height, 600);
}

TEST(TemplateReader, FilesAreNamedByTitleAndDateUnlessItSaysOtherwise)
{
    const auto shown = [](const QByteArray &xml) {
        QString text;
        const TemplatePtr form = parse(xml);
        for (const PatternPiece &piece : form->fileName.pieces)
            text += piece.literal + u'|' + piece.expression.name;
        return text.toStdString();
    };
    EXPECT_EQ(shown("<report title='清单[总]'/>"), "清单[总] |Today");
    EXPECT_EQ(shown("<report title='清单' fileName='单 [PatientName]'/>"), "单 |PatientName");
}

TEST(TemplateReader, LineBreaksOfTheFileAreNoText)
{
    const TemplatePtr form =
        parse("<report><title><text x='0' y='0' w='9' h='9'>  定点\n     医疗 机构 <br/>\n （盖章） "
              "</text></title></report>");
    EXPECT_EQ(form->titleBand->texts.at(0).text.pieces.at(0).literal, QStringLiteral("定点医疗 机构 \n（盖章）"));
}

TEST(TemplateReader, LaysCellsIntoTheTable)
{
    const TemplatePtr form =
        parse("<report margins='10,10,10,10'><title><table x='5' y='1' columns='10,20,*' frame='0.5'>"
              "<row height='6'><cell rows='2'>甲</cell><cell span='2'>乙</cell></row>"
              "<row height='4'><cell/><cell>[Fee|0.00]</cell></row></table></title></report>");
    const std::vector<TextItem> &texts = form->titleBand->texts;
    ASSERT_EQ(texts.size(), 5U);
    EXPECT_EQ(texts[0].box, (Rect{500, 100, 1000, 1000}));
    EXPECT_EQ(texts[1].box, (Rect{1500, 100, 17500, 600}));
    EXPECT_EQ(texts[2].box, (Rect{1500, 700, 2000, 400}));
    EXPECT_EQ(texts[3].box, (Rect{3500, 700, 15500, 400}));
    EXPECT_EQ(texts[3].horizontal, HorizontalAlign::Right);
    EXPECT_EQ(texts[3].sides, AllSides);
    EXPECT_EQ(texts[3].lineWidth, 20);
    EXPECT_EQ(texts[4].box, (Rect{500, 100, 18500, 1000}));
    EXPECT_EQ(texts[4].lineWidth, 50);
}

} // namespace
