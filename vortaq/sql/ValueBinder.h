// SPDX-License-Identifier: MIT
// Values bound and typed.
#pragma once

#include "vortaq/sql/Binding.h"

namespace vortaq::sql {

class ValueBinder {
public:
    explicit ValueBinder(Binding &binding)
        : m_binding(binding)
    {
    }

    [[nodiscard]] ExprPtr value(const ast::Node &node, Scope &scope);
    /// A value where T-SQL takes text: anything else is converted.
    [[nodiscard]] ExprPtr text(const ast::Node &node, Scope &scope);
    [[nodiscard]] ExprPtr column(const ast::ColumnName &name, Scope &scope);

private:
    [[nodiscard]] ExprPtr number(std::string_view digits, bool negative, std::size_t at) const;
    [[nodiscard]] static ExprPtr string(std::string_view quoted);
    [[nodiscard]] ExprPtr sum(const ast::Sum &parsed, std::size_t at, Scope &scope);
    [[nodiscard]] ExprPtr minus(const ast::Minus &parsed, std::size_t at, Scope &scope);
    [[nodiscard]] ExprPtr toVarchar(const ast::ToVarchar &parsed, Scope &scope);
    [[nodiscard]] ExprPtr caseOf(const ast::CaseOf &parsed, std::size_t at, Scope &scope);
    void caseConditions(const ast::CaseOf &parsed, Case &result, Scope &scope);
    [[nodiscard]] ExprPtr scalar(const ast::Query &parsed, std::size_t at, Scope &scope);

    Binding &m_binding;
};

} // namespace vortaq::sql
