// What has to hold for objects wherever they are.
#pragma once

#include "stress/monkey/Journal.h"

#include "behaviour/UIObjectList.h"
#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UICanvas.h"
#include "canvas/UIEdit.h"
#include "core/UIDocument.h"

#include <algorithm>
#include <deque>
#include <unordered_set>
#include <vector>

namespace monkey {

/// All objects that were met so far, on pages and in groups.
using ObjectSet = std::unordered_set<const Lumo::CUIObject*>;

/// Adds objects and their children to `met`; each may be met only once.
inline void Meet(const std::deque<Lumo::CUIObject*>& objects, ObjectSet& met) {
    for (const Lumo::CUIObject* object : objects) {
        Require(object != nullptr, "a page has an empty entry");
        Require(met.insert(object).second, "an object is in two places");
        if (const auto* group = dynamic_cast<const Lumo::CUIObjectList*>(object))
            Meet(group->GetChildren(), met);
    }
}

/// Every selected object is on the page, and selected once.
inline void CheckSelection(const std::deque<Lumo::CUIObject*>& selection,
                           const std::deque<Lumo::CUIObject*>& page) {
    const ObjectSet there(page.begin(), page.end());
    ObjectSet selected;
    for (const Lumo::CUIObject* object : selection) {
        Require(there.contains(object), "a selected object is not on the page");
        Require(selected.insert(object).second, "an object is twice in the selection");
    }
}

/// An editor is open on an object that is there.
inline void CheckEditor(const Lumo::CUICanvas& canvas, const ObjectSet& all) {
    const Lumo::CUIObject* edited = canvas.m_pEdit ? canvas.m_pEdit->GetEditedObject() : nullptr;
    Require(!edited || all.contains(edited), "the editor is open on an object that is gone");
}

/// What `store` writes to an archive.
template <class Store>
std::vector<BYTE> StoredBytes(Store store) {
    CMemFile file(64 * 1024);
    CArchive ar(&file, CArchive::store);
    store(ar);
    ar.Close();
    std::vector<BYTE> bytes(static_cast<size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

/// Lets `load` read bytes from an archive.
template <class Load>
void LoadBytes(std::vector<BYTE>& bytes, Load load) {
    CMemFile file(bytes.data(), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    load(ar);
}

}  // namespace monkey
