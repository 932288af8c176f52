// SPDX-License-Identifier: MIT
// Tests of signing in and of the host parameters.
#include "tests/vortaq/app/support/hostfixture.h"
#include "vortaq/app/exitcode.h"

#include <gtest/gtest.h>

namespace vortaq::test {

TEST(Session, WithoutACodeTheFirstUserWorks)
{
    const HostFixture host;
    EXPECT_EQ(host.session->user().code, QStringLiteral("01"));
    EXPECT_EQ(host.session->user().name, QStringLiteral("管理员"));
    EXPECT_EQ(host.session->user().rights, QStringLiteral("1,2,3"));
}

TEST(Session, ACodeChoosesTheUser)
{
    const HostFixture host(QStringLiteral("02"));
    EXPECT_EQ(host.session->user().name, QStringLiteral("李会计"));
}

TEST(Session, AnUnknownUserIsRefusedAndItsCodeQuoted)
{
    try {
        [[maybe_unused]] const auto session = signIn(engineWithUsers(), QStringLiteral("O'x"), {});
        FAIL() << "the user was let in";
    } catch (const StartupError &error) {
        EXPECT_EQ(error.exitCode(), ExitCode::User);
        EXPECT_STREQ(error.what(), "数据库中没有用户“O'x”。");
    }
}

TEST(Session, ADatabaseWithoutUsersIsRefused)
{
    auto engine = std::make_shared<ScriptedEngine>();
    engine->answer(QStringLiteral("select UserCode,UserName,RightParam from v_User order by UserCode"),
                   packet({QStringLiteral("UserCode"), QStringLiteral("UserName"), QStringLiteral("RightParam")}, {}));
    try {
        [[maybe_unused]] const auto session = signIn(engine, {}, {});
        FAIL() << "somebody was let in";
    } catch (const StartupError &error) {
        EXPECT_STREQ(error.what(), "数据库中没有任何用户。");
    }
}

TEST(Session, TheUsersOwnParameterGoesBeforeTheCommonOne)
{
    EXPECT_EQ(HostFixture(QStringLiteral("01")).session->parameter(QStringLiteral("isBillAll")), QStringLiteral("1"));
    EXPECT_EQ(HostFixture(QStringLiteral("02")).session->parameter(QStringLiteral("isBillAll")), QStringLiteral("2"));
    EXPECT_EQ(HostFixture(QStringLiteral("02")).session->parameter(QStringLiteral("AreaCode")), QStringLiteral("4210"));
}

TEST(Session, TheCommandLineGoesBeforeBoth)
{
    const HostFixture host(QStringLiteral("02"),
                           {{QStringLiteral("isBillAll"), QStringLiteral("7")}, {QStringLiteral("New"), QString()}});
    EXPECT_EQ(host.session->parameter(QStringLiteral("isBillAll")), QStringLiteral("7"));
    EXPECT_TRUE(host.session->parameter(QStringLiteral("New")).isValid());
}

TEST(Session, AnUnknownParameterIsAnInvalidVariant)
{
    EXPECT_FALSE(HostFixture().session->parameter(QStringLiteral("Color-9")).isValid());
    EXPECT_FALSE(HostFixture().session->parameter(QStringLiteral("areacode")).isValid());
}

} // namespace vortaq::test
