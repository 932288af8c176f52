// SPDX-License-Identifier: MIT
// Tests of the code look-up, driven by keys as a clerk does it.
#include "tests/vortaq/app/support/hostfixture.h"

#include "automation/latebound.h"

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <functional>

namespace vortaq::test {

using automation::Kind;
using automation::LateBound;

class CodeSearchTest : public testing::Test {
protected:
    CodeSearchTest()
        : m_host({},
                 {{QStringLiteral("OrgCode"), QStringLiteral("4210B1")},
                  {QStringLiteral("OrgName"), QStringLiteral("本院")}})
        , m_search(QStringLiteral("VortaqCore.CodeSearch"))
    {
        m_host.engine->answer(statement(),
                              packet({code(), name()},
                                     {{QStringLiteral("4210A1"), QStringLiteral("青山镇卫生院")},
                                      {QStringLiteral("4210A2"), QStringLiteral("白石镇中心卫生院")},
                                      {QStringLiteral("4210B1"), QStringLiteral("Ａ区人民医院")},
                                      {QStringLiteral("4210B2"), QStringLiteral("青云乡卫生院")}}));
    }

    static QString code() { return QStringLiteral("医疗服务单位代码"); }
    static QString name() { return QStringLiteral("医疗服务单位名称"); }
    static QString statement()
    {
        return QStringLiteral(
            "select OrgCode as 医疗服务单位代码,OrgName as 医疗服务单位名称 from p_ylfwdw where  OrgCode "
            "like '4210%' order by OrgCode");
    }

    void call(const char *operation, std::initializer_list<QVariant> arguments = {})
    {
        m_search.invoke(QString::fromLatin1(operation), Kind::Method, arguments);
    }
    void write(const char *property, const QVariant &value)
    {
        m_search.invoke(QString::fromLatin1(property), Kind::Write, {value});
    }

    /// Steps 1 to 9 of the protocol.
    void prepare(const QString &key, const QVariant &codeType = {})
    {
        call("Init");
        write("Table", QStringLiteral("p_ylfwdw"));
        write("Where", QStringLiteral(" OrgCode like '4210%'"));
        write("OrderBy", QString());
        write("FieldList", QStringLiteral("OrgCode as 医疗服务单位代码,OrgName as 医疗服务单位名称"));
        write("CustomField", QStringLiteral("OrgCode"));
        write("CodeType", codeType);
        write("Code", key);
        call("SetPosition", {0, -2, 18});
    }

    /// Shows the list and lets `clerk` work on it; a list still open afterwards is cancelled and fails the test.
    void show(const std::function<void(QLineEdit &, QTableView &)> &clerk)
    {
        bool worked = false;
        QTimer::singleShot(0, [&] {
            auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
            clerk(*dialog->findChild<QLineEdit *>(QStringLiteral("codeSearchFilter")),
                  *dialog->findChild<QTableView *>(QStringLiteral("codeSearchList")));
            worked = true;
            if (dialog->isVisible()) {
                ADD_FAILURE() << "the list is still open";
                dialog->reject();
            }
        });
        call("Show");
        EXPECT_TRUE(worked);
    }

    QString value(const QString &column)
    {
        return m_search.invoke(QStringLiteral("GetCodeValue"), Kind::Method, {column}).toString();
    }

    static QStringList shownCodes(const QTableView &list)
    {
        QStringList codes;
        for (int row = 0; row < list.model()->rowCount(); ++row)
            codes.append(list.model()->index(row, 0).data().toString());
        return codes;
    }

