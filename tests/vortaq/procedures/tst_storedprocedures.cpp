// SPDX-License-Identifier: MIT
// Stored procedures: arguments in their places, failures, and the settlement procedures of the demo county.
#include "vortaq/procedures/storedprocedures.h"

#include "vortaq/Engine.h"
#include "vortaq/demo/demodata.h"
#include "vortaq/sqlite/sqliteengine.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace vortaq {

namespace {

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

struct Filled {
    const char *name;
    const char *procedure;
    const char *call;
    const char *expected; ///< the query, or the message of the refusal
};

class Filling : public testing::TestWithParam<Filled> { };

/// A small demo county, made once.
class Procedures : public testing::Test {
protected:
    static void SetUpTestSuite()
    {
        s_folder = std::make_unique<QTemporaryDir>();
        const QString file = s_folder->filePath(QStringLiteral("demo.db"));
        createDemo(file, {60, 40, 1, QDate(2024, 3, 1), 3});
        s_engine = openSqlite(file, {});
        store("P一", "select @A+'@A'''");
        store("Two", "select 1,@A");
        store("Rows", "select UserCode from v_User where UserCode<>@A");
        store("Nothing", "select OrgCode from p_Ylfwdw where OrgCode=@A");
        store("Null", "select max(OrgCode) from p_Ylfwdw where OrgCode=@A");
        store("Broken", "select @A from nowhere");
        store("Change", "delete from v_User where UserCode=@A");
    }
    static void TearDownTestSuite()
    {
        s_engine.reset();
        s_folder.reset();
    }

    static void store(const char *name, const char *procedure)
    {
        s_engine->execute(QStringLiteral("insert into v_Procedure(Name,Text) values ('%1','%2')")
                              .arg(text(name), text(procedure).replace(u'\'', QStringLiteral("''"))));
    }
    static QString value(const QString &sql)
    {
        const automation::DataPacketPtr rows = s_engine->query(sql);
        const std::string_view cell = rows->text(0, 0);
        return QString::fromUtf8(cell.data(), static_cast<qsizetype>(cell.size()));
    }
    /// The message of the refusal.
    static std::string refusal(const char *call, SqlError::Reason reason = SqlError::Reason::Binding)
    {
        try {
            return "no error: " + execProcedure(*s_engine, text(call)).toStdString();
        } catch (const SqlError &error) {
            EXPECT_EQ(error.reason(), reason);
            return error.what();
        }
    }

    static std::unique_ptr<QTemporaryDir> s_folder;
    static std::unique_ptr<Engine> s_engine;
};

std::unique_ptr<QTemporaryDir> Procedures::s_folder;
std::unique_ptr<Engine> Procedures::s_engine;

} // namespace

