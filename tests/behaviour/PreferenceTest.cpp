// Archive forms, defaults and copy rules of the behaviour records.
#include <functional>
#include <tuple>

#include "behaviour/UIPreference.h"
#include "support/Bytes.h"

#include <gtest/gtest.h>

namespace {

/// Defaults of each record as they stand in an archive, behind the name.
const Bytes kCondition = [] {
    Bytes b;
    for (int i = 0; i < 16; ++i)
        b.W(0);
    return b;
}();
const Bytes kFill = Bytes().I(0).S().Is({0, 0, 100}).Us({0xFFFFFFFF, 0xFF00FF00, 0xFF0000FF});
const Bytes kMove = Bytes().Is({1, 0}).F(10).Is({0, 100});
const Bytes kSize = Bytes().Is({0, 0, 0, 0, 0, 100});
const Bytes kRotate = Bytes().Is({0, 90, 0, 100}).Is({0, 0});
const Bytes kColor =
    Bytes().Us({0xFFFF0000, 0xFF800000, 0xFFFFFFFF, 0xFF000080}).Us({0xFF0000FF, 0xFFFF0000, 0xFF00FF00});
const Bytes kHide = Bytes().Is({0, 0, 0, 0, 0, 0, 0});
const Bytes kInput = Bytes().Is({0, 1});
const Bytes kBlink = Bytes().Is({1, 0, 0, 0, 0, 0, 0});
const Bytes kButton = [] {
    Bytes b = Bytes().S().S().Is({0, 0, 0});
    for (int i = 0; i < 18; ++i)
        b.S();
    return b;
}();
const Bytes kPage = Bytes().Is({0, 0}).S().S();
const Bytes kText = Bytes().I(0).S();
const Bytes kSlider = Bytes().Is({0, 0, 0, 100});
const Bytes kTrend = Bytes().Is({1, 60, 6, 100, 0, 5}).Us({0xFFC0C0C0, 0xFF000000}).I(0);

/// Other values for each record, no two alike.
const Bytes kOtherCondition = [] {
    Bytes b;
    for (WORD i = 0; i < 16; ++i)
        b.W(60000 + i);
    return b;
}();
const Bytes kOtherButton = [] {
    Bytes b = Bytes().S(L"off").S(L"on").Is({1, 2, 3}).S(L"sure?").S(L"press").S(L"release");
    for (wchar_t i = 0; i < 15; ++i)
        b.S(std::wstring(1, L'a' + i));
    return b;
}();
const Bytes kOtherSeven = Bytes().Is({11, 12, -13, 14, 15, 16, 17});
const Bytes kOtherFill = Bytes().I(1).S(L"그림.png").Is({2, 3, 4}).Us({5, 6, 7});
const Bytes kOtherTrend = Bytes().Is({1, 2, 3, 4, 5, 6, 7, 8}).I(0);

Bytes Named(const std::wstring& name, const Bytes& fields) {
    return Bytes().S(name).Add(fields);
}

/// The archive form of a record, where the fields come from, its copies and the names of the copies. `fields`
/// gives the fields by name, `values` what they are after loading `others`.
template <class Record, class Fields, class... Values>
void CheckRecord(const Bytes& defaults, const Bytes& others, Fields fields, Values... values) {
    SCOPED_TRACE(typeid(Record).name());
    Record source;
    EXPECT_TRUE(SameBytes(Stored(source), Named(L"", defaults)));
    EXPECT_EQ(0u, Load(source, Named(L"source", others)));
    EXPECT_TRUE(SameBytes(Stored(source), Named(L"source", others)));
    EXPECT_TRUE(fields(source) == std::tuple(values...));

    Record target;
    target.m_strName = L"target";
    target = source;
    EXPECT_TRUE(SameBytes(Stored(target), Named(L"target", others)));
    Record copy(source);
    EXPECT_TRUE(SameBytes(Stored(copy), Named(L"", others)));

    Bytes cut;
    cut.Raw(Stored(source).Get().data(), Stored(source).Get().size() - 1);
    Record shortened;
    EXPECT_EQ(CArchiveException::endOfFile, LoadFailure(shortened, cut));
}

TEST(Preference, RecordsKeepTheirArchiveFormAndCopyWithoutTheName) {
    CheckRecord<CPrefCondition>(
        kCondition, kOtherCondition,
        [](const CPrefCondition& r) {
            const CPrefComparison &a = r.m_comparisons[0], &d = r.m_comparisons[3];
            return std::tuple(a.m_nCompare, a.m_nLowValue, a.m_nHighValue, a.m_nJoin, d.m_nCompare,
                              d.m_nLowValue, d.m_nHighValue, d.m_nJoin);
        },
        60000, 60001, 60002, 60003, 60012, 60013, 60014, 60015);
    CheckRecord<CPrefFill>(
        kFill, kOtherFill,
        [](const CPrefFill& r) {
            return std::tuple(r.m_nMode, r.m_strImagePath, r.m_nDirection, r.m_nLowValue, r.m_nHighValue,
                              r.m_dwEmptyColor, r.m_dwFilledColor, r.m_dwBorderColor);
        },
        1, CString(L"그림.png"), 2, 3, 4, 5u, 6u, 7u);
    CheckRecord<CPrefMove>(
        kMove, Bytes().Is({2, 3}).F(-0.5f).Is({4, 5}),
        [](const CPrefMove& r) {
            return std::tuple(r.m_nDirection, r.m_nMode, r.m_fDistance, r.m_nLowValue, r.m_nHighValue);
        },
        2, 3, -0.5f, 4, 5);
    CheckRecord<CPrefSize>(
        kSize, Bytes().Is({1, 2, 3, 4, 5, 6}),
        [](const CPrefSize& r) {
            return std::tuple(r.m_nDirection, r.m_nMode, r.m_nSmallSize, r.m_nLargeSize, r.m_nLowValue,
                              r.m_nHighValue);
        },
        1, 2, 3, 4, 5, 6);
    CheckRecord<CPrefRotate>(
        kRotate, Bytes().Is({1, 2, 3, 4, -5, 6}),
        [](const CPrefRotate& r) {
            return std::tuple(r.m_nStartAngle, r.m_nEndAngle, r.m_nLowValue, r.m_nHighValue, r.m_ptCenter.x,
                              r.m_ptCenter.y);
        },
        1, 2, 3, 4, -5, 6);
    CheckRecord<CPrefColor>(
        kColor, kOtherSeven,
        [](const CPrefColor& r) {
            return std::tuple(r.m_dwFillOnColor, r.m_dwFillOffColor, static_cast<int>(r.m_dwTextOnColor),
                              r.m_dwTextOffColor, r.m_dwLineColor, r.m_dwAlarmColor, r.m_dwNormalColor);
        },
        11u, 12u, -13, 14u, 15u, 16u, 17u);
    CheckRecord<CPrefHide>(
        kHide, kOtherSeven,
        [](const CPrefHide& r) {
            return std::tuple(r.m_nMode, r.m_bHideFill, r.m_bHideLine, r.m_bHideText, r.m_nCompare,
                              r.m_nLowValue, r.m_nHighValue);
        },
        11, 12, -13, 14, 15, 16, 17);
    CheckRecord<CPrefBlink>(
        kBlink, kOtherSeven,
        [](const CPrefBlink& r) {
            return std::tuple(r.m_nSpeed, r.m_bBlinkFill, r.m_bBlinkLine, r.m_bBlinkText, r.m_nCompare,
                              r.m_nLowValue, r.m_nHighValue);
        },
        11, 12, -13, 14, 15, 16, 17);
    CheckRecord<CPrefInput>(
        kInput, Bytes().Is({7, 8}), [](const CPrefInput& r) { return std::tuple(r.m_nType, r.m_nStep); }, 7,
        8);
    CheckRecord<CPrefTrendLine>(
        Bytes().Is({1, -1}), Bytes().Is({7, 8}),
        [](const CPrefTrendLine& r) { return std::tuple(r.m_nWidth, r.m_nColor); }, 7, 8);
    CheckRecord<CPrefButton>(
        kButton, kOtherButton,
        [](const CPrefButton& r) {
            return std::tuple(r.m_strOffText, r.m_strOnText, r.m_nAction, r.m_nValue, r.m_bConfirm,
                              r.m_strConfirmText, r.m_strPressCommand, r.m_strReleaseCommand,
                              r.m_strArguments[0], r.m_strArguments[14]);
        },
        CString(L"off"), CString(L"on"), 1, 2, 3, CString(L"sure?"), CString(L"press"), CString(L"release"),
        CString(L"a"), CString(L"o"));
    CheckRecord<CPrefPage>(
        kPage, Bytes().Is({1, 2}).S(L"name").S(L"path"),
        [](const CPrefPage& r) { return std::tuple(r.m_nMode, r.m_nPage, r.m_strPageName, r.m_strPagePath); },
        1, 2, CString(L"name"), CString(L"path"));
    CheckRecord<CPrefText>(
        kText, Bytes().I(1).S(L"%d"), [](const CPrefText& r) { return std::tuple(r.m_nType, r.m_strFormat); },
        1, CString(L"%d"));
    CheckRecord<CPrefSlider>(
        kSlider, Bytes().Is({1, 2, 3, 4}),
        [](const CPrefSlider& r) {
            return std::tuple(r.m_nDirection, r.m_nMode, r.m_nLowValue, r.m_nHighValue);
        },
        1, 2, 3, 4);
    CheckRecord<CPrefTrend>(
        kTrend, kOtherTrend,
        [](const CPrefTrend& r) {
            return std::tuple(r.m_nType, r.m_nTimeSpan, r.m_nTimeDivisions, r.m_nHighValue, r.m_nLowValue,
                              r.m_nValueDivisions, r.m_dwGridColor, r.m_dwBackColor);
        },
        1, 2, 3, 4, 5, 6, 7u, 8u);
}

TEST(Preference, TheBaseAloneCopiesItsName) {
    CPrefBase source;
    source.m_strName = L"tag";
    const CPrefBase copy(source);
    EXPECT_STREQ(L"tag", copy.m_strName);
    EXPECT_TRUE(SameBytes(Stored(source), Bytes().S(L"tag")));
}

TEST(Preference, ConditionKeepsTheLowSixteenBits) {
    CPrefCondition source;
    source.m_comparisons[0].m_nCompare = 70000;
    source.m_comparisons[3].m_nJoin = -1;
    CPrefCondition loaded;
    Load(loaded, Stored(source));
    EXPECT_EQ(4464, loaded.m_comparisons[0].m_nCompare);
    EXPECT_EQ(65535, loaded.m_comparisons[3].m_nJoin);
}

void DeleteLines(CPrefTrend& trend) {
    for (CPrefTrendLine* line : trend.m_lines)
        delete line;
    trend.m_lines.clear();
}

TEST(Preference, ATrendCopiesItsLinesAsNewOnesWithoutNames) {
    const Bytes fields = Bytes().Is({1, 2, 3, 4, 5, 6, 7, 8});
    const Bytes lines = Bytes().S(L"one").Is({2, 20}).S(L"two").Is({3, 30});
    const Bytes nameless = Bytes().S().Is({2, 20}).S().Is({3, 30});
    CPrefTrend source;
    EXPECT_EQ(0u, Load(source, Bytes().S().Add(fields).I(2).Add(lines)));
    ASSERT_EQ(2u, source.m_lines.size());
    source.m_lines.insert(std::next(source.m_lines.begin()), nullptr);
    EXPECT_TRUE(SameBytes(Stored(source), Bytes().S().Add(fields).I(2).Add(lines)));

    CPrefTrendLine former;
    CPrefTrend target;
    target.m_lines.assign({nullptr, &former});
    target = source;
    EXPECT_TRUE(SameBytes(Stored(target), Bytes().S().Add(fields).I(2).Add(nameless)));
    EXPECT_NE(source.m_lines.front(), target.m_lines.front());
    target = static_cast<const CPrefTrend&>(target);
    EXPECT_EQ(2u, target.m_lines.size());

    Load(target, Bytes().S().Add(fields).I(1).S(L"more").Is({4, 40}));
    EXPECT_EQ(3u, target.m_lines.size());
    DeleteLines(source);
    DeleteLines(target);
}

TEST(Preference, AHostileNumberOfTrendLinesEndsInTheArchiveException) {
    const Bytes fields = Bytes().S().Is({1, 2, 3, 4, 5, 6, 7, 8});
    CPrefTrend trend;
    EXPECT_EQ(CArchiveException::badSchema, LoadFailure(trend, Bytes().Add(fields).I(-1)));
    EXPECT_EQ(CArchiveException::endOfFile,
              LoadFailure(trend, Bytes().Add(fields).I(0x7FFFFFFF).S().Is({1, 2})));
    EXPECT_EQ(1u, trend.m_lines.size());
    DeleteLines(trend);
}

/// The sixteen records of a set in order, each with the name that `name` gives it.
Bytes SetOfRecords(const std::vector<Bytes>& records, const std::function<std::wstring(size_t)>& name) {
    Bytes b;
    for (size_t i = 0; i < records.size(); ++i)
        b.Add(Named(name(i), records[i]));
    return b;
}

TEST(Preference, ASetIsItsSixteenRecordsInOrderAndKeepsItsNames) {
    const std::vector<Bytes> defaults = {kCondition, kFill,  kMove,  kMove,   kSize, kSize, kRotate, kColor,
                                         kHide,      kInput, kBlink, kButton, kPage, kText, kSlider, kTrend};
    std::vector<Bytes> others = defaults;
    others[1] = kOtherFill;
    others[3] = Bytes().Is({2, 3}).F(4).Is({5, 6});
    others[5] = Bytes().Is({1, 2, 3, 4, 5, 6});
    others[8] = kOtherSeven;
    others[11] = kOtherButton;
    const auto none = [](size_t) { return std::wstring(); };
    const auto numbered = [](size_t i) { return std::to_wstring(i); };

    CUIPreference fresh;
    EXPECT_TRUE(SameBytes(Stored(fresh), SetOfRecords(defaults, none)));
    CUIPreference source;
    EXPECT_EQ(0u, Load(source, SetOfRecords(others, [](size_t) { return std::wstring(L"x"); })));
    CUIPreference target;
    Load(target, SetOfRecords(defaults, numbered));
    target = source;
    EXPECT_TRUE(SameBytes(Stored(target), SetOfRecords(others, numbered)));
    CUIPreference copy(source);
    EXPECT_TRUE(SameBytes(Stored(copy), SetOfRecords(others, none)));
}

}  // namespace
