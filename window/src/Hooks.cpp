// The two kinds of listeners: from the parameters of the system's hooks to what a host reads.
#include "HookChain.h"

#include "window/KeyboardHook.h"
#include "window/MouseHook.h"

#include <utility>

namespace Lumo {

namespace {

HookedKey KeyOf(WPARAM wParam, LPARAM lParam) {
    const auto flags = HIWORD(static_cast<DWORD>(lParam));
    return {static_cast<UINT>(wParam), !(flags & KF_UP), (flags & KF_REPEAT) != 0, (flags & KF_ALTDOWN) != 0};
}

HookedMouse MouseOf(WPARAM wParam, LPARAM lParam) {
    const auto& info = *reinterpret_cast<const MOUSEHOOKSTRUCTEX*>(lParam);
    const bool turned = wParam == WM_MOUSEWHEEL || wParam == WM_MOUSEHWHEEL;
    return {static_cast<UINT>(wParam), info.pt, info.hwnd, static_cast<UINT>(info.wHitTestCode),
            turned ? GET_WHEEL_DELTA_WPARAM(info.mouseData) : 0};
}

bool IsPress(UINT message) {
    for (UINT press : {WM_LBUTTONDOWN, WM_MBUTTONDOWN, WM_RBUTTONDOWN, WM_XBUTTONDOWN, WM_NCLBUTTONDOWN,
                       WM_NCMBUTTONDOWN, WM_NCRBUTTONDOWN, WM_NCXBUTTONDOWN}) {
        if (message == press)
            return true;
    }
    return false;
}

// A menu is a window of its own, but belongs to what it was opened for.
bool IsMenuOpen() {
    GUITHREADINFO info = {};
    info.cbSize = sizeof info;
    return ::GetGUIThreadInfo(::GetCurrentThreadId(), &info) &&
           (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) != 0;
}

}  // namespace

KeyboardHook::~KeyboardHook() {
    Stop();
}

bool KeyboardHook::Start(Listener listener) {
    Stop();
    if (listener)
        m_entry = StartHook(WH_KEYBOARD, [listener = std::move(listener)](WPARAM wParam, LPARAM lParam) {
            return listener(KeyOf(wParam, lParam));
        });
    return IsRunning();
}

void KeyboardHook::Stop() {
    StopHook(std::exchange(m_entry, nullptr));
}

MouseHook::~MouseHook() {
    Stop();
}

bool MouseHook::Start(Listener listener) {
    Stop();
    if (listener)
        m_entry = StartHook(WH_MOUSE, [listener = std::move(listener)](WPARAM wParam, LPARAM lParam) {
            return listener(MouseOf(wParam, lParam));
        });
    return IsRunning();
}

bool MouseHook::StartElsewhere(HWND window, std::function<void()> pressed) {
    if (!pressed) {
        Stop();
        return false;
    }
    return Start([window, pressed = std::move(pressed)](const HookedMouse& mouse) {
        if (IsPress(mouse.message) && mouse.window != window && !::IsChild(window, mouse.window) &&
            !IsMenuOpen())
            pressed();
        return false;
    });
}

void MouseHook::Stop() {
    StopHook(std::exchange(m_entry, nullptr));
}

}  // namespace Lumo
