#include "canvas/GestureScript.h"

#include <array>
#include <iterator>
#include <memory>
#include <random>
#include <set>
#include <gtest/gtest.h>

using namespace Lumo;

namespace {

using ToolTest = GestureScript;

TEST_F(ToolTest, TheThirteenToolsStandInTheirOrder) {
    const DrawShape kinds[] = {DS_RECTANGLE, DS_ELLIPSE,    DS_TEXTEDIT, DS_LIST,   DS_SYMBOL,
                               DS_BUTTON,    DS_BUTTONBAND, DS_CHARTPEQ, DS_SELECT, DS_TOOL_TEXT,
                               DS_SELECT,    DS_LINE,       DS_POLYLINE};
    ASSERT_GE(CUIToolBase::m_tools.size(), std::size(kinds));
    for (size_t i = 0; i < std::size(kinds); ++i)
        EXPECT_EQ(CUIToolBase::m_tools[i]->GetKind(), kinds[i]) << i;
    EXPECT_EQ(CUIToolBase::FindTool(DS_SELECT), CUIToolBase::m_tools[8]);
    EXPECT_EQ(CUIToolBase::FindTool(DS_TOOL_PROPERTY), nullptr);
    {
        CUIRunningTool tool(DS_TOOL_PROPERTY);
        EXPECT_EQ(CUIToolBase::FindTool(DS_TOOL_PROPERTY), &tool);
    }
    EXPECT_EQ(CUIToolBase::FindTool(DS_TOOL_PROPERTY), nullptr);
}

TEST_F(ToolTest, SnapsToAxesAndDiagonals) {
    const struct {
        CPoint from, to;
    } cases[] = {{{10, 4}, {10, 0}},  {{4, 10}, {0, 10}},    {{10, 6}, {6, 6}}, {{-10, 6}, {-6, 6}},
                 {{10, -6}, {6, -6}}, {{-4, -10}, {0, -10}}, {{6, 10}, {6, 6}}, {{-6, -10}, {-6, -6}},
                 {{10, 5}, {10, 0}},  {{-7, -7}, {-7, -7}}};
    for (const auto& c : cases) {
        CPoint pt = c.from + CSize(100, 200);
        CUIToolBase::MoveControl(CPoint(100, 200), pt);
        EXPECT_EQ(CPoint(pt - CPoint(100, 200)), c.to) << c.from.x << ", " << c.from.y;
    }
}

TEST_F(ToolTest, ClampsIntoTheLimit) {
    const struct {
        CPoint from, to;
    } cases[] = {{{150, -20}, {100, 10}}, {{100, 50}, {100, 50}}, {{19, 60}, {20, 50}}, {{40, 20}, {40, 20}},
                 {{150, 30}, {100, 30}},  {{19, 30}, {20, 30}},   {{40, 9}, {40, 10}},  {{40, 51}, {40, 50}}};
    for (const auto& c : cases) {
        CPoint pt = c.from;
        CUIToolBase::MoveControl(CRect(20, 10, 100, 50), pt);
        EXPECT_EQ(pt, c.to) << c.from.x << ", " << c.from.y;
    }
}

TEST_F(ToolTest, Selecting) {
    ExpectStates({
        // A press selects, and the next one moves.
        {"R S", "press:60,62", "t16 d0 h8 held cross a1 b"},
        {"R", "press:60,62 release:60,62", "t16 d0 h-1 arrow a1"},
        {"R pick:a", "press:60,62", "t16 d1 h8 held cross a1"},
        {"R pick:a", "press:60,62 move:65,60", "t16 d1 h8 held cross a1(55,48,40,30)"},
        {"R pick:a", "press:60,62 move:65,60 release:75,65", "t16 d0 h-1 arrow a1(65,53,40,30)"},
        // Shift adds and takes away.
        {"R S pick:a", "press:160,70,s", "t16 d0 h8 held cross a2 b1"},
        {"R S pick:a", "press:160,70", "t16 d0 h8 held cross a b1"},
        {"R S pick:ba", "press:60,62,s", "t16 d0 h-1 held cross a b1"},
        // Several do not move together: the drag ends as a rubber band does.
        {"R S pick:ba", "press:60,62", "t16 d0 h8 held cross a2 b1"},
        {"R S pick:ba", "press:60,62 move:65,60 release:70,70", "t16 d0 h-1 arrow a b"},
        {"R pick:a", "press:200,210", "t16 d3 h-1 held cross a"},
        {"R", "press:200,210 move:20,30 release:10,20", "t16 d0 h-1 arrow a"},
    });
}

TEST_F(ToolTest, Reshaping) {
    ExpectStates({
        // The drag starts at the handle's own point.
        {"R pick:a", "press:52,48", "t16 d2 h0 held nwse a1"},
        {"R pick:a", "press:52,48 move:40,47", "t16 d2 h0 held nwse a1(40,47,50,33)"},
        {"R pick:a", "press:52,48 move:40,47 release:38,46", "t16 d0 h-1 arrow a1(38,46,52,34)"},
        {"R pick:a", "press:49,66 release:40,99", "t16 d0 h-1 arrow a1(40,50,50,30)"},
        // Ctrl snaps to the neighbour: to handle 1 from 2, to 2 from 1.
        {"R pick:a", "press:90,80 move:96,140,c", "t16 d2 h2 held nwse a1(50,50,40,90)"},
        {"R pick:a", "press:90,50 move:120,77,c", "t16 d2 h1 held nesw a1(50,80,70,0)"},
        {"R pick:a", "press:90,80 release:96,140,c", "t16 d0 h-1 arrow a1(50,50,40,90)"},
        // Nothing is left to reshape.
        {"R pick:a", "press:90,80 destroy:a move:96,140 release:97,99", "t16 d0 h-1 arrow"},
    });
}

TEST_F(ToolTest, Hovering) {
    ExpectStates({
        {"R pick:a", "hover:52,48", "t16 d0 h0 nwse a1"},
        {"R pick:a", "hover:60,62", "t16 d0 h8 cross a1"},
        {"R pick:a", "hover:52,48 hover:300,200", "t16 d0 h-1 nwse a1"},
        {"R S pick:ba", "handle:5 hover:50,50", "t16 d0 h-1 a2 b1"},
        {"R pick:a tool:3", "hover:52,48", "t3 d0 h-1 a1"},
        // A button without the mouse is hovering, too; the mouse without a button drags.
        {"R pick:a", "move:52,48", "t16 d0 h0 nwse a1"},
        {"R pick:a", "grab hold hover:65,58", "t16 d1 h8 held a1(55,48,40,30)"},
    });
    ExpectStates({{"R pick:a", "tool:3", "t3 d0 h-1 a1"}});
    Select().OnMouseMove(m_canvas, 0, CPoint(52, 48));
    EXPECT_EQ(CUIToolBase::run_handle, -1) << "another tool is chosen";
}

TEST_F(ToolTest, DrawingByDragging) {
    ExpectStates({
        {"tool:3", "press:50,40", "t3 d2 h2 held cross a1(50,40,0,0)"},
        {"tool:3", "press:50,40 move:90,75", "t3 d2 h2 held cross a1(50,40,40,35)"},
        {"tool:3", "press:50,40 move:90,75 release:20,101", "t3 d0 h-1 arrow a1(50,40,-30,61)"},
        // Too small: from 3 units left of the press to less than 3 right of it. The first object goes.
        {"tool:3 T", "press:50,40 release:50,40", "t16 d0 h-1 arrow b1(50,40,0,0)"},
        {"tool:3 T", "press:50,40 release:52,42", "t16 d0 h-1 arrow b(50,40,0,0)"},
        {"tool:3 T", "press:50,40 release:47,37", "t16 d0 h-1 arrow b(50,40,0,0)"},
        {"tool:3", "press:50,40 release:53,40", "t3 d0 h-1 arrow a1(50,40,3,0)"},
        {"tool:3", "press:50,40 release:50,43", "t3 d0 h-1 arrow a1(50,40,0,3)"},
        {"tool:3", "press:50,40 release:46,41", "t3 d0 h-1 arrow a1(50,40,-4,1)"},
        {"tool:3", "press:50,40 release:51,36", "t3 d0 h-1 arrow a1(50,40,1,-4)"},
        // The mouse was lost in the middle.
        {"tool:3", "press:50,40 lose release:51,41", "t16 d0 h-1 arrow"},
        {"tool:3", "press:50,40 lose release:90,41", "t3 d0 h-1 arrow a1(50,40,0,0)"},
        {"tool:3", "press:50,40 lose move:90,80", "t3 d2 h2 cross a1(50,40,0,0)"},
        // Only what the press has drawn can be too small.
        {"tool:3 T R pick:b mode:2", "press:90,80 release:90,80", "t3 d0 h-1 arrow a b1"},
        {"tool:3 T R", "press:60,90 lose mode:2 pick:c press:60,90 release:60,90",
         "t3 d0 h-1 arrow a b c1(60,90,0,0)"},
        {"tool:3 T", "press:50,40 destroy:b pick:a release:50,40", "t3 d0 h-1 arrow a1"},
        {"tool:3 T pick:a", "release:10,11", "t3 d0 h-1 a1"},
    });
}

TEST_F(ToolTest, AnObjectWhereADestroyedOneLayIsNotTheOneBeingDrawn) {
    Run("tool:3 T press:50,40");
    CUIObject* const drawn = Objects().back();
    CUIDocument::DestroyObject(drawn);
    std::vector<std::unique_ptr<CUIObject>> others;
    do
        others.emplace_back(CUIToolBase::CreateUIObject({50, 40, 0, 0}, DS_RECTANGLE));
    while (others.back().get() != drawn && others.size() < 1000);
    if (others.back().get() != drawn)
        GTEST_SKIP() << "its memory is not used again";
    m_document->AppendObject(others.back().get(), nullptr);
    m_canvas->m_selection = {others.back().release()};
    Run("release:50,40");
    EXPECT_EQ(State(), "t3 d0 h-1 arrow a b1(50,40,0,0)");
}

TEST_F(ToolTest, DrawingALine) {
    ExpectStates({
        {"tool:1", "press:10,12", "t1 d2 h1 held cross a1{10,12 +0,0}"},
        // A release within 5 units is a click, one farther away the second point.
        {"tool:1", "press:10,12 release:14,16", "t1 d2 h1 held cross a1{10,12 +0,0}"},
        {"tool:1", "press:10,12 release:5,7", "t1 d2 h1 held cross a1{10,12 +0,0}"},
        {"tool:1", "press:10,12 release:15,12", "t16 d0 h-1 arrow a1{10,12 15,12 +0,0}"},
        {"tool:1", "press:10,12 release:4,12", "t16 d0 h-1 arrow a1{10,12 4,12 +0,0}"},
        {"tool:1", "press:10,12 release:10,17", "t16 d0 h-1 arrow a1{10,12 10,17 +0,0}"},
        {"tool:1", "press:10,12 release:10,6", "t16 d0 h-1 arrow a1{10,12 10,6 +0,0}"},
        {"tool:1", "press:10,12 release:10,12 hover:60,50", "t1 d2 h1 held cross a1{10,12 +50,38}"},
        {"tool:1", "press:10,12 release:10,12 hover:60,50 press:60,55,c",
         "t16 d0 h-1 arrow a1{10,12 53,55 +0,0}"},
        {"tool:1", "press:10,12 lose hover:60,50", "t1 d2 h1 cross a1{10,12 +0,0}"},
        // The number of a handle that the mouse hovered over is no count of points.
        {"R pick:a", "hover:90,50 tool:1 release:150,150", "t1 d0 h1 nesw a1"},
        {"R pick:a", "hover:90,50 tool:1 press:10,12", "t1 d2 h1 held cross a b1{10,12 +0,0}"},
    });
}

TEST_F(ToolTest, DrawingAPolyline) {
    ExpectStates({
        {"tool:2", "press:10,12 release:10,12 press:50,14", "t2 d2 h2 held cross a1{10,12 50,14 +0,0}"},
        {"tool:2", "press:10,12 release:10,12 press:50,14 release:90,90",
         "t2 d2 h2 held cross a1{10,12 50,14 +0,0}"},
        {"tool:2", "press:10,12 press:50,14 hover:70,44", "t2 d2 h2 held cross a1{10,12 50,14 +20,30}"},
        {"tool:2", "press:10,12 press:60,14,c", "t2 d2 h2 held cross a1{10,12 60,12 +0,0}"},
        {"tool:2", "press:10,12 press:50,14 double:90,61 release:91,61",
         "t16 d0 h-1 arrow a1{10,12 50,14 90,61 +0,0}"},
        {"tool:2", "press:10,12 double:60,14,c", "t16 d0 h-1 arrow a1{10,12 60,12 +0,0}"},
        {"tool:2", "double:60,14", "t16 d0 h-1 arrow"},
        // The figure's last point ends it; in rectangle mode a press later, without a point.
        {"tool:2", "press:10,12 max:3 press:50,14", "t2 d2 h2 held cross a1{10,12 50,14 +0,0}"},
        {"tool:2", "press:10,12 max:3 press:50,14 press:90,61",
         "t16 d0 h-1 arrow a1{10,12 50,14 90,61 +0,0}"},
        {"tool:2", "press:10,12 max:2 rectmode press:50,14", "t2 d2 h2 held cross a1{10,12 50,14 +0,0}"},
        {"tool:2", "press:10,12 max:2 rectmode press:50,14 press:90,61",
         "t16 d0 h-1 arrow a1{10,12 50,14 +0,0}"},
        // A figure that is gone, no longer selected or ended by the host.
        {"tool:2", "press:10,12 destroy:a press:50,54", "t2 d2 h1 held cross b1{50,54 +0,0}"},
        {"tool:2", "press:10,12 destroy:a release:10,12", "t2 d0 h-1 arrow"},
        {"tool:2 T", "press:10,12 pick:a press:50,54", "t2 d2 h1 held cross a b{10,12 +0,0} c1{50,54 +0,0}"},
        {"tool:2", "press:10,12 handle:-1 press:50,54", "t2 d2 h1 held cross a{10,12 +0,0} b1{50,54 +0,0}"},
    });
}

TEST_F(ToolTest, WhatIsDrawnIsRepainted) {
    ExpectStates({
        {"tool:3 paint", "press:50,40", "t3 d2 h2 held cross a1(50,40,0,0) repaint 44,34,56,46"},
        {"tool:2 paint", "press:50,40", "t2 d2 h1 held cross a1{50,40 +0,0} repaint 44,34,56,46"},
        // The free segment lies outside the figure's rectangle: old and new place, both with the pen's
        // margin.
        {"tool:2", "press:50,60 hover:90,70 paint hover:60,95",
         "t2 d2 h1 held cross a1{50,60 +10,35} repaint 40,50,100,105"},
        {"tool:2", "press:50,60 hover:90,70 paint press:20,95",
         "t2 d2 h2 held cross a1{50,60 20,95 +0,0} repaint 14,50,100,101"},
        {"tool:2", "press:50,60 hover:90,70 paint double:60,95",
         "t16 d0 h-1 arrow a1{50,60 60,95 +0,0} repaint 40,50,100,101"},
    });
}

TEST_F(ToolTest, TextModeLeavesWhatIsNoTextToSelecting) {
    ExpectStates({
        {"R mode:2 tool:3", "press:60,62", "t3 d0 h8 held cross a1"},
        {"R mode:2 tool:3", "press:60,62 release:60,62", "t3 d0 h-1 arrow a1"},
        {"R pick:a mode:2", "press:200,210", "t16 d3 h-1 held cross a"},
        {"R mode:2", "hold release:60,62", "t16 d0 h-1 m2 arrow a"},
    });
}

TEST_F(ToolTest, OnlyTheCurrentPageIsEdited) {
    const CUIDownTool single(DS_ARC);
    ExpectStates({
        {"R pick:a other", "press:60,62 hover:52,48 release:90,95", "t16 d0 h-1 a1"},
        {"R pick:a other grab hold", "move:65,58 release:70,71", "t16 d1 h8 held a1"},
        {"R tool:3 other", "press:60,62 release:60,62", "t3 d0 h-1 a"},
        {"R tool:2 other", "press:60,62 release:60,62 double:70,71", "t2 d0 h-1 a"},
        {"R tool:5 other hold", "press:60,62 release:60,62", "t5 d0 h-1 held a"},
        {"R mode:2 other hold", "press:60,62 release:60,62", "t16 d0 h-1 m2 held a"},
    });
}

TEST_F(ToolTest, AReleaseThatItsToolDoesNotGetEndsThePress) {
    const CUIToolBase host(DS_ARC);
    ExpectStates({
        {"tool:3 press:60,62", "tool:1 release:90,95", "t1 d0 h-1 arrow a1(60,62,0,0)"},
        {"tool:3 press:60,62", "tool:17 release:90,95", "t17 d0 h-1 arrow a1(60,62,0,0)"},
        {"tool:3 press:60,62", "tool:7 release:90,95", "t7 d0 h-1 arrow a1(60,62,0,0)"},
        {"tool:3 press:60,62", "mode:3 release:90,95", "t3 d0 h-1 m3 arrow a1(60,62,0,0)"},
        {"tool:3 press:60,62", "quiet release:90,95", "t3 d0 h-1 arrow a1(60,62,0,0)"},
        {"tool:3 press:60,62", "other release:90,95", "t3 d0 h-1 arrow a1(60,62,0,0)"},
        {"tool:3 press:60,62", "clear release:90,95", "t3 d0 h-1 arrow"},
        {"tool:3 press:60,62", "paint tool:7 release:90,95",
         "t7 d0 h-1 arrow a1(60,62,0,0) repaint 0,0,400,300"},
        // Its own tool may keep it, and what no tool began is the host's.
        {"tool:5 press:60,62", "release:90,95", "t5 d0 h-1 held cross"},
        {"tool:7 hold", "release:90,95", "t7 d0 h-1 held"},
        {"tool:14 hold", "release:90,95", "t14 d0 h-1 held arrow"},
    });
    ExpectStates({{"tool:3 press:60,62", "move:70,75", "t3 d2 h2 held cross a1(60,62,10,13)"}});
    CUIToolBase::FindTool(DS_SYMBOL)->OnLButtonUp(m_canvas, 0, CPoint(90, 95));
    EXPECT_EQ(State(), "t3 d2 h2 held arrow a1(60,62,10,13)");
}

TEST_F(ToolTest, APageThatGoesTakesItsPressWithIt) {
    auto page = std::make_unique<CUICanvas>(m_document);
    page->CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD, 0, 0, 90, 80, m_parent.m_hWnd, nullptr);
    m_document->AppendCanvas(page.get());
    CUIToolBase::run_drawshape = DS_RECTANGLE;
    page->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 30));
    ASSERT_EQ(CUIToolBase::run_handle, 2);
    page.reset();
    m_document->SetCurrentCanvas(m_canvas);
    EXPECT_EQ(State(), "t3 d0 h-1 arrow");
}

