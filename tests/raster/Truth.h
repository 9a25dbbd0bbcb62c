// What shapes cover by the definition, for comparison.
#pragma once

#include "raster/Rasterizer.h"

#include <random>

namespace raster {

/// Coverage of every pixel of a small picture.
class Coverage final : public RowSink {
public:
    Coverage(int width, int height) : m_width(width), m_values(static_cast<size_t>(width) * height) {}

    void Row(int y, std::span<const Run> runs) override;
    int At(int x, int y) const { return m_values[static_cast<size_t>(y) * m_width + x]; }
    int Width() const { return m_width; }
    int Height() const { return static_cast<int>(m_values.size()) / m_width; }

    friend bool operator==(const Coverage& a, const Coverage& b) { return a.m_values == b.m_values; }

private:
    int m_width;
    std::vector<uint8_t> m_values;
};

/// How two pictures differ, in steps of 255.
struct Difference {
    double mean = 0;  // over the pixels that the shape touches
    double largest = 0;
    int x = 0, y = 0;  // where it is largest
};

/// The parts of the line at height `y` that are inside the chains, by counting edges.
std::vector<std::pair<double, double>> InsideAt(const Chains& chains, FillRule rule, double y);

/// Compares `drawn` with the area of each pixel inside the chains: 128 lines of every row, each without
/// error.
Difference CompareWithTruth(const Coverage& drawn, const Chains& chains, FillRule rule);

/// Numbers that are the same on every machine.
class Random {
public:
    explicit Random(uint32_t seed) : m_engine(seed) {}
    double Between(double from, double to) { return from + (to - from) * (m_engine() / 4294967296.0); }
    int Below(int count) { return static_cast<int>(m_engine() % static_cast<uint32_t>(count)); }
    Point Within(const Rect& rect) {
        const double x = Between(rect.left, rect.right);
        return {x, Between(rect.top, rect.bottom)};
    }

private:
    std::mt19937 m_engine;
};

}  // namespace raster
