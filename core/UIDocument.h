// The document: the pages of a screen and the objects on each page.
#pragma once

#include "core/DrawShape.h"
#include "core/Platform.h"

#include <deque>
#include <map>
#include <vector>

namespace Lumo {

class CUICanvas;
class CUIObject;

/// Objects of one page in drawing order: the first is drawn first. May hold null entries.
using CUIObjectDeque = std::deque<CUIObject*>;
/// Pages by their canvas; the ascending order of the pointers is the order of the pages.
using CUIPageMap = std::map<CUICanvas*, CUIObjectDeque*>;

/// Holds pages of objects. Owns the object lists and the objects in them, not the canvases. All calls come
/// from the thread that owns the canvas windows. End a document with `Release`, which destroys its objects;
/// the destructor alone does not.
class TESSEL_API CUIDocument {
public:
    /// No pages, not modified.
    CUIDocument();
    /// Shares the object lists of `other`: the pages of both documents are the same lists.
    CUIDocument(const CUIDocument& other);
    /// The same; the lists that this document alone held are freed, the objects in them are not.
    CUIDocument& operator=(const CUIDocument& other);

    // Slot order is part of the contract.
    /// Clears the document and reads `path` through `Serialize`. 1 on success, 0 on failure; a file that
    /// cannot be opened leaves the document as it was.
    virtual int Load(CString& path);
    /// Writes the document to `path` through `Serialize`, whole or not at all. 1 on success, 0 on failure; an
    /// older file is as it was then. See `WholeFile`.
    virtual int Save(CString& path);
    /// Frees the lists but not the objects in them; see `Release`.
    virtual ~CUIDocument();
    /// Destroys all objects, then the document itself.
    virtual void Release();
    /// Writes or reads every object of every page in order, and nothing else.
    virtual void Serialize(CArchive& ar);

    /// Asks for a file and saves to it.
    void SaveDocument();
    /// Asks for a file and loads it.
    void LoadDocument();

    /// Creates a canvas window as a child of `parent` and makes it the current page. `style` is the window
    /// style, `rect` is in client coordinates of the parent; `name` is not used. 1 on success, else 0. The
    /// host destroys the window and deletes the canvas.
    int CreateCanvas(DWORD style, CString& name, CRect& rect, HWND parent);
    /// Adds an empty page for `canvas` and makes it current; a page it already has is emptied.
    void AppendCanvas(CUICanvas* canvas);
    /// Removes the page of `canvas` and destroys its objects.
    void DeleteCanvas(CUICanvas* canvas);
    /// Removes all pages and destroys their objects; the document then counts as not modified.
    void ClearCanvas();
    /// As `DeleteCanvas`, for a canvas that is not null.
    void ClearCanvasObject(CUICanvas* canvas);
    /// The same for the current page.
    void ClearCanvasObject();
    /// The page list itself.
    CUIPageMap& GetCanvasList() { return m_pages; }
    /// The objects of that page, or null when the canvas has none. Owned by the document.
    CUIObjectDeque* GetCanvasObjectList(CUICanvas* canvas);
    /// The objects of the current page, or null.
    CUIObjectDeque* GetCanvasObjectList();

    /// The current page's canvas, or null.
    CUICanvas* GetCurrentCanvas();
    /// Makes `canvas` current and returns it. Null gives null; a canvas without a page gives the old one;
    /// both change nothing.
    CUICanvas* SetCurrentCanvas(CUICanvas* canvas);
    /// The first page's canvas, or null.
    CUICanvas* GetFirstCanvas();
    /// The last page's canvas, which also becomes current; null when there are no pages.
    CUICanvas* GetLastCanvas();
    /// The page after the current one, the current one itself at the end; null without a current page.
    CUICanvas* GetNextCanvas();
    /// The page before the current one, the current one itself at the beginning; null without a current page.
    CUICanvas* GetPrevCanvas();
    /// Makes the first page current and returns it, or null.
    CUICanvas* MoveFirstCanvas();
    /// Makes the last page current and returns it, or null.
    CUICanvas* MoveLastCanvas();
    /// Makes the next page current and returns it, or null.
    CUICanvas* MoveNextCanvas();
    /// Makes the previous page current and returns it, or null.
    CUICanvas* MovePrevCanvas();

