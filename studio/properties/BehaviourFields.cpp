#include "studio/properties/BehaviourFields.h"

#include "studio/device/Device.h"
#include "studio/properties/PropertyEdits.h"

#include <algorithm>
#include <type_traits>

namespace Studio {

using Lumo::CUIObject;

namespace {

constexpr size_t kArgumentCount = std::extent_v<decltype(CPrefButton::m_strArguments)>;
constexpr size_t kMostLines = 16;
// A line that has no colour of its own.
constexpr int kAutomatic = -1;

// What an object without extras has.
const ObjectExtras& ExtrasOf(const CUIObject& object) {
    static const ObjectExtras none;
    const ObjectExtras* extras = FindExtras(object);
    return extras ? *extras : none;
}

// Objects that keep extras; groups act through their children.
bool HasExtras(const CUIObject& object) {
    return dynamic_cast<const ExtrasHolder*>(&object) != nullptr;
}

Property Row(Text label, FieldKind kind) {
    return {.label = label, .step = Text::kStepBehaviour, .kind = kind, .applies = HasExtras};
}

// The field of the object's own extras, to be written.
template <class Value>
Value& Writable(CUIObject& object, const FieldOf<Value>& field) {
    return const_cast<Value&>(field(*EditExtras(object)));
}

template <class Number>
Property NumberRow(Text label, NumberRange range, FieldOf<Number> field) {
    Property property = Row(label, FieldKind::kNumber);
    property.range = range;
    property.get = [field](CUIObject& object) { return static_cast<float>(field(ExtrasOf(object))); };
    property.set = [field](CUIObject& object, const PropertyValue& value) {
        Writable(object, field) = static_cast<Number>(std::get<float>(value));
    };
    return property;
}

CString NoValue(const CString& name) {
    CString refusal;
    refusal.Format(GetText(Text::kRefuseNoValue), name.GetString());
    return refusal;
}

// A name that the device knows, or none.
CString CheckValueName(StudioCanvas&, const PropertyValue& value) {
    const CString name = CString(std::get<CString>(value)).Trim();
    return name.IsEmpty() || SampleDevice().Find(name) >= 0 ? CString() : NoValue(name);
}

// A binding may also be the front part that several names share.
CString CheckBinding(StudioCanvas&, const PropertyValue& value) {
    const CString name = CString(std::get<CString>(value)).Trim();
    const Device& device = SampleDevice();
    for (int i = 0; i < device.Count(); ++i) {
        if (device.Info(i).name.Left(name.GetLength()).CompareNoCase(name) == 0)
            return CString();
    }
    return NoValue(name);
}

Property CodeRow(Text label, FieldKind kind, const FieldOf<int>& field) {
    Property property = Row(label, kind);
    property.get = [field](CUIObject& object) { return field(ExtrasOf(object)); };
    property.set = [field](CUIObject& object, const PropertyValue& value) {
        Writable(object, field) = std::get<int>(value);
    };
    return property;
}

// The words between commas; an empty one at the end does not count.
std::vector<CString> Split(const CString& text) {
    std::vector<CString> words;
    int from = 0;
    while (from < text.GetLength()) {
        int to = text.Find(L',', from);
        if (to < 0)
            to = text.GetLength();
        words.push_back(text.Mid(from, to - from).Trim());
        from = to + 1;
    }
    return words;
}

CString Join(const std::vector<CString>& words) {
    CString text;
    for (size_t i = 0; i < words.size(); ++i)
        text += (i ? L", " : L"") + words[i];
    return text;
}

std::vector<CString> LineNames(const ObjectExtras& extras) {
    std::vector<CString> names;
    for (const CPrefTrendLine* line : extras.prefs.m_trend.m_lines)
        names.push_back(line ? line->m_strName : CString());
    return names;
}

bool HasTrendLines(const CUIObject& object) {
    return HasExtras(object) && !ExtrasOf(object).prefs.m_trend.m_lines.empty();
}

bool IsAutomatic(const CString& word) {
    return word.IsEmpty() || word.CompareNoCase(GetText(Text::kColorAuto)) == 0;
}

int LineColor(const CString& word) {
    if (IsAutomatic(word))
        return kAutomatic;
    const DWORD rgb = ParseColor(word).value_or(0);
    // An opaque white would be the code of the automatic colour.
    return static_cast<int>(rgb | (rgb == 0x00FFFFFF ? 0xFE000000 : 0xFF000000));
}

std::vector<CString> LineColors(const ObjectExtras& extras) {
    std::vector<CString> words;
    for (const CPrefTrendLine* line : extras.prefs.m_trend.m_lines) {
        CString word = GetText(Text::kColorAuto);
        if (line && line->m_nColor != kAutomatic)
            word.Format(L"%06X", static_cast<unsigned>(line->m_nColor) & 0xFFFFFF);
        words.push_back(word);
    }
    return words;
}

// Lines that stay keep their width and colour.
void SetLineNames(ObjectExtras& extras, const std::vector<CString>& names) {
    auto& lines = extras.prefs.m_trend.m_lines;
    while (lines.size() > names.size()) {
        delete lines.back();
        lines.pop_back();
    }
    while (lines.size() < names.size())
        lines.push_back(new CPrefTrendLine);
    auto name = names.begin();
    for (CPrefTrendLine* line : lines)
        line->m_strName = *name++;
}

}  // namespace

Property RecordText(Text label, const FieldOf<CString>& field) {
    Property property = Row(label, FieldKind::kText);
    property.get = [field](CUIObject& object) { return field(ExtrasOf(object)); };
    property.set = [field](CUIObject& object, const PropertyValue& value) {
        Writable(object, field) = std::get<CString>(value);
    };
    return property;
}

Property RecordValueName(const FieldOf<CString>& field) {
    Property property = RecordText(Text::kPropValueName, field);
    property.kind = FieldKind::kValue;
    property.check = CheckValueName;
    property.set = [field](CUIObject& object, const PropertyValue& value) {
        Writable(object, field) = CString(std::get<CString>(value)).Trim();
    };
    return property;
}

Property RecordNumber(Text label, NumberRange range, FieldOf<int> field) {
    return NumberRow(label, range, std::move(field));
}

Property RecordNumber(Text label, NumberRange range, FieldOf<long> field) {
    return NumberRow(label, range, std::move(field));
}

Property RecordNumber(Text label, NumberRange range, FieldOf<float> field) {
    return NumberRow(label, range, std::move(field));
}

Property RecordChoice(Text label, std::function<std::vector<Choice>()> choices, const FieldOf<int>& field) {
    Property property = CodeRow(label, FieldKind::kChoice, field);
    property.choices = std::move(choices);
    return property;
}

Property RecordCheck(Text label, FieldKind kind, const FieldOf<int>& field) {
    return CodeRow(label, kind, field);
}

Property RecordColor(Text label, const FieldOf<DWORD>& field) {
    Property property = Row(label, FieldKind::kColor);
    property.get = [field](CUIObject& object) { return PartsOf(field(ExtrasOf(object))); };
    property.set = [field](CUIObject& object, const PropertyValue& value) {
        DWORD& color = Writable(object, field);
        color = WithParts(color, std::get<ColorParts>(value));
    };
    return property;
}

Property ButtonArguments() {
    Property property = Row(Text::kPropArguments, FieldKind::kText);
    property.get = [](CUIObject& object) {
        const auto& arguments = ExtrasOf(object).prefs.m_button.m_strArguments;
        size_t count = kArgumentCount;
        while (count > 0 && arguments[count - 1].IsEmpty())
            --count;
        return Join({arguments, arguments + count});
    };
    property.set = [](CUIObject& object, const PropertyValue& value) {
        auto& arguments = EditExtras(object)->prefs.m_button.m_strArguments;
        const std::vector<CString> words = Split(std::get<CString>(value));
        for (size_t i = 0; i < kArgumentCount; ++i)
            arguments[i] = i < words.size() ? words[i] : CString();
    };
    property.check = [](StudioCanvas&, const PropertyValue& value) {
        const bool fits = Split(std::get<CString>(value)).size() <= kArgumentCount;
        return fits ? CString() : CString(GetText(Text::kRefuseArguments));
    };
    return property;
}

Property TrendLineNames() {
    Property property = Row(Text::kPropTrendLines, FieldKind::kValue);
    property.names = NameUse::kSeveral;
    property.get = [](CUIObject& object) { return Join(LineNames(ExtrasOf(object))); };
    property.set = [](CUIObject& object, const PropertyValue& value) {
        SetLineNames(*EditExtras(object), Split(std::get<CString>(value)));
    };
    property.check = [](StudioCanvas&, const PropertyValue& value) {
        CString refusal;
        for (const CString& name : Split(std::get<CString>(value))) {
            if (SampleDevice().Find(name) < 0)
                return NoValue(name);
        }
        if (Split(std::get<CString>(value)).size() > kMostLines)
            refusal.Format(GetText(Text::kRefuseLines), static_cast<int>(kMostLines));
        return refusal;
    };
    return property;
}

Property TrendLineColors() {
    Property property = Row(Text::kPropLineColors, FieldKind::kText);
    property.applies = HasTrendLines;
    property.get = [](CUIObject& object) { return Join(LineColors(ExtrasOf(object))); };
    property.set = [](CUIObject& object, const PropertyValue& value) {
        const std::vector<CString> words = Split(std::get<CString>(value));
        auto word = words.begin();
        for (CPrefTrendLine* line : EditExtras(object)->prefs.m_trend.m_lines)
            line->m_nColor = word != words.end() ? LineColor(*word++) : kAutomatic;
    };
    property.check = [](StudioCanvas&, const PropertyValue& value) {
        const std::vector<CString> words = Split(std::get<CString>(value));
        const bool sound = std::all_of(words.begin(), words.end(), [](const CString& word) {
            return IsAutomatic(word) || ParseColor(word).has_value();
        });
        return sound ? CString() : CString(GetText(Text::kRefuseLineColors));
    };
    return property;
}

Property TrendLineWidth() {
    Property property = Row(Text::kPropLineWidth, FieldKind::kNumber);
    property.range = {1.0f, 20.0f};
    property.applies = HasTrendLines;
    property.get = [](CUIObject& object) {
        const auto& lines = ExtrasOf(object).prefs.m_trend.m_lines;
        return lines.empty() ? 1.0f : static_cast<float>(lines.front()->m_nWidth);
    };
    property.set = [](CUIObject& object, const PropertyValue& value) {
        for (CPrefTrendLine* line : EditExtras(object)->prefs.m_trend.m_lines)
            line->m_nWidth = static_cast<int>(std::get<float>(value));
    };
    return property;
}

Property BindingRow() {
    Property property = Row(Text::kPropBinding, FieldKind::kValue);
    property.names = NameUse::kFront;
    property.step = Text::kStepBinding;
    property.check = CheckBinding;
    property.get = [](CUIObject& object) { return ExtrasOf(object).binding; };
    property.set = [](CUIObject& object, const PropertyValue& value) {
        EditExtras(object)->binding = CString(std::get<CString>(value)).Trim();
    };
    return property;
}

Property SwitchRow(Behaviour behaviour) {
    Property property = Row(Text::kPropActive, FieldKind::kCheck);
    property.get = [behaviour](CUIObject& object) { return ExtrasOf(object).IsOn(behaviour) ? 1 : 0; };
    property.set = [behaviour](CUIObject& object, const PropertyValue& value) {
        EditExtras(object)->TurnOn(behaviour, std::get<int>(value) != 0);
    };
    return property;
}

}  // namespace Studio
