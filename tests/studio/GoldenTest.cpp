// What a running page looks like, and that a change repaints all that it changes.
#include "RunFixture.h"
#include "studio/document/DemoProject.h"
#include "studio/document/SymbolLibrary.h"
#include "studio/editing/Grid.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PictureFill.h"

#include <gtest/gtest.h>

using namespace Studio;
using Lumo::CUIObject;

namespace {

class GoldenTest : public RunFixture {
protected:
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
    // Colours, captions, and what blinks or hides in parts.
    constexpr LPCWSTR kNames[] = {L"in1.mute", L"in6.mute", L"in1.level", L"in2.gain"};
    for (int i = 0; i < 24; ++i) {
        const int row = i / 8;
        CUIObject* object =
            Add(i % 5 == 4 ? Lumo::DS_LINE
                : i % 2    ? Lumo::DS_ELLIPSE
                           : Lumo::DS_TEXTEDIT,
                9 + 73.0f * static_cast<float>(i % 8), 280 + 40.0f * static_cast<float>(row), 60, 30);
        constexpr Behaviour kSome[] = {Behaviour::kColor, Behaviour::kText, Behaviour::kButton,
                                       Behaviour::kHide,  Behaviour::kFill, Behaviour::kBlink};
        auto& extras = Extras(object, kSome[i % 6], kNames[i / 6]);
        auto& prefs = extras.prefs;
        SetRange(prefs, -60, 0);
        prefs.m_color.m_dwNormalColor = 0xFF205030, prefs.m_color.m_dwTextOnColor = 0xFFFF0000;
        prefs.m_color.m_dwLineColor = 0xFF00FFFF, prefs.m_text.m_nType = i / 12;
        prefs.m_button.m_strOnText = L"on", prefs.m_button.m_strOffText = L"off",
        prefs.m_button.m_nAction = i / 12 * 2;
        prefs.m_fill.m_nDirection = i / 6, prefs.m_fill.m_dwBorderColor = 0xFFFF00FF;
        (i / 6 % 3 == 0   ? prefs.m_hide.m_bHideFill
         : i / 6 % 3 == 1 ? prefs.m_hide.m_bHideLine
                          : prefs.m_hide.m_bHideText) = 1;
        (i / 6 % 3 == 0   ? prefs.m_blink.m_bBlinkText
         : i / 6 % 3 == 1 ? prefs.m_blink.m_bBlinkFill
                          : prefs.m_blink.m_bBlinkLine) = 1;
    }
    Run();
    m_device.Settle();
    m_session->Tick(0.6);
    ExpectGolden(PixelsOf(Page()), "studio", "behaviours");
    ExpectNothingStale();
}

// Graphs of each kind; with letters and too small for them; full, half full, with a line for the binding
// alone.
TEST_F(GoldenTest, Trends) {
    const auto add = [&](int i, const Gdiplus::RectF& place, int span) -> CPrefTrend& {
        CUIObject* object = Add(Lumo::DS_RECTANGLE, place.X, place.Y, place.Width, place.Height);
        object->SetText(L" ");
        auto& trend = Extras(object, Behaviour::kTrend, L"in1.gain").prefs.m_trend;
        trend.m_nType = i % 4, trend.m_nTimeSpan = span, trend.m_nLowValue = -60, trend.m_nHighValue = 12;
        trend.m_nTimeDivisions = 3, trend.m_nValueDivisions = 4;
        for (int k = 0; k < i % 7; ++k) {
            auto* line = new CPrefTrendLine;
            line->m_strName.Format(L"in%d.gain", k + 1);
            line->m_nWidth = 1 + 2 * k, line->m_nColor = k % 2 ? -1 : static_cast<int>(0xFF40C080u * (k + 1));
            trend.m_lines.push_back(line);
        }
        return trend;
    };
    for (int i = 0; i < 8; ++i)
        add(i,
            Gdiplus::RectF(13 + 147.0f * static_cast<float>(i % 4), i < 4 ? 9 : 109, i < 4 ? 139 : 114, 87),
            i % 2 ? 30 : 9);
    add(1, {13, 209, 123.0f, 63.0f}, 90000);
    add(3, {160, 209, 300, 65.0f}, 0).m_nTimeDivisions = 200;
    auto& flat = add(1, {470, 209, 123, 90}, 20);
    flat.m_nHighValue = flat.m_nLowValue, flat.m_nValueDivisions = 0;
    Run();
    for (int i = 0; i < 230; ++i) {
        m_device.Set(L"in1.gain", -55 + i % 60);
        m_device.Set(L"in2.gain", i < 150 ? -20 : -37.5);
        m_device.Set(L"in3.gain", -70 + i % 90);
        m_session->Tick(0.1);
    }
    ExpectGolden(PixelsOf(Page()), "studio", "trends");
    ExpectNothingStale();
}

TEST_F(GoldenTest, DemoProject) {
    m_parent.MoveWindow(0, 0, 810, 700);
    ASSERT_TRUE(m_document->NewFile(MakeDemoProject()));
    Sheet edited(1621);
    const auto show = [&](int page) {
        Page().ShowWindow(SW_HIDE);
        m_document->ShowPage(page);
        Page().MoveWindow(0, 0, 808, 690);
        Page().ShowWindow(SW_SHOWNA);
        Page().UpdateWindow();
        return PixelsOf(Page());
    };
    for (int page = 0; page < 4; ++page)
        edited.Add(show(page));
    ExpectGolden(edited.All(), "studio", "demo");
    CString names;
    for (const Studio::Page& page : m_document->Pages())
        names += page.name + L" ";
    EXPECT_STREQ(names, L"Overview Matrix Equaliser Levels ");
    show(0);
    Run();
    for (int i = 0; i < 130; ++i)
        m_session->Tick(0.1);
    ExpectGolden(PixelsOf(Page()), "studio", "demo-running");
    ExpectNothingStale();
}

TEST_F(GoldenTest, StandardSymbols) {
    const CString folder = FileName(L"symbols");
    WriteStandardSymbols(folder);
    const auto symbols = FindSymbols(folder);
    const Pixels all = PixelsOf(nullptr, CRect(0, 0, 820, 200), [&](HDC dc) {
        Gdiplus::Graphics g(dc);
        g.TranslateTransform(5, 5);
        for (const CString& path : symbols) {
            const ObjectPtr symbol = LoadSymbol(path);
            symbol->Draw(&g);
            g.TranslateTransform(symbol->GetPosition().Width + 15, 0);
            ::DeleteFile(path);
        }
    });
    ::RemoveDirectory(folder);
    ExpectGolden(all, "studio", "symbols");
}

// Each kind of object with its outlines, fills and captions, as it is drawn, selected, and dragged.
TEST_F(GoldenTest, Editing) {
    const CString picture = FileName(L"picture.png");
    golden::Save({3, 2, {0xFF0000, 0x00FF00, 0x0000FF, 0xFFFF00, 0x00FFFF, 0xFFFFFF}}, picture.GetString());
    Sheet sheet(1203);
    const auto look = [&] {
        Page().UpdateWindow();
        sheet.Add(PixelsOf(Page()));
    };
    constexpr Lumo::DrawShape kKinds[] = {Lumo::DS_RECTANGLE, Lumo::DS_ELLIPSE, Lumo::DS_TEXTEDIT,
                                          Lumo::DS_LINE, Lumo::DS_POLYLINE};
    constexpr int kCaps[] = {0, 1, 2, 3, 0x11, 0x12, 0x13, 0x14};
    for (int i = 0; i < 40; ++i) {
        const int column = i % 8, row = i / 8;
        CUIObject* object = Add(kKinds[row], 12.0f + 73.0f * static_cast<float>(column),
                                14.0f + 77.0f * static_cast<float>(row), 51 + static_cast<float>(column), 43);
        if (auto* poly = dynamic_cast<Lumo::CUIObjectPoly*>(object); poly && row == 4) {
            Gdiplus::PointF corner = poly->NormalizePoints()->front() + Gdiplus::PointF(40, -9);
            poly->AddPoint(corner);
        }
        object->SetText(column % 3 ? L"Tx\n3y" : L"Aj");
        object->SetTextAlignment(column % 3);
        object->SetTextFontStyle(column);
        object->SetFillShapeMode(column % 7);
        object->GetCoordinate().Format<Lumo::CUIShapeFormatFill>().m_strImagePath =
            column == 6 && row == 1 ? CString(L"none.png") : picture;
        object->SetLineDashStyle(column % 5);
        object->SetLineWidth(static_cast<float>(1 + column % 4));
        object->SetLineStartCap(kCaps[column]);
        object->SetLineEndCap(kCaps[(column + 3) % 8]);
    }
    Page().Select(nullptr, 0);
    PageGrid().shown = true;
    look();
    SelectAll(Page());
    look();
    Add(Lumo::DS_LINE, -300, -200, 7, 9);
    Page().NotifyState();
    Settle();
    Page().ScrollTo(CPoint(-33, -57));
    look();
    DeleteSelection(Page());
    Settle();
    SelectAll(Page());
    DuplicateSelection(Page());
    SelectAll(Page());
    look();
    DeleteSelection(Page());
    for (const Lumo::DrawShape kind : kKinds) {
        ChooseTool(Page(), kind);
        const int x = 30 + 100 * static_cast<int>(kind == Lumo::DS_LINE) + 40 * static_cast<int>(kind);
        Drag({x % 500, 60}, {x % 500 + 70, 160}, kind == Lumo::DS_ELLIPSE ? MK_SHIFT : 0);
    }
    Mouse(WM_MOUSEMOVE, 480, 300);
    look();
    Page().FinishEditing();
    Mouse(WM_LBUTTONDOWN, 590, 10);
    Mouse(WM_MOUSEMOVE, 300, 111, MK_LBUTTON);
    look();
    Mouse(WM_LBUTTONUP, 250, 111);
    PageGrid() = Grid();
    Page().Invalidate(FALSE);
    for (int i = 0; i < 202; ++i)
        Add(Lumo::DS_ELLIPSE, static_cast<float>(i * 37 % 560), static_cast<float>(i * 53 % 170), 30, 20);
    SelectAll(Page());
    Page().Deselect(Objects().front());
    const Gdiplus::RectF grip = Objects().back()->GetPosition();
    const CPoint from(static_cast<int>(grip.X) + 9, static_cast<int>(grip.Y) + 9);
    Mouse(WM_LBUTTONDOWN, from.x, from.y);
    Mouse(WM_MOUSEMOVE, from.x + 9, from.y + 170, MK_LBUTTON);
    look();
    Page().CancelGesture();
    Page().UpdateWindow();
    const Pixels cancelled = PixelsOf(Page());
    Page().Invalidate(FALSE);
    Page().UpdateWindow();
    EXPECT_EQ(CountDiffering(PixelsOf(Page()), cancelled), 0u);
    // A picture of its own size stands around its place, or fills what was asked for.
    EXPECT_EQ(nullptr, MakePicture(FileName(L"none"), Gdiplus::RectF(50, 50, 0, 0), {100, 100}));
    ExpectBounds(*MakePicture(picture, Gdiplus::RectF(50, 50, 0, 0), {100, 100}), 49, 49, 3, 2);
    ExpectBounds(*MakePicture(picture, Gdiplus::RectF(50, 50, 0, 0), {1.5f, 100}), 49, 50, 1.5f, 1);
    ExpectBounds(*MakePicture(picture, Gdiplus::RectF(50, 50, 20, 9), {1.5f, 100}), 50, 50, 20, 9);
    ExpectGolden(sheet.All(), "studio", "editing");
}
