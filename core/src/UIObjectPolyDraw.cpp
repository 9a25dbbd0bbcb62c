// The segments of lines and polylines: drawing and outline hit test.
#include <cmath>
#include <limits>
#include <optional>

#include "core/Geometry.h"
#include "core/internal/GraphicsStateScope.h"
#include "core/PaintScope.h"
#include "core/UIObjectPoly.h"
#include "core/src/HandlePainter.h"

namespace Lumo {

namespace {

constexpr float kLineWidthFactor = 3.0f;
// How far an anchor cap reaches beyond the end of a line, in pen widths, on the generous side.
constexpr float kCapReach = 2.0f;
constexpr Gdiplus::ARGB kHitColour = 0xFF000000;
constexpr float kHitSlack = 5.0f;

Gdiplus::RectF SegmentBounds(const Gdiplus::PointF& from, const Gdiplus::PointF& to, float reach) {
    return Inflated(Normalised({from.X, from.Y, to.X - from.X, to.Y - from.Y}), reach);
}

// The segments of a figure: its points joined in order, then the rubber segment when it has one.
struct Segments {
    const std::deque<Gdiplus::PointF>& points;
    std::optional<Gdiplus::PointF> rubberEnd;
    Gdiplus::PointF shift;

    // Calls visit(from, to) for every segment until it returns false.
    template <class Visit>
    void ForEach(Visit visit) const {
        for (size_t i = 1; i < points.size(); ++i)
            if (!visit(points[i - 1] + shift, points[i] + shift))
                return;
        if (rubberEnd)
            visit(points.back() + shift, *rubberEnd + shift);
    }

    // The same for the segments that reach into the part being painted, given how far the pen reaches.
    template <class Visit>
    void ForEachIn(const Gdiplus::RectF& part, float reach, Visit visit) const {
        ForEach([&](const Gdiplus::PointF& from, const Gdiplus::PointF& to) {
            const Gdiplus::RectF bounds = SegmentBounds(from, to, reach);
            return !IsDrawable(bounds) || !Touches(part, bounds) || visit(from, to);
        });
    }

