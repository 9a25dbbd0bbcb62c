// What the mouse and the keyboard do to the tabs.
#include "window/TabCtrl.h"

#include "TabEditor.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace Lumo {

namespace {

constexpr int kScrollStep = 60;  // at 96 dots per inch
constexpr UINT kScrollPause = 120;
constexpr UINT kDpiChanged = 0x02E3;  // WM_DPICHANGED_AFTERPARENT, younger than the headers' version

}  // namespace

BEGIN_MESSAGE_MAP(TabCtrl, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MBUTTONUP()
    ON_WM_RBUTTONUP()
    ON_WM_MOUSEWHEEL()
    ON_WM_CAPTURECHANGED()
    ON_WM_KEYDOWN()
    ON_WM_GETDLGCODE()
    ON_WM_SETFOCUS()
    ON_WM_KILLFOCUS()
    ON_WM_DESTROY()
    ON_MESSAGE(kEditorLeft, &TabCtrl::OnEditorLeft)
    ON_MESSAGE(kDpiChanged, &TabCtrl::OnDpiChanged)
END_MESSAGE_MAP()

void TabCtrl::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    EndRename(true);
    Arrange();
    EnsureVisible(m_current);
    Invalidate(FALSE);
}

void TabCtrl::SetHot(Place hot) {
    if (hot == m_hot)
        return;
    m_hot = hot;
    Invalidate(FALSE);
}

void TabCtrl::OnMouseMove(UINT, CPoint point) {
    TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&track);
    if (m_pressed.part == TabPart::kTab && m_reorder && !m_dragging && PassesThreshold(point))
        BeginDrag();
    if (m_dragging)
        Drag(point);
    else
        SetHot(PlaceAt(point));
}

void TabCtrl::OnMouseLeave() {
    SetHot({});
}

void TabCtrl::OnLButtonDown(UINT, CPoint point) {
    EndRename(true);
    m_pressed = PlaceAt(point);
    m_pressedAt = point;
    if (GetStyle() & WS_TABSTOP)
        SetFocus();
    if (m_pressed.part == TabPart::kTab)
        Choose(m_pressed.tab);
    // The parent may have changed the tabs.
    if (m_pressed.part == TabPart::kNothing || (m_pressed.tab >= 0 && !IsTab(m_pressed.tab))) {
        m_pressed = {};
        return;
    }
    SetCapture();
    if (m_pressed.part == TabPart::kScrollLeft || m_pressed.part == TabPart::kScrollRight)
        StartScrolling(m_pressed.part);
    Invalidate(FALSE);
}

void TabCtrl::OnLButtonUp(UINT, CPoint point) {
    if (m_dragging) {
        Drop();
        return;
    }
    const Place pressed = std::exchange(m_pressed, {});
    m_scrollTimer.Stop();
    if (GetCapture() == this)
        ReleaseCapture();
    Invalidate(FALSE);
    if (pressed.part == TabPart::kNothing || pressed != PlaceAt(point))
        return;
    if (pressed.part == TabPart::kClose)
        CloseTab(pressed.tab);
    else if (pressed.part == TabPart::kAdd)
        Notify(TABN_ADD, -1);
}

// The second press of a fast pair on a button counts like the first.
void TabCtrl::OnLButtonDblClk(UINT flags, CPoint point) {
    const Place place = PlaceAt(point);
    if (place.part == TabPart::kTab)
        BeginRename(place.tab);
    else if (place.part != TabPart::kNothing)
        OnLButtonDown(flags, point);
    else if (m_addButton && StripRect().PtInRect(point) && Along(point) < VisibleLength())
        Notify(TABN_ADD, -1);
}

void TabCtrl::OnMButtonUp(UINT, CPoint point) {
    const Place place = PlaceAt(point);
    if (m_closeButtons && place.tab >= 0)
        CloseTab(place.tab);
}

void TabCtrl::OnRButtonUp(UINT, CPoint point) {
    if (m_dragging) {
        EndDrag();
        return;
    }
    EndRename(true);
    if (!StripRect().PtInRect(point))
        return;
    const int tab = PlaceAt(point).tab;
    Choose(tab);
    ClientToScreen(&point);
    Notify(TABN_MENU, IsTab(tab) ? tab : -1, -1, nullptr, point);
}

BOOL TabCtrl::OnMouseWheel(UINT, short delta, CPoint) {
    EndRename(true);
    ScrollTo(m_offset - delta * m_style->Scaled(kScrollStep) / WHEEL_DELTA);
    return TRUE;
}

void TabCtrl::CloseTab(int index) {
    if (IsTab(index))
        Notify(TABN_CLOSE, index);
}

