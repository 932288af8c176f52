// SPDX-License-Identifier: MIT
// What the database refuses, as it stands in the trace and in the boxes that a clerk sees.
#include "tests/vortaq/sqlite/testdatabase.h"
#include "vortaq/app/errorqueue.h"
#include "vortaq/app/hostobjects.h"
#include "vortaq/app/screenmessages.h"
#include "vortaq/app/tracefile.h"

#include "automation/error.h"
#include "automation/errordisplay.h"
#include "automation/latebound.h"

#include <QApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace vortaq::test {

using automation::Kind;
using automation::LateBound;

struct Refusal {
    const char *name;
    const char *statement;
    const char *message;
};

class Refusals : public testing::TestWithParam<Refusal> {
protected:
    Refusals()
        : m_objects(std::make_shared<Session>(openSqlite(m_database.file()), User{}, QHash<QString, QString>{}),
                    std::make_shared<ScreenMessages>())
        , m_window(std::make_unique<QWidget>())
    {
        m_database.run("insert into o_CbZyZdb (BillCode,BillNo,Fee) values ('4201',11,1), ('4201',12,'二')");
        m_window->show();
    }

    /// What a change that fails with this statement tells the clerk.
    static QString messageOfChange()
    {
        try {
            const LateBound database(QStringLiteral("VortaqCore.DataCtl"));
            database.invoke(QStringLiteral("execSql"), Kind::Method, {QString::fromUtf8(GetParam().statement)});
        } catch (const std::exception &error) {
            return automation::messageOf(error);
        }
        return {};
    }

    TestDatabase m_database;
    HostObjects m_objects;
    std::unique_ptr<QWidget> m_window;
};

TEST_P(Refusals, StandInTheTraceWithTheirPlace)
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("trace.jsonl"));
    {
        const TraceFile trace(file);
        EXPECT_EQ(messageOfChange(), QString::fromUtf8(GetParam().message));
    }
    QFile written(file);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    const QByteArray line = written.readLine();
    EXPECT_TRUE(written.atEnd()) << "one call, one line";
    EXPECT_EQ(QJsonDocument::fromJson(line).object().value(QStringLiteral("error")).toString(),
              QString::fromUtf8(GetParam().message));
}

TEST_P(Refusals, StandInTheAlertWithTheirPlace)
{
    const QString expected = QStringLiteral("制单失败！\r\n") + QString::fromUtf8(GetParam().message);
    int seen = 0;
    QTimer::singleShot(0, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_TRUE(box);
        EXPECT_EQ(box->text(), expected);
        EXPECT_LE(box->width(), 800) << "fits every screen";
        ++seen;
        QTest::keyClick(box, Qt::Key_Return);
    });
    const LateBound user(QStringLiteral("VortaqCore.FuncStorage"));
    user.invoke(QStringLiteral("Alert"), Kind::Method, {QStringLiteral("制单失败！\r\n") + messageOfChange()});
    EXPECT_EQ(seen, 1);
}

TEST_P(Refusals, StandInTheErrorBoxWithTheirPlace)
{
    const ErrorQueue queue;
    automation::displayError(messageOfChange());
    const auto openBox = [] { return qobject_cast<QMessageBox *>(QApplication::activeModalWidget()); };
    ASSERT_TRUE(QTest::qWaitFor([&] { return openBox() != nullptr; }));
    EXPECT_EQ(openBox()->text(), QString::fromUtf8(GetParam().message));
    QTest::keyClick(openBox(), Qt::Key_Return);
}

INSTANTIATE_TEST_SUITE_P(
    , Refusals,
    testing::Values(
        Refusal{
            "Statement",
            "update o_CbZyBxDj set BillCode='4201',BillNo=13 where BillCode is null and PatientName='张三' and ( or "
            "(OrgCode='4201' and CoopMedCode='420100120034' and IDNo=2 and DiagNo=1))",
            "语法错误（第1行第99列）：“or”附近\n"
            "…Code is null and PatientName='张三' and ( ▶or (OrgCode='4201' and CoopMedCode='4201…"},
        Refusal{"LineOfSeveral", "update o_CbZyZdb\n\tset 票据名称='x'\n where BillNo=12",
                "列名“票据名称”无效（第2行第6列）\nset ▶票据名称='x'"},
        Refusal{"Value", "update o_CbZyZdb set BillName=Str(Fee,10,2) where BillCode='4201'",
                "“二”不是可用的数值。\n所在列：Fee\n所在行：BillCode=4201，BillNo=12"}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace vortaq::test
