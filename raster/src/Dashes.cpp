#include "raster/Stroker.h"

#include <numbers>

namespace raster {

namespace {

constexpr double kPi = std::numbers::pi;
// Dashes finer than this many pixels are a line.
constexpr double kFinestPattern = 0.1;
constexpr double kMostPatterns = 1e5;  // in one stroke, fewer of those with large round caps

// The dashes and gaps of a pen with a place in them.
class Pattern {
public:
    Pattern(const Pen& pen, double unit) : m_dashes(pen.dashes), m_unit(unit) {}

    /// The length of the whole pattern; 0 when it does not make dashes.
    double Total() const {
        double total = 0;
        for (size_t i = 0; i < Count(); ++i)
            total += At(i);
        return std::isfinite(total) ? total : 0;
    }

    void Seek(double at, double total) {
        double rest = std::fmod(at, total);
        if (rest < 0)
            rest += total;
        for (m_index = 0; m_index + 1 < Count() && rest >= At(m_index); ++m_index)
            rest -= At(m_index);
        m_rest = std::max(0.0, At(m_index) - rest);
    }
    bool InDash() const { return m_index % 2 == 0; }
    double Rest() const { return m_rest; }
    void Use(double length) { m_rest -= length; }
    void Next() {
        m_index = (m_index + 1) % Count();
        m_rest = At(m_index);
    }

    // With an odd number dashes and gaps change places the second time.
    size_t Count() const { return m_dashes.size() % 2 == 0 ? m_dashes.size() : 2 * m_dashes.size(); }

private:
    double At(size_t index) const {
        const double length = m_dashes[index % m_dashes.size()];
        return length > 0 ? length * m_unit : 0;
    }

    const std::vector<double>& m_dashes;
    double m_unit;
    size_t m_index = 0;
    double m_rest = 0;
};

}  // namespace

// The part of a line that may be seen, in parts of its length; false when there is none.
bool Stroker::Visible(Point from, Point to, double& first, double& last) const {
    const Point a = m_matrix.Map(from), way = m_matrix.Map(to) - a;
    first = 0;
    last = 1;
    const auto cut = [&](double start, double along, double low, double high) {
        if (along == 0)
            return start >= low && start <= high;
        const auto [in, out] = std::minmax({(low - start) / along, (high - start) / along});
        first = std::max(first, in);
        last = std::min(last, out);
        return true;
    };
    return cut(a.x, way.x, m_visible.left, m_visible.right) &&
           cut(a.y, way.y, m_visible.top, m_visible.bottom) && first < last;
}

// False when the pen makes no dashes here, or such as nobody sees.
bool Stroker::Dash(const Pen& pen, Cap startCap, Cap endCap) {
    Pattern pattern(pen, m_width);
    const double total = pattern.Total();
    if (!(total * m_matrix.LargestScale() > kFinestPattern))
        return false;
    const bool even = m_left == m_right;
    const End dashEnd{even && pen.dashCap < Cap::SquareAnchor ? pen.dashCap : Cap::Flat, true};
    const End startEnd{m_spine.closed ? dashEnd.cap : startCap, false};
    const End endEnd{m_spine.closed ? dashEnd.cap : endCap, m_spine.closed};
    const double offset = std::isfinite(pen.dashOffset) ? pen.dashOffset * m_width : 0;
    // One dash of each pattern is longer than what is lost of a place by rounding.
    const double finest = 4e-16 * static_cast<double>(pattern.Count());
    const double effort = dashEnd.cap == Cap::Round ? 1 + ArcPieces(m_left, kPi) / 16.0 : 1;
    m_dash.Clear();
    m_dash.closed = false;
    End start = startEnd;
    double done = 0;  // length of the lines before this one
    double sought = -1;
    const size_t count = m_spine.corners.size();
    for (size_t i = 0; i < m_spine.lines.size(); ++i) {
        const Line& line = m_spine.lines[i];
        const Chains::Vertex& from = m_spine.corners[i];
        const Chains::Vertex& to = m_spine.corners[i + 1 < count ? i + 1 : 0];
        double first = 0, last = 0;
        const bool visible = Visible(from.at, to.at, first, last);
        if (!visible || first > 0)
            EndDash(start, dashEnd);
        if (visible) {
            double at = first * line.length;
            const double end = last * line.length;
            // Where there are too many dashes, or numbers too large to tell them apart, there is one.
            m_patterns += (end - at) / total * effort;
            const bool dashed = m_patterns < kMostPatterns && total > end * finest;
            if (sought != done + at) {
                pattern.Seek(offset + done + at, total);
                start = i == 0 && at == 0 ? startEnd : dashEnd;
            }
            const auto add = [&](double place) {
                const double part = place / line.length;
                m_dash.last = m_spine.Tangent(i, part);
                if (m_dash.corners.empty())
                    m_dash.first = m_dash.last;
                m_dash.Add({part < 1 ? from.at + line.direction * place : to.at, part >= 1 && to.smooth});
            };
            if (pattern.InDash() && m_dash.corners.empty())
                add(at);
            while (dashed && pattern.Rest() <= end - at) {
                at += pattern.Rest();
                if (pattern.InDash()) {
                    add(at);
                    EndDash(start, dashEnd);
                }
                pattern.Next();
                start = dashEnd;
                if (pattern.InDash())
                    add(at);
            }
            pattern.Use(end - at);
            if (pattern.InDash())
                add(end);
            sought = last < 1 ? -1 : done + line.length;
            if (last < 1)
                EndDash(start, dashEnd);
        }
        done += line.length;
    }
    if (!m_dash.lines.empty())
        EndDash(start, endEnd);
    m_dash.Clear();
    return true;
}

void Stroker::EndDash(End start, End end) {
    if (!m_dash.lines.empty())
        StrokeOpen(m_dash, start, end);
    else if (!m_dash.corners.empty())
        StrokeDot(m_dash.corners[0].at, start.cap, end.cap);
    m_dash.Clear();
}

}  // namespace raster
