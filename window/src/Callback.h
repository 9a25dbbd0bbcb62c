// Calls into a host that the system makes past every window procedure, whose guard would end an exception.
#pragma once

#include "core/Platform.h"

#include <new>

namespace Lumo {

/// Passes an exception to where a message handler's exceptions end, and deletes it.
inline void ReportException(CException* exception, HWND window, UINT message, WPARAM wParam) {
    MSG current = {};
    current.hwnd = window;
    current.message = message;
    current.wParam = wParam;
    if (CWinThread* thread = AfxGetThread())
        thread->ProcessWndProcException(exception, &current);
    exception->Delete();
}

/// Calls `call`; what it throws is reported as if it came from the handler of the message.
template <class Call>
void CallGuarded(Call call, HWND window, UINT message, WPARAM wParam) {
    try {
        call();
    } catch (CException* exception) {
        ReportException(exception, window, message, wParam);
    } catch (const std::bad_alloc&) {
        ReportException(new CMemoryException, window, message, wParam);
    }
}

}  // namespace Lumo
