#include "raster/Stroker.h"

#include "raster/Rasterizer.h"

#include <numbers>

namespace raster {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kFinestTurn = kPi / 1000;
constexpr double kWidest = 1e9;
constexpr double kHardlyBent = 0.13;  // 1 less the cosine of a turn

Point Left(Point direction) {
    return {direction.y, -direction.x};
}

Point Turned(Point vector, double angle) {
    return Matrix::Rotation(angle).MapVector(vector);
}

}  // namespace

void Stroker::Spine::Clear() {
    corners.clear();
    lines.clear();
}

void Stroker::Spine::Add(const Chains::Vertex& corner) {
    if (!corners.empty()) {
        const Point way = corner.at - corners.back().at;
        const double length = Length(way);
        if (!(length > 1e-9))
            return;
        lines.push_back({way * (1 / length), length});
    }
    corners.push_back(corner);
}

void Stroker::Spine::Load(std::span<const Chains::Vertex> chain, bool isClosed) {
    Clear();
    for (const Chains::Vertex& vertex : chain)
        Add(vertex);
    closed = isClosed && corners.size() > 1;
    if (!closed)
        return;
    // Back to the first corner; when the last one lies on it, that one is too many.
    Add(Chains::Vertex(corners.front()));
    corners.pop_back();
    closed = corners.size() > 1;
}

// The direction of the curve that the lines stand for, at a part of a line's length. Beyond a smooth corner
// the direction goes on changing as it did; the factor is that of an arc flattened as Flatten does it.
Point Stroker::Spine::Tangent(size_t line, double part) const {
    const size_t next = line + 1 < corners.size() ? line + 1 : 0;
    const Point along = lines[line].direction;
    const bool bendsBefore = corners[line].smooth && line > 0;
    const bool bendsAfter = corners[next].smooth && line + 1 < lines.size();
    if (!bendsBefore && !bendsAfter)
        return along;
    const auto unit = [&](Point direction) {
        const double length = Length(direction);
        return length > 0 ? direction * (1 / length) : along;
    };
    Point first = bendsBefore ? unit(lines[line - 1].direction + along) : along;
    Point last = bendsAfter ? unit(along + lines[line + 1].direction) : along;
    if (!bendsBefore)
        first = along + (along - last) * 0.77;
    if (!bendsAfter)
        last = along + (along - first) * 0.77;
    return unit(first + (last - first) * part);
}

void Stroker::Stroke(const Path& path, const Pen& pen, const Matrix& matrix, const Rect& clip) {
    m_outline.Clear();
    m_flat.Clear();
    m_apart = false;
    const double scale = matrix.LargestScale();
    if (!matrix.IsFinite() || !std::isfinite(scale) || !std::isfinite(pen.width))
        return;
    m_linesOnly = false;
    double width = std::min(pen.width, kWidest);
    // Lines are a little longer than their curve, which adds up from dash to dash.
    const double tolerance = pen.dashes.empty() ? kTolerance : kTolerance / 4;
    if (width * scale < 1) {
        // A pixel wide, whatever the matrix does to the width.
        m_matrix = {};
        width = 1;
        m_tolerance = tolerance;
        Flatten(path, matrix, m_tolerance, nullptr, m_flat);
    } else {
        m_matrix = matrix;
        m_tolerance = tolerance / scale;
        Flatten(path, {}, m_tolerance, nullptr, m_flat);
    }
    m_join = pen.join;
    m_miterLimit = pen.miterLimit >= 1 ? std::min(pen.miterLimit, 1e6) : 1;
    const double reach = width * std::max(scale, 1.0) * (1 + std::min(m_miterLimit, 100.0) / 2) + 2;
    m_visible = {clip.left - reach, clip.top - reach, clip.right + reach, clip.bottom + reach};
    StrokeChains(pen, width);
    // Lines that all keep their directions leave a convex chain on both sides of one.
    m_apart = m_fits && m_flat.chains.size() == 1 && m_flat.chains[0].closed &&
              m_outline.chains.size() == 2 && IsConvex(m_flat.vertices);
}

