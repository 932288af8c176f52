// SPDX-License-Identifier: MIT
// Conditions bound; what is compared is brought to one kind.
#pragma once

#include "vortaq/sql/Binding.h"

namespace vortaq::sql {

class ConditionBinder {
public:
    explicit ConditionBinder(Binding &binding)
        : m_binding(binding)
    {
    }

    [[nodiscard]] ConditionPtr condition(const ast::Node &node, Scope &scope);

private:
    [[nodiscard]] ConditionPtr compare(const ast::Compare &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr between(const ast::BetweenAnd &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr like(const ast::LikePattern &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr inValues(const ast::InValues &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr inRows(const ast::InRows &parsed, Scope &scope);
    [[nodiscard]] ConditionPtr junction(const ast::AndOr &parsed, Scope &scope);

    Binding &m_binding;
};

} // namespace vortaq::sql