// A host's tool ahead of the library's that notes what it finds at the release.
class NotingTool : public CUIDownUpTool {
public:
    NotingTool() : CUIDownUpTool(DS_RECTANGLE) {
        m_tools.pop_back();
        m_tools.push_front(this);
    }
    void OnLButtonUp(CUICanvas* canvas, UINT, const CPoint&) override {
        handle = run_handle;
        held = ::GetCapture() == canvas->m_hWnd;
    }
    int handle = -1;
    bool held = false;
};

TEST_F(ToolTest, AHostsToolSeesThePressWhereverItEnds) {
    for (const char* change : {"other", "clear"}) {
        NotingTool tool;
        Run("tool:3 press:60,62");
        Run(change);
        Run("release:90,95");
        EXPECT_EQ(tool.handle, 2) << change;
        EXPECT_TRUE(tool.held) << change;
        EXPECT_EQ(::GetCapture(), nullptr) << change;
        m_document->AppendCanvas(m_canvas);
    }
}

TEST_F(ToolTest, NamesWhatItDraws) {
    Run("tool:3 press:50,40 release:90,95 press:20,30 release:70,85");
    EXPECT_STREQ(Objects().front()->GetShapeName(), L"Rectangle1");
    EXPECT_STREQ(Objects().back()->GetShapeName(), L"Rectangle2");
    EXPECT_STREQ(Objects().back()->GetText(), L"Rectangle2");
    EXPECT_EQ(Objects().back()->GetDocument(), m_document);
    EXPECT_EQ(Objects().back()->GetCanvas(), m_canvas);
}