void Stroker::Lines(const Path& path, const Pen& pen, const Matrix& matrix, const Rect& clip) {
    m_outline.Clear();
    m_flat.Clear();
    m_apart = false;
    if (!matrix.IsFinite())
        return;
    m_linesOnly = true;
    m_matrix = {};
    m_tolerance = kTolerance;
    Flatten(path, matrix, m_tolerance, nullptr, m_flat);
    m_visible = {clip.left - 2, clip.top - 2, clip.right + 2, clip.bottom + 2};
    StrokeChains(pen, 1);
}

void Stroker::StrokeChains(const Pen& pen, double width) {
    m_fits = true;
    m_patterns = 0;
    m_width = width;
    for (const Chains::Chain& chain : m_flat.chains) {
        m_spine.Load(m_flat.Of(chain), chain.closed);
        if (!m_spine.corners.empty())
            StrokeChain(pen);
    }
}

// Twice the area inside the spine; above 0 when it goes clockwise.
double Stroker::TotalArea() const {
    double area = 0;
    for (size_t i = 0; i < m_spine.corners.size(); ++i)
        area += Cross(m_spine.corners[i].at - m_spine.corners[0].at,
                      m_spine.lines[i].direction * m_spine.lines[i].length);
    return area;
}

void Stroker::StrokeChain(const Pen& pen) {
    m_left = m_right = m_width / 2;
    if (pen.alignment == Alignment::Inset && m_spine.closed) {
        const bool clockwise = TotalArea() > 0;
        m_left = clockwise ? 0 : m_width;
        m_right = clockwise ? m_width : 0;
    }
    if (!m_spine.closed && !m_linesOnly && pen.HasAnchors()) {
        const bool dot = m_spine.lines.empty();
        const Point start = m_spine.corners.front().at, end = m_spine.corners.back().at;
        const Point first = dot ? Point{1, 0} : m_spine.Tangent(0, 0);
        const Point last = dot ? first : m_spine.Tangent(m_spine.lines.size() - 1, 1);
        const auto inset = [&](Cap cap, const CustomCap* custom) {
            const double widths = custom ? custom->inset * custom->scale : cap == Cap::ArrowAnchor ? 1 : 0;
            return widths > 0 && std::isfinite(widths) ? widths * m_width : 0;
        };
        Trim(inset(pen.startCap, pen.startCustom.get()), inset(pen.endCap, pen.endCustom.get()));
        if (!m_spine.lines.empty())
            StrokeParts(pen);
        AddAnchor(start, first * -1, pen.startCap, pen.startCustom.get());
        AddAnchor(end, last, pen.endCap, pen.endCustom.get());
        return;
    }
    StrokeParts(pen);
}

void Stroker::StrokeParts(const Pen& pen) {
    if (pen.compound.size() < 2 || m_linesOnly) {
        StrokePart(pen);
        return;
    }
    const double left = m_left;
    for (size_t i = 0; i + 1 < pen.compound.size(); i += 2) {
        const double from = std::clamp(pen.compound[i], 0.0, 1.0);
        const double to = std::clamp(pen.compound[i + 1], 0.0, 1.0);
        m_left = left - from * m_width;
        m_right = to * m_width - left;
        if (from < to)
            StrokePart(pen);
    }
}

// The line between m_left and m_right.
void Stroker::StrokePart(const Pen& pen) {
    const auto plain = [](Cap cap, bool custom) {
        return custom || cap >= Cap::SquareAnchor ? Cap::Flat : cap;
    };
    const Cap start = plain(pen.startCap, pen.startCustom != nullptr);
    const Cap end = plain(pen.endCap, pen.endCustom != nullptr);
    if (!pen.dashes.empty() && !m_spine.lines.empty() && Dash(pen, start, end))
        return;
    if (m_spine.lines.empty()) {
        StrokeDot(m_spine.corners[0].at, start, end);
    } else if (m_spine.closed) {
        StrokeClosed();
    } else {
        m_spine.first = m_spine.Tangent(0, 0);
        m_spine.last = m_spine.Tangent(m_spine.lines.size() - 1, 1);
        StrokeOpen(m_spine, {start}, {end});
    }
}

