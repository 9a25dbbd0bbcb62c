// Undo and redo: every change of a document is recorded as one step that can be taken back and made again.
//
// A command or gesture opens an `EditScope`, tells it what is about to change, and changes it; the step is
// recorded when the scope ends:
//
//     EditScope edit(page, Text::kStepMove);
//     edit.TouchPlace(*object);
//     ShiftObject(*object, delta);
#pragma once

#include "core/UIDocument.h"
#include "studio/app/Texts.h"

#include <functional>
#include <memory>
#include <vector>

namespace Studio {

class GroupObject;
class HistoryStep;
class StudioCanvas;

/// The steps of one document. Unlimited in number; the memory of a step grows with what it changed. Objects
/// that a step took off their page stay alive, and stay the same objects, as long as the step can be undone.
/// The document's modified mark follows the position that was saved.
class History {
public:
    explicit History(Lumo::CUIDocument& document);
    ~History();
    History(const History&) = delete;
    History& operator=(const History&) = delete;

    bool CanUndo() const;
    bool CanRedo() const;
    /// Name of the step that `Undo` would take back, or `Redo` make again: "Move". Empty when there is none.
    CString UndoName() const;
    CString RedoName() const;

    /// Takes the last step back, or makes it again: shows the page concerned, restores the selection of that
    /// moment and repaints what changed. False when there is no such step, or a scope is open.
    bool Undo();
    bool Redo();

    /// Forgets all steps and destroys the objects that only they kept; to be called before the pages go. The
    /// document counts as saved.
    void Clear();
    /// The document is saved as it is now: it counts as unmodified here, wherever undo and redo lead.
    void MarkSaved();
    /// The document differs from its file for a reason that no step describes (a recovered file).
    void MarkUnsaved();

    /// Ends what `EditScope::mergeKey` could join: the next step stands alone.
    void BreakMerging();

    /// Makes a page the one that is shown, before a step of it is undone or redone. Without it the document's
    /// current canvas is set.
    std::function<void(StudioCanvas& page)> showPage;

private:
    friend class EditScope;

    void Open(StudioCanvas& page, Text name, DWORD mergeKey);
    void Close();
    void Abandon();
    bool Travel(bool forward);
    void Replay(HistoryStep& step, bool forward);
    void Record(std::unique_ptr<HistoryStep> step);
    void DropSteps(size_t kept);
    void RefreshModified();

    Lumo::CUIDocument& m_document;
    std::vector<std::unique_ptr<HistoryStep>> m_steps;
    size_t m_done = 0;  // steps before this one are done, the others undone
    size_t m_saved = 0;
    std::unique_ptr<HistoryStep> m_open;
    int m_depth = 0;
    bool m_mayMerge = false;
    bool m_travelling = false;
};

/// One step while it is being made. A scope within another one belongs to the outer one's step. A step that
/// changed nothing is not recorded.
class EditScope {
public:
    /// `name` is the step's name in the menu, without a mnemonic. Steps with the same `mergeKey` (not 0)
    /// that follow each other within a second and touch the same objects become one: a burst of nudges, a
    /// slider that is dragged.
    EditScope(StudioCanvas& page, Text name, DWORD mergeKey = 0);
    /// Records the step.
    ~EditScope();
    EditScope(const EditScope&) = delete;
    EditScope& operator=(const EditScope&) = delete;

    /// The object is about to change in any way, its place in the page's order excepted.
    void Touch(Lumo::CUIObject& object);
    /// The object is about to move, to be resized or to get other points, and nothing else: cheaper.
    void TouchPlace(Lumo::CUIObject& object);
    /// The same for several objects.
    void Touch(const Lumo::CUIObjectDeque& objects);
    void TouchPlace(const Lumo::CUIObjectDeque& objects);
    /// Objects are about to be put on the page, taken off it or reordered. Change the page's list freely
    /// afterwards, and destroy nothing: an object that is in no list at the end belongs to the step.
    void TouchList(StudioCanvas& page);
    /// The same for the children of a group.
    void TouchChildren(GroupObject& group);

    /// Carries out `redo` and records it with `undo`, for changes of pages and the document. What the
    /// closures hold lives as long as the step.
    void Do(std::function<void()> redo, std::function<void()> undo);

    /// Puts everything that was touched back; nothing is recorded, and the scope is over. Only for an
    /// outermost scope.
    void Cancel();

private:
    History* m_history;
};

}  // namespace Studio
