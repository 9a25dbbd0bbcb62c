// What shapes are filled with.
#pragma once

#include "raster/Matrix.h"
#include "raster/Surface.h"

#include <array>
#include <span>
#include <vector>

namespace raster {

/// Colours for the pixels of a shape.
class Paint {
public:
    virtual ~Paint() = default;

    /// Whether all pixels are `color` (premultiplied). `Row` then is not called.
    virtual bool IsSolid(Color& /*color*/) const { return false; }
    /// Premultiplied colours at `count` points of the surface: `first` and those to the right of it, 1 apart.
    virtual void Row(Point first, int count, uint32_t* out) const = 0;
};

/// One colour.
class SolidPaint final : public Paint {
public:
    explicit SolidPaint(Color color) : m_color(Premultiply(color)) {}

    bool IsSolid(Color& color) const override {
        color = m_color;
        return true;
    }
    void Row(Point first, int count, uint32_t* out) const override;

private:
    Color m_color;
};

/// How a paint goes on beyond its own area.
enum class Wrap { Tile, FlipX, FlipY, FlipXY, Clamp };

/// A colour at a place of a gradient, from 0 to 1.
struct GradientStop {
    double position = 0;
    Color color = 0;
};

/// Colours at equal distances, worked out once.
class Ramp {
public:
    static constexpr int kBits = 10;

    /// `stops` in order of their positions; channels change evenly, or their brightness does when `gamma` is
    /// set.
    Ramp(std::span<const GradientStop> stops, bool gamma);

    /// The premultiplied colour at a place of 2^32.
    Color At(uint32_t place) const { return m_colors[place >> (32 - kBits)]; }

private:
    std::array<Color, 1 << kBits> m_colors;
};

/// Colours that change along a line and go on from end to end (`Wrap::Tile`) or back and forth (any other).
class LinearGradient final : public Paint {
public:
    /// From `from` to `to`, which `matrix` maps to the surface. Two points at the same place, or a matrix
    /// that cannot be undone, give the first colour.
    LinearGradient(Point from, Point to, const Matrix& matrix, std::span<const GradientStop> stops, Wrap wrap,
                   bool gamma);

    void Row(Point first, int count, uint32_t* out) const override;

private:
    Ramp m_ramp;
    bool m_back;
    double m_x = 0, m_y = 0, m_start = 0;  // the place at a point is m_x * x + m_y * y + m_start
};

/// Colours from a centre to the lines around it.
class PathGradient final : public Paint {
public:
    /// `outline` is closed; `surround` has a colour for each of its points, the last one goes on for the
    /// rest. `blend` says how far (0 on the outline, 1 in the centre) the colour is from the outline's to
    /// `center` at equal distances; empty for evenly. `matrix` maps to the surface. Outside the outline
    /// nothing is painted.
    PathGradient(std::span<const Point> outline, std::span<const Color> surround, Point centre, Color center,
                 std::span<const double> blend, const Matrix& matrix);

    void Row(Point first, int count, uint32_t* out) const override;

private:
    struct Triangle {
        Point a, b;  // on the surface
        std::array<double, 4> colorA, colorB;
    };
    double Blend(double depth) const;

    std::vector<Triangle> m_triangles;
    Point m_centre;
    std::array<double, 4> m_center;
    std::vector<double> m_blend;
};

/// How a picture's pixels are made to the surface's.
enum class Sampling { Nearest, Bilinear, Bicubic };

/// A picture, repeated by its wrap mode.
class Texture final : public Paint {
public:
    /// Pixel (0, 0) of `picture` is the square from (0, 0) to (1, 1), which `matrix` maps to the surface.
    /// Beyond the picture `Wrap::Clamp` paints nothing. The pixels are kept by their owner as long as this
    /// lives.
    Texture(const Surface& picture, const Matrix& matrix, Wrap wrap, Sampling sampling);

    void Row(Point first, int count, uint32_t* out) const override;

private:
    Color Pixel(int64_t x, int64_t y) const;
    Color Bilinear(double x, double y) const;
    Color Bicubic(double x, double y) const;

    Surface m_picture;
    Matrix m_inverse;
    bool m_nothing;
    Wrap m_wrap;
    Sampling m_sampling;
};

/// An 8 by 8 pattern in two colours, fixed to the surface.
class Hatch final : public Paint {
public:
    /// A byte for each row from the top; its highest bit is the left pixel and stands for `fore`. The pattern
    /// begins at (`originX`, `originY`).
    Hatch(const std::array<uint8_t, 8>& rows, Color fore, Color back, int originX, int originY);

    void Row(Point first, int count, uint32_t* out) const override;

private:
    std::array<uint8_t, 8> m_rows;
    Color m_fore, m_back;
    int m_x, m_y;
};

/// Red, green, blue, alpha and 1 of a colour (0 to 1, not premultiplied), as a row, are multiplied by it.
using ColorMatrix = std::array<std::array<double, 5>, 5>;
Color Apply(const ColorMatrix& matrix, Color color);

/// A pixel as a premultiplied colour.
Color ReadPixel(const Surface& surface, int x, int y);

}  // namespace raster
