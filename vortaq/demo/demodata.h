// SPDX-License-Identifier: MIT
// A made-up county's hospitals with stays, settlements and bills, to try the host with and to test against.
//
// What it holds, all of it relative to `today`:
//   - the institutions of one county (area code 429901), one of a neighbouring area, one that has never had a
//     patient, one whose unbilled patients are all still in hospital, one whose bills live only in the archive,
//     one with an apostrophe in its name;
//   - two users: "01" 管理员 of the county hospital, who may bill for everybody and holds every function number,
//     and "02" 李会计 of 白石镇中心卫生院, who is granted two institutions through the rights tables and holds
//     some function numbers;
//   - current stays: three fifths of them in bills of every status (made, reported, first and second review,
//     returned), the rest unbilled: discharged, discharged today, admitted today, both, still in hospital;
//   - archived stays with their bills; the county hospital has one number both as a current and an archived bill;
//   - fee lines, special approvals and settlements that add up to the records, and records that add up to bills;
//     reviewed bills carry reviewers, approved amounts and struck-out amounts;
//   - the settlement procedures, for the tables in use and for the archive.
// Every status occurs from about 300 current stays on.
#pragma once

#include <QDate>
#include <QString>

#include <cstdint>

namespace vortaq {

struct DemoOptions {
    int records = 600; ///< stays in the current tables
    int archived = 400; ///< stays in the archive tables
    std::uint64_t seed = 1; ///< equal options give equal content
    QDate today = QDate::currentDate(); ///< the day on which the hospital stands
    int detailLines = 0; ///< fee lines of a stay on average; 0: a dozen, and fewer in large databases
};

/// What an existing file of the name means to whoever asks for a demo.
enum class Existing { Refused, Taken };

/// Writes a new database `file`. It is written under a name of its own beside it and renamed when complete, so a
/// half-made file never bears the name; an existing file is never replaced. Of several programs that make one file at
/// once the first makes it and the others wait: then it exists. What killed programs left behind is removed.
/// Throws SqlError, or std::invalid_argument for options out of range.
void createDemo(const QString &file, const DemoOptions &options = {}, Existing existing = Existing::Refused);

/// Removes what programs that were killed while they made `file` left beside it, unless somebody is making it.
void removeUnfinishedDemos(const QString &file);

} // namespace vortaq