// Makes the spine shorter at its ends; when nothing is left it has no line.
void Stroker::Trim(double start, double end) {
    double total = 0;
    for (const Line& line : m_spine.lines)
        total += line.length;
    if (start == 0 && end == 0)
        return;
    if (!(start + end < total)) {
        m_spine.Clear();
        return;
    }
    m_trimmed.clear();
    double done = 0;
    for (size_t i = 0; i < m_spine.lines.size(); ++i) {
        const Line& line = m_spine.lines[i];
        const Chains::Vertex& from = m_spine.corners[i];
        const double first = std::max(start - done, 0.0), last = std::min(total - end - done, line.length);
        done += line.length;
        if (first > last)
            continue;
        if (m_trimmed.empty())
            m_trimmed.push_back({from.at + line.direction * first, false});
        if (last < line.length)
            m_trimmed.push_back({from.at + line.direction * last, false});
        else
            m_trimmed.push_back(m_spine.corners[i + 1]);
    }
    m_spine.Load(m_trimmed, false);
}

void Stroker::EndOutline() {
    Chains::Chain& chain = m_outline.chains.back();
    chain.count = m_outline.vertices.size() - chain.first;
}

// A line of no length: what the caps make of it.
void Stroker::StrokeDot(Point at, Cap start, Cap end) {
    if (m_linesOnly || (start == Cap::Flat && end == Cap::Flat))
        return;
    BeginOutline();
    Add(at + Point{0, -m_left});
    AddCap(at, {1, 0}, end, m_left, m_right);
    Add(at + Point{0, m_right});
    AddCap(at, {-1, 0}, start, m_right, m_left);
    EndOutline();
}

void Stroker::AddLines(const Spine& spine, bool startsInside, bool endsInside) {
    m_outline.chains.push_back({m_outline.vertices.size(), 0, spine.closed, startsInside, endsInside});
    for (const Chains::Vertex& corner : spine.corners)
        Add(corner.at);
    EndOutline();
}

void Stroker::StrokeOpen(const Spine& spine, End start, End end) {
    if (m_linesOnly) {
        AddLines(spine, start.inside, end.inside);
        return;
    }
    BeginOutline();
    Walk(spine, m_left, true);
    AddCap(spine.corners.back().at, spine.last, end.cap, m_left, m_right);
    Walk(spine, m_right, false);
    AddCap(spine.corners.front().at, spine.first * -1, start.cap, m_right, m_left);
    EndOutline();
}

void Stroker::StrokeClosed() {
    if (m_linesOnly) {
        AddLines(m_spine, false, false);
        return;
    }
    BeginOutline();
    Walk(m_spine, m_left, true);
    EndOutline();
    BeginOutline();
    Walk(m_spine, m_right, false);
    EndOutline();
}

// The side to the left of the spine, walked along it or back.
void Stroker::Walk(const Spine& spine, double offset, bool forwards) {
    const std::vector<Chains::Vertex>& corners = spine.corners;
    const size_t lines = spine.lines.size();
    const auto line = [&](size_t i) {
        if (forwards)
            return spine.lines[i];
        const Line& back = spine.lines[lines - 1 - i];
        return Line{back.direction * -1, back.length};
    };
    const auto corner = [&](size_t i) -> const Chains::Vertex& {
        return corners[forwards ? i : (corners.size() - 1 - i + (spine.closed ? 1 : 0)) % corners.size()];
    };
    if (spine.closed) {
        Line before = line(lines - 1);
        for (size_t i = 0; i < lines; ++i) {
            const Line after = line(i);
            AddCorner(corner(i), before, after, offset);
            before = after;
        }
        return;
    }
    Line before = line(0);
    Add(corner(0).at + Left(forwards ? spine.first : spine.last * -1) * offset);
    for (size_t i = 1; i < lines; ++i) {
        const Line after = line(i);
        AddCorner(corner(i), before, after, offset);
        before = after;
    }
    Add(corner(lines).at + Left(forwards ? spine.last : spine.first * -1) * offset);
}

