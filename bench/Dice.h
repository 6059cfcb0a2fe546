#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace pelorin::bench {

/// Numbers that depend on the seed alone: the distributions of the standard library differ from one
/// library to the next.
class Dice {
public:
    explicit Dice(std::uint64_t seed)
        : m_state(seed)
    {}

    std::uint64_t Next()
    {
        // SplitMix64
        m_state += 0x9e3779b97f4a7c15U;
        std::uint64_t z = m_state;
        z = (z ^ (z >> 30U)) * 0xbf58476d1ce4e5b9U;
        z = (z ^ (z >> 27U)) * 0x94d049bb133111ebU;
        return z ^ (z >> 31U);
    }

    /// 0 to `sides` - 1.
    int Roll(int sides) { return static_cast<int>(Next() % static_cast<std::uint64_t>(sides)); }

    bool Chance(int percent) { return Roll(100) < percent; }

    /// 0 to `sides` - 1, small numbers far more often: a few makers have most of the games.
    int RollSkewed(int sides)
    {
        const int most = Roll(sides) + 1;
        return Roll(Roll(most) + 1);
    }

    template <class T, std::size_t count>
    const T& Pick(const std::array<T, count>& of)
    {
        return of[static_cast<std::size_t>(Roll(static_cast<int>(count)))];
    }

private:
    std::uint64_t m_state;
};

} // namespace pelorin::bench
