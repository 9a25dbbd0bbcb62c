#include "core/internal/Destruction.h"

#include "behaviour/UIObjectList.h"
#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UICanvas.h"
#include "canvas/UIEdit.h"

#include <algorithm>

namespace Lumo {

namespace {

enum class Stage { kWaiting, kReleasing, kEmptied };

// The objects that are being destroyed. Each is in here until its destructor has run or its `Release` has let
// it live.
std::unordered_map<CUIObject*, Stage>& Doomed() {
    static std::unordered_map<CUIObject*, Stage> doomed;
    return doomed;
}

std::vector<const CUIObject**>& Watched() {
    static std::vector<const CUIObject**> watched;
    return watched;
}

bool IsWaiting(CUIObject* object) {
    const auto entry = Doomed().find(object);
    return entry != Doomed().end() && entry->second == Stage::kWaiting;
}

}  // namespace

std::unordered_multimap<CUIObject*, Destruction::Holder>& Destruction::Notes() {
    static std::unordered_multimap<CUIObject*, Holder> notes;
    return notes;
}

void Destruction::Note(CUIObject* object, Holder holder) {
    const auto [first, last] = Notes().equal_range(object);
    if (std::none_of(first, last, [&](const auto& note) { return note.second == holder; }))
        Notes().emplace(object, holder);
}

void Destruction::Unnote(CUIObject* object, Holder holder) {
    const auto [first, last] = Notes().equal_range(object);
    const auto note = std::find_if(first, last, [&](const auto& entry) { return entry.second == holder; });
    if (note != last)
        Notes().erase(note);
}

void Destruction::TakeHolders(CUIObject* object, std::set<Holder>& holders) {
    const auto [first, last] = Notes().equal_range(object);
    for (auto note = first; note != last; ++note)
        holders.insert(note->second);
    Notes().erase(first, last);
}

// While the object is whole: a host's page may look at what it is to repaint.
void Destruction::Repaint(CUIObject* object, const std::set<Holder>& holders) {
    for (const Holder& holder : holders) {
        CUICanvas* const* canvas = std::get_if<CUICanvas*>(&holder);
        if (!canvas || std::ranges::find(CUICanvas::Canvases(), *canvas) == CUICanvas::Canvases().end())
            continue;
        const auto shows = [&](CUIDocument* document) {
            const auto* page = document->GetCanvasObjectList(*canvas);
            return page && std::ranges::find(*page, object) != page->end();
        };
        if (std::ranges::any_of(CUIDocument::Documents(), shows))
            (*canvas)->InvalidateObject(object);
    }
}

template <class IsDoomed>
void Destruction::Forget(const std::set<Holder>& holders, IsDoomed isDoomed) {
    for (const Holder& holder : holders) {
        if (const auto* group = std::get_if<CUIObjectList*>(&holder)) {
            std::erase_if((*group)->m_children, isDoomed);
            continue;
        }
        for (CUIDocument* document : CUIDocument::Documents())
            if (auto* page = document->GetCanvasObjectList(std::get<CUICanvas*>(holder)))
                std::erase_if(*page, isDoomed);
    }
    const std::vector<CUICanvas*>& canvases = CUICanvas::Canvases();
    for (CUICanvas* canvas : canvases)
        std::erase_if(canvas->m_selection, isDoomed);
    // By index: a window that goes sends messages to its host.
    for (size_t i = 0; i < canvases.size(); ++i) {  // NOLINT(modernize-loop-convert)
        CUIEdit* editor = canvases[i]->m_pEdit;
        if (editor && isDoomed(editor->GetEditedObject()))
            editor->DestroyWindow();
    }
}

void Destruction::Forget(CUIObject* object) {
    std::set<Holder> holders;
    TakeHolders(object, holders);
    if (!holders.empty())
        Forget(holders, [object](CUIObject* entry) { return entry == object; });
}

void Destruction::Destroy(CUIObject* object) {
    std::set<Holder> holders;
    TakeHolders(object, holders);
    Repaint(object, holders);
    if (!holders.empty())
        Forget(holders, [object](CUIObject* entry) { return entry == object; });
    Release(object);
}

void Destruction::DestroyAll(const CUIObjectDeque& objects) {
    std::set<Holder> holders;
    for (CUIObject* object : objects) {
        if (!object)
            continue;
        TakeHolders(object, holders);
        Doomed().emplace(object, Stage::kWaiting);
    }
    if (!holders.empty())
        Forget(holders, IsWaiting);
    for (CUIObject* object : objects)
        if (IsWaiting(object))
            Release(object);
}

void Destruction::Release(CUIObject* object) {
    Stage& stage = Doomed()[object];
    if (stage != Stage::kWaiting)
        return;
    stage = Stage::kReleasing;
    object->Release();
    const auto entry = Doomed().find(object);
    if (entry == Doomed().end())
        return;
    const bool emptied = entry->second == Stage::kEmptied;
    Doomed().erase(entry);
    if (emptied)
        delete object;
}

void Destruction::Watch(const CUIObject** pointer) {
    Watched().push_back(pointer);
}

void Destruction::NoteEmptied(CUIObjectList* group) {
    const auto entry = Doomed().find(group);
    if (entry != Doomed().end())
        entry->second = Stage::kEmptied;
}

void Destruction::NoteEnded(CUIObject* object) {
    Forget(object);
    Doomed().erase(object);
    for (const CUIObject** pointer : Watched())
        if (*pointer == object)
            *pointer = nullptr;
}

}  // namespace Lumo
