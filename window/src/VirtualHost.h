// What a window does for the virtual windows in it: finds which one a message is for.
#pragma once

#include "window/Timer.h"
#include "window/VirtualWindow.h"

#include <functional>

namespace Lumo {

/// Stands between a window and its messages as long as there are virtual windows in it, which own it
/// together.
class VirtualHost : public std::enable_shared_from_this<VirtualHost> {
public:
    explicit VirtualHost(HWND window) : m_window(window) {}
    VirtualHost(const VirtualHost&) = delete;
    VirtualHost& operator=(const VirtualHost&) = delete;

    /// The host of a window, null when there is none.
    static std::shared_ptr<VirtualHost> Find(HWND window);
    /// The same, made when there is none; null when the system refuses.
    static std::shared_ptr<VirtualHost> FindOrMake(HWND window);

    HWND Window() const { return m_window; }
    std::vector<VirtualWindow*>& Roots() { return m_roots; }
    VirtualWindow* Hot() const { return m_hot; }
    VirtualWindow* Captured() const { return m_capture; }
    VirtualWindow* Focused() const { return m_focus; }

    void SetCapture(VirtualWindow& window);
    void SetFocus(VirtualWindow* window);
    /// Takes pointer, capture and keyboard from those for which `leaves` answers true. Without `tell` they do
    /// not learn it.
    void Release(const std::function<bool(const VirtualWindow&)>& leaves, bool tell);
    /// Shows the tip of the hot one as it is now.
    void RefreshToolTip();
    /// Leaves the window when nothing is in it any more.
    void LeaveWhenEmpty();

private:
    static LRESULT CALLBACK Proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR id,
                                 DWORD_PTR host);
    bool Handle(UINT message, WPARAM wParam, LPARAM lParam, LRESULT& result);
    bool HandleMouse(UINT message, WPARAM wParam, LPARAM lParam);
    bool HandleKey(UINT message, WPARAM wParam, LPARAM lParam);
    bool ShowCursor();
    void LoseCapture();
    void End();

    bool Contains(const VirtualWindow* window) const;
    VirtualWindow* WindowAt(CPoint point) const;
    VirtualWindow* TargetAt(CPoint point) const;
    bool PassUp(VirtualWindow* window, const std::function<bool(VirtualWindow&)>& handle) const;
    void SetHot(VirtualWindow* window);
    void WaitForHover(CPoint point);
    void RelayToToolTip(UINT message, WPARAM wParam, LPARAM lParam) const;

    HWND m_window;
    std::vector<VirtualWindow*> m_roots;
    VirtualWindow* m_hot = nullptr;
    VirtualWindow* m_capture = nullptr;
    VirtualWindow* m_focus = nullptr;
    HWND m_toolTip = nullptr;
    CPoint m_pointer{-1, -1};
    Timer m_hover;
};

}  // namespace Lumo
