// Selecting, moving, reshaping by a handle, rubber band.
#include "canvas/src/Press.h"
#include "canvas/src/ToolObjects.h"
#include "core/Geometry.h"
#include "core/UIDocument.h"

namespace Lumo {

CUISelectTool::CUISelectTool() : CUIToolBase(DS_SELECT) {}

void CUISelectTool::OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas))
        return;
    CUIToolBase::OnLButtonDown(canvas, flags, point);
    m_nDragMode = kNone;
    run_handle = -1;
    if (canvas->m_selection.size() == 1 && GrabSelected(canvas->m_selection.front()))
        return;
    PressOnPage(canvas, flags);
}

// Grabs a handle or the body of the one selected object; false when the press missed it.
bool CUISelectTool::GrabSelected(CUIObject* object) {
    Gdiplus::PointF pt = PointGdiFromAtl(run_down);
    run_handle = object->HitTest(pt, 1);
    const int body = object->GetHandleCount() - 1;
    if (run_handle >= 0 && run_handle < body) {
        m_nDragMode = kHandle;
        Gdiplus::PointF handle = object->GetHandlePoint(run_handle);
        run_down = run_last = PointAtlFromGdi(handle);
        ::SetCursor(object->GetHandleCursor(run_handle));
        return true;
    }
    if (run_handle != body)
        return false;
    m_nDragMode = kMove;
    return true;
}

void CUISelectTool::PressOnPage(CUICanvas* canvas, UINT flags) {
    const bool shift = (flags & MK_SHIFT) != 0;
    CUIObject* object = canvas->GetDocument()->ObjectAt(run_down);
    if (!object) {
        m_nDragMode = kRubberBand;
        if (!canvas->m_selection.empty())
            canvas->Select(nullptr, 0);
        return;
    }
    if (!canvas->IsSelected(object))
        canvas->Select(object, shift);
    else if (shift) {
        canvas->Deselect(object);
        return;
    }
    run_handle = object->GetHandleCount() - 1;
}

void CUISelectTool::OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas))
        return;
    CPoint pt = ToDoc(canvas, point);
    if (!Press::HasMouse(canvas)) {
        Hover(canvas, pt);
        return;
    }
    switch (m_nDragMode) {
        case kRubberBand:
            if (run_down != run_last)
                FocusRect(canvas, run_down, run_last);
            FocusRect(canvas, run_down, pt);
            break;
        case kHandle:
            if (canvas->m_selection.empty())
                return;
            Constrain(canvas->m_selection.front(), flags, pt);
            [[fallthrough]];
        case kMove:
            MoveSelection(canvas, pt, 0);
            break;
        default:
            break;
    }
    run_last = pt;
}

void CUISelectTool::MoveSelection(CUICanvas* canvas, const CPoint& pt, int last) {
    CPoint from(run_last - run_down);
    CPoint to(pt - run_down);
    canvas->MoveTo(run_handle, from, to, last);
}

void CUISelectTool::Hover(CUICanvas* canvas, const CPoint& pt) {
    run_handle = -1;
    if (canvas->m_selection.size() != 1 || run_drawshape != DS_SELECT)
        return;
    CUIObject* object = canvas->m_selection.front();
    Gdiplus::PointF at = PointGdiFromAtl(pt);
    const int handle = object->HitTest(at, 1);
    if (handle < 0 || handle >= object->GetHandleCount())
        return;
    run_handle = handle;
    ::SetCursor(object->GetHandleCursor(handle));
}

// Ctrl snaps the point to the neighbouring handle; else a special handle keeps it inside its limit.
void CUISelectTool::Constrain(CUIObject* object, UINT flags, CPoint& pt) const {
    if (!object->GetRectMode())
        return;
    if (flags & MK_CONTROL) {
        Gdiplus::PointF neighbour = object->GetHandlePoint(run_handle == 1 ? 2 : run_handle - 1);
        MoveControl(PointAtlFromGdi(neighbour), pt);
        return;
    }
    const Gdiplus::RectF before = RectGdiFromAtl(run_h_rect);
    Gdiplus::RectF limit = before;
    if (!object->ControlHandle(run_handle, limit))
        return;
    if (!limit.Equals(before))
        run_h_rect = RectAtlFromGdi(limit);
    MoveControl(run_h_rect, pt);
}

void CUISelectTool::OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas) || !Press::HasMouse(canvas))
        return;
    const CPoint pt = ToDoc(canvas, point);
    if (pt != run_down)
        FinishDrag(canvas, flags, pt);
    Press::End(canvas);
    m_nDragMode = kNone;  // of a host's select tool, too
}

void CUISelectTool::FinishDrag(CUICanvas* canvas, UINT flags, CPoint pt) {
    if (m_nDragMode == kNone || m_nDragMode == kRubberBand) {
        FocusRect(canvas, run_down, run_last);
        const bool whole = ::GetKeyState(VK_LSHIFT) < 0;
        canvas->SelectWithinRect(CRect(run_down.x, run_down.y, pt.x, pt.y), 0, whole);
        return;
    }
    if (m_nDragMode == kHandle) {
        if (canvas->m_selection.empty())
            return;
        Constrain(canvas->m_selection.front(), flags, pt);
    }
    // After a shape was drawn the top of an undo stack would be dropped here; that is an empty operation and
    // the library makes no stack.
    MoveSelection(canvas, pt, 1);
}

void CUISelectTool::OnLButtonDblClk(CUICanvas*, UINT, const CPoint&) {}

}  // namespace Lumo
