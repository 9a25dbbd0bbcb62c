// Finding free names for objects.
#pragma once

#include "studio/editing/StudioCanvas.h"

#include <map>
#include <set>

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
    struct IgnoringCase {
        bool operator()(const CString& a, const CString& b) const { return a.CompareNoCase(b) < 0; }
    };

    void Collect(const Lumo::CUIObject& object);
    CString FreeName(const CString& wanted);

    std::set<CString, IgnoringCase> m_names;
    std::map<CString, int, IgnoringCase> m_lastNumbers;  // by the name without its number
};

}  // namespace Studio
