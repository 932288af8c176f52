// SPDX-License-Identifier: MIT
// Tests of the boxes in which uncaught errors are shown.
#include "vortaq/app/errorqueue.h"

#include "automation/errordisplay.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QTextEdit>

#include <gtest/gtest.h>

#include <memory>

namespace vortaq::test {

/// Lets boxes come and go.
void settle()
{
    for (int i = 0; i < 5; ++i) {
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

std::vector<QMessageBox *> boxes()
{
    std::vector<QMessageBox *> found;
    for (QWidget *widget : QApplication::topLevelWidgets()) {
        auto *box = qobject_cast<QMessageBox *>(widget);
        if (box && box->isVisible())
            found.push_back(box);
    }
    return found;
}

QString shown()
{
    const auto open = boxes();
    return open.size() == 1 ? open.front()->text() : QStringLiteral("%1 boxes").arg(open.size());
}

void confirm()
{
    ASSERT_EQ(boxes().size(), 1U);
    boxes().front()->buttons().constFirst()->click();
    settle();
}

TEST(ErrorQueue, OneBoxAtATimeInTheOrderOfErrors)
{
    const ErrorQueue queue;
    automation::displayError(QStringLiteral("第一"));
    automation::displayError(QStringLiteral("第二"));
    EXPECT_EQ(boxes().size(), 0U) << "nothing opens while the error is being reported";
    settle();
    EXPECT_EQ(shown(), QStringLiteral("第一"));
    confirm();
    EXPECT_EQ(shown(), QStringLiteral("第二"));
    automation::displayError(QStringLiteral("第三"));
    settle();
    EXPECT_EQ(shown(), QStringLiteral("第二"));
    confirm();
    EXPECT_EQ(shown(), QStringLiteral("第三"));
    confirm();
    EXPECT_EQ(boxes().size(), 0U);
}

TEST(ErrorQueue, ALongMessageLeavesTheButtonOnTheScreen)
{
    const ErrorQueue queue;
    const QString message = QStringLiteral("数据库的话\n").repeated(500);
    for (const QString &expected : {message, message + QStringLiteral("\n（共 2 次）")}) {
        automation::displayError(message);
        settle();
        ASSERT_EQ(boxes().size(), 1U);
        const QMessageBox &box = *boxes().front();
        EXPECT_EQ(box.text(), expected);
        const auto *field = box.findChild<QTextEdit *>();
        ASSERT_TRUE(field);
        EXPECT_EQ(field->toPlainText(), expected);
        EXPECT_TRUE(box.screen()->availableGeometry().contains(box.frameGeometry()));
        EXPECT_TRUE(box.rect().contains(box.buttons().constFirst()->geometry()));
    }
    confirm();
}

TEST(ErrorQueue, EqualMessagesAreCounted)
{
    const ErrorQueue queue;
    for (int i = 0; i < 3; ++i)
        automation::displayError(QStringLiteral("颜色参数有误"));
    automation::displayError(QStringLiteral("其他"));
    settle();
    EXPECT_EQ(shown(), QStringLiteral("颜色参数有误\n（共 3 次）"));
    automation::displayError(QStringLiteral("颜色参数有误"));
    EXPECT_EQ(shown(), QStringLiteral("颜色参数有误\n（共 4 次）"));
    confirm();
    EXPECT_EQ(shown(), QStringLiteral("其他"));
    automation::displayError(QStringLiteral("颜色参数有误"));
    confirm();
    EXPECT_EQ(shown(), QStringLiteral("颜色参数有误")) << "the count starts anew";
    confirm();
}

TEST(ErrorQueue, AWindowThatGoesTakesItsBoxAndTheNextOneComes)
{
    const ErrorQueue queue;
    auto window = std::make_unique<QWidget>();
    window->show();
    window->activateWindow();
    settle();
    automation::displayError(QStringLiteral("第一"));
    automation::displayError(QStringLiteral("第二"));
    settle();
    ASSERT_EQ(shown(), QStringLiteral("第一"));
    window.reset();
    settle();
    EXPECT_EQ(shown(), QStringLiteral("第二"));
    confirm();
}

TEST(ErrorQueue, MarkupIsShownAsText)
{
    const ErrorQueue queue;
    automation::displayError(QStringLiteral("第1行：“<b>”附近有语法错误"));
    settle();
    ASSERT_EQ(boxes().size(), 1U);
    EXPECT_EQ(boxes().front()->textFormat(), Qt::PlainText);
    confirm();
}

TEST(ErrorQueue, GoesWithItsOpenBox)
{
    {
        const ErrorQueue queue;
        automation::displayError(QStringLiteral("第一"));
        settle();
        EXPECT_EQ(boxes().size(), 1U);
    }
    EXPECT_EQ(boxes().size(), 0U);
}

} // namespace vortaq::test
