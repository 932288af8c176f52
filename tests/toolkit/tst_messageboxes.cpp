// SPDX-License-Identifier: MIT
// The real message boxes, answered by keys and clicks; and the seam before them.
#include "toolkit/messageboxes.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr char16_t Text[] = u"当前选择记录有已被制单信息！\r\n0012   <b>李'四</b>\r\n是否继续？";

QString text()
{
    return QString::fromUtf16(Text);
}

/// Runs `answer` on the box that opens next.
class WhenBoxOpens {
public:
    explicit WhenBoxOpens(std::function<void(QMessageBox &)> answer)
        : m_answer(std::move(answer))
    {
        m_timer.setInterval(0);
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || !box->isVisible())
                return;
            m_timer.stop();
            m_opened = true;
            m_answer(*box);
            QTimer::singleShot(std::chrono::seconds(10), box, [box] {
                ADD_FAILURE() << "the box is still open";
                box->done(QMessageBox::NoRole);
            });
        });
        m_timer.start();
    }

    [[nodiscard]] bool opened() const { return m_opened; }

private:
    QTimer m_timer;
    std::function<void(QMessageBox &)> m_answer;
    bool m_opened = false;
};

bool answerOf(const std::function<void(QMessageBox &)> &answer)
{
    const WhenBoxOpens box(answer);
    const bool result = toolkit::messageBoxes().ask(nullptr, u"提示"_s, text());
    EXPECT_TRUE(box.opened());
    return result;
}

TEST(AskBox, looksAsAQuestionShould)
{
    answerOf([](QMessageBox &box) {
        EXPECT_EQ(box.windowTitle(), u"提示"_s);
        EXPECT_EQ(box.text(), text());
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        ASSERT_EQ(box.buttons().size(), 2);
        EXPECT_EQ(box.findChild<QPushButton *>(u"btnYes"_s)->text(), u"是(&Y)"_s);
        EXPECT_EQ(box.findChild<QPushButton *>(u"btnNo"_s)->text(), u"否(&N)"_s);
        EXPECT_EQ(box.defaultButton(), box.findChild<QPushButton *>(u"btnYes"_s));
        box.close();
    });
}

TEST(AskBox, takesYes)
{
    EXPECT_TRUE(answerOf([](QMessageBox &box) { box.findChild<QPushButton *>(u"btnYes"_s)->click(); }));
}

TEST(AskBox, takesNo)
{
    EXPECT_FALSE(answerOf([](QMessageBox &box) { box.findChild<QPushButton *>(u"btnNo"_s)->click(); }));
}

TEST(AskBox, takesEnterForTheFirstButton)
{
    EXPECT_TRUE(answerOf([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); }));
}

TEST(AskBoxBeforeLoss, takesEnterForNo)
{
    const WhenBoxOpens opened([](QMessageBox &box) {
        EXPECT_EQ(box.buttons().size(), 2);
        EXPECT_EQ(box.defaultButton(), box.findChild<QPushButton *>(u"btnNo"_s));
        EXPECT_EQ(box.windowTitle(), u"确认"_s);
        EXPECT_EQ(box.text(), text());
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_FALSE(toolkit::messageBoxes().askBeforeLoss(nullptr, u"确认"_s, text()));
    EXPECT_TRUE(opened.opened());
}

TEST(AskBoxBeforeLoss, takesYesByItsLetter)
{
    const WhenBoxOpens opened([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Y); });
    EXPECT_TRUE(toolkit::messageBoxes().askBeforeLoss(nullptr, u"确认"_s, text()));
    EXPECT_TRUE(opened.opened());
}

TEST(AskBox, takesItsLetters)
{
    EXPECT_TRUE(answerOf([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Y); }));
    EXPECT_FALSE(answerOf([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_N); }));
}

TEST(AskBox, takesEscapeAndClosingForNo)
{
    EXPECT_FALSE(answerOf([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); }));
    EXPECT_FALSE(answerOf([](QMessageBox &box) { box.close(); }));
}

TEST(AskBox, staysOnTheScreenHoweverMuchItLists)
{
    QString list;
    for (int i = 0; i < 5000; ++i)
        list += u"\r\n42010600"_s + QString::number(10000 + i) + u"   李四"_s;
    const WhenBoxOpens opened([&list](QMessageBox &box) {
        EXPECT_EQ(box.text(), list);
        EXPECT_LE(box.height(), box.screen()->availableGeometry().height());
        EXPECT_TRUE(box.rect().contains(box.findChild<QPushButton *>(u"btnYes"_s)->geometry()));
        EXPECT_TRUE(box.findChild<QScrollArea *>()->verticalScrollBar()->isVisible());
        EXPECT_FALSE(box.findChild<QScrollArea *>()->horizontalScrollBar()->isVisible());
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_TRUE(toolkit::messageBoxes().ask(nullptr, u"提示"_s, list));
    EXPECT_TRUE(opened.opened());
}

TEST(TellBox, hasOneButton)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        const WhenBoxOpens opened([key](QMessageBox &box) {
            EXPECT_EQ(box.windowTitle(), u"提示"_s);
            EXPECT_EQ(box.text(), u"该单据现在状态为:上报"_s);
            EXPECT_EQ(box.icon(), QMessageBox::Question);
            ASSERT_EQ(box.buttons().size(), 1);
            EXPECT_EQ(box.findChild<QPushButton *>(u"btnOk"_s)->text(), u"确定"_s);
            QTest::keyClick(&box, key);
        });
        toolkit::messageBoxes().tell(nullptr, u"提示"_s, u"该单据现在状态为:上报"_s);
        EXPECT_TRUE(opened.opened());
    }
}

class Scripted final : public toolkit::MessageBoxes {
public:
    bool ask(QWidget *, const QString &, const QString &) override { return true; }
    void tell(QWidget *, const QString &, const QString &) override { }
};

TEST(MessageBoxes, canBeReplacedAndRestored)
{
    toolkit::MessageBoxes &real = toolkit::messageBoxes();
    Scripted scripted;
    toolkit::setMessageBoxes(&scripted);
    EXPECT_EQ(&toolkit::messageBoxes(), &scripted);
    toolkit::setMessageBoxes(nullptr);
    EXPECT_EQ(&toolkit::messageBoxes(), &real);
}

} // namespace
