// Reading and changing a property of all selected objects.
#pragma once

#include "core/UIDocument.h"
#include "studio/properties/Property.h"

namespace Studio {

/// What an editor shows of the selected objects.
struct PropertyState {
    /// An object has the property.
    bool enabled = false;
    /// The value that all objects share; nothing when they differ.
    std::optional<PropertyValue> value;

    bool operator==(const PropertyState&) const = default;
};

/// The property of these objects; those that do not have it do not count.
PropertyState ReadProperty(const Property& property, const Lumo::CUIObjectDeque& objects);

/// Gives the property of the page's selected objects a value, as one step that can be undone; steps with the
/// same `mergeKey` (not 0) that follow each other quickly become one. Returns why not, as a sentence: nothing
/// changes then. Empty when it is done, also when all objects have that value already.
CString WriteProperty(const Property& property, StudioCanvas& page, const PropertyValue& value,
                      DWORD mergeKey = 0);

/// A number as it is shown: no more than two digits after the point, none that are not needed.
CString NumberText(float number);

/// Reads a typed number; both "." and "," may stand before its fraction. Otherwise `refusal` says what is
/// wrong.
std::optional<float> ParseNumber(const CString& text, const NumberRange& range, CString& refusal);

/// Reads a typed colour, "3E7BFA" or "#3e7bfa", as 0xRRGGBB.
std::optional<DWORD> ParseColor(const CString& text);

/// Reads a typed opacity of 0 to 100 per cent, with or without "%", as 0 to 255.
std::optional<BYTE> ParseOpacity(const CString& text, CString& refusal);

}  // namespace Studio
