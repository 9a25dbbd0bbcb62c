// Buttons: names, initial state, the state table, hit test and archive form.
#include "behaviour/Objects.h"
#include "behaviour/UIObjectButton.h"
#include "support/Bytes.h"

#include <gtest/gtest.h>

using namespace Lumo;
using Gdiplus::RectF;

namespace {

/// Records the state operations that a paint calls, in order: n, d, f, o, x (disabled) and c.
template <class Button>
class Painted : public Button {
public:
    using Button::Button;
    std::string Paint(DWORD state) {
        this->SetButtonState(state);
        m_calls.clear();
        CUIObject* object = this;
        object->Draw(nullptr);
        return m_calls;
    }
    void DrawNormal(Gdiplus::Graphics*) override { m_calls += 'n'; }
    void DrawDown(Gdiplus::Graphics*) override { m_calls += 'd'; }
    void DrawFocus(Gdiplus::Graphics*) override { m_calls += 'f'; }
    void DrawOver(Gdiplus::Graphics*) override { m_calls += 'o'; }
    void DrawDisabled(Gdiplus::Graphics*) override { m_calls += 'x'; }
    void DrawChecked(Gdiplus::Graphics*, int reserved) override { m_calls += reserved == 0 ? 'c' : '!'; }

private:
    std::string m_calls;
};

TEST(Button, APaintTurnsTheStateIntoOneOperation) {
    Painted<CUIObjectButton> button;
    EXPECT_EQ("n", button.Paint(6));
    const char* calls[] = {"n", "d", "f", "o", "x", "c"};
    for (DWORD state = 0; state < 6; ++state) {
        button.SetChecked(TRUE);
        EXPECT_EQ(calls[state], button.Paint(state));
        EXPECT_EQ(state == 5, button.GetChecked() != FALSE);
        EXPECT_EQ(state == 3, button.GetOver() != FALSE);
        EXPECT_EQ(calls[state], button.Paint(7)) << "the flags of the previous paint stay";
    }
    button.SetOver(TRUE);
    EXPECT_EQ("oc", button.Paint(0xFFFFFFFF));
}

TEST(Button, ARectangularOneStartsWithAllFlags) {
    Painted<CUIObjectButtonRect> rect;
    EXPECT_EQ("ndfox", rect.Paint(9));
    EXPECT_EQ("n", rect.Paint(0));
    RectF position(1, 2, 3, 4);
    rect.Init(DS_BUTTON, position);
    EXPECT_EQ("ndfox", rect.Paint(9));
    Painted<CUIObjectButtonRectRound> round;
    EXPECT_EQ("n", round.Paint(9));
    Painted<CUIObjectButtonEllipse> ellipse;
    EXPECT_EQ("n", ellipse.Paint(9));
}

template <class Button>
void CheckConstruction(const wchar_t* name, BOOL over) {
    const RectF rect(1, 2, 3, 4);
    Button fresh;
    Button placed(rect, DS_BUTTONBAND);
    EXPECT_STREQ(name, fresh.GetShapeName());
    EXPECT_STREQ(name, placed.GetShapeName());
    EXPECT_EQ(DS_ELLIPSE, fresh.GetDrawShape());
    EXPECT_EQ(DS_BUTTONBAND, placed.GetDrawShape());
    EXPECT_EQ(Box(1, 2, 3, 4), Box(placed.GetPosition()));
    EXPECT_EQ(over, fresh.GetOver());
    EXPECT_EQ(over, placed.GetOver());
    EXPECT_EQ(-1, fresh.GetType());
}

TEST(Button, EachShapeHasItsName) {
    CheckConstruction<CUIObjectButton>(L"Button", FALSE);
    CheckConstruction<CUIObjectButtonRect>(L"ButtonRect", TRUE);
    CheckConstruction<CUIObjectButtonRectRound>(L"ButtonRectRound", FALSE);
    CheckConstruction<CUIObjectButtonEllipse>(L"ButtonEllipse", FALSE);
}

TEST(Button, InitStartsOver) {
    CUIObjectButton button;
    Load(button,
         ObjectBase(4, L"b", 0, 0, 1, 1).Is({1, 2, 3, 4, 0}).S(L"tip").Is({0, 6, 7, 8, 9, 10, 11, 12, 13}));
    button.SetRectMode(0);
    RectF rect(10, 20, 30, 40);
    button.Init(DS_BUTTON, rect);
    EXPECT_EQ(1, button.GetRectMode());
    EXPECT_TRUE(SameBytes(
        Stored(button),
        ObjectBase(17, L"Button", 10, 20, 30, 40).Is({0, 0, 0, 0, 1}).S().Is({1, 0, 0, 1, 0, 0, 0, 0, 0})));
}

TEST(Button, WritesItsFourteenFieldsAndCheckedTwice) {
    const Bytes base = ObjectBase(4, L"b", 0, 0, 1, 1);
    const Bytes stored = Bytes().Add(base).Is({1, 2, 3, 44, 5}).S(L"팁").Is({6, 7, 8, 9, 10, 11, 44, 13, 14});
    CUIObjectButton button;
    EXPECT_EQ(0u, Load(button,
                       Bytes().Add(base).Is({1, 2, 3, 4, 5}).S(L"팁").Is({6, 7, 8, 9, 10, 11, 44, 13, 14})));
    EXPECT_EQ(44, button.GetChecked());
    EXPECT_EQ(1u, button.GetButtonStyle());
    EXPECT_EQ(2u, button.GetRadioGroup());
    EXPECT_EQ(3u, button.GetButtonState());
    EXPECT_EQ(5, button.GetTracking());
    EXPECT_STREQ(L"팁", button.GetTooltip());
    EXPECT_EQ(10, button.GetOver());
    EXPECT_EQ(13, button.GetBorder());
    EXPECT_EQ(14u, button.GetDrawStyle());
    EXPECT_TRUE(SameBytes(Stored(button), stored));
    CUIObjectButton copy(button);
    EXPECT_TRUE(SameBytes(Stored(copy), stored));
}

TEST(Button, ReadsEachDrawFlagIntoItsOwnField) {
    const char* calls[] = {"n", "d", "f", "", "o", "x"};
    for (int set = 0; set < 6; ++set) {
        Bytes record = ObjectBase(4, L"b", 0, 0, 1, 1).Is({1, 2, 3, 0, 5}).S();
        for (int flag = 0; flag < 6; ++flag)
            record.I(flag == set);
        Painted<CUIObjectButton> button;
        EXPECT_EQ(0u, Load(button, record.Is({0, 13, 14})));
        EXPECT_EQ(calls[set], button.Paint(9));
    }
}

TEST(Button, IsHitWithinItsEllipseOnly) {
    const RectF place(200, 300, 100, 60);
    CUIObjectButtonRect button(place, DS_BUTTON);
    const struct {
        RectF rect;
        bool hit;
    } cases[] = {
        {{249, 329, 2, 2}, true},  {{203, 303, 2, 2}, false},    {{190, 329, 8, 2}, false},
        {{190, 329, 10, 2}, true}, {{300, 329, 2, 2}, true},     {{303, 329, 2, 2}, false},
        {{295, 355, 2, 2}, false}, {{195, 295, 200, 200}, true}, {{700, 800, 2, 2}, false},
        {{249, 360, 2, 2}, true},  {{249, 361, 2, 2}, false},    {{49, 29, 2, 2}, false},
    };
    for (const auto& test : cases) {
        RectF rect = test.rect;
        EXPECT_EQ(test.hit, button.HitTest(rect) != 0) << ::testing::PrintToString(Box(test.rect));
        EXPECT_EQ(Box(test.rect.X - 2, test.rect.Y - 2, test.rect.Width + 4, test.rect.Height + 4),
                  Box(rect));
    }
    button.SetLineWidth(20);
    RectF corner(203, 303, 2, 2);
    EXPECT_NE(0, button.HitTest(corner));
    Gdiplus::PointF point(250, 330);
    EXPECT_EQ(8, button.HitTest(point, 0));
    button.SetPosition(RectF(300, 360, -100, -60));
    RectF middle(249, 329, 2, 2);
    EXPECT_NE(0, button.HitTest(middle));
}

}  // namespace
