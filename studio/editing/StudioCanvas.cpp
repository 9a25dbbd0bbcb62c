#include "studio/editing/StudioCanvas.h"

#include "behaviour/UIObjectList.h"
#include "canvas/UITool.h"
#include "core/Geometry.h"
#include "studio/document/StudioDocument.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/PageTool.h"

#include <algorithm>
#include <utility>

namespace Studio {

using Gdiplus::RectF;
using Lumo::CUICanvas;
using Lumo::CUIObject;
using Lumo::CUIToolBase;

namespace {

constexpr UINT kPictureRequested = WM_APP + 1;
constexpr UINT kBarsRequested = WM_APP + 2;

bool HasNamedChild(CUIObject* object, const CString& name) {
    // The kind spares nearly every object of a large page the cast.
    if (!object || object->GetDrawShape() != Lumo::DS_GROUP)
        return false;
    const auto& children = static_cast<Lumo::CUIObjectList*>(object)->GetChildren();
    return std::any_of(children.begin(), children.end(), [&](CUIObject* child) {
        const CString& other = child->GetShapeName();
        // Most names differ in length, which spares them the comparison without case.
        return (other.GetLength() == name.GetLength() && other.CompareNoCase(name) == 0) ||
               HasNamedChild(child, name);
    });
}

}  // namespace

BEGIN_MESSAGE_MAP(StudioCanvas, CUICanvas)
    ON_WM_PAINT()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_RBUTTONDOWN()
    ON_WM_RBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_MOUSELEAVE()
    ON_WM_SHOWWINDOW()
    ON_WM_MOUSEWHEEL()
    ON_WM_SETCURSOR()
    ON_WM_CTLCOLOR()
    ON_WM_SIZE()
    ON_WM_HSCROLL()
    ON_WM_VSCROLL()
    ON_WM_TIMER()
    ON_MESSAGE(kPictureRequested, &StudioCanvas::OnPictureRequested)
    ON_MESSAGE(kBarsRequested, &StudioCanvas::OnBarsRequested)
    ON_MESSAGE(WM_PARENTNOTIFY, &StudioCanvas::OnParentNotify)
END_MESSAGE_MAP()

StudioCanvas::StudioCanvas(StudioDocument& document, CanvasListener& listener)
    : CUICanvas(&document), m_history(document.Edits()), m_listener(listener) {}

StudioCanvas::~StudioCanvas() {
    m_gesture.reset();
    if (m_hWnd)
        DestroyWindow();
}

bool StudioCanvas::CreatePage(CWnd& parent) {
    // A canvas that is created sets the drawing tool to the line.
    const Lumo::DrawShape tool = CUIToolBase::run_drawshape;
    const LPCWSTR windowClass =
        AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    const BOOL made = CreateEx(0, windowClass, L"Canvas", WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
                               CRect(0, 0, 0, 0), &parent, 0);
    CUIToolBase::run_drawshape = tool;
    return made != FALSE;
}

void StudioCanvas::SetOperator(PageOperator* pageOperator) {
    m_operator = pageOperator;
    UpdateScrollBars();
}

void StudioCanvas::NotifyState() {
    m_listener.OnCanvasState(*this);
    // Once for a row of changes, and not while something is dragged.
    if (!m_barsRequested && !m_gesture && m_hWnd)
        m_barsRequested = PostMessage(kBarsRequested) != FALSE;
}

void StudioCanvas::Begin(std::unique_ptr<Gesture> gesture) {
    EndGesture();
    m_gesture = std::move(gesture);
    SetCapture();
}

void StudioCanvas::FeedPress(CPoint at, UINT flags) {
    if (!m_gesture)
        return;
    SetCapture();
    if (m_gesture->Press(at, flags))
        DropCapture();
}

void StudioCanvas::FeedDoubleClick(CPoint at, UINT flags) {
    if (m_gesture && m_gesture->DoubleClick(at, flags))
        DropCapture();
}

void StudioCanvas::FeedRelease(CPoint at, UINT flags) {
    if (!m_gesture)
        return;
    if (m_gesture->Release(at, flags))
        DropCapture();
    else if (m_gesture->SpansPresses() && GetCapture() == this)
        ReleaseCapture();
}

void StudioCanvas::DropCapture() {
    // The gesture goes first: releasing the capture reports a lost one.
    m_gesture.reset();
    if (GetCapture() == this)
        ReleaseCapture();
}

void StudioCanvas::EndGesture() {
    if (const auto gesture = std::move(m_gesture)) {
        if (GetCapture() == this)
            ReleaseCapture();
        gesture->Finish();
    }
}

void StudioCanvas::FinishEditing() {
    EndGesture();
    EndTextEdit();
    NotifyState();
}

bool StudioCanvas::CancelGesture() {
    const auto gesture = std::move(m_gesture);
    if (!gesture)
        return false;
    if (GetCapture() == this)
        ReleaseCapture();
    gesture->Cancel();
    NotifyState();
    return true;
}

void StudioCanvas::Adopt(CUIObject& object) {
    object.SetDocument(m_pDocument);
    object.SetCanvas(this);
    if (const auto* group = dynamic_cast<Lumo::CUIObjectList*>(&object)) {
        for (CUIObject* child : group->GetChildren())
            Adopt(*child);
    }
}

void StudioCanvas::AddObject(CUIObject* object) {
    Adopt(*object);
    m_pDocument->AppendObject(object, this);
    NameUniquely(*object);
    // Selecting alone leaves points mode; a figure that begins must not.
    const int mode = m_nMode;
    Select(object, 0);
    m_nMode = mode;
}

// The document looks at the objects of the page itself; children of groups keep their names for when they
// come back.
void StudioCanvas::NameUniquely(CUIObject& object) {
    m_pDocument->SetShapeName(&object);
    CString name = object.GetShapeName();
    const auto isChildsName = [&] {
        return std::any_of(Objects()->begin(), Objects()->end(),
                           [&](CUIObject* other) { return HasNamedChild(other, name); });
    };
    int number = m_pDocument->GetShapeCount(object.GetDrawShape());
    while (isChildsName()) {
        do
            name.Format(L"%s%d", Lumo::GetDrawShapeName(object.GetDrawShape()).GetString(), number++);
        while (m_pDocument->CheckShapeName(name));
    }
    object.SetShapeName(name);
}

void StudioCanvas::Select(CUIObject* object, int add) {
    if (!add) {
        InvalidateAll(m_selection);
        m_selection.clear();
    }
    CUICanvas::Select(object, add);
}

void StudioCanvas::SelectOnly(const Lumo::CUIObjectDeque& objects) {
    InvalidateAll(m_selection);
    m_selection.assign(objects.rbegin(), objects.rend());
    InvalidateAll(m_selection);
}

void StudioCanvas::Forget(const std::unordered_set<CUIObject*>& objects) {
    std::erase_if(m_selection, [&](CUIObject* object) { return objects.count(object) != 0; });
    if (m_edited && objects.count(m_edited)) {
        m_edited = nullptr;
        EditText(nullptr);
    }
}

void StudioCanvas::InvalidatePage(const RectF& rect) {
    if (!m_hWnd)
        return;
    RectF page = rect;
    CRect client = Lumo::RectAtlFromGdi(page);
    DocToClient(client);
    client.InflateRect(1, 1);
    InvalidateRect(client, FALSE);
}

void StudioCanvas::InvalidateObject(CUIObject* object) {
    if (object)
        InvalidatePage(Lumo::Inflated(Lumo::Normalised(object->GetPosition()), PaintMargin(*object)));
}

void StudioCanvas::InvalidateAll(const Lumo::CUIObjectDeque& objects) {
    constexpr size_t kFew = 8;
    if (objects.size() <= kFew) {
        for (CUIObject* object : objects)
            InvalidateObject(object);
        return;
    }
    const auto painted = [](CUIObject& object) {
        return Lumo::Inflated(Lumo::Normalised(object.GetPosition()), PaintMargin(object));
    };
    RectF all = painted(*objects.front());
    for (CUIObject* object : objects)
        all = United(all, painted(*object));
    InvalidatePage(all);
}

void StudioCanvas::RequestPicture(const RectF& place) {
    m_picturePlace = place;
    PostMessage(kPictureRequested);
}

LRESULT StudioCanvas::OnPictureRequested(WPARAM, LPARAM) {
    m_listener.OnCanvasPicture(*this, m_picturePlace);
    return 0;
}

void StudioCanvas::OnLButtonDown(UINT flags, CPoint point) {
    EndTextEdit();
    SetFocus();
    CUICanvas::OnLButtonDown(flags, point);
    NotifyState();
}

void StudioCanvas::OnLButtonUp(UINT flags, CPoint point) {
    CUICanvas::OnLButtonUp(flags, point);
    NotifyState();
}

void StudioCanvas::OnLButtonDblClk(UINT flags, CPoint point) {
    CUICanvas::OnLButtonDblClk(flags, point);
    NotifyState();
}

void StudioCanvas::OnMouseMove(UINT flags, CPoint point) {
    CUICanvas::OnMouseMove(flags, point);
    TrackPointer(point);
    if (m_gesture) {
        FollowPointer(point);
        NotifyState();
    }
}

void StudioCanvas::TrackPointer(CPoint at) {
    if (!m_trackingLeave) {
        TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
        m_trackingLeave = ::TrackMouseEvent(&track) != FALSE;
    }
    ClientToDoc(at);
    m_listener.OnCanvasPointer(*this, &at);
}

void StudioCanvas::OnMouseLeave() {
    m_trackingLeave = false;
    m_listener.OnCanvasPointer(*this, nullptr);
    if (m_operator)
        m_operator->PointerLeft(*this);
}

BOOL StudioCanvas::OnMouseWheel(UINT flags, short turn, CPoint screen) {
    CPoint at = screen;
    ScreenToClient(&at);
    CRect client;
    GetClientRect(client);
    // What lies under the pointer is the frame's to find.
    if (!client.PtInRect(at))
        return CUICanvas::OnMouseWheel(flags, turn, screen);
    if (!m_operator || !m_operator->Wheel(*this, flags, turn, at))
        ScrollByWheel(flags, turn);
    return TRUE;
}

void StudioCanvas::OnRButtonDown(UINT flags, CPoint point) {
    if (m_operator)
        return;
    EndTextEdit();
    SetFocus();
    m_swallowRightUp = m_gesture != nullptr;
    if (m_gesture && m_gesture->SpansPresses())
        EndGesture();
    else if (m_gesture)
        CancelGesture();
    else
        SelectForMenu(point);
    CUICanvas::OnRButtonDown(flags, point);
    NotifyState();
}

// The menu is about what lies under the pointer.
void StudioCanvas::SelectForMenu(CPoint at) {
    ClientToDoc(at);
    CUIObject* object = m_pDocument->ObjectAt(at);
    if (!object || !IsSelected(object))
        Select(object, 0);
}

void StudioCanvas::OnRButtonUp(UINT, CPoint point) {
    if (std::exchange(m_swallowRightUp, false) || m_operator)
        return;
    ClientToScreen(&point);
    m_listener.OnCanvasMenu(*this, point);
}

void StudioCanvas::OnCaptureChanged(CWnd* window) {
    if (window != this && m_gesture && !m_gesture->SpansPresses())
        CancelGesture();
    if (window != this && m_operator)
        m_operator->PointerLeft(*this);
}

// Another page is shown: what was being done on this one is over.
void StudioCanvas::OnShowWindow(BOOL show, UINT status) {
    CUICanvas::OnShowWindow(show, status);
    if (show) {
        UpdateScrollBars();
    } else {
        EndGesture();
        EndTextEdit();
    }
}

BOOL StudioCanvas::OnSetCursor(CWnd* window, UINT hit, UINT message) {
    if (hit != HTCLIENT || window != this)
        return CUICanvas::OnSetCursor(window, hit, message);
    CPoint at;
    ::GetCursorPos(&at);
    ScreenToClient(&at);
    if (m_operator) {
        ::SetCursor(m_operator->CursorAt(*this, at));
        return TRUE;
    }
    ClientToDoc(at);
    const auto* tool = dynamic_cast<PageTool*>(CUIToolBase::FindTool(CUIToolBase::run_drawshape));
    ::SetCursor(tool ? tool->CursorAt(*this, at) : ::LoadCursor(nullptr, IDC_ARROW));
    return TRUE;
}

}  // namespace Studio
