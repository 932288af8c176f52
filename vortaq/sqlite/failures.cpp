// SPDX-License-Identifier: MIT
// Messages for SQLite's result codes.
#include "vortaq/sqlite/failures.h"

#include <sqlite3.h>

#include <new>
#include <string>
#include <string_view>

namespace vortaq::sqlite {

namespace {

using Reason = SqlError::Reason;

/// What stands behind the first colon: "UNIQUE constraint failed: t.a, t.b" names the columns there.
std::string detailOf(std::string_view message)
{
    const std::size_t colon = message.find(": ");
    return std::string(colon == std::string_view::npos ? message : message.substr(colon + 2));
}

[[noreturn]] void throwConstraint(int code, std::string_view message)
{
    switch (code) {
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_ROWID:
        throw SqlError(Reason::Constraint, "不能写入重复的键（" + detailOf(message) + "）。");
    case SQLITE_CONSTRAINT_NOTNULL:
        throw SqlError(Reason::Constraint, "该列不允许为空（" + detailOf(message) + "）。");
    case SQLITE_CONSTRAINT_FOREIGNKEY:
        throw SqlError(Reason::Constraint, "更改与其他表中的数据冲突（外键约束）。");
    case SQLITE_CONSTRAINT_CHECK:
        throw SqlError(Reason::Constraint, "数据不符合检查约束（" + detailOf(message) + "）。");
    case SQLITE_CONSTRAINT_TRIGGER:
        throw SqlError(Reason::Constraint, "数据库拒绝了更改：" + std::string(message));
    default:
        throw SqlError(Reason::Constraint, "更改违反了数据库的约束：" + std::string(message));
    }
}

bool startsWith(std::string_view text, std::string_view beginning)
{
    return text.substr(0, beginning.size()) == beginning;
}

[[noreturn]] void throwGeneral(int code, const std::string &message)
{
    if (startsWith(message, "no such table") || startsWith(message, "no such column"))
        throw SqlError(Reason::Binding, "数据库中没有该对象：" + detailOf(message));
    throw SqlError(Reason::Other, "数据库错误（" + std::to_string(code) + "）：" + message);
}

} // namespace

void throwFailure(sqlite3 *database, int code)
{
    const std::string message = sqlite3_errmsg(database);
    switch (code & 0xFF) {
    case SQLITE_NOMEM:
        throw std::bad_alloc();
    case SQLITE_CONSTRAINT:
        throwConstraint(code, message);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
        throw SqlError(Reason::Busy, "数据库正被其他程序占用，请稍后再试。");
    case SQLITE_READONLY:
    case SQLITE_PERM:
        throw SqlError(Reason::ReadOnly, "数据库是只读的，不能更改。");
    case SQLITE_NOTADB:
        throw SqlError(Reason::NotADatabase, "文件不是数据库。");
    case SQLITE_CORRUPT:
        throw SqlError(Reason::NotADatabase, "数据库文件已损坏。");
    case SQLITE_CANTOPEN:
        throw SqlError(Reason::Other, "无法打开数据库文件。");
    case SQLITE_FULL:
        throw SqlError(Reason::Other, "磁盘空间不足，数据没有保存。");
    case SQLITE_IOERR:
        if (code == SQLITE_IOERR_WRITE) // a quota, a limit on the size of files, a disk that fails
            throw SqlError(Reason::Other, "数据库文件不能再写入，数据没有保存。请检查磁盘、配额和文件大小的限制。");
        throw SqlError(Reason::Other, "读写数据库文件时出错（" + std::to_string(code) + "）。");
    case SQLITE_TOOBIG:
        throw SqlError(Reason::Other, "数据过大，无法处理。");
    default:
        throwGeneral(code, message);
    }
}

} // namespace vortaq::sqlite
