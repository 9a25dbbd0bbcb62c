#include "studio/editing/PageEdits.h"

#include "studio/editing/GroupObject.h"
#include "studio/editing/History.h"
#include "studio/editing/ObjectFactory.h"
#include "studio/editing/StudioCanvas.h"

#include <algorithm>
#include <unordered_set>

namespace Studio {

using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

using ObjectSet = std::unordered_set<CUIObject*>;

// Far below what a file can hold.
constexpr int kMaxGroupDepth = 32;

ObjectSet SetOf(const CUIObjectDeque& objects) {
    return ObjectSet(objects.begin(), objects.end());
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

GroupObject* AsGroup(CUIObject* object) {
    return dynamic_cast<GroupObject*>(object);
}

}  // namespace

CUIObjectDeque SelectionInOrder(const StudioCanvas& page) {
    CUIObjectDeque ordered;
    if (const auto* objects = page.Objects()) {
        const ObjectSet selected = SetOf(page.m_selection);
        std::copy_if(objects->begin(), objects->end(), std::back_inserter(ordered),
                     [&](CUIObject* object) { return selected.count(object) != 0; });
    }
    return ordered;
}

void RemoveObjects(StudioCanvas& page, const CUIObjectDeque& objects, Text name) {
    auto* list = page.Objects();
    if (!list || objects.empty())
        return;
    const ObjectSet leaving = SetOf(objects);
    EditScope edit(page, name);
    edit.TouchList(page);
    page.InvalidateAll(objects);
    page.Forget(leaving);
    std::erase_if(*list, [&](CUIObject* object) { return leaving.count(object) != 0; });
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
    RemoveObjects(page, CUIObjectDeque(page.m_selection), Text::kStepDelete);
}

void RestackSelection(StudioCanvas& page, Stacking where) {
    auto* objects = page.Objects();
    if (!objects || page.m_selection.empty())
        return;
    const ObjectSet selected = SetOf(page.m_selection);
    const auto isSelected = [&](CUIObject* object) { return selected.count(object) != 0; };
    EditScope edit(page, Text::kStepStack);
    edit.TouchList(page);
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
}

bool CanGroup(const StudioCanvas& page) {
    return page.m_selection.size() >= 2 &&
           std::all_of(page.m_selection.begin(), page.m_selection.end(), [](CUIObject* object) {
               const GroupObject* group = AsGroup(object);
               return !group || group->GetDepth() < kMaxGroupDepth;
           });
}

void GroupSelection(StudioCanvas& page) {
    if (!page.Objects() || !CanGroup(page))
        return;
    const CUIObjectDeque children = SelectionInOrder(page);
    const ObjectSet leaving = SetOf(children);
    EditScope edit(page, Text::kStepGroup);
    auto* group = static_cast<GroupObject*>(MakeObject(ObjectClass::kGroup).release());
    edit.TouchList(page);
    edit.TouchPlace(children);
    edit.TouchChildren(*group);
    page.InvalidateAll(children);
    std::erase_if(*page.Objects(), [&](CUIObject* object) { return leaving.count(object) != 0; });
    group->AdoptAll(children);
    page.AddObject(group);
}

bool CanUngroup(const StudioCanvas& page) {
    return std::any_of(page.m_selection.begin(), page.m_selection.end(), AsGroup);
}

void UngroupSelection(StudioCanvas& page) {
    if (!page.Objects() || !CanUngroup(page))
        return;
    EditScope edit(page, Text::kStepUngroup);
    edit.TouchList(page);
    page.InvalidateAll(page.m_selection);
    const ObjectSet selected = SetOf(page.m_selection);
    CUIObjectDeque objects, chosen;
    for (CUIObject* object : *page.Objects()) {
        const bool isSelected = selected.count(object) != 0;
        GroupObject* group = isSelected ? AsGroup(object) : nullptr;
        if (group && !group->GetChildren().empty()) {
            edit.TouchChildren(*group);
            edit.TouchPlace(group->GetChildren());
            const CUIObjectDeque children = group->TakeApart();
            objects.insert(objects.end(), children.begin(), children.end());
            chosen.insert(chosen.end(), children.begin(), children.end());
            continue;
        }
        objects.push_back(object);
        if (isSelected)
            chosen.push_back(object);
    }
    page.Objects()->swap(objects);
    page.SelectOnly(chosen);
}

}  // namespace Studio
