// SPDX-License-Identifier: MIT
// Sorting by rank: each distinct text is compared once, however many rows show it.
#include "toolkit/treelist/sorter.h"

#include "toolkit/treelist/nodestore.h"
#include "values/displayformat.h"

#include <QCollator>

#include <algorithm>
#include <cctype>
#include <deque>
#include <numeric>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <unordered_map>

namespace toolkit::treelist {

namespace {

/// The distinct texts of a column and, for each node, which one it shows.
struct Distinct {
    std::vector<std::string_view> texts;
    std::vector<int> ofNode;
    std::deque<std::string> owned; // texts that stand nowhere else
};

Distinct distinctTexts(const NodeStore &store, const std::vector<int> &nodes, int position)
{
    Distinct distinct;
    distinct.ofNode.reserve(nodes.size());
    std::unordered_map<std::string_view, int> known;
    for (const int node : nodes) {
        std::string scratch;
        std::string_view text = store.utf8(node, position, scratch);
        auto found = known.find(text);
        if (found == known.end()) {
            if (!scratch.empty())
                text = distinct.owned.emplace_back(std::move(scratch));
            found = known.emplace(text, static_cast<int>(distinct.texts.size())).first;
            distinct.texts.push_back(text);
        }
        distinct.ofNode.push_back(found->second);
    }
    return distinct;
}

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(' ') == std::string_view::npos;
}

/// Numbers that the type holds exactly; longer digit strings are identifiers, which sort well as text.
std::optional<long double> numberOf(std::string_view text)
{
    constexpr int exactDigits = 18;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const auto digits = std::count_if(text.begin(), text.end(), isDigit);
    if (digits == 0 || digits > exactDigits)
        return std::nullopt;
    try {
        return values::parseAmount(text);
    } catch (const std::invalid_argument &) {
        return std::nullopt;
    }
}

/// Empty when some text that is not blank is no number.
std::vector<long double> allNumbers(const std::vector<std::string_view> &texts)
{
    std::vector<long double> numbers(texts.size(), 0);
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (isBlank(texts[i]))
            continue;
        const auto number = numberOf(texts[i]);
        if (!number)
            return {};
        numbers[i] = *number;
    }
    return numbers;
}

enum class Group { Blank, Number, Text };

/// What decides the place of one distinct text.
struct Key {
    Group group = Group::Blank;
    long double number = 0;
    std::optional<QCollatorSortKey> text;
};

int compare(const Key &left, const Key &right)
{
    if (left.group != right.group)
        return left.group < right.group ? -1 : 1;
    if (left.group == Group::Number)
        return left.number < right.number ? -1 : (left.number > right.number ? 1 : 0);
    return left.group == Group::Text ? left.text->compare(*right.text) : 0;
}

std::vector<Key> keysOf(const std::vector<std::string_view> &texts, SortKind kind)
{
    QCollator collator(QLocale(QLocale::Chinese, QLocale::China));
    collator.setNumericMode(true);
    const std::vector<long double> numbers = kind == SortKind::Texts ? allNumbers(texts) : std::vector<long double>();
    std::vector<Key> keys(texts.size());
    for (std::size_t i = 0; i < texts.size(); ++i) {
        if (isBlank(texts[i]))
            continue;
        const auto number = kind == SortKind::Amounts ? numberOf(texts[i]) : std::nullopt;
        if (number || !numbers.empty()) {
            keys[i].group = Group::Number;
            keys[i].number = number ? *number : numbers[i];
        } else {
            keys[i].group = Group::Text;
            keys[i].text =
                collator.sortKey(QString::fromUtf8(texts[i].data(), static_cast<qsizetype>(texts[i].size())));
        }
    }
    return keys;
}

/// The place of each text among the distinct ones; equal keys share a place.
std::vector<int> placesOf(const std::vector<Key> &keys)
{
    std::vector<std::size_t> sorted(keys.size());
    std::iota(sorted.begin(), sorted.end(), std::size_t{0});
    std::sort(sorted.begin(), sorted.end(),
              [&keys](std::size_t left, std::size_t right) { return compare(keys[left], keys[right]) < 0; });
    std::vector<int> places(keys.size(), 0);
    for (std::size_t i = 1; i < sorted.size(); ++i) {
        const bool equal = compare(keys[sorted[i - 1]], keys[sorted[i]]) == 0;
        places[sorted[i]] = places[sorted[i - 1]] + (equal ? 0 : 1);
    }
    return places;
}

} // namespace

std::vector<int> sortedNodes(const NodeStore &store, const std::vector<int> &nodes, int position, SortKind kind,
                             Qt::SortOrder order)
{
    const Distinct distinct = distinctTexts(store, nodes, position);
    const std::vector<int> places = placesOf(keysOf(distinct.texts, kind));
    const auto placeOf = [&](std::size_t i) { return places[static_cast<std::size_t>(distinct.ofNode[i])]; };

    std::vector<std::size_t> sorted(nodes.size());
    std::iota(sorted.begin(), sorted.end(), std::size_t{0});
    std::stable_sort(sorted.begin(), sorted.end(), [&](std::size_t left, std::size_t right) {
        return order == Qt::AscendingOrder ? placeOf(left) < placeOf(right) : placeOf(right) < placeOf(left);
    });

    std::vector<int> result;
    result.reserve(nodes.size());
    for (const std::size_t i : sorted)
        result.push_back(nodes[i]);
    return result;
}

} // namespace toolkit::treelist
