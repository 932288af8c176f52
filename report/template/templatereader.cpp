// SPDX-License-Identifier: MIT
#include "report/template/templatereader.h"

#include "report/template/attributes.h"
#include "report/template/bandreader.h"
#include "report/template/templateerror.h"
#include "report/template/templatestyle.h"
#include "report/template/xmlsteps.h"

#include <QFile>
#include <QPageSize>
#include <QSizeF>
#include <QStringDecoder>
#include <QXmlStreamReader>

#include <array>
#include <cmath>
#include <stdexcept>

namespace report {

namespace {

constexpr qint64 LargestFile = 4LL * 1024 * 1024;
constexpr Unit UsualMargin = 1500;

struct PaperName {
    QStringView name;
    QPageSize::PageSizeId id;
};
constexpr PaperName Papers[] = {
    {u"A3", QPageSize::A3}, {u"A4", QPageSize::A4}, {u"A5", QPageSize::A5}, {u"B5", QPageSize::JisB5}};

struct BandName {
    QStringView name;
    std::optional<Band> Template::*band;
};
constexpr BandName Bands[] = {{u"title", &Template::titleBand},
                              {u"pageHeader", &Template::pageHeader},
                              {u"columnHeader", &Template::columnHeader},
                              {u"groupHeader", &Template::groupHeader},
                              {u"detail", &Template::detail},
                              {u"groupFooter", &Template::groupFooter},
                              {u"footer", &Template::footer},
                              {u"pageFooter", &Template::pageFooter}};

class TemplateReader {
public:
    TemplateReader(const QByteArray &xml, const QString &file)
        : m_xml(xml)
    {
        m_template.file = file;
    }

    Template read();

private:
    void readReport();
    [[nodiscard]] TextPattern readFileName(Attributes &attributes) const;
    void readPaper(Attributes &attributes);
    void readBand();
    void checkPage() const;
    [[noreturn]] void fail(int line, const QString &reason) const
    {
        throw TemplateError(m_template.file, line, reason);
    }
    [[nodiscard]] int line() const { return static_cast<int>(m_xml.lineNumber()); }

