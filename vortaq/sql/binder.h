// SPDX-License-Identifier: MIT
// Gives the words of a parsed statement their meaning: columns, types, conversions, grouping.
#pragma once

#include "vortaq/sql/aststatement.h"
#include "vortaq/sql/coercion.h"
#include "vortaq/sql/diagnostic.h"
#include "vortaq/sql/scope.h"

#include <climits>
#include <optional>

namespace vortaq::sql {

/// `text` is what the tree was parsed from. Throws SqlError (Binding, Conversion).
[[nodiscard]] Statement bind(const ast::Tree &tree, std::string_view text, const Catalog &catalog);

class Binder {
public:
    Binder(std::string_view text, const Catalog &catalog)
        : m_text(text)
        , m_catalog(catalog)
        , m_coercion(text)
    {
    }

    [[nodiscard]] Query query(const ast::Query &parsed, Scope *outer);
    [[nodiscard]] Insert insert(const ast::Insert &parsed);
    [[nodiscard]] Update update(const ast::Update &parsed);
    [[nodiscard]] Delete deletion(const ast::Delete &parsed);

private:
    using Mode = Conversion::Mode;

    [[noreturn]] void refuse(std::size_t at, std::string_view message) const;
    [[nodiscard]] const CatalogTable &table(const ast::Word &name) const;

    // Queries.
    [[nodiscard]] Select select(const ast::Select &parsed, Scope &scope);
    void orderBy(Query &query, const ast::Query &parsed, Scope &scope);
    [[nodiscard]] std::optional<std::size_t> outputNamed(const Query &query, const ast::Node &term) const;
    void unifyColumns(Query &query, const ast::Query &parsed) const;
    [[nodiscard]] Source source(const ast::Source &parsed, Scope *outer);
    void sources(const ast::Select &parsed, Select &result, Scope &scope);
    void makeVisible(const Source &source, std::size_t at, Scope &scope) const;
    void requireColumnNames(const Query &query, std::size_t at) const;
    void everyColumn(const ast::Item &parsed, Select &result, Scope &scope) const;
    void groupBy(const ast::Select &parsed, Select &result, Scope &scope);
    void checkGrouping(const Select &select, const Scope &scope) const;

    // Changes.
    [[nodiscard]] std::vector<std::size_t> targetColumns(const ast::Insert &parsed, const CatalogTable &table) const;
    [[nodiscard]] Update::Assignment assignment(const ast::Assignment &parsed, const Source &target, Scope &scope);

    // Values.
    [[nodiscard]] ExprPtr value(const ast::Node &node, Scope &scope);
    [[nodiscard]] ExprPtr number(std::string_view digits, bool negative, std::size_t at) const;
    [[nodiscard]] static ExprPtr string(std::string_view quoted);
    [[nodiscard]] ExprPtr columnValue(const ast::ColumnName &name, Scope &scope);
    [[nodiscard]] Resolved found(const ast::ColumnName &name, Scope &scope) const;
    [[nodiscard]] ExprPtr sum(const ast::Sum &parsed, std::size_t at, Scope &scope);
    [[nodiscard]] ExprPtr minus(const ast::Minus &parsed, std::size_t at, Scope &scope);
    [[nodiscard]] ExprPtr toVarchar(const ast::ToVarchar &parsed, Scope &scope);
    [[nodiscard]] ExprPtr caseOf(const ast::CaseOf &parsed, std::size_t at, Scope &scope);
    void caseConditions(const ast::CaseOf &parsed, Case &result, Scope &scope);
    [[nodiscard]] ExprPtr scalar(const ast::Query &parsed, std::size_t at, Scope &scope);
    [[nodiscard]] Subquery subquery(const ast::Query &parsed, std::size_t at, Scope &scope);

    // Functions.
    [[nodiscard]] ExprPtr call(const ast::FunctionCall &parsed, Scope &scope);
    [[nodiscard]] ExprPtr isNull(const ast::FunctionCall &parsed, Scope &scope);
    [[nodiscard]] ExprPtr length(const ast::FunctionCall &parsed, Scope &scope);
    [[nodiscard]] ExprPtr str(const ast::FunctionCall &parsed, Scope &scope);
    [[nodiscard]] int writtenSize(const ast::Node &node, int least, int most) const;
    [[nodiscard]] ExprPtr aggregate(const ast::FunctionCall &parsed, Aggregate::Function function, Scope &scope);

    // Conditions.
    [[nodiscard]] ConditionPtr condition(const ast::Node &node, Scope &scope);
    [[nodiscard]] ConditionPtr compare(const ast::Compare &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr between(const ast::BetweenAnd &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr like(const ast::LikePattern &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr inValues(const ast::InValues &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr inRows(const ast::InRows &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr junction(const ast::AndOr &parsed, Scope &scope);
    [[nodiscard]] ExprPtr textOperand(const ast::Node &node, Scope &scope);

    // Key lists.
    struct KeyShape;
    [[nodiscard]] std::optional<KeyShape> keyShape(const ast::AndOr &alternatives, Scope &scope) const;
    [[nodiscard]] bool appendKeyRow(const KeyShape &shape, ast::Node *const &alternative, KeyList &list) const;
    [[nodiscard]] std::optional<std::string> keyText(const ast::Node &written, const Type &type) const;
    [[nodiscard]] ConditionPtr keyList(const ast::AndOr &alternatives, Scope &scope);

    std::string_view m_text;
    const Catalog &m_catalog;
    Coercion m_coercion;
    int m_lastSource = 0;
    int m_outermostLevel = INT_MAX; ///< the lowest level whose columns were read since the query began
};

} // namespace vortaq::sql
