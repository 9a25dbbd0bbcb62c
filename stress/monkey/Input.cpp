#include "stress/monkey/Input.h"

#include "stress/monkey/Clock.h"
#include "stress/monkey/Journal.h"

#include <climits>
#include <vector>

namespace monkey {

namespace {

struct Button {
    UINT down, up, twice;
    UINT held;  // MK_ flag
    DWORD inputDown, inputUp;
    int key;
};

constexpr Button kLeft = {WM_LBUTTONDOWN,       WM_LBUTTONUP,       WM_LBUTTONDBLCLK, MK_LBUTTON,
                          MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, VK_LBUTTON};
constexpr Button kRight = {WM_RBUTTONDOWN,        WM_RBUTTONUP,        WM_RBUTTONDBLCLK, MK_RBUTTON,
                           MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP, VK_RBUTTON};
constexpr Button kMiddle = {WM_MBUTTONDOWN,         WM_MBUTTONUP,         WM_MBUTTONDBLCLK, MK_MBUTTON,
                            MOUSEEVENTF_MIDDLEDOWN, MOUSEEVENTF_MIDDLEUP, VK_MBUTTON};

constexpr ULONG_PTR kOwnInput = 0x6D6F6E6B;  // marks what SystemMouse sends

UINT g_held = 0;
const CPoint kNowhere(LONG_MIN, LONG_MIN);
CPoint g_awaited = kNowhere;  // the point on the screen of the own input that did not arrive yet

// The pointer that own input moved comes back as a move of the screen, and the system may merge the two: what
// arrives then has no mark.
LRESULT CALLBACK DropForeign(int code, WPARAM wParam, LPARAM lParam) {
    const auto& mouse = *reinterpret_cast<const MOUSEHOOKSTRUCT*>(lParam);
    if (code >= 0 && mouse.dwExtraInfo != kOwnInput && CPoint(mouse.pt) != g_awaited)
        return 1;
    if (code == HC_ACTION)
        g_awaited = kNowhere;
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

bool IsOurs(HWND window) {
    DWORD process = 0;
    return window && ::GetWindowThreadProcessId(window, &process) && process == ::GetCurrentProcessId();
}

void SetKeys(bool control, bool shift, UINT key = 0) {
    BYTE keys[256] = {};
    keys[VK_CONTROL] = keys[VK_LCONTROL] = control ? 0x80 : 0;
    keys[VK_SHIFT] = keys[VK_LSHIFT] = shift ? 0x80 : 0;
    if (key)
        keys[key] = 0x80;
    ::SetKeyboardState(keys);
}

void SystemMouse(CPoint screen, DWORD event) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dx = static_cast<LONG>((screen.x * 65536LL + 32768) / ::GetSystemMetrics(SM_CXSCREEN));
    input.mi.dy = static_cast<LONG>((screen.y * 65536LL + 32768) / ::GetSystemMetrics(SM_CYSCREEN));
    input.mi.dwFlags = MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE | event;
    input.mi.dwExtraInfo = kOwnInput;
    g_awaited = screen;
    ::SendInput(1, &input, sizeof input);
}

// What the mouse does next: a message and what the system calls it.
struct Stroke {
    UINT message;
    DWORD event;
};

Stroke Press(const Button& button, bool twice) {
    if (g_held & button.held) {
        g_held &= ~button.held;
        return {button.up, button.inputUp};
    }
    g_held |= button.held;
    return {twice ? button.twice : button.down, button.inputDown};
}

Stroke NextStroke(Random& random) {
    const int draw = random.Below(100);
    if (draw < 50)
        return {WM_MOUSEMOVE, 0};
    if (draw < 86)
        return Press(kLeft, random.Chance(20));
    if (draw < 94)
        return Press(kRight, random.Chance(10));
    return draw < 97 ? Press(kMiddle, false) : Stroke{WM_MOUSEWHEEL, MOUSEEVENTF_WHEEL};
}

}  // namespace

OwnMouse::OwnMouse()
    : m_hook(::SetWindowsHookEx(WH_MOUSE, &DropForeign, nullptr, ::GetCurrentThreadId())),
      m_doubleClickTime(::GetDoubleClickTime()) {
    ::SetDoubleClickTime(1);
}

OwnMouse::~OwnMouse() {
    ::SetDoubleClickTime(m_doubleClickTime);
    ::UnhookWindowsHookEx(m_hook);
}

void Pump(bool idle) {
    constexpr int kMostTicks = 8;  // of the system's timers that come faster than they are served
    const auto handle = [](UINT first, UINT last) {
        MSG message;
        if (!::PeekMessage(&message, nullptr, first, last, PM_REMOVE))
            return false;
        if (message.message != WM_QUIT && !AfxPreTranslateMessage(&message)) {
            ::TranslateMessage(&message);
            ::DispatchMessage(&message);
        }
        return true;
    };
    const auto handleAll = [&] {
        while (handle(0, WM_PAINT - 1) || handle(WM_PAINT + 1, WM_TIMER - 1) ||
               handle(WM_TIMER + 1, 0xFFFF) || (idle && handle(WM_PAINT, WM_PAINT))) {
        }
    };
    handleAll();
    for (int ticks = 0; idle && ticks < kMostTicks && handle(WM_TIMER, WM_TIMER); ++ticks)
        handleAll();
    if (idle) {
        RunDueTimers();
        handleAll();
    }
}

void SendMouse(Random& random, CWnd& window, CPoint at) {
    const Stroke stroke = NextStroke(random);
    const UINT modifiers = (random.Chance(12) ? MK_SHIFT : 0) | (random.Chance(8) ? MK_CONTROL : 0);
    const int way = random.Below(10);
    CRect client;
    window.GetClientRect(client);
    CPoint screen = at;
    window.ClientToScreen(&screen);
    const HWND captured = ::GetCapture();
    const HWND target = IsOurs(captured) ? captured : window.m_hWnd;
    const bool wheel = stroke.message == WM_MOUSEWHEEL;
    char name[24] = "";
    ::GetWindowTextA(window.m_hWnd, name, sizeof name);
    Note("mouse %04x at %ld, %ld of \"%s\", held %x, modifiers %x, way %d", stroke.message, at.x, at.y, name,
         g_held, modifiers, way);
    if (way == 0 && !wheel && client.PtInRect(at) && ::WindowFromPoint(screen) == window.m_hWnd &&
        IsOurs(::GetForegroundWindow())) {
        SystemMouse(screen, stroke.event);
        Pump();
        return;
    }
    CPoint point = screen;
    if (!wheel)
        ::ScreenToClient(target, &point);
    SetKeys((modifiers & MK_CONTROL) != 0, (modifiers & MK_SHIFT) != 0);
    const WPARAM flags =
        MAKEWPARAM(g_held | modifiers, wheel ? (random.Chance(50) ? WHEEL_DELTA : -WHEEL_DELTA) : 0);
    if (way < 3)
        ::SendMessage(target, stroke.message, flags, MAKELPARAM(point.x, point.y));
    else
        ::PostMessage(target, stroke.message, flags, MAKELPARAM(point.x, point.y));
    Pump();
    SetKeys(false, false);
}

void SendKey(Random& random, UINT key, bool control, bool shift) {
    const HWND focus = ::GetFocus();
    Note("key %02x%s%s", key, control ? " with Ctrl" : "", shift ? " with Shift" : "");
    if (random.Chance(10) && IsOurs(::GetForegroundWindow())) {
        std::vector<INPUT> inputs;
        const auto add = [&](UINT code, DWORD flags) {
            INPUT input = {};
            input.type = INPUT_KEYBOARD;
            input.ki.wVk = static_cast<WORD>(code);
            input.ki.dwFlags = flags;
            inputs.push_back(input);
        };
        if (control)
            add(VK_CONTROL, 0);
        if (shift)
            add(VK_SHIFT, 0);
        add(key, 0);
        add(key, KEYEVENTF_KEYUP);
        if (shift)
            add(VK_SHIFT, KEYEVENTF_KEYUP);
        if (control)
            add(VK_CONTROL, KEYEVENTF_KEYUP);
        ::SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
        Pump();
        return;
    }
    SetKeys(control, shift, key);
    ::PostMessage(focus, WM_KEYDOWN, key, 1);
    Pump();
    SetKeys(control, shift);
    ::PostMessage(focus, WM_KEYUP, key, static_cast<LPARAM>(0xC0000001));
    Pump();
    SetKeys(false, false);
}

void SendText(Random& random) {
    constexpr WCHAR kLetters[] = L"0123456789-.,%#aZ \xAC00\xD638\b";
    Note("text");
    for (int count = random.Between(1, 6); count > 0; --count)
        ::PostMessage(::GetFocus(), WM_CHAR,
                      kLetters[random.Below(static_cast<int>(std::size(kLetters)) - 1)], 1);
    Pump();
}

void LetGo(CWnd& window, CPoint at) {
    SetKeys(false, false);
    for (const Button& button : {kLeft, kRight, kMiddle}) {
        CPoint screen = at;
        window.ClientToScreen(&screen);
        if (::GetAsyncKeyState(button.key) < 0)
            SystemMouse(screen, button.inputUp);
        Pump();
        if (g_held & button.held) {
            const HWND captured = ::GetCapture();
            const HWND target = IsOurs(captured) ? captured : window.m_hWnd;
            ::ScreenToClient(target, &screen);
            g_held &= ~button.held;
            ::PostMessage(target, button.up, g_held, MAKELPARAM(screen.x, screen.y));
        }
        Pump();
    }
    Pump(true);
}

void RequireFreeMouse(const char* what) {
    const HWND captured = ::GetCapture();
    if (!captured)
        return;
    char name[32] = "";
    ::GetClassNameA(captured, name, sizeof name);
    char text[32] = "";
    ::GetWindowTextA(captured, text, sizeof text);
    throw Broken{std::string(what) + " by " + name + " \"" + text + "\""};
}

}  // namespace monkey
