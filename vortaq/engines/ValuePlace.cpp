// SPDX-License-Identifier: MIT
// Columns looked for in values and in rows.
#include "vortaq/engines/ValuePlace.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace vortaq::engines {

namespace {

// A bill's records carry both keys; theirs comes first.
constexpr std::array<std::string_view, 4> recordKey{"OrgCode", "CoopMedCode", "IDNo", "DiagNo"};
constexpr std::array<std::string_view, 2> billKey{"BillCode", "BillNo"};

const sql::ColumnRef *firstOf(std::initializer_list<const sql::ExprPtr *> values)
{
    for (const sql::ExprPtr *value : values) {
        const sql::ColumnRef *column = *value ? firstColumn(**value) : nullptr;
        if (column != nullptr)
            return column;
    }
    return nullptr;
}

struct Finder {
    const sql::ColumnRef *operator()(const sql::Literal &) const { return nullptr; }
    const sql::ColumnRef *operator()(const sql::ColumnRef &column) const { return &column; }
    const sql::ColumnRef *operator()(const sql::Conversion &conversion) const { return firstOf({&conversion.operand}); }
    const sql::ColumnRef *operator()(const sql::Arithmetic &node) const { return firstOf({&node.left, &node.right}); }
    const sql::ColumnRef *operator()(const sql::Negation &negation) const { return firstOf({&negation.operand}); }
    const sql::ColumnRef *operator()(const sql::Aggregate &aggregate) const { return firstOf({&aggregate.operand}); }
    const sql::ColumnRef *operator()(const sql::Subquery &) const { return nullptr; }
    const sql::ColumnRef *operator()(const sql::Call &call) const
    {
        for (const sql::ExprPtr &argument : call.arguments) {
            if (const sql::ColumnRef *column = firstColumn(*argument))
                return column;
        }
        return nullptr;
    }
    const sql::ColumnRef *operator()(const sql::Case &choice) const
    {
        for (const sql::Case::Branch &branch : choice.branches) {
            if (const sql::ColumnRef *column = firstColumn(*branch.result))
                return column;
        }
        return firstOf({&choice.otherwise});
    }
};

template <std::size_t size>
std::vector<std::size_t> positionsOf(const std::array<std::string_view, size> &key,
                                     const std::vector<sql::OutputColumn> &columns)
{
    std::vector<std::size_t> result;
    for (const std::string_view name : key) {
        const auto found = std::find_if(columns.begin(), columns.end(), [name](const sql::OutputColumn &column) {
            return sql::sameName(column.name, name);
        });
        if (found == columns.end())
            return {};
        result.push_back(static_cast<std::size_t>(found - columns.begin()));
    }
    return result;
}

} // namespace

const sql::ColumnRef *firstColumn(const sql::Expr &value)
{
    return std::visit(Finder{}, value.node);
}

SqlError withPlace(const SqlError &error, std::string_view column, std::span<const KeyPart> key)
{
    std::string message = error.what();
    if (!column.empty())
        message.append("\n所在列：").append(column);
    const char *before = "\n所在行：";
    for (const KeyPart &part : key) {
        message.append(before).append(part.column).append("=").append(part.value);
        before = "，";
    }
    return {error.reason(), message};
}

std::vector<std::size_t> keyColumns(const std::vector<sql::OutputColumn> &columns)
{
    std::vector<std::size_t> result = positionsOf(recordKey, columns);
    return result.empty() ? positionsOf(billKey, columns) : result;
}

} // namespace vortaq::engines
