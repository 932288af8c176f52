// SPDX-License-Identifier: MIT
// Counts digits, then measures one amount of so many.
#include "toolkit/treelist/amountwidth.h"

#include "toolkit/TdxTreeListColumn.h"
#include "toolkit/treelist/nodestore.h"
#include "values/displayformat.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>
#include <string_view>

namespace toolkit::treelist {

namespace {

/// With more of them a number is not shown through its format.
constexpr int MostDigits = 18;

constexpr bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

/// What the amounts of a column have at most.
struct Widest {
    int positive = -1; ///< digits before the point; -1: there is no such amount
    int negative = -1;
    std::string longest; ///< text as it stands

    void add(bool isNegative, int digits)
    {
        int &most = isNegative ? negative : positive;
        most = std::max(most, digits);
    }
};

/// Plain digits with one point; false for everything else.
bool addPlain(std::string_view text, Widest &widest)
{
    const bool isNegative = text.front() == '-';
    if (isNegative || text.front() == '+')
        text.remove_prefix(1);
    const std::size_t zeros = std::min(text.find_first_not_of('0'), text.size());
    const auto *const whole = text.begin() + zeros;
    const auto *const point = std::find_if_not(whole, text.end(), isDigit);
    if (point != text.end() && (*point != '.' || !std::all_of(point + 1, text.end(), isDigit)))
        return false;
    if (point == text.begin() && text.size() < 2)
        return false; // no digit at all
    // Nines may be rounded up to one digit more.
    const bool nines = std::all_of(whole, point, [](char digit) { return digit == '9'; });
    widest.add(isNegative, static_cast<int>(point - whole) + (nines && whole != point ? 1 : 0));
    return true;
}

/// Most texts are blanks before an amount of two decimals, and another had as many digits: that shows at a glance.
bool isNoWider(std::string_view text, const Widest &widest)
{
    const std::size_t point = text.size() - 3; // beyond the end for a shorter text
    const auto digits = static_cast<std::size_t>(widest.positive);
    const bool isUsual = point < text.size() && text[point] == '.';
    if (!isUsual || widest.positive < 0 || point <= digits || widest.longest.size() < digits + 3)
        return false;
    const std::string_view rest = text.substr(point - digits);
    return text[point - digits - 1] == ' ' && rest.front() != '9' && rest.find('-') == std::string_view::npos;
}

void add(std::string_view text, Widest &widest)
{
    if (isNoWider(text, widest))
        return;
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    if (text.empty())
        return;
    const bool isLonger = text.size() > widest.longest.size();
    if (!addPlain(text, widest)) {
        try {
            const long double value = values::parseAmount(text); // with an exponent
            widest.add(value < 0, value == 0 ? 0 : std::max(0, static_cast<int>(std::log10(std::fabs(value))) + 2));
        } catch (const std::invalid_argument &) {
            return;
        }
    }
    if (isLonger)
        widest.longest = text;
}

/// Digits are not all equally wide in every font.
QChar widestDigit(const QFontMetrics &metrics)
{
    QChar widest = u'0';
    for (QChar digit = u'1'; digit <= u'9'; digit = QChar(digit.unicode() + 1)) {
        if (metrics.horizontalAdvance(digit) > metrics.horizontalAdvance(widest))
            widest = digit;
    }
    return widest;
}

int widthOf(QString amount, const QFontMetrics &metrics, QChar digit)
{
    for (QChar &character : amount) {
        if (character.isDigit())
            character = digit;
    }
    return metrics.horizontalAdvance(amount);
}

int widthOf(const Widest &widest, const QString &format, const QFontMetrics &metrics, QChar digit)
{
    if (format.isEmpty())
        return widthOf(QString::fromStdString(widest.longest), metrics, digit);
    int width = 0;
    const auto measure = [&](bool isNegative, int digits) {
        if (digits < 0)
            return;
        // No digit behind the point is 0, which a format may leave out, and none makes it round up.
        const std::string amount(static_cast<std::size_t>(std::min(digits, MostDigits)), '4');
        const long double value = values::parseAmount(amount + ".444444");
        width = std::max(width, widthOf(values::formatFloat(format, isNegative ? -value : value), metrics, digit));
    };
    measure(false, widest.positive);
    measure(true, widest.negative);
    if (widest.positive >= 0)
        width = std::max(width, widthOf(values::formatFloat(format, 0), metrics, digit));
    return width;
}

} // namespace

std::vector<int> amountWidths(const NodeStore &store, const std::vector<int> &nodes,
                              const std::vector<const TdxTreeListCurrencyColumn *> &columns,
                              const QFontMetrics &metrics)
{
    std::vector<Widest> widest(columns.size());
    std::string scratch;
    for (const int node : nodes) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            add(store.utf8(node, columns[i]->position(), scratch), widest[i]);
    }
    const QChar digit = widestDigit(metrics);
    std::vector<int> widths;
    for (std::size_t i = 0; i < columns.size(); ++i)
        widths.push_back(widthOf(widest[i], columns[i]->displayFormat(), metrics, digit));
    return widths;
}

} // namespace toolkit::treelist
