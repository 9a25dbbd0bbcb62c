// The classes of objects that Studio makes, and how a new one looks.
#pragma once

#include "core/UIDocument.h"
#include "core/UIObject.h"

#include <memory>

namespace Studio {

/// Classes of objects; the values are written to files.
enum class ObjectClass : DWORD {
    kNone = 0,
    kRectangle = 1,
    kEllipse = 2,
    kTextBox = 3,
    kLine = 4,
    kPolyLine = 5,
    kGroup = 6,
    kEmbedded = 7,
    // The audio controls have the numbers of their shape kinds.
    kPeqChart = Lumo::DS_CHARTPEQ,
    kBandButton = Lumo::DS_BUTTONBAND,
    kDeviceChart = Lumo::DS_CHARTDEVICE,
    kDeviceButton = Lumo::DS_BUTTONDEVICE,
    kLevelChart = Lumo::DS_CHARTLEVEL,
    kLevelButton = Lumo::DS_BUTTONLEVEL,
    kCrossoverState = Lumo::DS_STATECROSSOVER,
    kGeqState = Lumo::DS_STATEGEQ,
    kPeqState = Lumo::DS_STATEPEQ
};

/// Whether a kind is one of the nine audio controls.
constexpr bool IsControl(Lumo::DrawShape kind) {
    return kind >= Lumo::DS_CHARTPEQ && kind <= Lumo::DS_STATEPEQ;
}

/// Destroys an object that is in no page list, a group with its children.
void ReleaseObject(Lumo::CUIObject* object);
/// Destroys many of them at once, and empties the list: one by one each would be looked for on its page.
void ReleaseObjects(Lumo::CUIObjectDeque& objects);

struct ObjectReleaser {
    void operator()(Lumo::CUIObject* object) const { ReleaseObject(object); }
};

/// An object that no document owns yet.
using ObjectPtr = std::unique_ptr<Lumo::CUIObject, ObjectReleaser>;

/// The class of an object, `kNone` for one that Studio does not make.
ObjectClass ClassOf(const Lumo::CUIObject& object);

/// A new object with the library's defaults; null for a value that is no class.
ObjectPtr MakeObject(ObjectClass objectClass);

/// The shape kind that objects of the class have.
Lumo::DrawShape KindOf(ObjectClass objectClass);

/// A new object of a tool's kind at `rect` (page units) in the style of newly drawn objects; null for a kind
/// that no tool draws.
ObjectPtr MakeDrawnObject(Lumo::DrawShape kind, const Gdiplus::RectF& rect);

}  // namespace Studio
