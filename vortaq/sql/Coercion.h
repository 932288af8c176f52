// SPDX-License-Identifier: MIT
// The silent conversions of T-SQL made visible in the tree.
#pragma once

#include "vortaq/sql/Catalog.h"
#include "vortaq/sql/expression.h"

#include <optional>
#include <span>
#include <string_view>

namespace vortaq::sql {

/// A bound value and where it stands in the text.
struct Placed {
    ExprPtr *value = nullptr;
    std::size_t at = 0;
};

/// The type in which two types meet; nothing for numbers with dates. Null meets any type in that type.
[[nodiscard]] std::optional<Type> commonType(const Type &left, const Type &right);

/// What + and - of two numbers give.
[[nodiscard]] Type sumType(const Type &left, const Type &right);

/// Conversions in one statement; refusals name their place in it.
class Coercion {
public:
    explicit Coercion(std::string_view text)
        : m_text(text)
    {
    }

    /// The value in the type `to`: unchanged where it has it already (a shorter varchar has), a literal converted at
    /// once, anything else wrapped in a Conversion. Throws SqlError.
    [[nodiscard]] ExprPtr convert(ExprPtr value, const Type &to, Conversion::Mode mode, std::size_t at) const;
    /// The value as the column holds it; a refusal names the column, so that a clerk finds the field.
    [[nodiscard]] ExprPtr store(ExprPtr value, const CatalogColumn &column, std::size_t at) const;

    /// The text of a literal of type `from` in the type `to`. Throws SqlError (Conversion) where it does not fit.
    [[nodiscard]] std::string literalText(const std::string &text, const Type &from, const Type &to,
                                          Conversion::Mode mode, std::size_t at) const;

    /// The common type of all values. Throws SqlError (Binding) when there is none.
    [[nodiscard]] Type common(std::span<const Placed> values) const;

    /// Brings values that are compared with each other to one kind.
    void align(std::span<const Placed> values) const;
    /// Brings values that end up in one column to one type and returns it.
    Type unify(std::span<const Placed> values) const;

private:
    std::string_view m_text;
};

} // namespace vortaq::sql
