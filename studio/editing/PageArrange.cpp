// Commands that move, turn and mirror the selected objects.
#include "studio/editing/PageEdits.h"

#include "core/Geometry.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/History.h"
#include "studio/editing/StudioCanvas.h"

#include <algorithm>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;
using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

RectF BoundsOf(CUIObject& object) {
    return Lumo::Normalised(object.GetPosition());
}

RectF BoundsOf(const CUIObjectDeque& objects) {
    RectF bounds = BoundsOf(*objects.front());
    for (CUIObject* object : objects)
        bounds = United(bounds, BoundsOf(*object));
    return bounds;
}

// Carries out a change of the selected objects' places between two repaints, as one step.
template <class Change>
void ArrangeSelection(StudioCanvas& page, Text name, DWORD mergeKey, Change change) {
    if (page.m_selection.empty())
        return;
    EditScope edit(page, name, mergeKey);
    edit.TouchPlace(page.m_selection);
    page.InvalidateAll(page.m_selection);
    for (CUIObject* object : page.m_selection)
        change(*object);
    page.InvalidateAll(page.m_selection);
}

PointF AlignmentShift(const RectF& to, const RectF& box, Alignment how) {
    const PointF aim = Lumo::CentreOf(to);
    const PointF middle = Lumo::CentreOf(box);
    switch (how) {
        case Alignment::kLeft:
            return {to.X - box.X, 0.0f};
        case Alignment::kRight:
            return {to.X + to.Width - box.X - box.Width, 0.0f};
        case Alignment::kTop:
            return {0.0f, to.Y - box.Y};
        case Alignment::kBottom:
            return {0.0f, to.Y + to.Height - box.Y - box.Height};
        case Alignment::kCentres:
            return {aim.X - middle.X, 0.0f};
        case Alignment::kMiddles:
            return {0.0f, aim.Y - middle.Y};
        default:
            return aim - middle;
    }
}

// One direction of a rectangle, so that both are distributed by the same steps.
struct Span {
    float from, size;
};

Span SpanOf(CUIObject& object, bool horizontally) {
    const RectF bounds = BoundsOf(object);
    return horizontally ? Span{bounds.X, bounds.Width} : Span{bounds.Y, bounds.Height};
}

}  // namespace

void NudgeSelection(StudioCanvas& page, int dx, int dy) {
    const PointF delta(static_cast<float>(dx), static_cast<float>(dy));
    // One burst of one key is one step.
    const DWORD key = MAKELONG(0x1000 + dx, 0x1000 + dy);
    ArrangeSelection(page, Text::kStepNudge, key, [&](CUIObject& object) { ShiftObject(object, delta); });
}

void AlignSelection(StudioCanvas& page, Alignment how) {
    if (page.m_selection.size() < 2)
        return;
    const RectF to = BoundsOf(*page.m_selection.front());
    ArrangeSelection(page, Text::kStepAlign, 0, [&](CUIObject& object) {
        ShiftObject(object, AlignmentShift(to, BoundsOf(object), how));
    });
}

void DistributeSelection(StudioCanvas& page, bool horizontally) {
    if (page.m_selection.size() < 3)
        return;
    CUIObjectDeque row = page.m_selection;
    std::stable_sort(row.begin(), row.end(), [&](CUIObject* a, CUIObject* b) {
        const Span first = SpanOf(*a, horizontally);
        const Span second = SpanOf(*b, horizontally);
        return first.from + first.size * 0.5f < second.from + second.size * 0.5f;
    });
    const Span last = SpanOf(*row.back(), horizontally);
    float next = SpanOf(*row.front(), horizontally).from;
    float taken = 0.0f;
    for (CUIObject* object : row)
        taken += SpanOf(*object, horizontally).size;
    const float gap = (last.from + last.size - next - taken) / static_cast<float>(row.size() - 1);
    EditScope edit(page, Text::kStepDistribute);
    edit.TouchPlace(row);
    page.InvalidateAll(row);
    for (CUIObject* object : row) {
        const Span span = SpanOf(*object, horizontally);
        const float shift = next - span.from;
        ShiftObject(*object, horizontally ? PointF(shift, 0.0f) : PointF(0.0f, shift));
        next += span.size + gap;
    }
    page.InvalidateAll(row);
}

void RotateSelection(StudioCanvas& page, bool clockwise) {
    if (page.m_selection.empty())
        return;
    const PointF centre = Lumo::CentreOf(BoundsOf(page.m_selection));
    ArrangeSelection(page, Text::kStepRotate, 0,
                     [&](CUIObject& object) { TurnObject(object, centre, clockwise); });
}

void FlipSelection(StudioCanvas& page, bool horizontally) {
    if (page.m_selection.empty())
        return;
    const PointF centre = Lumo::CentreOf(BoundsOf(page.m_selection));
    ArrangeSelection(page, Text::kStepFlip, 0,
                     [&](CUIObject& object) { FlipObject(object, centre, horizontally); });
}

}  // namespace Studio
