#include "behaviour/UIObjectChartBase.h"

namespace Lumo {

CUIObjectChartBase::CUIObjectChartBase() {
    m_strShapeName = L"ChartBase";
}

CUIObjectChartBase::CUIObjectChartBase(const Gdiplus::RectF& rect, DrawShape kind) {
    m_strShapeName = L"ChartBase";
    m_nDrawShape = kind;
    SetPosition(rect);
    SetInitialSize(rect);
}

CUIObjectChartBase::~CUIObjectChartBase() = default;

void CUIObjectChartBase::Init(DrawShape, Gdiplus::RectF&) {}

void CUIObjectChartBase::RelayEvent(CUICanvas*, unsigned int, unsigned int, long) {}

void CUIObjectChartBase::Serialize(CArchive& ar) {
    CUIObjectSymbol::Serialize(ar);
}

void CUIObjectChartBase::Draw(Gdiplus::Graphics*) {}

void CUIObjectChartBase::Release() {
    CUIObjectSymbol::Release();
}

}  // namespace Lumo
