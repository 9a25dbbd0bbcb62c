// Properties of several objects: reading, checking, writing with undo, and what the tables describe.
#include "StudioFixture.h"
#include "studio/document/ObjectExtras.h"
#include "studio/editing/History.h"
#include "studio/properties/PropertyEdits.h"
#include "studio/properties/PropertyTable.h"

#include <gtest/gtest.h>

using namespace Studio;

namespace {

const Property& Find(Text section, Text label, LPCWSTR inside = L"") {
    for (const PropertySection& candidate : AppearanceSections()) {
        for (const Property& property : candidate.properties) {
            if (candidate.title == section && property.label == label && property.inside == inside)
                return property;
        }
    }
    throw std::logic_error("no such property");
}

const Property& FindField(Behaviour behaviour, Text label) {
    for (const Property& property : BehaviourFields(behaviour)) {
        if (property.label == label)
            return property;
    }
    throw std::logic_error("no such field");
}

class PropertyTest : public StudioFixture {
protected:
    void SelectAllObjects() { Page().SelectOnly(Objects()); }
    PropertyState Read(const Property& property) { return ReadProperty(property, Page().m_selection); }
    CString Write(const Property& property, const PropertyValue& value, DWORD key = 0) {
        return WriteProperty(property, Page(), value, key);
    }
    void Undo() { ASSERT_TRUE(m_document->Edits().Undo()); }
};

}  // namespace

TEST_F(PropertyTest, ObjectsWithoutThePropertyDoNotCount) {
    Lumo::CUIObject* rectangle = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    Lumo::CUIObject* line = Add(Lumo::DS_LINE, 200, 20, 60, 30);
    const Property& kind = Find(Text::kSectionFill, Text::kPropKind);
    const int before = line->GetFillShapeMode();
    EXPECT_FALSE(Read(kind).enabled) << "a line alone has no fill";
    SelectAllObjects();
    EXPECT_EQ(PropertyValue(1), Read(kind).value);
    EXPECT_TRUE(Write(kind, 3).IsEmpty());
    EXPECT_EQ(3, rectangle->GetFillShapeMode());
    EXPECT_EQ(before, line->GetFillShapeMode());
    // A name belongs to one object.
    EXPECT_FALSE(Read(Find(Text::kSectionPosition, Text::kPropName)).enabled);
}

TEST_F(PropertyTest, ColourAndOpacityAreSetApart) {
    Lumo::CUIObject* a = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    Lumo::CUIObject* b = Add(Lumo::DS_RECTANGLE, 40, 20, 100, 50);
    const Property& color = Find(Text::kSectionFill, Text::kPropColor);
    a->SetFillColor(0x48FF0000);
    b->SetFillColor(0x4800FF00);
    SelectAllObjects();
    const ColorParts mixed = std::get<ColorParts>(*Read(color).value);
    EXPECT_FALSE(mixed.rgb);
    EXPECT_EQ(0x48, *mixed.alpha);
    EXPECT_TRUE(Write(color, ColorParts{std::nullopt, BYTE{0x80}}).IsEmpty());
    EXPECT_EQ(0x80FF0000u, a->GetFillColor());
    EXPECT_EQ(0x8000FF00u, b->GetFillColor());
    // The painter merges both, so both carry the opacity.
    EXPECT_FLOAT_EQ(128.0f, b->GetFillAlpha());
    // An opaque outline that is made translucent is painted so.
    const Property& line = Find(Text::kSectionOutline, Text::kPropColor);
    a->SetLineShapeMode(1);
    EXPECT_TRUE(Write(line, ColorParts{std::nullopt, BYTE{0x40}}).IsEmpty());
    EXPECT_EQ(2, a->GetLineShapeMode());
    DWORD painted = 0;
    EXPECT_TRUE(a->GetCoordinate().Format<Lumo::CUIShapeFormatLineColor>().GetPenColor(&painted));
    EXPECT_EQ(0x40u, painted >> 24);
}

