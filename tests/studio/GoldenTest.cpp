// What a running page looks like, and that a change repaints all that it changes.
#include "RunFixture.h"
#include "studio/controls/MatrixControls.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

using namespace Studio;
using Lumo::CUIObject;

namespace {

class GoldenTest : public RunFixture {
protected:
    // What has been repainted piece by piece is what a whole repaint gives.
    void ExpectNothingStale() {
        m_session->Update();
        const Pixels pieces = PixelsOf(Page());
        m_session->PageShown();
        Page().UpdateWindow();
        CPoint where(0, 0);
        EXPECT_EQ(CountDiffering(PixelsOf(Page()), pieces, &where), 0u)
            << "at " << where.x << ", " << where.y;
    }

    // A range that the value of a behaviour goes through.
    static void SetRange(CUIPreference& prefs, int low, int high) {
        for (CPrefMove* move : {&prefs.m_move1, &prefs.m_move2})
            move->m_nLowValue = low, move->m_nHighValue = high;
        for (CPrefSize* size : {&prefs.m_size1, &prefs.m_size2})
            size->m_nLowValue = low, size->m_nHighValue = high;
        prefs.m_rotate.m_nLowValue = prefs.m_fill.m_nLowValue = prefs.m_slider.m_nLowValue = low;
        prefs.m_rotate.m_nHighValue = prefs.m_fill.m_nHighValue = prefs.m_slider.m_nHighValue = high;
    }

    // An object of 46 by 23 with one behaviour that follows the gain of an input.
    CUIObject* AddLive(Lumo::DrawShape kind, Behaviour behaviour, float x, float y, int input) {
        CUIObject* object = Add(kind, x, y, 46, 23);
        object->SetText(L" ");
        CString name;
        name.Format(L"in%d.gain", input);
        auto& prefs = Extras(object, behaviour, name).prefs;
        SetRange(prefs, -60, 0);
        prefs.m_move1.m_fDistance = 31;
        prefs.m_move2.m_nDirection = 2, prefs.m_move2.m_nMode = 1, prefs.m_move2.m_fDistance = 27;
        prefs.m_size1.m_nDirection = 1, prefs.m_size1.m_nSmallSize = 9, prefs.m_size1.m_nLargeSize = 57;
        prefs.m_size2.m_nDirection = 0, prefs.m_size2.m_nMode = 1, prefs.m_size2.m_nLargeSize = 150;
        prefs.m_rotate.m_nEndAngle = 130, prefs.m_rotate.m_ptCenter = {11, -4};
        prefs.m_fill.m_nDirection = 3, prefs.m_slider.m_nDirection = 1;
        prefs.m_text.m_strFormat = L"#.#";
        prefs.m_hide.m_nCompare = static_cast<int>(Comparison::kBelow), prefs.m_hide.m_nLowValue = -20;
        return object;
    }

    // A page with every behaviour on the page itself, in a group, and over what never changes.
    void AddBehaviours() {
        constexpr Behaviour kAll[] = {Behaviour::kMove1,  Behaviour::kMove2,  Behaviour::kSize1,
                                      Behaviour::kSize2,  Behaviour::kRotate, Behaviour::kFill,
                                      Behaviour::kSlider, Behaviour::kHide};
        Add(Lumo::DS_ELLIPSE, 5, 30, 560, 61)->SetText(L" ");
        Lumo::CUIObjectDeque children;
        for (int i = 0; i < static_cast<int>(std::size(kAll)); ++i) {
            const float x = 9.0f + 71.0f * static_cast<float>(i);
            AddLive(Lumo::DS_RECTANGLE, kAll[i], x, 47, i + 1);
            children.push_back(
                AddLive(i % 2 ? Lumo::DS_ELLIPSE : Lumo::DS_RECTANGLE, kAll[i], x + 3, 153, i + 1));
        }
        Page().SelectOnly(children);
        GroupSelection(Page());
        CUIObject* line = Add(Lumo::DS_LINE, 21, 230, 90, 40);
        line->SetLineWidth(5);
        SetRange(Extras(line, Behaviour::kRotate, L"in3.gain").prefs, -60, 0);
        CUIObject* colour = Add(Lumo::DS_RECTANGLE, 140, 230, 60, 31);
        colour->SetText(L" ");
        Extras(colour, Behaviour::kColor, L"in2.mute");
        CUIObject* blink = Add(Lumo::DS_ELLIPSE, 220, 230, 60, 31);
        blink->SetText(L" ");
        Extras(blink, Behaviour::kBlink, L"in2.mute");
    }
};

constexpr LPCWSTR kGains[] = {L"in1.gain", L"in2.gain", L"in3.gain", L"in4.gain",
                              L"in5.gain", L"in6.gain", L"in7.gain", L"in8.gain"};

}  // namespace

