// Finding free names for objects.
#pragma once

#include "studio/editing/StudioCanvas.h"

#include <string>
#include <unordered_map>
#include <unordered_set>

namespace Studio {

/// All names in use on a page, those of children of groups included. Made once, it names any number of new
/// objects quickly.
class UniqueNames {
public:
    explicit UniqueNames(const StudioCanvas& page);

    /// Gives the object, and the children of a group, names that are free: the one it has, or the same with
    /// another number behind it.
    void Adopt(Lumo::CUIObject& object);

private:
    void Collect(const Lumo::CUIObject& object);
    CString FreeName(const CString& wanted);

    // By `KeyOf` the name.
    std::unordered_set<std::wstring> m_names;
    std::unordered_map<std::wstring, int> m_lastNumbers;  // by the name without its number
};

}  // namespace Studio
