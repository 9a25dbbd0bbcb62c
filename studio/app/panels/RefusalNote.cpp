#include "studio/app/panels/RefusalNote.h"

#include "studio/app/panels/FieldPainting.h"

#include <algorithm>

namespace Studio {

namespace {

constexpr int kPadding = 6;
constexpr int kGap = 3;
constexpr int kMargin = 8;
constexpr DWORD kNoteGround = 0xFFFDECEC;
constexpr DWORD kNoteEdge = 0xFFD23B3B;
constexpr DWORD kNoteText = 0xFF8F1D1D;
constexpr UINT kFormat = DT_WORDBREAK | DT_NOPREFIX;

}  // namespace

BEGIN_MESSAGE_MAP(RefusalNote, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_NCHITTEST()
END_MESSAGE_MAP()

bool RefusalNote::Create(CWnd& parent) {
    const LPCWSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return CreateEx(0, windowClass, L"Note", WS_CHILD | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), &parent, 0) !=
           FALSE;
}

void RefusalNote::Show(const CRect& field, const CString& reason) {
    m_reason = reason;
    CRect parent;
    GetParent()->GetClientRect(parent);
    CRect room(0, 0, parent.Width() - 2 * kMargin - 2 * kPadding, 0);
    {
        CClientDC dc(this);
        const HGDIOBJ old = ::SelectObject(dc, BarFont());
        dc.DrawText(reason, room, kFormat | DT_CALCRECT);
        ::SelectObject(dc, old);
    }
    // One pixel more than measured, or the last word may wrap.
    const int width = room.Width() + 1 + 2 * kPadding;
    const int height = room.Height() + 2 * kPadding;
    const bool below = field.bottom + kGap + height <= parent.bottom;
    const int top = below ? field.bottom + kGap : field.top - kGap - height;
    const int left = std::min<int>(field.left, parent.right - kMargin - width);
    SetWindowPos(&wndTop, left, top, width, height, SWP_NOACTIVATE | SWP_SHOWWINDOW | SWP_NOCOPYBITS);
    Invalidate(FALSE);
}

void RefusalNote::Hide() {
    ShowWindow(SW_HIDE);
}

bool RefusalNote::Covers(const CWnd& window) const {
    CRect note, other, common;
    GetWindowRect(note);
    window.GetWindowRect(other);
    return IsWindowVisible() && common.IntersectRect(note, other);
}

void RefusalNote::OnPaint() {
    BufferedDC paint(*this);
    CDC& dc = paint.Dc();
    CRect rect = paint.Client();
    dc.FillSolidRect(rect, ToColorRef(kNoteEdge));
    rect.DeflateRect(1, 1);
    dc.FillSolidRect(rect, ToColorRef(kNoteGround));
    rect.DeflateRect(kPadding - 1, kPadding - 1);
    dc.SetTextColor(ToColorRef(kNoteText));
    dc.DrawText(m_reason, rect, kFormat);
}

BOOL RefusalNote::OnEraseBkgnd(CDC*) {
    return TRUE;
}

LRESULT RefusalNote::OnNcHitTest(CPoint) {
    return HTTRANSPARENT;
}

}  // namespace Studio
