// SPDX-License-Identifier: MIT
// The gateway: shared references, loading, the change pattern, the rights.
#include "automation/error.h"
#include "data/rightsfilter.h"
#include "host/change.h"
#include "host/clientdataset.h"
#include "host/loaddataset.h"
#include "host/parameters.h"
#include "host/references.h"
#include "host/rightsscope.h"
#include "tests/host/scriptedhost.h"

#include <gtest/gtest.h>

namespace {

class GatewayTest : public testing::Test {
protected:
    GatewayTest() { m_references.create(); }

    QStringList runChange(host::FailingBegin failingBegin)
    {
        host::runChange(m_references, QStringLiteral("制单失败！"), failingBegin, [this] {
            m_references.DataCtl.execSql(QStringLiteral("一"));
            m_references.DataCtl.execSql(QStringLiteral("二"));
            m_references.DataCtl.CommitTran();
            m_references.FuncStorage.ShowHint(QStringLiteral("成功"));
        });
        return m_host.script.calls;
    }

    static QStringList calls(std::initializer_list<const char *> texts)
    {
        QStringList list;
        for (const char *text : texts)
            list.append(QString::fromUtf8(text));
        return list;
    }

    ScriptedHost m_host;
    host::References m_references;
};

const char *const FailureAlert = "Alert 制单失败！\r\n故障";

} // namespace

TEST_F(GatewayTest, objectsAreCreatedInOrderAndAnewEachTime)
{
    const QStringList once = calls({"VortaqCore.DataCtl", "VortaqCore.FuncStorage", "VortaqCore.CodeSearch"});
    EXPECT_EQ(m_host.created, once);
    m_references.create();
    EXPECT_EQ(m_host.created, once + once);
}

TEST_F(GatewayTest, missingObjectIsAnError)
{
    automation::unregisterObject(QStringLiteral("VortaqCore.FuncStorage"));
    EXPECT_THROW(m_references.create(), automation::Error);
}

TEST_F(GatewayTest, missingOperationIsAnErrorAtItsUseOnly)
{
    m_references.CodeSearch.setTable(QStringLiteral("p_ylfwdw"));
    EXPECT_THROW(m_references.CodeSearch.Show(), automation::Error);
    EXPECT_EQ(m_host.script.calls, calls({"Table p_ylfwdw"}));
}

TEST_F(GatewayTest, loadingOpensLoadsAndCloses)
{
    TClientDataSet set;
    host::loadDataSet(m_references.DataCtl, QStringLiteral("select"), set);
    EXPECT_EQ(m_host.script.calls, calls({"OpenSql select", "CloseSql"})) << "closed although the packet is empty";
    EXPECT_TRUE(set.isEmpty());
}

TEST_F(GatewayTest, failingQueryLeavesTheDataSet)
{
    automation::DataPacketBuilder builder({QStringLiteral("A")});
    builder.append("1");
    m_host.script.rows = builder.finish();
    TClientDataSet set;
    host::loadDataSet(m_references.DataCtl, QStringLiteral("good"), set);
    m_host.script.failingCall = QStringLiteral("OpenSql bad");
    EXPECT_THROW(host::loadDataSet(m_references.DataCtl, QStringLiteral("bad"), set), std::runtime_error);
    EXPECT_EQ(set.recordCount(), 1);
    EXPECT_EQ(m_host.script.calls, calls({"OpenSql good", "CloseSql", "OpenSql bad"}));
}

TEST_F(GatewayTest, changeRunsItsStepsInATransaction)
{
    EXPECT_EQ(runChange(host::FailingBegin::Propagates),
              calls({"BeginTran", "execSql 一", "execSql 二", "CommitTran", "ShowHint 成功"}));
}

TEST_F(GatewayTest, failingStatementRollsBackAndAlerts)
{
    m_host.script.failingCall = QStringLiteral("execSql 二");
    EXPECT_EQ(runChange(host::FailingBegin::Propagates),
              calls({"BeginTran", "execSql 一", "execSql 二", "RollbackTran", FailureAlert}));
}

TEST_F(GatewayTest, stepFailingAfterTheCommitRollsBackToo)
{
    m_host.script.failingCall = QStringLiteral("ShowHint 成功");
    EXPECT_EQ(
        runChange(host::FailingBegin::IsAlerted),
        calls({"BeginTran", "execSql 一", "execSql 二", "CommitTran", "ShowHint 成功", "RollbackTran", FailureAlert}));
}

