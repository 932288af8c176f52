// SPDX-License-Identifier: MIT
// Messages and kinds of failures.
#include "vortaq/engines/failure.h"

#include <stdexcept>

namespace vortaq::engines {

using Reason = SqlError::Reason;

SqlError failureError(Failure failure, const std::string &detail)
{
    switch (failure) {
    case Failure::DuplicateKey:
        return {Reason::Constraint, "不能写入重复的键（" + detail + "）。"};
    case Failure::MissingValue:
        return {Reason::Constraint, "该列不允许为空（" + detail + "）。"};
    case Failure::ForeignKey:
        return {Reason::Constraint, "更改与其他表中的数据冲突（外键约束）。"};
    case Failure::Check:
        return {Reason::Constraint, "数据不符合检查约束（" + detail + "）。"};
    case Failure::Trigger:
        return {Reason::Constraint, "数据库拒绝了更改：" + detail};
    case Failure::OtherConstraint:
        return {Reason::Constraint, "更改违反了数据库的约束：" + detail};
    case Failure::Busy:
        return {Reason::Busy, "数据库正被其他程序占用，请稍后再试。"};
    case Failure::ReadOnly:
        return {Reason::ReadOnly, "数据库是只读的，不能更改。"};
    case Failure::NotADatabase:
        return {Reason::NotADatabase, "文件不是数据库。"};
    case Failure::Damaged:
        return {Reason::NotADatabase, "数据库文件已损坏。"};
    case Failure::CannotOpen:
        return {Reason::Other, "无法打开数据库文件。"};
    case Failure::DiskFull:
        return {Reason::Other, "磁盘空间不足，数据没有保存。"};
    case Failure::CannotWrite:
        return {Reason::Other, "数据库文件不能再写入，数据没有保存。请检查磁盘、配额和文件大小的限制。"};
    case Failure::InputOutput:
        return {Reason::Other, "读写数据库文件时出错（" + detail + "）。"};
    case Failure::TooLarge:
        return {Reason::Other, "数据过大，无法处理。"};
    case Failure::NoSuchObject:
        return {Reason::Binding, "数据库中没有该对象：" + detail};
    }
    throw std::logic_error("no such failure");
}

} // namespace vortaq::engines