    /// Makes a rectangle, ellipse, text, symbol or list object and appends it to the current page; null for
    /// every other kind.
    CUIObject* CreateObject(DrawShape kind, CRect rect);
    /// Puts `object` on top of the page of `canvas` (null: the current page); the document owns it from then
    /// on. Sets no back pointers.
    void AppendObject(CUIObject* object, CUICanvas* canvas);
    /// Destroys the first object of the current page, whatever object is passed (null: nothing).
    void DeleteObject(CUIObject* object);
    /// With `destroy` as `DeleteObject`; without, hides the first object of the current page by its removed
    /// mark.
    void RemoveObject(CUIObject* object, int destroy);
    /// Destroys exactly this object, a group with its children, and takes it out of every page and selection
    /// first. Null does nothing.
    static void DestroyObject(CUIObject* object);
    /// Destroys the objects of the list `objects` and empties it. Null does nothing.
    void ClearObject(CUIObjectDeque* objects);

    /// The first object of the page of `canvas` (null: the current page) that is called `name`, ignoring
    /// case; or null.
    CUIObject* FindObject(CString& name, CUICanvas* canvas);
    /// The topmost visible object of the current page whose body contains `pt` (page units), or null.
    CUIObject* ObjectAt(Gdiplus::PointF& pt);
    /// The same for an integer point `pt`.
    CUIObject* ObjectAt(CPoint& pt);
    /// Number of objects of that kind on the current page.
    int GetShapeCount(DrawShape kind);
    /// 1 when an object of the current page is called `name`, ignoring case; else 0.
    int CheckShapeName(CString& name);
    /// Gives `object` a name that no other object of the current page has: its kind's name and a number.
    void SetShapeName(CUIObject* object);

    /// Draws the visible objects of the page of `canvas` in list order.
    void DrawCanvas(Gdiplus::Graphics* g, CUICanvas* canvas);
    /// The same for the current page.
    void DrawCanvas(Gdiplus::Graphics* g);
    /// Draws the current page, with `focus` even when it is marked removed; a null `focus` draws nothing.
    void DrawObject(Gdiplus::Graphics* g, CUIObject* focus);
    /// Repaints `canvas`: `hint` 0 the whole window; 1 the object `data`; 2 the selection of every canvas of
    /// the auxiliary list. With null as `canvas` and `hint` 3 to 5 it passes both to `UpdateCanvas` of every
    /// page. All else does nothing.
    void UpdateAllCanvas(CUICanvas* canvas, long hint, void* data);

    /// 1 after pages or objects came, went or were restacked. Clearing and loading set it to 0. Saving leaves
    /// it as it is, and moves and changes of style do not set it: that is for the host.
    int GetModifiedFlag() const { return m_bModified; }
    /// Sets or clears the modified flag.
    void SetModifiedFlag(int modified) { m_bModified = modified; }

protected:
    /// Walked by `UpdateAllCanvas` with hint 2; nothing in the library fills it.
    std::deque<CUICanvas*> m_auxiliary;
    CUIPageMap m_pages;               ///< the pages; the lists and their objects are owned
    ATOM m_atomCanvas = 0;            ///< the class "Tessel Canvas"; 0 before the first `CreateCanvas`
    int m_bModified = 0;              ///< see `GetModifiedFlag`
    CUICanvas* m_pCurrent = nullptr;  ///< the current page's canvas, or null

private:
    friend class CUICanvas;
    friend class Destruction;

    static std::vector<CUIDocument*>& Documents();
    static void ForgetCanvas(CUICanvas* canvas);

    bool RegisterCanvasClass();
    void LeaveObjects();
    void FreeLists();
    bool HasList(const CUIObjectDeque* objects) const;
    void DropPage(CUICanvas* canvas);
    CUIPageMap::iterator CurrentPage();
    template <class Action>
    void ActOnFirstObject(CUIObject* object, Action action);
};

}  // namespace Lumo
