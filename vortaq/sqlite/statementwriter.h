// SPDX-License-Identifier: MIT
// From a bound statement to SQLite's text. Nothing of the statement's own text gets through, only what the tree says.
//
// A writer for another database stands beside this one and reads the same tree; the parser knows of neither.
#pragma once

#include "vortaq/sql/tree.h"

#include <span>
#include <string>
#include <vector>

namespace vortaq::sqlite {

/// Many record keys, to be put into a temporary table before the statement runs.
struct WrittenKeys {
    std::string table;
    const sql::KeyList *keys = nullptr; ///< of the statement, borrowed
};

struct WrittenStatement {
    std::string text;
    std::vector<WrittenKeys> keyTables;
    bool readsClock = false; ///< then parameter 1 is the present moment, "yyyy-mm-dd hh:mm:ss.fff"
};

/// The statement's tables must come from a CatalogReader. Throws SqlError for text that SQLite cannot take.
[[nodiscard]] WrittenStatement writeStatement(const sql::Statement &statement);

/// Sources are called s0, s1 ... by their number, and columns of derived tables c0, c1 ... by their place, so that no
/// name of the statement can clash. A value or condition is always written as one operand: a name, a call or in
/// parentheses.
class StatementWriter {
public:
    [[nodiscard]] WrittenStatement write(const sql::Statement &statement);

private:
    /// Columns that values go into, one for every output column.
    using Destination = std::span<const std::size_t>;

    void insert(const sql::Insert &insert);
    void update(const sql::Update &update);
    void remove(const sql::Delete &remove);
    void query(const sql::Query &query, const sql::CatalogTable *into = nullptr, Destination columns = {});
    void select(const sql::Select &select, const sql::CatalogTable *into, Destination columns);
    void orderTerm(const sql::Query &query, const sql::OrderTerm &term);
    void sources(const std::vector<sql::Source> &sources);
    void source(const sql::Source &source);
    void where(const sql::ConditionPtr &where);
    void stored(const sql::Expr &stored, const sql::CatalogTable &table, std::size_t column);

    void value(const sql::Expr &expression);
    void value(const sql::Literal &literal, const sql::Type &type);
    void value(const sql::ColumnRef &column, const sql::Type &type);
    void value(const sql::Conversion &conversion, const sql::Type &type);
    void value(const sql::Arithmetic &arithmetic, const sql::Type &type);
    void value(const sql::Negation &negation, const sql::Type &type);
    void value(const sql::Call &call, const sql::Type &type);
    void value(const sql::Aggregate &aggregate, const sql::Type &type);
    void value(const sql::Case &choice, const sql::Type &type);
    void value(const sql::Subquery &subquery, const sql::Type &type);
    void text(const std::string &text);
    void moment(const sql::Expr &operand, bool iso, int size);
    [[nodiscard]] bool convertPlainly(const sql::Conversion &conversion, const sql::Type &type);
    /// A value as the left side of a comparison: text with its collation.
    void compared(const sql::Expr &expression);
    [[nodiscard]] bool comparesByItself(const sql::Expr &expression) const;

    void condition(const sql::Condition &tested);
    void condition(const sql::Comparison &comparison);
    void condition(const sql::NullTest &test);
    void condition(const sql::Between &between);
    void condition(const sql::Like &like);
    void condition(const sql::InList &list);
    void condition(const sql::InQuery &inQuery);
    void condition(const sql::Exists &exists);
    void condition(const sql::Negated &negated);
    void condition(const sql::Junction &junction);
    void condition(const sql::KeyList &keys);
    void operands(std::span<const sql::ConditionPtr> operands, const char *between);
    void keyTest(const sql::KeyList &keys, const std::string &table);
    void keySearch(const sql::KeyList &keys, const sql::CatalogTable &table, const std::string &keyTable);

    std::string m_text;
    std::vector<const sql::Source *> m_sources; // by number
    std::vector<WrittenKeys> m_keyTables;
    bool m_readsClock = false;
};

/// A name between double quotes.
[[nodiscard]] std::string quotedName(const std::string &name);
/// How a source is called in the written text.
[[nodiscard]] std::string sourceName(int number);

} // namespace vortaq::sqlite
