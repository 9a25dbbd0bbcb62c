// What the class library keeps for each thread that has windows.
#pragma once

#include "HandleMap.h"

struct ThreadState {
    CWinThread* thread = nullptr;  ///< the thread's object
    CWnd* creating = nullptr;      ///< object whose window is about to be created
    HHOOK creationHook = nullptr;
    HWND exchanging = nullptr;  ///< window whose UpdateData is at work
    MSG message{};              ///< the message being handled
    int dispatchDepth = 0;      ///< handlers running inside each other
    MSG pumped{};               ///< message of a pump without thread object
    POINT idleCursor{-1, -1};   ///< where the last mouse message was that gave idle work
    bool oleStarted = false;

    TemporaryMap<CWnd> windows;
    TemporaryMap<CMenu> menus;
    TemporaryMap<CGdiObject> graphics;
    TemporaryMap<CDC> contexts;

    /// Ends the temporary objects, unless a handler is running that may hold one.
    void ClearTemporaries();
};

/// The calling thread's state, made at the first call; it ends with the thread.
ThreadState& GetThreadState();
/// The calling thread's state when it has one, else null. Destructors ask here: they also run when the
/// thread's state or the DLL is ending, where none may be made.
ThreadState* FindThreadState();
