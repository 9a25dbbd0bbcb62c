// How a group writes its children and reads over them.
#include <memory>

#include "behaviour/UIObjectList.h"
#include "canvas/UITool.h"
#include "core/UIDocument.h"

namespace Lumo {
namespace {

/// Counts how deep groups lie within groups while an archive is read or written, and refuses what no drawing
/// needs.
class NestingScope {
public:
    NestingScope() {
        if (s_depth >= CUIObjectList::kDeepest)
            AfxThrowArchiveException(CArchiveException::badSchema);
        ++s_depth;
    }
    ~NestingScope() { --s_depth; }
    NestingScope(const NestingScope&) = delete;
    NestingScope& operator=(const NestingScope&) = delete;

private:
    static inline int s_depth = 0;
};

}  // namespace

void CUIObjectList::Serialize(CArchive& ar) {
    CUIObject::Serialize(ar);
    const NestingScope scope;
    if (ar.IsStoring())
        StoreChildren(ar);
    else
        SkipStoredChildren(ar);
}

void CUIObjectList::StoreChildren(CArchive& ar) {
    ar << static_cast<int>(m_children.size());
    ar << static_cast<WORD>(m_bGrouped);
    for (CUIObject* child : m_children) {
        ar << static_cast<int>(child->GetDrawShape());
        child->Serialize(ar);
    }
}

void CUIObjectList::SkipStoredChildren(CArchive& ar) {
    int count = 0;
    WORD grouped = 0;
    ar >> count;
    ar >> grouped;
    m_bGrouped = grouped;
    if (count < 0)
        AfxThrowArchiveException(CArchiveException::badSchema);
    for (int i = 0; i < count; ++i) {
        int kind = 0;
        ar >> kind;
        // Kept: the object only consumes its data, the group takes no children from an archive.
        const std::unique_ptr<CUIObject, void (*)(CUIObject*)> child(
            CUIToolBase::CreateUIObject(Gdiplus::RectF(0, 0, 0, 0), static_cast<DrawShape>(kind)),
            &CUIDocument::DestroyObject);
        child->Serialize(ar);
    }
}

}  // namespace Lumo
