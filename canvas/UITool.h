// The mouse tools: small objects without a state of their own that turn button and move messages of a canvas
// into edits. The state of the one gesture that can be in progress is shared by all of them.
#pragma once

#include "core/DrawShape.h"
#include "core/Platform.h"

#include <deque>

namespace Lumo {

class CUICanvas;
class CUIObject;
class CUIObjectPoly;

/// Base of all mouse tools. A tool registers itself when it is constructed and leaves the registry when it is
/// destroyed; a canvas finds its tool by shape kind, first registered first. A host puts a tool of its own
/// ahead of the library's by moving it to the front of `m_tools`.
class TESSEL_API CUIToolBase {
public:
    /// Registers the tool at the back of `m_tools` for `kind`.
    explicit CUIToolBase(DrawShape kind);
    /// Takes the tool out of the registry.
    ~CUIToolBase();
    /// Copies every field. A copy is not registered.
    CUIToolBase(const CUIToolBase&) = default;
    CUIToolBase& operator=(const CUIToolBase&) = default;

    // Slot order is part of the contract.
    /// Captures the mouse, stores the press point in `run_down` and `run_last`, shows the cross cursor. In
    /// all handlers `flags` are the MK_ key-state flags and `point` is in client coordinates.
    virtual void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point);
    /// Does nothing.
    virtual void OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point);
    /// Does nothing.
    virtual void OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point);
    /// With exactly one object selected, shows that object's coordinate dialog.
    virtual void OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point);
    /// Does nothing.
    virtual void OnRButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point);

    /// The shape kind, or special tool kind, the tool serves.
    DrawShape GetKind() const { return m_nDrawShape; }

    /// The first registered tool for `kind`, or null when there is none.
    static CUIToolBase* FindTool(DrawShape kind);
    /// A new object for `kind` at `rect` (page units); a line for every kind without a class of its own. The
    /// caller owns it until it is appended to a document. Never null.
    static CUIObject* CreateUIObject(Gdiplus::RectF rect, DrawShape kind);
    /// Inverts a dotted rectangle with the corners `a` and `b` (page units, any order) on the canvas window;
    /// a second call with the same points removes it.
    static void FocusRect(CUICanvas* canvas, CPoint a, CPoint b);
    /// Snaps `pt` to the horizontal, the vertical or the nearest diagonal through `anchor`.
    static void MoveControl(const CPoint& anchor, CPoint& pt);
    /// Clamps `pt` into `limit`; a point on the right or bottom edge stays there.
    static void MoveControl(const CRect& limit, CPoint& pt);

    /// All living tools in order of construction; not owned.
    static std::deque<CUIToolBase*> m_tools;
    /// The current drawing shape: chooses the tool in the draw, poly and running modes.
    static DrawShape run_drawshape;
    /// The grabbed handle, or -1 when there is none; counts the points while a polyline is being drawn.
    static int run_handle;
    /// Where the button went down (page units).
    static CPoint run_down;
    /// The last point of the gesture (page units).
    static CPoint run_last;
    /// The limit of a handle for which `ControlHandle` answers true (page units).
    static CRect run_h_rect;

protected:
    /// True when `canvas` is the current page of its document: the only page that may be edited.
    static bool IsCurrent(CUICanvas* canvas);

    DrawShape m_nDrawShape;  ///< see `GetKind`
};

/// Selects, moves and reshapes objects. The other tools hand it the drag of what they created.
class TESSEL_API CUISelectTool : public CUIToolBase {
public:
    /// What a drag does.
    enum DragMode {
        kNone = 0,        ///< nothing
        kMove = 1,        ///< moves the selected objects
        kHandle = 2,      ///< moves one handle of the selected object
        kRubberBand = 3,  ///< pulls a rectangle
    };

    /// A tool for kind 16, idle.
    CUISelectTool();

