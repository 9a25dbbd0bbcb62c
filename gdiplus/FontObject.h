// Families, fonts and formats that callers hold.
#pragma once

#include "gdiplus/Handles.h"

#include <string>
#include <vector>

namespace flat {

struct FamilyObject final : Object {
    static constexpr Kind kFirst = Kind::FontFamily, kLast = Kind::FontFamily;
    explicit FamilyObject(std::wstring value) : name(std::move(value)) {}
    std::wstring name;
};

struct FontObject final : Object {
    static constexpr Kind kFirst = Kind::Font, kLast = Kind::Font;
    std::wstring family;
    REAL size = 0;
    INT style = 0;
    Unit unit = UnitPoint;
};

struct CollectionObject final : Object {
    static constexpr Kind kFirst = Kind::FontCollection, kLast = Kind::FontCollection;
    std::vector<std::wstring> families;
};

struct FormatObject final : Object {
    static constexpr Kind kFirst = Kind::StringFormat, kLast = Kind::StringFormat;
    INT flags = 0;
    LANGID language = 0;
    StringAlignment align = StringAlignmentNear, lineAlign = StringAlignmentNear;
    StringTrimming trimming = StringTrimmingCharacter;
    INT hotkey = 0;
    REAL margin = 1 / 6.0f;  // of an em, at both ends of a line
};

}  // namespace flat
