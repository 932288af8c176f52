// SPDX-License-Identifier: MIT
// Random numbers that are the same on every machine and with every compiler.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vortaq::demo {

/// The splitmix64 sequence of a seed.
class Random {
public:
    explicit Random(std::uint64_t seed)
        : m_state(seed)
    {
    }

    std::uint64_t next()
    {
        m_state += 0x9E3779B97F4A7C15U;
        std::uint64_t bits = m_state;
        bits = (bits ^ (bits >> 30U)) * 0xBF58476D1CE4E5B9U;
        bits = (bits ^ (bits >> 27U)) * 0x94D049BB133111EBU;
        return bits ^ (bits >> 31U);
    }

    /// 0 .. bound - 1; bound is positive.
    int below(int bound) { return static_cast<int>(((next() >> 32U) * static_cast<std::uint64_t>(bound)) >> 32U); }
    /// Both ends included.
    int between(int least, int most) { return least + below(most - least + 1); }
    bool percent(int chance) { return below(100) < chance; }

    template <typename List> const auto &pick(const List &list)
    {
        return list[static_cast<std::size_t>(below(static_cast<int>(list.size())))];
    }

    template <typename T> void shuffle(std::vector<T> &list)
    {
        for (std::size_t left = list.size(); left > 1; --left)
            std::swap(list[left - 1], list[static_cast<std::size_t>(below(static_cast<int>(left)))]);
    }

private:
    std::uint64_t m_state;
};

} // namespace vortaq::demo