    /// Grabs a handle or the body of the one selected object, else selects what is under the pointer, else
    /// starts a rubber band.
    void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Ends the gesture: last displacement or end of the rubber band, capture released.
    void OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Shows the handle cursor while hovering; drags while the mouse is captured.
    void OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Does nothing.
    void OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) override;

    /// A `DragMode` value.
    int m_nDragMode = kNone;

private:
    bool GrabSelected(CUIObject* object);
    void PressOnPage(CUICanvas* canvas, UINT flags);
    void Hover(CUICanvas* canvas, const CPoint& pt);
    void MoveSelection(CUICanvas* canvas, const CPoint& pt, int last);
    void FinishDrag(CUICanvas* canvas, UINT flags, CPoint pt);
    void Constrain(CUIObject* object, UINT flags, CPoint& pt) const;
};

/// Creates an object with a single click.
class TESSEL_API CUIDownTool : public CUIToolBase {
public:
    /// Registers the tool for `kind`.
    explicit CUIDownTool(DrawShape kind);

    /// Creates an object of the current drawing shape at the press point; one that covers no area is
    /// destroyed.
    void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Releases the capture and shows the arrow.
    void OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Back to selecting.
    void OnRButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
};

/// Passes every event to the front selected object's `RelayEvent`, with the client point packed into the last
/// argument (low word x, high word y).
class TESSEL_API CUISymbolTool : public CUIDownTool {
public:
    /// Registers the tool for `kind`.
    explicit CUISymbolTool(DrawShape kind);

    /// Relays WM_LBUTTONDOWN.
    void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Relays WM_LBUTTONUP and shows the arrow.
    void OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Relays WM_MOUSEMOVE.
    void OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Relays WM_LBUTTONDBLCLK.
    void OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Relays WM_RBUTTONDOWN.
    void OnRButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
};

/// Creates rectangles, ellipses, text boxes and lists by dragging out their rectangle.
class TESSEL_API CUIDownUpTool : public CUIToolBase {
public:
    /// Registers the tool for `kind`.
    explicit CUIDownUpTool(DrawShape kind);

    /// Creates, names and selects an empty object; the drag that follows pulls its handle 2.
    void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Removes an object that is too small, then ends the gesture.
    void OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Drags the new object's handle.
    void OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) override;
};

/// Creates lines and polylines point by point: click, click, ... double click; or press, drag, release for a
/// line.
class TESSEL_API CUIMultiDownTool : public CUIToolBase {
public:
    /// Registers the tool for `kind`.
    explicit CUIMultiDownTool(DrawShape kind);

    /// Adds a point, creating the object with the first one.
    void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Takes the release of the first press as a further point when it lies away from the press.
    void OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Moves the free end.
    void OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Ends the figure and goes back to selecting.
    void OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) override;

private:
    static CUIObjectPoly* Figure(CUICanvas* canvas);
    void BeginFigure(CUICanvas* canvas, const CPoint& point);
    void ContinueFigure(CUICanvas* canvas, UINT flags, const CPoint& point, CPoint& pt);
};

/// Opens the in-place editor on the text object under the pointer; anything else goes to the select tool.
class TESSEL_API CUITextTool : public CUIToolBase {
public:
    /// A tool for kind 0xFF01.
    CUITextTool();

    /// Opens or closes the editor.
    void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Releases the capture and shows the arrow.
    void OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) override;
};

/// A tool whose handlers do nothing, for a host's configuration mode.
class TESSEL_API CUIConfigurationTool : public CUIToolBase {
public:
    /// Registers the tool for `kind`.
    explicit CUIConfigurationTool(DrawShape kind);
    /// Does nothing.
    void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Does nothing.
    void OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) override;
};

/// A tool whose handlers do nothing, for a host's run mode.
class TESSEL_API CUIRunningTool : public CUIToolBase {
public:
    /// Registers the tool for `kind`.
    explicit CUIRunningTool(DrawShape kind);
    /// Does nothing.
    void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override;
    /// Does nothing.
    void OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) override;
};

}  // namespace Lumo
