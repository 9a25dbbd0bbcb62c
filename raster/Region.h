// Sets of pixels, as clips need them.
#pragma once

#include "raster/Geometry.h"

#include <span>
#include <vector>

namespace raster {

/// How two regions make one. `Complement` is the second without the first.
enum class Combine { Replace, Intersect, Union, Xor, Exclude, Complement };

/// Any set of pixels, as bands of rows that share their spans. Equal sets have equal bands.
class Region {
public:
    /// Pixels [left, right) of every row of a band.
    struct Span {
        int left = 0;
        int right = 0;
        friend bool operator==(const Span& a, const Span& b) {
            return a.left == b.left && a.right == b.right;
        }
    };

    /// No pixel.
    Region() = default;
    explicit Region(const IntRect& rect);
    /// All pixels that can be.
    static Region Everything();

    bool Empty() const { return m_bands.empty(); }
    /// One rectangle, which is Bounds().
    bool IsRectangle() const { return m_bands.size() == 1 && m_bands[0].count == 1; }
    const IntRect& Bounds() const { return m_bounds; }
    bool Contains(int x, int y) const;
    /// Whether the rectangle has a pixel in common with the region.
    bool Touches(const IntRect& rect) const;
    /// The spans of a row, from left to right, apart from each other; nothing when there are none.
    std::span<const Span> Row(int y) const;
    /// As rectangles, from the top down.
    std::vector<IntRect> Rectangles() const;

    void Apply(const Region& other, Combine how);
    /// What is moved beyond the farthest pixel is lost.
    void Move(int dx, int dy);
    /// Adds a row below all others; spans that touch become one.
    void Append(int y, std::span<const Span> spans) { Append(y, y + 1, spans); }

    friend bool operator==(const Region& a, const Region& b);

private:
    struct Band {
        int top = 0;
        int bottom = 0;
        size_t first = 0;
        size_t count = 0;
    };

    std::span<const Span> Of(const Band& band) const {
        return std::span(m_spans).subspan(band.first, band.count);
    }
    std::vector<Band>::const_iterator Find(int y) const;
    void Append(int top, int bottom, std::span<const Span> spans);

    std::vector<Band> m_bands;
    std::vector<Span> m_spans;
    IntRect m_bounds;
};

}  // namespace raster
