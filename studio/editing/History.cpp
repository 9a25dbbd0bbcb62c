#include "studio/editing/History.h"

#include "studio/editing/HistoryStep.h"
#include "studio/editing/ObjectFactory.h"

#include <algorithm>
#include <utility>

namespace Studio {

using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

constexpr size_t kNever = static_cast<size_t>(-1);

}  // namespace

History::History(Lumo::CUIDocument& document) : m_document(document) {}

History::~History() = default;

bool History::CanUndo() const {
    return m_done > 0;
}

bool History::CanRedo() const {
    return m_done < m_steps.size();
}

CString History::UndoName() const {
    return CanUndo() ? GetPlainText(m_steps[m_done - 1]->Name()) : CString();
}

CString History::RedoName() const {
    return CanRedo() ? GetPlainText(m_steps[m_done]->Name()) : CString();
}

bool History::Undo() {
    return CanUndo() && Travel(false);
}

bool History::Redo() {
    return CanRedo() && Travel(true);
}

bool History::Travel(bool forward) {
    if (m_open || m_travelling)
        return false;
    HistoryStep& step = *m_steps[forward ? m_done : m_done - 1];
    StudioCanvas& page = step.Page();
    const bool there = m_document.GetCanvasObjectList(&page) != nullptr;
    if (there && m_document.GetCurrentCanvas() != &page) {
        if (showPage)
            showPage(page);
        else
            m_document.SetCurrentCanvas(&page);
    }
    Replay(step, forward);
    m_done = forward ? m_done + 1 : m_done - 1;
    m_mayMerge = false;
    RefreshModified();
    return true;
}

void History::Replay(HistoryStep& step, bool forward) {
    m_travelling = true;
    step.Invalidate();
    step.Apply(forward);
    step.RestoreSelection(forward);
    step.Invalidate();
    m_travelling = false;
}

// The document's own mark is set by many of its operations, whether or not they are part of a step.
void History::RefreshModified() {
    m_document.SetModifiedFlag(m_done != m_saved);
    auto* shown = dynamic_cast<StudioCanvas*>(m_document.GetCurrentCanvas());
    if (shown)
        shown->NotifyState();
}

void History::Clear() {
    m_open.reset();
    DropSteps(0);
    m_done = m_saved = 0;
    m_document.SetModifiedFlag(0);
}

void History::MarkSaved() {
    m_saved = m_done;
    m_mayMerge = false;
    m_document.SetModifiedFlag(0);
}

void History::MarkUnsaved() {
    m_saved = kNever;
    m_document.SetModifiedFlag(1);
}

void History::BreakMerging() {
    m_mayMerge = false;
}

void History::Open(StudioCanvas& page, Text name, DWORD mergeKey) {
    if (m_depth++ == 0 && !m_travelling)
        m_open = std::make_unique<HistoryStep>(m_document, page, name, mergeKey);
}

void History::Close() {
    if (--m_depth > 0 || !m_open)
        return;
    std::unique_ptr<HistoryStep> step = std::move(m_open);
    if (step->Seal())
        Record(std::move(step));
    RefreshModified();
}

// The objects of all steps go at once: one after the other, each would be looked for on every page. The
// youngest step is the first to go: it may hold what an older one refers to.
void History::DropSteps(size_t kept) {
    CUIObjectDeque orphans;
    for (size_t i = kept; i < m_steps.size(); ++i)
        m_steps[i]->TakeOrphans(orphans);
    ReleaseObjects(orphans);
    while (m_steps.size() > kept)
        m_steps.pop_back();
}

void History::Record(std::unique_ptr<HistoryStep> step) {
    if (m_saved != kNever && m_saved > m_done)
        m_saved = kNever;
    DropSteps(m_done);
    if (m_mayMerge && m_done > 0 && m_done != m_saved && m_steps.back()->CanAbsorb(*step)) {
        m_steps.back()->Absorb(*step);
    } else {
        m_steps.push_back(std::move(step));
        ++m_done;
    }
    m_mayMerge = true;
}

void History::Abandon() {
    if (--m_depth > 0 || !m_open)
        return;
    const std::unique_ptr<HistoryStep> step = std::move(m_open);
    if (step->Seal())
        Replay(*step, false);
    RefreshModified();
}

EditScope::EditScope(StudioCanvas& page, Text name, DWORD mergeKey) : m_history(&page.Edits()) {
    m_history->Open(page, name, mergeKey);
}

EditScope::~EditScope() {
    if (m_history)
        m_history->Close();
}

void EditScope::Cancel() {
    if (History* history = std::exchange(m_history, nullptr))
        history->Abandon();
}

void EditScope::Touch(CUIObject& object) {
    if (m_history && m_history->m_open)
        m_history->m_open->TouchState(object, false);
}

void EditScope::TouchPlace(CUIObject& object) {
    if (m_history && m_history->m_open)
        m_history->m_open->TouchState(object, true);
}

void EditScope::Touch(const CUIObjectDeque& objects) {
    for (CUIObject* object : objects)
        Touch(*object);
}

void EditScope::TouchPlace(const CUIObjectDeque& objects) {
    for (CUIObject* object : objects)
        TouchPlace(*object);
}

void EditScope::TouchList(StudioCanvas& page) {
    if (m_history && m_history->m_open)
        m_history->m_open->TouchList(page);
}

void EditScope::TouchChildren(GroupObject& group) {
    if (m_history && m_history->m_open)
        m_history->m_open->TouchChildren(group);
}

void EditScope::Do(std::function<void()> redo, std::function<void()> undo) {
    redo();
    if (m_history && m_history->m_open)
        m_history->m_open->AddAction(std::move(redo), std::move(undo));
}

}  // namespace Studio
