// SPDX-License-Identifier: MIT
// Whatever bytes a setup file holds: the value that is written is read back, and no other line changes.
#include "Common/inifile.h"

#include <QByteArrayView>

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <string_view>

using namespace Qt::Literals::StringLiterals;
using namespace std::string_view_literals;

namespace {

/// Pieces that setup files are made of, whole and broken.
constexpr std::string_view Pieces[] = {
    "[system]",
    "[System] ;",
    "[other]",
    "connStyle=2",
    " CONNSTYLE = \"9\" ",
    "hospital=",
    "=",
    ";",
    "\r\n",
    "\n",
    "\r",
    "\r\r\n",
    "\n\r",
    "\n",
    "\n",
    " ",
    "\xD2\xBD",
    "\xD2",
    "\xD4\xBA",
    "\x80",
    "\xFF",
    "\xE5\x8C\xBB",
    "\xE5\x8C",
    "\xC2\xB0",
    "\x81\x30",
    "\x81",
    "\x1A",
    "\0"sv,
    "\xF0\xA0\xAE\xB7",
    "[\xD2\xBD]",
    "\xD2\xBD=\xFF",
};
constexpr std::string_view Marks[] = {"", "", "\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"};
const QString Values[] = {u"1"_s, u""_s, u" 1 "_s, u"医院"_s, u"°"_s, u"城关卫生院"_s, u"𠮷野"_s, u"'a'"_s, u"[b]=;"_s};

class Contents {
public:
    explicit Contents(unsigned seed)
        : m_random(seed)
    {
    }

    [[nodiscard]] int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_random); }

    [[nodiscard]] QByteArray next()
    {
        const std::string_view mark = Marks[below(std::size(Marks))];
        QByteArray content(mark.data(), static_cast<qsizetype>(mark.size()));
        const bool wide = mark.size() == 2;
        for (int pieces = below(14); pieces > 0; --pieces) {
            const std::string_view piece = Pieces[below(std::size(Pieces))];
            for (const char byte : piece) {
                if (wide && mark.front() == '\xFE')
                    content.append('\0');
                content.append(below(60) == 0 ? static_cast<char>(below(256)) : byte);
                if (wide && mark.front() == '\xFF' && below(200) != 0)
                    content.append('\0');
            }
        }
        return content;
    }

private:
    std::mt19937 m_random;
};

/// What was there before and what is there after, without what both have at the beginning and at the end.
struct Difference {
    QByteArray before;
    QByteArray after;
};

Difference differenceOf(const QByteArray &before, const QByteArray &after, qsizetype unit)
{
    const qsizetype least = std::min(before.size(), after.size());
    qsizetype head = 0;
    while (head < least && before[head] == after[head])
        ++head;
    head -= head % unit;
    qsizetype tail = 0;
    while (tail < least - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail])
        ++tail;
    return {before.sliced(head, before.size() - head - tail), after.sliced(head, after.size() - head - tail)};
}

/// `bytes` begin with a whole unit; `mark` is that of the encoding.
bool holdsLineEnd(const QByteArray &bytes, QByteArrayView mark)
{
    if (mark.size() != 2)
        return bytes.contains('\n') || bytes.contains('\r');
    for (qsizetype at = 0; at + 1 < bytes.size(); at += 2) {
        const char low = bytes[mark.front() == '\xFF' ? at : at + 1];
        const char high = bytes[mark.front() == '\xFF' ? at + 1 : at];
        if (high == '\0' && (low == '\n' || low == '\r'))
            return true;
    }
    return false;
}

} // namespace

TEST(IniBytes, aWrittenValueIsReadBackAndNoOtherLineChanges)
{
    Contents contents(20261122);
    for (int run = 0; run < 40'000; ++run) {
        const QByteArray before = contents.next();
        const QString value = Values[contents.below(std::size(Values))];
        const QByteArray after = common::withIniValue(before, u"system"_s, u"connStyle"_s, value);
        ASSERT_EQ(common::iniValue(after, u"system"_s, u"connStyle"_s), value) << before.toHex(' ').constData();
        ASSERT_EQ(common::withIniValue(after, u"system"_s, u"connStyle"_s, value), after)
            << before.toHex(' ').constData();

        const bool wide = before.startsWith("\xFF\xFE") || before.startsWith("\xFE\xFF");
        const QByteArray encoding = wide ? before.first(2) : QByteArray();
        const QByteArrayView mark("\xEF\xBB\xBF");
        const bool marked = after.startsWith(mark) && !before.startsWith(mark);
        const Difference changed = differenceOf(before, marked ? after.sliced(mark.size()) : after, wide ? 2 : 1);
        // A replaced line differs within itself; a line, or a section, that is put in takes nothing away.
        const bool putIn = changed.before.isEmpty();
        ASSERT_TRUE(putIn || (!holdsLineEnd(changed.before, encoding) && !holdsLineEnd(changed.after, encoding)))
            << before.toHex(' ').constData() << "\n"
            << after.toHex(' ').constData();
    }
}
