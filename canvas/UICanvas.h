// The canvas: a child window that shows one page of a document and takes the user's input for it.
#pragma once

#include "core/Platform.h"

#include <deque>
#include <map>
#include <vector>

namespace Lumo {

class CUIDocument;
class CUIEdit;
class CUIObject;
class CUIObjectTextEdit;
class CUIToolBase;

/// What the mouse does on a canvas.
enum CanvasMode : int {
    CM_DRAW = 0,      ///< the current drawing shape's tool: drawing and selecting
    CM_POLY = 1,      ///< the same
    CM_TEXT = 2,      ///< the text tool: in-place editing
    CM_PROPERTY = 3,  ///< the property tool, which only a host can register
    CM_RUNNING = 4,   ///< the current drawing shape's tool, while the screen is operated
};

/// Shows a page and passes mouse messages to the tools. The window belongs to the host, which destroys it and
/// deletes the canvas; a canvas that is deleted takes its page out of every document. One page unit is one
/// pixel.
class TESSEL_API CUICanvas : public CWnd {
    DECLARE_DYNAMIC(CUICanvas)

public:
    /// A canvas without a document: it shows nothing but its ground and takes no edits.
    CUICanvas();
    /// A canvas of `document`, which is not owned.
    explicit CUICanvas(CUIDocument* document);
    /// Destroys the window if it still lives and takes the page out of every document.
    ~CUICanvas() override;
    CUICanvas(const CUICanvas&) = delete;
    CUICanvas& operator=(const CUICanvas&) = delete;

    /// Sets the page size in pixels to `size` (0: the screen's) and switches interaction off. Kept:
    /// `bSkipDisplayQuery` makes no difference. Always 1.
    int Init(int bSkipDisplayQuery, CSize& size);
    /// Width of the page in pixels; any number before `Init`.
    int GetWidth() const { return m_nWidth; }
    /// Height of the page in pixels, the same.
    int GetHeight() const { return m_nHeight; }
    /// Switches interaction off and empties the selection without repainting.
    void Clear();

    /// The document, not owned; null when there is none or it is gone.
    CUIDocument* GetDocument() const { return m_pDocument; }
    /// Sets the document; not owned.
    void SetDocument(CUIDocument* document) { m_pDocument = document; }
    /// Whether mouse messages reach the tools: 1 or 0.
    int GetInteractive() const { return m_bInteractive; }
    /// Switches the mouse on (1) or off (0).
    void SetInteractive(int interactive) { m_bInteractive = interactive; }

    /// Client pixels to page units, in place.
    void ClientToDoc(CPoint& point);
    /// The same for a rectangle, which comes back normalised.
    void ClientToDoc(CRect& rect);
    /// The same, through whole pixels.
    void ClientToDoc(Gdiplus::PointF& point);
    /// The same for a rectangle, which comes back normalised.
    void ClientToDoc(Gdiplus::RectF& rect);
    /// Page units to client pixels, in place.
    void DocToClient(CPoint& point);
    /// The same for a rectangle, which comes back normalised.
    void DocToClient(CRect& rect);
    /// The same, through whole units.
    void DocToClient(Gdiplus::PointF& point);
    /// The same for a rectangle, which comes back normalised.
    void DocToClient(Gdiplus::RectF& rect);

    /// Stores the scale factor of `step` (0 to 8: 0.25 to 4) and repaints; an unknown step changes nothing.
    /// Painting does not apply the factor.
    void OnCanvasScale(UINT step);

    /// Draws the page and the selection's handles on a black ground of `cx` by `cy` pixels.
    void Draw(Gdiplus::Graphics* g, int cx, int cy);
    /// A diagnostic picture of curves and an icon on `hdc`; reached by no message.
    void OnPaintTest(HDC hdc);

    /// The document's update call; `sender` is not used; `hint` 0 whole window, 1 the object `data`, 2 the
    /// selection, 3 the objects of the list `data`, 4 those of them that are embedded objects, 5 whole window
    /// and empty selection.
    void UpdateCanvas(CWnd* sender, long hint, void* data);

    /// Union of the selected objects' rectangles and the origin; all zero when nothing is selected.
    CRect GetSelectionRect();
    /// Rectangle of the object selected last; all zero when nothing is selected.
    CRect GetSelectionLastRect();
    /// True when both corners of `inner` lie in `outer`, right and bottom edges excluded.
    BOOL IsInRect(CRect outer, CRect inner);

    /// Adds `obj` to the front of the selection; with `add` 0 the selection is emptied first. Null just
    /// empties.
    void Select(CUIObject* obj, int add);
    /// Takes `obj` out of the selection. The room of its handles is repainted, too.
    void Deselect(CUIObject* obj);
    /// Whether `obj` is selected.
    BOOL IsSelected(const CUIObject* obj);
    /// Empties the selection unless `add` is set; selects nothing, whatever `rect` and `whole` are.
    void SelectWithinRect(CRect rect, int add, int whole);

    /// Opens the in-place editor over `obj`, closing one that is open; null closes it without saving.
    void EditText(CUIObjectTextEdit* obj);

    /// Registers keyboard and mouse for raw input sent to `target`, in the background too. 0 on failure,
    /// which is also shown.
    int RegisterRawInput(HWND target);
    /// Removes the mouse registration; the keyboard stays. 0 on failure.
    int UnRegisterRawInput();

    /// Draw mode. Like the other mode commands it stores the mode and does nothing else.
    void OnModeDraw() { m_nMode = CM_DRAW; }
    /// Poly mode.
    void OnModePoly() { m_nMode = CM_POLY; }
    /// Text mode.
    void OnModeText() { m_nMode = CM_TEXT; }
    /// Property mode.
    void OnModeProperty() { m_nMode = CM_PROPERTY; }
    /// Run mode.
    void OnModeRunning() { m_nMode = CM_RUNNING; }

