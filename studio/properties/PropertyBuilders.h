// Short forms for the rows of the property tables.
#pragma once

#include "studio/properties/Property.h"

#include <initializer_list>
#include <utility>

namespace Studio {

/// The row with another text within its editor.
Property Inside(Property property, LPCWSTR text);
Property Inside(Property property, Text text);
/// The row put beside the one before it.
Property Joined(Property property);
/// The row for objects that `applies` accepts.
Property For(bool (*applies)(const Lumo::CUIObject&), Property property);

/// A list of choices, values counted from the first one's.
std::function<std::vector<Choice>()> Choices(std::initializer_list<std::pair<int, Text>> rows);
/// The same, values counted from 0.
std::function<std::vector<Choice>()> Choices(std::initializer_list<Text> texts);

/// Why `value` is no file that can be shown as a picture; empty when it is one, or empty itself.
CString CheckPicture(StudioCanvas& page, const PropertyValue& value);

}  // namespace Studio
