// A rectangle of a window that takes mouse and keyboard as if it were a child, without a window.
#pragma once

#include "core/Platform.h"

#include <memory>
#include <vector>

namespace Lumo {

class VirtualHost;

/// A part of a window, its owner, or of another virtual window: for the many small signs, buttons and cells
/// that would be too many windows. The host derives from it. It is moved with what it is in and hidden by its
/// edge; of two that overlap the one made last is on top. The owner's messages reach it by themselves before
/// the owner sees them; only painting is the owner's call: `PaintIn`, from its own paint, so that nothing
/// flickers. Coordinates are pixels from the own upper left corner, unless something else is said. All calls
/// belong to the owner's thread. What an override throws ends up where a message handler's exceptions do.
/// Any override but `OnPaint` may make and destroy virtual windows, its own included.
class TESSEL_API VirtualWindow {
public:
    VirtualWindow() = default;
    /// Takes it out of its owner. Those within it stay objects, but have no place any more.
    virtual ~VirtualWindow();
    VirtualWindow(const VirtualWindow&) = delete;
    VirtualWindow& operator=(const VirtualWindow&) = delete;

    /// Puts it into `owner` at `rect` (client coordinates), shown; out of where it was before. False when
    /// there is no window.
    bool Create(CWnd& owner, const CRect& rect);
    /// Puts it into `parent` at `rect` (that one's coordinates), shown; out of where it was before. False
    /// when that one is nowhere, or is within this one.
    bool CreateIn(VirtualWindow& parent, const CRect& rect);
    /// Takes it, and what is within it, out of the owner, which also happens when the owner's window ends.
    void Destroy();
    /// Paints all virtual windows of `owner` on `dc`, whose (0, 0) is that of the owner's client area. Each
    /// is clipped to its rectangle, and drawn over what it is in.
    static void PaintIn(CWnd& owner, CDC& dc);

    /// The window it is in, null when it is nowhere.
    HWND GetOwner() const;
    /// The virtual window it is in, null when it is right in the owner or nowhere.
    VirtualWindow* GetParent() const { return m_parent; }
    /// Its place in what it is in.
    const CRect& GetRect() const { return m_rect; }
    /// Its place in client coordinates of the owner, as far as what it is in shows it.
    CRect GetOwnerRect() const;
    /// Moves it to `rect`, in the coordinates of what it is in.
    void Move(const CRect& rect);
    /// Shows it, or without `shown` hides it, with all that is within it; a hidden one loses pointer, capture
    /// and keyboard.
    void Show(bool shown);
    /// Whether it, and all that it is in, is shown.
    bool IsVisible() const;
    /// Has the owner paint its place.
    void Invalidate();

    /// Whether the pointer is over it, and over none within it. While one has captured the mouse, only that
    /// one can be.
    bool IsHot() const;
    /// Whether it has captured the mouse.
    bool HasCapture() const;
    /// Whether it has the keyboard.
    bool HasFocus() const;
    /// Gets all messages of the mouse until `ReleaseCapture`; nothing when it is nowhere or hidden.
    void SetCapture();
    /// Ends its capture, if it has one.
    void ReleaseCapture();
    /// Gives it the keyboard, and the owner's window where that does not have it; nothing when it is nowhere
    /// or hidden. It goes when the owner loses the keyboard.
    void SetFocus();

    /// The pointer over it is `cursor`, which the caller keeps; null for that of what it is in.
    void SetCursor(HCURSOR cursor) { m_cursor = cursor; }
    /// Shows `text` beside a pointer that rests over it, or over one within it that has no text of its own;
    /// empty for none.
    void SetToolTip(const CString& text);

protected:
    /// Paints it; the base paints nothing. `dc` has its (0, 0) at the corner and is restored afterwards.
    virtual void OnPaint(CDC& dc);
    /// The pointer is over it now.
    virtual void OnMouseEnter();
    /// The pointer is over it no more.
    virtual void OnMouseLeave();
    /// The pointer has rested at `point` for the time that the system has for it.
    virtual void OnMouseHover(CPoint point);
    /// A `message` of the mouse: a move, a button, a wheel. `flags` has the `MK_` bits, and in the high word
    /// the turn of a wheel or the number of an extra button. `point` may lie outside during a capture. True
    /// when it is dealt with, as the base answers for all but wheels; false passes it on to what this is in,
    /// and in the end to the owner.
    virtual bool OnMouse(UINT message, UINT flags, CPoint point);
    /// A `message` of the keyboard with its `key` or character; `flags` is the high word of its parameter.
    /// True when it is dealt with; false, which the base answers, passes it on as for the mouse.
    virtual bool OnKey(UINT message, UINT key, UINT flags);
    /// It has the mouse captured no more, by its own call or another's.
    virtual void OnCaptureLost();
    /// It has got the keyboard, or has not any more, as `has` says.
    virtual void OnFocus(bool has);

private:
    friend class VirtualHost;

    void Place(std::shared_ptr<VirtualHost> host, VirtualWindow* parent, const CRect& rect);
    void Forget();
    bool IsWithin(const VirtualWindow& other) const;
    CPoint Origin() const;
    void Paint(CDC& dc);

    std::shared_ptr<VirtualHost> m_host;
    VirtualWindow* m_parent = nullptr;
    std::vector<VirtualWindow*> m_children;
    CRect m_rect{0, 0, 0, 0};
    bool m_shown = true;
    HCURSOR m_cursor = nullptr;
    CString m_toolTip;
};

}  // namespace Lumo