TEST_F(GoldenTest, BehavioursRepaintWhatTheyChange) {
    AddBehaviours();
    AddLive(Lumo::DS_RECTANGLE, Behaviour::kText, 301, 230, 3);
    for (LPCWSTR gain : kGains)
        m_device.Set(gain, -60);
    Run();
    ExpectNothingStale();
    for (const int value : {-31, -7, 0, -50}) {
        for (size_t i = 0; i < std::size(kGains); ++i) {
            SCOPED_TRACE(value * 100 - static_cast<int>(i));
            // Two places at once, far from each other.
            m_device.Set(kGains[i], value);
            m_device.Set(kGains[(i + 5) % std::size(kGains)], value + 3);
            ExpectNothingStale();
        }
    }
    m_device.Set(L"in2.mute", 1.0);
    m_session->Tick(0.6);
    ExpectNothingStale();
}

TEST_F(GoldenTest, Behaviours) {
    AddBehaviours();
    for (size_t i = 0; i < std::size(kGains); ++i)
        m_device.Set(kGains[i], -41 + 5 * static_cast<int>(i));
    m_device.Set(L"in2.mute", 1.0);
    Run();
    ExpectGolden(PixelsOf(Page()), "studio", "behaviours");
}

TEST_F(GoldenTest, Trends) {
    // Too small for letters.
    for (int type = 0; type < 4; ++type) {
        CUIObject* object = Add(Lumo::DS_RECTANGLE, 13 + 121.0f * static_cast<float>(type), 17, 110, 77);
        object->SetText(L" ");
        auto& trend = Extras(object, Behaviour::kTrend, L"in1.gain").prefs.m_trend;
        trend.m_nType = type, trend.m_nTimeSpan = 30, trend.m_nLowValue = -60, trend.m_nHighValue = 12;
        trend.m_nTimeDivisions = 3, trend.m_nValueDivisions = 4;
        for (LPCWSTR name : {L"in1.gain", L"in2.gain"}) {
            auto* line = new CPrefTrendLine;
            line->m_strName = name;
            line->m_nWidth = name == CString(L"in1.gain") ? 3 : 1;
            trend.m_lines.push_back(line);
        }
    }
    Run();
    for (int i = 0; i < 230; ++i) {
        m_device.Set(L"in1.gain", -55 + i % 60);
        m_device.Set(L"in2.gain", i < 100 ? -20 : -37.5);
        m_session->Tick(0.1);
    }
    ExpectGolden(PixelsOf(Page()), "studio", "trends");
    ExpectNothingStale();
}

TEST_F(GoldenTest, Controls) {
    const Gdiplus::RectF places[] = {{3, 5, 210, 130},   {221, 7, 180, 122},   {409, 4, 187, 140},
                                     {5, 151, 190, 96},  {203, 153, 80, 41},   {291, 151, 110, 60},
                                     {409, 155, 88, 39}, {203, 231, 190, 120}, {5, 261, 185, 113}};
    for (int i = 0; i < 9; ++i)
        Add(static_cast<Lumo::DrawShape>(Lumo::DS_CHARTPEQ + i), places[i].X, places[i].Y, places[i].Width,
            places[i].Height);
    m_device.Settle();
    m_device.Set(L"in1.gain", -17.5);
    m_device.Set(L"xp.3.5.on", 1.0);
    m_device.Set(L"xp.3.5.gain", -9.0);
    m_device.Set(L"out1.peq.2.gain", 11.0);
    m_device.Set(L"out1.geq.7", -8.0);
    Run();
    // The share of letters differs from one version of a font to the next.
    constexpr size_t kLetters = 1500;
    ExpectGolden(PixelsOf(Page()), "studio", "controls", kLetters);
    Mouse(WM_LBUTTONDOWN, 100, 200);
    Mouse(WM_LBUTTONUP, 100, 200);
    EXPECT_EQ(m_device.Get(L"in1.mute"), 1.0);
    ExpectNothingStale();
}
