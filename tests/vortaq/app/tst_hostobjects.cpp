// SPDX-License-Identifier: MIT
// Tests of the three host objects as a module sees them: names, kinds, argument counts, results.
#include "tests/vortaq/app/support/hostfixture.h"

#include "automation/error.h"
#include "automation/latebound.h"

#include <QCursor>
#include <QGuiApplication>

#include <gtest/gtest.h>

namespace vortaq::test {

using automation::Kind;
using automation::LateBound;

struct DeclaredOperation {
    const char *name;
    const char *identifier;
    const char *operation;
    Kind kind;
    int arguments;
};

void PrintTo(const DeclaredOperation &operation, std::ostream *out)
{
    *out << operation.name;
}

class HostObjectOperation : public testing::TestWithParam<DeclaredOperation> { };

constexpr const char *DataCtlName = "VortaqCore.DataCtl";
constexpr const char *FuncStorageName = "VortaqCore.FuncStorage";
constexpr const char *CodeSearchName = "VortaqCore.CodeSearch";

INSTANTIATE_TEST_SUITE_P(
    All, HostObjectOperation,
    testing::Values(DeclaredOperation{"OpenSql", DataCtlName, "OpenSql", Kind::Method, 1},
                    DeclaredOperation{"CloseSql", DataCtlName, "CloseSql", Kind::Method, 0},
                    DeclaredOperation{"execSql", DataCtlName, "execSql", Kind::Method, 1},
                    DeclaredOperation{"ExecProc", DataCtlName, "ExecProc", Kind::Method, 1},
                    DeclaredOperation{"BeginTran", DataCtlName, "BeginTran", Kind::Method, 0},
                    DeclaredOperation{"CommitTran", DataCtlName, "CommitTran", Kind::Method, 0},
                    DeclaredOperation{"RollbackTran", DataCtlName, "RollbackTran", Kind::Method, 0},
                    DeclaredOperation{"CustomParam", FuncStorageName, "CustomParam", Kind::Read, 1},
                    DeclaredOperation{"Alert", FuncStorageName, "Alert", Kind::Method, 1},
                    DeclaredOperation{"ShowHint", FuncStorageName, "ShowHint", Kind::Method, 1},
                    DeclaredOperation{"UserName", FuncStorageName, "UserName", Kind::Method, 0},
                    DeclaredOperation{"UserID", FuncStorageName, "UserID", Kind::Method, 0},
                    DeclaredOperation{"RightParam", FuncStorageName, "RightParam", Kind::Method, 0},
                    DeclaredOperation{"GetSRM", FuncStorageName, "GetSRM", Kind::Method, 0},
                    DeclaredOperation{"Init", CodeSearchName, "Init", Kind::Method, 0},
                    DeclaredOperation{"Table", CodeSearchName, "Table", Kind::Write, 1},
                    DeclaredOperation{"Where", CodeSearchName, "Where", Kind::Write, 1},
                    DeclaredOperation{"OrderBy", CodeSearchName, "OrderBy", Kind::Write, 1},
                    DeclaredOperation{"FieldList", CodeSearchName, "FieldList", Kind::Write, 1},
                    DeclaredOperation{"CustomField", CodeSearchName, "CustomField", Kind::Write, 1},
                    DeclaredOperation{"CodeType", CodeSearchName, "CodeType", Kind::Write, 1},
                    DeclaredOperation{"Code", CodeSearchName, "Code", Kind::Write, 1},
                    DeclaredOperation{"SetPosition", CodeSearchName, "SetPosition", Kind::Method, 3},
                    DeclaredOperation{"Show", CodeSearchName, "Show", Kind::Method, 0},
                    DeclaredOperation{"GetCodeValue", CodeSearchName, "GetCodeValue", Kind::Method, 1}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_P(HostObjectOperation, ExistsUnderThisKindOnly)
{
    const HostFixture host;
    const LateBound object(QString::fromLatin1(GetParam().identifier));
    const QString operation = QString::fromLatin1(GetParam().operation);
    for (const Kind kind : {Kind::Method, Kind::Read, Kind::Write}) {
        if (kind == GetParam().kind)
            EXPECT_TRUE(object.resolve(operation, kind).isResolved());
        else
            EXPECT_THROW((void)object.resolve(operation, kind), automation::Error);
    }
}

TEST_P(HostObjectOperation, RefusesAnotherNumberOfArguments)
{
    const HostFixture host;
    const LateBound object(QString::fromLatin1(GetParam().identifier));
    const automation::Operation operation = object.resolve(QString::fromLatin1(GetParam().operation), GetParam().kind);
    try {
        if (GetParam().arguments == 0)
            object.invoke(operation, {1});
        else
            object.invoke(operation);
        FAIL() << "the call went through";
    } catch (const automation::Error &error) {
        EXPECT_EQ(error.reason(), automation::Error::Reason::ArgumentCount);
    }
    EXPECT_EQ(host.calls(), QStringList());
    EXPECT_EQ(host.messages->noted(), QStringList());
}

QVariant call(const LateBound &object, const char *operation, std::initializer_list<QVariant> arguments = {})
{
    return object.invoke(QString::fromLatin1(operation), Kind::Method, arguments);
}

TEST(HostObjects, TheIdentifiersGoWithTheSession)
{
    {
        const HostFixture host;
        EXPECT_FALSE(LateBound(QStringLiteral("VortaqCore.DataCtl")).isEmpty());
    }
    for (const char *identifier : {DataCtlName, FuncStorageName, CodeSearchName})
        EXPECT_THROW(LateBound(QString::fromLatin1(identifier)), automation::Error) << identifier;
}

TEST(HostObjects, OpenSqlHandsThePacketOver)
{
    const HostFixture host;
    const auto rows = packet({QStringLiteral("a")}, {{QStringLiteral("x")}});
    host.engine->answer(QStringLiteral("select a from t"), rows);
    const QVariant result =
        call(LateBound(QStringLiteral("VortaqCore.DataCtl")), "OpenSql", {QStringLiteral("select a from t")});
    EXPECT_EQ(result.value<automation::DataPacketPtr>(), rows);
}

TEST(HostObjects, OpenSqlOfEmptyTextGivesAnEmptyPacket)
{
    const HostFixture host;
    const QVariant result = call(LateBound(QStringLiteral("VortaqCore.DataCtl")), "OpenSql", {QString()});
    const auto rows = result.value<automation::DataPacketPtr>();
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->columnCount(), 0);
    EXPECT_EQ(rows->rowCount(), 0);
}

TEST(HostObjects, ExecProcRunsTheProcedureKeptInTheDatabase)
{
    const HostFixture host;
    host.engine->answer(QStringLiteral("select Text from v_Procedure where Name='P'"),
                        packet({QStringLiteral("Text")}, {{QStringLiteral("select @A")}}));
    host.engine->answer(QStringLiteral("select 'x'"), packet({QString()}, {{QStringLiteral("1&2#3")}}));
    EXPECT_EQ(call(LateBound(QStringLiteral("VortaqCore.DataCtl")), "ExecProc",
                   {QStringLiteral(" P @A='x',@Info=:Info OutPut ")}),
              QVariant(QStringLiteral("1&2#3")));
}

TEST(HostObjects, AllDataControlsWorkOnOneConnection)
{
    const HostFixture host;
    const LateBound first(QStringLiteral("VortaqCore.DataCtl"));
    const LateBound second(QStringLiteral("VortaqCore.DataCtl"));
    call(first, "BeginTran");
    EXPECT_EQ(call(second, "execSql", {QStringLiteral("delete from t")}).toInt(), 2);
    call(first, "CloseSql");
    call(first, "CommitTran");
    call(second, "RollbackTran");
    EXPECT_EQ(host.calls(),
              QStringList({QStringLiteral("begin"), QStringLiteral("execute delete from t"), QStringLiteral("commit"),
                           QStringLiteral("rollback")}));
}

TEST(HostObjects, TheWaitCursorStandsDuringACallAndGoesAlsoAfterAnError)
{
    const HostFixture host;
    const LateBound object(QStringLiteral("VortaqCore.DataCtl"));
    int waiting = 0;
    host.engine->onCall([&waiting] {
        const QCursor *cursor = QGuiApplication::overrideCursor();
        waiting += cursor && cursor->shape() == Qt::WaitCursor ? 1 : 0;
    });
    call(object, "BeginTran");
    call(object, "execSql", {QStringLiteral("delete from t")});
    host.engine->failWith(QStringLiteral("锁定"));
    EXPECT_THROW(call(object, "OpenSql", {QStringLiteral("select 1")}), SqlError);
    EXPECT_THROW(call(object, "execSql", {QStringLiteral("delete from t")}), SqlError);
    EXPECT_THROW(call(object, "CommitTran"), SqlError);
    EXPECT_THROW(call(object, "RollbackTran"), SqlError);
    EXPECT_EQ(waiting, 6);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST(HostObjects, AnErrorOfTheEngineReachesTheCallerUnchanged)
{
    const HostFixture host;
    host.engine->failWith(QStringLiteral("数据库正被其他程序使用。"));
    try {
        call(LateBound(QStringLiteral("VortaqCore.DataCtl")), "execSql", {QStringLiteral("delete from t")});
        FAIL() << "no error";
    } catch (const SqlError &error) {
        EXPECT_STREQ(error.what(), "数据库正被其他程序使用。");
    }
}

TEST(HostObjects, FuncStorageTellsTheFactsOfTheUser)
{
    const HostFixture host(QStringLiteral("02"));
    const LateBound object(QStringLiteral("VortaqCore.FuncStorage"));
    EXPECT_EQ(call(object, "UserName"), QStringLiteral("李会计"));
    EXPECT_EQ(call(object, "UserID"), QStringLiteral("02"));
    EXPECT_EQ(call(object, "RightParam"), QStringLiteral("3"));
    EXPECT_EQ(object.invoke(QStringLiteral("CustomParam"), Kind::Read, {QStringLiteral("isBillAll")}),
              QStringLiteral("2"));
    EXPECT_FALSE(object.invoke(QStringLiteral("CustomParam"), Kind::Read, {QStringLiteral("none")}).isValid());
    EXPECT_EQ(host.calls(), QStringList()) << "parameters are kept in memory";
}

TEST(HostObjects, MessagesGoToTheScreenAsTheyAre)
{
    const HostFixture host;
    const LateBound object(QStringLiteral("VortaqCore.FuncStorage"));
    EXPECT_FALSE(call(object, "Alert", {QStringLiteral("制单失败！\r\n磁盘满")}).isValid());
    EXPECT_FALSE(call(object, "ShowHint", {QStringLiteral("制单成功！")}).isValid());
    EXPECT_EQ(host.messages->noted(),
              QStringList({QStringLiteral("alert 制单失败！\r\n磁盘满"), QStringLiteral("hint 制单成功！")}));
}

TEST(HostObjects, TheInputMethodTravelsFromGetSrmToCodeType)
{
    struct Row {
        const char *parameter;
        bool byCode;
        bool byName;
    };
    for (const Row &row : {Row{"code", true, false}, Row{"name", false, true}, Row{"", true, true}}) {
        const HostFixture host({}, {{QStringLiteral("LookupBy"), QString::fromLatin1(row.parameter)}});
        const QVariant method = call(LateBound(QStringLiteral("VortaqCore.FuncStorage")), "GetSRM");
        EXPECT_EQ(method.toMap(),
                  (QVariantMap{{QStringLiteral("byCode"), row.byCode}, {QStringLiteral("byName"), row.byName}}))
            << row.parameter;
        const LateBound search(QStringLiteral("VortaqCore.CodeSearch"));
        EXPECT_NO_THROW(search.invoke(QStringLiteral("CodeType"), Kind::Write, {method}));
    }
}

TEST(HostObjects, ObjectsOutliveTheirAnnouncement)
{
    LateBound object;
    {
        const HostFixture host;
        object = LateBound(QStringLiteral("VortaqCore.FuncStorage"));
    }
    EXPECT_EQ(call(object, "UserID"), QStringLiteral("01"));
}

} // namespace vortaq::test
