#include "behaviour/UIObjectButton.h"

#include "appearance/internal/ArchiveFields.h"
#include "behaviour/src/EllipseHit.h"

#include <iterator>

namespace Lumo {

CUIObjectButton::CUIObjectButton() {
    m_nDrawShape = DS_ELLIPSE;
    m_strShapeName = L"Button";
}

CUIObjectButton::CUIObjectButton(const Gdiplus::RectF& rect, DrawShape kind) : CUIObject(rect, kind) {
    m_strShapeName = L"Button";
}

CUIObjectButton::~CUIObjectButton() = default;

void CUIObjectButton::Init(DrawShape kind, Gdiplus::RectF& rect) {
    CUIObject::Init(kind, rect);
    m_dwButtonStyle = 0;
    m_dwRadioGroup = 0;
    m_dwButtonState = 0;
    m_bChecked = FALSE;
    m_bTracking = TRUE;
    m_strTooltip.Empty();
    m_bDrawNormal = TRUE;
    m_bDrawDown = FALSE;
    m_bDrawFocus = FALSE;
    m_bSpare = TRUE;
    m_bOver = FALSE;
    m_bDrawDisabled = FALSE;
    m_bBorder = FALSE;
    m_dwDrawStyle = 0;
}

// Kept: rectangular buttons are tested by their inscribed ellipse too.
int CUIObjectButton::HitTest(Gdiplus::RectF& rect) {
    return HitEllipse(rect, GetPosition(), GetLineWidth());
}

void CUIObjectButton::RelayEvent(CUICanvas*, unsigned int, unsigned int, long) {}

void CUIObjectButton::Serialize(CArchive& ar) {
    CUIObject::Serialize(ar);
    ArchiveFields(ar, m_dwButtonStyle, m_dwRadioGroup, m_dwButtonState, m_bChecked, m_bTracking,
                  m_strTooltip);
    ArchiveFields(ar, m_bDrawNormal, m_bDrawDown, m_bDrawFocus, m_bSpare, m_bOver, m_bDrawDisabled);
    // Kept: the checked field stands in the archive twice, and the second one remains.
    ArchiveFields(ar, m_bChecked, m_bBorder, m_dwDrawStyle);
}

void CUIObjectButton::ApplyButtonState() {
    BOOL* const flags[] = {&m_bDrawNormal, &m_bDrawDown,     &m_bDrawFocus,
                           &m_bOver,       &m_bDrawDisabled, &m_bChecked};
    if (m_dwButtonState >= std::size(flags))
        return;
    for (BOOL* flag : flags)
        *flag = flag == flags[m_dwButtonState];
}

void CUIObjectButton::Draw(Gdiplus::Graphics* g) {
    ApplyButtonState();
    if (m_bDrawNormal)
        DrawNormal(g);
    if (m_bDrawDown)
        DrawDown(g);
    if (m_bDrawFocus)
        DrawFocus(g);
    if (m_bOver)
        DrawOver(g);
    if (m_bDrawDisabled)
        DrawDisabled(g);
    if (m_bChecked)
        DrawChecked(g, 0);
}

void CUIObjectButton::DrawNormal(Gdiplus::Graphics*) {}
void CUIObjectButton::DrawDown(Gdiplus::Graphics*) {}
void CUIObjectButton::DrawFocus(Gdiplus::Graphics*) {}
void CUIObjectButton::DrawOver(Gdiplus::Graphics*) {}
void CUIObjectButton::DrawDisabled(Gdiplus::Graphics*) {}
void CUIObjectButton::DrawChecked(Gdiplus::Graphics*, int) {}

CUIObjectButtonRect::CUIObjectButtonRect() {
    m_strShapeName = L"ButtonRect";
    SetAllDrawFlags();
}

CUIObjectButtonRect::CUIObjectButtonRect(const Gdiplus::RectF& rect, DrawShape kind)
    : CUIObjectButton(rect, kind) {
    m_strShapeName = L"ButtonRect";
    SetAllDrawFlags();
}

CUIObjectButtonRect::~CUIObjectButtonRect() = default;

void CUIObjectButtonRect::Init(DrawShape kind, Gdiplus::RectF& rect) {
    CUIObjectButton::Init(kind, rect);
    SetAllDrawFlags();
}

// Kept: unlike the other shapes, a rectangular button starts with every draw flag set, the over flag
// included.
void CUIObjectButtonRect::SetAllDrawFlags() {
    m_bDrawNormal = TRUE;
    m_bDrawDown = TRUE;
    m_bDrawFocus = TRUE;
    m_bSpare = TRUE;
    m_bOver = TRUE;
    m_bDrawDisabled = TRUE;
}

CUIObjectButtonRectRound::CUIObjectButtonRectRound() {
    m_strShapeName = L"ButtonRectRound";
}

CUIObjectButtonRectRound::CUIObjectButtonRectRound(const Gdiplus::RectF& rect, DrawShape kind)
    : CUIObjectButton(rect, kind) {
    m_strShapeName = L"ButtonRectRound";
}

CUIObjectButtonRectRound::~CUIObjectButtonRectRound() = default;

CUIObjectButtonEllipse::CUIObjectButtonEllipse() {
    m_strShapeName = L"ButtonEllipse";
}

CUIObjectButtonEllipse::CUIObjectButtonEllipse(const Gdiplus::RectF& rect, DrawShape kind)
    : CUIObjectButton(rect, kind) {
    m_strShapeName = L"ButtonEllipse";
}

CUIObjectButtonEllipse::~CUIObjectButtonEllipse() = default;

}  // namespace Lumo
