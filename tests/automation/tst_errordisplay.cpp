// SPDX-License-Identifier: MIT
// The way of an uncaught error to the host.
#include "automation/errordisplay.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <stdexcept>

TEST(ErrorDisplay, messagesReachTheDisplayThatIsSet)
{
    QStringList shown;
    const automation::ErrorDisplay before =
        automation::setErrorDisplay([&shown](const QString &message) { shown.append(message); });
    automation::displayError(QStringLiteral("查询失败"));
    const automation::ErrorDisplay mine = automation::setErrorDisplay(before);
    EXPECT_TRUE(mine);
    EXPECT_EQ(shown, QStringList({QStringLiteral("查询失败")}));
}

TEST(ErrorDisplay, aDisplayThatFailsDoesNotEndTheProgram)
{
    int calls = 0;
    const automation::ErrorDisplay before = automation::setErrorDisplay([&calls](const QString &) {
        if (++calls == 1)
            throw std::runtime_error("no display");
        throw 42;
    });
    automation::displayError(QStringLiteral("甲"));
    automation::displayError(QStringLiteral("乙"));
    automation::setErrorDisplay(before);
    EXPECT_EQ(calls, 2);
}