TEST_F(PropertyTest, RefusedValuesChangeNothingAndLeaveNoStep) {
    Lumo::CUIObject* first = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    Lumo::CUIObject* second = Add(Lumo::DS_RECTANGLE, 40, 20, 100, 50);
    const Property& name = Find(Text::kSectionPosition, Text::kPropName);
    const Property& picture = Find(Text::kSectionFill, Text::kPropPicture);
    const CString old = second->GetShapeName();
    m_document->Edits().Clear();
    EXPECT_FALSE(Write(name, CString(L"  ")).IsEmpty());
    CString taken = first->GetShapeName();
    EXPECT_FALSE(Write(name, taken.MakeUpper()).IsEmpty());
    EXPECT_FALSE(Write(picture, CString(L"C:\\no\\such.png")).IsEmpty());
    EXPECT_FALSE(Write(picture, CString(L"C:\\windows")).IsEmpty());
    EXPECT_EQ(old, second->GetShapeName());
    // Its own name and the value that is there already are accepted, and are no change.
    EXPECT_TRUE(Write(name, old).IsEmpty());
    EXPECT_FALSE(m_document->Edits().CanUndo());
    EXPECT_TRUE(Write(name, CString(L" Fader ")).IsEmpty());
    EXPECT_EQ(L"Fader", second->GetShapeName());
}

TEST_F(PropertyTest, ValuesAreNamedAsTheDeviceNamesThem) {
    Lumo::CUIObject* object = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    EXPECT_TRUE(Write(BindingProperty(), CString(L" in1.level ")).IsEmpty());
    EXPECT_EQ(L"in1.level", FindExtras(*object)->binding);
    EXPECT_TRUE(Write(BindingProperty(), CString(L"out1.PEQ")).IsEmpty()) << "the front of several names";
    EXPECT_FALSE(Write(BindingProperty(), CString(L"in99.level")).IsEmpty());
    EXPECT_EQ(L"out1.PEQ", FindExtras(*object)->binding);
    EXPECT_TRUE(Write(BindingProperty(), CString()).IsEmpty());
    const Property& own = FindField(Behaviour::kBlink, Text::kPropValueName);
    EXPECT_FALSE(Write(own, CString(L"in1")).IsEmpty()) << "a behaviour needs one value";
    EXPECT_TRUE(Write(own, CString(L"IN1.level")).IsEmpty());
    const Property& lines = FindField(Behaviour::kTrend, Text::kPropTrendLines);
    EXPECT_FALSE(Write(lines, CString(L"in1.level, , in2.level")).IsEmpty());
}

TEST_F(PropertyTest, LinesOfACaptionAreStoredAsItsObjectShowsThem) {
    Lumo::CUIObject* shape = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    Lumo::CUIObject* box = Add(Lumo::DS_TEXTEDIT, 10, 120, 100, 50);
    SelectAllObjects();
    const Property& caption = Find(Text::kSectionText, Text::kPropCaption);
    EXPECT_TRUE(Write(caption, CString(L"Level\r\ndB")).IsEmpty());
    EXPECT_EQ(L"Level\ndB", shape->GetText());
    EXPECT_EQ(L"Level\r\ndB", box->GetText());
    EXPECT_EQ(PropertyValue(CString(L"Level\r\ndB")), Read(caption).value);
}

TEST_F(PropertyTest, BehavioursAreReadWithoutMakingExtras) {
    Lumo::CUIObject* object = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    for (int i = 0; i < kBehaviourCount; ++i) {
        const auto behaviour = static_cast<Behaviour>(i);
        EXPECT_EQ(PropertyValue(0), Read(BehaviourSwitch(behaviour)).value);
        for (const Property& field : BehaviourFields(behaviour))
            Read(field);
    }
    EXPECT_EQ(nullptr, FindExtras(*object));
    EXPECT_TRUE(Write(BehaviourSwitch(Behaviour::kBlink), 1).IsEmpty());
    EXPECT_TRUE(FindExtras(*object)->IsOn(Behaviour::kBlink));
    EXPECT_TRUE(Write(FindField(Behaviour::kMove2, Text::kPropDistance), 12.5f).IsEmpty());
    EXPECT_FLOAT_EQ(12.5f, FindExtras(*object)->prefs.m_move2.m_fDistance);
    EXPECT_FLOAT_EQ(10.0f, FindExtras(*object)->prefs.m_move1.m_fDistance);
    Undo();
    Undo();
    const ObjectExtras* extras = FindExtras(*object);
    EXPECT_FALSE(extras && extras->IsOn(Behaviour::kBlink));
}

