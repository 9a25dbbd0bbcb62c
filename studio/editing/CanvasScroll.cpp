// Scrolling a page that is larger than its window.
#include "studio/editing/StudioCanvas.h"

#include "core/Geometry.h"
#include "core/UIObject.h"
#include "studio/editing/Geometry.h"

#include <algorithm>

namespace Studio {

using Lumo::CUIObject;

namespace {

// Room behind the last object, to go on drawing there.
constexpr int kRoom = 100;
// The page units of a line, and of a notch of the wheel.
constexpr int kLine = 20;
constexpr int kNotch = 60;
constexpr UINT_PTR kFollowTimer = 1;
constexpr UINT kFollowPause = 40;  // milliseconds
constexpr int kMostFollow = 40;    // page units at once

int Clamp(int at, int low, int high) {
    return std::clamp(at, low, std::max(low, high));
}

void ShowRange(HWND window, int bar, int low, int high, int view, int at) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
    info.nMin = low;
    info.nMax = high - 1;
    info.nPage = static_cast<UINT>(view);
    info.nPos = at;
    ::SetScrollInfo(window, bar, &info, TRUE);
}

// How far beyond a side of the view a pointer is.
int Beyond(int at, int end) {
    const int by = at < 0 ? at : at >= end ? at - end + 1 : 0;
    return std::clamp(by, -kMostFollow, kMostFollow);
}

}  // namespace

void StudioCanvas::OnPrepareDC(CDC* dc, CPrintInfo* info) {
    CUICanvas::OnPrepareDC(dc, info);
    if (!info)
        dc->SetViewportOrg(-m_origin.x, -m_origin.y);
}

// Run mode moves objects to and fro: the page is as large as it was drawn.
void StudioCanvas::MeasureContents() {
    const auto* objects = Objects();
    if (m_operator || !objects)
        return;
    Gdiplus::RectF all;
    bool any = false;
    for (CUIObject* object : *objects) {
        if (!object || object->GetRemoved())
            continue;
        const Gdiplus::RectF bounds = Lumo::Normalised(object->GetPosition());
        all = any ? United(all, bounds) : bounds;
        any = true;
    }
    m_contents = Lumo::RectAtlFromGdi(all);
}

// What the bars leave of the window; each is there only when the contents need it.
CRect StudioCanvas::View() const {
    CRect client;
    GetClientRect(client);
    const CSize bars(::GetSystemMetrics(SM_CXVSCROLL), ::GetSystemMetrics(SM_CYHSCROLL));
    const DWORD style = GetStyle();
    const CSize window(client.right + (style & WS_VSCROLL ? bars.cx : 0),
                       client.bottom + (style & WS_HSCROLL ? bars.cy : 0));
    CRect view(CPoint(0, 0), window);
    // A bar takes room from the other direction: the second time both are known.
    for (int time = 0; time < 2; ++time) {
        const bool across = m_contents.left < 0 || m_contents.right > view.right;
        const bool down = m_contents.top < 0 || m_contents.bottom > view.bottom;
        view.right = std::max<LONG>(0, window.cx - (down ? bars.cx : 0));
        view.bottom = std::max<LONG>(0, window.cy - (across ? bars.cy : 0));
    }
    return view;
}

// The part of the page that can be shown: what fits from its corner on, and everything that stands on it.
CRect StudioCanvas::ScrollArea(const CRect& view) const {
    const int room = m_operator ? 0 : kRoom;
    CRect area = view;
    if (m_contents.left < 0)
        area.left = m_contents.left - room;
    if (m_contents.top < 0)
        area.top = m_contents.top - room;
    if (m_contents.right > view.right)
        area.right = m_contents.right + room;
    if (m_contents.bottom > view.bottom)
        area.bottom = m_contents.bottom + room;
    return area;
}

void StudioCanvas::UpdateScrollBars() {
    if (!m_hWnd || m_updatingBars)
        return;
    m_updatingBars = true;
    MeasureContents();
    const CRect view = View();
    const CRect area = ScrollArea(view);
    ScrollTo(m_origin);
    ShowRange(m_hWnd, SB_HORZ, area.left, area.right, view.Width(), m_origin.x);
    ShowRange(m_hWnd, SB_VERT, area.top, area.bottom, view.Height(), m_origin.y);
    m_updatingBars = false;
}

