// SPDX-License-Identifier: MIT
// What a clerk reads is the same on every database.
#include "vortaq/engines/failure.h"

#include <gtest/gtest.h>

namespace {

using namespace vortaq;
using engines::Failure;
using Reason = SqlError::Reason;

struct Row {
    Failure failure;
    Reason reason;
    const char *message;
};

class Failures : public testing::TestWithParam<Row> { };

TEST_P(Failures, HaveAReasonAndAMessage)
{
    const SqlError error = engines::failureError(GetParam().failure, "甲");
    EXPECT_EQ(error.reason(), GetParam().reason);
    EXPECT_STREQ(error.what(), GetParam().message);
}

INSTANTIATE_TEST_SUITE_P(
    , Failures,
    testing::Values(Row{Failure::DuplicateKey, Reason::Constraint, "不能写入重复的键（甲）。"},
                    Row{Failure::MissingValue, Reason::Constraint, "该列不允许为空（甲）。"},
                    Row{Failure::ForeignKey, Reason::Constraint, "更改与其他表中的数据冲突（外键约束）。"},
                    Row{Failure::Check, Reason::Constraint, "数据不符合检查约束（甲）。"},
                    Row{Failure::Trigger, Reason::Constraint, "数据库拒绝了更改：甲"},
                    Row{Failure::OtherConstraint, Reason::Constraint, "更改违反了数据库的约束：甲"},
                    Row{Failure::Busy, Reason::Busy, "数据库正被其他程序占用，请稍后再试。"},
                    Row{Failure::ReadOnly, Reason::ReadOnly, "数据库是只读的，不能更改。"},
                    Row{Failure::NotADatabase, Reason::NotADatabase, "文件不是数据库。"},
                    Row{Failure::Damaged, Reason::NotADatabase, "数据库文件已损坏。"},
                    Row{Failure::CannotOpen, Reason::Other, "无法打开数据库文件。"},
                    Row{Failure::DiskFull, Reason::Other, "磁盘空间不足，数据没有保存。"},
                    Row{Failure::CannotWrite, Reason::Other,
                        "数据库文件不能再写入，数据没有保存。请检查磁盘、配额和文件大小的限制。"},
                    Row{Failure::InputOutput, Reason::Other, "读写数据库文件时出错（甲）。"},
                    Row{Failure::TooLarge, Reason::Other, "数据过大，无法处理。"},
                    Row{Failure::NoSuchObject, Reason::Binding, "数据库中没有该对象：甲"}));

} // namespace
