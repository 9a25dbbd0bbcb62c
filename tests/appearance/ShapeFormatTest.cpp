#include "appearance/UIShapeFormat.h"

#include <memory>

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

// A record loaded from bytes must write the same bytes again, into whatever record it was loaded.
template <class Record>
void ExpectRoundTrip(const Bytes& bytes) {
    auto record = Default<Record>();
    EXPECT_EQ(Load(record, bytes), 0u);
    EXPECT_TRUE(SameBytes(Stored(record), bytes));
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
    Bytes text = Base();
    text.S(L"a\nb").F(7.5f).S(L"Font").U(0x11223344).Us({0x55667788, 0x55667788}).Is({2, 3, 5});
    ExpectRoundTrip<CUIShapeFormatText>(text);

    Bytes fill = Base();
    fill.I(6).U(0x01020304).Fs({1.5f, 2.5f}).U(0x05060708).I(9).U(10).S(L"p.png").I(11).Us({12, 13});
    ExpectRoundTrip<CUIShapeFormatFill>(fill);

    Bytes lineColor = Base();
    lineColor.I(2).U(0x01020304).Fs({1.5f, 2.5f}).U(0x05060708).I(9).U(10);
    ExpectRoundTrip<CUIShapeFormatLineColor>(lineColor);

    Bytes lineStyle = Base();
    lineStyle.F(3.5f).Is({1, 2, 3, 4, 5}).Fs({1.5f, 0.5f, 3, 1}).Is({6, 7, 8});
    lineStyle.Fs({9, 10}).I(11).Fs({12, 13}).I(14);
    ExpectRoundTrip<CUIShapeFormatLineStyle>(lineStyle);

    Bytes shadow = Base();
    ExpectRoundTrip<CUIShapeFormatShadow>(shadow.U(0x01020304).Fs({1, 2, 3, 4, 5, 6, 7}));
    Bytes scale = Base();
    ExpectRoundTrip<CUIShapeFormatScale>(scale.Fs({1, 2, 3, 4, 5}).I(6));
    Bytes position = Base();
    ExpectRoundTrip<CUIShapeFormatPosition>(position.Fs({1.5f, -2.5f}).Is({3, -4}));
    Bytes textBox = Base();
    ExpectRoundTrip<CUIShapeFormatTextBox>(textBox.Is({1, 2, 3}).Fs({4, 5, 6, 7}).I(8).F(9));
}

TEST(ShapeFormatTest, FieldsLandWhereTheyBelong) {
    CUIShapeFormatLineStyle style;
    Load(style, Base()
                    .F(3.5f)
                    .Is({1, 2, 3, 4, 5})
                    .Fs({1.5f, 0.5f, 3, 1})
                    .Is({6, 7, 8})
                    .Fs({9, 10})
                    .I(11)
                    .Fs({12, 13})
                    .I(14));
    EXPECT_EQ(style.m_nDashStyle, 1);
    EXPECT_EQ(style.m_nDashCap, 2);
    EXPECT_EQ(style.m_nJoin, 3);
    EXPECT_EQ(style.m_nStartCap, 4);
    EXPECT_EQ(style.m_nEndCap, 5);
    EXPECT_EQ(style.m_fDash[1], 0.5f);
    EXPECT_EQ(style.m_nCapType, 6);
    EXPECT_EQ(style.m_fStartArrowHeight, 10);
    EXPECT_EQ(style.m_bStartArrowFilled, 11);
    EXPECT_EQ(style.m_fEndArrowWidth, 12);
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
