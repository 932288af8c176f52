// SPDX-License-Identifier: MIT
// Tests of F5: the open form loads itself anew, after a question when it holds input that is not saved.
#include "tests/support/hands.h"
#include "tests/support/modalvisit.h"
#include "tests/vortaq/app/support/mainwindowfixture.h"

#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

namespace vortaq::test {

class FormRefreshTest : public MainWindowFixture {
protected:
    FormRefreshTest()
        : MainWindowFixture(QStringLiteral(TEST_PLAIN_MODULE))
    {
        trigger("openFunctionAction");
    }

    [[nodiscard]] QWidget &form() const { return *m_module.form(); }
    [[nodiscard]] int showings() const { return form().property("shown").toInt(); }
    void pressF5()
    {
        m_window.activateWindow(); // as a window manager does when a dialog has gone
        ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
        QTest::keyClick(&m_window, Qt::Key_F5);
    }
    /// Presses F5 and does something with the question.
    void pressF5And(const std::function<void(QWidget &question)> &answer)
    {
        const ModalVisit visit(QStringLiteral("refreshQuestion"), answer);
        pressF5();
    }
};

TEST_F(FormRefreshTest, TheFormIsShownAnew)
{
    pressF5();
    EXPECT_EQ(showings(), 2);
    EXPECT_TRUE(form().isVisible());
    EXPECT_EQ(m_window.windowTitle(), QStringLiteral("制单 - 农合医院业务平台"));
    EXPECT_EQ(m_errors, QStringList());
    QApplication::processEvents();
    EXPECT_TRUE(form().isVisible()) << "for good";
}

TEST_F(FormRefreshTest, TheFocusStaysWhereItWas)
{
    QLineEdit other(&form());
    other.show();
    other.setFocus();
    pressF5();
    EXPECT_EQ(QApplication::focusWidget(), &other);
}

TEST_F(FormRefreshTest, UnsavedInputIsAskedAbout)
{
    form().setProperty("unsavedInput", true);
    for (const Qt::Key refusal : {Qt::Key_Return, Qt::Key_Escape}) {
        pressF5And([refusal](QWidget &question) { QTest::keyClick(&question, refusal); });
        EXPECT_EQ(showings(), 1);
    }
    pressF5And([](QWidget &question) { hands::click(question, "btnNo"); });
    EXPECT_EQ(showings(), 1);
    pressF5And([](QWidget &question) { hands::click(question, "btnYes"); });
    EXPECT_EQ(showings(), 2);
}

TEST_F(FormRefreshTest, TheQuestionSaysWhatIsLost)
{
    form().setProperty("unsavedInput", true);
    pressF5And([](QWidget &question) {
        EXPECT_EQ(qobject_cast<QMessageBox *>(&question)->text(),
                  QStringLiteral("当前功能里有还没有保存的内容（例如打勾选择的记录），刷新后将会丢失。\n是否继续？"));
        EXPECT_EQ(question.windowTitle(), QStringLiteral("农合医院业务平台"));
    });
}

TEST_F(FormRefreshTest, NothingIsAskedWhenAllIsSaved)
{
    form().setProperty("unsavedInput", false);
    pressF5();
    EXPECT_EQ(showings(), 2);
}

TEST_F(FormRefreshTest, AFormThatWasLeftStaysClosed)
{
    form().close();
    QApplication::processEvents();
    pressF5();
    EXPECT_EQ(showings(), 1);
    EXPECT_FALSE(form().isVisible());
}

} // namespace vortaq::test
