#include "studio/properties/PropertyTable.h"

#include "core/Geometry.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/StudioCanvas.h"
#include "studio/properties/PropertyBuilders.h"

#include <algorithm>

namespace Studio {

using namespace Lumo;
using Gdiplus::RectF;

namespace {

constexpr NumberRange kPlaceRange = {-100000.0f, 100000.0f, false};
constexpr NumberRange kSizeRange = {1.0f, 100000.0f, false};
constexpr NumberRange kWidthRange = {0.0f, 100.0f, false};
constexpr NumberRange kFontRange = {1.0f, 500.0f, false};
constexpr int kSolid = 1;
constexpr int kSolidWhileDragged = 2;
constexpr int kOpaque = 1;
constexpr int kTranslucent = 2;

bool IsFigure(const CUIObject& object) {
    return object.GetDrawShape() == DS_LINE || object.GetDrawShape() == DS_POLYLINE;
}

// The audio controls and groups have a look of their own.
bool HasLook(const CUIObject& object) {
    const DrawShape kind = object.GetDrawShape();
    return kind == DS_RECTANGLE || kind == DS_ELLIPSE || kind == DS_TEXTEDIT || IsFigure(object);
}

bool HasFill(const CUIObject& object) {
    return HasLook(object) && !IsFigure(object);
}

Property TextProperty(Text label, Text step, CString (*get)(CUIObject&),
                      void (*set)(CUIObject&, const CString&)) {
    return {.label = label,
            .step = step,
            .kind = FieldKind::kText,
            .get = get,
            .set = [set](CUIObject& object, const PropertyValue& value) {
                set(object, std::get<CString>(value));
            }};
}

Property NumberProperty(Text label, Text step, NumberRange range, float (*get)(CUIObject&),
                        void (*set)(CUIObject&, float)) {
    return {
        .label = label,
        .step = step,
        .kind = FieldKind::kNumber,
        .get = get,
        .set = [set](CUIObject& object, const PropertyValue& value) { set(object, std::get<float>(value)); },
        .range = range};
}

Property ChoiceProperty(Text label, Text step, std::function<std::vector<Choice>()> choices,
                        int (*get)(CUIObject&), void (*set)(CUIObject&, int)) {
    return {
        .label = label,
        .step = step,
        .kind = FieldKind::kChoice,
        .get = get,
        .set = [set](CUIObject& object, const PropertyValue& value) { set(object, std::get<int>(value)); },
        .choices = std::move(choices)};
}

Property ColorProperty(Text label, Text step, DWORD (*get)(CUIObject&), void (*set)(CUIObject&, DWORD)) {
    return {.label = label,
            .step = step,
            .kind = FieldKind::kColor,
            .get = [get](CUIObject& object) { return PartsOf(get(object)); },
            .set =
                [get, set](CUIObject& object, const PropertyValue& value) {
                    set(object, WithParts(get(object), std::get<ColorParts>(value)));
                }};
}

// One edge or extent of the position: lines and groups come along whole.
Property PlaceProperty(Text label, LPCWSTR letter, NumberRange range, float RectF::*field) {
    Property property = {
        .label = label,
        .step = Text::kStepPlace,
        .kind = FieldKind::kNumber,
        .get = [field](CUIObject& object) { return Normalised(object.GetPosition()).*field; },
        .set =
            [field](CUIObject& object, const PropertyValue& value) {
                RectF bounds = Normalised(object.GetPosition());
                bounds.*field = std::get<float>(value);
                PlaceFitted(object, CaptureGeometry(object), bounds);
            },
        .range = range,
        .inside = letter,
        .placesOnly = true};
    return property;
}

CString CheckName(StudioCanvas& page, const PropertyValue& value) {
    CString name = std::get<CString>(value);
    if (CString(name).Trim().IsEmpty())
        return GetText(Text::kRefuseEmptyName);
    const bool taken = std::any_of(page.Objects()->begin(), page.Objects()->end(), [&](CUIObject* object) {
        return object && !page.IsSelected(object) && object->GetShapeName().CompareNoCase(name) == 0;
    });
    return taken ? CString(GetText(Text::kRefuseTakenName)) : CString();
}

PropertySection PlaceSection() {
    Property name = TextProperty(
        Text::kPropName, Text::kStepRename, [](CUIObject& object) { return object.GetShapeName(); },
        [](CUIObject& object, const CString& text) { object.SetShapeName(CString(text).Trim()); });
    name.check = CheckName;
    name.single = true;
    return {Text::kSectionPosition,
            {name, PlaceProperty(Text::kPropPlace, L"X", kPlaceRange, &RectF::X),
             Joined(PlaceProperty(Text::kPropPlace, L"Y", kPlaceRange, &RectF::Y)),
             PlaceProperty(Text::kPropSize, L"W", kSizeRange, &RectF::Width),
             Joined(PlaceProperty(Text::kPropSize, L"H", kSizeRange, &RectF::Height))}};
}

CUIShapeFormatFill& FillOf(CUIObject& object) {
    return object.GetCoordinate().Format<CUIShapeFormatFill>();
}

// A solid fill merges its alpha into the colour's own; the others use the colour alone.
DWORD GetFillColor(CUIObject& object) {
    const auto& fill = FillOf(object);
    const bool solid = fill.m_nShapeMode == kSolid || fill.m_nShapeMode == kSolidWhileDragged;
    return solid ? fill.GetBrushColor() : fill.m_dwColor;
}

void SetFillColor(CUIObject& object, DWORD color) {
    object.SetFillColor(color);
    object.SetFillAlpha(static_cast<float>(color >> 24));
}

PropertySection FillSection() {
    constexpr Text kStep = Text::kStepFill;
    Property picture = TextProperty(
        Text::kPropPicture, kStep, [](CUIObject& object) { return FillOf(object).m_strImagePath; },
        [](CUIObject& object, const CString& text) { FillOf(object).m_strImagePath = text; });
    picture.kind = FieldKind::kFile;
    picture.check = CheckPicture;
    const auto kinds = Choices({{0, Text::kChoiceNone},
                                {kSolid, Text::kFillSolid},
                                {3, Text::kFillGradient},
                                {4, Text::kFillTiled},
                                {5, Text::kFillOwnSize},
                                {6, Text::kFillFaded}});
    const auto getKind = [](CUIObject& object) {
        const int mode = object.GetFillShapeMode();
        return mode == kSolidWhileDragged ? kSolid : mode;
    };
    const auto setKind = [](CUIObject& object, int kind) { object.SetFillShapeMode(kind); };
    const auto getSecond = [](CUIObject& object) { return FillOf(object).m_dwGradientColor; };
    const auto setSecond = [](CUIObject& object, DWORD color) { FillOf(object).m_dwGradientColor = color; };
    return {
        Text::kSectionFill,
        {For(HasFill, ChoiceProperty(Text::kPropKind, kStep, kinds, getKind, setKind)),
         For(HasFill, ColorProperty(Text::kPropColor, kStep, GetFillColor, SetFillColor)),
         For(HasFill, ColorProperty(Text::kPropColor2, kStep, getSecond, setSecond)), For(HasFill, picture)}};
}

// An opaque outline has no alpha, whatever its record says.
DWORD GetLineColor(CUIObject& object) {
    const bool opaque = object.GetLineShapeMode() == kOpaque;
    return object.GetLineColor() | (opaque ? 0xFF : static_cast<DWORD>(TruncToInt(object.GetLineAlpha())))
                                       << 24;
}

void SetLineColor(CUIObject& object, DWORD color) {
    const DWORD alpha = color >> 24;
    object.SetLineColor(color);
    object.SetLineAlpha(static_cast<float>(alpha));
    if (alpha < 255 && object.GetLineShapeMode() == kOpaque)
        object.SetLineShapeMode(kTranslucent);
}

PropertySection OutlineSection() {
    constexpr Text kStep = Text::kStepOutline;
    const auto kinds = Choices(
        {{0, Text::kChoiceNone}, {kOpaque, Text::kLineOpaque}, {kTranslucent, Text::kLineTranslucent}});
    const auto dashes = Choices(
        {Text::kDashSolid, Text::kDashDash, Text::kDashDot, Text::kDashDashDot, Text::kDashDashDotDot});
    const auto caps = Choices({{Gdiplus::LineCapFlat, Text::kCapFlat},
                               {Gdiplus::LineCapSquare, Text::kCapSquare},
                               {Gdiplus::LineCapRound, Text::kCapRound},
                               {Gdiplus::LineCapTriangle, Text::kCapTriangle},
                               {Gdiplus::LineCapSquareAnchor, Text::kCapSquareAnchor},
                               {Gdiplus::LineCapRoundAnchor, Text::kCapRoundAnchor},
                               {Gdiplus::LineCapDiamondAnchor, Text::kCapDiamond},
                               {Gdiplus::LineCapArrowAnchor, Text::kCapArrow}});
    Property width = NumberProperty(
        Text::kPropWidth, kStep, kWidthRange, [](CUIObject& object) { return object.GetLineWidth(); },
        [](CUIObject& object, float value) { object.SetLineWidth(value); });
    return {Text::kSectionOutline,
            {For(HasLook, ChoiceProperty(
                              Text::kPropKind, kStep, kinds,
                              [](CUIObject& object) { return object.GetLineShapeMode(); },
                              [](CUIObject& object, int mode) { object.SetLineShapeMode(mode); })),
             For(HasLook, ColorProperty(Text::kPropColor, kStep, GetLineColor, SetLineColor)),
             For(HasLook, width),
             For(HasLook, ChoiceProperty(
                              Text::kPropDash, kStep, dashes,
                              [](CUIObject& object) { return object.GetLineDashStyle(); },
                              [](CUIObject& object, int style) { object.SetLineDashStyle(style); })),
             For(IsFigure, ChoiceProperty(
                               Text::kPropStartCap, kStep, caps,
                               [](CUIObject& object) { return object.GetLineStartCap(); },
                               [](CUIObject& object, int cap) { object.SetLineStartCap(cap); })),
             For(IsFigure,
                 ChoiceProperty(
                     Text::kPropEndCap, kStep, caps, [](CUIObject& object) { return object.GetLineEndCap(); },
                     [](CUIObject& object, int cap) { object.SetLineEndCap(cap); }))}};
}

std::vector<Choice> FontChoices() {
    std::vector<Choice> choices;
    Gdiplus::InstalledFontCollection fonts;
    std::vector<Gdiplus::FontFamily> families(static_cast<size_t>(fonts.GetFamilyCount()));
    INT found = 0;
    fonts.GetFamilies(static_cast<INT>(families.size()), families.data(), &found);
    for (INT i = 0; i < found; ++i) {
        WCHAR name[LF_FACESIZE] = L"";
        families[static_cast<size_t>(i)].GetFamilyName(name);
        choices.push_back({CString(name), name});
    }
    std::sort(choices.begin(), choices.end(),
              [](const Choice& a, const Choice& b) { return a.text.CompareNoCase(b.text) < 0; });
    return choices;
}

Property FontStyleProperty(int bit, LPCWSTR letter) {
    return {.label = Text::kPropFontStyle,
            .step = Text::kStepTextFormat,
            .kind = FieldKind::kToggle,
            .get = [bit](CUIObject& object) { return (object.GetTextFontStyle() & bit) != 0 ? 1 : 0; },
            .set =
                [bit](CUIObject& object, const PropertyValue& value) {
                    const int others = object.GetTextFontStyle() & ~bit;
                    object.SetTextFontStyle(others | (std::get<int>(value) ? bit : 0));
                },
            .applies = HasLook,
            .inside = letter};
}

// Between editors a line ends with two characters, as edit controls want it.
CString GetCaption(CUIObject& object) {
    CString text = object.GetText();
    text.Replace(L"\r\n", L"\n");
    text.Replace(L"\n", L"\r\n");
    return text;
}

// The in-place editor of text boxes keeps both characters; a caption would show the first one as a box. The
// record itself is written: its setter leaves the old text for an empty one.
void SetCaption(CUIObject& object, const CString& typed) {
    CString text = typed;
    if (object.GetDrawShape() != DS_TEXTEDIT)
        text.Replace(L"\r\n", L"\n");
    object.GetCoordinate().Format<CUIShapeFormatText>().m_strText = text;
}

PropertySection TextSection() {
    constexpr Text kStep = Text::kStepTextFormat;
    Property caption = TextProperty(Text::kPropCaption, kStep, GetCaption, SetCaption);
    caption.kind = FieldKind::kCaption;
    Property font = {
        .label = Text::kPropFont,
        .step = kStep,
        .kind = FieldKind::kChoice,
        .get = [](CUIObject& object) { return object.GetTextFontName(); },
        .set = [](CUIObject& object,
                  const PropertyValue& value) { object.SetTextFontName(std::get<CString>(value)); },
        .choices = FontChoices};
    Property size = NumberProperty(
        Text::kPropFontSize, kStep, kFontRange, [](CUIObject& object) { return object.GetTextFontSize(); },
        [](CUIObject& object, float value) { object.SetTextFontSize(value); });
    Property alignment = ChoiceProperty(
        Text::kPropAlignment, kStep, Choices({Text::kAlignNear, Text::kAlignMiddle, Text::kAlignFar}),
        [](CUIObject& object) { return object.GetTextAlignment(); },
        [](CUIObject& object, int value) { object.SetTextAlignment(value); });
    return {
        Text::kSectionText,
        {For(HasLook, caption), For(HasLook, font), For(HasLook, size),
         FontStyleProperty(Gdiplus::FontStyleBold, L"B"),
         Joined(FontStyleProperty(Gdiplus::FontStyleItalic, L"I")),
         Joined(FontStyleProperty(Gdiplus::FontStyleUnderline, L"U")),
         Joined(FontStyleProperty(Gdiplus::FontStyleStrikeout, L"S")),
         For(HasLook, ColorProperty(
                          Text::kPropColor, kStep, [](CUIObject& object) { return object.GetTextColor(); },
                          [](CUIObject& object, DWORD color) { object.SetTextColor(color); })),
         For(HasLook, alignment)}};
}

}  // namespace

const std::vector<PropertySection>& AppearanceSections() {
    static const std::vector<PropertySection> sections = {PlaceSection(), FillSection(), OutlineSection(),
                                                          TextSection()};
    return sections;
}

}  // namespace Studio
