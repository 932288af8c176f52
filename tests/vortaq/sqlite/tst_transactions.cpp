// SPDX-License-Identifier: MIT
// All of a change or nothing of it.
#include "tests/vortaq/sqlite/testdatabase.h"

#include <gtest/gtest.h>

namespace {

using namespace vortaq::test;

class Transactions : public testing::Test {
protected:
    int change(const std::string &statement) const { return vortaq::test::change(*m_hospital.engine, statement); }
    [[nodiscard]] std::string bills() const
    {
        return m_hospital.database.look("select group_concat(BillNo) from o_CbZyZdb");
    }

    Hospital m_hospital;
    vortaq::Engine &m_engine = *m_hospital.engine;
};

TEST_F(Transactions, CommitKeeps)
{
    m_engine.begin();
    change("delete from o_CbZyZdb where BillNo=11");
    EXPECT_EQ(bills(), "11,12,13");
    m_engine.commit();
    EXPECT_EQ(bills(), "12,13");
}

TEST_F(Transactions, RollbackForgets)
{
    m_engine.begin();
    change("delete from o_CbZyZdb where BillNo=11");
    change("update o_CbZyBxDj set BillNo=null");
    m_engine.rollback();
    EXPECT_EQ(bills(), "11,12,13");
    EXPECT_EQ(ask(m_engine, "select max(BillNo) from o_CbZyBxDj"), "13");
}

TEST_F(Transactions, WithoutOneEveryStatementStands)
{
    change("delete from o_CbZyZdb where BillNo=11");
    EXPECT_EQ(bills(), "12,13");
}

TEST_F(Transactions, BeginInsideIsAnError)
{
    m_engine.begin();
    change("delete from o_CbZyZdb where BillNo=11");
    EXPECT_EQ(errorOf([&] { m_engine.begin(); }), "Transaction: 上一个事务尚未结束，不能开始新的事务。");
    m_engine.commit();
    EXPECT_EQ(bills(), "12,13");
}

TEST_F(Transactions, CommitOutsideIsAnError)
{
    EXPECT_EQ(errorOf([&] { m_engine.commit(); }), "Transaction: 没有可以提交的事务。");
    m_engine.begin();
    m_engine.commit();
    EXPECT_EQ(errorOf([&] { m_engine.commit(); }), "Transaction: 没有可以提交的事务。");
}

// A failing refresh after the commit also leads to a rollback.
TEST_F(Transactions, RollbackOutsideIsHarmless)
{
    m_engine.rollback();
    m_engine.begin();
    change("delete from o_CbZyZdb where BillNo=11");
    m_engine.commit();
    m_engine.rollback();
    m_engine.rollback();
    EXPECT_EQ(bills(), "12,13");
}

TEST_F(Transactions, AnOpenOneIsForgottenWithTheEngine)
{
    m_engine.begin();
    change("delete from o_CbZyZdb where BillNo=11");
    m_hospital.engine.reset();
    EXPECT_EQ(bills(), "11,12,13");
}

TEST_F(Transactions, AFailingStatementLeavesTheRestOfTheTransaction)
{
    m_hospital.database.run("create trigger t before update on o_CbZyBxDj when new.CoopMedCode='420100120051'"
                            " begin select raise(abort, '不许更改'); end");
    m_engine.begin();
    change("delete from o_CbZyZdb where BillNo=11");
    EXPECT_EQ(errorOf([&] { change("update o_CbZyBxDj set BillNo=99"); }), "Constraint: 数据库拒绝了更改：不许更改");
    EXPECT_EQ(ask(m_engine, "select max(BillNo) from o_CbZyBxDj"), "13");
    m_engine.commit();
    EXPECT_EQ(bills(), "12,13");
}

TEST_F(Transactions, AStatementThatFailsInTheMiddleLeavesNothingBehind)
{
    m_hospital.database.run(
        "create table t (Txt varchar(20), Num int); insert into t values ('1',1),('2',1),('x',1),('4',1)");
    EXPECT_EQ(errorOf([&] { change("update t set Num=Txt"); }), "Conversion: “x”不能转换为int。\n所在列：Num");
    EXPECT_EQ(ask(m_engine, "select sum(Num) from t"), "4");
}

TEST_F(Transactions, WhenTheDatabaseGivesItUpNothingMoreIsWritten)
{
    m_hospital.database.run("create trigger t before delete on o_CbZyZdb when old.BillNo=13"
                            " begin select raise(rollback, '全部撤销'); end");
    m_engine.begin();
    change("delete from o_CbZyZdb where BillNo=11");
    EXPECT_EQ(errorOf([&] { change("delete from o_CbZyZdb where BillNo=13"); }),
              "Constraint: 数据库拒绝了更改：全部撤销");
    const std::string given = "Transaction: 数据库已撤销本次事务，请重新操作。";
    EXPECT_EQ(errorOf([&] { change("delete from o_CbZyZdb where BillNo=12"); }), given);
    EXPECT_EQ(errorOf([&] { ask(m_engine, "select BillNo from o_CbZyZdb"); }), given);
    EXPECT_EQ(errorOf([&] { m_engine.commit(); }), given);
    m_engine.rollback();
    EXPECT_EQ(ask(m_engine, "select BillNo from o_CbZyZdb order by BillNo"), "11\n12\n13");
    m_engine.begin();
    change("delete from o_CbZyZdb where BillNo=12");
    m_engine.commit();
    EXPECT_EQ(bills(), "11,13");
}

TEST_F(Transactions, AFailingCommitCanBeRolledBack)
{
    m_hospital.database.run("create table child (Bill int references parent(Id) deferrable initially deferred);"
                            "create table parent (Id int primary key)");
    m_engine.begin();
    change("insert into child(Bill) values(7)");
    EXPECT_EQ(errorOf([&] { m_engine.commit(); }), "Constraint: 更改与其他表中的数据冲突（外键约束）。");
    m_engine.rollback();
    EXPECT_EQ(ask(m_engine, "select Bill from child"), "");
    m_engine.begin();
    change("insert into parent(Id) values(7)");
    change("insert into child(Bill) values(7)");
    m_engine.commit();
    EXPECT_EQ(ask(m_engine, "select Bill from child"), "7");
}

TEST_F(Transactions, ReadersSeeTheStateBefore)
{
    const auto reader = m_hospital.database.open();
    m_engine.begin();
    change("delete from o_CbZyZdb where BillNo=11");
    EXPECT_EQ(ask(*reader, "select BillNo from o_CbZyZdb order by BillNo"), "11\n12\n13");
    EXPECT_EQ(ask(m_engine, "select BillNo from o_CbZyZdb order by BillNo"), "12\n13");
    m_engine.commit();
    EXPECT_EQ(ask(*reader, "select BillNo from o_CbZyZdb order by BillNo"), "12\n13");
}

} // namespace