void Stroker::AddCorner(const Chains::Vertex& corner, const Line& before, const Line& after, double offset) {
    if (offset == 0) {
        Add(corner.at);
        return;
    }
    // As seen from the side that is walked along.
    const double reach = std::abs(offset);
    const double turn = std::copysign(1.0, offset) * Cross(before.direction, after.direction),
                 cosine = Dot(before.direction, after.direction);
    const Point first = Left(before.direction) * offset, second = Left(after.direction) * offset;
    const double bend = 1 - cosine;
    if (bend < kHardlyBent && reach * bend * (1 + bend / 8) <= 4 * m_tolerance) {
        // Hardly a corner. Two thirds of the way to the miter keep the area within a curve: of half the
        // turn's cosine c, (1 + (1 / c - 1) * 2 / 3) / (2 * c), here as the beginning of its series.
        const double part = 0.5 + bend * (5.0 / 24 + bend * (19.0 / 192));
        if (turn >= 0 || reach * -turn * 2 < (1 + cosine) * std::min(before.length, after.length)) {
            Add(corner.at + (first + second) * part);
            return;
        }
    }
    if (turn > 0 || (turn == 0 && cosine < 0)) {
        AddOuter(corner, before.direction, after.direction, offset);
        return;
    }
    // The inner side: where both sides meet, when both lines are long enough; else by way of the corner,
    // which leaves a second layer on what is covered already.
    if (cosine > -0.99 && reach * -turn / (1 + cosine) < std::min(before.length, after.length) / 2) {
        Add(corner.at + (first + second) * (1 / (1 + cosine)));
        return;
    }
    m_fits = false;
    Add(corner.at + first);
    Add(corner.at);
    Add(corner.at + second);
}

void Stroker::AddOuter(const Chains::Vertex& corner, Point before, Point after, double offset) {
    const double cosine = Dot(before, after);
    const Point first = Left(before) * offset, second = Left(after) * offset;
    const Join join = corner.smooth ? Join::Round : m_join;
    Add(corner.at + first);
    if (join == Join::Round) {
        const double turn = std::atan2(Cross(before, after), cosine);
        const double full = std::copysign(kPi, offset);
        AddArc(corner.at, first, turn * full > 0 ? turn : full);
    } else if (join != Join::Bevel && cosine > -0.99999) {
        const double halfCosine = std::sqrt((1 + cosine) / 2), halfSine = std::sqrt((1 - cosine) / 2);
        if (1 <= m_miterLimit * halfCosine) {
            Add(corner.at + (first + second) * (1 / (1 + cosine)));
        } else if (join == Join::Miter) {
            const double reach = std::abs(offset) * (m_miterLimit - halfCosine) / halfSine;
            Add(corner.at + first + before * reach);
            Add(corner.at + second - after * reach);
        }
    }
    Add(corner.at + second);
}

// From the point `left` of `at`, seen outwards, to that `right` of it.
void Stroker::AddCap(Point at, Point outward, Cap cap, double left, double right) {
    const Point side = Left(outward), out = outward * (m_width / 2);
    if (cap == Cap::Square) {
        Add(at + side * left + out);
        Add(at - side * right + out);
    } else if (left != right) {
        return;
    } else if (cap == Cap::Round) {
        AddArc(at, side * left, kPi);
    } else if (cap == Cap::Triangle) {
        Add(at + out);
    }
}

int Stroker::ArcPieces(double radius, double turn) const {
    const double step = std::max(std::sqrt(8 * m_tolerance / radius), kFinestTurn);
    return static_cast<int>(std::max(std::ceil(std::abs(turn) / step), 1.0));
}

// The points between the ends of an arc.
void Stroker::AddArc(Point centre, Point from, double turn) {
    const double radius = Length(from);
    if (!(radius > 0))
        return;
    const int pieces = ArcPieces(radius, turn);
    // As in a flattened curve, a little outside.
    const Point start = from * (1 + 2.0 / 3 * (1 - std::cos(turn / pieces / 2)));
    for (int i = 1; i < pieces; ++i)
        Add(centre + Turned(start, turn * i / pieces));
}

}  // namespace raster
