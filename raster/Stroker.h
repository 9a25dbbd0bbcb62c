// Outlines of what a pen leaves along a path.
#pragma once

#include "raster/Flatten.h"

#include <memory>

namespace raster {

/// Where two lines meet. Beyond the miter limit `Miter` is cut off at the limit and `MiterOrBevel` is a
/// bevel.
enum class Join { Miter, Bevel, Round, MiterOrBevel };

/// Where a line ends. `Square`, `Round` and `Triangle` go half the width beyond the end. Anchors are wider
/// than the line and have their middle at its end: a square and a disc two widths across (the square from
/// corner to corner), a diamond of that size on its tip; an arrow has its tip there and is two widths long.
enum class Cap { Flat, Square, Round, Triangle, SquareAnchor, RoundAnchor, DiamondAnchor, ArrowAnchor };

/// Where the pen runs: along the middle of the line or, in closed figures, on their inside.
enum class Alignment { Center, Inset };

/// A cap of one's own. (0, 0) is the end of the line, y grows away from the line, and x to the left of that
/// direction; the unit is the width of the pen.
struct CustomCap {
    Path fill;  // by FillRule::Winding
    Path line;  // stroked as wide as the pen's line
    Join join = Join::Miter;
    double miterLimit = 10;
    Cap startCap = Cap::Flat;  // of `line`; no anchors
    Cap endCap = Cap::Flat;
    /// The pen's own line ends this far before its end.
    double inset = 0;
    /// Everything is larger by this.
    double scale = 1;
};

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
    /// Where lines of a compound pen begin and end in turn, from the left side (0) to the right (1), rising;
    /// empty for one line. Their caps are flat or square.
    std::vector<double> compound = {};
    /// Where they are not null they take the place of the caps of open figures.
    std::shared_ptr<const CustomCap> startCustom = nullptr;
    std::shared_ptr<const CustomCap> endCustom = nullptr;

    /// Whether an end of an open figure has a shape wider than the line.
    bool HasAnchors() const {
        return startCustom || endCustom || startCap >= Cap::SquareAnchor || endCap >= Cap::SquareAnchor;
    }
};

/// Makes outlines. One object serves any number of paths and keeps its memory between them.
class Stroker {
public:
    /// The outline of `path`, stroked with `pen` and mapped by `matrix`, is what Outline() then has; to be
    /// filled by FillRule::Winding. A line narrower than a pixel is a pixel wide. Dashes beside `clip`
    /// (pixels) may be left out.
    void Stroke(const Path& path, const Pen& pen, const Matrix& matrix, const Rect& clip);

    /// Instead of the outline the lines along which the pen runs, in pixels; dashes are of a pen a pixel
    /// wide.
    void Lines(const Path& path, const Pen& pen, const Matrix& matrix, const Rect& clip);

    const Chains& Outline() const { return m_outline; }
    /// The chains have no point inside twice, as `Rasterizer::Add` wants to know.
    bool Apart() const { return m_apart; }

private:
    struct Line {
        Point direction;  // of length 1
        double length;
    };
    // A chain without lines of no length; closed ones have as many lines as corners.
    struct Spine {
        std::vector<Chains::Vertex> corners;
        std::vector<Line> lines;
        bool closed = false;
        Point first, last;  // directions at the ends of an open one

        Point Tangent(size_t line, double part) const;
        void Load(std::span<const Chains::Vertex> chain, bool isClosed);
        void Clear();
        void Add(const Chains::Vertex& corner);
    };
    struct End {
        Cap cap = Cap::Flat;
        bool inside = false;  // of a figure, as between dashes
    };

    void StrokeChains(const Pen& pen, double width);
    void StrokeChain(const Pen& pen);
    void StrokeParts(const Pen& pen);
    void StrokePart(const Pen& pen);
    double TotalArea() const;
    void Trim(double start, double end);
    bool Dash(const Pen& pen, Cap startCap, Cap endCap);
    void EndDash(End start, End end);
    bool Visible(Point from, Point to, double& first, double& last) const;
    void StrokeOpen(const Spine& spine, End start, End end);
    void StrokeClosed();
    void StrokeDot(Point at, Cap start, Cap end);
    void AddLines(const Spine& spine, bool startsInside, bool endsInside);

    void AddAnchor(Point at, Point outward, Cap cap, const CustomCap* custom);
    void AddShape(const Path& path, const Matrix& place);

    void Walk(const Spine& spine, double offset, bool forwards);
    void AddCorner(const Chains::Vertex& corner, const Line& before, const Line& after, double offset);
    void AddOuter(const Chains::Vertex& corner, Point before, Point after, double offset);
    void AddCap(Point at, Point outward, Cap cap, double left, double right);
    int ArcPieces(double radius, double turn) const;
    void AddArc(Point centre, Point from, double turn);
    void BeginOutline() { m_outline.chains.push_back({m_outline.vertices.size(), 0, true}); }
    void EndOutline();
    void Add(Point at) { m_outline.vertices.push_back({m_matrix.Map(at), false}); }

    Matrix m_matrix;
    Join m_join = Join::Miter;
    double m_miterLimit = 10;
    double m_width = 1;
    double m_left = 0.5;  // from the spine to the sides; negative beyond it
    double m_right = 0.5;
    double m_tolerance = kTolerance;
    Rect m_visible;      // pixels
    bool m_fits = true;  // no line was too short for a corner at its inner side
    bool m_apart = false;
    bool m_linesOnly = false;
    double m_patterns = 0;  // dashes made so far

    Chains m_flat;
    Chains m_outline;
    Spine m_spine;
    Spine m_dash;
    Path m_anchor;
    Chains m_shape;
    std::vector<Chains::Vertex> m_trimmed;
    std::unique_ptr<Stroker> m_capStroker;
};

}  // namespace raster