    QXmlStreamReader m_xml;
    Template m_template;
    TemplateStyle m_style;
    std::vector<Unit> m_columns;
    int m_startLine = 1;
};

Template TemplateReader::read()
{
    while (!m_xml.atEnd() && !m_xml.isStartElement()) {
        m_xml.readNext();
        if (m_xml.tokenType() == QXmlStreamReader::DTD)
            fail(line(), QStringLiteral("模板中不能有 <!DOCTYPE>"));
    }
    checkWellFormed(m_xml, m_template.file);
    m_startLine = line();
    m_template.sourceLine = m_startLine;
    if (m_xml.name() != u"report")
        fail(m_startLine, QStringLiteral("最外层的元素应是 <report>，现为 <%1>").arg(m_xml.name()));
    readReport();
    while (!m_xml.atEnd())
        m_xml.readNext();
    checkWellFormed(m_xml, m_template.file);
    checkPage();
    return std::move(m_template);
}

void TemplateReader::readReport()
{
    Attributes attributes(m_xml.attributes(), m_template.file, m_startLine, QStringLiteral("report"));
    m_template.families.push_back(fontFamilies({}));
    m_template.title = attributes.text("title").value_or(QString());
    m_template.fileName = readFileName(attributes);
    m_template.groupField = attributes.text("group").value_or(QString());
    readPaper(attributes);
    if (const auto columns = attributes.widths("columns", m_template.bodyWidth()))
        m_columns = *columns;
    if (const auto font = attributes.text("font"))
        m_template.families.front() = fontFamilies(*font);
    m_style.take(attributes, m_template.families);
    attributes.checkAllTaken();
    while (nextElement(m_xml, m_template.file))
        readBand();
}

TextPattern TemplateReader::readFileName(Attributes &attributes) const
{
    const auto given = attributes.text("fileName");
    try {
        return parsePattern(
            given.value_or(QString(m_template.title).replace(u'[', QStringLiteral("[[")) + QStringLiteral(" [Today]")));
    } catch (const std::invalid_argument &error) {
        attributes.fail("fileName", QStringLiteral("不对：%1").arg(QString::fromUtf8(error.what())));
    }
}

void TemplateReader::readPaper(Attributes &attributes)
{
    using Orientation = Attributes::Choice<bool>;
    static constexpr Orientation Orientations[] = {{u"portrait", false}, {u"landscape", true}};
    std::array<Attributes::Choice<QPageSize::PageSizeId>, std::size(Papers)> papers;
    for (std::size_t at = 0; at < papers.size(); ++at)
        papers[at] = {Papers[at].name, Papers[at].id};
    const auto paper = attributes.choice<QPageSize::PageSizeId>("paper", papers).value_or(QPageSize::A4);
    const QSizeF size = QPageSize(paper).size(QPageSize::Millimeter);
    m_template.pageWidth = static_cast<Unit>(std::lround(size.width() * UnitsPerMillimetre));
    m_template.pageHeight = static_cast<Unit>(std::lround(size.height() * UnitsPerMillimetre));
    if (attributes.choice<bool>("orientation", Orientations).value_or(false))
        std::swap(m_template.pageWidth, m_template.pageHeight);
    const auto margins =
        attributes.widths("margins", 2 * m_template.pageHeight).value_or(std::vector<Unit>(4, UsualMargin));
    if (margins.size() != 4)
        attributes.fail("margins", QStringLiteral("应是四个毫米数：左,上,右,下"));
    m_template.marginLeft = margins[0];
    m_template.marginTop = margins[1];
    m_template.marginRight = margins[2];
    m_template.marginBottom = margins[3];
    if (m_template.bodyWidth() <= 0 || m_template.marginTop + m_template.marginBottom >= m_template.pageHeight)
        attributes.fail("margins", QStringLiteral("没有给内容留下位置"));
}

void TemplateReader::readBand()
{
    const int start = line();
    Attributes attributes(m_xml.attributes(), m_template.file, start, m_xml.name().toString());
    for (const BandName &each : Bands) {
        if (m_xml.name() != each.name)
            continue;
        std::optional<Band> &band = m_template.*each.band;
        if (band)
            fail(start, QStringLiteral("<%1> 只能有一个").arg(each.name));
        if (each.band == &Template::pageHeader)
            m_template.pageHeaderOnFirstPage = attributes.yesOrNo("firstPage").value_or(true);
        band = BandReader(m_xml, m_template, m_columns).read(std::move(attributes), m_style);
        return;
    }
    fail(start, QStringLiteral("<report> 中不能有 <%1>").arg(m_xml.name()));
}

/// Every page must have room for its headings, one row and its footer.
void TemplateReader::checkPage() const
{
    for (const auto *band : {&m_template.groupHeader, &m_template.groupFooter}) {
        if (*band && m_template.groupField.isEmpty())
            fail((*band)->sourceLine, QStringLiteral("有分组的版面带，<report> 却没有写 group=\"字段名\""));
    }
    for (const auto *band : {&m_template.columnHeader, &m_template.groupHeader, &m_template.groupFooter}) {
        if (*band && !m_template.detail)
            fail((*band)->sourceLine, QStringLiteral("没有 <detail>，这个版面带不会打印"));
    }
    const auto heightOf = [](const std::optional<Band> &band) { return band ? band->height : 0; };
    const Unit room =
        m_template.pageHeight - m_template.marginTop - m_template.marginBottom - heightOf(m_template.pageFooter);
    const Unit headings =
        heightOf(m_template.pageHeader) + heightOf(m_template.columnHeader) + heightOf(m_template.groupHeader);
    const struct {
        const std::optional<Band> &band;
        Unit above;
    } placed[] = {{m_template.titleBand, m_template.pageHeaderOnFirstPage ? heightOf(m_template.pageHeader) : 0},
                  {m_template.detail, headings},
                  {m_template.groupFooter, headings},
                  {m_template.footer, heightOf(m_template.pageHeader)}};
    for (const auto &[band, above] : placed) {
        if (band && above + band->height > room)
            fail(band->sourceLine,
                 QStringLiteral("一页放不下：可用高度 %1 毫米，需要 %2 毫米")
                     .arg(QString::number(room / 100.0), QString::number((above + band->height) / 100.0)));
    }
    if (headings > room)
        fail(m_startLine, QStringLiteral("一页放不下各种页眉"));
}

/// The parser does not tell in which line it met bytes that are no UTF-8, as editors write them in older encodings.
void checkEncoding(const QByteArray &xml, const QString &file)
{
    int line = 1;
    for (const QByteArray &bytes : xml.split('\n')) {
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString text = decoder.decode(bytes);
        if (decoder.hasError())
            throw TemplateError(file, line, QStringLiteral("不是 UTF-8 编码的文字，请把文件另存为 UTF-8 编码"));
        ++line;
    }
}

} // namespace

TemplatePtr parseTemplate(const QByteArray &xml, const QString &file)
{
    checkEncoding(xml, file);
    return std::make_shared<const Template>(TemplateReader(xml, file).read());
}

TemplatePtr loadTemplate(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw std::runtime_error(
            QStringLiteral("无法打开报表模板“%1”：%2").arg(path, file.errorString()).toStdString());
    if (file.size() > LargestFile)
        throw std::runtime_error(QStringLiteral("报表模板“%1”太大。").arg(path).toStdString());
    return parseTemplate(file.readAll(), path);
}

} // namespace report