// A page that shows its unit (0, 0) at the client pixel (30, 20).
class ScrolledCanvas : public CUICanvas {
public:
    using CUICanvas::CUICanvas;
    void OnPrepareDC(CDC* dc, CPrintInfo* info) override {
        CUICanvas::OnPrepareDC(dc, info);
        dc->SetViewportOrg(30, 20);
    }
};

TEST_F(ToolTest, PointsArePageUnitsOnAScrolledPage) {
    CUICanvas* const plain = m_canvas;
    ScrolledCanvas scrolled(m_document);
    scrolled.CreateEx(0, AfxRegisterWndClass(0), L"", WS_CHILD | WS_VISIBLE, 0, 0, kWidth, kHeight,
                      m_parent.m_hWnd, nullptr);
    m_canvas = &scrolled;
    ExpectStates({
        {"tool:3", "press:80,60 move:120,95 release:150,121", "t3 d0 h-1 arrow a1(50,40,70,61)"},
        {"tool:3", "press:80,60 release:82,62", "t16 d0 h-1 arrow"},
        {"R pick:a", "hover:82,68", "t16 d0 h0 nwse a1"},
        {"R pick:a", "press:90,82 move:95,80 release:105,85", "t16 d0 h-1 arrow a1(65,53,40,30)"},
        // Kept: the first point of a figure is the client's.
        {"tool:2", "press:80,60 press:95,77 double:111,99", "t16 d0 h-1 arrow a1{80,60 65,57 81,79 +0,0}"},
    });
    m_canvas = plain;
    m_document->SetCurrentCanvas(plain);
}

