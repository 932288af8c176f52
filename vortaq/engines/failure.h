// SPDX-License-Identifier: MIT
// What can go wrong in a database, in the clerk's words: the same on every database. Each engine only tells which of
// these its database means.
#pragma once

#include "vortaq/SqlError.h"

#include <string>

namespace vortaq::engines {

enum class Failure {
    DuplicateKey, ///< detail: the key's columns
    MissingValue, ///< detail: the column
    ForeignKey,
    Check, ///< detail: the rule
    Trigger, ///< detail: the trigger's own words
    OtherConstraint, ///< detail: the database's words
    Busy,
    ReadOnly,
    NotADatabase,
    Damaged,
    CannotOpen,
    DiskFull,
    CannotWrite, ///< a quota, a limit on the size of files, a disk that fails
    InputOutput, ///< detail: the database's number for it
    TooLarge,
    NoSuchObject ///< detail: its name
};

[[nodiscard]] SqlError failureError(Failure failure, const std::string &detail = {});

} // namespace vortaq::engines
