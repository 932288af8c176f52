// SPDX-License-Identifier: MIT
// Errors that handlers let out.
#include "toolkit/guard.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QStringList>
#include <QTest>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

class Guard : public testing::Test {
protected:
    void SetUp() override
    {
        m_before = automation::setErrorDisplay([this](const QString &message) { m_shown.append(message); });
    }

    void TearDown() override { automation::setErrorDisplay(m_before); }

    QStringList m_shown;
    automation::ErrorDisplay m_before;
};

TEST_F(Guard, isSilentWithoutAnError)
{
    int runs = 0;
    EXPECT_TRUE(toolkit::guarded([&runs] { ++runs; }));
    EXPECT_EQ(runs, 1);
    EXPECT_TRUE(m_shown.isEmpty());
}

TEST_F(Guard, displaysTheMessage)
{
    EXPECT_FALSE(toolkit::guarded([] { throw std::runtime_error("查询失败：表不存在"); }));
    EXPECT_EQ(m_shown, QStringList{u"查询失败：表不存在"_s});
}

TEST_F(Guard, displaysWhatIsNoException)
{
    EXPECT_FALSE(toolkit::guarded([] { throw 42; }));
    EXPECT_EQ(m_shown, QStringList{u"未知错误。"_s});
}

TEST_F(Guard, saysWhatTheClerkWasDoing)
{
    EXPECT_FALSE(toolkit::guarded(u"载入窗口"_s, [] { throw std::runtime_error("查询失败：表不存在"); }));
    QPushButton button;
    toolkit::connectGuarded(&button, &QPushButton::clicked, &button, u"100%1保存"_s,
                            [] { throw std::runtime_error("%2"); });
    button.click();
    EXPECT_EQ(m_shown, (QStringList{u"载入窗口时出错：\n查询失败：表不存在"_s, u"100%1保存时出错：\n%2"_s}));
}

TEST_F(Guard, knowsOfHandlersAtWork)
{
    EXPECT_FALSE(toolkit::HandlerAtWork::any());
    toolkit::guarded([] {
        toolkit::guarded(u"保存"_s, [] { EXPECT_TRUE(toolkit::HandlerAtWork::any()); });
        EXPECT_TRUE(toolkit::HandlerAtWork::any()) << "the outer one still is";
        throw 42;
    });
    EXPECT_FALSE(toolkit::HandlerAtWork::any());
}

TEST_F(Guard, countsAsAtWorkWhileItsErrorIsShown)
{
    bool atWork = false;
    automation::setErrorDisplay([&atWork](const QString &) { atWork = toolkit::HandlerAtWork::any(); });
    toolkit::guarded([] { throw std::runtime_error("失败"); });
    EXPECT_TRUE(atWork);
}

TEST_F(Guard, passesTheSignalsArguments)
{
    QPushButton button;
    button.setCheckable(true);
    QList<bool> states;
    toolkit::connectGuarded(&button, &QPushButton::clicked, &button,
                            [&states](bool checked) { states.append(checked); });
    button.click();
    button.click();
    EXPECT_EQ(states, (QList<bool>{true, false}));
}

TEST_F(Guard, callsAHandlerWithoutArguments)
{
    QPushButton button;
    int clicks = 0;
    toolkit::connectGuarded(&button, &QPushButton::clicked, &button, [&clicks] { ++clicks; });
    button.click();
    EXPECT_EQ(clicks, 1);
}

TEST_F(Guard, disconnectsWithTheContext)
{
    QPushButton button;
    int clicks = 0;
    {
        const QObject context;
        toolkit::connectGuarded(&button, &QPushButton::clicked, &context, [&clicks] { ++clicks; });
    }
    button.click();
    EXPECT_EQ(clicks, 0);
}

TEST_F(Guard, survivesTwoThousandThrowingClicks)
{
    constexpr int Clicks = 2000;
    QPushButton button(u"保存"_s);
    button.show();
    int reached = 0;
    toolkit::connectGuarded(&button, &QPushButton::clicked, &button, [&reached] {
        ++reached;
        throw std::runtime_error("失败");
    });
    const QSignalSpy clicked(&button, &QPushButton::clicked);
    for (int i = 0; i < Clicks; ++i)
        QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(reached, Clicks);
    EXPECT_EQ(clicked.count(), Clicks); // what is connected behind the failing handler still runs
    EXPECT_EQ(m_shown.size(), Clicks);
}

} // namespace
