#include "core/UIObject.h"

#include <cfloat>

#include "appearance/internal/ArchiveFields.h"
#include "core/Geometry.h"
#include "core/internal/Destruction.h"

namespace Lumo {

CUIObject::CUIObject() = default;

CUIObject::CUIObject(const Gdiplus::RectF& rect, DrawShape shape)
    : m_strShapeName(GetDrawShapeName(shape)), m_nDrawShape(shape) {
    m_coordinate.SetPosition(rect);
}

CUIObject::~CUIObject() {
    Destruction::NoteEnded(this);
}

void CUIObject::Init(DrawShape shape, Gdiplus::RectF& rect) {
    m_nDrawShape = shape;
    m_strShapeName = GetDrawShapeName(shape);
    m_bRectMode = 1;
    m_coordinate.SetPosition(rect);
}

void CUIObject::SetCanvas(CUICanvas* canvas) {
    m_pCanvas = canvas;
    if (canvas)
        Destruction::Note(this, canvas);
}

void CUIObject::Release() {
    delete this;
}

void CUIObject::Serialize(CArchive& ar) {
    int shape = m_nDrawShape;
    ArchiveFields(ar, shape, m_strShapeName, m_bArchived);
    m_nDrawShape = static_cast<DrawShape>(shape);
    m_coordinate.Serialize(ar);
}

void CUIObject::ResetColor() {
    m_coordinate.LoadDefault(SFT_FILL);
    m_coordinate.LoadDefault(SFT_LINECOLOR);
}

void CUIObject::ShowPreferenceDialog(CUICanvas*) {
    AfxMessageBox(L"ShowPreferenceDialog", MB_OK);
}

void CUIObject::ShowCoordinateDialog(CUICanvas*) {}

void CUIObject::RelayEvent(CUICanvas*, unsigned int, unsigned int, long) {}

int CUIObject::GetType() {
    return -1;
}

int CUIObject::IsEmptyArea() const {
    const Gdiplus::RectF position = m_coordinate.GetPosition();
    return position.Width <= FLT_EPSILON || position.Height <= FLT_EPSILON;
}

void CUIObject::GetItemRect(Gdiplus::RectF* rect) {
    if (rect != nullptr)
        *rect = m_coordinate.GetPosition();
}

void CUIObject::Rotate(float angle, Gdiplus::RectF& rect, Gdiplus::PointF& centre) {
    rect = RotatedBounds(angle, rect, centre);
}

void CUIObject::Rotate(float angle, Gdiplus::RectF& rect) {
    rect = RotatedBounds(angle, rect, CentreOf(rect));
}

void CUIObject::Rotate(float angle) {
    Gdiplus::RectF position = m_coordinate.GetPosition();
    Rotate(angle, position);
    m_coordinate.SetPosition(position);
}

Gdiplus::RectF CUIObject::RotateRect(float angle, const Gdiplus::RectF& rect) {
    // Kept: the centre is measured from the origin, not from the rectangle's corner.
    return RotatedBounds(angle, rect, {rect.Width * 0.5f, rect.Height * 0.5f});
}

Gdiplus::PointF CUIObject::RotatePoint(float angle, const Gdiplus::PointF& point,
                                       const Gdiplus::RectF& rect) {
    if (!ContainsPoint(rect, point))
        return {};
    const Gdiplus::RectF helper(rect.X - point.X, rect.Y - point.Y, rect.Width + 2.0f * point.X,
                                rect.Height + 2.0f * point.Y);
    // Kept: as in RotateRect, the centre is measured from the origin.
    const Gdiplus::RectF bounds = RotatedBounds(angle, helper, {helper.Width * 0.5f, helper.Height * 0.5f});
    return {bounds.X, bounds.Y};
}

}  // namespace Lumo
