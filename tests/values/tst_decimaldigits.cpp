// SPDX-License-Identifier: MIT
// Decimal digits: correctly rounded on either way of getting them.
#include "values/decimaldigits.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <random>

namespace {

/// The same digits by way of the library's own conversion.
std::string expected(long double magnitude)
{
    std::array<char, 64> buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::scientific, 17);
    return {buffer.data(), end.ptr};
}

std::string scientific(const values::DecimalDigits &digits)
{
    const std::string all = digits.digits + std::string(18 - digits.digits.size(), '0');
    const int exponent = digits.exponent - 1;
    const std::string places = std::to_string(100 + std::abs(exponent)).substr(1);
    return all.substr(0, 1) + "." + all.substr(1) + "e" + (exponent < 0 ? "-" : "+") + places;
}

TEST(DecimalDigits, areThoseOfTheLibrary)
{
    std::mt19937_64 random(7);
    std::uniform_real_distribution<long double> mantissa(1.0L, 10.0L);
    for (int power = -12; power <= 20; ++power) {
        for (int i = 0; i < 2000; ++i) {
            long double value = mantissa(random);
            for (int p = 0; p < std::abs(power); ++p)
                value = power < 0 ? value / 10 : value * 10;
            const values::DecimalDigits digits = values::decimalDigits(value);
            ASSERT_EQ(scientific(digits).substr(0, 23), expected(value).substr(0, 23));
        }
    }
}

TEST(DecimalDigits, areThoseOfTheLibraryAtTheEdges)
{
    for (const long double value : {1e-8L, 0.999999999999999999999L, 1.0L, 9.99999999999999999999L, 10.0L, 1e17L,
                                    999999999999999999.5L, 1e18L, 99999999999999999.95L, 0.1L, 0.5L, 1e-9L, 1e19L})
        EXPECT_EQ(scientific(values::decimalDigits(value)), expected(value));
}

TEST(DecimalDigits, ofNothingAreNone)
{
    EXPECT_TRUE(values::decimalDigits(0).isZero());
    EXPECT_EQ(values::decimalDigits(0).at(0), '0');
}

TEST(DecimalDigits, areCountedFromThePoint)
{
    const values::DecimalDigits digits = values::decimalDigits(120.75L);
    EXPECT_EQ(digits.at(-3), '0');
    EXPECT_EQ(digits.at(-2), '1');
    EXPECT_EQ(digits.at(0), '0');
    EXPECT_EQ(digits.at(1), '7');
    EXPECT_EQ(digits.at(2), '5');
    EXPECT_EQ(digits.at(30), '0');
}

TEST(DecimalDigits, carryIntoANewPlace)
{
    values::DecimalDigits digits = values::decimalDigits(99.995L);
    digits.roundTo(2);
    EXPECT_EQ(digits.at(-2), '1');
    EXPECT_EQ(digits.at(-1), '0');
    EXPECT_EQ(digits.at(2), '0');
}

TEST(DecimalDigits, canBeRoundedAway)
{
    values::DecimalDigits digits = values::decimalDigits(0.0004L);
    digits.roundTo(2);
    EXPECT_TRUE(digits.isZero());
}

} // namespace
