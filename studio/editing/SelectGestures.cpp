#include "studio/editing/SelectGestures.h"

#include "canvas/UITool.h"
#include "core/Geometry.h"
#include "core/UIObjectPoly.h"
#include "studio/editing/Grid.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_set>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;
using Lumo::CUIObject;

namespace {

// A hand that trembles during a click moves nothing.
constexpr int kThreshold = 3;

PointF Difference(CPoint to, CPoint from) {
    return PointF(static_cast<float>(to.x - from.x), static_cast<float>(to.y - from.y));
}

bool EditsPoints(CUIObject& object) {
    const auto* poly = dynamic_cast<Lumo::CUIObjectPoly*>(&object);
    return poly && !poly->GetRectMode();
}

}  // namespace

SelectionGesture::SelectionGesture(StudioCanvas& page, CPoint down, Text name)
    : m_page(page), m_down(down), m_objects(page.m_selection), m_name(name) {
    m_start.reserve(m_objects.size());
    for (CUIObject* object : m_objects)
        m_start.push_back(CaptureGeometry(*object));
}

void SelectionGesture::BeginMove() {
    if (HasMoved())
        return;
    m_edit.emplace(m_page, m_name);
    m_edit->TouchPlace(m_objects);
    m_page.LiftSelection(true);
}

void SelectionGesture::Finish() {
    m_page.LiftSelection(false);
    m_edit.reset();
}

bool SelectionGesture::Release(CPoint at, UINT flags) {
    Move(at, flags);
    Finish();
    return true;
}

void SelectionGesture::Cancel() {
    m_page.LiftSelection(false);
    if (m_edit)
        m_edit->Cancel();
    m_edit.reset();
}

MoveGesture::MoveGesture(StudioCanvas& page, CPoint down, CUIObject* pick)
    : SelectionGesture(page, down, Text::kStepMove), m_pick(pick) {
    if (m_start.empty())
        return;
    RectF all = Lumo::Normalised(m_start.front().bounds);
    for (const Geometry& start : m_start)
        all = United(all, Lumo::Normalised(start.bounds));
    m_corner = PointF(all.X, all.Y);
}

void MoveGesture::Move(CPoint at, UINT flags) {
    if (!HasMoved() && std::abs(at.x - m_down.x) < kThreshold && std::abs(at.y - m_down.y) < kThreshold)
        return;
    BeginMove();
    const PointF delta = Shift(at, flags);
    m_page.InvalidateAll(m_objects);
    for (size_t i = 0; i < m_objects.size(); ++i)
        PlaceShifted(*m_objects[i], m_start[i], delta);
    m_page.InvalidateAll(m_objects);
}

// Ctrl snaps to directions, the grid to places.
PointF MoveGesture::Shift(CPoint at, UINT flags) const {
    if (flags & MK_CONTROL) {
        Lumo::CUIToolBase::MoveControl(m_down, at);
        return Difference(at, m_down);
    }
    return PageGrid().SnapShift(m_corner, Difference(at, m_down));
}

bool MoveGesture::Release(CPoint at, UINT flags) {
    Move(at, flags);
    const bool moved = HasMoved();
    Finish();
    if (!moved && m_pick && !(flags & MK_SHIFT))
        m_page.Select(m_pick, 0);
    return true;
}

ResizeGesture::ResizeGesture(StudioCanvas& page, CUIObject& grabbed, int handle, CPoint down)
    : SelectionGesture(page, down, EditsPoints(grabbed) ? Text::kStepPoint : Text::kStepResize),
      m_grabbed(grabbed),
      m_handle(handle) {
    const int neighbour = handle == 0   ? std::min(3, grabbed.GetHandleCount() - 2)
                          : handle == 1 ? 2
                                        : handle - 1;
    m_handlePoint = grabbed.GetHandlePoint(handle);
    m_neighbour = Lumo::PointAtlFromGdi(
        grabbed.GetHandlePoint(EditsPoints(grabbed) ? (handle == 0 ? 1 : handle - 1) : neighbour));
}

void ResizeGesture::Move(CPoint at, UINT flags) {
    if (!HasMoved() && at == m_down)
        return;
    BeginMove();
    if (flags & MK_CONTROL)
        Lumo::CUIToolBase::MoveControl(m_neighbour, at);
    PointF delta = Difference(at, m_down);
    if (!(flags & MK_CONTROL))
        delta = PageGrid().SnapShift(m_handlePoint, delta);
    m_page.InvalidateAll(m_objects);
    for (size_t i = 0; i < m_objects.size(); ++i)
        Place(*m_objects[i], m_start[i], delta, (flags & MK_SHIFT) != 0);
    m_page.InvalidateAll(m_objects);
}

void ResizeGesture::Place(CUIObject& object, const Geometry& start, const PointF& delta, bool keepShape) {
    if (!EditsPoints(object)) {
        // A point of a line that was grabbed says nothing about the edges of the others.
        if (!EditsPoints(m_grabbed))
            PlaceFitted(object, start,
                        ResizedBounds(Lumo::Normalised(start.bounds), m_handle, delta, keepShape));
    } else if (&object == &m_grabbed && static_cast<size_t>(m_handle) < start.points.size()) {
        auto& poly = static_cast<Lumo::CUIObjectPoly&>(object);
        (*poly.NormalizePoints())[m_handle] = start.points[m_handle] + delta;
        poly.RecalcBounds();
    }
}

void BandGesture::Move(CPoint at, UINT) {
    m_page.ShowBand(m_down, at);
}

bool BandGesture::Release(CPoint at, UINT flags) {
    m_page.HideBand();
    if (at == m_down)
        return true;
    const RectF band = Lumo::Normalised(Lumo::RectGdiFromAtl(CRect(m_down, at)));
    Lumo::CUIObjectDeque chosen;
    if (flags & MK_SHIFT)
        chosen.assign(m_page.m_selection.rbegin(), m_page.m_selection.rend());
    const std::unordered_set<CUIObject*> already(chosen.begin(), chosen.end());
    if (const auto* objects = m_page.Objects()) {
        for (CUIObject* object : *objects) {
            if (object && !object->GetRemoved() && !already.count(object) && Touches(*object, band))
                chosen.push_back(object);
        }
    }
    m_page.SelectOnly(chosen);
    return true;
}

void BandGesture::Cancel() {
    m_page.HideBand();
}

}  // namespace Studio
