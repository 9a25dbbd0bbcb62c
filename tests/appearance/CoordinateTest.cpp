#include "appearance/UICoordinate.h"

#include "support/Bytes.h"
#include "support/Geometry.h"

#include <gtest/gtest.h>

namespace Lumo {

TEST(CoordinateTest, FindsRecordsByKind) {
    CUICoordinate coordinate;
    for (int kind : {0, 6, 13, 17, -1})
        EXPECT_EQ(coordinate.GetShapeFormat(static_cast<ShapeFormatType>(kind)), nullptr) << kind;
    // Every record starts with kind 1, and is found all the same.
    for (ShapeFormatType kind : {SFT_TEXT, SFT_FILL, SFT_LINECOLOR, SFT_LINESTYLE, SFT_SHADOW, SFT_SCALE,
                                 SFT_POSITION, SFT_TEXTBOX}) {
        ASSERT_NE(coordinate.GetShapeFormat(kind), nullptr) << kind;
        EXPECT_EQ(coordinate.GetShapeFormat(kind)->m_nType, SFT_TEXT) << kind;
    }
    EXPECT_NE(dynamic_cast<CUIShapeFormatScale*>(coordinate.GetShapeFormat(SFT_SCALE)), nullptr);
    EXPECT_NE(dynamic_cast<CUIShapeFormatTextBox*>(coordinate.GetShapeFormat(SFT_TEXTBOX)), nullptr);
    coordinate.LoadDefault(static_cast<ShapeFormatType>(6));
}

TEST(CoordinateTest, LoadDefaultRestoresOneRecord) {
    CUICoordinate coordinate;
    coordinate.SetFillColor(1);
    coordinate.SetRotateAngle(7);
    coordinate.LoadDefault(SFT_FILL);
    EXPECT_EQ(coordinate.GetFillColor(), 0x800000FFu);
    EXPECT_EQ(coordinate.GetRotateAngle(), 7);
    coordinate.LoadDefaultAll();
    EXPECT_EQ(coordinate.GetRotateAngle(), 45);
}

TEST(CoordinateTest, EnablingDoesNothing) {
    CUICoordinate coordinate;
    coordinate.EnableShapeFormat(SFT_FILL, 0);
    EXPECT_EQ(coordinate.GetShapeFormat(SFT_FILL)->m_bEnabled, 1);
}

TEST(CoordinateTest, OffsetRidesOnThePosition) {
    CUICoordinate coordinate;
    coordinate.SetPositionOffset({2.9f, -1.7f});
    EXPECT_EQ(Spot(coordinate.GetPositionOffset()), Spot(2, -1));
    coordinate.SetPositionOffset({5, 5});
    coordinate.SetPosition({10, 20, 30, 40});
    EXPECT_EQ(Box(coordinate.GetPosition()), Box(15, 25, 30, 40));
    EXPECT_EQ(Spot(coordinate.GetPositionPoint()), Spot(10, 20));
    coordinate.SetSize({1, 2});
    coordinate.SetPositionPoint({0, 0});
    EXPECT_EQ(Box(coordinate.GetPosition()), Box(5, 5, 1, 2));
}

TEST(CoordinateTest, EmptyTextsAreIgnored) {
    CUICoordinate coordinate;
    coordinate.SetText(L"dB");
    coordinate.SetText(L"");
    coordinate.SetTextFontName(L"Courier");
    coordinate.SetTextFontName(CString());
    EXPECT_EQ(coordinate.GetText(), L"dB");
    EXPECT_EQ(coordinate.GetTextFontName(), L"Courier");

    coordinate.SetShapeFormatText(CUIShapeFormatText());
    EXPECT_TRUE(coordinate.GetText().IsEmpty());
    EXPECT_EQ(coordinate.GetTextFontName(), L"Arial");
    EXPECT_EQ(coordinate.GetShapeFormatText().m_strFontName, L"Arial");
}

TEST(CoordinateTest, AccessorsReachTheirOwnFields) {
    CUICoordinate coordinate;
    float value = 20;
    const auto next = [&] { return value += 1; };
    coordinate.SetLineDashValue(next(), 22, 23, 24);
    coordinate.SetLineStartArrow(5, 6, 7);
    coordinate.SetLineEndArrow(8, 9, 10);
    coordinate.SetScale({11, 12});
    coordinate.SetFillForeColor(13);
    coordinate.SetFillBackColor(14);
    coordinate.SetTextBackColor(15);
    coordinate.SetLineGradientColor(16);
    coordinate.SetLineStartCap(17);
    coordinate.SetLineEndCap(18);
    float a, b, c, d;
    int filled;
    coordinate.GetLineDashValue(&a, &b, &c, &d);
    EXPECT_EQ((std::vector<float>{a, b, c, d}), (std::vector<float>{21, 22, 23, 24}));
    coordinate.GetLineStartArrow(&a, &b, &filled);
    EXPECT_EQ((std::vector<float>{a, b, static_cast<float>(filled)}), (std::vector<float>{5, 6, 7}));
    coordinate.GetLineEndArrow(&a, nullptr, &filled);
    EXPECT_EQ(a, 8);
    EXPECT_EQ(filled, 10);
    EXPECT_EQ(coordinate.GetScale().Height, 12);
    EXPECT_EQ(coordinate.GetSize().Height, 1);
    EXPECT_EQ(coordinate.GetShapeFormatFill().m_dwForeColor, 13u);
    EXPECT_EQ(coordinate.GetShapeFormatFill().m_dwBackColor, 14u);
    EXPECT_EQ(coordinate.GetShapeFormatText().m_dwBackColor, 15u);
    EXPECT_EQ(coordinate.GetShapeFormatLineColor().m_dwGradientColor, 16u);
    EXPECT_EQ(coordinate.GetShapeFormatLineStyle().m_nStartCap, 17);
    EXPECT_EQ(coordinate.GetShapeFormatLineStyle().m_nEndCap, 18);
}

TEST(CoordinateTest, TypedSettersReplaceTheWholeRecord) {
    CUICoordinate coordinate;
    CUIShapeFormatShadow shadow(L"mine", 0);
    shadow.m_fAngle = 12;
    coordinate.SetShpaeFormatShadow(shadow);
    EXPECT_EQ(coordinate.GetShapeFormat(SFT_SHADOW)->m_nType, SFT_SHADOW);
    EXPECT_EQ(coordinate.GetShpaeFormatShadow().m_strName, L"mine");
    EXPECT_EQ(coordinate.GetShpaeFormatShadow().m_fAngle, 12);
}

TEST(CoordinateTest, CopiesAreDeep) {
    CUICoordinate source;
    source.SetText(L"one");
    CUICoordinate copy(source);
    copy.SetText(L"two");
    EXPECT_EQ(source.GetText(), L"one");
    source = copy;
    EXPECT_EQ(source.GetText(), L"two");
}

TEST(CoordinateTest, AnyTagLoads) {
    CUICoordinate stored;
    stored.SetText(L"dB");
    stored.SetTextAlignment(2);
    stored.SetLineWidth(9);
    stored.Format<CUIShapeFormatTextBox>().m_fReal5 = 3;
    const Bytes bytes = Stored(stored);
    // The tag "Coordinate" takes 24 bytes.
    Bytes other;
    other.S(L"Another tag").Raw(bytes.Get().data() + 24, bytes.Get().size() - 24);
    CUICoordinate loaded;
    EXPECT_EQ(Load(loaded, other), 0u);
    EXPECT_TRUE(SameBytes(Stored(loaded), bytes));
    EXPECT_EQ(loaded.GetTextAlignment(), 1);
    EXPECT_EQ(loaded.GetLineWidth(), 9);
}

}  // namespace Lumo
