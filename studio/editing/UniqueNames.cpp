#include "studio/editing/UniqueNames.h"

#include "behaviour/UIObjectList.h"

namespace Studio {

using Lumo::CUIObject;

namespace {

// The kind spares nearly every object of a large page the cast.
const Lumo::CUIObjectList* AsGroup(const CUIObject& object) {
    return object.GetDrawShape() == Lumo::DS_GROUP ? dynamic_cast<const Lumo::CUIObjectList*>(&object)
                                                   : nullptr;
}

CString WithoutNumber(const CString& name) {
    int length = name.GetLength();
    while (length > 0 && name[length - 1] >= L'0' && name[length - 1] <= L'9')
        --length;
    return name.Left(length);
}

}  // namespace

UniqueNames::UniqueNames(const StudioCanvas& page) {
    const auto* objects = page.Objects();
    if (!objects)
        return;
    for (const CUIObject* object : *objects) {
        if (object)
            Collect(*object);
    }
}

void UniqueNames::Collect(const CUIObject& object) {
    m_names.insert(object.GetShapeName());
    if (const auto* group = AsGroup(object)) {
        for (const CUIObject* child : group->GetChildren())
            Collect(*child);
    }
}

CString UniqueNames::FreeName(const CString& wanted) {
    if (!wanted.IsEmpty() && !m_names.count(wanted))
        return wanted;
    const CString stem = WithoutNumber(wanted);
    int& number = m_lastNumbers[stem];
    CString name;
    do
        name.Format(L"%s%d", stem.GetString(), ++number);
    while (m_names.count(name));
    return name;
}

void UniqueNames::Adopt(CUIObject& object) {
    const CString name = FreeName(object.GetShapeName());
    object.SetShapeName(name);
    m_names.insert(name);
    if (const auto* group = AsGroup(object)) {
        for (CUIObject* child : group->GetChildren())
            Adopt(*child);
    }
}

}  // namespace Studio
