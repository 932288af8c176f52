// SPDX-License-Identifier: MIT
// One patient's papers: rows as the database gives them, and the answers to the papers' variables.
#pragma once

#include <QString>

#include <string>
#include <vector>

class QVariant;
class TClientDataSet;

namespace samplepaper {

using Rows = std::vector<std::vector<std::string>>;

void fill(TClientDataSet &dataSet, const std::vector<QString> &columns, const Rows &rows);
/// "Name,Fee" as a list.
[[nodiscard]] std::vector<QString> names(const char *list);

/// Header of the settlement sheet and of the approval form, both at once.
void fillSettlement(TClientDataSet &dataSet);
/// Answers FTYPEnn and the three amounts, for twelve fee types; the last two were not used.
void answerFees(const QString &name, QVariant &value);

void fillFeeHeader(TClientDataSet &dataSet);
/// Fee lines of consecutive days, `perDay` a day.
void fillFeeItems(TClientDataSet &dataSet, int count, int perDay = 24);
void answerUser(const QString &name, QVariant &value);

} // namespace samplepaper
