#include "studio/editing/GroupObject.h"

#include "core/Geometry.h"
#include "core/UIObjectPoly.h"
#include "studio/controls/GraphicsStateScope.h"
#include "studio/editing/Geometry.h"

#include <algorithm>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;
using Lumo::CUIObject;

namespace {

// The library moves the rectangle of a child; a line's points have to follow.
void ShiftPointsOnly(CUIObject& object, float dx, float dy) {
    if (auto* poly = dynamic_cast<Lumo::CUIObjectPoly*>(&object)) {
        for (PointF& point : *poly->NormalizePoints())
            point = point + PointF(dx, dy);
    }
}

}  // namespace

GroupObject::GroupObject() {
    RectF none(0.0f, 0.0f, 0.0f, 0.0f);
    Init(Lumo::DS_GROUP, none);
}

void GroupObject::AdoptAll(const std::deque<CUIObject*>& objects) {
    if (objects.empty())
        return;
    RectF bounds = Lumo::Normalised(objects.front()->GetPosition());
    for (CUIObject* object : objects)
        bounds = United(bounds, Lumo::Normalised(object->GetPosition()));
    PutBounds(*this, bounds);
    SetInitialSize(bounds);
    for (CUIObject* object : objects)
        MakeGroup(object);
}

void GroupObject::AdoptStored(CUIObject* child) {
    AppendChild(child);
    m_bGrouped = TRUE;
}

void GroupObject::SetChildren(const std::deque<CUIObject*>& children) {
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): they may be this group's own
    const std::deque<CUIObject*> kept = children;
    DetachChildren();
    for (CUIObject* child : kept)
        AppendChild(child);
}

std::deque<CUIObject*> GroupObject::TakeApart() {
    std::deque<CUIObject*> children = GetChildren();
    const RectF group = GetPosition();
    for (CUIObject* child : children)
        ShiftObject(*child, PointF(group.X, group.Y));
    DetachChildren();
    return children;
}

void GroupObject::Draw(Gdiplus::Graphics* g) {
    const RectF group = GetPosition();
    GraphicsStateScope state(*g);
    g->TranslateTransform(group.X, group.Y);
    for (CUIObject* child : GetChildren())
        child->Draw(g);
}

BOOL GroupObject::HitTest(RectF& rect) {
    const RectF group = GetPosition();
    for (CUIObject* child : GetChildren()) {
        RectF local(rect.X - group.X, rect.Y - group.Y, rect.Width, rect.Height);
        if (child->HitTest(local))
            return TRUE;
    }
    return FALSE;
}

void GroupObject::Serialize(CArchive& ar) {
    CUIObject::Serialize(ar);
}

void GroupObject::MakeGroup(CUIObject* child) {
    const size_t before = GetChildren().size();
    CUIObjectList::MakeGroup(child);
    const RectF group = GetPosition();
    if (GetChildren().size() > before)
        ShiftPointsOnly(*child, -group.X, -group.Y);
}

void GroupObject::MakeUnGroup(std::deque<CUIObject*>* out) {
    const RectF group = GetPosition();
    if (out) {
        for (CUIObject* child : GetChildren())
            ShiftPointsOnly(*child, group.X, group.Y);
    }
    CUIObjectList::MakeUnGroup(out);
}

}  // namespace Studio
