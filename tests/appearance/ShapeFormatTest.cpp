#include "appearance/UIShapeFormat.h"

#include <memory>
#include <tuple>

#include "support/Bytes.h"

#include <gtest/gtest.h>

namespace Lumo {

namespace {

template <class Record>
Record Default() {
    Record record;
    record.LoadDefault();
    return record;
}

// A record loaded from bytes must write the same bytes again.
template <class Record>
Record ExpectRoundTrip(const Bytes& bytes) {
    auto record = Default<Record>();
    EXPECT_EQ(Load(record, bytes), 0u);
    EXPECT_TRUE(SameBytes(Stored(record), bytes));
    return record;
}

Bytes Base() {
    return Bytes().I(15).S(L"host").I(0);
}

}  // namespace

TEST(ShapeFormatTest, ConstructorsSetKindNameAndFlag) {
    const CUIShapeFormatShadow shadow;
    EXPECT_EQ(shadow.m_nType, SFT_SHADOW);
    EXPECT_EQ(shadow.m_strName, L"ShapeFormatShadow");
    EXPECT_EQ(shadow.m_bEnabled, 1);
    const CUIShapeFormatTextBox box(L"mine", 0);
    EXPECT_EQ(box.m_nType, SFT_TEXTBOX);
    EXPECT_EQ(box.m_strName, L"mine");
    EXPECT_EQ(box.m_bEnabled, 0);
    EXPECT_EQ(CUIShapeFormatFill().m_nShapeMode, 1);
    EXPECT_EQ(CUIShapeFormatLineColor().m_nShapeMode, 1);
    EXPECT_TRUE(CUIShapeFormatText().m_strText.IsEmpty());
}

TEST(ShapeFormatTest, DefaultsResetTheKindToOne) {
    CUIShapeFormatFill fill(L"mine", 0);
    fill.m_fAlpha = 200.7f;
    fill.m_strImagePath = L"x.png";
    fill.LoadDefault();
    EXPECT_TRUE(SameBytes(Stored(fill), Bytes()
                                            .I(1)
                                            .S()
                                            .Is({1, 1})
                                            .U(0x800000FF)
                                            .Fs({128, 128})
                                            .U(0x80FFFF00)
                                            .Is({0, 1})
                                            .S()
                                            .I(53)
                                            .Us({0x80FF6767, 0x80000000})));
}

TEST(ShapeFormatTest, ArchivesEveryFieldInOrder) {
    const auto text = ExpectRoundTrip<CUIShapeFormatText>(
        Base().S(L"a\nb").F(7.5f).S(L"Font").U(0x11223344).Us({0x55667788, 0x55667788}).Is({2, 3, 5}));
    EXPECT_TRUE(std::tie(text.m_strText, text.m_fFontSize, text.m_strFontName, text.m_dwTextColor,
                         text.m_dwBackColor, text.m_nFontStyle, text.m_nRenderHint) ==
                std::tuple(CString(L"a\nb"), 7.5f, CString(L"Font"), 0x11223344u, 0x55667788u, 3, 5));

    const auto fill = ExpectRoundTrip<CUIShapeFormatFill>(
        Base().I(6).U(21).Fs({1.5f, 2.5f}).U(22).I(9).U(10).S(L"p.png").I(11).Us({12, 13}));
    EXPECT_TRUE(std::tie(fill.m_nShapeMode, fill.m_dwColor, fill.m_fAlpha, fill.m_fBlight,
                         fill.m_dwGradientColor, fill.m_nGradientType, fill.m_dwGradientDirection,
                         fill.m_strImagePath, fill.m_nPatternStyle, fill.m_dwForeColor, fill.m_dwBackColor) ==
                std::tuple(6, 21u, 1.5f, 2.5f, 22u, 9, 10u, CString(L"p.png"), 11, 12u, 13u));

    const auto color =
        ExpectRoundTrip<CUIShapeFormatLineColor>(Base().I(2).U(21).Fs({1.5f, 2.5f}).U(22).I(9).U(10));
    EXPECT_TRUE(std::tie(color.m_nShapeMode, color.m_dwColor, color.m_fAlpha, color.m_fBlight,
                         color.m_dwGradientColor, color.m_nGradientType,
                         color.m_dwGradientDirection) == std::tuple(2, 21u, 1.5f, 2.5f, 22u, 9, 10u));

    const auto style = ExpectRoundTrip<CUIShapeFormatLineStyle>(Base()
                                                                    .F(3.5f)
                                                                    .Is({1, 2, 3, 4, 5})
                                                                    .Fs({1.5f, 0.5f, 3, 1})
                                                                    .Is({6, 7, 8})
                                                                    .Fs({9, 10})
                                                                    .I(11)
                                                                    .Fs({12, 13})
                                                                    .I(14));
    EXPECT_TRUE(std::tie(style.m_fWidth, style.m_nDashStyle, style.m_nDashCap, style.m_nJoin,
                         style.m_nStartCap, style.m_nEndCap, style.m_fDash[0], style.m_fDash[1],
                         style.m_fDash[2],
                         style.m_fDash[3]) == std::tuple(3.5f, 1, 2, 3, 4, 5, 1.5f, 0.5f, 3.0f, 1.0f));
    EXPECT_TRUE(std::tie(style.m_nCapType, style.m_nReserved1, style.m_nReserved2, style.m_fStartArrowWidth,
                         style.m_fStartArrowHeight, style.m_bStartArrowFilled, style.m_fEndArrowWidth,
                         style.m_fEndArrowHeight,
                         style.m_bEndArrowFilled) == std::tuple(6, 7, 8, 9.0f, 10.0f, 11, 12.0f, 13.0f, 14));

    const auto shadow = ExpectRoundTrip<CUIShapeFormatShadow>(Base().U(21).Fs({1, 2, 3, 4, 5, 6, 7}));
    EXPECT_TRUE(std::tie(shadow.m_dwColor, shadow.m_fAlpha, shadow.m_fReal, shadow.m_fAngle, shadow.m_first.X,
                         shadow.m_first.Y, shadow.m_second.X,
                         shadow.m_second.Y) == std::tuple(21u, 1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 6.0f, 7.0f));

    const auto scale = ExpectRoundTrip<CUIShapeFormatScale>(Base().Fs({1, 2, 3, 4, 5}).I(6));
    EXPECT_TRUE(std::tie(scale.m_fWidth, scale.m_fHeight, scale.m_fScaleX, scale.m_fScaleY,
                         scale.m_fRotateAngle,
                         scale.m_nRatio) == std::tuple(1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 6));

    const auto place = ExpectRoundTrip<CUIShapeFormatPosition>(Base().Fs({1.5f, -2.5f}).Is({3, -4}));
    EXPECT_TRUE(std::tie(place.m_fX, place.m_fY, place.m_nOffsetX, place.m_nOffsetY) ==
                std::tuple(1.5f, -2.5f, 3, -4));
    const auto home = Default<CUIShapeFormatPosition>();
    EXPECT_TRUE(std::tie(home.m_fX, home.m_fY, home.m_nOffsetX, home.m_nOffsetY) ==
                std::tuple(0.0f, 0.0f, 0, 0));

    const auto box = ExpectRoundTrip<CUIShapeFormatTextBox>(Base().Is({1, 2, 3}).Fs({4, 5, 6, 7}).I(8).F(9));
    EXPECT_TRUE(std::tie(box.m_nCode1, box.m_nCode2, box.m_nCode3, box.m_fReal1, box.m_fReal2, box.m_fReal3,
                         box.m_fReal4, box.m_nFlag,
                         box.m_fReal5) == std::tuple(1, 2, 3, 4.0f, 5.0f, 6.0f, 7.0f, 8, 9.0f));
}

TEST(ShapeFormatTest, AlignmentAndUnitStayTheReceivers) {
    auto stored = Default<CUIShapeFormatText>();
    stored.m_nAlignment = 2;
    stored.m_nUnit = 3;
    stored.m_strText = L"dB";
    stored.m_dwBackColor = 0x12345678;
    stored.m_nFontStyle = 1;
    auto loaded = Default<CUIShapeFormatText>();
    Load(loaded, Stored(stored));
    EXPECT_EQ(loaded.m_nAlignment, 1);
    EXPECT_EQ(loaded.m_nUnit, 2);
    EXPECT_EQ(loaded.m_strText, L"dB");
    EXPECT_EQ(loaded.m_dwBackColor, 0x12345678u);
    EXPECT_EQ(loaded.m_nFontStyle, 1);

    auto pen = Default<CUIShapeFormatLineStyle>();
    pen.m_nAlignment = 1;
    auto receiver = Default<CUIShapeFormatLineStyle>();
    Load(receiver, Stored(pen));
    EXPECT_EQ(receiver.m_nAlignment, 0);
}

TEST(ShapeFormatTest, NumbersThatMeanNothingHaveAMeaningOfTheirOwn) {
    CUIShapeFormatText text;
    for (int number : {-1, 0, 1, 2, 3, 5, 6, 7, 1000000}) {
        text.m_nAlignment = text.m_nUnit = text.m_nRenderHint = number;
        EXPECT_EQ(text.GetAlignment(), number == 1 || number == 2 ? number : 0) << number;
        EXPECT_EQ(text.GetUnit(), number >= 0 && number <= 6 ? number : Gdiplus::UnitDisplay) << number;
        EXPECT_EQ(text.GetRenderHint(), number >= 0 && number <= 5 ? number : 0) << number;
    }
    CUIShapeFormatLineStyle line;
    Gdiplus::Pen pen(Gdiplus::Color(0xFF000000));
    for (auto [number, cap] : {std::pair{2, Gdiplus::LineCapRound},
                               {0x14, Gdiplus::LineCapArrowAnchor},
                               {0xFF, Gdiplus::LineCapFlat},
                               {256, Gdiplus::LineCapFlat},
                               {-1, Gdiplus::LineCapFlat}}) {
        line.m_nStartCap = number;
        line.m_nEndCap = Gdiplus::LineCapSquare;
        line.SetPenCaps(pen);
        EXPECT_EQ(pen.GetStartCap(), cap) << number;
        EXPECT_EQ(pen.GetEndCap(), Gdiplus::LineCapSquare);
    }
}

TEST(ShapeFormatTest, BaseSetCopiesTheBasePartOnly) {
    CUIShapeFormatFill source(L"mine", 0);
    source.m_dwColor = 1;
    auto target = Default<CUIShapeFormatFill>();
    target.Set(static_cast<const CUIShapeFormat&>(source));
    EXPECT_EQ(target.m_strName, L"mine");
    EXPECT_EQ(target.m_bEnabled, 0);
    EXPECT_EQ(target.m_dwColor, 0x800000FFu);
    target.Set(source);
    EXPECT_EQ(target.m_dwColor, 1u);
}

TEST(ShapeFormatTest, ReleaseDestroysTheWholeRecord) {
    struct Counted : CUIShapeFormatText {
        explicit Counted(int& living) : m_living(living) { ++m_living; }
        ~Counted() override { --m_living; }
        int& m_living;
    };
    int living = 0;
    CUIShapeFormat* record = new Counted(living);
    record->Release();
    EXPECT_EQ(living, 0);
}

TEST(ShapeFormatTest, PenColourByMode) {
    CUIShapeFormatLineColor record;
    const struct {
        int enabled, mode;
        DWORD color;
        float alpha;
        bool drawn;
        DWORD want;
    } cases[] = {{1, 1, 0x000000FF, 128, true, 0xFF0000FF}, {1, 2, 0x000000FF, 128, true, 0x800000FF},
                 {1, 2, 0x800000FF, 255, true, 0xFF0000FF}, {1, 2, 0x80112233, 15.9f, true, 0x8F112233},
                 {1, 0, 0x000000FF, 128, false, 0},         {1, 3, 0x000000FF, 128, false, 0},
                 {0, 1, 0x000000FF, 128, false, 0}};
    for (const auto& c : cases) {
        record.m_bEnabled = c.enabled;
        record.m_nShapeMode = c.mode;
        record.m_dwColor = c.color;
        record.m_fAlpha = c.alpha;
        DWORD color = 0;
        EXPECT_EQ(record.GetPenColor(&color), c.drawn);
        EXPECT_EQ(color, c.want);
    }
}

}  // namespace Lumo
