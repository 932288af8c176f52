// SPDX-License-Identifier: MIT
// Queries, insertions, updates and deletions.
#include "vortaq/sql/Parser.h"
#include "vortaq/sql/ParserNesting.h"

namespace vortaq::sql {

namespace {

bool beginsStatement(const Token &token)
{
    return token.keyword == Keyword::Select || token.keyword == Keyword::Insert || token.keyword == Keyword::Update
        || token.keyword == Keyword::Delete || token.keyword == Keyword::Reserved;
}

} // namespace

ast::Tree Parser::statement()
{
    if (at(Keyword::Select))
        m_tree.statement = query(true);
    else if (accept(Keyword::Insert))
        m_tree.statement = insert();
    else if (accept(Keyword::Update))
        m_tree.statement = update();
    else if (accept(Keyword::Delete))
        m_tree.statement = deletion();
    else if (m_token.kind == TokenKind::End)
        refuse(m_token.at, "语句为空");
    else if (m_token.kind == TokenKind::Word)
        refuse(m_token.at, "只能执行查询、插入、修改和删除语句");
    else
        unexpected();
    if (m_token.kind != TokenKind::End) {
        if (beginsStatement(m_token) && m_token.keyword != Keyword::Reserved)
            refuse(m_token.at, "一次只能执行一条语句");
        unexpected();
    }
    return std::move(m_tree);
}

ast::Query *Parser::query(bool ordered)
{
    const Nesting nesting(*this);
    ast::Query result;
    result.at = m_token.at;
    std::vector<ast::Select> selects{select()};
    while (accept(Keyword::Union)) {
        expect(Keyword::All);
        selects.push_back(select());
    }
    result.selects = m_tree.keep(selects);
    if (ordered)
        result.orderBy = optionalOrder();
    return m_tree.make(result);
}

ast::Select Parser::select()
{
    ast::Select result;
    result.at = m_token.at;
    expect(Keyword::Select);
    std::vector<ast::Item> items;
    do
        items.push_back(item());
    while (accept(","));
    result.items = m_tree.keep(items);
    if (!accept(Keyword::From))
        return result;
    result.from = sources();
    result.where = optionalWhere();
    if (accept(Keyword::Group)) {
        expect(Keyword::By);
        std::vector<ast::Node *> columns;
        do
            columns.push_back(value());
        while (accept(","));
        result.groupBy = m_tree.keep(columns);
    }
    return result;
}

ast::Item Parser::item()
{
    ast::Item result;
    result.at = m_token.at;
    if (accept("*"))
        return result;
    result.value = value();
    result.name = optionalAlias();
    return result;
}

std::span<const ast::Source> Parser::sources()
{
    std::vector<ast::Source> result;
    do {
        result.push_back(source());
        while (accept(Keyword::Left)) {
            accept(Keyword::Outer);
            expect(Keyword::Join);
            ast::Source joined = source();
            expect(Keyword::On);
            joined.leftJoin = true;
            joined.on = condition();
            result.push_back(joined);
        }
    } while (accept(","));
    return m_tree.keep(result);
}

ast::Source Parser::source()
{
    if (at("("))
        return derivedTable();
    ast::Source result;
    result.at = m_token.at;
    result.table = name();
    result.alias = optionalAlias();
    return result;
}

ast::Source Parser::derivedTable()
{
    const Nesting nesting(*this);
    ast::Source result;
    result.at = m_token.at;
    expect("(");
    result.derived = query(false);
    expect(")");
    accept(Keyword::As);
    result.alias = name();
    return result;
}

ast::Node *Parser::optionalWhere()
{
    return accept(Keyword::Where) ? condition() : nullptr;
}

std::span<const ast::OrderTerm> Parser::optionalOrder()
{
    if (!accept(Keyword::Order))
        return {};
    expect(Keyword::By);
    std::vector<ast::OrderTerm> terms;
    do {
        ast::OrderTerm term;
        term.value = value();
        term.descending = accept(Keyword::Desc);
        if (!term.descending)
            accept(Keyword::Asc);
        terms.push_back(term);
    } while (accept(","));
    return m_tree.keep(terms);
}

ast::Insert Parser::insert()
{
    ast::Insert result;
    expect(Keyword::Into);
    result.table = name();
    expect("(");
    std::vector<ast::Word> columns;
    do
        columns.push_back(name());
    while (accept(","));
    expect(")");
    result.columns = m_tree.keep(columns);
    result.rows = at(Keyword::Values) ? valuesRow() : query(false);
    return result;
}

ast::Query *Parser::valuesRow()
{
    ast::Select row;
    row.at = take().at;
    expect("(");
    std::vector<ast::Item> items;
    do {
        const std::size_t where = m_token.at;
        items.push_back({value(), {}, where});
    } while (accept(","));
    expect(")");
    row.items = m_tree.keep(items);
    return m_tree.make(ast::Query{m_tree.keep(std::vector<ast::Select>{row}), {}, row.at});
}

ast::Update Parser::update()
{
    ast::Update result;
    result.table = name();
    expect(Keyword::Set);
    std::vector<ast::Assignment> assignments;
    do
        assignments.push_back(assignment());
    while (accept(","));
    result.assignments = m_tree.keep(assignments);
    if (accept(Keyword::From)) {
        std::vector<ast::Source> from;
        do
            from.push_back(derivedTable());
        while (accept(","));
        result.from = m_tree.keep(from);
    }
    result.where = optionalWhere();
    return result;
}

ast::Assignment Parser::assignment()
{
    ast::Assignment result;
    result.column.name = name();
    if (accept(".")) {
        result.column.qualifier = result.column.name;
        result.column.name = name();
    }
    expect("=");
    result.value = value();
    return result;
}

ast::Delete Parser::deletion()
{
    ast::Delete result;
    expect(Keyword::From);
    result.table = name();
    result.where = optionalWhere();
    return result;
}

} // namespace vortaq::sql