    HostFixture m_host;
    LateBound m_search;
};

TEST_F(CodeSearchTest, EnterTakesTheFirstRow)
{
    prepare(QString(QChar(u'\0')));
    show([](QLineEdit &filter, QTableView &list) {
        EXPECT_EQ(filter.text(), QString());
        EXPECT_TRUE(filter.hasFocus());
        EXPECT_EQ(list.model()->rowCount(), 4);
        EXPECT_EQ(list.model()->headerData(1, Qt::Horizontal), name());
        QTest::keyClick(&filter, Qt::Key_Return);
    });
    EXPECT_EQ(value(code()), QStringLiteral("4210A1"));
    EXPECT_EQ(value(name()), QStringLiteral("青山镇卫生院"));
    EXPECT_EQ(m_host.calls(), QStringList(QStringLiteral("query ") + statement())) << "rows are loaded once";
}

TEST_F(CodeSearchTest, TheOpeningKeyBeginsTheFilterAndTypingGoesOn)
{
    prepare(QStringLiteral("B"));
    show([](QLineEdit &filter, QTableView &list) {
        EXPECT_EQ(filter.text(), QStringLiteral("B"));
        EXPECT_EQ(shownCodes(list), QStringList({QStringLiteral("4210B1"), QStringLiteral("4210B2")}));
        QTest::keyClicks(&filter, QStringLiteral("2"));
        EXPECT_EQ(shownCodes(list), QStringList({QStringLiteral("4210B2")}));
        QTest::keyClick(&filter, Qt::Key_Enter);
    });
    EXPECT_EQ(value(code()), QStringLiteral("4210B2"));
}

TEST_F(CodeSearchTest, NamesAreFoundByAnyPart)
{
    prepare(QString());
    show([](QLineEdit &filter, QTableView &list) {
        filter.insert(QStringLiteral(" 青 "));
        EXPECT_EQ(shownCodes(list), QStringList({QStringLiteral("4210A1"), QStringLiteral("4210B2")}));
        QTest::keyClick(&filter, Qt::Key_Down);
        EXPECT_TRUE(filter.hasFocus());
        QTest::keyClick(&filter, Qt::Key_Return);
    });
    EXPECT_EQ(value(name()), QStringLiteral("青云乡卫生院"));
}

TEST_F(CodeSearchTest, ArrowsAndPagesMoveAndStopAtTheEnds)
{
    prepare(QString());
    show([](QLineEdit &filter, QTableView &list) {
        const auto row = [&list] { return list.currentIndex().row(); };
        QTest::keyClick(&filter, Qt::Key_Up);
        EXPECT_EQ(row(), 0);
        QTest::keyClick(&filter, Qt::Key_Down);
        EXPECT_EQ(row(), 1);
        QTest::keyClick(&filter, Qt::Key_PageDown);
        EXPECT_EQ(row(), 3);
        QTest::keyClick(&filter, Qt::Key_Down);
        EXPECT_EQ(row(), 3);
        QTest::keyClick(&filter, Qt::Key_PageUp);
        EXPECT_EQ(row(), 0);
        QTest::keyClick(&filter, Qt::Key_End, Qt::ControlModifier);
        EXPECT_EQ(row(), 3);
        QTest::keyClick(&filter, Qt::Key_Home, Qt::ControlModifier);
        EXPECT_EQ(row(), 0);
        QTest::keyClick(&filter, Qt::Key_Return);
    });
    EXPECT_EQ(value(code()), QStringLiteral("4210A1"));
}

TEST_F(CodeSearchTest, EnterOnAnEmptyListDoesNothing)
{
    prepare(QString());
    show([](QLineEdit &filter, QTableView &list) {
        filter.insert(QStringLiteral("没有"));
        EXPECT_EQ(list.model()->rowCount(), 0);
        QTest::keyClick(&filter, Qt::Key_Return);
        QTest::keyClick(&filter, Qt::Key_Down);
        EXPECT_TRUE(filter.window()->isVisible());
        QTest::keyClick(&filter, Qt::Key_Escape);
    });
    EXPECT_EQ(value(code()), QStringLiteral("4210B1"));
}

TEST_F(CodeSearchTest, ADoubleClickTakesTheRow)
{
    prepare(QString());
    show([](QLineEdit &, QTableView &list) {
        const QPoint cell = list.visualRect(list.model()->index(2, 1)).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, cell);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, cell);
    });
    EXPECT_EQ(value(code()), QStringLiteral("4210B1"));
}

void escape(QLineEdit &filter, QTableView &)
{
    QTest::keyClick(&filter, Qt::Key_Escape);
}

