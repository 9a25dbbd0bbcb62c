#include "behaviour/UIObjectList.h"

namespace Lumo {

CUIObjectSymbol::CUIObjectSymbol() {
    m_nDrawShape = DS_SYMBOL;
    m_strShapeName = L"Symbol";
}

CUIObjectSymbol::CUIObjectSymbol(const Gdiplus::RectF& bounds, DrawShape kind) {
    m_nDrawShape = kind;
    m_strShapeName = L"Symbol";
    SetPosition(bounds);
    SetInitialSize(bounds);
}

void CUIObjectSymbol::Serialize(CArchive& ar) {
    CUIObjectList::Serialize(ar);
}

void CUIObjectSymbol::Release() {
    CUIObjectList::Release();
}

}  // namespace Lumo
