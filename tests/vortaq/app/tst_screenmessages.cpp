// SPDX-License-Identifier: MIT
// Tests of the alert box and the passing hint.
#include "tests/support/modalvisit.h"
#include "vortaq/app/screenmessages.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
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

// The row under the clerk's hand is the first one after a reload.
TEST(Hint, HidesNoDataAndMovesNothing)
{
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("业务管理"));
    window.menuBar()->addMenu(QStringLiteral("帮助"));
    auto *page = new QWidget;
    window.setCentralWidget(page);
    window.resize(600, 400);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const QRect place = page->geometry();

    ScreenMessages messages;
    messages.hint(QStringLiteral("制单成功！"));
    QApplication::processEvents();
    auto *label = window.findChild<QLabel *>(QStringLiteral("hintLabel"));
    ASSERT_TRUE(label && label->isVisible());
    EXPECT_EQ(page->geometry(), place);
    EXPECT_FALSE(label->geometry().intersects(place));
    const QRect lastMenu = window.menuBar()->actionGeometry(window.menuBar()->actions().constLast());
    EXPECT_GT(label->geometry().left(), lastMenu.right()) << "the menus stay in sight";
    EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()));
    EXPECT_GE(label->height(), label->fontMetrics().height());

    window.resize(300, 400);
    QApplication::processEvents();
    EXPECT_FALSE(label->geometry().intersects(page->geometry()));
    EXPECT_TRUE(window.rect().contains(label->geometry()));
}

TEST(Hint, ALongOneIsReadableWhole)
{
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("业务管理"));
    window.resize(400, 300);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    ScreenMessages messages;
    messages.hint(QStringLiteral("制单成功！").repeated(20));
    auto *label = window.findChild<QLabel *>(QStringLiteral("hintLabel"));
    ASSERT_TRUE(label && label->isVisible());
    EXPECT_GE(label->height(), label->heightForWidth(label->width()));
    EXPECT_TRUE(window.rect().contains(label->geometry()));
}

struct LongText {
    const char *name;
    QString text;
};

void PrintTo(const LongText &row, std::ostream *out)
{
    *out << row.name;
}

class LongAlert : public testing::TestWithParam<LongText> { };

TEST_P(LongAlert, KeepsItsButtonOnTheScreen)
{
    const ModalVisit visit(QStringLiteral("alertBox"), [](QWidget &dialog) {
        const auto &box = dynamic_cast<const QMessageBox &>(dialog);
        QApplication::processEvents();
        EXPECT_EQ(box.text(), GetParam().text);
        EXPECT_TRUE(box.screen()->availableGeometry().contains(box.frameGeometry()))
            << box.width() << 'x' << box.height();
        const QWidget *button = box.buttons().constFirst();
        EXPECT_EQ(button->visibleRegion().boundingRect(), button->rect());
        const auto *field = box.findChild<QTextEdit *>();
        ASSERT_TRUE(field);
        EXPECT_EQ(field->toPlainText(), QString(GetParam().text).remove(QLatin1Char('\r')));
        EXPECT_TRUE(field->verticalScrollBar()->isVisible());
        EXPECT_FALSE(field->horizontalScrollBar()->isVisible());
    });
    ScreenMessages().alert(GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, LongAlert,
    testing::Values(LongText{"Lines", QStringLiteral("制单失败！") + QStringLiteral("\r\n数据库的话").repeated(300)},
                    LongText{"OneLine", QStringLiteral("制单失败，数据库的话").repeated(500)},
                    LongText{"Unbroken", QStringLiteral("x").repeated(3900)}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace vortaq::test
