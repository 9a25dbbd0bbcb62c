// What happened to a list of objects: which went, which came, and where.
#pragma once

#include "core/UIDocument.h"

#include <vector>

namespace Studio {

/// One object and its index in the list.
struct PlacedObject {
    size_t index;
    Lumo::CUIObject* object;
};

/// The difference of two lists, as small as it can be: an object that only was moved stands in both parts,
/// and all others kept their order. Both parts ascend by index.
struct ListChange {
    std::vector<PlacedObject> removed;   ///< With their indices in the old list.
    std::vector<PlacedObject> inserted;  ///< With their indices in the new list.

    bool IsEmpty() const { return removed.empty() && inserted.empty(); }
};

/// The change that makes `after` of `before`. In each list an object stands once at most.
ListChange CompareLists(const Lumo::CUIObjectDeque& before, const Lumo::CUIObjectDeque& after);

/// Makes the new list of the old one (`forward`), or the old of the new one.
void ApplyChange(Lumo::CUIObjectDeque& list, const ListChange& change, bool forward);

}  // namespace Studio
