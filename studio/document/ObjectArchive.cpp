#include "studio/document/ObjectArchive.h"

#include "core/UIObjectPoly.h"
#include "studio/document/ObjectExtras.h"
#include "studio/editing/EmbeddedObject.h"
#include "studio/editing/GroupObject.h"

#include <cmath>

namespace Studio {

using Gdiplus::PointF;
using Lumo::CUIObject;
using Lumo::CUIObjectPoly;

namespace {

constexpr DWORD kVersionWithExtras = 2;
constexpr int kMaxDepth = 64;
constexpr int kMaxPoints = 65536;
// Far beyond any screen, and far from where float arithmetic or the graphics library would fail.
constexpr float kMaxCoordinate = 1.0e6f;
constexpr float kMaxStroke = 1.0e4f;

void Require(bool sound, Text reason = Text::kFaultContent) {
    if (!sound)
        throw FileFault{reason};
}

bool Within(float value, float limit) {
    return std::isfinite(value) && std::fabs(value) <= limit;
}

void StoreAt(CArchive& ar, CUIObject& object, int depth);
ObjectPtr LoadAt(CArchive& ar, int depth, DWORD version);
void RestoreAt(CArchive& ar, CUIObject& object, int depth, DWORD version);

// The values that the library's record does not keep.
void StoreRest(CArchive& ar, const CUIObject& object) {
    ar << object.GetRemoved() << object.GetRectMode() << object.GetTextAlignment() << object.GetTextUnit()
       << object.GetLineAlignment();
}

void LoadRest(CArchive& ar, CUIObject& object) {
    int removed, rectMode, textAlignment, textUnit, lineAlignment;
    ar >> removed >> rectMode >> textAlignment >> textUnit >> lineAlignment;
    object.SetRemoved(removed != 0);
    object.SetRectMode(rectMode != 0);
    object.SetTextAlignment(textAlignment);
    object.SetTextUnit(textUnit);
    object.SetLineAlignment(lineAlignment);
}

void StoreExtras(CArchive& ar, const CUIObject& object) {
    const ObjectExtras* extras = FindExtras(object);
    ar << static_cast<BYTE>(extras != nullptr);
    if (extras)
        const_cast<ObjectExtras*>(extras)->Serialize(ar);
}

void LoadExtras(CArchive& ar, CUIObject& object) {
    BYTE present;
    ar >> present;
    Require(present <= 1);
    SetExtras(object, nullptr);
    if (!present)
        return;
    ObjectExtras* extras = EditExtras(object);
    Require(extras != nullptr);
    extras->Serialize(ar);
}

void StorePoints(CArchive& ar, CUIObjectPoly& poly) {
    const auto& points = *poly.NormalizePoints();
    ar << poly.GetMaxPoints() << static_cast<DWORD>(points.size());
    for (const PointF& point : points)
        ar << point.X << point.Y;
}

void LoadPoints(CArchive& ar, CUIObjectPoly& poly) {
    int most;
    DWORD count;
    ar >> most >> count;
    Require(most >= 2 && most <= kMaxPoints && count <= static_cast<DWORD>(most));
    poly.SetMaxPoints(most);
    auto& points = *poly.NewPoints(0);
    for (DWORD i = 0; i < count; ++i) {
        PointF point;
        ar >> point.X >> point.Y;
        Require(Within(point.X, kMaxCoordinate) && Within(point.Y, kMaxCoordinate));
        points.push_back(point);
    }
    // Every edit does the same: a record that says something else would not be what it was after an undo.
    poly.RecalcBounds();
}

void StoreChildren(CArchive& ar, const GroupObject& group, int depth) {
    ar << static_cast<DWORD>(group.GetChildren().size());
    for (CUIObject* child : group.GetChildren())
        StoreAt(ar, *child, depth + 1);
}

// A group that has its children already keeps them: each takes over what was stored of it.
void LoadChildren(CArchive& ar, GroupObject& group, int depth, DWORD version) {
    DWORD count;
    ar >> count;
    if (const auto& children = group.GetChildren(); !children.empty()) {
        Require(children.size() == count);
        for (CUIObject* child : children)
            RestoreAt(ar, *child, depth + 1, version);
        return;
    }
    for (DWORD i = 0; i < count; ++i)
        group.AdoptStored(LoadAt(ar, depth + 1, version).release());
}

void CheckRecord(CUIObject& object, ObjectClass objectClass) {
    const Gdiplus::RectF bounds = object.GetPosition();
    Require(object.GetDrawShape() == KindOf(objectClass));
    Require(Within(bounds.X, kMaxCoordinate) && Within(bounds.Y, kMaxCoordinate) &&
            Within(bounds.Width, kMaxCoordinate) && Within(bounds.Height, kMaxCoordinate));
    Require(Within(object.GetLineWidth(), kMaxStroke) && Within(object.GetTextFontSize(), kMaxStroke));
}

// The library adds an offset to the place at every reading and leaves it in place at every writing: an object
// would wander.
void FoldOffset(CUIObject& object) {
    Lumo::CUICoordinate& coordinate = object.GetCoordinate();
    const Gdiplus::RectF bounds = coordinate.GetPosition();
    coordinate.SetPositionOffset({0.0f, 0.0f});
    coordinate.SetPosition(bounds);
}

void StoreAt(CArchive& ar, CUIObject& object, int depth) {
    const ObjectClass objectClass = ClassOf(object);
    Require(objectClass != ObjectClass::kNone, Text::kFaultClass);
    Require(depth < kMaxDepth, Text::kFaultDepth);
    ar << static_cast<DWORD>(objectClass);
    object.Serialize(ar);
    StoreRest(ar, object);
    StoreExtras(ar, object);
    if (auto* poly = dynamic_cast<CUIObjectPoly*>(&object))
        StorePoints(ar, *poly);
    else if (auto* group = dynamic_cast<GroupObject*>(&object))
        StoreChildren(ar, *group, depth);
    else if (auto* embedded = dynamic_cast<EmbeddedObject*>(&object))
        embedded->StoreContents(ar);
}

void LoadInto(CArchive& ar, CUIObject& object, ObjectClass objectClass, int depth, DWORD version) {
    object.Serialize(ar);
    CheckRecord(object, objectClass);
    FoldOffset(object);
    LoadRest(ar, object);
    if (version >= kVersionWithExtras)
        LoadExtras(ar, object);
    if (auto* poly = dynamic_cast<CUIObjectPoly*>(&object))
        LoadPoints(ar, *poly);
    else if (auto* group = dynamic_cast<GroupObject*>(&object))
        LoadChildren(ar, *group, depth, version);
    else if (auto* embedded = dynamic_cast<EmbeddedObject*>(&object))
        embedded->LoadContents(ar);
}

ObjectPtr LoadAt(CArchive& ar, int depth, DWORD version) {
    Require(depth < kMaxDepth, Text::kFaultDepth);
    DWORD code;
    ar >> code;
    const auto objectClass = static_cast<ObjectClass>(code);
    ObjectPtr object = MakeObject(objectClass);
    Require(object != nullptr);
    LoadInto(ar, *object, objectClass, depth, version);
    return object;
}

void RestoreAt(CArchive& ar, CUIObject& object, int depth, DWORD version) {
    DWORD code;
    ar >> code;
    const auto objectClass = static_cast<ObjectClass>(code);
    Require(depth < kMaxDepth && objectClass == ClassOf(object));
    LoadInto(ar, object, objectClass, depth, version);
}

}  // namespace

void StoreObject(CArchive& ar, CUIObject& object) {
    StoreAt(ar, object, 0);
}

ObjectPtr LoadObject(CArchive& ar, DWORD version) {
    return LoadAt(ar, 0, version);
}

void RestoreObject(CArchive& ar, CUIObject& object) {
    RestoreAt(ar, object, 0, kArchiveVersion);
}

}  // namespace Studio
