// SPDX-License-Identifier: MIT
#include "values/capitalamount.h"

#include "values/displayformat.h"

#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace values {

namespace {

constexpr QStringView Digits = u"零壹贰叁肆伍陆柒捌玖";
constexpr long double Limit = 1e13L;
constexpr std::int64_t MostCents = 999'999'999'999'999;
constexpr std::int64_t HundredMillion = 100'000'000;

/// The four digits of one group (units, ten thousands, hundred millions, ten thousand of those) with their places;
/// `gap` is a zero that waits for the next digit.
void appendGroup(QString &text, int group, bool &gap)
{
    static constexpr QStringView Places[] = {u"仟", u"佰", u"拾", u""};
    int divisor = 1000;
    for (const QStringView place : Places) {
        const int digit = group / divisor % 10;
        divisor /= 10;
        if (digit == 0) {
            gap = true;
            continue;
        }
        if (gap && !text.isEmpty())
            text += Digits[0];
        gap = false;
        text += Digits[digit];
        text += place;
    }
}

QString wholeYuan(std::int64_t yuan)
{
    QString text;
    bool gap = false;
    const struct {
        std::int64_t unit;
        QStringView name;
    } groups[] = {{10'000 * HundredMillion, u"万"}, {HundredMillion, u"亿"}, {10'000, u"万"}, {1, u""}};
    for (const auto &[unit, name] : groups) {
        const int group = static_cast<int>(yuan / unit % 10'000);
        appendGroup(text, group, gap);
        // 壹万亿 has its 亿 though no digit stands before it.
        if (group != 0 || (unit == HundredMillion && !text.isEmpty()))
            text += name;
    }
    return text;
}

/// Larger than MostCents for what is too large or no number.
std::int64_t toCents(long double yuan)
{
    if (!(std::fabs(yuan) < Limit))
        return MostCents + 1;
    return formatFloat(QStringLiteral("0.00"), std::fabs(yuan)).remove(u'.').toLongLong();
}

} // namespace

bool hasCapitals(long double yuan)
{
    return toCents(yuan) <= MostCents;
}

QString capitalAmount(long double yuan)
{
    const std::int64_t cents = toCents(yuan);
    if (cents > MostCents)
        throw std::out_of_range(QStringLiteral("金额太大，不能写成大写。").toStdString());
    if (cents == 0)
        return QStringLiteral("零元整");
    const int tenths = static_cast<int>(cents / 10 % 10);
    const int hundredths = static_cast<int>(cents % 10);
    QString text = wholeYuan(cents / 100);
    if (!text.isEmpty())
        text += u'元';
    if (tenths != 0) {
        text += Digits[tenths];
        text += u'角';
    } else if (hundredths != 0 && !text.isEmpty()) {
        text += Digits[0];
    }
    if (hundredths != 0) {
        text += Digits[hundredths];
        text += u'分';
    } else {
        text += u'整';
    }
    return yuan < 0 ? u'负' + text : text;
}

} // namespace values
