// SPDX-License-Identifier: MIT
// Cutting many records out of a condition, held against cutting them one by one.
#include "data/recordchoice.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

using namespace Qt::Literals::StringLiterals;
using namespace data;

namespace {

const RecordKey First{u"A1"_s, u"0012"_s, u"1"_s, u"3"_s};
const RecordKey Second{u"A1"_s, u"0040"_s, u"2"_s, u"1"_s};
const RecordKey Third{u"院'"_s, u"证'号"_s, u"003"_s, u"-4"_s};
const RecordKey Absent{u"A1"_s, u"9999"_s, u"1"_s, u"1"_s};

/// What cutting gives, and what the plain arithmetic gives, after each cut.
void compare(const std::vector<RecordKey> &ticked, const std::vector<RecordKey> &gone)
{
    RecordChoice choice(ticked);
    QString plain = anyOfRecords(ticked);
    ASSERT_EQ(choice.text().toStdString(), plain.toStdString());
    int cut = 0;
    for (const RecordKey &key : gone) {
        choice.cut(key);
        plain = withoutRecord(plain, key);
        ASSERT_EQ(choice.text().toStdString(), plain.toStdString()) << "cut " << ++cut << " of " << gone.size();
    }
}

using Random = std::mt19937;

int below(Random &random, int bound)
{
    return std::uniform_int_distribution<int>(0, bound - 1)(random);
}

/// Keys of a small world, so that many are alike. An odd world holds texts that look like clauses, and numbers that
/// are none.
RecordKey anyKey(Random &random, bool isOdd)
{
    static const std::array texts = {u"A1"_s, u"0012"_s, u""_s, u"院'"_s, u"')"_s, u"(2)"_s, u" or ("_s};
    static const std::array numbers = {u"1"_s, u"2"_s, u"03"_s, u"-4"_s, u""_s, u"1.50"_s, u" 7"_s};
    static const std::array oddTexts = {u"(OrgCode='"_s, u"(OrgCode=' and CoopMedCode=' and IDNo=1 and DiagNo=2)"_s,
                                        u"A1"_s, u""_s, u"' and IDNo=1"_s};
    static const std::array oddNumbers = {u"1"_s, u"2"_s, u"1 and DiagNo=2) or (OrgCode='A1'"_s, u"1)"_s, u"x"_s};
    const auto text = [&] {
        return isOdd ? oddTexts[std::size_t(below(random, oddTexts.size()))]
                     : texts[std::size_t(below(random, texts.size()))];
    };
    const auto number = [&] {
        return isOdd ? oddNumbers[std::size_t(below(random, oddNumbers.size()))]
                     : numbers[std::size_t(below(random, numbers.size()))];
    };
    return {text(), text(), number(), number()};
}

std::vector<RecordKey> anyKeys(Random &random, int count, bool isOdd)
{
    std::vector<RecordKey> keys;
    for (int i = 0; i < count; ++i)
        keys.push_back(anyKey(random, isOdd));
    return keys;
}

} // namespace

TEST(RecordChoice, beginsWithAllRecords)
{
    EXPECT_EQ(RecordChoice().text(), QString());
    EXPECT_EQ(RecordChoice({First, Second}).text(), anyOfRecords({First, Second}));
}

TEST(RecordChoice, cutsAsTheArithmeticDoes)
{
    compare({First, Second, Third}, {Second, Third, First});
    compare({First, Second, Third}, {First, Second, Third});
    compare({First, Second, Third}, {Third, Second, First});
    compare({First, First, Second, First}, {First, First, First, First});
    compare({}, {First});
}

TEST(RecordChoice, leavesTheWordOrWhenTheFirstClauseGoes)
{
    RecordChoice choice({First, Second});
    choice.cut(First);
    EXPECT_EQ(choice.text(), u" or (OrgCode='A1' and CoopMedCode='0040' and IDNo=2 and DiagNo=1)"_s);
}

TEST(RecordChoice, cutsFromTheStartWhatIsNotFound)
{
    compare({First, Second, Third}, {Absent, Second});
    compare({First, Second, Third}, {Second, Absent, Absent, Third});
    compare({First, Second}, {Absent, Absent, Absent, First});
}

TEST(RecordChoice, cutsWhatIsLeftOfAStartThatWasCut)
{
    // Lengths that end the cut in the middle of a clause, of the joiner, and at the next clause's first letter.
    for (int length = 0; length < 80; ++length) {
        const RecordKey absent{QString(length, u'x'), u"0"_s, u"1"_s, u"1"_s};
        compare({First, Second, Third, First}, {absent, Second, First, Third, First});
        compare({First, Second, Third, First}, {Second, absent, Third, absent, First});
    }
}

TEST(RecordChoice, isTheArithmeticOverRandomRecords)
{
    Random random(20260309);
    for (int round = 0; round < 3000; ++round) {
        const bool isOdd = round % 3 == 2;
        const std::vector<RecordKey> ticked = anyKeys(random, below(random, 12), isOdd);
        std::vector<RecordKey> gone;
        for (int i = below(random, 10); i > 0; --i) {
            const bool isTicked = !ticked.empty() && below(random, 4) != 0;
            gone.push_back(isTicked ? ticked[std::size_t(below(random, int(ticked.size())))]
                                    : anyKey(random, below(random, 5) == 0));
        }
        compare(ticked, gone);
        if (HasFatalFailure())
            FAIL() << "round " << round;
    }
}

TEST(RecordChoice, cutsThousandsOfThousands)
{
    constexpr int Ticked = 20000;
    std::vector<RecordKey> keys;
    for (int i = 0; i < Ticked; ++i)
        keys.push_back({u"42990101"_s, QString::number(100000 + i), u"1"_s, u"1"_s});
    RecordChoice choice(keys);
    QString expected = u' ' + recordClause(keys.front());
    for (int i = 1; i < Ticked; ++i)
        expected += i % 4 == 1 ? u" "_s : u" or "_s + recordClause(keys[std::size_t(i)]);
    for (int i = Ticked - 3; i > 0; i -= 4)
        choice.cut(keys[std::size_t(i)]);
    EXPECT_TRUE(choice.text() == expected);
}