TEST_F(PropertyTest, ListsInOneTextKeepWhatTheyDoNotName) {
    Lumo::CUIObject* object = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    const Property& lines = FindField(Behaviour::kTrend, Text::kPropTrendLines);
    EXPECT_TRUE(Write(lines, CString(L"in1.level, in2.level")).IsEmpty());
    auto& list = EditExtras(*object)->prefs.m_trend.m_lines;
    list.front()->m_nColor = 0x123456;
    EXPECT_TRUE(Write(lines, CString(L"in3.level ,in2.level,out1.level")).IsEmpty());
    EXPECT_EQ(PropertyValue(CString(L"in3.level, in2.level, out1.level")), Read(lines).value);
    EXPECT_EQ(0x123456, EditExtras(*object)->prefs.m_trend.m_lines.front()->m_nColor);
    const Property& colors = FindField(Behaviour::kTrend, Text::kPropLineColors);
    EXPECT_EQ(PropertyValue(CString(L"123456, auto, auto")), Read(colors).value);
    EXPECT_TRUE(Write(colors, CString(L"auto, ffffff")).IsEmpty());
    EXPECT_EQ(PropertyValue(CString(L"auto, FFFFFF, auto")), Read(colors).value);
    EXPECT_FALSE(Write(colors, CString(L"red")).IsEmpty());
    const Property& arguments = FindField(Behaviour::kButton, Text::kPropArguments);
    EXPECT_TRUE(Write(arguments, CString(L"1, , 3")).IsEmpty());
    EXPECT_EQ(L"3", FindExtras(*object)->prefs.m_button.m_strArguments[2]);
    EXPECT_EQ(PropertyValue(CString(L"1, , 3")), Read(arguments).value);
    EXPECT_FALSE(Write(arguments, CString(L"1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16")).IsEmpty());
}

TEST(PropertyTextTest, NumbersAreReadAsPeopleTypeThem) {
    const NumberRange range = {-10.0f, 500.0f, false};
    const struct {
        LPCWSTR typed;
        std::optional<float> number;
    } cases[] = {
        {L"12", 12.0f}, {L" 1,5 ", 1.5f}, {L"-.5", -0.5f},  {L"+3", 3.0f},   {L"", {}},
        {L"12 px", {}}, {L"1e3", {}},     {L"0x10", {}},    {L"inf", {}},    {L"nan", {}},
        {L"--1", {}},   {L"1.2.3", {}},   {L"-11", {}},     {L"500.01", {}}, {L"9999999999999999", {}},
        {L"-", {}},     {L".", {}},       {L"500", 500.0f},
    };
    for (const auto& row : cases) {
        CString refusal;
        EXPECT_EQ(row.number, ParseNumber(row.typed, range, refusal)) << CString(row.typed).GetLength();
        EXPECT_EQ(row.number.has_value(), refusal.IsEmpty());
    }
    CString refusal;
    EXPECT_FALSE(ParseNumber(L"1.5", {0.0f, 9.0f, true}, refusal));
    EXPECT_TRUE(ParseNumber(L"2.0", {0.0f, 9.0f, true}, refusal));
    EXPECT_EQ(L"0", NumberText(-0.001f));
    EXPECT_EQ(L"100", NumberText(100.0f));
    EXPECT_EQ(L"-2.25", NumberText(-2.25f));
}

TEST(PropertyTextTest, ColoursAndOpacities) {
    EXPECT_EQ(0x3E7BFAu, ParseColor(L" #3e7BFA ").value_or(0));
    for (LPCWSTR typed : {L"", L"3E7BF", L"3E7BFAA", L"GGGGGG", L"##3E7B", L"0x3E7B", L" 3E7B "})
        EXPECT_FALSE(ParseColor(typed));
    CString refusal;
    EXPECT_EQ(255, ParseOpacity(L"100%", refusal).value_or(0));
    EXPECT_EQ(0, ParseOpacity(L"0", refusal).value_or(1));
    EXPECT_FALSE(ParseOpacity(L"101", refusal));
    EXPECT_FALSE(ParseOpacity(L"%", refusal));
    // What is shown of an opacity gives the same opacity back.
    for (int percent = 0; percent <= 100; ++percent) {
        CString text;
        text.Format(L"%d %%", percent);
        EXPECT_EQ(percent, std::lround(ParseOpacity(text, refusal).value_or(0) / 2.55));
    }
}
