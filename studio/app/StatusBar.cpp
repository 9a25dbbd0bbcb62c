#include "studio/app/StatusBar.h"

#include "studio/app/Painting.h"

namespace Studio {

namespace {

// Widths of the panes; the hint takes what is left.
constexpr int kWidths[StatusBar::kPaneCount] = {84, 0, 290, 110, 92};
constexpr int kPadding = 10;

COLORREF ToColorRef(DWORD argb) {
    return RGB(argb >> 16 & 0xFF, argb >> 8 & 0xFF, argb & 0xFF);
}

}  // namespace

BEGIN_MESSAGE_MAP(StatusBar, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

bool StatusBar::Create(CWnd& parent) {
    const LPCWSTR windowClass = AfxRegisterWndClass(CS_HREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    return CreateEx(0, windowClass, L"Status", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS,
                    CRect(0, 0, 0, kHeight), &parent, 0) != FALSE;
}

void StatusBar::SetPane(Pane pane, const CString& text) {
    if (m_texts[pane] == text)
        return;
    m_texts[pane] = text;
    InvalidateRect(PaneRect(pane), FALSE);
}

CRect StatusBar::PaneRect(int pane) const {
    CRect client;
    GetClientRect(client);
    int right = client.right;
    for (int i = kPaneCount - 1; i > pane && i > kHint; --i)
        right -= kWidths[i];
    int left = right - kWidths[pane];
    if (pane == kMode) {
        left = 0;
        right = kWidths[kMode];
    } else if (pane == kHint) {
        left = kWidths[kMode];
    }
    return CRect(left, 0, right, client.bottom);
}

void StatusBar::OnPaint() {
    CPaintDC paint(this);
    CRect client;
    GetClientRect(client);
    // The panes are text on one ground; a memory bitmap keeps them from flickering.
    CDC dc;
    dc.CreateCompatibleDC(&paint);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&paint, client.Width(), client.Height());
    const HGDIOBJ oldBitmap = ::SelectObject(dc, bitmap);
    const HGDIOBJ oldFont = ::SelectObject(dc, BarFont());
    dc.FillSolidRect(client, ToColorRef(Palette::kBar));
    dc.FillSolidRect(0, 0, client.Width(), 1, ToColorRef(Palette::kEdge));
    dc.SetBkMode(TRANSPARENT);
    for (int pane = 0; pane < kPaneCount; ++pane) {
        CRect rect = PaneRect(pane);
        if (pane != kMode)
            dc.FillSolidRect(rect.left, 6, 1, client.Height() - 12, ToColorRef(Palette::kEdge));
        rect.DeflateRect(kPadding, 1, kPadding, 0);
        const DWORD color = pane == kModified ? Palette::kMark
                            : pane == kHint   ? Palette::kQuietText
                                              : Palette::kText;
        dc.SetTextColor(ToColorRef(color));
        dc.DrawText(m_texts[pane], rect,
                    DT_SINGLELINE | DT_VCENTER | DT_LEFT | DT_END_ELLIPSIS | DT_NOPREFIX);
    }
    ::BitBlt(paint, 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
    ::SelectObject(dc, oldFont);
    ::SelectObject(dc, oldBitmap);
}

BOOL StatusBar::OnEraseBkgnd(CDC*) {
    return TRUE;
}

}  // namespace Studio
