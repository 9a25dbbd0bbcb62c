#include "VirtualHost.h"

#include "Callback.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

namespace Lumo {

namespace {

constexpr WCHAR kProperty[] = L"Tessel virtual windows";  // of the window, names its host
constexpr UINT_PTR kId = 0x564C;                          // of the subclass, and of the tool in the tool tip

bool IsWheel(UINT message) {
    return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL;
}

bool Holds(const std::vector<VirtualWindow*>& windows, const VirtualWindow* window,
           std::vector<VirtualWindow*> VirtualWindow::*children) {
    return std::any_of(windows.begin(), windows.end(), [&](VirtualWindow* each) {
        return each == window || Holds(each->*children, window, children);
    });
}

TTTOOLINFO ToolOf(HWND window) {
    TTTOOLINFO tool = {};
    tool.cbSize = TTTOOLINFO_V1_SIZE;
    tool.hwnd = window;
    tool.uId = kId;
    return tool;
}

HWND MakeToolTip(HWND owner) {
    const INITCOMMONCONTROLSEX classes = {sizeof classes, ICC_BAR_CLASSES};
    ::InitCommonControlsEx(&classes);
    return ::CreateWindowEx(WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr,
                            nullptr, nullptr);
}

}  // namespace

std::shared_ptr<VirtualHost> VirtualHost::Find(HWND window) {
    auto* host = static_cast<VirtualHost*>(::GetProp(window, kProperty));
    return host ? host->shared_from_this() : nullptr;
}

std::shared_ptr<VirtualHost> VirtualHost::FindOrMake(HWND window) {
    if (auto host = Find(window))
        return host;
    auto host = std::make_shared<VirtualHost>(window);
    if (!::SetProp(window, kProperty, host.get()))
        return nullptr;
    if (::SetWindowSubclass(window, &VirtualHost::Proc, kId, reinterpret_cast<DWORD_PTR>(host.get())))
        return host;
    ::RemoveProp(window, kProperty);
    return nullptr;
}

LRESULT CALLBACK VirtualHost::Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                   DWORD_PTR data) {
    // Kept alive: the last virtual window may go in the middle.
    const auto host = reinterpret_cast<VirtualHost*>(data)->shared_from_this();
    if (message == WM_NCDESTROY) {
        host->End();
        return ::DefSubclassProc(window, message, wParam, lParam);
    }
    LRESULT result = 0;
    bool handled = true;
    CallGuarded([&] { handled = host->Handle(message, wParam, lParam, result); }, window, message, wParam);
    return handled ? result : ::DefSubclassProc(window, message, wParam, lParam);
}

bool VirtualHost::Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result) {
    if (message >= WM_MOUSEFIRST && message <= WM_MOUSELAST)
        return HandleMouse(message, wParam, lParam);
    if (message >= WM_KEYFIRST && message <= WM_KEYLAST)
        return HandleKey(message, wParam, lParam);
    switch (message) {
        case WM_MOUSELEAVE:
            SetHot(nullptr);
            return false;
        case WM_SETCURSOR:
            result = reinterpret_cast<HWND>(wParam) == m_window && LOWORD(lParam) == HTCLIENT && ShowCursor();
            return result != 0;
        case WM_CAPTURECHANGED:
            if (reinterpret_cast<HWND>(lParam) != m_window)
                LoseCapture();
            return false;
        case WM_KILLFOCUS:
            SetFocus(nullptr);
            return false;
        default:
            return false;
    }
}

bool VirtualHost::HandleMouse(UINT message, WPARAM wParam, LPARAM lParam) {
    CPoint point(static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam)));
    if (IsWheel(message))
        ::ScreenToClient(m_window, &point);
    VirtualWindow* under = WindowAt(point);
    SetHot(m_capture && under != m_capture ? nullptr : under);
    RelayToToolTip(message, wParam, lParam);
    if (message == WM_MOUSEMOVE)
        WaitForHover(point);
    return PassUp(TargetAt(point), [&](VirtualWindow& window) {
        return window.OnMouse(message, static_cast<UINT>(wParam), point - window.Origin());
    });
}

bool VirtualHost::HandleKey(UINT message, WPARAM wParam, LPARAM lParam) {
    return PassUp(m_focus, [&](VirtualWindow& window) {
        return window.OnKey(message, static_cast<UINT>(wParam), HIWORD(static_cast<DWORD>(lParam)));
    });
}

// A window that has gone, or an owner whose windows all have, is asked nothing any more.
bool VirtualHost::PassUp(VirtualWindow* window, const std::function<bool(VirtualWindow&)>& handle) const {
    while (Contains(window)) {
        VirtualWindow* parent = window->m_parent;
        if (handle(*window))
            return true;
        window = parent;
    }
    return false;
}

bool VirtualHost::ShowCursor() {
    CPoint point;
    ::GetCursorPos(&point);
    ::ScreenToClient(m_window, &point);
    for (const VirtualWindow* window = TargetAt(point); window; window = window->m_parent) {
        if (window->m_cursor) {
            ::SetCursor(window->m_cursor);
            return true;
        }
    }
    return false;
}

