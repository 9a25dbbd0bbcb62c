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

// Names that differ only in case have the same key. Comparing them without one would ask the system's tables
// for every letter.
std::wstring KeyOf(const CString& name) {
    std::wstring key(name.GetString(), static_cast<size_t>(name.GetLength()));
    bool plain = true;
    for (wchar_t& c : key) {
        plain = plain && c < 0x80;
        if (c >= L'A' && c <= L'Z')
            c = static_cast<wchar_t>(c + (L'a' - L'A'));
    }
    if (!plain)
        ::CharLowerBuff(key.data(), static_cast<DWORD>(key.size()));
    return key;
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
    m_names.insert(KeyOf(object.GetShapeName()));
    if (const auto* group = AsGroup(object)) {
        for (const CUIObject* child : group->GetChildren())
            Collect(*child);
    }
}

CString UniqueNames::FreeName(const CString& wanted) {
    if (!wanted.IsEmpty() && !m_names.count(KeyOf(wanted)))
        return wanted;
    const CString stem = WithoutNumber(wanted);
    int& number = m_lastNumbers[KeyOf(stem)];
    CString name;
    do
        name.Format(L"%s%d", stem.GetString(), ++number);
    while (m_names.count(KeyOf(name)));
    return name;
}

void UniqueNames::Adopt(CUIObject& object) {
    const CString name = FreeName(object.GetShapeName());
    object.SetShapeName(name);
    m_names.insert(KeyOf(name));
    if (const auto* group = AsGroup(object)) {
        for (CUIObject* child : group->GetChildren())
            Adopt(*child);
    }
}

}  // namespace Studio
