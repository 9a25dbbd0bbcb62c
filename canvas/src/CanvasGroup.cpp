// Grouping and ungrouping.
#include "canvas/UICanvas.h"

#include "behaviour/UIObjectList.h"
#include "canvas/UITool.h"
#include "core/Geometry.h"
#include "core/UIDocument.h"

#include <algorithm>
#include <unordered_set>

namespace Lumo {

namespace {

CUIObjectList* NewGroup(const Gdiplus::RectF& bounds, CUIDocument* document) {
    auto* group = static_cast<CUIObjectList*>(CUIToolBase::CreateUIObject(bounds, DS_LIST));
    group->SetDocument(document);
    group->SetCanvas(document->GetCurrentCanvas());
    return group;
}

bool CanGroup(const CUIObject* object) {
    const auto* group = dynamic_cast<const CUIObjectList*>(object);
    return !group || group->GetDepth() < CUIObjectList::kDeepest;
}

// Hands those of `objects` that are on the page to the group and takes them off the page.
void MoveIntoGroup(CUIObjectList* group, const CUIObjectDeque& objects, CUIObjectDeque& page) {
    std::unordered_set<CUIObject*> rest(page.begin(), page.end());
    for (CUIObject* object : objects) {
        if (object && rest.erase(object))
            group->MakeGroup(object);
    }
    std::erase_if(page, [&](CUIObject* object) { return object && !rest.contains(object); });
}

}  // namespace

void CUICanvas::OnToolsMakeGroup() {
    // Kept: the group's rectangle reaches to the origin.
    const Gdiplus::RectF bounds = RectGdiFromAtl(GetSelectionRect());
    if (bounds.IsEmptyArea() || m_pDocument == nullptr)
        return;
    CUIObjectDeque* page = m_pDocument->GetCanvasObjectList();
    if (page == nullptr || !std::all_of(m_selection.begin(), m_selection.end(), CanGroup))
        return;
    CWaitCursor wait;
    CUIObjectList* group = NewGroup(bounds, m_pDocument);
    MoveIntoGroup(group, m_selection, *page);
    m_pDocument->UpdateAllCanvas(nullptr, 3, &m_selection);

    m_pDocument->AppendObject(group, nullptr);
    m_selection.assign(1, group);
    m_pDocument->UpdateAllCanvas(nullptr, 3, &m_selection);
    UpdateCanvas(nullptr, 2, nullptr);
}

void CUICanvas::OnToolsMakeUngroup() {
    if (m_selection.empty() || m_pDocument == nullptr)
        return;
    auto* group = dynamic_cast<CUIObjectList*>(m_selection.front());
    if (group == nullptr)
        return;
    CWaitCursor wait;
    m_pDocument->RemoveObject(group, 0);  // Kept: it hides the first object of the page, whichever that is
    m_selection.clear();
    group->MakeUnGroup(&m_selection);
    for (CUIObject* child : m_selection)
        m_pDocument->AppendObject(child, nullptr);
    m_pDocument->UpdateAllCanvas(nullptr, 3, &m_selection);
    UpdateCanvas(nullptr, 0, nullptr);
}

}  // namespace Lumo
