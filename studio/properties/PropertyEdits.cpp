#include "studio/properties/PropertyEdits.h"

#include "studio/editing/History.h"
#include "studio/editing/StudioCanvas.h"

#include <cmath>
#include <cwchar>

namespace Studio {

using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

bool Has(const Property& property, const CUIObject& object) {
    return !property.applies || property.applies(object);
}

template <class Part>
void KeepCommon(std::optional<Part>& common, const std::optional<Part>& other) {
    if (common != other)
        common.reset();
}

// Keeps of `common` what `other` shares; false when nothing is left.
bool Narrow(PropertyValue& common, const PropertyValue& other) {
    auto* parts = std::get_if<ColorParts>(&common);
    if (!parts)
        return common == other;
    const auto& others = std::get<ColorParts>(other);
    KeepCommon(parts->rgb, others.rgb);
    KeepCommon(parts->alpha, others.alpha);
    return parts->rgb || parts->alpha;
}

// The value that the object gets: a colour keeps the parts that are not given.
PropertyValue Completed(const PropertyValue& value, const PropertyValue& now) {
    const auto* parts = std::get_if<ColorParts>(&value);
    if (!parts)
        return value;
    const auto& current = std::get<ColorParts>(now);
    return ColorParts{parts->rgb ? parts->rgb : current.rgb, parts->alpha ? parts->alpha : current.alpha};
}

CString RangeRefusal(const NumberRange& range) {
    CString text;
    text.Format(GetText(Text::kRefuseRange), NumberText(range.low).GetString(),
                NumberText(range.high).GetString());
    return text;
}

}  // namespace

ColorParts PartsOf(DWORD argb) {
    return {argb & 0x00FFFFFF, static_cast<BYTE>(argb >> 24)};
}

DWORD WithParts(DWORD argb, const ColorParts& parts) {
    const DWORD alpha = parts.alpha ? static_cast<DWORD>(*parts.alpha) << 24 : argb & 0xFF000000;
    return alpha | (parts.rgb ? *parts.rgb : argb & 0x00FFFFFF);
}

PropertyState ReadProperty(const Property& property, const CUIObjectDeque& objects) {
    PropertyState state;
    if (property.single && objects.size() != 1)
        return state;
    for (CUIObject* object : objects) {
        if (!Has(property, *object))
            continue;
        PropertyValue value = property.get(*object);
        if (!state.enabled) {
            state.enabled = true;
            state.value = std::move(value);
        } else if (!Narrow(*state.value, value)) {
            state.value.reset();
            break;
        }
    }
    return state;
}

CString WriteProperty(const Property& property, StudioCanvas& page, const PropertyValue& value,
                      DWORD mergeKey) {
    if (property.single && page.m_selection.size() != 1)
        return CString();
    if (property.check) {
        CString refusal = property.check(page, value);
        if (!refusal.IsEmpty())
            return refusal;
    }
    CUIObjectDeque changed;
    for (CUIObject* object : page.m_selection) {
        if (Has(property, *object)) {
            const PropertyValue now = property.get(*object);
            if (Completed(value, now) != now)
                changed.push_back(object);
        }
    }
    if (changed.empty())
        return CString();
    {
        EditScope edit(page, property.step, mergeKey);
        if (property.placesOnly)
            edit.TouchPlace(changed);
        else
            edit.Touch(changed);
        page.InvalidateAll(changed);
        for (CUIObject* object : changed)
            property.set(*object, Completed(value, property.get(*object)));
        page.InvalidateAll(changed);
    }
    page.NotifyState();
    return CString();
}

CString NumberText(float number) {
    CString text;
    text.Format(L"%.2f", static_cast<double>(number));
    text.TrimRight(L'0');
    text.TrimRight(L'.');
    return text == L"-0" ? CString(L"0") : text;
}

std::optional<float> ParseNumber(const CString& typed, const NumberRange& range, CString& refusal) {
    CString text = typed;
    text.Trim();
    text.Replace(L',', L'.');
    // Only what people write: no "inf", no hexadecimal digits.
    const bool plain = !text.IsEmpty() && text.SpanIncluding(L"0123456789+-.") == text;
    LPWSTR end = nullptr;
    const double number = plain ? std::wcstod(text, &end) : 0.0;
    if (!plain || *end) {
        refusal = GetText(Text::kRefuseNumber);
    } else if (number < static_cast<double>(range.low) || number > static_cast<double>(range.high)) {
        refusal = RangeRefusal(range);
    } else if (range.whole && number != std::floor(number)) {
        refusal = GetText(Text::kRefuseWhole);
    } else {
        return static_cast<float>(number);
    }
    return std::nullopt;
}

std::optional<DWORD> ParseColor(const CString& typed) {
    CString text = typed;
    text.Trim();
    if (text.Left(1) == L"#")
        text = text.Mid(1);
    if (text.GetLength() != 6 || text.SpanIncluding(L"0123456789ABCDEFabcdef") != text)
        return std::nullopt;
    return std::wcstoul(text, nullptr, 16);
}

std::optional<BYTE> ParseOpacity(const CString& typed, CString& refusal) {
    CString text = typed;
    text.TrimRight(L"% ");
    const auto percent = ParseNumber(text, {0.0f, 100.0f, false}, refusal);
    if (!percent)
        return std::nullopt;
    return static_cast<BYTE>(std::lround(*percent * 2.55f));
}

}  // namespace Studio
