// One step of the history: what changed, before and after.
#pragma once

#include "studio/app/Texts.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/ListChange.h"
#include "studio/editing/StudioCanvas.h"

#include <functional>
#include <unordered_set>
#include <variant>

namespace Studio {

class GroupObject;

/// What is known of an object at one moment: its place alone, or everything as archived bytes.
using ObjectState = std::variant<Geometry, std::vector<BYTE>>;

/// Recorded in three parts: lists and closures in the order they happened, and the states of objects.
/// First it is being recorded, then `Seal` completes it, then it is undone and redone in turn.
class HistoryStep {
public:
    HistoryStep(Lumo::CUIDocument& document, StudioCanvas& page, Text name, DWORD mergeKey);
    /// Destroys the objects that nothing but this step holds, unless they were taken.
    ~HistoryStep();
    HistoryStep(const HistoryStep&) = delete;
    HistoryStep& operator=(const HistoryStep&) = delete;

    Text Name() const { return m_name; }
    StudioCanvas& Page() const { return *m_page; }

    /// Notes an object's state, or a list, as it is before the change; what is known already is left.
    void TouchState(Lumo::CUIObject& object, bool placeOnly);
    void TouchList(StudioCanvas& page);
    void TouchChildren(GroupObject& group);
    void AddAction(std::function<void()> redo, std::function<void()> undo);

    /// Notes how everything is after the change. False when nothing changed.
    bool Seal();
    /// Makes the change, or takes it back.
    void Apply(bool forward);
    /// Whether `next` can be joined to this one: the same objects were changed in the same way just now.
    bool CanAbsorb(const HistoryStep& next) const;
    /// Takes over what `next` led to; `next` is to be thrown away.
    void Absorb(HistoryStep& next);

    /// Gives away the objects that nothing but this step holds; it can only be thrown away afterwards.
    void TakeOrphans(Lumo::CUIObjectDeque& to);

    /// Selects on the step's page what was selected after (`forward`) or before the step.
    void RestoreSelection(bool forward);
    /// Repaints the objects concerned where they are now.
    void Invalidate() const;

private:
    struct StateRecord {
        Lumo::CUIObject* object;
        ObjectState before, after;
    };
    // A list of objects or an action of the host's.
    struct Change {
        StudioCanvas* page = nullptr;
        GroupObject* group = nullptr;
        ListChange list;
        Lumo::CUIObjectDeque before;  // until it is sealed
        std::function<void()> redo, undo;
    };

    Lumo::CUIObjectDeque ListOf(const Change& change) const;
    void PutList(const Change& change, const Lumo::CUIObjectDeque& list) const;
    void SealChanges();
    void SealStates();
    void ApplyToList(const Change& change, bool forward) const;
    Lumo::CUIObjectDeque Orphans() const;

    Lumo::CUIDocument& m_document;
    StudioCanvas* m_page;
    const Text m_name;
    const DWORD m_mergeKey;
    ULONGLONG m_time;
    bool m_done = true;
    std::vector<Change> m_changes;
    std::vector<StateRecord> m_states;
    std::vector<Lumo::CUIObject*> m_selectedBefore, m_selectedAfter;
    // While it is recorded: what is noted already.
    std::unordered_set<Lumo::CUIObject*> m_placed, m_whole;
    std::unordered_set<GroupObject*> m_groups;
};

}  // namespace Studio