bool TabCtrl::PassesThreshold(CPoint point) const {
    return std::abs(point.x - m_pressedAt.x) > ::GetSystemMetrics(SM_CXDRAG) ||
           std::abs(point.y - m_pressedAt.y) > ::GetSystemMetrics(SM_CYDRAG);
}

// The control has the keyboard for the length of the drag: Escape ends it.
void TabCtrl::BeginDrag() {
    m_dragging = true;
    m_focusBefore = ::GetFocus();
    SetFocus();
    m_scrollTimer.Start(*this, kScrollPause, [this] { ScrollWhileDragging(); });
}

void TabCtrl::Drag(CPoint point) {
    const int index = DropIndexAt(Along(point));
    if (index == m_dropIndex)
        return;
    m_dropIndex = index;
    Invalidate(FALSE);
}

void TabCtrl::ScrollWhileDragging() {
    const int zone = m_style->Scaled(24);
    CPoint at;
    ::GetCursorPos(&at);
    ScreenToClient(&at);
    if (Along(at) < zone)
        StepScroll(TabPart::kScrollLeft);
    else if (Along(at) > VisibleLength() - zone)
        StepScroll(TabPart::kScrollRight);
    Drag(at);
}

// The index of the tab that the dragged one would be put in front of.
int TabCtrl::DropIndexAt(int along) const {
    int index = 0;
    while (index < GetTabCount() && along > Along(GetTabRect(index).CenterPoint()))
        ++index;
    return index;
}

void TabCtrl::Drop() {
    const int from = m_pressed.tab;
    const int to = m_dropIndex > from ? m_dropIndex - 1 : m_dropIndex;
    EndDrag();
    if (to == from || !IsTab(to) || Notify(TABN_MOVE, from, to))
        return;
    if (MoveTab(from, to))
        Notify(TABN_MOVED, from, to);
}

void TabCtrl::EndDrag() {
    if (!std::exchange(m_dragging, false))
        return;
    m_pressed = {};
    m_dropIndex = -1;
    m_scrollTimer.Stop();
    if (GetCapture() == this)
        ReleaseCapture();
    if (GetFocus() == this && ::IsWindow(m_focusBefore))
        ::SetFocus(m_focusBefore);
    Invalidate(FALSE);
    Notify(TABN_DRAGEND, -1);
}

void TabCtrl::OnCaptureChanged(CWnd* window) {
    if (window == this)
        return;
    m_pressed = {};
    if (m_dragging)
        EndDrag();
    else
        m_scrollTimer.Stop();
    Invalidate(FALSE);
}

void TabCtrl::StartScrolling(TabPart part) {
    StepScroll(part);
    m_scrollTimer.Start(*this, kScrollPause, [this, part] {
        if (m_hot.part == part)
            StepScroll(part);
    });
}

void TabCtrl::StepScroll(TabPart part) {
    const int step = m_style->Scaled(kScrollStep);
    ScrollTo(m_offset + (part == TabPart::kScrollLeft ? -step : step));
}

BOOL TabCtrl::PreTranslateMessage(MSG* msg) {
    if (m_dragging && msg->message == WM_KEYDOWN && msg->wParam == VK_ESCAPE) {
        EndDrag();
        return TRUE;
    }
    return CWnd::PreTranslateMessage(msg);
}

void TabCtrl::OnKeyDown(UINT key, UINT repeat, UINT flags) {
    if (key == (IsUpright() ? VK_UP : VK_LEFT)) {
        Choose(m_current - 1);
        return;
    }
    if (key == (IsUpright() ? VK_DOWN : VK_RIGHT)) {
        Choose(m_current + 1);
        return;
    }
    switch (key) {
        case VK_HOME:
            Choose(0);
            break;
        case VK_END:
            Choose(GetTabCount() - 1);
            break;
        case VK_F2:
            BeginRename(m_current);
            break;
        case VK_DELETE:
            if (m_closeButtons)
                CloseTab(m_current);
            break;
        default:
            CWnd::OnKeyDown(key, repeat, flags);
    }
}

UINT TabCtrl::OnGetDlgCode() {
    return DLGC_WANTARROWS;
}

void TabCtrl::OnSetFocus(CWnd* old) {
    CWnd::OnSetFocus(old);
    Invalidate(FALSE);
}

void TabCtrl::OnKillFocus(CWnd* next) {
    CWnd::OnKillFocus(next);
    Invalidate(FALSE);
}

void TabCtrl::OnDestroy() {
    m_scrollTimer.Stop();
    if (const auto editor = std::move(m_edit))
        editor->DestroyWindow();
    CWnd::OnDestroy();
}

}  // namespace Lumo
