// SPDX-License-Identifier: MIT
// The first usable alternative of an OR sets the shape; those that have it become rows.
#include "vortaq/sql/KeyListBinder.h"

#include "vortaq/sql/ConditionBinder.h"
#include "vortaq/sql/literal.h"

#include <algorithm>
#include <utility>

namespace vortaq::sql {

namespace {

constexpr std::size_t fewestRows = 8;

/// The comparisons of one alternative: those of a conjunction, or the one it is.
std::span<ast::Node *const> comparisonsOf(ast::Node *const &alternative)
{
    const auto *both = std::get_if<ast::AndOr>(&alternative->what);
    return both ? both->operands : std::span(&alternative, 1);
}

/// A comparison of the form column = number or text.
struct KeyComparison {
    const ast::ColumnName *column = nullptr;
    const ast::Node *value = nullptr;
};

std::optional<KeyComparison> keyComparison(const ast::Node &node)
{
    const auto *compare = std::get_if<ast::Compare>(&node.what);
    if (!compare || compare->op != Comparison::Operator::Equal)
        return std::nullopt;
    const auto *column = std::get_if<ast::ColumnName>(&compare->left->what);
    const bool written = std::holds_alternative<ast::NumberText>(compare->right->what)
        || std::holds_alternative<ast::StringText>(compare->right->what);
    if (!column || !written)
        return std::nullopt;
    return KeyComparison{column, compare->right};
}

bool sameColumn(const ast::ColumnName &left, const ast::ColumnName &right)
{
    return sameName(left.name.text, right.name.text) && sameName(left.qualifier.text, right.qualifier.text);
}

} // namespace

struct KeyListBinder::KeyShape {
    std::vector<const ast::ColumnName *> names;
    KeyList list; ///< still without rows
};

std::optional<KeyListBinder::KeyShape> KeyListBinder::keyShape(const ast::AndOr &alternatives) const
{
    for (ast::Node *const &alternative : alternatives.operands) {
        KeyShape shape;
        for (const ast::Node *comparison : comparisonsOf(alternative)) {
            const auto key = keyComparison(*comparison);
            if (!key)
                break;
            const Resolved resolved = m_binding.found(*key->column, m_scope);
            const int source = resolved.source->number;
            const auto same = [&resolved](const ColumnRef &column) { return column.column == resolved.column; };
            const bool usable = resolved.owner == &m_scope && (shape.names.empty() || shape.list.source == source)
                && std::none_of(shape.list.columns.begin(), shape.list.columns.end(), same);
            if (!usable)
                break;
            shape.names.push_back(key->column);
            shape.list.source = source;
            shape.list.columns.push_back(
                {source, resolved.column, std::string(resolved.source->columnName(resolved.column))});
            shape.list.types.push_back(resolved.source->columnType(resolved.column));
        }
        if (shape.names.size() == comparisonsOf(alternative).size())
            return shape;
    }
    return std::nullopt;
}

bool KeyListBinder::appendKeyRow(const KeyShape &shape, ast::Node *const &alternative, KeyList &list) const
{
    const auto comparisons = comparisonsOf(alternative);
    if (comparisons.size() != shape.names.size())
        return false;
    const std::size_t before = list.values.size();
    for (std::size_t i = 0; i < comparisons.size(); ++i) {
        const auto key = keyComparison(*comparisons[i]);
        const bool same = key && sameColumn(*key->column, *shape.names[i]);
        const auto text = same ? keyText(*key->value, list.types[i]) : std::nullopt;
        if (!text) {
            list.values.resize(before);
            return false;
        }
        list.values.push_back(*text);
    }
    return true;
}

std::optional<std::string> KeyListBinder::keyText(const ast::Node &written, const Type &type) const
{
    if (const auto *string = std::get_if<ast::StringText>(&written.what))
        return m_binding.coercion.literalText(unquoted(string->quoted), varcharType(longestVarchar), type,
                                              Conversion::Mode::Checked, written.at);
    const std::string_view digits = std::get<ast::NumberText>(written.what).digits;
    const Type from = typeOfNumber(digits);
    const bool holdsAnyInt = type.kind == Kind::Int || (type.kind == Kind::Decimal && type.size - type.scale >= 10);
    if (from.kind != Kind::Int || !holdsAnyInt)
        return std::nullopt; // compared in another type than the column's
    return m_binding.coercion.literalText(std::string(digits), from, type, Conversion::Mode::Checked, written.at);
}

ConditionPtr KeyListBinder::keyList(const ast::AndOr &alternatives)
{
    if (alternatives.operands.size() < fewestRows)
        return nullptr;
    auto shape = keyShape(alternatives);
    if (!shape)
        return nullptr;
    KeyList list = shape->list;
    list.values.reserve(alternatives.operands.size() * list.columns.size());
    std::vector<const ast::Node *> others;
    for (ast::Node *const &alternative : alternatives.operands) {
        if (!appendKeyRow(*shape, alternative, list))
            others.push_back(alternative);
    }
    if (list.rowCount() < fewestRows)
        return nullptr;
    m_binding.outermostLevel = std::min(m_binding.outermostLevel, m_scope.level);
    auto keys = std::make_unique<Condition>(Condition{std::move(list)});
    if (others.empty())
        return keys;
    Junction result{Junction::Kind::Or, {}};
    result.operands.push_back(std::move(keys));
    for (const ast::Node *other : others)
        result.operands.push_back(m_binding.conditions.condition(*other, m_scope));
    return std::make_unique<Condition>(Condition{std::move(result)});
}

} // namespace vortaq::sql
