#include "studio/editing/FigureGesture.h"

#include "canvas/UITool.h"
#include "core/Geometry.h"
#include "studio/editing/Grid.h"
#include "studio/editing/ObjectFactory.h"
#include "studio/editing/PageTool.h"

#include <cstdlib>

namespace Studio {

using Gdiplus::PointF;

namespace {

// A release this close to the press is a click, not a drag.
constexpr int kClick = 5;

bool Near(CPoint a, CPoint b, int distance) {
    return std::abs(a.x - b.x) < distance && std::abs(a.y - b.y) < distance;
}

}  // namespace

FigureGesture::FigureGesture(StudioCanvas& page, Lumo::DrawShape kind, CPoint down)
    : m_page(page), m_edit(page, Text::kStepDraw), m_lastFixed(PageGrid().Snap(down)) {
    m_edit.TouchList(page);
    const PointF at = Lumo::PointGdiFromAtl(m_lastFixed);
    ObjectPtr object = MakeDrawnObject(kind, Gdiplus::RectF(at.X, at.Y, 0.0f, 0.0f));
    m_figure = static_cast<Lumo::CUIObjectPoly*>(object.release());
    auto& points = *m_figure->NewPoints(2);
    points[0] = points[1] = at;
    m_figure->RecalcBounds();
    m_page.AddObject(m_figure);
}

void FigureGesture::Move(CPoint at, UINT flags) {
    Follow(at, flags);
}

void FigureGesture::Follow(CPoint at, UINT flags) {
    if (flags & MK_CONTROL)
        Lumo::CUIToolBase::MoveControl(m_lastFixed, at);
    else
        at = PageGrid().Snap(at);
    m_page.InvalidateObject(m_figure);
    m_figure->NormalizePoints()->back() = Lumo::PointGdiFromAtl(at);
    m_figure->RecalcBounds();
    m_page.InvalidateObject(m_figure);
}

bool FigureGesture::Press(CPoint at, UINT flags) {
    m_firstPress = false;
    Follow(at, flags);
    return FixPoint();
}

bool FigureGesture::Release(CPoint at, UINT flags) {
    const bool dragged = m_firstPress && !Near(at, m_lastFixed, kClick);
    if (!dragged)
        return false;
    m_firstPress = false;
    Follow(at, flags);
    return FixPoint();
}

bool FigureGesture::DoubleClick(CPoint, UINT) {
    return End();
}

// Keeps the free point where it is and goes on with a new one, or ends a figure that has all its points.
bool FigureGesture::FixPoint() {
    auto& points = *m_figure->NormalizePoints();
    const CPoint fixed = Lumo::PointAtlFromGdi(points.back());
    if (fixed == m_lastFixed)
        return false;
    m_lastFixed = fixed;
    if (static_cast<int>(points.size()) >= m_figure->GetMaxPoints()) {
        ChooseTool(m_page, Lumo::DS_SELECT);
        return true;
    }
    PointF next = points.back();
    m_figure->AddPoint(next);
    return false;
}

bool FigureGesture::End() {
    m_page.InvalidateObject(m_figure);
    auto& points = *m_figure->NormalizePoints();
    points.pop_back();
    m_figure->RecalcBounds();
    if (points.size() < 2)
        Cancel();
    ChooseTool(m_page, Lumo::DS_SELECT);
    return true;
}

void FigureGesture::Finish() {
    End();
}

void FigureGesture::Cancel() {
    m_edit.Cancel();
}

}  // namespace Studio
