// SPDX-License-Identifier: MIT
#include "forms/keycheck.h"

#include "forms/recordcolumns.h"
#include "toolkit/TdxTreeList.h"

namespace forms {

namespace {

constexpr int MostNamed = 10; // a message box is no list

/// A zero would end the message in the middle.
QString shown(const TdxTreeList &grid, const TdxTreeListNode &row, const char *suffix)
{
    return row.text(columnPosition(grid, suffix)).replace(QChar::Null, QChar::ReplacementCharacter);
}

QString refusal(const TdxTreeList &grid, const std::vector<TdxTreeListNode> &rows)
{
    if (rows.empty())
        return {};
    QString text = QStringLiteral("下列记录的机构代码、合作医疗证号、序号或就医次序中含有无法识别的字符，不能办理，"
                                  "请系统管理员先在数据库中更正：");
    int named = 0;
    for (const TdxTreeListNode &row : rows) {
        if (++named > MostNamed) {
            text += QStringLiteral("\r\n…… 共 %1 笔").arg(rows.size());
            break;
        }
        text += QStringLiteral("\r\n") + shown(grid, row, "CoopMedCode") + QStringLiteral("   ")
            + shown(grid, row, "PatientName");
    }
    return text;
}

} // namespace

QString refusalOfTicked(const TdxTreeList &grid, int checkColumn)
{
    const RecordColumns columns(grid);
    std::vector<TdxTreeListNode> refused;
    for (int i = 0; i < grid.count(); ++i) {
        const TdxTreeListNode row = grid.node(i);
        if (isTicked(row, checkColumn) && !columns.keyFindsRow(row))
            refused.push_back(row);
    }
    return refusal(grid, refused);
}

QString refusalOf(const TdxTreeList &grid, const TdxTreeListNode &row)
{
    return refusal(grid, RecordColumns(grid).keyFindsRow(row) ? std::vector<TdxTreeListNode>() : std::vector{row});
}

} // namespace forms
