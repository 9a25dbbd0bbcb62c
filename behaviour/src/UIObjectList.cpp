#include "behaviour/UIObjectList.h"

#include <algorithm>

#include "core/Geometry.h"
#include "core/internal/Destruction.h"
#include "core/internal/GraphicsStateScope.h"

namespace Lumo {
namespace {

Gdiplus::RectF Moved(Gdiplus::RectF rect, float dx, float dy) {
    rect.Offset(dx, dy);
    return rect;
}

}  // namespace

CUIObjectList::CUIObjectList() {
    m_nDrawShape = DS_LIST;
    m_strShapeName = L"List";
}

CUIObjectList::CUIObjectList(const Gdiplus::RectF& bounds, DrawShape kind) : CUIObject(bounds, kind) {
    m_strShapeName = L"List";
    SetInitialSize(bounds);
}

CUIObjectList::CUIObjectList(const CUIObjectList& source) : CUIObject(source) {
    *this = source;
}

CUIObjectList& CUIObjectList::operator=(const CUIObjectList& source) {
    if (this == &source)
        return *this;
    CUIObject::operator=(source);
    DetachChildren();
    // Kept: a copy shares the children of its source.
    for (CUIObject* child : source.m_children)
        AppendChild(child);
    m_nInitialWidth = source.m_nInitialWidth;
    m_nInitialHeight = source.m_nInitialHeight;
    m_bGrouped = source.m_bGrouped;
    return *this;
}

CUIObjectList::~CUIObjectList() {
    DetachChildren();
}

void CUIObjectList::SetInitialSize(const Gdiplus::RectF& bounds) {
    m_nInitialWidth = RoundToInt(bounds.Width);
    m_nInitialHeight = RoundToInt(bounds.Height);
    m_bGrouped = TRUE;
}

int CUIObjectList::GetType() {
    return m_nDrawShape;
}

void CUIObjectList::AppendChild(CUIObject* child) {
    if (!child)
        return;
    m_children.push_back(child);
    Destruction::Note(child, this);
}

void CUIObjectList::DetachChildren() {
    for (CUIObject* child : m_children)
        Destruction::Unnote(child, this);
    std::deque<CUIObject*>().swap(m_children);
}

int CUIObjectList::GetDepth() const {
    int depth = 0;
    for (const CUIObject* child : m_children) {
        if (const auto* group = dynamic_cast<const CUIObjectList*>(child))
            depth = (std::max)(depth, group->GetDepth());
    }
    return depth + 1;
}

bool CUIObjectList::Holds(const CUIObject* object) const {
    return std::any_of(m_children.begin(), m_children.end(), [object](const CUIObject* child) {
        const auto* group = dynamic_cast<const CUIObjectList*>(child);
        return child == object || (group && group->Holds(object));
    });
}

void CUIObjectList::MakeGroup(CUIObject* child) {
    if (!child || child == this)
        return;
    const auto* group = dynamic_cast<const CUIObjectList*>(child);
    if (group && group->Holds(this))
        return;
    AppendChild(child);
    const Gdiplus::RectF own = GetPosition();
    child->SetPosition(Moved(child->GetPosition(), -own.X, -own.Y));
    m_bGrouped = TRUE;
}

void CUIObjectList::MakeUnGroup(std::deque<CUIObject*>* out) {
    if (m_children.empty() || !out)
        return;
    const Gdiplus::RectF own = GetPosition();
    for (CUIObject* child : m_children) {
        child->SetPosition(Moved(child->GetPosition(), own.X, own.Y));
        out->push_back(child);
    }
    DetachChildren();
    m_bGrouped = FALSE;
    delete this;
}

void CUIObjectList::NormalizeRect(Gdiplus::RectF& rect) {
    const Gdiplus::RectF own = GetPosition();
    rect.Offset(own.X, own.Y);
}

void CUIObjectList::Draw(Gdiplus::Graphics* g) {
    const Gdiplus::RectF own = GetPosition();
    for (CUIObject* child : m_children) {
        // Kept: the child is not set back after drawing, so every paint moves it on by the group's position.
        child->SetPosition(Moved(child->GetPosition(), own.X, own.Y));
        child->Draw(g);
    }
}

int CUIObjectList::HitTest(Gdiplus::RectF& rect) {
    for (CUIObject* child : m_children) {
        const Gdiplus::RectF position = child->GetPosition();
        const int hit = child->HitTest(rect);
        // Kept: storing the position again folds a dragging offset into the stored point.
        child->SetPosition(position);
        if (hit)
            return 1;
    }
    return 0;
}

void CUIObjectList::Rotate(float angle) {
    const Gdiplus::RectF own = GetPosition();
    Gdiplus::PointF centre = CentreOf(own);
    for (CUIObject* child : m_children) {
        Gdiplus::RectF turned = Moved(child->GetPosition(), own.X, own.Y);
        child->Rotate(angle, turned, centre);
        child->SetPosition(Moved(turned, -own.X, -own.Y));
    }
}

void CUIObjectList::DrawDragImage(Gdiplus::Graphics* g, POINT) {
    if (g == nullptr)
        return;
    const GraphicsStateScope scope(*g);
    const Gdiplus::Pen pen(Gdiplus::Color(0xFF000000), 2.0f);
    g->DrawRectangle(&pen, GetPosition());
}

// Kept: the group itself is not destroyed, unlike any other object.
void CUIObjectList::Release() {
    const std::deque<CUIObject*> children = m_children;
    DetachChildren();
    Destruction::DestroyAll(children);
    Destruction::NoteEmptied(this);
}

}  // namespace Lumo
