// SPDX-License-Identifier: MIT
#include "report/capitalamount.h"

#include "toolkit/displayformat.h"

#include <cmath>
#include <cstdint>
#include <stdexcept>

namespace report {

namespace {

constexpr QStringView Digits = u"零壹贰叁肆伍陆柒捌玖";
constexpr long double Limit = 1e12L;
constexpr std::int64_t MostCents = 99'999'999'999'999;

/// The four digits of one group (units, ten thousands, hundred millions) with their places; `gap` is a zero that
/// waits for the next digit.
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
    } groups[] = {{100'000'000, u"亿"}, {10'000, u"万"}, {1, u""}};
    for (const auto &[unit, name] : groups) {
        const int group = static_cast<int>(yuan / unit % 10'000);
        appendGroup(text, group, gap);
        if (group != 0)
            text += name;
    }
    return text;
}

} // namespace

QString capitalAmount(long double yuan)
{
    const bool tooLarge = !(std::fabs(yuan) < Limit);
    const std::int64_t cents = tooLarge
        ? MostCents + 1
        : toolkit::formatFloat(QStringLiteral("0.00"), std::fabs(yuan)).remove(u'.').toLongLong();
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

} // namespace report
