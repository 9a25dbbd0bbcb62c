// Caption, selection handles and rounded outline of the object base.
#include <algorithm>

#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "core/UIObject.h"
#include "core/internal/Caption.h"
#include "core/src/HandlePainter.h"

namespace Lumo {

namespace {

constexpr int kCorners = 4;
constexpr int kTrackedHandles = 8;

}  // namespace

void CUIObject::Draw(Gdiplus::Graphics* graphics) {
    if (graphics != nullptr && HasCaption(m_coordinate))
        DrawCaption(*graphics, m_coordinate, PaintScope::PartOf(*graphics));
}

void CUIObject::DrawType(Gdiplus::Graphics*) {}

void CUIObject::DrawDragImage(Gdiplus::Graphics*, Gdiplus::PointF) {}

void CUIObject::DrawTracker(Gdiplus::Graphics* graphics) {
    if (graphics == nullptr)
        return;
    HandlePainter painter(*graphics);
    const int count = (std::min)(GetHandleCount(), kTrackedHandles);
    for (int handle = 0; handle < count; ++handle) {
        if (handle < kCorners)
            painter.PaintCircle(GetHandleRect(handle));
        else
            painter.PaintSquare(GetHandleRect(handle));
    }
}

void CUIObject::GetRoundRectPath(Gdiplus::GraphicsPath* path, Gdiplus::RectF rect, int radius) {
    if (path == nullptr)
        return;
    int diameter = radius;
    if (static_cast<float>(diameter) > rect.Width)
        diameter = TruncToInt(rect.Width);
    if (static_cast<float>(diameter) > rect.Height)
        diameter = TruncToInt(rect.Height);
    const auto d = static_cast<float>(diameter);
    path->Reset();
    path->AddArc(rect.X, rect.Y, d, d, 180.0f, 90.0f);
    float e = d;
    // Kept: a diameter of exactly 20 gets larger arcs on a smaller rectangle.
    if (diameter == 20) {
        e = d + 1.0f;
        rect.Width -= 1.0f;
        rect.Height -= 1.0f;
    }
    const float right = rect.X + (rect.Width - d - 1.0f);
    const float bottom = rect.Y + rect.Height - d - 1.0f;
    path->AddArc(right, rect.Y, e, e, 270.0f, 90.0f);
    path->AddArc(right, bottom, e, e, 0.0f, 90.0f);
    path->AddArc(rect.X, bottom, e, e, 90.0f, 90.0f);
    path->CloseFigure();
}

}  // namespace Lumo
