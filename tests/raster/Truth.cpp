#include "raster/Truth.h"

#include <gtest/gtest.h>

namespace raster {

void Coverage::Row(int y, std::span<const Run> runs) {
    ASSERT_GE(y, 0);
    ASSERT_LT(y, Height());
    int end = 0;
    for (const Run& run : runs) {
        ASSERT_GE(run.x, end);
        ASSERT_GT(run.length, 0);
        end = run.x + run.length;
        ASSERT_LE(end, m_width);
        for (int i = 0; i < run.length; ++i)
            m_values[static_cast<size_t>(y) * m_width + run.x + i] =
                run.coverage ? run.coverage[i] : run.value;
    }
}

std::vector<std::pair<double, double>> InsideAt(const Chains& chains, FillRule rule, double y) {
    std::vector<std::pair<double, int>> crossings;
    for (const Chains::Chain& chain : chains.chains) {
        const auto vertices = chains.Of(chain);
        for (size_t i = 0; i < vertices.size(); ++i) {
            const Point a = vertices[i].at, b = vertices[i + 1 < vertices.size() ? i + 1 : 0].at;
            if ((a.y <= y) != (b.y <= y))
                crossings.emplace_back(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y), a.y < b.y ? 1 : -1);
        }
    }
    std::sort(crossings.begin(), crossings.end());
    std::vector<std::pair<double, double>> parts;
    int winding = 0;
    for (size_t i = 0; i + 1 < crossings.size(); ++i) {
        winding += crossings[i].second;
        if (rule == FillRule::Winding ? winding != 0 : winding % 2 != 0)
            parts.emplace_back(crossings[i].first, crossings[i + 1].first);
    }
    return parts;
}

Difference CompareWithTruth(const Coverage& drawn, const Chains& chains, FillRule rule) {
    constexpr int lines = 128;
    Difference difference;
    int counted = 0;
    for (int y = 0; y < drawn.Height(); ++y) {
        std::vector<double> area(drawn.Width());
        for (int i = 0; i < lines; ++i) {
            for (const auto& [from, to] : InsideAt(chains, rule, y + (i + 0.5) / lines)) {
                const int first = static_cast<int>(std::clamp<double>(from, 0, drawn.Width()));
                for (int x = first; x < drawn.Width() && x < to; ++x)
                    area[x] += std::max(0.0, std::min(to, x + 1.0) - std::max<double>(from, x)) / lines;
            }
        }
        for (int x = 0; x < drawn.Width(); ++x) {
            const double off = std::abs(area[x] * 255 - drawn.At(x, y));
            if (area[x] > 0 || drawn.At(x, y) > 0) {
                difference.mean += off;
                ++counted;
            }
            if (off > difference.largest) {
                difference.largest = off;
                difference.x = x;
                difference.y = y;
            }
        }
    }
    difference.mean /= std::max(counted, 1);
    return difference;
}

}  // namespace raster
