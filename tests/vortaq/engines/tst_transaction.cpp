// SPDX-License-Identifier: MIT
// One transaction at a time, whatever the database.
#include "vortaq/SqlError.h"
#include "vortaq/engines/Transaction.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace vortaq;
using engines::Transaction;

/// Writes down what it is told, and may refuse to commit or give the transaction up.
class Database : public engines::TransactionVerbs {
public:
    void beginWriting() override
    {
        told += "begin ";
        writing = true;
    }
    void commitWriting() override
    {
        told += "commit ";
        if (refuses)
            throw SqlError(SqlError::Reason::Other, "磁盘空间不足，数据没有保存。");
        writing = false;
    }
    void undoWriting() override
    {
        told += "undo ";
        writing = false;
    }
    [[nodiscard]] bool isWriting() const override { return writing; }

    std::string told;
    bool writing = false;
    bool refuses = false;
};

template <typename Action> std::string refusalOf(Action action)
{
    try {
        action();
    } catch (const SqlError &error) {
        return error.what();
    }
    return "none";
}

TEST(Transaction, BeginsCommitsAndBeginsAgain)
{
    Database database;
    Transaction transaction(database);
    transaction.begin();
    transaction.commit();
    transaction.begin();
    transaction.rollback();
    EXPECT_EQ(database.told, "begin commit begin undo ");
}

TEST(Transaction, ASecondBeginIsRefusedAndTheFirstGoesOn)
{
    Database database;
    Transaction transaction(database);
    transaction.begin();
    EXPECT_EQ(refusalOf([&] { transaction.begin(); }), "上一个事务尚未结束，不能开始新的事务。");
    transaction.commit();
    EXPECT_EQ(database.told, "begin commit ");
}

TEST(Transaction, OutsideThereIsNothingToCommitAndNothingToRollBack)
{
    Database database;
    Transaction transaction(database);
    transaction.rollback();
    EXPECT_EQ(refusalOf([&] { transaction.commit(); }), "没有可以提交的事务。");
    transaction.checkAlive();
    EXPECT_EQ(database.told, "");
}

TEST(Transaction, AFailedCommitIsThereToBeRolledBack)
{
    Database database;
    Transaction transaction(database);
    database.refuses = true;
    transaction.begin();
    EXPECT_EQ(refusalOf([&] { transaction.commit(); }), "磁盘空间不足，数据没有保存。");
    transaction.rollback();
    transaction.rollback();
    EXPECT_EQ(database.told, "begin commit undo ");
}

TEST(Transaction, OneThatTheDatabaseGaveUpTakesNothingMore)
{
    Database database;
    Transaction transaction(database);
    transaction.begin();
    database.writing = false;
    const std::string lost = "数据库已撤销本次事务，请重新操作。";
    EXPECT_EQ(refusalOf([&] { transaction.checkAlive(); }), lost);
    EXPECT_EQ(refusalOf([&] { transaction.commit(); }), lost);
    transaction.rollback();
    transaction.checkAlive();
    EXPECT_EQ(database.told, "begin ");
}

} // namespace
