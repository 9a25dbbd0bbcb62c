#include "studio/editing/StyledShapes.h"

#include "core/Geometry.h"
#include "core/GraphicsStateScope.h"
#include "core/PaintScope.h"

#include <algorithm>
#include <vector>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;

namespace {

// An anchor cap reaches this far beyond the end of a line, in pen widths.
constexpr float kCapReach = 2.0f;

RectF BoundsOf(const std::vector<PointF>& points) {
    float left = points.front().X, right = left;
    float top = points.front().Y, bottom = top;
    for (const PointF& point : points) {
        left = std::min(left, point.X);
        right = std::max(right, point.X);
        top = std::min(top, point.Y);
        bottom = std::max(bottom, point.Y);
    }
    return {left, top, right - left, bottom - top};
}

}  // namespace

bool DrawDashedOutline(Gdiplus::Graphics& g, const Lumo::CUICoordinate& coordinate, OutlineKind kind) {
    const int dash = coordinate.GetLineDashStyle();
    DWORD color = 0;
    if (dash <= Gdiplus::DashStyleSolid || dash > Gdiplus::DashStyleDashDotDot ||
        !coordinate.Format<Lumo::CUIShapeFormatLineColor>().GetPenColor(&color))
        return false;
    const RectF bounds = Lumo::Normalised(coordinate.GetPosition());
    const float width = coordinate.GetLineWidth();
    if (Lumo::PaintScope::Misses(Lumo::Inflated(bounds, width + 1.0f)))
        return true;
    Gdiplus::Pen pen{Gdiplus::Color(color), width};
    pen.SetDashStyle(static_cast<Gdiplus::DashStyle>(dash));
    if (kind == OutlineKind::kEllipse)
        g.DrawEllipse(&pen, bounds);
    else
        g.DrawRectangle(&pen, bounds);
    return true;
}

void DrawStyledFigure(Gdiplus::Graphics& g, Lumo::CUIObjectPoly& figure, float widthFactor) {
    const Lumo::CUICoordinate& coordinate = figure.GetCoordinate();
    DWORD color = 0;
    if (!coordinate.Format<Lumo::CUIShapeFormatLineColor>().GetPenColor(&color))
        return;
    const auto& corners = *figure.NormalizePoints();
    const std::vector<PointF> points(corners.begin(), corners.end());
    const float width = coordinate.GetLineWidth() * widthFactor;
    if (Lumo::PaintScope::Misses(Lumo::Inflated(BoundsOf(points), width * kCapReach + 1.0f)))
        return;
    Gdiplus::Pen pen{Gdiplus::Color(color), width};
    pen.SetDashStyle(static_cast<Gdiplus::DashStyle>(coordinate.GetLineDashStyle()));
    pen.SetStartCap(static_cast<Gdiplus::LineCap>(coordinate.GetLineStartCap()));
    pen.SetEndCap(static_cast<Gdiplus::LineCap>(coordinate.GetLineEndCap()));
    pen.SetLineJoin(Gdiplus::LineJoinRound);
    const Lumo::GraphicsStateScope state(g);
    g.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    g.DrawLines(&pen, points.data(), static_cast<INT>(points.size()));
}

}  // namespace Studio
