// SPDX-License-Identifier: MIT
// Conditions of the statement writer.
#include "vortaq/engines/StatementWriter.h"

#include <array>

namespace vortaq::engines {

namespace {

constexpr std::array<const char *, 6> comparisonSigns{" = ", " <> ", " < ", " <= ", " > ", " >= "};

// To a database a flat chain of n operands is n levels deep; SQLite refuses a thousand, and thousands are normal.
constexpr std::size_t longestChain = 32;

} // namespace

void StatementWriter::condition(const sql::Condition &tested)
{
    std::visit([&](const auto &node) { condition(node); }, tested.node);
}

void StatementWriter::condition(const sql::Comparison &comparison)
{
    *this << '(';
    compared(*comparison.left, Side::Left);
    *this << comparisonSigns[static_cast<std::size_t>(comparison.op)];
    compared(*comparison.right, Side::Right);
    *this << ')';
}

void StatementWriter::condition(const sql::NullTest &test)
{
    *this << '(' << *test.operand << (test.negated ? " IS NOT NULL)" : " IS NULL)");
}

void StatementWriter::condition(const sql::Between &between)
{
    *this << '(';
    compared(*between.operand, Side::Left);
    *this << (between.negated ? " NOT BETWEEN " : " BETWEEN ");
    compared(*between.low, Side::Right);
    *this << " AND ";
    compared(*between.high, Side::Right);
    *this << ')';
}

void StatementWriter::condition(const sql::InList &list)
{
    *this << '(';
    compared(*list.operand, Side::Left);
    *this << (list.negated ? " NOT IN (" : " IN (");
    for (std::size_t i = 0; i < list.values.size(); ++i) {
        *this << (i == 0 ? "" : ", ");
        compared(*list.values[i], Side::Right);
    }
    *this << "))";
}

void StatementWriter::condition(const sql::Exists &exists)
{
    *this << "EXISTS (" << *exists.subquery.query << ')';
}

void StatementWriter::condition(const sql::Negated &negated)
{
    *this << "(NOT ";
    condition(*negated.operand);
    *this << ')';
}

void StatementWriter::condition(const sql::Junction &junction)
{
    operands(junction.operands, junction.kind == sql::Junction::Kind::And ? " AND " : " OR ");
}

void StatementWriter::operands(std::span<const sql::ConditionPtr> operands, const char *between)
{
    *this << '(';
    if (operands.size() > longestChain) {
        this->operands(operands.first(operands.size() / 2), between);
        *this << between;
        this->operands(operands.subspan(operands.size() / 2), between);
    } else {
        for (std::size_t i = 0; i < operands.size(); ++i) {
            *this << (i == 0 ? "" : between);
            condition(*operands[i]);
        }
    }
    *this << ')';
}

} // namespace vortaq::engines
