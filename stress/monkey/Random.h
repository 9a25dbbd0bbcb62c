// Numbers that look random and are the same for the same seed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace monkey {

/// Every message has a source of its own, made from seed, burst and place in the burst: what one message
/// needs more or less of does not shift what the following ones do.
class Random {
public:
    explicit Random(std::uint64_t seed, std::uint64_t burst = 0, std::uint64_t message = 0)
        : m_state(seed * 0x9E3779B97F4A7C15u + burst * 0xD1B54A32D192ED03u + message * 0x8CB92BA72F3D8DD7u) {}

    std::uint64_t Next() {
        std::uint64_t z = m_state += 0x9E3779B97F4A7C15u;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9u;
        z = (z ^ z >> 27) * 0x94D049BB133111EBu;
        return z ^ z >> 31;
    }
    /// From 0 to `count` - 1; 0 for a count below 1.
    int Below(int count) {
        return count < 1 ? 0 : static_cast<int>(Next() % static_cast<std::uint64_t>(count));
    }
    int Between(int least, int most) { return least + Below(most - least + 1); }
    bool Chance(int percent) { return Below(100) < percent; }
    template <class Table>
    auto& Pick(Table& table) {
        return *std::next(std::begin(table), Below(static_cast<int>(std::size(table))));
    }

private:
    std::uint64_t m_state;
};

}  // namespace monkey
