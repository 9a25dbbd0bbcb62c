// Messages and helpers that the class library's own files share.
#pragma once

#include <afxwin.h>

constexpr UINT WM_QUERYAFXWNDPROC = 0x0360;  ///< answered with 1 by every window of the class library
constexpr UINT WM_SIZEPARENT = 0x0361;       ///< to bars: take your strip of BarLayout::rect
constexpr UINT WM_IDLEUPDATECMDUI = 0x0363;  ///< wParam: disable what has no handler

/// What a frame asks its bars with WM_SIZEPARENT.
struct BarLayout {
    HDWP positions;  ///< null: only compute
    RECT rect;       ///< what is left of the client area
    BOOL stretch;
};

/// A WM_NOTIFY on its way through OnCmdMsg.
struct NotifyMessage {
    LRESULT* result;
    NMHDR* header;
};

/// The entry for a message and code whose range holds `id`, searched from a map through its bases.
const AFX_MSGMAP_ENTRY* FindMessageEntry(const AFX_MSGMAP* map, UINT message, UINT code, UINT id);

/// The wait cursor without program object: see CWinApp::DoWaitCursor.
void DoProcessWaitCursor(int code);

/// Moves a bar or pane to `rect` of its parent's client area, at once or with the others.
void PositionWindow(BarLayout& layout, HWND window, const RECT& rect);

/// Around the creation of a window: the next window the thread creates is tied to pWnd.
void AfxHookWindowCreate(CWnd* pWnd);
/// True when the object got its window, be it only for a moment.
BOOL AfxUnhookWindowCreate();
