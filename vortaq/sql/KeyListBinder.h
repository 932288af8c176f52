// SPDX-License-Identifier: MIT
// A bill of thousands of records is written as an OR of their keys; a database takes it only as a list of keys.
#pragma once

#include "vortaq/sql/Binding.h"

#include <optional>

namespace vortaq::sql {

class KeyListBinder {
public:
    KeyListBinder(Binding &binding, Scope &scope)
        : m_binding(binding)
        , m_scope(scope)
    {
    }

    /// Null where the alternatives name too few keys to be worth a list.
    [[nodiscard]] ConditionPtr keyList(const ast::AndOr &alternatives);

private:
    struct KeyShape;
    [[nodiscard]] std::optional<KeyShape> keyShape(const ast::AndOr &alternatives) const;
    [[nodiscard]] bool appendKeyRow(const KeyShape &shape, ast::Node *const &alternative, KeyList &list) const;
    [[nodiscard]] std::optional<std::string> keyText(const ast::Node &written, const Type &type) const;

    Binding &m_binding;
    Scope &m_scope;
};

} // namespace vortaq::sql