// A module takes over whatever stands here, also after a search that was given up: its field must not change by that.
TEST_F(CodeSearchTest, GivenUpAtFirstItAnswersTheClerksOwnInstitution)
{
    prepare(QStringLiteral("A"));
    show(escape);
    EXPECT_EQ(value(code()), QStringLiteral("4210B1"));
    EXPECT_EQ(value(name()), QStringLiteral("本院"));
}

TEST_F(CodeSearchTest, GivenUpItAnswersWhatWasChosenLast)
{
    prepare(QStringLiteral("A"));
    show([](QLineEdit &filter, QTableView &) { QTest::keyClick(&filter, Qt::Key_Return); });
    EXPECT_EQ(value(code()), QStringLiteral("4210A1"));
    for (int i = 0; i < 2; ++i) {
        prepare(QStringLiteral("B"));
        show(escape);
        EXPECT_EQ(value(code()), QStringLiteral("4210A1"));
        EXPECT_EQ(value(name()), QStringLiteral("青山镇卫生院"));
    }
}

TEST_F(CodeSearchTest, AnotherListHasItsOwnLastChoice)
{
    const QString doctors =
        QStringLiteral("select DoctorCode as 代码,DoctorName as 姓名 from p_Doctor order by DoctorCode");
    m_host.engine->answer(doctors, packet({QStringLiteral("代码"), QStringLiteral("姓名")}, {}));
    prepare(QStringLiteral("A"));
    show([](QLineEdit &filter, QTableView &) { QTest::keyClick(&filter, Qt::Key_Return); });
    call("Init");
    write("Table", QStringLiteral("p_Doctor"));
    write("FieldList", QStringLiteral("DoctorCode as 代码,DoctorName as 姓名"));
    write("CustomField", QStringLiteral("DoctorCode"));
    show(escape);
    EXPECT_EQ(value(QStringLiteral("代码")), QString()) << "the host knows no doctor of the clerk's own";
}

TEST_F(CodeSearchTest, InitForgetsTheAnswer)
{
    prepare(QStringLiteral("A"));
    show([](QLineEdit &filter, QTableView &) { QTest::keyClick(&filter, Qt::Key_Return); });
    call("Init");
    EXPECT_EQ(value(code()), QString());
}

TEST_F(CodeSearchTest, AnUnknownColumnIsAnError)
{
    prepare(QStringLiteral("A"));
    show([](QLineEdit &filter, QTableView &) { QTest::keyClick(&filter, Qt::Key_Return); });
    try {
        value(QStringLiteral("电话"));
        FAIL() << "no error";
    } catch (const std::invalid_argument &error) {
        EXPECT_STREQ(error.what(), "代码查询没有栏目“电话”。");
    }
}

TEST_F(CodeSearchTest, TheInputMethodLimitsWhereIsLooked)
{
    prepare(QStringLiteral("2"), QVariantMap{{QStringLiteral("byCode"), false}, {QStringLiteral("byName"), true}});
    show([](QLineEdit &filter, QTableView &list) {
        EXPECT_EQ(list.model()->rowCount(), 0);
        filter.setText(QStringLiteral("白石"));
        EXPECT_EQ(list.model()->rowCount(), 1);
        QTest::keyClick(&filter, Qt::Key_Return);
    });
    EXPECT_EQ(value(code()), QStringLiteral("4210A2"));
}

TEST_F(CodeSearchTest, ABrokenConditionIsTheDatabasesError)
{
    prepare(QStringLiteral("A"));
    write("Where", QStringLiteral(" OrgCode like '42'10%'"));
    EXPECT_THROW(call("Show"), SqlError);
    EXPECT_EQ(value(code()), QString());
}

TEST_F(CodeSearchTest, TheListDropsDownFromTheFocusedField)
{
    QWidget window;
    QLineEdit field(&window);
    field.move(40, 30);
    window.show();
    window.activateWindow();
    field.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    prepare(QString());
    const QPoint expected = field.mapToGlobal(QPoint(0, field.height() - 2));
    show([expected](QLineEdit &filter, QTableView &) {
        EXPECT_EQ(filter.window()->pos(), expected);
        QTest::keyClick(&filter, Qt::Key_Escape);
    });
}

} // namespace vortaq::test