    bool AnyIn(const Gdiplus::RectF& part, float reach) const {
        bool any = false;
        ForEachIn(part, reach, [&](const Gdiplus::PointF&, const Gdiplus::PointF&) {
            any = true;
            return false;
        });
        return any;
    }
};

void AddSegment(Gdiplus::GraphicsPath& path, const Gdiplus::PointF& from, const Gdiplus::PointF& to) {
    path.StartFigure();
    path.AddLine(from, to);
    path.CloseFigure();
}

void PaintAsPath(Gdiplus::Graphics& graphics, const CUICoordinate& coordinate, const Segments& segments) {
    DWORD color = 0;
    if (!coordinate.Format<CUIShapeFormatLineColor>().GetPenColor(&color))
        return;
    const float width = coordinate.GetLineWidth();
    const float reach = std::fabs(width) + 1.0f;
    const Gdiplus::RectF part = PaintScope::PartOf(graphics);
    if (!segments.AnyIn(part, reach))
        return;
    Gdiplus::GraphicsPath path;
    segments.ForEachIn(part, reach, [&](const Gdiplus::PointF& from, const Gdiplus::PointF& to) {
        AddSegment(path, from, to);
        return true;
    });
    GraphicsStateScope state(graphics);
    Gdiplus::Pen pen{Gdiplus::Color(color), width};
    graphics.DrawPath(&pen, &path);
}

void PaintAsLines(Gdiplus::Graphics& graphics, const CUICoordinate& coordinate, const Segments& segments) {
    DWORD color = 0;
    if (!coordinate.Format<CUIShapeFormatLineColor>().GetPenColor(&color))
        return;
    const float width = coordinate.GetLineWidth() * kLineWidthFactor;
    const float reach = std::fabs(width) * kCapReach + 1.0f;
    const Gdiplus::RectF part = PaintScope::PartOf(graphics);
    if (!segments.AnyIn(part, reach))
        return;
    GraphicsStateScope state(graphics);
    graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    graphics.SetCompositingQuality(Gdiplus::CompositingQualityDefault);
    graphics.SetInterpolationMode(Gdiplus::InterpolationModeDefault);
    Gdiplus::Pen pen{Gdiplus::Color(color), width};
    pen.SetAlignment(coordinate.GetLineAlignment() == Gdiplus::PenAlignmentInset
                         ? Gdiplus::PenAlignmentInset
                         : Gdiplus::PenAlignmentCenter);
    coordinate.Format<CUIShapeFormatLineStyle>().SetPenCaps(pen);
    segments.ForEachIn(part, reach, [&](const Gdiplus::PointF& from, const Gdiplus::PointF& to) {
        graphics.DrawLine(&pen, from, to);
        return true;
    });
}

enum class Side { Inside, Outside, Edge };

// Where a point stands to a segment drawn `width` wide; Edge when only the widened outline can tell, which is
// within a unit of its long sides and about its ends.
Side SideOf(const Gdiplus::PointF& point, const Gdiplus::PointF& from, const Gdiplus::PointF& to,
            float width) {
    if (!ContainsPoint(SegmentBounds(from, to, std::fabs(width) + 1.0f), point))
        return Side::Outside;
    const Gdiplus::PointF along = to - from;
    const Gdiplus::PointF reach = point - from;
    const float length = std::hypot(along.X, along.Y);
    if (length < 1.0f)
        return Side::Edge;
    const float distance = std::fabs(along.X * reach.Y - along.Y * reach.X) / length;
    const float place = (along.X * reach.X + along.Y * reach.Y) / length;
    if (distance > width * 0.5f + 1.0f)
        return Side::Outside;
    const bool beside = place >= 1.0f && place <= length - 1.0f;
    return beside && distance < width * 0.5f - 1.0f ? Side::Inside : Side::Edge;
}

// Whether all points lie to one side of the square of `reach` about the point: no segment can come near it
// then.
bool AllBesides(const std::deque<Gdiplus::PointF>& points, const Gdiplus::PointF& point, float reach) {
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    float left = kInfinity;
    float right = -kInfinity;
    float top = kInfinity;
    float bottom = -kInfinity;
    for (const Gdiplus::PointF& p : points) {
        left = p.X < left ? p.X : left;
        right = p.X > right ? p.X : right;
        top = p.Y < top ? p.Y : top;
        bottom = p.Y > bottom ? p.Y : bottom;
    }
    return right < point.X - reach || left > point.X + reach || bottom < point.Y - reach ||
           top > point.Y + reach;
}

// The segment that follows the mouse while the figure does not have all its points yet.
Segments WithRubber(const std::deque<Gdiplus::PointF>& points, int maxPoints, const Gdiplus::PointF& pending,
                    const Gdiplus::PointF& shift) {
    Segments segments{points, std::nullopt, shift};
    if (!points.empty() && static_cast<LONGLONG>(points.size()) != maxPoints)
        segments.rubberEnd = points.back() + pending;
    return segments;
}

}  // namespace

int CUIObjectPoly::HitTest(Gdiplus::RectF& rect) {
    if (m_bRectMode != 0)
        return CUIObject::HitTest(rect);
    const int tolerance = TruncToInt(m_coordinate.GetLineWidth()) / 2 + 1;
    const float width = static_cast<float>(tolerance) + kHitSlack;
    const Gdiplus::PointF point(rect.X, rect.Y);
    if (AllBesides(m_points, point, width + 1.0f))
        return 0;
    // Each segment is a figure of its own, so arithmetic may answer for most of them; a path is only built of
    // those on whose edge the point lies.
    std::optional<Gdiplus::GraphicsPath> path;
    bool inside = false;
    Segments{m_points, std::nullopt, {}}.ForEach([&](const Gdiplus::PointF& from, const Gdiplus::PointF& to) {
        const Side side = SideOf(point, from, to, width);
        inside = side == Side::Inside;
        if (side == Side::Edge) {
            if (!path)
                path.emplace();
            AddSegment(*path, from, to);
        }
        return !inside;
    });
    if (inside)
        return 1;
    if (!path)
        return 0;
    Gdiplus::Pen pen{Gdiplus::Color(kHitColour), width};
    return path->IsOutlineVisible(point, &pen) != FALSE;
}

void CUIObjectPoly::Draw(Gdiplus::Graphics* graphics) {
    CUIObjectPoly::DrawDragImage(graphics, {});
}

void CUIObjectPoly::DrawDragImage(Gdiplus::Graphics* graphics, Gdiplus::PointF offset) {
    if (graphics != nullptr)
        PaintAsPath(*graphics, m_coordinate, WithRubber(m_points, m_nMaxPoints, GetPendingOffset(), offset));
}

void CUIObjectPoly::DrawTracker(Gdiplus::Graphics* graphics) {
    if (m_bRectMode != 0) {
        CUIObject::DrawTracker(graphics);
        return;
    }
    if (graphics == nullptr)
        return;
    HandlePainter painter(*graphics);
    for (const Gdiplus::PointF& point : m_points)
        painter.PaintSquare(HandleSquare(point));
}

void CUIObjectLine::Draw(Gdiplus::Graphics* graphics) {
    CUIObjectLine::DrawDragImage(graphics, {});
}

void CUIObjectLine::DrawDragImage(Gdiplus::Graphics* graphics, Gdiplus::PointF offset) {
    if (graphics != nullptr)
        PaintAsLines(*graphics, m_coordinate, WithRubber(m_points, m_nMaxPoints, GetPendingOffset(), offset));
}

}  // namespace Lumo
