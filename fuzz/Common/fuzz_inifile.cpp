// SPDX-License-Identifier: MIT
// Whatever a setup file holds, a value written into it is read back and the value of another key stays.
#include "Common/inifile.h"
#include "Common/initext.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    using namespace Qt::Literals::StringLiterals;
    const QByteArray content(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString section = u"system"_s;
    const QString key = u"connStyle"_s;
    const QString before = common::iniValue(content, section, u"other"_s);
    const QByteArray changed = common::withIniValue(content, section, key, u"1"_s);
    if (common::iniValue(changed, section, key) != u"1"_s)
        std::abort();
    // With the only line that was no UTF-8 gone, the others' unchanged bytes may read as what they were meant to be.
    if (common::iniEncodingOf(changed) == common::iniEncodingOf(content)
        && common::iniValue(changed, section, u"other"_s) != before)
        std::abort();
    if (common::withIniValue(changed, section, key, u"1"_s) != changed)
        std::abort();
    return 0;
}
