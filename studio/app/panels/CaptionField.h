// A field for text of several lines.
#pragma once

#include "studio/app/panels/EditField.h"

namespace Studio {

/// Several lines of text: Enter writes them, Ctrl+Enter begins a new line.
class CaptionField : public EditField {
public:
    /// Height of the field, which is larger than that of the others.
    static constexpr int kCaptionHeight = 58;

    using EditField::EditField;

    bool OnKey(UINT key) override;

protected:
    CString Format(const PropertyValue& value) const override { return std::get<CString>(value); }
    std::optional<PropertyValue> Parse(const CString& text, CString&) const override { return text; }
    DWORD EditStyle() const override { return ES_MULTILINE | ES_AUTOVSCROLL; }
};

}  // namespace Studio
