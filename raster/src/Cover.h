// Lines as changes of area, cell by cell.
#pragma once

#include "raster/Rasterizer.h"

#include "CoverageBlock.h"

namespace raster {

inline constexpr int kUnit = 256;                  // of a coordinate to a pixel
inline constexpr int64_t kOne = int64_t{1} << 32;  // fraction of positions that go down an edge

// The pixel in which a coordinate lies.
inline int PixelOf(int fixed) {
    return fixed >> 8;
}
inline int64_t FloorDivide(int64_t a, int64_t b) {
    const int64_t quotient = a / b;
    return quotient * b > a ? quotient - 1 : quotient;
}

// Of 2^32; a division of doubles takes half the time.
inline int64_t Slope(int rise, int run) {
    return static_cast<int64_t>(rise * 4294967296.0 / run);
}

inline Rasterizer::BandRow Rasterizer::InBand(int row) {
    const auto index = static_cast<size_t>(row - m_top);
    return {&m_cells[index * m_stride], &m_touched[index * m_words]};
}

inline void Rasterizer::BandRow::Mark(int first, int last) const {
    const auto mark = [this](unsigned block) { touched[block / 64] |= uint64_t{1} << (block % 64); };
    unsigned block = static_cast<unsigned>(first) / kBlock;
    const unsigned end = static_cast<unsigned>(last) / kBlock;
    mark(block);
    while (block < end)
        mark(++block);
}

// Adds the area to the right of a line of `height` (negative when the figure goes up) within one row.
// `slope` is that of the line's height to its width, or 0 when it is not known.
inline void Rasterizer::Cover(const BandRow& row, int x0, int x1, int height, int64_t slope) {
    // From left to right, whichever way the line goes down.
    const int from = std::min(x0, x1) - m_left * kUnit, to = std::max(x0, x1) - m_left * kUnit;
    const int cell = PixelOf(from);
    if (cell != PixelOf(to) || cell < 0) {
        CoverMany(row, from, to, height, slope);
        return;
    }
    if (cell >= m_columns)
        return;
    const int area = height * (from + to - 2 * cell * kUnit);
    row.cells[cell] += height * (2 * kUnit) - area;
    row.cells[cell + 1] += area;
    row.Mark(cell, cell + 1);
}

// The same for a line from `x0` to `x1`, counted from the first cell, that leaves its cell or lies before
// all.
[[gnu::always_inline]] inline void Rasterizer::CoverMany(const BandRow& row, int x0, int x1, int height,
                                                         int64_t slope) {
    int* cells = row.cells;
    if (x1 <= 0) {
        cells[0] += height * (2 * kUnit);
        row.Mark(0, 0);
        return;
    }
    int cell = PixelOf(x0);
    const int last = PixelOf(x1);
    if (cell >= m_columns)
        return;
    if (slope == 0)
        slope = Slope(height, x1 - x0);
    int inset = x0 - (cell - 1) * kUnit;  // of both ends of the part in a cell
    int done = 0;
    int carried = 0;  // the change that belongs to the next cell
    if (cell < 0) {
        done = static_cast<int>(slope * -x0 >> 32);
        cells[0] += done * (2 * kUnit);
        cell = 0;
        inset = kUnit;
    }
    const int end = std::min(last, m_columns);
    row.Mark(cell, std::min(last + 1, m_columns));
    int64_t reached = slope * ((cell + 1) * kUnit - x0);
    for (; cell < end; ++cell, reached += slope * kUnit) {
        const int now = static_cast<int>(reached >> 32), high = now - done;
        const int area = high * inset;
        cells[cell] += carried + high * (2 * kUnit) - area;
        carried = area;
        done = now;
        inset = kUnit;
    }
    if (last < m_columns) {
        const int high = height - done, area = high * (x1 - last * kUnit);
        cells[last] += carried + high * (2 * kUnit) - area;
        cells[last + 1] += area;
    } else {
        cells[cell] += carried;
    }
}

}  // namespace raster