int LitPixels(CWnd& wnd, int width, int height) {
    Gdiplus::Bitmap bitmap(width, height, PixelFormat32bppRGB);
    {
        Gdiplus::Graphics g(&bitmap);
        const HDC to = g.GetHDC();
        CClientDC from(&wnd);
        ::BitBlt(to, 0, 0, width, height, from.m_hDC, 0, 0, SRCCOPY);
        g.ReleaseHDC(to);
    }
    int lit = 0;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            Gdiplus::Color color;
            bitmap.GetPixel(x, y, &color);
            lit += (color.GetValue() & 0xFFFFFF) != 0;
        }
    return lit;
}

// Half the pixels of the band's edge are lit.
TEST_F(ToolTest, TheRubberBandFollowsTheMouseAndGoes) {
    m_canvas->UpdateWindow();
    const auto lit = [&] { return LitPixels(*m_canvas, kWidth, kHeight); };
    Run("press:100,90 move:140,110");
    EXPECT_NEAR(lit(), 40 + 20, 3);
    Run("move:30,60");
    EXPECT_NEAR(lit(), 70 + 30, 3);
    Run("release:20,10");
    EXPECT_EQ(lit(), 0);
    // Kept: a drag that moves nothing leaves a frame behind, from the press to the last move.
    Run("S press:160,100");
    m_canvas->UpdateWindow();
    const int before = lit();
    Run("move:110,190 release:100,180");
    EXPECT_GT(lit() - before, 100);
}

