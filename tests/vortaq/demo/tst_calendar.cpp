// SPDX-License-Identifier: MIT
// Days, ages and random numbers.
#include "vortaq/demo/calendar.h"
#include "vortaq/demo/random.h"

#include <QDate>

#include <array>
#include <map>
#include <numeric>

#include <gtest/gtest.h>

namespace vortaq::demo {
namespace {

Day dayOf(const char *iso)
{
    return static_cast<Day>(QDate(1970, 1, 1).daysTo(QDate::fromString(QString::fromLatin1(iso), Qt::ISODate)));
}

struct AgeCase {
    const char *name;
    const char *born;
    const char *now;
    int number;
    const char *unit;
};

class Ages : public testing::TestWithParam<AgeCase> { };

TEST_P(Ages, InTheUnitThatFits)
{
    const Age age = ageOn(dayOf(GetParam().now), dayOf(GetParam().born));
    EXPECT_EQ(age.number, GetParam().number);
    EXPECT_EQ(age.unit, GetParam().unit);
}

constexpr std::array<AgeCase, 8> ageCases = {{
    {"BornToday", "2024-03-01", "2024-03-01", 0, "天"},
    {"LastDayOfTheFirstMonth", "2024-01-31", "2024-02-29", 29, "天"},
    {"OneMonth", "2024-02-01", "2024-03-01", 1, "月"},
    {"DayBeforeTheSecondMonth", "2024-01-15", "2024-03-14", 1, "月"},
    {"DayBeforeTheFirstBirthday", "2023-03-02", "2024-03-01", 11, "月"},
    {"FirstBirthday", "2023-03-01", "2024-03-01", 1, "岁"},
    {"BornOnALeapDay", "2000-02-29", "2024-02-28", 23, "岁"},
    {"Old", "1931-07-04", "2024-03-01", 92, "岁"},
}};

INSTANTIATE_TEST_SUITE_P(Calendar, Ages, testing::ValuesIn(ageCases), [](const auto &test) { return test.param.name; });

TEST(Calendar, WritesIsoText)
{
    const Calendar calendar(dayOf("2024-03-01"));
    EXPECT_EQ(calendar.text(calendar.today()), "2024-03-01");
    EXPECT_EQ(calendar.text(calendar.today() - 1), "2024-02-29");
    EXPECT_EQ(calendar.text(dayOf("1969-12-31")), "1969-12-31");
    EXPECT_THROW(static_cast<void>(calendar.text(calendar.today() + 1)), std::out_of_range);
}

TEST(Random, IsThePublishedSequence)
{
    Random random(0);
    EXPECT_EQ(random.next(), 0xE220A8397B1DCDAFU);
    EXPECT_EQ(random.next(), 0x6E789E6AA1B965F4U);
    EXPECT_EQ(random.next(), 0x06C45D188009454FU);
}

TEST(Random, StaysInItsBoundsAndReachesThem)
{
    Random random(3);
    std::map<int, int> hits;
    for (int i = 0; i < 10'000; ++i)
        ++hits[random.between(-3, 3)];
    EXPECT_EQ(hits.begin()->first, -3);
    EXPECT_EQ(hits.rbegin()->first, 3);
    EXPECT_EQ(hits.size(), 7U);
    for (const auto &[number, count] : hits)
        EXPECT_NEAR(count, 10'000 / 7.0, 200) << number;
    EXPECT_EQ(random.below(1), 0);
}

TEST(Random, ShufflesWithoutLosingAnything)
{
    Random random(5);
    std::vector<int> numbers(100);
    std::iota(numbers.begin(), numbers.end(), 0);
    std::vector<int> shuffled = numbers;
    random.shuffle(shuffled);
    EXPECT_NE(shuffled, numbers);
    std::sort(shuffled.begin(), shuffled.end());
    EXPECT_EQ(shuffled, numbers);
}

} // namespace
} // namespace vortaq::demo
