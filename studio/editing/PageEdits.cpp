#include "studio/editing/PageEdits.h"

#include "core/Geometry.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/GroupObject.h"
#include "studio/editing/ObjectFactory.h"
#include "studio/editing/StudioCanvas.h"

#include <algorithm>
#include <functional>
#include <unordered_set>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;
using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

using ObjectSet = std::unordered_set<CUIObject*>;

ObjectSet SetOf(const CUIObjectDeque& objects) {
    return ObjectSet(objects.begin(), objects.end());
}

// Selected objects in drawing order.
CUIObjectDeque InPageOrder(const StudioCanvas& page) {
    CUIObjectDeque ordered;
    if (const auto* objects = page.Objects()) {
        const ObjectSet selected = SetOf(page.m_selection);
        std::copy_if(objects->begin(), objects->end(), std::back_inserter(ordered),
                     [&](CUIObject* object) { return selected.count(object) != 0; });
    }
    return ordered;
}

RectF BoundsOf(const CUIObjectDeque& objects) {
    RectF bounds = Lumo::Normalised(objects.front()->GetPosition());
    for (CUIObject* object : objects)
        bounds = United(bounds, Lumo::Normalised(object->GetPosition()));
    return bounds;
}

// Carries out a change of the selected objects between two repaints.
template <class Change>
void ChangeSelection(StudioCanvas& page, Change change) {
    if (page.m_selection.empty())
        return;
    page.InvalidateAll(page.m_selection);
    for (CUIObject* object : page.m_selection)
        change(*object);
    page.InvalidateAll(page.m_selection);
    page.MarkModified();
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

// One step towards the end of the range for every selected object that has an unselected one beyond it.
template <class Iterator>
void StepTowardsEnd(Iterator begin, Iterator end, const ObjectSet& selected) {
    for (Iterator next = end; next != begin;) {
        Iterator object = std::prev(next);
        if (next != end && selected.count(*object) && !selected.count(*next))
            std::iter_swap(object, next);
        next = object;
    }
}

void TakeOffPage(StudioCanvas& page, const CUIObjectDeque& taken) {
    if (auto* objects = page.Objects()) {
        const ObjectSet set = SetOf(taken);
        std::erase_if(*objects, [&](CUIObject* object) { return set.count(object) != 0; });
    }
}

}  // namespace

void DestroyObjects(StudioCanvas& page, const CUIObjectDeque& objects) {
    CUIObjectDeque doomed = objects;
    const ObjectSet set = SetOf(doomed);
    page.InvalidateAll(doomed);
    std::erase_if(page.m_selection, [&](CUIObject* object) { return set.count(object) != 0; });
    TakeOffPage(page, doomed);
    page.Document().ClearObject(&doomed);
    page.Document().SetModifiedFlag(1);
}

void SelectAll(StudioCanvas& page) {
    CUIObjectDeque all;
    if (const auto* objects = page.Objects()) {
        std::copy_if(objects->begin(), objects->end(), std::back_inserter(all),
                     [](CUIObject* object) { return object && !object->GetRemoved(); });
    }
    page.SelectOnly(all);
    page.NotifyState();
}

void DeleteSelection(StudioCanvas& page) {
    if (page.m_selection.empty())
        return;
    DestroyObjects(page, page.m_selection);
    page.NotifyState();
}

void NudgeSelection(StudioCanvas& page, int dx, int dy) {
    const PointF delta(static_cast<float>(dx), static_cast<float>(dy));
    ChangeSelection(page, [&](CUIObject& object) { ShiftObject(object, delta); });
}

void RestackSelection(StudioCanvas& page, Stacking where) {
    auto* objects = page.Objects();
    if (!objects || page.m_selection.empty())
        return;
    const ObjectSet selected = SetOf(page.m_selection);
    const auto isSelected = [&](CUIObject* object) { return selected.count(object) != 0; };
    switch (where) {
        case Stacking::kForward:
            StepTowardsEnd(objects->begin(), objects->end(), selected);
            break;
        case Stacking::kBackward:
            StepTowardsEnd(objects->rbegin(), objects->rend(), selected);
            break;
        case Stacking::kFront:
            std::stable_partition(objects->begin(), objects->end(), std::not_fn(isSelected));
            break;
        case Stacking::kBack:
            std::stable_partition(objects->begin(), objects->end(), isSelected);
            break;
    }
    page.InvalidateAll(page.m_selection);
    page.MarkModified();
}

void AlignSelection(StudioCanvas& page, Alignment how) {
    if (page.m_selection.size() < 2)
        return;
    const RectF to = Lumo::Normalised(page.m_selection.front()->GetPosition());
    ChangeSelection(page, [&](CUIObject& object) {
        ShiftObject(object, AlignmentShift(to, Lumo::Normalised(object.GetPosition()), how));
    });
}

void RotateSelection(StudioCanvas& page, bool clockwise) {
    if (page.m_selection.empty())
        return;
    const PointF centre = Lumo::CentreOf(BoundsOf(page.m_selection));
    ChangeSelection(page, [&](CUIObject& object) { TurnObject(object, centre, clockwise); });
}

bool CanGroup(const StudioCanvas& page) {
    return page.m_selection.size() >= 2;
}

void GroupSelection(StudioCanvas& page) {
    if (!CanGroup(page))
        return;
    const CUIObjectDeque children = InPageOrder(page);
    page.InvalidateAll(children);
    TakeOffPage(page, children);
    auto* group = static_cast<GroupObject*>(MakeObject(ObjectClass::kGroup).release());
    group->AdoptAll(children);
    page.AddObject(group);
    page.MarkModified();
}

bool CanUngroup(const StudioCanvas& page) {
    return std::any_of(page.m_selection.begin(), page.m_selection.end(),
                       [](CUIObject* object) { return dynamic_cast<GroupObject*>(object) != nullptr; });
}

void UngroupSelection(StudioCanvas& page) {
    auto* objects = page.Objects();
    if (!objects || !CanUngroup(page))
        return;
    CUIObjectDeque chosen;
    for (CUIObject* object : InPageOrder(page)) {
        auto* group = dynamic_cast<GroupObject*>(object);
        if (!group || group->GetChildren().empty()) {
            chosen.push_back(object);
            continue;
        }
        page.InvalidateObject(group);
        page.Deselect(group);
        const auto at = objects->erase(std::find(objects->begin(), objects->end(), object));
        CUIObjectDeque children;
        const auto place = at - objects->begin();
        group->MakeUnGroup(&children);
        objects->insert(objects->begin() + place, children.begin(), children.end());
        chosen.insert(chosen.end(), children.begin(), children.end());
    }
    page.SelectOnly(chosen);
    page.MarkModified();
}

}  // namespace Studio
