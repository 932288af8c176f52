// SPDX-License-Identifier: MIT
// Tests of reading the module-info string.
#include "vortaq/app/moduleinfo.h"

#include <gtest/gtest.h>

namespace vortaq::test {

TEST(ModuleInfo, TheFieldsOfTheBillModule)
{
    const auto info = parseModuleInfo(
        QByteArrayLiteral("Tarnwell,Logic(\xD2\xB5\xCE\xF1\xB9\xDC\xC0\xED),Kesmor(\xB2\xCE\xBA\xCF\xD7\xA1\xD4\xBA"
                          "\xB1\xA8\xCF\xFA\xD6\xC6\xB5\xA5),2(4),"));
    ASSERT_TRUE(info);
    EXPECT_EQ(info->library, QStringLiteral("Tarnwell"));
    EXPECT_EQ(info->category.key, QStringLiteral("Logic"));
    EXPECT_EQ(info->category.caption, QStringLiteral("业务管理"));
    EXPECT_EQ(info->function.key, QStringLiteral("Kesmor"));
    EXPECT_EQ(info->function.caption, QStringLiteral("参合住院报销制单"));
    EXPECT_EQ(info->placement, QStringLiteral("2(4)"));
}

TEST(ModuleInfo, AKeyWithoutCaptionIsItsOwn)
{
    const auto info = parseModuleInfo(QByteArrayLiteral("Lib,Menu,Job(),0"));
    ASSERT_TRUE(info);
    EXPECT_EQ(info->category.caption, QStringLiteral("Menu"));
    EXPECT_EQ(info->function.key, QStringLiteral("Job"));
    EXPECT_EQ(info->function.caption, QString());
}

struct BadInfo {
    const char *name;
    const char *bytes;
};

class BadModuleInfo : public testing::TestWithParam<BadInfo> { };

TEST_P(BadModuleInfo, IsRefused)
{
    EXPECT_FALSE(parseModuleInfo(QByteArray(GetParam().bytes)));
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BadModuleInfo,
    testing::Values(BadInfo{"Empty", ""}, BadInfo{"OneField", "Tarnwell"}, BadInfo{"ThreeFields", "A,B(b),C(c)"},
                    BadInfo{"EmptyLibrary", ",B(b),C(c),1,"}, BadInfo{"EmptyFunction", "A,B(b),,1,"},
                    BadInfo{"NotGbk", "A,B(\xFF\xFF),C(c),1,"}, BadInfo{"CutCharacter", "A,B(b),C(c),1,\xD2"}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace vortaq::test
