// SPDX-License-Identifier: MIT
#include "report/layout/measuredband.h"

#include "report/layout/fonts.h"
#include "report/layout/growth.h"
#include "report/layout/textfit.h"
#include "report/template/templateerror.h"

#include <utility>

namespace report {

namespace {

TextBox valueOf(const Template &source, const TextItem &item, const Evaluator &evaluator, const Place &place)
{
    TextBox text;
    text.box = item.box;
    text.item = &item;
    try {
        Evaluator::Value value = evaluator.evaluate(item.text, place);
        text.text = std::move(value.text);
        text.number = value.number;
    } catch (const ValueError &error) {
        throw TemplateError(source.file, item.sourceLine, QString::fromUtf8(error.what()));
    }
    return text;
}

/// The number of pages is put in when all are laid out; room is kept for four digits.
QString withRoomForPageCount(QString text)
{
    return text.replace(QChar(PageCountMark), QStringLiteral("8888"));
}

} // namespace

std::vector<TextBox> valuesOf(const Template &source, const Band &band, const Evaluator &evaluator, const Place &place)
{
    std::vector<TextBox> values;
    values.reserve(band.texts.size());
    for (const TextItem &item : band.texts)
        values.push_back(valueOf(source, item, evaluator, place));
    return values;
}

MeasuredBand measureBand(const Band &band, std::vector<TextBox> values, const Fonts &fonts, int smaller)
{
    MeasuredBand measured{&band, 0, std::move(values), {}};
    Growth growth;
    std::vector<FittedText> fits;
    fits.reserve(measured.texts.size());
    for (const TextBox &text : measured.texts) {
        fits.push_back(fitText(fonts, *text.item, withRoomForPageCount(text.text), text.box, smaller));
        if (fits.back().height > text.box.height)
            growth.add(text.box.bottom(), fits.back().height - text.box.height);
    }
    for (std::size_t at = 0; at < fits.size(); ++at) {
        TextBox &text = measured.texts[at];
        const Unit height = text.box.height;
        if (!growth.none())
            text.box = growth.moved(text.box);
        // In a box that another one has made higher a larger size may do.
        const bool higher = text.box.height != height && text.item->overflow != Overflow::Grow;
        if (higher || text.text.contains(QChar(PageCountMark)))
            fits[at] = fitText(fonts, *text.item, text.text, text.box, smaller);
        placeText(fonts, text, fits[at]);
    }
    for (const LineItem &line : band.lines)
        measured.lines.push_back(
            {line.left, growth.moved(line.top), line.right, growth.moved(line.bottom), line.width});
    measured.height = growth.moved(band.height);
    return measured;
}

} // namespace report
