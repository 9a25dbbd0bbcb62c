// Studio's canvas: gestures that can be cancelled, no stuck capture, a selection band that survives a
// repaint, scroll bars where the page is larger than its window.
#pragma once

#include "canvas/UICanvas.h"
#include "core/UIDocument.h"
#include "studio/editing/Gesture.h"
#include "studio/editing/PageBitmap.h"

#include <memory>
#include <unordered_set>

namespace Studio {

class EmbeddedObject;
class History;
class StudioCanvas;
class StudioDocument;

/// What a canvas tells its host.
class CanvasListener {
public:
    virtual ~CanvasListener() = default;
    /// Selection, drawing tool, mode, the selected object or the modified flag may have changed.
    virtual void OnCanvasState(StudioCanvas& canvas) = 0;
    /// The pointer is at `at` (page units), or has left (null).
    virtual void OnCanvasPointer(StudioCanvas& canvas, const CPoint* at) = 0;
    /// The right button asks for the menu at `screen`.
    virtual void OnCanvasMenu(StudioCanvas& canvas, CPoint screen) = 0;
    /// The picture tool wants a picture at `place` (page units; without a size: about its corner).
    virtual void OnCanvasPicture(StudioCanvas&, const Gdiplus::RectF&) {}
    /// An embedded object was double-clicked: it is to be opened.
    virtual void OnCanvasEmbedded(StudioCanvas&, EmbeddedObject&) {}
};

/// Operates a page instead of editing it.
class PageOperator {
public:
    virtual ~PageOperator() = default;
    /// Paints the page's window; has to validate it.
    virtual void PaintPage(StudioCanvas& page) = 0;
    /// The wheel was turned by `turn` over a client point. False when nothing there answers it.
    virtual bool Wheel(StudioCanvas& page, UINT flags, short turn, CPoint at) = 0;
    /// The pointer has left the window, or the mouse was taken away.
    virtual void PointerLeft(StudioCanvas& page) = 0;
    /// The cursor over a client point.
    virtual HCURSOR CursorAt(StudioCanvas& page, CPoint at) = 0;
};

/// A page window. Made hidden by the document, shown by the frame.
class StudioCanvas : public Lumo::CUICanvas {
public:
    /// Neither document nor listener is owned; both outlive the canvas.
    StudioCanvas(StudioDocument& document, CanvasListener& listener);
    ~StudioCanvas() override;

    /// Makes the hidden window as a child of `parent`. The current drawing tool stays. False when that fails.
    bool CreatePage(CWnd& parent);

    Lumo::CUIDocument& Document() const { return *m_pDocument; }
    /// The document's undo history.
    History& Edits() const { return m_history; }
    /// This page's objects in drawing order; null before the page belongs to the document.
    Lumo::CUIObjectDeque* Objects() const {
        return m_pDocument->GetCanvasObjectList(const_cast<StudioCanvas*>(this));
    }

    /// While there is an operator (not owned; null to end) it paints the page, and the mouse edits nothing.
    void SetOperator(PageOperator* pageOperator);

    /// The page's point (page units) at the corner of the window.
    CPoint ScrollOrigin() const { return m_origin; }
    /// Shows another part of the page, as far as there is something: the page's corner and everything that
    /// stands on it can be reached. Text that is being typed is stored first.
    void ScrollTo(CPoint origin);
    /// Turns the view by the wheel's `turn`, sideways with Shift.
    void ScrollByWheel(UINT flags, short turn);
    void OnPrepareDC(CDC* dc, CPrintInfo* info) override;

    /// Starts a gesture with the mouse captured; one that is going on is finished first.
    void Begin(std::unique_ptr<Gesture> gesture);
    /// The gesture that is going on, or null.
    Gesture* CurrentGesture() const { return m_gesture.get(); }
    /// Feeds a button or move to the gesture that is going on.
    void FeedPress(CPoint at, UINT flags);
    void FeedDoubleClick(CPoint at, UINT flags);
    void FeedRelease(CPoint at, UINT flags);
    /// Ends the gesture with what is done, and an open editor with its text: to be called before any command.
    void FinishEditing();
    /// Undoes the gesture that is going on; false when there was none.
    bool CancelGesture();

    /// Opens the in-place editor over a text object.
    void BeginTextEdit(Lumo::CUIObjectTextEdit& object);
    /// Stores the text of an open editor and closes it.
    void EndTextEdit();

