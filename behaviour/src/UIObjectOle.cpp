#include "behaviour/UIObjectOle.h"

#include "appearance/internal/ArchiveFields.h"

namespace Lumo {

BOOL CUIObjectOle::c_bShowItems = TRUE;

CUIObjectOle::CUIObjectOle() = default;

CUIObjectOle::CUIObjectOle(const Gdiplus::RectF& rect, DrawShape kind) : CUIObject(rect, kind) {}

CUIObjectOle::~CUIObjectOle() = default;

void CUIObjectOle::ShowPreferenceDialog(CUICanvas*) {
    const CWaitCursor wait;
}

void CUIObjectOle::Serialize(CArchive& ar) {
    CUIObject::Serialize(ar);
    ArchiveFields(ar, m_fFirstValue, m_fSecondValue);
}

void CUIObjectOle::MoveTo(const int& handle, const Gdiplus::PointF& offset) {
    if (offset.X == 0.0f && offset.Y == 0.0f)
        return;
    CUIObject::MoveTo(handle, offset);
}

void CUIObjectOle::Draw(CDC*) {}

}  // namespace Lumo
