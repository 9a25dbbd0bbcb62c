// The records of the behaviours, field by field. What the values mean is told in ObjectExtras.h.
#include "studio/properties/BehaviourFields.h"
#include "studio/properties/PropertyBuilders.h"
#include "studio/properties/PropertyTable.h"

#include <array>

namespace Studio {

namespace {

constexpr NumberRange kValues = {-1000000.0f, 1000000.0f};
constexpr NumberRange kWords = {-32768.0f, 32767.0f};
constexpr NumberRange kSizes = {0.0f, 100000.0f};
constexpr NumberRange kOffsets = {-100000.0f, 100000.0f};
constexpr NumberRange kAngles = {-3600.0f, 3600.0f};

const auto kDirections =
    Choices({Text::kDirectionUp, Text::kDirectionRight, Text::kDirectionDown, Text::kDirectionLeft});
const auto kEdges = Choices({Text::kEdgeTop, Text::kEdgeRight, Text::kEdgeBottom, Text::kEdgeLeft});
const auto kMotions = Choices({Text::kModeProportional, Text::kModeAllTheWay});
const auto kTypes = Choices({Text::kTypeNumber, Text::kTypeSwitch});

// Of a condition's comparisons, the first code leaves one out.
std::function<std::vector<Choice>()> Comparisons(Text first) {
    return Choices({first, Text::kCompareEqual, Text::kCompareNotEqual, Text::kCompareBelow,
                    Text::kCompareAtMost, Text::kCompareAbove, Text::kCompareAtLeast, Text::kCompareBetween,
                    Text::kCompareOutside});
}

/// Builds the fields of one record.
template <class Record>
class Fields {
public:
    explicit Fields(Record CUIPreference::*record) : m_record(record) {
        m_rows.push_back(RecordValueName(Field<CString>(&Record::m_strName)));
    }

    Fields& Words(Text label, CString Record::*field) { return Add(RecordText(label, Field(field))); }
    Fields& File(Text label, CString Record::*field) {
        Property property = RecordText(label, Field(field));
        property.kind = FieldKind::kFile;
        property.check = CheckPicture;
        return Add(property);
    }
    template <class Value>
    Fields& Number(Text label, NumberRange range, Value Record::*field) {
        return Add(RecordNumber(label, range, Field(field)));
    }
    template <class Value>
    Fields& Pair(Text label, NumberRange range, Value Record::*first, Value Record::*second) {
        Number(label, range, first);
        return Add(Joined(RecordNumber(label, range, Field(second))));
    }
    Fields& Choose(Text label, std::function<std::vector<Choice>()> choices, int Record::*field) {
        return Add(RecordChoice(label, std::move(choices), Field(field)));
    }
    Fields& Check(Text label, int Record::*field) {
        return Add(RecordCheck(label, FieldKind::kCheck, Field(field)));
    }
    /// Three toggles in one row: interior, outline, text.
    Fields& Parts(int Record::*fill, int Record::*line, int Record::*text) {
        const auto toggle = [&](int Record::*field, Text letter) {
            return Inside(RecordCheck(Text::kPropParts, FieldKind::kToggle, Field(field)), letter);
        };
        Add(toggle(fill, Text::kPropFillPart));
        Add(Joined(toggle(line, Text::kPropLinePart)));
        return Add(Joined(toggle(text, Text::kPropTextPart)));
    }
    Fields& Color(Text label, DWORD Record::*field) { return Add(RecordColor(label, Field(field))); }
    /// Comparison and limits.
    Fields& Comparing(Text label, int Record::*compare, int Record::*low, int Record::*high) {
        Choose(label, Comparisons(Text::kCompareAlways), compare);
        return Pair(Text::kPropLimits, kValues, low, high);
    }
    Fields& Add(Property property) {
        m_rows.push_back(std::move(property));
        return *this;
    }
    std::vector<Property> Rows() { return std::move(m_rows); }

