// What the window tests share.
#pragma once

#include <afxwin.h>

/// Handles what is in the queue, the way a program's pump does.
inline void PumpQueue() {
    MSG next;
    while (::PeekMessage(&next, nullptr, 0, 0, PM_NOREMOVE)) {
        if (!AfxPumpMessage())
            break;
    }
}

/// An overlapped window of 300 by 200 that is not shown.
template <class Window>
BOOL CreateHidden(Window& window, LPVOID parameter = nullptr) {
    return window.CreateEx(0, AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW)), _T("hidden"),
                           WS_OVERLAPPEDWINDOW, 0, 0, 300, 200, nullptr, nullptr, parameter);
}
