// Callback classes for run mode that turn the mouse messages of a window into the notifications of a drag.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Where a handler stands in a drag.
enum DragState : int {
    DRAG_IDLE = 0,      ///< no drag
    DRAG_STARTING = 1,  ///< while `OnDragEnter` runs
    DRAG_DRAGGING = 2,  ///< every move is a part of the drag
    DRAG_ENDED = 3,     ///< the button was released
};

/// The mouse and key events of one window, and the three notifications of a drag. The host calls the handlers
/// with the messages of its window: `wnd` is that window, `message` the message number, `flags` the MK_
/// key-state flags, `packed` the client point with x in the low and y in the high 16 bits, both unsigned.
/// `OnKeyDown` gets the key data instead. Every handler is empty here.
class TESSEL_API CUINotifyBase {
public:
    // Slot order is part of the contract.
    /// For derived classes: a press of the left button.
    virtual void OnLButtonDown(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: a release of the left button.
    virtual void OnLButtonUp(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: a double click of the left button.
    virtual void OnLButtonDblClk(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: a press of the right button.
    virtual void OnRButtonDown(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: a release of the right button.
    virtual void OnRButtonUp(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: a double click of the right button.
    virtual void OnRButtonDblClk(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: a press of the middle button.
    virtual void OnMButtonDown(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: a release of the middle button.
    virtual void OnMButtonUp(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: a double click of the middle button.
    virtual void OnMButtonDblClk(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: a move.
    virtual void OnMouseMove(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// For derived classes: the wheel.
    virtual void OnMouseWheel(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
    /// A drag starts at `point`.
    virtual void OnDragEnter(CWnd* wnd, UINT flags, const CPoint& point);
    /// A drag goes on; `point` (client) is where the mouse is.
    virtual void OnDrag(CWnd* wnd, UINT flags, const CPoint& point);
    /// A drag ends at `point`.
    virtual void OnDragLeave(CWnd* wnd, UINT flags, const CPoint& point);
    /// For derived classes: a key.
    virtual void OnKeyDown(CWnd* wnd, UINT message, UINT flags, LPARAM packed);
};

/// Tells drags by the messages' points: `OnDragEnter` gets the press point, `OnDrag` and `OnDragLeave` the
/// message's, all in client coordinates. The host derives and overrides what it needs.
///
/// A handler serves one window at a time. Call `OnLButtonDown` of this class before the first move: only it
/// puts the drag state into a new handler.
class TESSEL_API CUINotifyHandler : public CUINotifyBase {
public:
    /// All points at the origin. Kept: the drag state is not set before the first press.
    CUINotifyHandler();
    /// Copies every field; so does the assignment.
    CUINotifyHandler(const CUINotifyHandler&) = default;
    CUINotifyHandler& operator=(const CUINotifyHandler&) = default;

    /// Remembers the press; no drag is in progress then.
    void OnLButtonDown(CWnd* wnd, UINT message, UINT flags, LPARAM packed) override;
    /// Ends a drag, unless the release is within 2 pixels of the press: then the drag stays open.
    void OnLButtonUp(CWnd* wnd, UINT message, UINT flags, LPARAM packed) override;
    /// Starts a drag when MK_LBUTTON is set and the point has left the press point; continues one.
    void OnMouseMove(CWnd* wnd, UINT message, UINT flags, LPARAM packed) override;

protected:
    CPoint m_ptPress;    ///< client point of the last press
    CPoint m_ptLast;     ///< client point of the last event
    CPoint m_ptCursor;   ///< screen point of the last press or move
    int m_nReserved[2];  ///< not set; for hosts compiled against the layout
    int m_nDragState;    ///< a `DragState`; not set before the first press
};

/// The same notifications, told by the cursor on the screen and the physical button, whatever the messages
/// say. `OnDragEnter` and `OnDragLeave` get screen points, `OnDrag` the message's client point.
///
/// The current position is read when the button is released: a drag starts with the first move after a press
/// that finds it apart from the previous one. Call `OnLButtonDown` of this class before the first move.
class TESSEL_API CUINotifyHandlerEx : public CUINotifyBase {
public:
    /// Both positions at the origin. Kept: marker and drag state are not set before the first press.
    CUINotifyHandlerEx();
    /// Copies every field; so does the assignment.
    CUINotifyHandlerEx(const CUINotifyHandlerEx&) = default;
    CUINotifyHandlerEx& operator=(const CUINotifyHandlerEx&) = default;

    /// The previous position becomes the current one; no drag is in progress then.
    void OnLButtonDown(CWnd* wnd, UINT message, UINT flags, LPARAM packed) override;
    /// Ends a drag; both positions become the cursor's.
    void OnLButtonUp(CWnd* wnd, UINT message, UINT flags, LPARAM packed) override;
    /// Starts a drag when the left button is down and the positions differ; continues one.
    void OnMouseMove(CWnd* wnd, UINT message, UINT flags, LPARAM packed) override;

protected:
    CPoint m_ptCurrent;   ///< screen position read at the last release
    CPoint m_ptPrevious;  ///< screen position read at the last move or release
    int m_nMarker;        ///< -1 after every press and release; not set before
    int m_nReserved;      ///< not set; for hosts compiled against the layout
    int m_nDragState;     ///< a `DragState`; not set before the first press
};

}  // namespace Lumo
