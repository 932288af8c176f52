// SPDX-License-Identifier: MIT
// Tests of the alert box and the passing hint.
#include "vortaq/app/screenmessages.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace vortaq::test {

class ScreenMessagesTest : public testing::Test {
protected:
    ScreenMessagesTest()
        : m_edit(&m_window)
    {
        m_window.resize(400, 300);
        m_window.show();
        m_window.activateWindow();
        m_edit.setFocus();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    QWidget m_window;
    QLineEdit m_edit;
    ScreenMessages m_messages;
};

TEST_F(ScreenMessagesTest, AnAlertIsModalAndTitledByTheHost)
{
    int seen = 0;
    QTimer::singleShot(0, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        EXPECT_EQ(box->objectName(), QStringLiteral("alertBox"));
        EXPECT_EQ(box->windowTitle(), QStringLiteral("农合医院业务平台"));
        EXPECT_EQ(box->text(), QStringLiteral("制单失败！\r\n<磁盘满>"));
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        EXPECT_EQ(box->icon(), QMessageBox::Critical);
        EXPECT_EQ(box->parentWidget(), &m_window);
        ++seen;
        QTest::keyClick(box, Qt::Key_Return);
    });
    m_messages.alert(QStringLiteral("制单失败！\r\n<磁盘满>"));
    EXPECT_EQ(seen, 1);
}

TEST_F(ScreenMessagesTest, AnAlertOverADialogBelongsToIt)
{
    QDialog dialog(&m_window);
    dialog.setModal(true);
    dialog.show();
    int seen = 0;
    QTimer::singleShot(0, [&] {
        QWidget *box = QApplication::activeModalWidget();
        ASSERT_TRUE(box);
        EXPECT_EQ(box->parentWidget(), &dialog);
        ++seen;
        QTest::keyClick(box, Qt::Key_Escape);
    });
    m_messages.alert(QStringLiteral("错误"));
    EXPECT_EQ(seen, 1);
}

TEST_F(ScreenMessagesTest, AHintTakesNeitherFocusNorClicks)
{
    m_messages.hint(QStringLiteral("制单成功！"));
    auto *label = m_window.findChild<QLabel *>(QStringLiteral("hintLabel"));
    ASSERT_TRUE(label);
    EXPECT_TRUE(label->isVisible());
    EXPECT_EQ(label->text(), QStringLiteral("制单成功！"));
    EXPECT_TRUE(label->testAttribute(Qt::WA_TransparentForMouseEvents));
    EXPECT_TRUE(m_edit.hasFocus());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(ScreenMessagesTest, ALaterHintReplacesTheFirst)
{
    m_messages.hint(QStringLiteral("一"));
    m_messages.hint(QStringLiteral("二"));
    const auto labels = m_window.findChildren<QLabel *>(QStringLiteral("hintLabel"));
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(labels.constFirst()->text(), QStringLiteral("二"));
}

TEST_F(ScreenMessagesTest, AHintOverADialogStaysWithTheWindowBehind)
{
    QDialog dialog(&m_window);
    dialog.setModal(true);
    dialog.show();
    m_messages.hint(QStringLiteral("添加成功！"));
    EXPECT_TRUE(m_window.findChild<QLabel *>(QStringLiteral("hintLabel"), Qt::FindDirectChildrenOnly));
}

} // namespace vortaq::test