    /// How to reach a field of the record in an object's extras.
    template <class Value>
    FieldOf<Value> Field(Value Record::*field) const {
        return [record = m_record, field](const ObjectExtras& extras) -> const Value& {
            return extras.prefs.*record.*field;
        };
    }

private:
    Record CUIPreference::*m_record;
    std::vector<Property> m_rows;
};

std::vector<Property> ConditionFields() {
    Fields<CPrefCondition> fields(&CUIPreference::m_condition);
    const auto part = [](int index, int CPrefComparison::*field) -> FieldOf<int> {
        return [index, field](const ObjectExtras& extras) -> const int& {
            return extras.prefs.m_condition.m_comparisons[index].*field;
        };
    };
    constexpr int kLast = 3;
    for (int i = 0; i <= kLast; ++i) {
        const auto number = [&](int CPrefComparison::*field) {
            return RecordNumber(Text::kPropLimits, kWords, part(i, field));
        };
        fields.Add(RecordChoice(Text::kPropCompare, Comparisons(Text::kCompareLeftOut),
                                part(i, &CPrefComparison::m_nCompare)));
        fields.Add(number(&CPrefComparison::m_nLowValue));
        fields.Add(Joined(number(&CPrefComparison::m_nHighValue)));
        if (i < kLast)
            fields.Add(RecordChoice(Text::kPropJoin, Choices({Text::kJoinAnd, Text::kJoinOr}),
                                    part(i, &CPrefComparison::m_nJoin)));
    }
    return fields.Rows();
}

std::vector<Property> FillFields() {
    using R = CPrefFill;
    return Fields<R>(&CUIPreference::m_fill)
        .Choose(Text::kPropMode, Choices({Text::kModeColors, Text::kModePicture}), &R::m_nMode)
        .File(Text::kPropPicture, &R::m_strImagePath)
        .Choose(Text::kPropDirection, kDirections, &R::m_nDirection)
        .Pair(Text::kPropRange, kValues, &R::m_nLowValue, &R::m_nHighValue)
        .Color(Text::kPropEmptyColor, &R::m_dwEmptyColor)
        .Color(Text::kPropFilledColor, &R::m_dwFilledColor)
        .Color(Text::kPropBorderColor, &R::m_dwBorderColor)
        .Rows();
}

std::vector<Property> MoveFields(CPrefMove CUIPreference::*record) {
    using R = CPrefMove;
    return Fields<R>(record)
        .Choose(Text::kPropDirection, kDirections, &R::m_nDirection)
        .Choose(Text::kPropMode, kMotions, &R::m_nMode)
        .Number(Text::kPropDistance, {0.0f, 100000.0f, false}, &R::m_fDistance)
        .Pair(Text::kPropRange, kValues, &R::m_nLowValue, &R::m_nHighValue)
        .Rows();
}

std::vector<Property> SizeFields(CPrefSize CUIPreference::*record) {
    using R = CPrefSize;
    return Fields<R>(record)
        .Choose(Text::kPropEdge, kEdges, &R::m_nDirection)
        .Choose(Text::kPropMode, Choices({Text::kModeUnits, Text::kModePerCent}), &R::m_nMode)
        .Pair(Text::kPropSizes, kSizes, &R::m_nSmallSize, &R::m_nLargeSize)
        .Pair(Text::kPropRange, kValues, &R::m_nLowValue, &R::m_nHighValue)
        .Rows();
}

std::vector<Property> RotateFields() {
    using R = CPrefRotate;
    const auto centre = [](long POINT::*field, LPCWSTR letter) {
        const FieldOf<long> of = [field](const ObjectExtras& extras) -> const long& {
            return extras.prefs.m_rotate.m_ptCenter.*field;
        };
        return Inside(RecordNumber(Text::kPropCentre, kOffsets, of), letter);
    };
    return Fields<R>(&CUIPreference::m_rotate)
        .Pair(Text::kPropAngles, kAngles, &R::m_nStartAngle, &R::m_nEndAngle)
        .Pair(Text::kPropRange, kValues, &R::m_nLowValue, &R::m_nHighValue)
        .Add(centre(&POINT::x, L"X"))
        .Add(Joined(centre(&POINT::y, L"Y")))
        .Rows();
}

std::vector<Property> ColorFields() {
    using R = CPrefColor;
    return Fields<R>(&CUIPreference::m_color)
        .Color(Text::kPropFillOn, &R::m_dwFillOnColor)
        .Color(Text::kPropFillOff, &R::m_dwFillOffColor)
        .Color(Text::kPropTextOn, &R::m_dwTextOnColor)
        .Color(Text::kPropTextOff, &R::m_dwTextOffColor)
        .Color(Text::kPropLineOn, &R::m_dwLineColor)
        .Color(Text::kPropAlarm, &R::m_dwAlarmColor)
        .Color(Text::kPropNormal, &R::m_dwNormalColor)
        .Rows();
}

std::vector<Property> HideFields() {
    using R = CPrefHide;
    return Fields<R>(&CUIPreference::m_hide)
        .Choose(Text::kPropMode, Choices({Text::kModeHidden, Text::kModeShown}), &R::m_nMode)
        .Comparing(Text::kPropHidesWhen, &R::m_nCompare, &R::m_nLowValue, &R::m_nHighValue)
        .Parts(&R::m_bHideFill, &R::m_bHideLine, &R::m_bHideText)
        .Rows();
}

std::vector<Property> InputFields() {
    using R = CPrefInput;
    return Fields<R>(&CUIPreference::m_input)
        .Choose(Text::kPropKind, kTypes, &R::m_nType)
        .Number(Text::kPropStep, {1.0f, 10000.0f}, &R::m_nStep)
        .Rows();
}

std::vector<Property> BlinkFields() {
    using R = CPrefBlink;
    return Fields<R>(&CUIPreference::m_blink)
        .Choose(Text::kPropSpeed, Choices({Text::kSpeedSlow, Text::kSpeedNormal, Text::kSpeedFast}),
                &R::m_nSpeed)
        .Comparing(Text::kPropCompare, &R::m_nCompare, &R::m_nLowValue, &R::m_nHighValue)
        .Parts(&R::m_bBlinkFill, &R::m_bBlinkLine, &R::m_bBlinkText)
        .Rows();
}

std::vector<Property> ButtonFields() {
    using R = CPrefButton;
    return Fields<R>(&CUIPreference::m_button)
        .Words(Text::kPropTextOff, &R::m_strOffText)
        .Words(Text::kPropTextOn, &R::m_strOnText)
        .Choose(Text::kPropAction,
                Choices({Text::kActionToggle, Text::kActionMomentary, Text::kActionSet, Text::kActionRadio,
                         Text::kActionAdd, Text::kActionCommands}),
                &R::m_nAction)
        .Number(Text::kPropNumber, kValues, &R::m_nValue)
        .Check(Text::kPropConfirm, &R::m_bConfirm)
        .Words(Text::kPropQuestion, &R::m_strConfirmText)
        .Words(Text::kPropPress, &R::m_strPressCommand)
        .Words(Text::kPropRelease, &R::m_strReleaseCommand)
        .Add(ButtonArguments())
        .Rows();
}

std::vector<Property> PageFields() {
    using R = CPrefPage;
    return Fields<R>(&CUIPreference::m_page)
        .Choose(Text::kPropMode,
                Choices({Text::kPageByName, Text::kPageByNumber, Text::kPageNext, Text::kPagePrevious}),
                &R::m_nMode)
        .Words(Text::kPropPageName, &R::m_strPageName)
        .Number(Text::kPropPageNumber, {0.0f, 1000.0f}, &R::m_nPage)
        .Rows();
}

std::vector<Property> TextFields() {
    using R = CPrefText;
    return Fields<R>(&CUIPreference::m_text)
        .Choose(Text::kPropKind, kTypes, &R::m_nType)
        .Words(Text::kPropFormat, &R::m_strFormat)
        .Rows();
}

std::vector<Property> SliderFields() {
    using R = CPrefSlider;
    return Fields<R>(&CUIPreference::m_slider)
        .Choose(Text::kPropDirection, kDirections, &R::m_nDirection)
        .Choose(Text::kPropMode, Choices({Text::kSlideJump, Text::kSlideDrag}), &R::m_nMode)
        .Pair(Text::kPropRange, kValues, &R::m_nLowValue, &R::m_nHighValue)
        .Rows();
}

std::vector<Property> TrendFields() {
    using R = CPrefTrend;
    return Fields<R>(&CUIPreference::m_trend)
        .Choose(Text::kPropKind,
                Choices({Text::kTrendPoints, Text::kTrendLine, Text::kTrendSteps, Text::kTrendAreas}),
                &R::m_nType)
        .Add(TrendLineNames())
        .Add(TrendLineColors())
        .Add(TrendLineWidth())
        .Number(Text::kPropTimeSpan, {1.0f, 86400.0f}, &R::m_nTimeSpan)
        .Pair(Text::kPropDivisions, {1.0f, 100.0f}, &R::m_nTimeDivisions, &R::m_nValueDivisions)
        .Pair(Text::kPropRange, kValues, &R::m_nLowValue, &R::m_nHighValue)
        .Color(Text::kPropGridColor, &R::m_dwGridColor)
        .Color(Text::kPropBackColor, &R::m_dwBackColor)
        .Rows();
}

constexpr Text kNames[kBehaviourCount] = {
    Text::kBehaviourCondition, Text::kBehaviourFill,  Text::kBehaviourMove1,  Text::kBehaviourMove2,
    Text::kBehaviourSize1,     Text::kBehaviourSize2, Text::kBehaviourRotate, Text::kBehaviourColor,
    Text::kBehaviourHide,      Text::kBehaviourInput, Text::kBehaviourBlink,  Text::kBehaviourButton,
    Text::kBehaviourPage,      Text::kBehaviourText,  Text::kBehaviourSlider, Text::kBehaviourTrend,
};

}  // namespace

Text BehaviourName(Behaviour behaviour) {
    return kNames[static_cast<int>(behaviour)];
}

const Property& BindingProperty() {
    static const Property property = BindingRow();
    return property;
}

const Property& BehaviourSwitch(Behaviour behaviour) {
    static const auto switches = [] {
        std::array<Property, kBehaviourCount> rows;
        for (int i = 0; i < kBehaviourCount; ++i)
            rows[static_cast<size_t>(i)] = SwitchRow(static_cast<Behaviour>(i));
        return rows;
    }();
    return switches[static_cast<size_t>(behaviour)];
}

const std::vector<Property>& BehaviourFields(Behaviour behaviour) {
    // In the order of `Behaviour`.
    static const std::array<std::vector<Property>, kBehaviourCount> fields = {
        ConditionFields(),
        FillFields(),
        MoveFields(&CUIPreference::m_move1),
        MoveFields(&CUIPreference::m_move2),
        SizeFields(&CUIPreference::m_size1),
        SizeFields(&CUIPreference::m_size2),
        RotateFields(),
        ColorFields(),
        HideFields(),
        InputFields(),
        BlinkFields(),
        ButtonFields(),
        PageFields(),
        TextFields(),
        SliderFields(),
        TrendFields(),
    };
    return fields[static_cast<size_t>(behaviour)];
}

}  // namespace Studio