    /// Sets the back pointers of an object that comes to this page, and those of its children.
    void Adopt(Lumo::CUIObject& object);
    /// Puts an object on this page, named, with its back pointers set, and selects it alone.
    void AddObject(Lumo::CUIObject* object);
    /// As the library's; a selection that it ends is repainted at once, however large it is.
    void Select(Lumo::CUIObject* object, int add);
    /// Selects exactly these objects; the last of them counts as selected last.
    void SelectOnly(const Lumo::CUIObjectDeque& objects);

    /// Objects are about to leave the page: they are deselected, and an editor open on one is closed unsaved.
    void Forget(const std::unordered_set<Lumo::CUIObject*>& objects);

    /// Repaints one object with everything it paints.
    void InvalidateObject(Lumo::CUIObject* object) override;
    /// Repaints several objects; many of them by one rectangle around all.
    void InvalidateAll(const Lumo::CUIObjectDeque& objects);
    /// Repaints a rectangle in page units.
    void InvalidatePage(const Gdiplus::RectF& rect);

    /// While the selection is dragged (`lift`), of many objects only the outlines are painted: drawing them
    /// all at every step would take seconds.
    void LiftSelection(bool lift);

    /// Draws the selection band from `from` to `to` instead of the one that is there.
    void ShowBand(CPoint from, CPoint to);
    void HideBand();

    /// Asks the host for a picture, once the message that is being handled is done with.
    void RequestPicture(const Gdiplus::RectF& place);
    /// Has the host open an embedded object.
    void OpenEmbedded(EmbeddedObject& object) { m_listener.OnCanvasEmbedded(*this, object); }
    /// Tells the host that something may have changed.
    void NotifyState();

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg void OnRButtonUp(UINT flags, CPoint point);
    afx_msg void OnCaptureChanged(CWnd* window);
    afx_msg void OnMouseLeave();
    afx_msg void OnShowWindow(BOOL show, UINT status);
    afx_msg BOOL OnMouseWheel(UINT flags, short turn, CPoint screen);
    afx_msg BOOL OnSetCursor(CWnd* window, UINT hit, UINT message);
    afx_msg HBRUSH OnCtlColor(CDC* dc, CWnd* control, UINT type);
    afx_msg LRESULT OnParentNotify(WPARAM event, LPARAM window);
    afx_msg LRESULT OnPictureRequested(WPARAM, LPARAM);
    afx_msg void OnSize(UINT type, int cx, int cy);
    afx_msg void OnHScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnVScroll(UINT code, UINT position, CScrollBar* bar);
    afx_msg void OnTimer(UINT_PTR timer);
    afx_msg LRESULT OnBarsRequested(WPARAM, LPARAM);

private:
    CRect View() const;
    CRect ScrollArea(const CRect& view) const;
    void MeasureContents();
    void UpdateScrollBars();
    int ScrolledBy(int bar, UINT code, int now);
    void FollowPointer(CPoint at);
    void PaintGround(PageBitmap& picture, const CRect& part) const;
    void PaintObjects(const CRect& part);
    void PaintLifted(const CRect& part);
    void FrameSelection();
    void EndGesture();
    void KeepTypedText(Lumo::CUIObject& object, HWND editor);
    void NameUniquely(Lumo::CUIObject& object);
    void DropCapture();
    void SelectForMenu(CPoint at);
    void TrackPointer(CPoint at);

    History& m_history;
    CanvasListener& m_listener;
    std::unique_ptr<Gesture> m_gesture;
    Gdiplus::RectF m_picturePlace;
    bool m_swallowRightUp = false;
    bool m_trackingLeave = false;
    PageOperator* m_operator = nullptr;
    CPoint m_origin;
    CPoint m_followed;  // client point that a gesture left the window at
    CRect m_contents;   // around the objects, as they were measured last
    bool m_barsRequested = false;
    bool m_updatingBars = false;
    PageBitmap m_picture;
    std::unordered_set<Lumo::CUIObject*> m_lifted;
    PageBitmap m_rest;  // what `m_restArea` shows without what is lifted
    CRect m_restArea;
    bool m_band = false;
    CPoint m_bandFrom;
    CPoint m_bandTo;
    Lumo::CUIObject* m_edited = nullptr;
    CString m_textBefore;
    CBrush m_editGround;
};

}  // namespace Studio
