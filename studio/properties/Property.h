// A property of an object as the property panel sees it: how it is read, checked, written and edited.
#pragma once

#include "core/UIObject.h"
#include "studio/app/Texts.h"

#include <functional>
#include <optional>
#include <variant>
#include <vector>

namespace Studio {

class StudioCanvas;

/// A colour whose parts are edited apart. A part that is missing differs between the objects when it is read,
/// and stays as it is when it is written.
struct ColorParts {
    std::optional<DWORD> rgb;   ///< 0xRRGGBB
    std::optional<BYTE> alpha;  ///< 0 to 255

    bool operator==(const ColorParts&) const = default;
};

/// The parts of an ARGB colour, all there.
ColorParts PartsOf(DWORD argb);
/// `argb` with the parts that are there replaced.
DWORD WithParts(DWORD argb, const ColorParts& parts);

/// A value in an editor: a text, a number, a choice or check mark (0 or 1), a colour.
using PropertyValue = std::variant<CString, float, int, ColorParts>;

/// The editors of the panel.
enum class FieldKind {
    kText,     // CString, in one line
    kCaption,  // CString, in several lines
    kFile,     // CString, a path with a button that asks for it
    kValue,    // CString, names of the device's values, with a button that lists them
    kNumber,   // float
    kChoice,   // int or CString, one of `Property::choices`
    kColor,    // ColorParts
    kCheck,    // int, a box with its text
    kToggle,   // int, a button that stays down
};

/// One of the values of a choice.
struct Choice {
    PropertyValue value;
    CString text;
};

/// What an editor of value names takes from the list.
enum class NameUse {
    kWhole,    // one name
    kFront,    // one name, or the front part that several share: "out1.peq"
    kSeveral,  // names with commas between them
};

/// What a number may be.
struct NumberRange {
    float low;
    float high;
    bool whole = true;
};

/// One property. The functions ask and change one object; `Read` and `Write` in PropertyEdits.h do it for
/// many.
struct Property {
    Text label;  ///< what stands before the editor
    Text step;   ///< name of the undo step of a change
    FieldKind kind;
    std::function<PropertyValue(Lumo::CUIObject&)> get = {};
    std::function<void(Lumo::CUIObject&, const PropertyValue&)> set = {};

    /// Whether an object has the property; empty for one that every object has.
    std::function<bool(const Lumo::CUIObject&)> applies = {};
    /// Why the selected objects of a page cannot have a value, as a sentence; empty when they can.
    std::function<CString(StudioCanvas&, const PropertyValue&)> check = {};
    /// The values of a choice, asked for when its editor is made.
    std::function<std::vector<Choice>()> choices = {};
    NumberRange range = {0.0f, 0.0f};
    NameUse names = NameUse::kWhole;
    /// What stands within the editor: "X" before a number, the text of a check mark, the letter of a toggle.
    CString inside = {};
    /// The editor stands in the row of the property before it, whose label counts for both.
    bool joins = false;
    /// The property only moves or resizes.
    bool placesOnly = false;
    /// Of one object only: not to be edited while several are selected.
    bool single = false;
};

/// Properties under a heading.
struct PropertySection {
    Text title;
    std::vector<Property> properties;
};

}  // namespace Studio
