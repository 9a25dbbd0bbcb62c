#include "raster/Flatten.h"

namespace raster {

namespace {

// Numbers beyond this are as good as infinite; squares of the differences stay finite.
constexpr double kFar = 1e60;
// A curve that needs more lines is halved first, so that halves beside the clip cost nothing.
constexpr double kMostLines = 64;
constexpr int kDeepest = 20;
constexpr int kDeepestWithoutClip = 5;

struct Curve {
    Point a, b, c, d;
};

class Flattener {
public:
    Flattener(double tolerance, const Rect* clip, Chains& out)
        : m_factor(0.75 / std::max(tolerance, 1e-9)),
          m_clip(clip),
          m_deepest(clip ? kDeepest : kDeepestWithoutClip),
          m_out(out) {}

    void Begin(Point at) {
        m_out.chains.push_back({m_out.vertices.size(), 0, false});
        Add(at, false);
    }

    void Add(Point at, bool smooth) { m_out.vertices.push_back({at, smooth}); }

    // Lines from `a`, which is there, to `d`, with everything between them smooth.
    void AddCurve(const Curve& curve, int depth) {
        const double lines = Lines(curve);
        if (lines > kMostLines && depth < m_deepest && !Beside(curve)) {
            const Point ab = Middle(curve.a, curve.b), bc = Middle(curve.b, curve.c),
                        cd = Middle(curve.c, curve.d);
            const Point abc = Middle(ab, bc), bcd = Middle(bc, cd), middle = Middle(abc, bcd);
            AddCurve({curve.a, ab, abc, middle}, depth + 1);
            m_out.vertices.back().smooth = true;
            AddCurve({middle, bcd, cd, curve.d}, depth + 1);
            return;
        }
        if (lines > 1 && !Beside(curve))
            AddInner(curve, static_cast<int>(std::ceil(std::min(lines, kMostLines))));
        Add(curve.d, false);
    }

    void End(bool closed) {
        Chains::Chain& chain = m_out.chains.back();
        chain.closed = closed;
        chain.count = m_out.vertices.size() - chain.first;
        // A closed chain comes back to its first vertex by itself.
        if (closed && chain.count > 1 && m_out.vertices.back().at == m_out.vertices[chain.first].at) {
            m_out.vertices.pop_back();
            --chain.count;
        }
    }

private:
    static Point Middle(Point a, Point b) { return (a + b) * 0.5; }

    // Wang's bound. Curves that bend both ways or have a tip lose more of their area: half as much is
    // allowed.
    double Lines(const Curve& curve) const {
        const Point first = curve.a - curve.b * 2 + curve.c, second = curve.b - curve.c * 2 + curve.d;
        const double factor = Dot(first, second) < 0 ? 2 * m_factor : m_factor;
        return std::sqrt(std::sqrt(std::max(Dot(first, first), Dot(second, second))) * factor);
    }

    // Vertices lie outside the curve by two thirds of what the lines between points of it would lose: the
    // area stays, and the largest distance becomes smaller.
    void AddInner(const Curve& curve, int lines) {
        const double step = 1.0 / lines;
        const Point square = (curve.a - curve.b * 2 + curve.c) * 3;
        const Point cubic = curve.d - curve.a + (curve.b - curve.c) * 3;
        const Point linear = (curve.b - curve.a) * 3 - cubic * (step * step / 2);
        const Point start = curve.a - square * (step * step / 6);
        for (int i = 1; i < lines; ++i) {
            const double t = i * step;
            Add(start + (linear + (square + cubic * t) * t) * t, true);
        }
    }

    // Whether the whole curve lies to one side of the clip: the line between its ends fills the same.
    bool Beside(const Curve& curve) const {
        if (!m_clip)
            return false;
        const auto [left, right] = std::minmax({curve.a.x, curve.b.x, curve.c.x, curve.d.x});
        const auto [top, bottom] = std::minmax({curve.a.y, curve.b.y, curve.c.y, curve.d.y});
        return right < m_clip->left || left > m_clip->right || bottom < m_clip->top || top > m_clip->bottom;
    }

    double m_factor;
    const Rect* m_clip;
    int m_deepest;
    Chains& m_out;
};

}  // namespace

void Flatten(const Path& path, const Matrix& matrix, double tolerance, const Rect* clip, Chains& out) {
    Flattener flattener(tolerance, clip, out);
    const std::span<const PathPoint> points = path.Points();
    Point mapped[3];
    Point current;
    bool open = false;
    for (size_t i = 0; i < points.size();) {
        const bool curve = points[i].type == PointType::Curve && i + 2 < points.size();
        const size_t count = curve ? 3 : 1;
        bool usable = true;
        for (size_t j = 0; j < count; ++j) {
            const Point at = matrix.Map(points[i + j].at);
            usable = usable && IsFinite(at);
            mapped[j] = {std::clamp(at.x, -kFar, kFar), std::clamp(at.y, -kFar, kFar)};
        }
        if (points[i].type == PointType::Start && open) {
            flattener.End(false);
            open = false;
        }
        if (usable) {
            if (!open)
                flattener.Begin(mapped[count - 1]);
            else if (curve)
                flattener.AddCurve({current, mapped[0], mapped[1], mapped[2]}, 0);
            else
                flattener.Add(mapped[0], false);
            current = mapped[count - 1];
            open = true;
        }
        i += count;
        if (points[i - 1].closes && open) {
            flattener.End(true);
            open = false;
        }
    }
    if (open)
        flattener.End(false);
}

}  // namespace raster
