#include "studio/editing/PageTool.h"

#include "core/Geometry.h"
#include "studio/editing/EmbeddedObject.h"
#include "studio/editing/FigureGesture.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/PictureGesture.h"
#include "studio/editing/SelectGestures.h"
#include "studio/editing/ShapeGesture.h"
#include "studio/editing/TextBox.h"

namespace Studio {

using Lumo::CUICanvas;
using Lumo::CUIObject;

namespace {

// The page a message is about: a canvas of Studio's that its document is showing.
StudioCanvas* PageOf(CUICanvas* canvas) {
    auto* page = dynamic_cast<StudioCanvas*>(canvas);
    return page && page->Document().GetCurrentCanvas() == page ? page : nullptr;
}

CPoint ToPage(StudioCanvas& page, CPoint point) {
    page.ClientToDoc(point);
    return point;
}

struct GrabbedHandle {
    CUIObject* object = nullptr;
    int handle = -1;
};

GrabbedHandle FindHandle(StudioCanvas& page, CPoint at) {
    const Gdiplus::PointF point = Lumo::PointGdiFromAtl(at);
    for (CUIObject* object : page.m_selection) {
        const int handle = HandleAt(*object, point);
        if (handle >= 0)
            return {object, handle};
    }
    return {};
}

// Asks the selected objects only: the whole page would be too many for every move of the mouse.
bool OverSelection(StudioCanvas& page, CPoint at) {
    Gdiplus::PointF point = Lumo::PointGdiFromAtl(at);
    for (CUIObject* object : page.m_selection) {
        const Gdiplus::RectF reach =
            Lumo::Inflated(Lumo::Normalised(object->GetPosition()), PaintMargin(*object));
        if (Lumo::ContainsPoint(reach, point) && object->HitTest(point, 0) >= 0)
            return true;
    }
    return false;
}

}  // namespace

PageTool::PageTool(Lumo::DrawShape kind) : CUIToolBase(kind) {
    m_tools.pop_back();
    m_tools.push_front(this);
}

void PageTool::OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) {
    StudioCanvas* page = PageOf(canvas);
    if (!page)
        return;
    const CPoint at = ToPage(*page, point);
    if (page->CurrentGesture())
        page->FeedPress(at, flags);
    else
        Press(*page, at, flags);
}

void PageTool::OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (StudioCanvas* page = PageOf(canvas))
        page->FeedRelease(ToPage(*page, point), flags);
}

void PageTool::OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) {
    StudioCanvas* page = PageOf(canvas);
    if (page && page->CurrentGesture())
        page->CurrentGesture()->Move(ToPage(*page, point), flags);
}

void PageTool::OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) {
    StudioCanvas* page = PageOf(canvas);
    if (!page)
        return;
    const CPoint at = ToPage(*page, point);
    if (page->CurrentGesture())
        page->FeedDoubleClick(at, flags);
    else
        DoubleClick(*page, at, flags);
}

HCURSOR PageTool::CursorAt(StudioCanvas&, CPoint) const {
    return ::LoadCursor(nullptr, IDC_CROSS);
}

HCURSOR SelectTool::CursorAt(StudioCanvas& page, CPoint at) const {
    if (const GrabbedHandle grabbed = FindHandle(page, at); grabbed.object)
        return grabbed.object->GetHandleCursor(grabbed.handle);
    return ::LoadCursor(nullptr, OverSelection(page, at) ? IDC_SIZEALL : IDC_ARROW);
}

void SelectTool::Press(StudioCanvas& page, CPoint at, UINT flags) {
    const bool shift = (flags & MK_SHIFT) != 0;
    if (const GrabbedHandle grabbed = FindHandle(page, at); grabbed.object) {
        page.Begin(std::make_unique<ResizeGesture>(page, *grabbed.object, grabbed.handle, at));
        return;
    }
    CUIObject* object = page.Document().ObjectAt(at);
    if (!object) {
        if (!shift)
            page.Select(nullptr, 0);
        page.Begin(std::make_unique<BandGesture>(page, at));
        return;
    }
    if (shift && page.IsSelected(object)) {
        page.Deselect(object);
        return;
    }
    const bool wasSelected = page.IsSelected(object);
    if (!wasSelected)
        page.Select(object, shift);
    page.Begin(std::make_unique<MoveGesture>(page, at, wasSelected ? object : nullptr));
}

void SelectTool::DoubleClick(StudioCanvas& page, CPoint at, UINT flags) {
    CUIObject* object = page.Document().ObjectAt(at);
    if (auto* text = dynamic_cast<TextBox*>(object))
        page.BeginTextEdit(*text);
    else if (auto* embedded = dynamic_cast<EmbeddedObject*>(object))
        page.OpenEmbedded(*embedded);
    else
        Press(page, at, flags);
}

bool IsFigureTool(Lumo::DrawShape kind) {
    return kind == Lumo::DS_LINE || kind == Lumo::DS_POLYLINE;
}

void ChooseTool(StudioCanvas& page, Lumo::DrawShape kind) {
    Lumo::CUIToolBase::run_drawshape = kind;
    if (IsFigureTool(kind))
        page.OnModePoly();
    else
        page.OnModeDraw();
}

void ShapeTool::Press(StudioCanvas& page, CPoint at, UINT) {
    page.Begin(std::make_unique<ShapeGesture>(page, m_nDrawShape, at));
}

void PictureTool::Press(StudioCanvas& page, CPoint at, UINT) {
    page.Begin(std::make_unique<PictureGesture>(page, at));
}

void FigureTool::Press(StudioCanvas& page, CPoint at, UINT) {
    page.Begin(std::make_unique<FigureGesture>(page, m_nDrawShape, at));
}

}  // namespace Studio
