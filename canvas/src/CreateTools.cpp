// Tools that create an object with one click or one drag, and the tool that relays events to a symbol.
#include "canvas/src/Press.h"
#include "canvas/src/ToolObjects.h"
#include "core/Geometry.h"
#include "core/UIDocument.h"

namespace Lumo {

namespace {

constexpr int kTooSmall = 3;  // half the side of the box in which a release removes the new object

CUIObject* CreateAt(const CPoint& pt) {
    const Gdiplus::RectF rect(static_cast<float>(pt.x), static_cast<float>(pt.y), 0.0f, 0.0f);
    return CUIToolBase::CreateUIObject(rect, CUIToolBase::run_drawshape);
}

void Relay(CUICanvas* canvas, UINT message, UINT flags, const CPoint& point) {
    if (CUIObject* object = FrontSelected(canvas))
        object->RelayEvent(canvas, message, flags, MAKELONG(point.x, point.y));
}

}  // namespace

void InsertObject(CUICanvas* canvas, CUIObject* object) {
    object->SetDocument(canvas->GetDocument());
    object->SetCanvas(canvas);
    canvas->GetDocument()->AppendObject(object, canvas);
}

CUIDownUpTool::CUIDownUpTool(DrawShape kind) : CUIToolBase(kind) {}

void CUIDownUpTool::OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas))
        return;
    CUIToolBase::OnLButtonDown(canvas, flags, point);
    CUIObject* object = CreateAt(run_down);
    InsertObject(canvas, object);
    canvas->GetDocument()->SetShapeName(object);
    object->SetText(object->GetShapeName());
    canvas->Select(object, 0);
    canvas->InvalidateObject(object);
    Press::Draw(object);
    SelectTool().m_nDragMode = CUISelectTool::kHandle;
    run_handle = 2;
}

void CUIDownUpTool::OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (IsCurrent(canvas) && Press::HasMouse(canvas))
        SelectTool().OnMouseMove(canvas, flags, point);
}

void CUIDownUpTool::OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas))
        return;
    const CRect tooSmall(run_down.x - kTooSmall, run_down.y - kTooSmall, run_down.x + kTooSmall,
                         run_down.y + kTooSmall);
    // What another gesture of this mode drags is not new and may be of any size.
    CUIObject* object = Press::Drawn(canvas);
    if (object && tooSmall.PtInRect(ToDoc(canvas, point))) {
        // Kept: both calls act on the first object of the page, which need not be the new one.
        CUIDocument* document = canvas->GetDocument();
        document->RemoveObject(object, 0);
        document->RemoveObject(object, 1);
        run_drawshape = DS_SELECT;
        SelectTool().m_nDragMode = CUISelectTool::kNone;
        ShowCursor(IDC_ARROW);
    }
    SelectTool().OnLButtonUp(canvas, flags, point);
    // It does not end a press that has lost the mouse.
    if (Press::IsOn(canvas))
        Press::End(canvas);
}

CUIDownTool::CUIDownTool(DrawShape kind) : CUIToolBase(kind) {}

void CUIDownTool::OnLButtonDown(CUICanvas* canvas, UINT, const CPoint&) {
    if (!IsCurrent(canvas))
        return;
    CUIObject* object = CreateAt(run_down);
    if (object->IsEmptyArea()) {
        CUIDocument::DestroyObject(object);
        return;
    }
    InsertObject(canvas, object);
    canvas->Select(object, 0);
    canvas->InvalidateObject(object);
    run_drawshape = DS_SELECT;
}

void CUIDownTool::OnLButtonUp(CUICanvas* canvas, UINT, const CPoint&) {
    if (IsCurrent(canvas))
        Press::End(canvas);
}

void CUIDownTool::OnRButtonDown(CUICanvas* canvas, UINT, const CPoint&) {
    if (IsCurrent(canvas))
        run_drawshape = DS_SELECT;
}

CUISymbolTool::CUISymbolTool(DrawShape kind) : CUIDownTool(kind) {}

void CUISymbolTool::OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) {
    Relay(canvas, WM_LBUTTONDOWN, flags, point);
}

void CUISymbolTool::OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) {
    Relay(canvas, WM_LBUTTONUP, flags, point);
    ShowCursor(IDC_ARROW);
}

void CUISymbolTool::OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) {
    Relay(canvas, WM_MOUSEMOVE, flags, point);
}

void CUISymbolTool::OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) {
    Relay(canvas, WM_LBUTTONDBLCLK, flags, point);
}

void CUISymbolTool::OnRButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) {
    Relay(canvas, WM_RBUTTONDOWN, flags, point);
}

}  // namespace Lumo
