// SPDX-License-Identifier: MIT
// How boxes of a band make room for their texts.
#pragma once

#include "report/geometry.h"

#include <algorithm>
#include <map>

namespace report {

/// How far the lower edges of boxes move down for the texts in them. Whatever begins or ends at such an edge, or
/// further below, moves along.
class Growth {
public:
    void add(Unit edge, Unit amount)
    {
        Unit &known = m_amounts[edge];
        known = std::max(known, amount);
    }
    [[nodiscard]] bool none() const noexcept { return m_amounts.empty(); }
    [[nodiscard]] Unit moved(Unit edge) const
    {
        Unit result = edge;
        for (const auto &[from, amount] : m_amounts) {
            if (from <= edge)
                result += amount;
        }
        return result;
    }
    [[nodiscard]] Rect moved(const Rect &box) const
    {
        const Unit top = moved(box.top);
        return {box.left, top, box.width, moved(box.bottom()) - top};
    }

private:
    std::map<Unit, Unit> m_amounts;
};

} // namespace report
