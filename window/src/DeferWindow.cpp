#include "window/DeferWindow.h"

namespace Lumo {

namespace {

constexpr UINT kKeep = SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOOWNERZORDER;

CRect RectInParent(HWND window) {
    CRect rect;
    ::GetWindowRect(window, rect);
    ::MapWindowPoints(nullptr, ::GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

bool IsShown(HWND window) {
    return (::GetWindowLong(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

}  // namespace

DeferWindow::~DeferWindow() {
    if (!m_places.empty() && !MoveTogether())
        MoveOneByOne();
}

void DeferWindow::Move(CWnd& window, const CRect& rect) {
    if (window.m_hWnd && RectInParent(window.m_hWnd) != rect)
        Add(window, rect, 0);
}

void DeferWindow::Show(CWnd& window, const CRect& rect) {
    if (window.m_hWnd && (!IsShown(window.m_hWnd) || RectInParent(window.m_hWnd) != rect))
        Add(window, rect, SWP_SHOWWINDOW);
}

void DeferWindow::Hide(CWnd& window) {
    if (window.m_hWnd && IsShown(window.m_hWnd))
        Add(window, CRect(), SWP_HIDEWINDOW | SWP_NOMOVE | SWP_NOSIZE);
}

void DeferWindow::Add(CWnd& window, const CRect& rect, UINT flags) {
    m_places.push_back({window.m_hWnd, rect, flags | kKeep});
}

bool DeferWindow::MoveTogether() const {
    HDWP together = ::BeginDeferWindowPos(static_cast<int>(m_places.size()));
    for (const Place& place : m_places) {
        if (together)
            together = ::DeferWindowPos(together, place.window, nullptr, place.rect.left, place.rect.top,
                                        place.rect.Width(), place.rect.Height(), place.flags);
    }
    return together && ::EndDeferWindowPos(together);
}

// The system refuses windows of different parents, or has no memory left.
void DeferWindow::MoveOneByOne() const {
    for (const Place& place : m_places)
        ::SetWindowPos(place.window, nullptr, place.rect.left, place.rect.top, place.rect.Width(),
                       place.rect.Height(), place.flags);
}

}  // namespace Lumo
