// What the behaviours make of values, and how extras are kept.
#include "studio/runtime/Behaviours.h"
#include "studio/document/ObjectArchive.h"

#include <afxadv.h>
#include <gtest/gtest.h>

using namespace Studio;
using Gdiplus::RectF;

namespace {

const RectF kRest(100.0f, 50.0f, 40.0f, 20.0f);

struct Bench {
    Device device;
    ObjectExtras extras;

    Bench() { extras.binding = L"in1.gain"; }
    Look At(double value, double time = 0.0) {
        device.Set(L"in1.gain", value);
        return Evaluate(extras, BoundValues(extras, device), device, kRest, time);
    }
};

}  // namespace

TEST(BehaviourTest, Comparisons) {
    using enum Comparison;
    const struct {
        Comparison code;
        bool below, atLow, between, atHigh, above;
    } rows[] = {
        {kAlways, true, true, true, true, true},     {kEqual, false, true, false, false, false},
        {kNotEqual, true, false, true, true, true},  {kBelow, true, false, false, false, false},
        {kAtMost, true, true, false, false, false},  {kAbove, false, false, true, true, true},
        {kAtLeast, false, true, true, true, true},   {kBetween, false, true, true, true, false},
        {kOutside, true, false, false, false, true},
    };
    for (const auto& row : rows) {
        const bool expected[] = {row.below, row.atLow, row.between, row.atHigh, row.above};
        const double values[] = {-11.0, -10.0, 0.0, 5.0, 6.0};
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(Compare(row.code, values[i], -10, 5), expected[i])
                << static_cast<int>(row.code) << " with " << values[i];
    }
}

TEST(BehaviourTest, ColourBlinkHideAndText) {
    Bench bench;
    auto& prefs = bench.extras.prefs;
    bench.extras.TurnOn(Behaviour::kColor, true);
    prefs.m_color.m_strName = L"in2.mute";
    EXPECT_EQ(bench.At(0).fill, prefs.m_color.m_dwFillOffColor);
    EXPECT_EQ(bench.At(0).line, 0u);
    bench.device.Set(L"in2.mute", 1.0);
    EXPECT_EQ(bench.At(0).fill, prefs.m_color.m_dwFillOnColor);
    EXPECT_EQ(bench.At(0).text, prefs.m_color.m_dwTextOnColor);

    bench.extras.TurnOn(Behaviour::kBlink, true);
    prefs.m_blink.m_nCompare = static_cast<int>(Comparison::kAbove), prefs.m_blink.m_nLowValue = -6;
    prefs.m_blink.m_bBlinkFill = 1;
    EXPECT_FALSE(bench.At(0, 0.2).hideFill);
    EXPECT_TRUE(bench.At(0, 0.7).hideFill);
    EXPECT_FALSE(bench.At(0, 0.7).hideAll);
    EXPECT_FALSE(bench.At(-10, 0.7).hideFill) << "not while the comparison fails";

    bench.extras.TurnOn(Behaviour::kHide, true);
    prefs.m_hide.m_nCompare = static_cast<int>(Comparison::kBelow), prefs.m_hide.m_nLowValue = -20;
    EXPECT_TRUE(bench.At(-30).hideAll);
    EXPECT_FALSE(bench.At(-10).hideAll);
    prefs.m_hide.m_nMode = 1, prefs.m_hide.m_bHideText = 1;
    EXPECT_FALSE(bench.At(-30).hideText);
    EXPECT_TRUE(bench.At(-10).hideText);

    bench.extras.TurnOn(Behaviour::kText, true);
    const std::pair<LPCWSTR, LPCWSTR> formats[] = {
        {L"", L"-12.3 dB"}, {L"#", L"-12"}, {L"<#.##>", L"<-12.30>"}, {L"100%s %n", L"100%s %n"}};
    for (const auto& [format, text] : formats) {
        prefs.m_text.m_strFormat = format;
        EXPECT_STREQ(bench.At(-12.3).caption, text);
    }
    prefs.m_text.m_strName = L"in2.mute", prefs.m_text.m_nType = 1, prefs.m_text.m_strFormat = L"muted|open";
    EXPECT_STREQ(bench.At(0).caption, L"muted");
}

TEST(BehaviourTest, ConditionJoinsFromLeftToRightAndReadsLimitsAsSigned) {
    Bench bench;
    bench.extras.TurnOn(Behaviour::kCondition, true);
    bench.extras.TurnOn(Behaviour::kMove1, true);
    auto& parts = bench.extras.prefs.m_condition.m_comparisons;
    const auto holds = [&](double value) { return bench.At(value).x != kRest.X; };
    bench.extras.prefs.m_move1.m_nLowValue = 100, bench.extras.prefs.m_move1.m_nHighValue = -100;
    EXPECT_TRUE(holds(-30)) << "nothing compared";
    // below -40, or (left out), or above -10; and not 6
    parts[0] = {static_cast<int>(Comparison::kBelow), 65496, 0, 1};
    parts[2] = {static_cast<int>(Comparison::kAbove), -10, 0, 0};
    parts[3] = {static_cast<int>(Comparison::kNotEqual), 6, 0, 0};
    EXPECT_TRUE(holds(-50));
    EXPECT_FALSE(holds(-30));
    EXPECT_TRUE(holds(0));
    EXPECT_FALSE(holds(6));
    bench.extras.prefs.m_condition.m_strName = L"no.such.value";
    EXPECT_FALSE(holds(0));
}

TEST(ObjectExtrasTest, CopiesAndArchiveKeepNamesLinesAndSwitches) {
    ObjectPtr object = MakeObject(ObjectClass::kRectangle);
    ObjectExtras& extras = *EditExtras(*object);
    extras.binding = L"out3";
    extras.TurnOn(Behaviour::kTrend, true);
    extras.prefs.m_move2.m_strName = L"in9.gain";
    auto* line = new CPrefTrendLine;
    line->m_strName = L"in1.level", line->m_nColor = 0x123456;
    extras.prefs.m_trend.m_lines.push_back(line);

    CSharedFile file;
    {
        CArchive ar(&file, CArchive::store);
        StoreObject(ar, *object);
    }
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    const ObjectPtr loaded = LoadObject(ar, kArchiveVersion);
    const ObjectExtras copy = *FindExtras(*loaded);
    object.reset();
    EXPECT_STREQ(copy.binding, L"out3");
    EXPECT_TRUE(copy.IsOn(Behaviour::kTrend));
    EXPECT_FALSE(copy.IsOn(Behaviour::kMove2));
    EXPECT_STREQ(copy.ValueName(Behaviour::kMove2), L"in9.gain");
    EXPECT_STREQ(copy.ValueName(Behaviour::kMove1), L"out3");
    ASSERT_EQ(copy.prefs.m_trend.m_lines.size(), 1u);
    EXPECT_STREQ(copy.prefs.m_trend.m_lines.front()->m_strName, L"in1.level");
    EXPECT_EQ(copy.prefs.m_trend.m_lines.front()->m_nColor, 0x123456);
}
