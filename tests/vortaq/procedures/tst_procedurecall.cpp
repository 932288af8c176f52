// SPDX-License-Identifier: MIT
// Calls of stored procedures, taken to pieces.
#include "vortaq/procedures/ProcedureCall.h"

#include "vortaq/SqlError.h"

#include <gtest/gtest.h>

namespace vortaq {

namespace {

std::string dump(const ProcedureCall &call)
{
    QString text = call.name;
    for (const ProcedureArgument &argument : call.arguments)
        text += QStringLiteral(" %1=[%2]").arg(argument.name, argument.value);
    return (text + QStringLiteral(" -> ") + call.output).toStdString();
}

struct GoodCall {
    const char *name;
    const char *text;
    const char *expected;
};

struct BadCall {
    const char *name;
    const char *text;
    const char *message;
};

class GoodCalls : public testing::TestWithParam<GoodCall> { };
class BadCalls : public testing::TestWithParam<BadCall> { };

} // namespace

TEST_P(GoodCalls, AreTakenToPieces)
{
    EXPECT_EQ(dump(parseProcedureCall(QString::fromUtf8(GetParam().text))), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    All, GoodCalls,
    testing::Values(
        GoodCall{"AsTheModuleWritesIt",
                 " Pro_Zy_FeeInterFace @OrgCode='4201',@CoopMedCode='0012',@IDNo='1',@DiagNo='3',@Type='1',@Info=:Info "
                 "OutPut ",
                 "Pro_Zy_FeeInterFace OrgCode=[4201] CoopMedCode=[0012] IDNo=[1] DiagNo=[3] Type=[1] -> Info"},
        GoodCall{"QuotesInside", "P @A='it''s',@B='''',@R=:R output", "P A=[it's] B=['] -> R"},
        GoodCall{"SignsInside", "P @A=',@B=''1'' :x OutPut',@R=:R output", "P A=[,@B='1' :x OutPut] -> R"},
        GoodCall{"EmptyText", "P @A='',@R=:R output", "P A=[] -> R"},
        GoodCall{"ChineseText", "过程 @机构='甲镇',@结果=:结果 OUTPUT", "过程 机构=[甲镇] -> 结果"},
        GoodCall{"NoArguments", "P @R=:R output", "P -> R"},
        GoodCall{"OutputFirst", "P @R=:X output,@A='1'", "P A=[1] -> R"},
        GoodCall{"BlanksEverywhere", "\r\n P\t@A = '1' , @R = : R output \n", "P A=[1] -> R"}),
    [](const auto &row) { return std::string(row.param.name); });

TEST_P(BadCalls, AreRefusedWithThePlace)
{
    try {
        (void)parseProcedureCall(QString::fromUtf8(GetParam().text));
        FAIL() << "no error";
    } catch (const SqlError &error) {
        EXPECT_STREQ(error.what(), GetParam().message);
        EXPECT_EQ(error.reason(), SqlError::Reason::Syntax);
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, BadCalls,
    testing::Values(
        BadCall{"Empty", "", "存储过程调用有误（第1个字符）：此处应为存储过程名"},
        BadCall{"NoParameters", "P", "存储过程调用有误（第2个字符）：此处应为“@”"},
        BadCall{"DigitFirst", "1P @R=:R output", "存储过程调用有误（第1个字符）：此处应为存储过程名"},
        BadCall{"NoParameterName", "P @='1',@R=:R output", "存储过程调用有误（第4个字符）：此处应为参数名"},
        BadCall{"Unquoted", "P @A=1,@R=:R output", "存储过程调用有误（第6个字符）：此处应为“'”"},
        BadCall{"OpenText", "P @A='1,@R=:R output", "存储过程调用有误（第21个字符）：字符串没有结束"},
        BadCall{"NoOutput", "P @A='1'", "存储过程调用有误（第9个字符）：缺少输出参数"},
        BadCall{"NoOutputWord", "P @R=:R", "存储过程调用有误（第8个字符）：此处应为output"},
        BadCall{"OtherWord", "P @R=:R outputs", "存储过程调用有误（第16个字符）：输出参数后应为“output”"},
        BadCall{"TwoOutputs", "P @R=:R output,@S=:S output", "存储过程调用有误（第28个字符）：只能有一个输出参数"},
        BadCall{"TwiceTheName", "P @A='1',@a='2',@R=:R output", "存储过程调用有误（第12个字符）：参数“@a”重复"},
        BadCall{"OutputTwiceTheName", "P @R=:R output,@r='2'", "存储过程调用有误（第18个字符）：参数“@r”重复"},
        BadCall{"MoreText", "P @R=:R output; delete from t", "存储过程调用有误（第15个字符）：多余的文字"},
        BadCall{"CommaAtTheEnd", "P @R=:R output,", "存储过程调用有误（第16个字符）：此处应为“@”"}),
    [](const auto &row) { return std::string(row.param.name); });

} // namespace vortaq