    /// Puts the selected objects on the clipboard: their archive records, newest selection first, and for a
    /// single object also its caption as text. What fails is logged, whatever it is, and leaves the clipboard
    /// as it was.
    void OnEditObjectCopy();
    /// Copies, then deletes, also when copying failed.
    void OnEditObjectCut();
    /// Hides the first object of the current page when anything is selected. The selection stays.
    void OnEditObjectDelete();
    /// Empties the selection and marks the document modified; adds nothing.
    void OnEditObjectPaste();

    /// Moves the selected objects to the left edge of the reference. The reference of every alignment is the
    /// object selected last; one that covers no area aligns nothing.
    void OnToolsAlignLeft();
    /// Moves them to the reference's right edge.
    void OnToolsAlignRight();
    /// Moves them to the reference's top edge.
    void OnToolsAlignTop();
    /// Moves them to the reference's bottom edge.
    void OnToolsAlignBottom();
    /// Moves sideways onto the reference's vertical axis.
    void OnToolsAlignVCenter();
    /// Moves up or down onto the reference's horizontal axis.
    void OnToolsAlignHCenter();
    /// Moves onto the reference's centre.
    void OnToolsAlignCenter();
    /// Turns the selection by -90 degrees: one object about its own centre, several about the centre of the
    /// rectangle from the origin to their far corner.
    void OnToolsRotateLeft();
    /// The same by 90 degrees (clockwise).
    void OnToolsRotateRight();
    /// Puts the object selected last below all others of the page.
    void OnToolsPositionBack();
    /// Moves it one place down.
    void OnToolsPositionBackward();
    /// Moves it one place up.
    void OnToolsPositionForward();
    /// Puts it on top of all others.
    void OnToolsPositionFront();
    /// Puts the selected objects into a new group whose rectangle reaches from the origin to their far
    /// corner. Nothing happens when a selected group is as deep as groups may be.
    void OnToolsMakeGroup();
    /// Dissolves the group selected last; its children stay selected.
    void OnToolsMakeUngroup();

    /// Asks for an embedded object and puts it on the page.
    void OnInsertOleObject();

    /// Window procedure of the class "Tessel Canvas" for the window `hwnd`.
    static LRESULT CALLBACK WindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);

    /// The private clipboard format "Tessel GUI Object ".
    static CLIPFORMAT m_cfObject;

    // Slot order is part of the contract.
    /// The base's: the canvas routes no commands, not even those of its own menu.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    /// Swallows Shift+F2 and the context menu message.
    BOOL PreTranslateMessage(MSG* msg) override;
    /// Repaints the rectangle of `obj` with its outline and, when it is selected, its handles.
    virtual void InvalidateObject(CUIObject* obj);
    /// Moves handle `how` (8: the whole object) of every selected object by `to` - `from` (page units). The
    /// last argument is not used.
    virtual void MoveTo(const int& how, CPoint& from, CPoint& to, int);
    /// Prepares `dc` so that logical units are page units; `info` is null on the screen.
    virtual void OnPrepareDC(CDC* dc, CPrintInfo* info);

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnPaint();
    afx_msg void OnContextMenu(CWnd* wnd, CPoint point);
    afx_msg int OnCreate(LPCREATESTRUCT create);
    afx_msg void OnSetFocus(CWnd* old);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnLButtonUp(UINT flags, CPoint point);
    afx_msg void OnLButtonDblClk(UINT flags, CPoint point);
    afx_msg void OnMouseMove(UINT flags, CPoint point);
    afx_msg void OnRButtonDown(UINT flags, CPoint point);
    afx_msg BOOL OnEraseBkgnd(CDC* dc);
    afx_msg void OnNcDestroy();

    int m_nReserved1[2] = {};  ///< for hosts compiled against the layout
    int m_nWidth;              ///< see `GetWidth`. Kept: not set before `Init`
    int m_nHeight;             ///< see `GetHeight`, the same
    int m_nReserved2[6] = {};  ///< for hosts compiled against the layout

public:
    /// The selected objects, the one selected last in front; not owned, each at most once.
    std::deque<CUIObject*> m_selection;
    /// A `CanvasMode`.
    int m_nMode = CM_DRAW;
    /// Mouse messages reach the tools only while this is not 0.
    int m_bInteractive = 1;
    /// The popup menu for the host to show and route; the canvas never opens it.
    CMenu m_contextMenu;
    /// The open in-place editor, or null; it deletes itself when its window goes.
    CUIEdit* m_pEdit = nullptr;

protected:
    CUIDocument* m_pDocument = nullptr;  ///< see `GetDocument`
    float m_fScaleX = 0.0f;              ///< factor of `OnCanvasScale`, 0 until it is called; not used
    float m_fScaleY = 0.0f;              ///< the same, vertically
    std::map<int, void*> m_map;          ///< empty; for hosts compiled against the layout

private:
    friend class CUIDocument;
    friend class Destruction;
    class RepaintBatch;

    CUIToolBase* FindModeTool() const;
    void BuildContextMenu();
    void Repaint(const CUIObject& object, bool tracked);
    void InvalidateObjects(const std::deque<CUIObject*>& objects);
    template <class Shift>
    void AlignSelection(Shift shift);
    void RotateSelection(float angle);
    template <class Restack>
    void RestackFront(Restack restack);
    void CopySelection();

    static std::vector<CUICanvas*>& Canvases();

    RepaintBatch* m_pBatch = nullptr;  // the one that collects, or null
    size_t m_nFound = 0;               // where `IsSelected` found an object last
};

}  // namespace Lumo
