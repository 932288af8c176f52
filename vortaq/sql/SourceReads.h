// SPDX-License-Identifier: MIT
// Which sources a bound value, condition or query reads.
#pragma once

#include "vortaq/sql/tree.h"

#include <set>

namespace vortaq::sql {

/// Numbers of the sources whose columns are read, sub-queries included. Null pointers read nothing.
class SourceReads {
public:
    void add(const Expr *value);
    void add(const Condition *condition);
    void add(const Query &query);

    [[nodiscard]] const std::set<int> &sources() const noexcept { return m_sources; }
    /// Whether an aggregate was met outside sub-queries.
    [[nodiscard]] bool aggregates() const noexcept { return m_aggregates; }

private:
    void add(const ExprPtr &value) { add(value.get()); }
    void add(const ConditionPtr &condition) { add(condition.get()); }
    template <typename Pointer> void add(const std::vector<Pointer> &operands);
    void add(const Subquery &subquery);

    void read(const Literal &) { }
    void read(const ColumnRef &column) { m_sources.insert(column.source); }
    void read(const Conversion &conversion) { add(conversion.operand); }
    void read(const Arithmetic &arithmetic);
    void read(const Negation &negation) { add(negation.operand); }
    void read(const Call &call) { add(call.arguments); }
    void read(const Aggregate &aggregate);
    void read(const Case &choice);
    void read(const Subquery &subquery) { add(subquery); }

    void read(const Comparison &comparison);
    void read(const NullTest &test) { add(test.operand); }
    void read(const Between &between);
    void read(const Like &like);
    void read(const InList &list);
    void read(const InQuery &query);
    void read(const Exists &exists) { add(exists.subquery); }
    void read(const Negated &negated) { add(negated.operand); }
    void read(const Junction &junction) { add(junction.operands); }
    void read(const KeyList &keys) { m_sources.insert(keys.source); }

    std::set<int> m_sources;
    bool m_aggregates = false;
};

} // namespace vortaq::sql
