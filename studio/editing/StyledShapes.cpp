#include "studio/editing/StyledShapes.h"

#include "core/EllipseOutline.h"
#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "studio/controls/GraphicsStateScope.h"

#include <algorithm>
#include <cmath>
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

float LengthOf(const std::vector<PointF>& points) {
    float length = 0.0f;
    for (size_t i = 1; i < points.size(); ++i)
        length += std::hypot(points[i].X - points[i - 1].X, points[i].Y - points[i - 1].Y);
    return length;
}

// Dashes without number take seconds and cannot be seen, and those of a custom style are not known: such an
// outline is drawn through.
void SetDash(Gdiplus::Pen& pen, int style, float length) {
    constexpr float kMostDashes = 5000.0f;
    const float dash = std::max(pen.GetWidth(), 0.1f) * 2.0f;
    if (style > Gdiplus::DashStyleSolid && style <= Gdiplus::DashStyleDashDotDot &&
        length <= kMostDashes * dash)
        pen.SetDashStyle(static_cast<Gdiplus::DashStyle>(style));
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
    if (Lumo::PaintScope::Misses(g, Lumo::Inflated(bounds, width + 1.0f)))
        return true;
    Gdiplus::Pen pen{Gdiplus::Color(color), width};
    SetDash(pen, dash, 2.0f * (bounds.Width + bounds.Height));
    if (kind == OutlineKind::kEllipse)
        Lumo::DrawEllipseOutline(g, pen, bounds);
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
    if (Lumo::PaintScope::Misses(g, Lumo::Inflated(BoundsOf(points), width * kCapReach + 1.0f)))
        return;
    Gdiplus::Pen pen{Gdiplus::Color(color), width};
    SetDash(pen, coordinate.GetLineDashStyle(), LengthOf(points));
    coordinate.Format<Lumo::CUIShapeFormatLineStyle>().SetPenCaps(pen);
    pen.SetLineJoin(Gdiplus::LineJoinRound);
    const GraphicsStateScope state(g);
    g.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias);
    g.DrawLines(&pen, points.data(), static_cast<INT>(points.size()));
}

}  // namespace Studio
