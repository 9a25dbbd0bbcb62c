#include "behaviour/UIObjectTextEdit.h"

#include "behaviour/src/EllipseHit.h"

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
    if (g == nullptr)
        return;
    const Gdiplus::Pen pen(Gdiplus::Color(0xFF000000), 2.0f);
    g->DrawEllipse(&pen, GetPosition());
}

void CUIObjectTextEdit::DrawDragImage(Gdiplus::Graphics*, Gdiplus::PointF&) {}

}  // namespace Lumo
