// SPDX-License-Identifier: MIT
// Values that were set on nodes, for one position: they lie over the immutable text of the rows.
#pragma once

#include <QString>
#include <QVariant>

#include <string>
#include <string_view>
#include <vector>

namespace toolkit::treelist {

/// The few values that a column usually takes (ticks, markers, codes) cost one byte a node, so that ticking and
/// counting 100,000 rows is a walk over bytes; any further distinct value is kept for its node alone.
class StoredValues {
public:
    [[nodiscard]] bool has(int node) const noexcept
    {
        return static_cast<std::size_t>(node) < m_codes.size() && m_codes[static_cast<std::size_t>(node)] != Unset;
    }
    /// The three below expect has(node).
    [[nodiscard]] const QVariant &value(int node) const;
    [[nodiscard]] QString text(int node) const;
    [[nodiscard]] std::string_view utf8(int node, std::string &scratch) const;

    void set(int node, const QVariant &value);
    /// Sets nodes 0 to count-1.
    void setAll(int count, const QVariant &value);

private:
    using Code = unsigned char;
    static constexpr Code Unset = 0;
    static constexpr Code Own = 255; ///< the value stands in m_own
    static constexpr std::size_t MostShared = 16;

    struct Shared {
        QVariant value;
        QString text;
        std::string utf8;
    };

    [[nodiscard]] const QVariant &own(int node) const { return m_own[static_cast<std::size_t>(node)]; }
    [[nodiscard]] Code codeFor(const QVariant &value);
    [[nodiscard]] const Shared &shared(Code code) const noexcept { return m_shared[code - 1U]; }

    std::vector<Code> m_codes; // a byte a node: Unset, Own, or 1 + position in m_shared
    std::vector<Shared> m_shared;
    std::vector<QVariant> m_own; // by node; as long as the last node with a value of its own needs
};

} // namespace toolkit::treelist
