// Hostile inputs, made from sound ones. The same seed and number always give the same input.
#pragma once

#include <windows.h>

#include <cstdint>
#include <string_view>
#include <vector>

using Bytes = std::vector<BYTE>;

/// A reproducible sequence of numbers.
class Random {
public:
    explicit Random(uint64_t seed) : m_state(seed) {}
    /// The sequence for one input of a loader.
    Random(uint64_t seed, std::string_view loader, uint64_t number);

    uint64_t Next();
    /// A number from 0 to `count` - 1; `count` is at least 1.
    size_t Below(size_t count) { return static_cast<size_t>(Next() % count); }
    bool OneIn(size_t count) { return Below(count) == 0; }

private:
    uint64_t m_state;
};

/// No input is longer.
inline constexpr size_t kLongestInput = size_t{256} * 1024;

/// One of the seeds, changed in one place or several; now and then not at all.
Bytes Mutate(const std::vector<Bytes>& seeds, Random& random);
