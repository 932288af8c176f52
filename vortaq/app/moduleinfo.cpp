// SPDX-License-Identifier: MIT
// Splits the module-info string.
#include "vortaq/app/moduleinfo.h"

#include <QStringDecoder>
#include <QStringList>

namespace vortaq {

namespace {

CaptionedKey captionedKey(const QString &field)
{
    const qsizetype open = field.indexOf(QLatin1Char('('));
    if (open < 0 || !field.endsWith(QLatin1Char(')')))
        return {field, field};
    return {field.left(open), field.mid(open + 1, field.size() - open - 2)};
}

} // namespace

std::optional<ModuleInfo> parseModuleInfo(const QByteArray &gbk)
{
    QStringDecoder decoder("GB18030", QStringConverter::Flag::Stateless); // contains GBK
    const QString text = decoder(gbk);
    if (!decoder.isValid() || decoder.hasError())
        return {};
    const QStringList fields = text.split(QLatin1Char(','));
    if (fields.size() < 4 || fields[0].isEmpty() || fields[1].isEmpty() || fields[2].isEmpty())
        return {};
    return ModuleInfo{fields[0], captionedKey(fields[1]), captionedKey(fields[2]), fields[3]};
}

} // namespace vortaq
