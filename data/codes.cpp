// SPDX-License-Identifier: MIT
// Code values stored in the tables and the words that clerks see for them.
#include "data/codes.h"

#include <algorithm>
#include <span>

namespace data {

namespace {

struct Word {
    QStringView code;
    QStringView name;
};

constexpr Word StatusNames[] = {
    {StatusMade, u"制单"},         {StatusReported, u"上报"}, {StatusFirstReview, u"一审"},
    {StatusSecondReview, u"二审"}, {StatusReturned, u"退单"},
};

constexpr Word RefusedStatusNames[] = {
    {u"", u"取消"},
    {StatusReported, u"上报"},
    {StatusFirstReview, u"一级审核"},
};

constexpr Word ExpenseKindNames[] = {
    {u"21", u"普通住院"}, {u"22", u"单病种住院"}, {u"23", u"正常分娩住院"}, {u"29", u"其他住院"}, {u"90", u"其他"},
};

QString nameOf(std::span<const Word> words, const QString &code)
{
    const auto word = std::ranges::find(words, QStringView(code), &Word::code);
    return word == words.end() ? QString() : word->name.toString();
}

} // namespace

QString statusName(const QString &checkStatus)
{
    return nameOf(StatusNames, checkStatus);
}

QString refusedStatusName(const QString &checkStatus)
{
    return nameOf(RefusedStatusNames, checkStatus);
}

QString expenseKindName(const QString &expenseKind)
{
    return nameOf(ExpenseKindNames, expenseKind);
}

} // namespace data