// A rectangle whose handle 2 may not leave a limit.
class Limited : public CUIObject {
public:
    Limited() { SetRectMode(1); }
    int ControlHandle(const int& handle, Gdiplus::RectF& rect) override {
        rect = Gdiplus::RectF(0, 0, 100, 70);
        return handle == 2;
    }
};

TEST_F(ToolTest, AControlHandleStaysInItsLimit) {
    auto* object = new Limited;
    object->GetCoordinate().SetPosition(Gdiplus::RectF(50, 50, 20, 10));
    m_document->AppendObject(object, nullptr);
    m_canvas->Select(object, 0);
    Drag({70, 60}, {300, 200});
    ExpectRect(object->GetPosition(), 50, 50, 50, 20);
}

// An object that remembers what was relayed to it.
class Relayed : public CUIObject {
public:
    void RelayEvent(CUICanvas*, unsigned message, unsigned flags, long packed) override {
        events.push_back({message, flags, static_cast<unsigned>(packed)});
    }
    std::vector<std::array<unsigned, 3>> events;
};

TEST_F(ToolTest, TheSymbolToolRelaysToTheFrontSelectedObject) {
    auto* object = new Relayed;
    m_document->AppendObject(object, nullptr);
    CUIToolBase::run_drawshape = DS_SYMBOL;
    Press(3, 4);  // nothing selected: dropped
    m_canvas->Select(object, 0);
    Press(3, 4);
    Move(5, 6);
    Release(7, 8);
    DoubleClick(9, 10);
    CUIToolBase::FindTool(DS_SYMBOL)->OnRButtonDown(m_canvas, 0, CPoint(-1, 2));
    const std::vector<std::array<unsigned, 3>> expected = {{WM_LBUTTONDOWN, MK_LBUTTON, 0x00040003},
                                                           {WM_MOUSEMOVE, MK_LBUTTON, 0x00060005},
                                                           {WM_LBUTTONUP, 0, 0x00080007},
                                                           {WM_LBUTTONDBLCLK, MK_LBUTTON, 0x000A0009},
                                                           {WM_RBUTTONDOWN, 0, 0x0002FFFF}};
    EXPECT_EQ(object->events, expected);
}

