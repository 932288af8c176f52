// SPDX-License-Identifier: MIT
// Whatever a field holds, all of it is on the paper, and the boxes for signatures are as high as ever.
#include "report/document.h"
#include "report/output/spreadsheet.h"
#include "report/template/templateerror.h"
#include "report/template/templatereader.h"

#include "host/clientdataset.h"
#include "tests/report/samplepaper.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <optional>

namespace {

using namespace report;

/// A text in which every stretch differs from its neighbours, out of few characters, which are measured once.
QString ofLength(int count)
{
    constexpr char16_t first = 0x4E00;
    constexpr int characters = 61;
    QString text;
    for (int at = 0; at < count; ++at)
        text += QChar(static_cast<char16_t>(first + (at * 7 + at / characters) % characters));
    return text;
}

QString withoutBlanks(QString text)
{
    return text.remove(u' ').remove(u'\n');
}

bool mentions(const TextItem &item, const QString &name)
{
    return std::ranges::any_of(item.text.pieces, [&name](const PatternPiece &piece) {
        return piece.hasExpression && piece.expression.name.compare(name, Qt::CaseInsensitive) == 0;
    });
}

/// What is printed of every box of the template, all pages together.
std::map<const TextItem *, QString> printedTexts(const Document &document)
{
    std::map<const TextItem *, QString> printed;
    for (int index = 0; index < document.pageCount(); ++index) {
        for (const TextBox &text : document.page(index).texts) {
            for (const TextLine &line : text.lines)
                printed[text.item] += withoutBlanks(line.text);
        }
    }
    return printed;
}

void expectWhole(const Document &document, const QString &field, const QString &value)
{
    int bound = 0;
    for (const auto &[item, printed] : printedTexts(document)) {
        if (!mentions(*item, field))
            continue;
        ++bound;
        EXPECT_TRUE(printed.contains(withoutBlanks(value)))
            << field.toStdString() << " of " << value.size() << ", printed " << printed.size();
    }
    EXPECT_GT(bound, value.isEmpty() ? -1 : 0) << field.toStdString();
}

bool isForSignature(const TextItem &item)
{
    if (!item.text.isLiteral() || item.text.isEmpty() || item.box.height < 2000)
        return false;
    const QString caption = item.text.pieces.front().literal;
    return caption.contains(QStringLiteral("（盖章）")) || caption.contains(QStringLiteral("签字"));
}

/// A stroke of any width along the whole side, which is horizontal or vertical.
bool isDrawn(const Page &page, const Stroke &side)
{
    return std::ranges::any_of(page.strokes, [&side](const Stroke &stroke) {
        if (side.top == side.bottom)
            return stroke.top == side.top && stroke.bottom == side.top && stroke.left <= side.left
                && stroke.right >= side.right;
        return stroke.left == side.left && stroke.right == side.left && stroke.top <= side.top
            && stroke.bottom >= side.bottom;
    });
}

/// Boxes for signatures stand side by side on one page, in full size and with all their sides.
void expectSignatures(const Document &document, int wanted)
{
    int found = 0;
    int lastPage = -1;
    for (int index = 0; index < document.pageCount(); ++index) {
        const Page page = document.page(index);
        for (const TextBox &text : page.texts) {
            if (!isForSignature(*text.item))
                continue;
            ++found;
            EXPECT_TRUE(lastPage < 0 || lastPage == index);
            lastPage = index;
            const Rect &box = text.box;
            EXPECT_EQ(box.height, text.item->box.height);
            EXPECT_TRUE(isDrawn(page, {box.left, box.top, box.right(), box.top, 0}));
            EXPECT_TRUE(isDrawn(page, {box.left, box.bottom(), box.right(), box.bottom(), 0}));
            EXPECT_TRUE(isDrawn(page, {box.left, box.top, box.left, box.bottom(), 0}));
            EXPECT_TRUE(isDrawn(page, {box.right(), box.top, box.right(), box.bottom(), 0}));
        }
    }
    EXPECT_EQ(found, wanted);
}

/// Nothing hangs over the margins, out of its box or over another text.
void expectInPlace(const Document &document)
{
    const Template &source = document.source();
    for (int index = 0; index < document.pageCount(); ++index) {
        const Page page = document.page(index);
        std::vector<const TextBox *> before;
        for (const TextBox &text : page.texts) {
            EXPECT_LE(text.box.bottom(), source.pageHeight - source.marginBottom);
            if (text.lines.empty())
                continue;
            EXPECT_GE(text.lines.front().baseline, text.box.top);
            EXPECT_LE(text.lines.back().baseline, text.box.bottom());
            for (const TextBox *other : before) {
                const bool apart = other->box.bottom() <= text.box.top || text.box.bottom() <= other->box.top
                    || other->box.right() <= text.box.left || text.box.right() <= other->box.left;
                EXPECT_TRUE(apart) << other->text.left(20).toStdString() << " / " << text.text.left(20).toStdString();
            }
            before.push_back(&text);
        }
    }
}

void expectPageNumbers(const Document &document)
{
    for (int index = 0; index < document.pageCount(); ++index) {
        const QString wanted = QStringLiteral("第 %1 页　共 %2 页").arg(index + 1).arg(document.pageCount());
        const Page page = document.page(index);
        EXPECT_TRUE(std::ranges::any_of(page.texts, [&wanted](const TextBox &text) {
            return text.lines.size() == 1 && text.lines.front().text.endsWith(wanted);
        })) << wanted.toStdString();
    }
}

/// One patient's data with the texts of some fields replaced.
using Values = std::map<QString, QString>;

void replaceIn(TClientDataSet &dataSet, const Values &values)
{
    const automation::DataPacketPtr packet = dataSet.packet();
    samplepaper::Rows rows;
    for (int row = 0; row < packet->rowCount(); ++row) {
        rows.emplace_back();
        for (int column = 0; column < packet->columnCount(); ++column) {
            const auto value = values.find(packet->columnNames()[static_cast<std::size_t>(column)]);
            rows.back().push_back(value != values.end() ? value->second.toStdString()
                                                        : std::string(packet->text(row, column)));
        }
    }
    samplepaper::fill(dataSet, packet->columnNames(), rows);
}

struct Paper {
    const char *test;
    const char *name;
    bool isList;
    int signatures;
    const char *texts; ///< fields that are text
    const char *variables;
    const char *amounts;
};

void PrintTo(const Paper &paper, std::ostream *out)
{
    *out << paper.test;
}

class Completeness : public testing::TestWithParam<Paper> {
protected:
    static Document make(const Values &values)
    {
        const Paper &paper = GetParam();
        TClientDataSet rows;
        TClientDataSet header;
        std::vector<RowSource> headers;
        if (paper.isList) {
            samplepaper::fillFeeHeader(header);
            samplepaper::fillFeeItems(rows, 5, 3);
            replaceIn(header, values);
            headers.emplace_back(header);
        } else {
            samplepaper::fillSettlement(rows);
        }
        replaceIn(rows, values);
        const auto answer = [values, isList = paper.isList](const QString &name, QVariant &value) {
            if (const auto known = values.find(name); known != values.end())
                value = known->second;
            else if (isList)
                samplepaper::answerUser(name, value);
            else
                samplepaper::answerFees(name, value);
        };
        return Document(report::loadTemplate(QStringLiteral(TEMPLATES "/") + QString::fromUtf8(paper.name)),
                        RowSource(rows), std::move(headers), answer);
    }
    static void expectComplete(Document &document, const Values &values)
    {
        ASSERT_TRUE(document.finish());
        for (const auto &[field, value] : values)
            expectWhole(document, field, value);
        expectSignatures(document, GetParam().signatures);
        expectInPlace(document);
        expectPageNumbers(document);
    }
    static QStringList list(const char *names) { return QString::fromLatin1(names).split(u',', Qt::SkipEmptyParts); }
};

TEST_P(Completeness, EveryCharacterOfEveryTextIsPrinted)
{
    for (const QString &field : list(GetParam().texts) + list(GetParam().variables)) {
        for (const int length : {0, 1, 15, 60, 200, 700}) {
            const Values values{{field, ofLength(length)}};
            Document document = make(values);
            SCOPED_TRACE(QStringLiteral("%1, %2 characters").arg(field).arg(length).toStdString());
            expectComplete(document, values);
        }
    }
}

TEST_P(Completeness, SoItIsWhenAllOfThemAreLong)
{
    for (const int length : {8, 25, 60, 150}) {
        Values values;
        for (const QString &field : list(GetParam().texts))
            values[field] = ofLength(length);
        Document document = make(values);
        SCOPED_TRACE(length);
        expectComplete(document, values);
    }
}

/// A text that stands on every page can be too long for any.
TEST_P(Completeness, VeryLongTextsArePrintedWholeOrReported)
{
    for (const QString &field : list(GetParam().texts)) {
        const Values values{{field, ofLength(2500)}};
        Document document = make(values);
        SCOPED_TRACE(field.toStdString());
        try {
            expectComplete(document, values);
        } catch (const TemplateError &error) {
            EXPECT_TRUE(QString::fromUtf8(error.what()).contains(QStringLiteral("一页放不下"))) << error.what();
            EXPECT_TRUE(field == QStringLiteral("PatientName") || field == QStringLiteral("PatientNo")
                        || field == QStringLiteral("HospitalName") || field == QStringLiteral("CoopMedCode")
                        || field == QStringLiteral("YyDate"))
                << field.toStdString();
        }
    }
}

TEST_P(Completeness, AmountsAsLargeAsTheDatabaseHoldsThemAreWholeOrHidden)
{
    for (const QString &field : list(GetParam().amounts)) {
        Document document = make({{field, QStringLiteral("9999999999999.99")}});
        ASSERT_TRUE(document.finish());
        for (const auto &[item, printed] : printedTexts(document)) {
            if (!mentions(*item, field) || item->text.pieces.front().expression.inCapitals)
                continue;
            EXPECT_TRUE(printed.contains(QStringLiteral("9,999,999,999,999.99")) || printed.count(u'#') >= 4
                        || item->text.pieces.front().expression.kind != Expression::Kind::Name)
                << field.toStdString() << ": " << printed.toStdString();
        }
        expectSignatures(document, GetParam().signatures);
        expectInPlace(document);
    }
}

constexpr const char *SettlementTexts = "CoopMedCode,HospitalName,HouseHolder,PatientName,Sex,BirthDay,RelationName,"
                                        "Address,InDate,OutDate,DayCount,PatientNo,IllName,InHosCount";
constexpr const char *ListTexts = "HospitalName,CoopMedCode,PatientName,Sex,Age,PatientNo,HouseHolder,InDate,"
                                  "InHosCount,DoctorName,Address,ItemName,Gg,Unit,YyDate,IfPass";

const std::string SheetTexts = std::string(SettlementTexts) + ",HomeProperty";
const std::string FormTexts = std::string(SettlementTexts) + ",LimitDef,ExpressionsName,PrintInfo";

INSTANTIATE_TEST_SUITE_P(Papers, Completeness,
                         testing::Values(Paper{"sheet", "结算单.rmf", false, 3, SheetTexts.c_str(), "FTYPE01,FTYPE12",
                                               "Fee,CanFreeFee,FreeFee,MzFee,HosFee"},
                                         Paper{"form", "住院审批表.rmf", false, 3, FormTexts.c_str(), "FTYPE01,FTYPE12",
                                               "Fee,CanFreeFee,FreeFee,MzFee,HosFee,TSumTotalFee,TSumFree"},
                                         Paper{"daily", "费用清单.rmf", true, 0, ListTexts, "UserName", "Price"},
                                         Paper{"total", "费用清单(总).rmf", true, 0, ListTexts, "UserName", "Price"}),
                         [](const auto &tested) { return std::string(tested.param.test); });

/// The calculation of the approval form is as long as the scheme's procedure makes it.
TEST(ApprovalForm, PrintsACalculationOfAnyLength)
{
    int pages = 0;
    for (const int length : {0, 100, 300, 390, 450, 600, 760, 1000, 2000, 5000, 20000}) {
        SCOPED_TRACE(length);
        TClientDataSet rows;
        samplepaper::fillSettlement(rows);
        const Values values{{QStringLiteral("PrintInfo"), ofLength(length)}};
        replaceIn(rows, values);
        Document document(loadTemplate(QStringLiteral(TEMPLATES "/住院审批表.rmf")), RowSource(rows), {},
                          samplepaper::answerFees);
        ASSERT_TRUE(document.finish());
        expectWhole(document, QStringLiteral("PrintInfo"), ofLength(length));
        expectSignatures(document, 3);
        expectInPlace(document);
        expectPageNumbers(document);
        EXPECT_GE(document.pageCount(), pages);
        pages = document.pageCount();
        if (length <= 450) {
            EXPECT_EQ(pages, 1);
        }
    }
    EXPECT_GT(pages, 5);
}

TEST(ApprovalForm, IsWholeInASpreadsheetToo)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.xlsx"));
    TClientDataSet rows;
    samplepaper::fillSettlement(rows);
    replaceIn(rows, {{QStringLiteral("PrintInfo"), ofLength(20000)}, {QStringLiteral("Address"), ofLength(700)}});
    const Document document(loadTemplate(QStringLiteral(TEMPLATES "/住院审批表.rmf")), RowSource(rows), {},
                            samplepaper::answerFees);
    ASSERT_TRUE(writeSpreadsheet(document, path));
    const auto part = [&path](const char *name) {
        QProcess process;
        process.start(QStringLiteral(UNZIP), {QStringLiteral("-p"), path, QString::fromLatin1(name)});
        process.waitForFinished(-1);
        return QString::fromUtf8(process.readAllStandardOutput());
    };
    const QString texts = part("xl/sharedStrings.xml");
    EXPECT_TRUE(texts.contains(u'>' + ofLength(20000) + u'<'));
    EXPECT_TRUE(texts.contains(u'>' + ofLength(700) + u'<'));
    static const QRegularExpression height(QStringLiteral(" ht=\"([0-9.]+)\""));
    int rowsSeen = 0;
    for (const auto &match : height.globalMatch(part("xl/worksheets/sheet1.xml"))) {
        EXPECT_LE(match.captured(1).toDouble(), 409);
        ++rowsSeen;
    }
    EXPECT_GT(rowsSeen, 10);
}

