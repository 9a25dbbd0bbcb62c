// Messages on their way to windows.
#pragma once

#include "stress/monkey/Random.h"

#include <afxwin.h>

namespace monkey {

/// While it lives, the mouse is the monkey's: what the pointer of the screen does comes at any moment and is
/// dropped, and so are the double clicks that the system sees in two fast presses.
class OwnMouse {
public:
    OwnMouse();
    ~OwnMouse();
    OwnMouse(const OwnMouse&) = delete;
    OwnMouse& operator=(const OwnMouse&) = delete;

private:
    HHOOK m_hook;
    UINT m_doubleClickTime;
};

/// Handles what waits in the queue. What comes when there is time for it, paints and timers, is left for when
/// `idle` is set.
void Pump(bool idle = false);

/// Sends a mouse message to a window through the queue, straight to it, or, where this program's windows are
/// in front, as input of the system; buttons and modifiers as they were left by the messages before. The
/// point is in client coordinates.
void SendMouse(Random& random, CWnd& window, CPoint at);
/// Sends a key with modifiers to the window with the focus.
void SendKey(Random& random, UINT key, bool control = false, bool shift = false);
/// Types some letters.
void SendText(Random& random);
/// Releases buttons, modifiers and the capture as a user who takes the hands away: releases go to the window
/// that has the mouse, or to `window`.
void LetGo(CWnd& window, CPoint at);
/// Raises `Broken` with `what` and the window that has captured the mouse, if one has.
void RequireFreeMouse(const char* what);

}  // namespace monkey
