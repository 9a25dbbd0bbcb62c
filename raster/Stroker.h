// Outlines of what a pen leaves along a path.
#pragma once

#include "raster/Flatten.h"

namespace raster {

/// Where two lines meet. Beyond the miter limit `Miter` is cut off at the limit and `MiterOrBevel` is a bevel.
enum class Join { Miter, Bevel, Round, MiterOrBevel };

/// Where a line ends. All but `Flat` go half the width beyond the end.
enum class Cap { Flat, Square, Round, Triangle };

/// Where the pen runs: along the middle of the line or, in closed figures, on their inside.
enum class Alignment { Center, Inset };

/// How a path is stroked. Lengths are units of the path.
struct Pen {
    double width = 1;
    Join join = Join::Miter;
    /// How many times longer than the width a miter may be, from the inner corner to the outer; at least 1.
    double miterLimit = 10;
    Cap startCap = Cap::Flat;
    Cap endCap = Cap::Flat;
    Cap dashCap = Cap::Flat;
    Alignment alignment = Alignment::Center;
    /// Lengths of dashes and gaps in turn, in widths; empty for a whole line. What is not above 0 is nothing.
    std::vector<double> dashes;
    /// Where in `dashes` a figure begins, in widths.
    double dashOffset = 0;
};

/// Makes outlines. One object serves any number of paths and keeps its memory between them.
class Stroker {
public:
    /// The outline of `path`, stroked with `pen` and mapped by `matrix`, is what Outline() then has; to be
    /// filled by FillRule::Winding. A line narrower than a pixel is a pixel wide. Dashes beside `clip` (pixels)
    /// may be left out.
    void Stroke(const Path& path, const Pen& pen, const Matrix& matrix, const Rect& clip);

    const Chains& Outline() const { return m_outline; }
    /// The chains have no point inside twice, as `Rasterizer::Add` wants to know.
    bool Apart() const { return m_apart; }

private:
    struct Corner {
        Point at;
        bool smooth;
    };
    struct Line {
        Point direction;  // of length 1
        double length;
    };

    void StrokeChain(std::span<const Chains::Vertex> chain, bool closed, const Pen& pen);
    void Dash(const Pen& pen, bool closed);
    void DashLine(const Pen& pen, size_t index);
    void Load(std::span<const Chains::Vertex> chain, bool closed);
    void FindLines(bool closed);
    void Open(Cap start, Cap end);
    void Closed(Alignment alignment);
    void Dot(Point at, Cap start, Cap end);
    void Side(double offset, bool reversed, bool closed);
    void AddJoin(Point at, const Line& before, const Line& after, double offset, bool smooth, bool fits);
    void AddCap(Point at, Point outward, Cap cap);
    void AddArc(Point centre, Point from, Point to, double radius, double turn);

    void BeginOutline() { m_outline.chains.push_back({m_outline.vertices.size(), 0, true}); }
    void Add(Point at) { m_outline.vertices.push_back({m_matrix.Map(at), false}); }
    void EndOutline();

    Matrix m_matrix;
    Join m_join = Join::Miter;
    double m_miterLimit = 10;
    double m_half = 0.5;
    double m_tolerance = kTolerance;
    Rect m_clip;
    bool m_apart = false;

    Chains m_flat;
    Chains m_outline;
    std::vector<Corner> m_corners;
    std::vector<Line> m_lines;
    std::vector<Corner> m_whole;
    std::vector<Line> m_wholeLines;
};

}  // namespace raster
