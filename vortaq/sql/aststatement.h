// SPDX-License-Identifier: MIT
// Parsed statements and the arena that holds them.
#pragma once

#include "vortaq/sql/ast.h"

#include <memory>
#include <type_traits>
#include <vector>

namespace vortaq::sql::ast {

struct Item {
    Node *value = nullptr; ///< null for *
    Word name; ///< alias
    std::size_t at = 0;
};

struct Source {
    Word table; ///< empty for a derived table
    Query *derived = nullptr;
    Word alias;
    bool leftJoin = false;
    Node *on = nullptr; ///< of a left join
    std::size_t at = 0;
};

struct Select {
    std::span<const Item> items;
    std::span<const Source> from;
    Node *where = nullptr;
    std::span<Node *const> groupBy;
    std::size_t at = 0;
};

struct OrderTerm {
    Node *value = nullptr;
    bool descending = false;
};

struct Query {
    std::span<const Select> selects;
    std::span<const OrderTerm> orderBy;
    std::size_t at = 0;
};

struct Insert {
    Word table;
    std::span<const Word> columns;
    Query *rows = nullptr; ///< `values (..)` is a select without from
};

struct Assignment {
    ColumnName column;
    Node *value = nullptr;
};

struct Update {
    Word table;
    std::span<const Assignment> assignments;
    std::span<const Source> from;
    Node *where = nullptr;
};

struct Delete {
    Word table;
    Node *where = nullptr;
};

class Tree {
public:
    Tree()
        : m_arena(std::make_unique<std::pmr::monotonic_buffer_resource>())
    {
    }

    std::variant<Query *, Insert, Update, Delete> statement;

    [[nodiscard]] bool isQuery() const { return statement.index() == 0; }

    template <typename T> [[nodiscard]] T *make(T value)
    {
        static_assert(std::is_trivially_destructible_v<T>);
        return new (m_arena->allocate(sizeof(T), alignof(T))) T(std::move(value));
    }
    template <typename T> [[nodiscard]] std::span<const T> keep(const std::vector<T> &values)
    {
        static_assert(std::is_trivially_destructible_v<T>);
        if (values.empty())
            return {};
        auto *room = static_cast<T *>(m_arena->allocate(sizeof(T) * values.size(), alignof(T)));
        std::uninitialized_copy(values.begin(), values.end(), room);
        return {room, values.size()};
    }

private:
    std::unique_ptr<std::pmr::monotonic_buffer_resource> m_arena;
};

} // namespace vortaq::sql::ast
