// Random numbers that are the same on every machine.
#pragma once

#include <cstdint>

namespace TownMaker {

/// Mixes a number so that changing any bit changes about half of the result's bits.
constexpr std::uint64_t Mix(std::uint64_t value) {
    value += 0x9E3779B97F4A7C15;
    value = (value ^ (value >> 30)) * 0xBF58476D1CE4E5B9;
    value = (value ^ (value >> 27)) * 0x94D049BB133111EB;
    return value ^ (value >> 31);
}

/// A random number generator for one item of the town, seeded with the town's seed and the item's
/// numbers. Items can therefore be computed in any order and repeatedly instead of being stored.
class Chance {
public:
    Chance(std::uint64_t seed, std::uint64_t what, std::uint64_t i = 0, std::uint64_t j = 0)
        : m_state(Mix(Mix(Mix(Mix(seed) ^ what) ^ i) ^ j)) {}

    std::uint64_t Next() { return Mix(m_state++); }
    /// From 0 (inclusive) to 1 (exclusive).
    double Part() { return static_cast<double>(Next() >> 11) * 0x1p-53; }
    double Between(double low, double high) { return low + (high - low) * Part(); }
    bool Happens(double probability) { return Part() < probability; }

private:
    std::uint64_t m_state;
};

} // namespace TownMaker
