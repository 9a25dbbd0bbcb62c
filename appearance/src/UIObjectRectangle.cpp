#include "appearance/UIObjectRectangle.h"

#include "appearance/src/ShapePainter.h"
#include "core/EllipseOutline.h"
#include "core/Geometry.h"

namespace Lumo {

CUIObjectRectangle::CUIObjectRectangle() {
    m_strShapeName = GetDrawShapeName(DS_RECTANGLE);
    m_nDrawShape = DS_RECTANGLE;
}

CUIObjectRectangle::CUIObjectRectangle(const Gdiplus::RectF& rect, DrawShape shape) : CUIObject(rect, shape) {
    m_strShapeName = GetDrawShapeName(DS_RECTANGLE);
}

CUIObjectRectangle::~CUIObjectRectangle() = default;

void CUIObjectRectangle::Serialize(CArchive& ar) {
    CUIObject::Serialize(ar);
}

void CUIObjectRectangle::Draw(Gdiplus::Graphics* graphics) {
    if (graphics != nullptr)
        PaintShape(*graphics, m_coordinate, ShapeKind::Rectangle, PaintStage::Normal);
}

void CUIObjectRectangle::DrawContents(Gdiplus::Graphics*) {}

void CUIObjectRectangle::DrawDragImage(Gdiplus::Graphics* graphics, Gdiplus::PointF&) {
    if (graphics != nullptr)
        PaintShape(*graphics, m_coordinate, ShapeKind::Rectangle, PaintStage::Dragged);
}

CUIObjectEllipse::CUIObjectEllipse() {
    m_strShapeName = GetDrawShapeName(DS_ELLIPSE);
    m_nDrawShape = DS_ELLIPSE;
}

CUIObjectEllipse::CUIObjectEllipse(const Gdiplus::RectF& rect, DrawShape shape) : CUIObject(rect, shape) {
    m_strShapeName = GetDrawShapeName(DS_ELLIPSE);
}

CUIObjectEllipse::~CUIObjectEllipse() = default;

void CUIObjectEllipse::Serialize(CArchive& ar) {
    CUIObject::Serialize(ar);
}

void CUIObjectEllipse::Draw(Gdiplus::Graphics* graphics) {
    if (graphics != nullptr)
        PaintShape(*graphics, m_coordinate, ShapeKind::Ellipse, PaintStage::Normal);
}

void CUIObjectEllipse::DrawContents(Gdiplus::Graphics* graphics) {
    const Gdiplus::RectF position = m_coordinate.GetPosition();
    if (graphics == nullptr || !IsDrawable(Normalised(position)))
        return;
    Gdiplus::Pen pen{Gdiplus::Color(0xFF000000), 2.0f};
    DrawEllipseOutline(*graphics, pen, position);
}

void CUIObjectEllipse::DrawDragImage(Gdiplus::Graphics* graphics, Gdiplus::PointF&) {
    if (graphics != nullptr)
        PaintShape(*graphics, m_coordinate, ShapeKind::Ellipse, PaintStage::Dragged);
}

Gdiplus::Status GetRoundRectPath(Gdiplus::GraphicsPath* path, float x, float y, float width, float height,
                                 int diameter) {
    if (path == nullptr)
        return Gdiplus::InvalidParameter;
    int d = diameter;
    if (static_cast<float>(d) > width)
        d = TruncToInt(width);
    if (static_cast<float>(d) > height)
        d = TruncToInt(height);
    const int left = TruncToInt(x);
    const int top = TruncToInt(y);
    path->Reset();
    path->AddArc(left, top, d, d, 180.0f, 90.0f);
    int e = d;
    // Kept: a diameter of exactly 20 gets larger arcs on a smaller rectangle.
    if (d == 20) {
        e = 21;
        width -= 1.0f;
        height -= 1.0f;
    }
    const float across = width - static_cast<float>(d) - 1.0f;
    const int right = TruncToInt(across + static_cast<float>(left));
    const int bottom = TruncToInt(height - static_cast<float>(d) - 1.0f + static_cast<float>(top));
    path->AddArc(right, top, e, e, 270.0f, 90.0f);
    path->AddArc(right, bottom, e, e, 0.0f, 90.0f);
    path->AddArc(TruncToInt(static_cast<float>(right) - across), bottom, e, e, 90.0f, 90.0f);
    return path->CloseFigure();
}

}  // namespace Lumo
