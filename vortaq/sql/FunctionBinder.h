// SPDX-License-Identifier: MIT
// The functions of the subset bound.
#pragma once

#include "vortaq/sql/Binding.h"

namespace vortaq::sql {

class FunctionBinder {
public:
    FunctionBinder(Binding &binding, Scope &scope)
        : m_binding(binding)
        , m_scope(scope)
    {
    }

    [[nodiscard]] ExprPtr call(const ast::FunctionCall &parsed);

private:
    [[nodiscard]] ExprPtr isNull(const ast::FunctionCall &parsed);
    [[nodiscard]] ExprPtr length(const ast::FunctionCall &parsed);
    [[nodiscard]] ExprPtr str(const ast::FunctionCall &parsed);
    [[nodiscard]] int writtenSize(const ast::Node &node, int least, int most) const;
    [[nodiscard]] ExprPtr aggregate(const ast::FunctionCall &parsed, Aggregate::Function function);

    Binding &m_binding;
    Scope &m_scope;
};

} // namespace vortaq::sql
