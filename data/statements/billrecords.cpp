// SPDX-License-Identifier: MIT
// The columns that the record lists of bills have in common, in use and archived.
#include "data/statements/billrecords.h"

#include "data/statements/recordcolumns.h"

namespace data {

using namespace Qt::Literals::StringLiterals;

// Statements break at their clauses.
// clang-format off

QString billRecordColumns(QStringView beforeExpense)
{
    return selectRecordColumns() + amountTextColumns()
         + u"Checkone,InterfaceIn,AreaCode, "_s + isCheckColumn()
         + u",InputerCode,InputerName,"_s + beforeExpense.toString() + expenseNameColumn();
}

// clang-format on

} // namespace data