TEST_F(ToolTest, TheSingleClickToolKeepsNothingThatCoversNoArea) {
    CUIDownTool tool(DS_ARC);
    ExpectStates({
        {"tool:5", "press:50,40", "t5 d0 h-1"},
        {"tool:5", "hold release:50,40", "t5 d0 h-1 arrow"},
    });
    tool.OnRButtonDown(m_canvas, 0, CPoint(0, 0));
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_SELECT);
    Run("tool:5 other");
    tool.OnRButtonDown(m_canvas, 0, CPoint(0, 0));
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_ARC) << "another page is current";
}

// An object that counts how often its dialog is asked for.
class Asked : public CUIObject {
public:
    void ShowCoordinateDialog(CUICanvas*) override { ++asked; }
    int asked = 0;
};

TEST_F(ToolTest, ADoubleClickAsksTheOneSelectedObjectForItsDialog) {
    CUIToolBase tool(DS_ARC);
    auto* object = new Asked;
    m_document->AppendObject(object, nullptr);
    CUIObject* other = AddRectangle(50, 50, 40, 30);
    Run("tool:5 double:60,62");
    m_canvas->m_selection = {object, other};
    Run("double:60,62");
    EXPECT_EQ(object->asked, 0);
    m_canvas->m_selection = {object};
    Run("double:60,62");
    EXPECT_EQ(object->asked, 1);
    Run("tool:16 double:60,62");
    EXPECT_EQ(object->asked, 1) << "the select tool does nothing";
}

