// SPDX-License-Identifier: MIT
#include "forms/recordcolumns.h"

#include "data/quoting.h"
#include "toolkit/TdxTreeList.h"
#include "values/displayformat.h"

#include <stdexcept>

namespace forms {

int columnPosition(const TdxTreeList &grid, const char *suffix)
{
    const QString name = grid.objectName() + QString::fromUtf8(suffix);
    const TdxTreeListColumn *column = grid.columnByName(name);
    if (column == nullptr)
        throw std::logic_error(QStringLiteral("表格缺少列“%1”。").arg(name).toStdString());
    return column->position();
}

RecordColumns::RecordColumns(const TdxTreeList &grid)
    : m_orgCode(columnPosition(grid, "OrgCode"))
    , m_coopMedCode(columnPosition(grid, "CoopMedCode"))
    , m_idNo(columnPosition(grid, "IDNo"))
    , m_diagNo(columnPosition(grid, "DiagNo"))
{
}

data::RecordKey RecordColumns::key(const TdxTreeListNode &row) const
{
    return {row.text(m_orgCode), row.text(m_coopMedCode), row.text(m_idNo), row.text(m_diagNo)};
}

bool RecordColumns::keyFindsRow(const TdxTreeListNode &row) const
{
    std::string scratch;
    const auto isUnchanged = [&](int position) { return data::comesBackUnchanged(row.utf8(position, scratch)); };
    return isUnchanged(m_orgCode) && isUnchanged(m_coopMedCode) && isUnchanged(m_idNo) && isUnchanged(m_diagNo);
}

bool isTicked(const TdxTreeListNode &row, int checkColumn)
{
    std::string scratch;
    return row.utf8(checkColumn, scratch) == "1";
}

std::vector<data::RecordKey> tickedRecords(const TdxTreeList &grid, int checkColumn)
{
    const RecordColumns columns(grid);
    std::vector<data::RecordKey> keys;
    for (int i = 0; i < grid.count(); ++i) {
        const TdxTreeListNode row = grid.node(i);
        if (isTicked(row, checkColumn))
            keys.push_back(columns.key(row));
    }
    return keys;
}

TickedTotals sumTicked(const TdxTreeList &grid, int checkColumn)
{
    const int totalFee = columnPosition(grid, "TotalFee");
    const int canFreeFee = columnPosition(grid, "CanFee");
    const int freeFee = columnPosition(grid, "FreeFee");
    TickedTotals totals;
    std::string scratch;
    for (int i = 0; i < grid.count(); ++i) {
        const TdxTreeListNode row = grid.node(i);
        if (!isTicked(row, checkColumn))
            continue;
        ++totals.count;
        totals.totalFee += values::parseAmount(row.utf8(totalFee, scratch));
        totals.canFreeFee += values::parseAmount(row.utf8(canFreeFee, scratch));
        totals.freeFee += values::parseAmount(row.utf8(freeFee, scratch));
    }
    return totals;
}

} // namespace forms
