// What shapes are filled with.
#pragma once

#include "raster/Matrix.h"
#include "raster/Surface.h"

#include <array>
#include <memory>
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
    /// The same where they are in memory already, until the next call; null when they are not.
    virtual const uint32_t* Pixels(Point /*first*/, int /*count*/) const { return nullptr; }
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
    void Fill(const GradientStop& from, const GradientStop& to, int first, int end, bool gamma);

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

/// A number at a place of a gradient, from 0 to 1.
struct BlendStop {
    double position = 0;
    double factor = 0;
};

/// The stops of a gradient between two colours where factors (0 for `first`, 1 for `last`) say how much of
/// each there is; empty for evenly. Positions rise from 0 to 1.
std::vector<GradientStop> BlendStops(Color first, Color last, std::span<const BlendStop> blend, bool gamma);

/// What a path gradient is made of.
struct PathGradientShape {
    std::vector<Point> outline;  // closed
    /// A colour for each point of the outline; the last one goes on for the rest.
    std::vector<Color> surround;
    Point centre;
    Color center = 0;
    /// Colours from the outline (0) to the centre (1); where there are any, the other colours do not count.
    std::vector<GradientStop> colors;
    /// How far from the outline's colour (0) to the centre's (1) it is at places between the outline (0) and
    /// the centre (1); empty for evenly.
    std::vector<BlendStop> blend;
    /// The outline, scaled by these (0 to 1) around the centre, has the centre's colour inside.
    double focusX = 0, focusY = 0;
    /// How the rectangle around the outline is repeated. With `Wrap::Clamp` it is there once.
    Wrap wrap = Wrap::Clamp;
    bool gamma = false;
};

/// Colours from a centre to the lines around it.
class PathGradient final : public Paint {
public:
    /// `matrix` maps to the surface. Outside the outline nothing is painted.
    PathGradient(const PathGradientShape& shape, const Matrix& matrix);
    /// The same, with `blend` at equal distances.
    PathGradient(std::span<const Point> outline, std::span<const Color> surround, Point centre, Color center,
                 std::span<const double> blend, const Matrix& matrix);

    void Row(Point first, int count, uint32_t* out) const override;

private:
    using Channels = std::array<double, 4>;
    // Colours of a corner count where there is no ramp: those of the outline.
    struct Corner {
        Point at;
        double depth;
        Channels color;
    };
    // In a fan the colour of the outline goes on along lines from the first corner.
    struct Triangle {
        std::array<Corner, 3> corners;
        bool fan;
    };

    void AddTriangles(const PathGradientShape& shape);
    void Line(Point start, Point step, int count, uint32_t* out) const;
    void TriangleLine(const Triangle& triangle, Point start, Point step, int count, uint32_t* out) const;
    Color Mixed(const Channels& edge, double depth) const;

    std::vector<Triangle> m_triangles;
    std::vector<BlendStop> m_blend;
    std::vector<Ramp> m_ramp;  // one, by the depth, where all of the outline has the same colours
    Channels m_center;
    Matrix m_inverse;
    Rect m_box;
    bool m_gamma;
    Wrap m_wrap;
    bool m_nothing = true;
};

/// How a picture's pixels are made to the surface's. The smooth ones take the mean of pixels first where the
/// picture is made much smaller.
enum class Sampling { Nearest, Bilinear, Bicubic, SmoothBilinear, SmoothBicubic };

struct ColorEffects;
class PictureRows;

/// A picture, repeated by its wrap mode.
class Texture final : public Paint {
public:
    /// Pixel (0, 0) of `picture` is the square from (0, 0) to (1, 1), which `matrix` maps to the surface.
    /// Beyond the picture `Wrap::Clamp` paints `outside` (not premultiplied). The pixels and the effects on
    /// them are kept by their owner as long as this lives. It is for one thread at a time.
    Texture(const Surface& picture, const Matrix& matrix, Wrap wrap, Sampling sampling,
            const ColorEffects* effects = nullptr, Color outside = 0);
    ~Texture() override;

    void Row(Point first, int count, uint32_t* out) const override;
    const uint32_t* Pixels(Point first, int count) const override;

private:
    bool AlongRows(Point start, int count, uint32_t* out) const;
    void AnyWay(Point start, int count, uint32_t* out) const;
    Color Bilinear(double x, double y) const;
    Color Bicubic(double x, double y) const;

    std::unique_ptr<PictureRows> m_rows;
    Matrix m_inverse;  // to pixels of m_rows
    bool m_nothing;
    Sampling m_sampling;  // none of the smooth ones
    mutable std::vector<float> m_columns;
};

/// An 8 by 8 pattern in two colours, fixed to the surface.
class Hatch final : public Paint {
public:
    /// A byte for each row from the top; its highest bit is the left pixel and stands for `fore`. The pattern
    /// begins at (`originX`, `originY`).
    Hatch(const std::array<uint8_t, 8>& rows, Color fore, Color back, int originX, int originY);
    /// One of the standard patterns of HatchPatterns.h, the first when there is none of that number.
    Hatch(int style, Color fore, Color back, int originX, int originY);

    void Row(Point first, int count, uint32_t* out) const override;

private:
    std::array<std::array<Color, 8>, 8> m_colors;  // premultiplied
};

/// Red, green, blue, alpha and 1 of a colour (0 to 1, not premultiplied), as a row, are multiplied by it.
using ColorMatrix = std::array<std::array<double, 5>, 5>;
Color Apply(const ColorMatrix& matrix, Color color);

/// A colour between two, in parts of the way to `to`; channels change evenly, or their brightness does when
/// `gamma` is set.
Color Mix(Color from, Color to, double part, bool gamma);

/// A pixel as a premultiplied colour.
Color ReadPixel(const Surface& surface, int x, int y);

}  // namespace raster