struct BandCase {
    const char *band;
    const char *overflow;
};

void PrintTo(const BandCase &row, std::ostream *out)
{
    *out << row.band << ' ' << row.overflow;
}

class AnyBand : public testing::TestWithParam<BandCase> { };

/// Two texts side by side, the second in a box over two rows, and a box that must stay whole below.
TEST_P(AnyBand, IsPrintedWholeOrReported)
{
    const QByteArray band = GetParam().band;
    const QByteArray overflow = GetParam().overflow;
    const QByteArray content = "<table columns='30,40,*' rowHeight='8' frame='0.4' " + overflow
        + "><row><cell>说明</cell><cell>[Long]</cell><cell rows='2'>[Long]</cell></row>"
          "<row><cell>又</cell><cell>[Short]</cell></row>"
          "<row height='25'><cell>签字</cell><cell>签字甲（盖章）</cell><cell/></row></table>";
    QByteArray bands = "<" + band + ">" + content + "</" + band + ">";
    if (band != "detail")
        bands += "<detail><text x='0' y='0' w='50' h='9'>[Short]</text></detail>";
    for (const int length : {0, 5, 30, 120, 400, 900, 3000}) {
        SCOPED_TRACE(length);
        TClientDataSet rows;
        const std::string text = ofLength(length).toStdString();
        samplepaper::fill(rows, samplepaper::names("Long,Short,Day"),
                          {{text, "短", "一"}, {text, "短", "一"}, {text, "短", "二"}});
        Document document(parseTemplate("<report paper='A5' margins='10,10,10,10' group='Day'>" + bands + "</report>",
                                        QStringLiteral("单.rmf")),
                          RowSource(rows), {}, {});
        try {
            ASSERT_TRUE(document.finish());
        } catch (const TemplateError &error) {
            EXPECT_TRUE(QString::fromUtf8(error.what()).contains(QStringLiteral("一页放不下"))) << error.what();
            EXPECT_GE(length, 400);
            EXPECT_TRUE(band == "pageHeader" || band == "columnHeader" || band == "groupHeader" || band == "pageFooter")
                << band.toStdString();
            continue;
        }
        expectWhole(document, QStringLiteral("Long"), ofLength(length));
        expectInPlace(document);
        int signatures = 0;
        for (int index = 0; index < document.pageCount(); ++index) {
            for (const TextBox &box : document.page(index).texts) {
                if (!isForSignature(*box.item))
                    continue;
                ++signatures;
                EXPECT_EQ(box.box.height, 2500);
            }
        }
        EXPECT_GE(signatures, 2);
    }
}

INSTANTIATE_TEST_SUITE_P(All, AnyBand,
                         testing::Values(BandCase{"title", ""}, BandCase{"title", "overflow='grow'"},
                                         BandCase{"pageHeader", ""}, BandCase{"columnHeader", ""},
                                         BandCase{"groupHeader", ""}, BandCase{"detail", ""},
                                         BandCase{"detail", "overflow='grow'"}, BandCase{"groupFooter", ""},
                                         BandCase{"footer", ""}, BandCase{"footer", "overflow='grow'"},
                                         BandCase{"pageFooter", ""}, BandCase{"pageFooter", "overflow='grow'"}));

} // namespace