TEST_F(ToolTest, ACopyOfAToolIsNotRegistered) {
    const size_t count = CUIToolBase::m_tools.size();
    {
        CUISelectTool copy(Select());
        copy.m_nDragMode = CUISelectTool::kHandle;
        CUISelectTool assigned = copy;
        assigned = copy;
        EXPECT_EQ(assigned.GetKind(), DS_SELECT);
        EXPECT_EQ(assigned.m_nDragMode, CUISelectTool::kHandle);
    }
    EXPECT_EQ(CUIToolBase::m_tools.size(), count);
}

// The seed of a failure replays it.
TEST_F(ToolTest, GesturesAtRandomLeaveNoPointerToWhatIsGone) {
    const char* const words[] = {
        "press:", "press:", "move:",  "release:", "release:", "double:", "hover:",  "tool:16",
        "tool:1", "tool:2", "tool:3", "tool:4",   "tool:13",  "tool:14", "tool:18", "mode:2",
        "mode:0", "delete", "group",  "ungroup",  "back",     "R",       "S",       "empty"};
    for (unsigned seed = 1; seed <= 4; ++seed) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        for (int i = 0; i < 500; ++i) {
            std::string word = words[random() % std::size(words)];
            if (word == "empty" && i % 10 != 0)
                continue;
            if (word.back() == ':')
                word += std::to_string(random() % kWidth) + ',' + std::to_string(random() % kHeight) +
                        (random() % 4 == 0   ? ",c"
                         : random() % 4 == 0 ? ",s"
                                             : "");
            Run(word);
            m_canvas->UpdateWindow();
            const std::set<CUIObject*> selected(m_canvas->m_selection.begin(), m_canvas->m_selection.end());
            ASSERT_EQ(selected.size(), m_canvas->m_selection.size()) << word;
            for (CUIObject* object : selected)
                ASSERT_EQ(std::ranges::count(Objects(), object), 1) << word;
        }
        Run("empty");
        EXPECT_TRUE(m_canvas->m_selection.empty());
    }
}

}  // namespace
