#include "behaviour/UIObjectTextEdit.h"

#include "behaviour/src/EllipseHit.h"
#include "core/EllipseOutline.h"
#include "core/Geometry.h"

namespace Lumo {

CUIObjectTextEdit::CUIObjectTextEdit() {
    m_nDrawShape = DS_TEXTEDIT;
    m_strShapeName = L"TextEdit";
}

CUIObjectTextEdit::CUIObjectTextEdit(const Gdiplus::RectF& rect, DrawShape kind) : CUIObject(rect, kind) {
    m_strShapeName = L"TextEdit";
}

CUIObjectTextEdit::~CUIObjectTextEdit() = default;

void CUIObjectTextEdit::Init(DrawShape kind, Gdiplus::RectF& rect) {
    CUIObject::Init(kind, rect);
    m_strShapeName = L"TextEdit";
    SetPosition(rect);
}

int CUIObjectTextEdit::HitTest(Gdiplus::RectF& rect) {
    return HitEllipse(rect, GetPosition(), GetLineWidth());
}

void CUIObjectTextEdit::Serialize(CArchive& ar) {
    CUIObject::Serialize(ar);
}

void CUIObjectTextEdit::Draw(Gdiplus::Graphics*) {}

int CUIObjectTextEdit::GetType() {
    return m_nDrawShape;
}

void CUIObjectTextEdit::DrawContents(Gdiplus::Graphics* g) {
    const Gdiplus::RectF position = GetPosition();
    if (g == nullptr || !IsDrawable(Normalised(position)))
        return;
    const Gdiplus::Pen pen(Gdiplus::Color(0xFF000000), 2.0f);
    DrawEllipseOutline(*g, pen, position);
}

void CUIObjectTextEdit::DrawDragImage(Gdiplus::Graphics*, Gdiplus::PointF&) {}

}  // namespace Lumo
