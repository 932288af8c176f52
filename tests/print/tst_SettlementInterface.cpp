// SPDX-License-Identifier: MIT
// What the scheme pays for a stay: by stored procedure and by library.
#include "print/SettlementInterface.h"

#include "Common/executablefolder.h"
#include "host/statementbuffer.h"
#include "tests/print/printhost.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using print::SettlementInterface;
using print::SettlementRoute;

namespace {

constexpr int current = 1;
constexpr int archived = 2;

const data::RecordKey Stay{QStringLiteral("4201"), QStringLiteral("00'12"), QStringLiteral("1"), QStringLiteral("3")};

QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

class SettlementTest : public testing::Test {
protected:
    ~SettlementTest() override { common::setExecutableFolder({}); }

    double ask(const char *result, int type = current)
    {
        m_host.script.procedureResult = text(result);
        return m_settlement.QueryFreeFee(SettlementRoute::Procedure, Stay, type);
    }
    double askLibrary(const char *idNo, const char *diagNo = "1")
    {
        return m_settlement.QueryFreeFee(SettlementRoute::Library,
                                         {QStringLiteral("42'01"), text("证0012"), text(idNo), text(diagNo)}, current);
    }
    [[nodiscard]] QStringList calls() { return std::exchange(m_host.script.calls, {}); }
    [[nodiscard]] std::string printInfo() const { return m_settlement.printInfo().toStdString(); }

    printhost::Host m_host;
    host::StatementBuffer m_statements;
    SettlementInterface m_settlement{m_statements};
};

const char *const Call = " Pro_Zy_FeeInterFace @OrgCode='4201',@CoopMedCode='00''12',@IDNo='1',@DiagNo='3',@Type='1',"
                         "@Info=:Info OutPut ";
const char *const ArchiveCall = " Pro_Zy_SFeeInterFace @OrgCode='4201',@CoopMedCode='00''12',@IDNo='1',@DiagNo='3',"
                                "@Type='1',@Info=:Info OutPut ";

struct GoodResult {
    const char *name;
    const char *result;
    double amount;
    const char *summary;
};

struct BadResult {
    const char *name;
    const char *result;
};

class GoodResults : public SettlementTest, public testing::WithParamInterface<GoodResult> { };
class BadResults : public SettlementTest, public testing::WithParamInterface<BadResult> { };

} // namespace

TEST_P(GoodResults, GiveAmountAndSummary)
{
    EXPECT_EQ(ask(GetParam().result), GetParam().amount);
    EXPECT_EQ(printInfo(), GetParam().summary);
    EXPECT_EQ(calls(), QStringList(text("ExecProc") + text(Call)));
}

