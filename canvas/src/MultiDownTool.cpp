// Drawing a line or polyline point by point.
#include "canvas/src/Press.h"
#include "canvas/src/ToolObjects.h"
#include "core/Geometry.h"
#include "core/UIDocument.h"
#include "core/UIObjectPoly.h"

namespace Lumo {

namespace {

constexpr int kClickSlack = 5;  // half the side of the square in which press and release are one click
constexpr int kRubberMargin = 4;

// The free segment lies outside the figure's bounds until its end is clicked, so it is repainted on its own.
void InvalidateRubber(CUICanvas* canvas, CUIObjectPoly& figure) {
    const auto* points = figure.NormalizePoints();
    if (points->empty())
        return;
    const Gdiplus::PointF offset = figure.GetPendingOffset();
    const Gdiplus::PointF from = points->back();
    const Gdiplus::RectF segment(from.X, from.Y, offset.X, offset.Y);
    CRect rect = RectAtlFromGdi(segment);
    canvas->DocToClient(rect);
    const int margin = static_cast<int>(figure.GetLineWidth() * 3.0f) + kRubberMargin;
    rect.InflateRect(margin, margin);
    canvas->InvalidateRect(rect, FALSE);
}

// The free end starts anew at the point that was added.
void AddFigurePoint(CUICanvas* canvas, CUIObjectPoly& figure, const CPoint& pt) {
    InvalidateRubber(canvas, figure);
    Gdiplus::PointF point = PointGdiFromAtl(pt);
    figure.AddPoint(point);
    figure.SetPendingOffset({0.0f, 0.0f});
}

}  // namespace

CUIMultiDownTool::CUIMultiDownTool(DrawShape kind) : CUIToolBase(kind) {}

// The figure being drawn, or null. A host ends it by setting `run_handle` to -1.
CUIObjectPoly* CUIMultiDownTool::Figure(CUICanvas* canvas) {
    return run_handle != -1 ? dynamic_cast<CUIObjectPoly*>(Press::Drawn(canvas)) : nullptr;
}

void CUIMultiDownTool::OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas))
        return;
    CUIObjectPoly* figure = Figure(canvas);
    const CPoint anchor = run_down;
    CUIToolBase::OnLButtonDown(canvas, flags, point);
    CPoint pt = point;  // the first one is taken as it is
    if (figure) {
        pt = run_down;
        if (flags & MK_CONTROL)
            MoveControl(anchor, pt);
        Press::Draw(figure);
        run_down = anchor;
        ContinueFigure(canvas, flags, point, pt);
    } else {
        BeginFigure(canvas, pt);
    }
    run_down = run_last = pt;
    SelectTool().m_nDragMode = Figure(canvas) ? CUISelectTool::kHandle : CUISelectTool::kNone;
}

void CUIMultiDownTool::BeginFigure(CUICanvas* canvas, const CPoint& pt) {
    Gdiplus::RectF rect(static_cast<float>(pt.x), static_cast<float>(pt.y), 0.0f, 0.0f);
    CUIObject* object = CreateUIObject(rect, run_drawshape);
    auto* figure = dynamic_cast<CUIObjectPoly*>(object);
    if (!figure) {
        CUIDocument::DestroyObject(object);
        return;
    }
    figure->Init(run_drawshape, rect);
    InsertObject(canvas, figure);
    AddFigurePoint(canvas, *figure, pt);
    canvas->Select(figure, 0);
    Press::Draw(figure);
    run_handle = 1;
}

void CUIMultiDownTool::ContinueFigure(CUICanvas* canvas, UINT flags, const CPoint& point, CPoint& pt) {
    CUIObjectPoly* figure = Figure(canvas);
    Gdiplus::PointF at = PointGdiFromAtl(pt);
    if (figure->LastPoint(at, figure->GetRectMode() ? 0 : 1)) {
        OnLButtonDblClk(canvas, flags, point);
    } else {
        AddFigurePoint(canvas, *figure, pt);
        ++run_handle;
    }
    canvas->InvalidateObject(figure);
}

void CUIMultiDownTool::OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas))
        return;
    if (!Figure(canvas)) {
        Press::Abandon(canvas);
        return;
    }
    if (run_handle != 1)
        return;
    const CRect click(run_down.x - kClickSlack, run_down.y - kClickSlack, run_down.x + kClickSlack,
                      run_down.y + kClickSlack);
    if (!click.PtInRect(ToDoc(canvas, point)))
        OnLButtonDown(canvas, flags, point);
}

void CUIMultiDownTool::OnMouseMove(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas) || !Press::HasMouse(canvas))
        return;
    CUIObjectPoly* figure = Figure(canvas);
    if (figure)
        InvalidateRubber(canvas, *figure);
    SelectTool().OnMouseMove(canvas, flags, point);
    if (figure)
        InvalidateRubber(canvas, *figure);
}

void CUIMultiDownTool::OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) {
    if (!IsCurrent(canvas))
        return;
    CPoint pt = ToDoc(canvas, point);
    if (flags & MK_CONTROL)
        MoveControl(run_down, pt);
    if (CUIObjectPoly* figure = Figure(canvas)) {
        Gdiplus::PointF at = PointGdiFromAtl(pt);
        if (!figure->LastPoint(at, 0))
            AddFigurePoint(canvas, *figure, pt);
        canvas->InvalidateObject(figure);
    }
    run_drawshape = DS_SELECT;
    Press::End(canvas);
}

}  // namespace Lumo
