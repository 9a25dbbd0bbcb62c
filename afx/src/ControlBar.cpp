#include <afxext.h>

#include "CommandMessages.h"

IMPLEMENT_DYNAMIC(CControlBar, CWnd)

BEGIN_MESSAGE_MAP(CControlBar, CWnd)
    ON_MESSAGE(WM_SIZEPARENT, &CControlBar::OnSizeParent)
    ON_MESSAGE(WM_IDLEUPDATECMDUI, &CControlBar::OnIdleUpdateCmdUI)
END_MESSAGE_MAP()

LRESULT CControlBar::OnSizeParent(WPARAM, LPARAM lParam) {
    auto& layout = *reinterpret_cast<BarLayout*>(lParam);
    DWORD edge = m_dwStyle & CBRS_ALIGN_ANY;
    if (!IsVisible() || !edge)
        return 0;
    bool isHorizontal = edge & (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM);
    CSize size = CalcFixedLayout(layout.stretch, isHorizontal);
    RECT strip = layout.rect;
    if (edge & CBRS_ALIGN_TOP)
        layout.rect.top = strip.bottom = strip.top + size.cy;
    else if (edge & CBRS_ALIGN_BOTTOM)
        layout.rect.bottom = strip.top = strip.bottom - size.cy;
    else if (edge & CBRS_ALIGN_LEFT)
        layout.rect.left = strip.right = strip.left + size.cx;
    else
        layout.rect.right = strip.left = strip.right - size.cx;
    PositionWindow(layout, m_hWnd, strip);
    return 0;
}

LRESULT CControlBar::OnIdleUpdateCmdUI(WPARAM wParam, LPARAM) {
    CFrameWnd* frame = GetParentFrame();
    if (frame && IsVisible())
        OnUpdateCmdUI(frame, static_cast<BOOL>(wParam));
    return 0;
}
