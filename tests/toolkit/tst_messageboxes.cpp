// SPDX-License-Identifier: MIT
// The real message boxes, answered by keys and clicks; and the seam before them.
#include "toolkit/messageboxes.h"

#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QTextEdit>
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

bool isSeenWhole(const QWidget *widget)
{
    return widget != nullptr && widget->isVisible() && widget->visibleRegion().boundingRect() == widget->rect();
}

QString manyNames(int count)
{
    QString text = u"当前选择记录有已被制单信息！"_s;
    for (int i = 0; i < count; ++i)
        text += u"\r\n42010600"_s + QString::number(10000 + i) + u"   李四"_s;
    return text + u"\r\n是否继续？"_s;
}

class LongQuestion : public testing::TestWithParam<int> { };

TEST_P(LongQuestion, keepsItsEndAndItsButtonsInViewHoweverMuchItLists)
{
    const QString question = manyNames(GetParam());
    const WhenBoxOpens opened([&question](QMessageBox &box) {
        EXPECT_EQ(box.text(), question);
        EXPECT_TRUE(box.screen()->availableGeometry().contains(box.frameGeometry()))
            << box.width() << 'x' << box.height();
        EXPECT_TRUE(isSeenWhole(box.findChild<QPushButton *>(u"btnYes"_s)));
        EXPECT_TRUE(isSeenWhole(box.findChild<QPushButton *>(u"btnNo"_s)));

        const auto *begin = box.findChild<QLabel *>(u"boxBegin"_s);
        const auto *end = box.findChild<QLabel *>(u"boxEnd"_s);
        const auto *list = box.findChild<QTextEdit *>(u"boxList"_s);
        ASSERT_TRUE(begin && end && list);
        EXPECT_EQ(
            QStringList({begin->text(), list->toPlainText().replace(u'\n', u"\r\n"_s), end->text()}).join(u"\r\n"_s),
            question);
        EXPECT_TRUE(isSeenWhole(begin));
        EXPECT_TRUE(isSeenWhole(end));
        EXPECT_TRUE(list->verticalScrollBar()->isVisible());
        EXPECT_FALSE(list->horizontalScrollBar()->isVisible());
        EXPECT_EQ(list->verticalScrollBar()->value(), 0) << "the first names are seen first";
        EXPECT_GE(list->viewport()->height(), 3 * list->fontMetrics().lineSpacing());
        QTest::keyClick(&box, Qt::Key_Return);
    });
    EXPECT_TRUE(toolkit::messageBoxes().ask(nullptr, u"提示"_s, question));
    EXPECT_TRUE(opened.opened());
}

INSTANTIATE_TEST_SUITE_P(Names, LongQuestion, testing::Values(60, 1000, 5000));

TEST(AskBox, showsAShortListAsItIs)
{
    answerOf([](QMessageBox &box) {
        EXPECT_EQ(box.findChild<QTextEdit *>(), nullptr);
        EXPECT_TRUE(isSeenWhole(box.findChild<QLabel *>(u"qt_msgbox_label"_s)));
        box.close();
    });
}

TEST(AskBox, takesItsLettersBesideALongListToo)
{
    const WhenBoxOpens opened([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_N); });
    EXPECT_FALSE(toolkit::messageBoxes().ask(nullptr, u"提示"_s, manyNames(1000)));
}

// No list, but one endless line, as a database's own words may be.
TEST(TellBox, scrollsATextWithoutLines)
{
    for (const QString &text : {u"失败"_s.repeated(3000), u"x"_s.repeated(3900)}) {
        const WhenBoxOpens opened([&text](QMessageBox &box) {
            EXPECT_EQ(box.text(), text);
            const auto *field = box.findChild<QTextEdit *>(u"boxList"_s);
            ASSERT_TRUE(field);
            EXPECT_EQ(field->toPlainText(), text);
            EXPECT_TRUE(box.screen()->availableGeometry().contains(box.frameGeometry()));
            EXPECT_TRUE(isSeenWhole(box.findChild<QPushButton *>(u"btnOk"_s)));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        toolkit::messageBoxes().tell(nullptr, u"提示"_s, text);
        EXPECT_TRUE(opened.opened());
    }
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
