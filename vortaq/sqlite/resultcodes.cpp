// SPDX-License-Identifier: MIT
// What SQLite means by its codes.
#include "vortaq/sqlite/resultcodes.h"

#include "vortaq/engines/failure.h"

#include <sqlite3.h>

#include <new>
#include <string>
#include <string_view>

namespace vortaq::sqlite {

using engines::Failure;
using engines::failureError;

namespace {

/// What stands behind the first colon: "UNIQUE constraint failed: t.a, t.b" names the columns there.
std::string detailOf(std::string_view message)
{
    const std::size_t colon = message.find(": ");
    return std::string(colon == std::string_view::npos ? message : message.substr(colon + 2));
}

SqlError constraintError(int code, const std::string &message)
{
    switch (code) {
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_ROWID:
        return failureError(Failure::DuplicateKey, detailOf(message));
    case SQLITE_CONSTRAINT_NOTNULL:
        return failureError(Failure::MissingValue, detailOf(message));
    case SQLITE_CONSTRAINT_FOREIGNKEY:
        return failureError(Failure::ForeignKey);
    case SQLITE_CONSTRAINT_CHECK:
        return failureError(Failure::Check, detailOf(message));
    case SQLITE_CONSTRAINT_TRIGGER:
        return failureError(Failure::Trigger, message);
    default:
        return failureError(Failure::OtherConstraint, message);
    }
}

SqlError generalError(int code, const std::string &message)
{
    if (message.starts_with("no such table") || message.starts_with("no such column"))
        return failureError(Failure::NoSuchObject, detailOf(message));
    return {SqlError::Reason::Other, "数据库错误（" + std::to_string(code) + "）：" + message};
}

SqlError errorOf(int code, const std::string &message)
{
    switch (code & 0xFF) {
    case SQLITE_CONSTRAINT:
        return constraintError(code, message);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_PROTOCOL:
        return failureError(Failure::Busy);
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return failureError(Failure::ReadOnly);
    case SQLITE_NOTADB:
        return failureError(Failure::NotADatabase);
    case SQLITE_CORRUPT:
        return failureError(Failure::Damaged);
    case SQLITE_CANTOPEN:
        return failureError(Failure::CannotOpen);
    case SQLITE_FULL:
        return failureError(Failure::DiskFull);
    case SQLITE_IOERR:
        return code == SQLITE_IOERR_WRITE ? failureError(Failure::CannotWrite)
                                          : failureError(Failure::InputOutput, std::to_string(code));
    case SQLITE_TOOBIG:
        return failureError(Failure::TooLarge);
    default:
        return generalError(code, message);
    }
}

} // namespace

void throwFailure(sqlite3 *database, int code)
{
    if ((code & 0xFF) == SQLITE_NOMEM)
        throw std::bad_alloc();
    throw errorOf(code, sqlite3_errmsg(database));
}

} // namespace vortaq::sqlite