TEST_P(Filling, PutsQuotedTextsInForNames)
{
    const ProcedureCall call = parseProcedureCall(text(GetParam().call));
    std::string result;
    try {
        result = withArguments(text(GetParam().procedure), call).toStdString();
    } catch (const SqlError &error) {
        result = error.what();
    }
    EXPECT_EQ(result, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    All, Filling,
    testing::Values(
        Filled{"EveryPlace", "select @A,@B,@A", "P @A='1',@B='2',@R=:R output", "select '1','2','1'"},
        Filled{"LetterCase", "select @orgcode", "P @OrgCode='1',@R=:R output", "select '1'"},
        Filled{"WholeNames", "select @A,@AB", "P @A='1',@AB='2',@R=:R output", "select '1','2'"},
        Filled{"Quotes", "select @A", "P @A='it''s',@R=:R output", "select 'it''s'"},
        Filled{"NotInsideTexts", "select '@A','x''@A',@A", "P @A='1',@R=:R output", "select '@A','x''@A','1'"},
        Filled{"ArgumentsAreNotReadAgain", "select @A,@B", "P @A='@B',@B='''@A',@R=:R output", "select '@B','''@A'"},
        Filled{"NoNames", "select 1", "P @R=:R output", "select 1"},
        Filled{"Missing", "select @A,@B", "P @A='1',@R=:R output", "存储过程“P”缺少参数“@B”"},
        Filled{"OutputIsNoArgument", "select @R", "P @R=:R output", "存储过程“P”缺少参数“@R”"},
        Filled{"Unknown", "select @A,'@B'", "P @A='1',@B='2',@R=:R output", "存储过程“P”没有参数“@B”"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_F(Procedures, GiveTheValueOfTheirQuery)
{
    EXPECT_EQ(execProcedure(*s_engine, text("p一 @a='x''y',@R=:R output")), text("x'y@A'"));
    EXPECT_EQ(execProcedure(*s_engine, text("Null @A='x',@R=:R output")), QString());
}

TEST_F(Procedures, ThatAreNotThereAreNamed)
{
    EXPECT_EQ(refusal("Pro_X @R=:R output"), "存储过程“Pro_X”不存在");
}

TEST_F(Procedures, MustGiveOneValue)
{
    EXPECT_EQ(refusal("Two @A='x',@R=:R output"), "存储过程“Two”应当得到一个值，得到的是1行2列");
    EXPECT_EQ(refusal("Nothing @A='x',@R=:R output"), "存储过程“Nothing”应当得到一个值，得到的是0行1列");
    EXPECT_EQ(refusal("Rows @A='x',@R=:R output"), "存储过程“Rows”应当得到一个值，得到的是2行1列");
}

TEST_F(Procedures, FailAsTheirQueryFails)
{
    EXPECT_NE(refusal("Broken @A='x',@R=:R output").find("nowhere"), std::string::npos);
    (void)refusal("Change @A='01',@R=:R output", SqlError::Reason::Syntax);
    EXPECT_EQ(value(QStringLiteral("select UserCode from v_User where UserCode='01'")), QStringLiteral("01"))
        << "a procedure that changes data is refused";
    (void)refusal("Two @A=x", SqlError::Reason::Syntax);
}

TEST_F(Procedures, OfTheDemoTellWhatTheSettlementOfAStayPays)
{
    for (const QChar prefix : {u'o', u's'}) {
        const QString infix = prefix == u's' ? QStringLiteral("S") : QString();
        const automation::DataPacketPtr stays = s_engine->query(
            QStringLiteral("select OrgCode,CoopMedCode,IDNo,DiagNo,cast(FreeFee as varchar(20)) as FreeFee,"
                           "cast(Fee as varchar(20)) as Fee,cast(CanFreeFee as varchar(20)) as CanFreeFee,DayCount "
                           "from %1_CbZyJsb")
                .arg(prefix));
        ASSERT_GT(stays->rowCount(), 10);
        for (int row = 0; row < stays->rowCount(); ++row) {
            const auto cell = [&](int column) {
                const std::string_view utf8 = stays->text(row, column);
                return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
            };
            const QString call = QStringLiteral(" Pro_Zy_%1FeeInterFace @OrgCode='%2',@CoopMedCode='%3',@IDNo='%4',"
                                                "@DiagNo='%5',@Type='1',@Info=:Info OutPut ")
                                     .arg(infix, cell(0), cell(1), cell(2), cell(3));
            const QString drugs =
                value(QStringLiteral(
                          "select cast(isnull(sum(Fee),0) as varchar(20)) from %1_CbZyJsMxb where OrgCode='%2' and "
                          "CoopMedCode='%3' and IDNo=%4 and DiagNo=%5 and FeeTypeCode in ('01','02','03')")
                          .arg(prefix)
                          .arg(cell(0), cell(1), cell(2), cell(3)));
            EXPECT_EQ(execProcedure(*s_engine, call),
                      QStringLiteral("1&%1#住院%2天，医疗费用%3元，其中可补偿%4元，本次补偿%1元，药品费用%5元。")
                          .arg(cell(4), cell(7), cell(5), cell(6), drugs));
        }
    }
}

TEST_F(Procedures, OfTheDemoRefuseAStayWithoutSettlement)
{
    const QString refused = text("0&这次住院还没有结算，没有补偿信息。");
    EXPECT_EQ(execProcedure(*s_engine,
                            text(" Pro_Zy_FeeInterFace @OrgCode='x''y',@CoopMedCode='1',@IDNo='1',@DiagNo='1',"
                                 "@Type='1',@Info=:Info OutPut ")),
              refused);
    EXPECT_EQ(execProcedure(*s_engine,
                            text(" Pro_Zy_SFeeInterFace @OrgCode='x',@CoopMedCode='1',@IDNo='1',@DiagNo='1',"
                                 "@Type='1',@Info=:Info OutPut ")),
              refused);
}

} // namespace vortaq
