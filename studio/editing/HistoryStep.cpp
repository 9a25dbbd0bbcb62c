#include "studio/editing/HistoryStep.h"

#include "studio/document/ObjectArchive.h"
#include "studio/editing/GroupObject.h"

#include <algorithm>
#include <utility>

namespace Studio {

using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

constexpr ULONGLONG kMergeTime = 1000;  // milliseconds

std::vector<BYTE> StoreBytes(CUIObject& object) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    StoreObject(ar, object);
    ar.Close();
    std::vector<BYTE> bytes(static_cast<size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

void RestoreBytes(CUIObject& object, const std::vector<BYTE>& bytes) {
    CMemFile file(const_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    try {
        RestoreObject(ar, object);
    } catch (const FileFault&) {
        // A value beyond what a file may hold: it is restored, and only what stands behind it is not.
    }
    ar.Close();
}

// An object that cannot be archived (of a foreign class) is remembered by its place.
ObjectState Capture(CUIObject& object, bool placeOnly) {
    if (!placeOnly) {
        try {
            return StoreBytes(object);
        } catch (const FileFault&) {
        }
    }
    return CaptureGeometry(object);
}

void Restore(CUIObject& object, const ObjectState& state) {
    if (const auto* place = std::get_if<Geometry>(&state))
        RestoreGeometry(object, *place);
    else
        RestoreBytes(object, std::get<std::vector<BYTE>>(state));
}

bool SamePlace(const Geometry& a, const Geometry& b) {
    const auto samePoint = [](const Gdiplus::PointF& p, const Gdiplus::PointF& q) {
        return p.X == q.X && p.Y == q.Y;
    };
    return a.bounds.X == b.bounds.X && a.bounds.Y == b.bounds.Y && a.bounds.Width == b.bounds.Width &&
           a.bounds.Height == b.bounds.Height &&
           std::equal(a.points.begin(), a.points.end(), b.points.begin(), b.points.end(), samePoint) &&
           std::equal(a.children.begin(), a.children.end(), b.children.begin(), b.children.end(), SamePlace);
}

bool SameState(const ObjectState& a, const ObjectState& b) {
    if (a.index() != b.index())
        return false;
    if (const auto* place = std::get_if<Geometry>(&a))
        return SamePlace(*place, std::get<Geometry>(b));
    return std::get<std::vector<BYTE>>(a) == std::get<std::vector<BYTE>>(b);
}

std::vector<CUIObject*> Selected(const StudioCanvas& page) {
    return {page.m_selection.begin(), page.m_selection.end()};
}

}  // namespace

HistoryStep::HistoryStep(Lumo::CUIDocument& document, StudioCanvas& page, Text name, DWORD mergeKey)
    : m_document(document),
      m_page(&page),
      m_name(name),
      m_mergeKey(mergeKey),
      m_time(::GetTickCount64()),
      m_selectedBefore(Selected(page)) {}

HistoryStep::~HistoryStep() {
    CUIObjectDeque orphans = Orphans();
    if (!orphans.empty())
        ReleaseObjects(orphans);
}

void HistoryStep::TakeOrphans(CUIObjectDeque& to) {
    const CUIObjectDeque orphans = Orphans();
    to.insert(to.end(), orphans.begin(), orphans.end());
    for (Change& change : m_changes)
        change.list = {};
}

// Objects that stand in no list on this side of the step: those that went and did not come elsewhere, or the
// other way round. Objects that changed from the page to a group or back are still held.
CUIObjectDeque HistoryStep::Orphans() const {
    std::unordered_set<CUIObject*> held;
    CUIObjectDeque orphans;
    for (const Change& change : m_changes) {
        for (const PlacedObject& placed : m_done ? change.list.inserted : change.list.removed)
            held.insert(placed.object);
    }
    for (const Change& change : m_changes) {
        for (const PlacedObject& placed : m_done ? change.list.removed : change.list.inserted) {
            if (placed.object && held.insert(placed.object).second)
                orphans.push_back(placed.object);
        }
    }
    return orphans;
}

void HistoryStep::TouchState(CUIObject& object, bool placeOnly) {
    if (m_whole.count(&object) || (placeOnly && !m_placed.insert(&object).second))
        return;
    if (!placeOnly)
        m_whole.insert(&object);
    m_states.push_back({&object, Capture(object, placeOnly), {}});
}

void HistoryStep::TouchList(StudioCanvas& page) {
    const auto isIt = [&](const Change& change) { return change.page == &page; };
    if (!page.Objects() || std::any_of(m_changes.begin(), m_changes.end(), isIt))
        return;
    Change change;
    change.page = &page;
    change.before = *page.Objects();
    m_changes.push_back(std::move(change));
}

void HistoryStep::TouchChildren(GroupObject& group) {
    if (!m_groups.insert(&group).second)
        return;
    Change change;
    change.group = &group;
    change.before = group.GetChildren();
    m_changes.push_back(std::move(change));
}

void HistoryStep::AddAction(std::function<void()> redo, std::function<void()> undo) {
    Change change;
    change.redo = std::move(redo);
    change.undo = std::move(undo);
    m_changes.push_back(std::move(change));
}

CUIObjectDeque HistoryStep::ListOf(const Change& change) const {
    if (change.group)
        return change.group->GetChildren();
    const auto* objects = m_document.GetCanvasObjectList(change.page);
    return objects ? *objects : CUIObjectDeque();
}

void HistoryStep::PutList(const Change& change, const CUIObjectDeque& list) const {
    if (change.group) {
        change.group->SetChildren(list);
        return;
    }
    auto* objects = m_document.GetCanvasObjectList(change.page);
    if (!objects)
        return;
    // What leaves the page must not stay selected.
    std::unordered_set<CUIObject*> concerned;
    for (const auto* part : {&change.list.removed, &change.list.inserted}) {
        for (const PlacedObject& placed : *part)
            concerned.insert(placed.object);
    }
    change.page->Forget(concerned);
    *objects = list;
}

void HistoryStep::SealChanges() {
    for (Change& change : m_changes) {
        if (change.redo)
            continue;
        change.list = CompareLists(change.before, ListOf(change));
        CUIObjectDeque().swap(change.before);
    }
    std::erase_if(m_changes, [](const Change& change) { return !change.redo && change.list.IsEmpty(); });
}

void HistoryStep::SealStates() {
    for (StateRecord& record : m_states)
        record.after = Capture(*record.object, std::holds_alternative<Geometry>(record.before));
    std::erase_if(m_states, [](const StateRecord& record) { return SameState(record.before, record.after); });
    m_states.shrink_to_fit();
    std::unordered_set<CUIObject*>().swap(m_placed);
    std::unordered_set<CUIObject*>().swap(m_whole);
    std::unordered_set<GroupObject*>().swap(m_groups);
}

bool HistoryStep::Seal() {
    SealChanges();
    SealStates();
    m_selectedAfter = Selected(*m_page);
    return !m_changes.empty() || !m_states.empty();
}

void HistoryStep::ApplyToList(const Change& change, bool forward) const {
    CUIObjectDeque list = ListOf(change);
    ApplyChange(list, change.list, forward);
    PutList(change, list);
}

void HistoryStep::Apply(bool forward) {
    const auto apply = [&](const Change& change) {
        if (!change.redo)
            ApplyToList(change, forward);
        else if (forward)
            change.redo();
        else
            change.undo();
    };
    if (forward)
        std::for_each(m_changes.begin(), m_changes.end(), apply);
    else
        std::for_each(m_changes.rbegin(), m_changes.rend(), apply);
    m_done = forward;
    // An object may have been noted twice, the second time in full: backwards the first note comes last.
    if (forward) {
        for (const StateRecord& record : m_states)
            Restore(*record.object, record.after);
    } else {
        for (auto record = m_states.rbegin(); record != m_states.rend(); ++record)
            Restore(*record->object, record->before);
    }
}

bool HistoryStep::CanAbsorb(const HistoryStep& next) const {
    const auto sameObject = [](const StateRecord& a, const StateRecord& b) {
        return a.object == b.object && a.before.index() == b.before.index();
    };
    return m_mergeKey != 0 && m_mergeKey == next.m_mergeKey && m_page == next.m_page &&
           next.m_time - m_time <= kMergeTime && m_changes.empty() && next.m_changes.empty() &&
           std::equal(m_states.begin(), m_states.end(), next.m_states.begin(), next.m_states.end(),
                      sameObject);
}

void HistoryStep::Absorb(HistoryStep& next) {
    for (size_t i = 0; i < m_states.size(); ++i)
        m_states[i].after = std::move(next.m_states[i].after);
    m_selectedAfter = std::move(next.m_selectedAfter);
    m_time = next.m_time;
}

void HistoryStep::RestoreSelection(bool forward) {
    const auto* objects = m_document.GetCanvasObjectList(m_page);
    if (!objects)
        return;
    const auto& wanted = forward ? m_selectedAfter : m_selectedBefore;
    const std::unordered_set<CUIObject*> set(wanted.begin(), wanted.end());
    std::unordered_set<CUIObject*> there;
    if (!set.empty()) {
        for (CUIObject* object : *objects) {
            if (set.count(object))
                there.insert(object);
        }
    }
    CUIObjectDeque chosen;
    std::copy_if(wanted.rbegin(), wanted.rend(), std::back_inserter(chosen),
                 [&](CUIObject* object) { return there.count(object) != 0; });
    m_page->SelectOnly(chosen);
}

void HistoryStep::Invalidate() const {
    if (!m_document.GetCanvasObjectList(m_page))
        return;
    CUIObjectDeque concerned;
    for (const StateRecord& record : m_states)
        concerned.push_back(record.object);
    for (const Change& change : m_changes) {
        if (change.page != m_page)
            continue;
        for (const PlacedObject& placed : change.list.removed)
            concerned.push_back(placed.object);
        for (const PlacedObject& placed : change.list.inserted)
            concerned.push_back(placed.object);
    }
    std::erase(concerned, nullptr);
    m_page->InvalidateAll(concerned);
}

}  // namespace Studio