TEST_F(GatewayTest, failingBeginPropagatesOrIsAlertedAsTheActionHasIt)
{
    m_host.script.failingCall = QStringLiteral("BeginTran");
    EXPECT_THROW(runChange(host::FailingBegin::Propagates), std::runtime_error);
    EXPECT_EQ(m_host.script.calls, calls({"BeginTran"}));
    m_host.script.calls.clear();
    EXPECT_EQ(runChange(host::FailingBegin::IsAlerted), calls({"BeginTran", "RollbackTran", FailureAlert}));
}

TEST_F(GatewayTest, failingRollbackIsRaisedAfterTheAlert)
{
    m_host.script.failingCall = QStringLiteral("RollbackTran");
    EXPECT_THROW(host::runChange(m_references, QStringLiteral("制单失败！"), host::FailingBegin::Propagates,
                                 [] { throw std::runtime_error("先坏"); }),
                 std::runtime_error);
    EXPECT_EQ(m_host.script.calls, calls({"BeginTran", "RollbackTran", "Alert 制单失败！\r\n先坏"}));
}

TEST_F(GatewayTest, aFailureThatIsNoExceptionRollsBackAndAlertsToo)
{
    host::runChange(m_references, QStringLiteral("制单失败！"), host::FailingBegin::Propagates, [] { throw 42; });
    EXPECT_EQ(m_host.script.calls, calls({"BeginTran", "RollbackTran", "Alert 制单失败！\r\n未知错误。"}));
}

TEST_F(GatewayTest, aRollbackThatFailsOddlyIsRaisedAfterTheAlert)
{
    m_host.script.failingCall = QStringLiteral("RollbackTran");
    m_host.script.failsOddly = true;
    EXPECT_THROW(host::runChange(m_references, QStringLiteral("制单失败！"), host::FailingBegin::Propagates,
                                 [] { throw std::runtime_error("先坏"); }),
                 int);
    EXPECT_EQ(m_host.script.calls, calls({"BeginTran", "RollbackTran", "Alert 制单失败！\r\n先坏"}));
}

TEST_F(GatewayTest, institutionListFollowsIsBillAll)
{
    auto &parameters = m_host.script.parameters;
    parameters[QStringLiteral("RightCode")] = QStringLiteral("0'7");

    parameters[QStringLiteral("isBillAll")] = 1; // a number equals its text
    EXPECT_EQ(host::institutionList(m_references.FuncStorage), data::institutionsWithUnbilled());
    EXPECT_EQ(m_host.script.calls, calls({"CustomParam isBillAll"}));

    m_host.script.calls.clear();
    parameters[QStringLiteral("isBillAll")] = QStringLiteral("2");
    EXPECT_EQ(host::institutionList(m_references.FuncStorage),
              data::grantedInstitutionsWithUnbilled({QStringLiteral("02"), QStringLiteral("0'7")}));
    EXPECT_EQ(m_host.script.calls,
              calls({"CustomParam isBillAll", "CustomParam isBillAll", "UserID", "CustomParam RightCode"}));

    parameters.remove(QStringLiteral("isBillAll"));
    EXPECT_EQ(host::institutionList(m_references.FuncStorage), std::nullopt);
}

TEST_F(GatewayTest, recordsAreNarrowedForGrantedUsersOnly)
{
    auto &parameters = m_host.script.parameters;
    for (const char *value : {"1", "3", ""}) {
        parameters[QStringLiteral("isBillAll")] = QString::fromUtf8(value);
        EXPECT_FALSE(host::recordGrant(m_references.FuncStorage).has_value()) << value;
    }
    parameters[QStringLiteral("isBillAll")] = 2;
    m_host.script.calls.clear();
    const auto grant = host::recordGrant(m_references.FuncStorage);
    ASSERT_TRUE(grant.has_value());
    EXPECT_EQ(grant->userCode, QStringLiteral("02"));
    EXPECT_EQ(m_host.script.calls, calls({"CustomParam isBillAll", "UserID", "CustomParam RightCode"}));
}

TEST(Parameters, coloursAreIntegersOf32Bits)
{
    EXPECT_EQ(host::toColour(16711680), 0x00FF0000U);
    EXPECT_EQ(host::toColour(QStringLiteral("4278190085")), 0xFF000005U);
    EXPECT_EQ(host::toColour(-16777211), 0xFF000005U) << "system colours come as negative numbers too";
    for (const QVariant &bad : {QVariant(), QVariant(QStringLiteral("red")), QVariant(4294967296LL)})
        EXPECT_THROW((void)host::toColour(bad), std::invalid_argument);
}