void StudioCanvas::ScrollTo(CPoint origin) {
    const CRect view = View();
    const CRect area = ScrollArea(view);
    const CPoint to(Clamp(origin.x, area.left, area.right - view.Width()),
                    Clamp(origin.y, area.top, area.bottom - view.Height()));
    if (to == m_origin)
        return;
    EndTextEdit();
    const bool band = m_band;
    HideBand();
    const CSize by = m_origin - to;
    m_origin = to;
    SetScrollPos(SB_HORZ, to.x);
    SetScrollPos(SB_VERT, to.y);
    ::ScrollWindowEx(m_hWnd, by.cx, by.cy, nullptr, nullptr, nullptr, nullptr,
                     SW_INVALIDATE | SW_SCROLLCHILDREN);
    // An operator paints from a picture of the view, which is another one now.
    if (m_operator)
        Invalidate(FALSE);
    UpdateWindow();
    if (band)
        ShowBand(m_bandFrom, m_bandTo);
    // Something else lies under the pointer now.
    if (CPoint at; m_trackingLeave && ::GetCursorPos(&at)) {
        ScreenToClient(&at);
        TrackPointer(at);
    }
}

void StudioCanvas::ScrollByWheel(UINT flags, short turn) {
    const int by = -turn * kNotch / WHEEL_DELTA;
    ScrollTo(m_origin + (flags & MK_SHIFT ? CPoint(by, 0) : CPoint(0, by)));
}

int StudioCanvas::ScrolledBy(int bar, UINT code, int now) {
    SCROLLINFO info = {};
    info.cbSize = sizeof info;
    GetScrollInfo(bar, &info, SIF_ALL);
    const int page = static_cast<int>(info.nPage);
    switch (code) {
        case SB_LINEUP:
            return now - kLine;
        case SB_LINEDOWN:
            return now + kLine;
        case SB_PAGEUP:
            return now - page;
        case SB_PAGEDOWN:
            return now + page;
        case SB_TOP:
            return info.nMin;
        case SB_BOTTOM:
            return info.nMax;
        case SB_THUMBTRACK:
        case SB_THUMBPOSITION:
            return info.nTrackPos;
        default:
            return now;
    }
}

void StudioCanvas::OnHScroll(UINT code, UINT, CScrollBar*) {
    ScrollTo(CPoint(ScrolledBy(SB_HORZ, code, m_origin.x), m_origin.y));
}

void StudioCanvas::OnVScroll(UINT code, UINT, CScrollBar*) {
    ScrollTo(CPoint(m_origin.x, ScrolledBy(SB_VERT, code, m_origin.y)));
}

void StudioCanvas::OnSize(UINT type, int cx, int cy) {
    CUICanvas::OnSize(type, cx, cy);
    UpdateScrollBars();
}

LRESULT StudioCanvas::OnBarsRequested(WPARAM, LPARAM) {
    m_barsRequested = false;
    if (!m_gesture)
        UpdateScrollBars();
    return 0;
}

// What is dragged out of the window takes the view along, until the pointer is back or the gesture over.
void StudioCanvas::FollowPointer(CPoint at) {
    m_followed = at;
    CRect client;
    GetClientRect(client);
    if (!client.PtInRect(at) && GetCapture() == this)
        SetTimer(kFollowTimer, kFollowPause, nullptr);
}

void StudioCanvas::OnTimer(UINT_PTR timer) {
    if (timer != kFollowTimer) {
        CUICanvas::OnTimer(timer);
        return;
    }
    CRect client;
    GetClientRect(client);
    const CPoint by(Beyond(m_followed.x, client.right), Beyond(m_followed.y, client.bottom));
    if (!m_gesture || GetCapture() != this || by == CPoint(0, 0)) {
        KillTimer(kFollowTimer);
        return;
    }
    UpdateScrollBars();
    ScrollTo(m_origin + by);
    UINT flags = MK_LBUTTON;
    if (::GetKeyState(VK_SHIFT) < 0)
        flags |= MK_SHIFT;
    if (::GetKeyState(VK_CONTROL) < 0)
        flags |= MK_CONTROL;
    OnMouseMove(flags, m_followed);
}

}  // namespace Studio