INSTANTIATE_TEST_SUITE_P(All, GoodResults,
                         testing::Values(GoodResult{"Usual", "1&123.45#ABC", 123.45, "ABC"},
                                         GoodResult{"NoSummary", "1&123.45#", 123.45, ""},
                                         GoodResult{"NoAmountOfCents", "1&7#x", 7, "x"},
                                         GoodResult{"Negative", "1&-0.5#x", -0.5, "x"},
                                         GoodResult{"BlanksBefore", "1&     100.10#住院9天。", 100.10, "住院9天。"},
                                         GoodResult{"AnyOtherStatus", "9&1.5#x", 1.5, "x"},
                                         GoodResult{"BlankStatus", " &1.5#x", 1.5, "x"},
                                         GoodResult{"FirstHashCounts", "1&1.5#a#b&c", 1.5, "a#b&c"}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_P(BadResults, FailTheConversionAndKeepTheSummary)
{
    ASSERT_EQ(ask("1&1#before"), 1);
    (void)calls();
    EXPECT_THROW((void)ask(GetParam().result), std::invalid_argument);
    EXPECT_EQ(printInfo(), "before");
    EXPECT_EQ(calls(), QStringList(text("ExecProc") + text(Call))) << "no alert of its own";
}

// The amount is cut out by the places of the first "&" and "#", but is taken to begin at the third character.
INSTANTIATE_TEST_SUITE_P(All, BadResults,
                         testing::Values(BadResult{"Empty", ""}, BadResult{"NoHash", "1&123.45"},
                                         BadResult{"HashBeforeAmpersand", "1#2&3"}, BadResult{"NoAmount", "1&#x"},
                                         BadResult{"AmpersandAtTheFirstPlace", "&12#x"},
                                         BadResult{"AmpersandAtTheThirdPlace", "12&34#x"},
                                         BadResult{"NoAmpersand", "1x5#x"}, BadResult{"NoNumber", "1&12元#x"},
                                         BadResult{"DigitGroups", "1&1,234.5#x"}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST_F(SettlementTest, ARefusalIsAlertedAndKeepsTheSummaryOfTheStayBefore)
{
    ASSERT_EQ(ask("1&123.45#ABC"), 123.45);
    (void)calls();
    EXPECT_EQ(ask("0&XYZ"), 0);
    EXPECT_EQ(calls(), QStringList({text("ExecProc") + text(Call), text("Alert XYZ")}));
    EXPECT_EQ(printInfo(), "ABC");
    EXPECT_EQ(ask("0&没有#结算&"), 0);
    EXPECT_EQ(calls().last(), text("Alert 没有#结算&")) << "to the end";
    EXPECT_EQ(ask("0"), 0);
    EXPECT_EQ(calls().last(), text("Alert "));
    EXPECT_EQ(printInfo(), "ABC");
}

TEST_F(SettlementTest, AnArchivedStayHasAProcedureOfItsOwn)
{
    EXPECT_EQ(ask("1&2#x", archived), 2);
    EXPECT_EQ(calls(), QStringList(text("ExecProc") + text(ArchiveCall)));
    EXPECT_EQ(m_statements.statement, text(ArchiveCall)) << "the call goes through the form's buffer";
    EXPECT_EQ(ask("1&2#x", 3), 2);
    EXPECT_EQ(calls(), QStringList(text("ExecProc") + text(Call)));
}

TEST_F(SettlementTest, AFailingProcedureReachesTheCaller)
{
    ASSERT_EQ(ask("1&1#before"), 1);
    m_host.script.procedureFailure = text("没有存储过程");
    EXPECT_THROW((void)ask("1&2#x"), std::exception);
    EXPECT_EQ(printInfo(), "before");
}

TEST_F(SettlementTest, WithoutARouteNothingIsCalled)
{
    m_settlement.FeeDllPath = QStringLiteral(ECHO_LIBRARY);
    EXPECT_EQ(m_settlement.QueryFreeFee(SettlementRoute::None, Stay, current), 0);
    EXPECT_EQ(m_settlement.QueryFreeFee(static_cast<SettlementRoute>(3), Stay, current), 0);
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(SettlementTest, TheLibrarysAmountIsRoundedToCentsHalvesToEven)
{
    m_settlement.FeeDllPath = QStringLiteral("  " ECHO_LIBRARY " ");
    EXPECT_EQ(askLibrary("100.125"), 100.12);
    EXPECT_EQ(askLibrary("100.375"), 100.38);
    EXPECT_EQ(askLibrary("0.625"), 0.62);
    EXPECT_EQ(askLibrary("-0.125"), -0.12);
    EXPECT_EQ(askLibrary("7"), 7);
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(SettlementTest, TheLibraryIsAskedForTheStayAndItsRefusalIsAlerted)
{
    m_settlement.FeeDllPath = QStringLiteral(ECHO_LIBRARY);
    EXPECT_EQ(askLibrary("1", "-3"), 0);
    EXPECT_EQ(calls(), QStringList(text("Alert 拒付 42'01|证0012|1|-3|1")));
}

TEST_F(SettlementTest, TheLibraryIsUnloadedWhateverItSays)
{
    m_settlement.FeeDllPath = QStringLiteral(ECHO_LIBRARY);
    const auto isLoaded = [] {
        QFile map(QStringLiteral("/proc/self/maps"));
        EXPECT_TRUE(map.open(QIODevice::ReadOnly));
        return map.readAll().contains("echo_library");
    };
    (void)askLibrary("1");
    EXPECT_FALSE(isLoaded());
    (void)askLibrary("1", "-1");
    EXPECT_FALSE(isLoaded());
}

TEST_F(SettlementTest, TheLibraryLeavesTheSummaryAlone)
{
    ASSERT_EQ(ask("1&1#before"), 1);
    m_settlement.FeeDllPath = QStringLiteral(ECHO_LIBRARY);
    EXPECT_EQ(askLibrary("5"), 5);
    EXPECT_EQ(printInfo(), "before");
}

TEST_F(SettlementTest, ALibraryThatCannotBeLoadedPaysNothingAndSaysNothing)
{
    const QTemporaryDir folder;
    common::setExecutableFolder(folder.path());
    EXPECT_EQ(askLibrary("5"), 0) << "the usual one is missing";
    m_settlement.FeeDllPath = folder.filePath(QStringLiteral("other.so"));
    EXPECT_EQ(askLibrary("5"), 0);
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(SettlementTest, ALibraryWithoutTheFunctionIsAnError)
{
    m_settlement.FeeDllPath = QStringLiteral(NO_FUNCTION_LIBRARY);
    try {
        (void)askLibrary("5");
        FAIL() << "no error";
    } catch (const std::runtime_error &error) {
        EXPECT_STREQ(error.what(), "结算接口库中没有函数“GetFreeFees”。");
    }
}

TEST_F(SettlementTest, TheUsualLibraryStandsInTheFolderModuleBesideTheHost)
{
    const QTemporaryDir folder;
    common::setExecutableFolder(folder.path());
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Module")));
    ASSERT_TRUE(QFile::copy(QStringLiteral(SAMPLE_LIBRARY), folder.filePath(QStringLiteral("Module/FeeInterFace.so"))));
    EXPECT_EQ(askLibrary("5", "1"), 100.12);
    EXPECT_EQ(askLibrary("5", "2"), 0);
    EXPECT_EQ(calls(), QStringList(text("Alert 示例接口只结算第一次住院。")));
}
