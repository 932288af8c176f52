// SPDX-License-Identifier: MIT
// Any bytes as a template: it is refused with a line, or everything in it lies on the paper.
#include "report/template/templateerror.h"
#include "report/template/templatereader.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace report;

namespace {

void require(bool holds)
{
    if (!holds)
        std::abort();
}

void checkBand(const Template &form, const std::optional<Band> &band)
{
    if (!band)
        return;
    require(band->height <= form.pageHeight);
    for (const TextItem &text : band->texts) {
        require(text.box.left >= 0 && text.box.top >= 0 && text.box.width >= 0 && text.box.height >= 0);
        require(text.box.right() <= form.bodyWidth());
        require(text.box.bottom() <= band->height);
        require(text.font.family >= 0 && static_cast<std::size_t>(text.font.family) < form.families.size());
    }
    for (const LineItem &line : band->lines) {
        require(line.left <= line.right && line.top <= line.bottom);
        require(line.left == line.right || line.top == line.bottom);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    try {
        const TemplatePtr form = parseTemplate(
            QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)), QStringLiteral("fuzz"));
        for (const auto *band : {&form->titleBand, &form->pageHeader, &form->columnHeader, &form->groupHeader,
                                 &form->detail, &form->groupFooter, &form->footer, &form->pageFooter})
            checkBand(*form, *band);
    } catch (const TemplateError &error) {
        require(error.line() >= 1);
    }
    return 0;
}