bool VirtualHost::Contains(const VirtualWindow* window) const {
    return window && Holds(m_roots, window, &VirtualWindow::m_children);
}

VirtualWindow* VirtualHost::WindowAt(CPoint point) const {
    VirtualWindow* found = nullptr;
    for (const auto* windows = &m_roots; windows;) {
        const auto top = std::find_if(windows->rbegin(), windows->rend(), [&](const VirtualWindow* window) {
            return window->m_shown && window->m_rect.PtInRect(point);
        });
        if (top == windows->rend())
            break;
        found = *top;
        point -= found->m_rect.TopLeft();
        windows = &found->m_children;
    }
    return found;
}

VirtualWindow* VirtualHost::TargetAt(CPoint point) const {
    return m_capture ? m_capture : WindowAt(point);
}

void VirtualHost::SetHot(VirtualWindow* window) {
    if (window) {
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_window, 0};
        ::TrackMouseEvent(&track);
    }
    if (window == m_hot)
        return;
    VirtualWindow* before = std::exchange(m_hot, window);
    m_hover.Stop();
    m_pointer = CPoint(-1, -1);
    RefreshToolTip();
    if (before)
        before->OnMouseLeave();
    if (window && window == m_hot)
        window->OnMouseEnter();
}

// The system's own waiting belongs to the owner.
void VirtualHost::WaitForHover(CPoint point) {
    if (!m_hot || point == m_pointer)
        return;
    m_pointer = point;
    UINT pause = 400;
    ::SystemParametersInfo(SPI_GETMOUSEHOVERTIME, 0, &pause, 0);
    m_hover.Start(*CWnd::FromHandle(m_window), pause, [this] {
        m_hover.Stop();
        if (m_hot)
            m_hot->OnMouseHover(m_pointer - m_hot->Origin());
    });
}

void VirtualHost::SetCapture(VirtualWindow& window) {
    if (m_capture == &window)
        return;
    LoseCapture();
    if (!Contains(&window))
        return;
    m_capture = &window;
    ::SetCapture(m_window);
}

void VirtualHost::LoseCapture() {
    if (VirtualWindow* before = std::exchange(m_capture, nullptr))
        before->OnCaptureLost();
}

void VirtualHost::SetFocus(VirtualWindow* window) {
    if (window && ::GetFocus() != m_window) {
        ::SetFocus(m_window);
        if (::GetFocus() != m_window || !Contains(window))
            return;
    }
    if (window == m_focus)
        return;
    if (VirtualWindow* before = std::exchange(m_focus, window))
        before->OnFocus(false);
    if (window && window == m_focus)
        window->OnFocus(true);
}

void VirtualHost::Release(const std::function<bool(const VirtualWindow&)>& leaves, bool tell) {
    VirtualWindow* hot = m_hot && leaves(*m_hot) ? std::exchange(m_hot, nullptr) : nullptr;
    VirtualWindow* focus = m_focus && leaves(*m_focus) ? std::exchange(m_focus, nullptr) : nullptr;
    VirtualWindow* capture = m_capture && leaves(*m_capture) ? std::exchange(m_capture, nullptr) : nullptr;
    if (hot) {
        m_hover.Stop();
        RefreshToolTip();
    }
    if (capture && ::GetCapture() == m_window)
        ::ReleaseCapture();
    if (!tell)
        return;
    // Each may be the end of the others.
    if (hot)
        hot->OnMouseLeave();
    if (Contains(focus))
        focus->OnFocus(false);
    if (Contains(capture))
        capture->OnCaptureLost();
}

void VirtualHost::RefreshToolTip() {
    const VirtualWindow* window = m_hot;
    while (window && window->m_toolTip.IsEmpty())
        window = window->m_parent;
    TTTOOLINFO tool = ToolOf(m_window);
    if (m_toolTip)
        ::SendMessage(m_toolTip, TTM_DELTOOL, 0, reinterpret_cast<LPARAM>(&tool));
    else if (window)
        m_toolTip = MakeToolTip(m_window);
    if (!window)
        return;
    tool.rect = window->GetOwnerRect();
    tool.lpszText = const_cast<LPWSTR>(window->m_toolTip.GetString());
    ::SendMessage(m_toolTip, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&tool));
}

void VirtualHost::RelayToToolTip(UINT message, WPARAM wParam, LPARAM lParam) const {
    if (!m_toolTip || IsWheel(message))
        return;
    MSG relayed = {m_window, message, wParam, lParam, 0, {}};
    ::SendMessage(m_toolTip, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void VirtualHost::LeaveWhenEmpty() {
    if (!m_roots.empty() || !m_window)
        return;
    m_hover.Stop();
    ::RemoveWindowSubclass(m_window, &VirtualHost::Proc, kId);
    ::RemoveProp(m_window, kProperty);
    if (m_toolTip)
        ::DestroyWindow(m_toolTip);
    m_window = m_toolTip = nullptr;
}

void VirtualHost::End() {
    while (!m_roots.empty())
        m_roots.back()->Destroy();
}

}  // namespace Lumo
