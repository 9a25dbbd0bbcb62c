#include "studio/editing/TextKeys.h"

#include <iterator>

namespace Studio {

namespace {

bool IsDown(int key) {
    return ::GetKeyState(key) < 0;
}

bool IsEdit(HWND window) {
    WCHAR name[8] = L"";
    ::GetClassName(window, name, static_cast<int>(std::size(name)));
    return ::lstrcmpi(name, L"Edit") == 0;
}

bool IsFrameKey(WPARAM key) {
    return IsDown(VK_CONTROL) ? key == 'S' || key == 'O' || key == 'N' : key == VK_F5;
}

}  // namespace

bool TakeTextKey(MSG& message, CFrameWnd& frame) {
    if (message.message != WM_KEYDOWN || IsDown(VK_MENU) || !IsEdit(message.hwnd) ||
        !::IsChild(frame.m_hWnd, message.hwnd))
        return false;
    if (message.wParam == 'A' && IsDown(VK_CONTROL) && !IsDown(VK_SHIFT)) {
        ::SendMessage(message.hwnd, EM_SETSEL, 0, -1);
        return true;
    }
    return IsFrameKey(message.wParam) && frame.PreTranslateMessage(&message);
}

}  // namespace Studio
