#include "canvas/CanvasFixture.h"

#include "canvas/src/ToolObjects.h"
#include "core/UIObjectPoly.h"

#include <functional>
#include <iterator>
#include <gtest/gtest.h>

using namespace Lumo;

namespace {

using ToolTest = CanvasFixture;

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
    } cases[] = {{{10, 4}, {10, 0}},  {{4, 10}, {0, 10}},    {{10, 6}, {6, 6}},  {{-10, 6}, {-6, 6}},
                 {{10, -6}, {6, -6}}, {{-4, -10}, {0, -10}}, {{10, 5}, {10, 0}}, {{-7, -7}, {-7, -7}}};
    for (const auto& c : cases) {
        CPoint pt = c.from + CSize(100, 200);
        CUIToolBase::MoveControl(CPoint(100, 200), pt);
        EXPECT_EQ(CPoint(pt - CPoint(100, 200)), c.to) << c.from.x << ", " << c.from.y;
    }
}

TEST_F(ToolTest, ClampsIntoTheLimit) {
    const struct {
        CPoint from, to;
    } cases[] = {{{150, -20}, {100, 0}}, {{100, 50}, {100, 50}}, {{-1, 60}, {0, 50}}, {{40, 20}, {40, 20}}};
    for (const auto& c : cases) {
        CPoint pt = c.from;
        CUIToolBase::MoveControl(CRect(0, 0, 100, 50), pt);
        EXPECT_EQ(pt, c.to);
    }
}

TEST_F(ToolTest, DrawsANamedRectangleByDraggingAndStaysReadyForTheNext) {
    CUIToolBase::run_drawshape = DS_RECTANGLE;
    Press(50, 40);
    EXPECT_EQ(::GetCapture(), m_canvas->m_hWnd);
    Move(90, 80);
    Release(120, 100);
    ASSERT_EQ(Objects().size(), 1u);
    CUIObject* object = Objects().front();
    ExpectRect(object->GetPosition(), 50, 40, 70, 60);
    EXPECT_STREQ(object->GetShapeName(), L"Rectangle1");
    EXPECT_STREQ(object->GetText(), L"Rectangle1");
    EXPECT_EQ(object->GetDocument(), m_document);
    EXPECT_EQ(object->GetCanvas(), m_canvas);
    EXPECT_EQ(m_canvas->m_selection, std::deque<CUIObject*>{object});
    EXPECT_EQ(::GetCapture(), nullptr);
    EXPECT_EQ(CUIToolBase::run_handle, -1);
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_RECTANGLE);
    Drag({200, 200}, {150, 150});
    ExpectRect(Objects().back()->GetPosition(), 200, 200, -50, -50);
    EXPECT_STREQ(Objects().back()->GetShapeName(), L"Rectangle2");
}

TEST_F(ToolTest, ATooSmallDragRemovesTheFirstObjectOfThePage) {
    CUIToolBase::run_drawshape = DS_ELLIPSE;
    Click(50, 40);
    EXPECT_TRUE(Objects().empty());
    EXPECT_TRUE(m_canvas->m_selection.empty());
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_SELECT);

    CUIObject* first = AddRectangle(10, 10, 20, 20);
    CUIToolBase::run_drawshape = DS_ELLIPSE;
    Drag({50, 40}, {52, 42});
    ASSERT_EQ(Objects().size(), 1u);
    EXPECT_NE(Objects().front(), first);
    EXPECT_TRUE(m_canvas->m_selection.empty());
    EXPECT_EQ(::GetCapture(), nullptr);

    CUIToolBase::run_drawshape = DS_ELLIPSE;
    Drag({50, 40}, {53, 40});
    EXPECT_EQ(Objects().size(), 2u);
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_ELLIPSE);
}

TEST_F(ToolTest, SelectsTogglesMovesAndReshapes) {
    CUIObject* a = AddRectangle(50, 50, 40, 40);
    CUIObject* b = AddRectangle(150, 50, 40, 40);
    Click(60, 60);
    EXPECT_EQ(m_canvas->m_selection, std::deque<CUIObject*>{a});
    Click(160, 60, MK_SHIFT);
    EXPECT_EQ(m_canvas->m_selection, (std::deque<CUIObject*>{b, a}));
    Click(60, 60, MK_SHIFT);
    EXPECT_EQ(m_canvas->m_selection, std::deque<CUIObject*>{b});
    Drag({170, 70}, {180, 90});
    ExpectRect(b->GetPosition(), 160, 70, 40, 40);
    Drag({201, 111}, {221, 131});  // handle 2, grabbed off its centre
    ExpectRect(b->GetPosition(), 160, 70, 61, 61);
    Drag({160, 101}, {150, 60});  // handle 7
    ExpectRect(b->GetPosition(), 150, 70, 71, 61);
    Click(390, 290);
    EXPECT_TRUE(m_canvas->m_selection.empty());
}

TEST_F(ToolTest, TheRubberBandOnlyEmptiesTheSelection) {
    CUIObject* a = AddRectangle(50, 50, 40, 40);
    m_canvas->Select(a, 0);
    Drag({10, 10}, {200, 200});
    EXPECT_TRUE(m_canvas->m_selection.empty());
    m_canvas->Select(a, 0);
    Drag({300, 200}, {5, 5}, MK_SHIFT);
    EXPECT_TRUE(m_canvas->m_selection.empty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ToolTest, CtrlSnapsAHandleToItsNeighbour) {
    CUIObject* a = AddRectangle(50, 50, 40, 40);
    m_canvas->Select(a, 0);
    Drag({90, 90}, {96, 140}, MK_CONTROL);  // handle 2 stays below handle 1 at (90, 50)
    ExpectRect(a->GetPosition(), 50, 50, 40, 90);
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

TEST_F(ToolTest, HoveringOverTheSelectedObjectRemembersTheHandle) {
    m_canvas->Select(AddRectangle(50, 50, 40, 40), 0);
    Move(50, 50, 0);
    EXPECT_EQ(CUIToolBase::run_handle, 0);
    EXPECT_EQ(::GetCursor(), ::LoadCursor(nullptr, IDC_SIZENWSE));
    Move(200, 200, 0);
    EXPECT_EQ(CUIToolBase::run_handle, -1);
    Move(89, 50, 0);
    EXPECT_EQ(CUIToolBase::run_handle, 1);
    CUIToolBase::run_drawshape = DS_LINE;
    Release(150, 150);  // a handle's number is not a count of points
    EXPECT_EQ(Objects().size(), 1u);
    CUIToolBase::run_drawshape = DS_SELECT;
    m_canvas->Select(nullptr, 0);
    Move(89, 50, 0);
    EXPECT_EQ(CUIToolBase::run_handle, -1);
}

TEST_F(ToolTest, PressDragReleaseDrawsALine) {
    CUIToolBase::run_drawshape = DS_LINE;
    Press(10, 10);
    Move(12, 12);
    EXPECT_EQ(CUIToolBase::run_handle, 1);
    Release(15, 10);
    ASSERT_EQ(Objects().size(), 1u);
    auto* line = static_cast<CUIObjectPoly*>(Objects().front());
    EXPECT_EQ(line->NormalizePoints()->size(), 2u);
    ExpectRect(line->GetPosition(), 10, 10, 5, 0);
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_SELECT);
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ToolTest, AReleaseNearThePressWaitsForTheNextClick) {
    CUIToolBase::run_drawshape = DS_LINE;
    Press(10, 10);
    Release(14, 14);
    auto* line = static_cast<CUIObjectPoly*>(Objects().front());
    EXPECT_EQ(line->NormalizePoints()->size(), 1u);
    EXPECT_EQ(m_canvas->m_selection, Objects());
    Move(60, 50, 0);
    EXPECT_TRUE(line->GetPendingOffset().Equals(Gdiplus::PointF(50, 40)));
    Press(100, 58, MK_CONTROL);  // snapped to the diagonal through the first point
    EXPECT_EQ(line->NormalizePoints()->back().X, 58);
    EXPECT_EQ(line->NormalizePoints()->back().Y, 58);
    Release(100, 58);
    EXPECT_EQ(line->NormalizePoints()->size(), 2u);
    EXPECT_TRUE(line->GetPendingOffset().Equals(Gdiplus::PointF(0, 0)));
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_SELECT);
}

TEST_F(ToolTest, APolylineGrowsByClicksAndEndsWithADoubleClick) {
    CUIToolBase::run_drawshape = DS_POLYLINE;
    Click(10, 10);
    Move(50, 10, 0);
    Click(50, 10);
    EXPECT_EQ(CUIToolBase::run_handle, 2);
    Move(70, 40, 0);
    auto* figure = static_cast<CUIObjectPoly*>(Objects().front());
    EXPECT_TRUE(
        figure->GetPendingOffset().Equals(Gdiplus::PointF(20, 30)));  // from the last point to the mouse
    EXPECT_NE(PixelAt(60, 25), 0xFF000000u);
    Click(90, 60);
    DoubleClick(90, 60);
    Release(91, 60);
    EXPECT_EQ(figure->NormalizePoints()->size(), 4u);
    EXPECT_TRUE(figure->GetPendingOffset().Equals(Gdiplus::PointF(0, 0)));
    EXPECT_EQ(CUIToolBase::run_handle, -1);
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_SELECT);
    EXPECT_EQ(::GetCapture(), nullptr);
    ExpectRect(figure->GetPosition(), 10, 10, 80, 50);
}

TEST_F(ToolTest, APolylineWhoseObjectIsDestroyedStartsAnew) {
    CUIToolBase::run_drawshape = DS_POLYLINE;
    Click(10, 10);
    CUIDocument::DestroyObject(Objects().front());
    Click(50, 50);
    ASSERT_EQ(Objects().size(), 1u);
    EXPECT_EQ(static_cast<CUIObjectPoly*>(Objects().front())->NormalizePoints()->size(), 1u);
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
    CUIToolBase::run_drawshape = DS_ARC;
    Press(50, 50);
    Release(50, 50);
    EXPECT_TRUE(Objects().empty());
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_ARC);
    tool.OnRButtonDown(m_canvas, 0, CPoint(0, 0));
    EXPECT_EQ(CUIToolBase::run_drawshape, DS_SELECT);
}

TEST_F(ToolTest, TextModeFallsBackToSelecting) {
    CUIObject* object = AddRectangle(50, 50, 40, 40);
    CUIToolBase::run_drawshape = DS_RECTANGLE;
    m_canvas->OnModeText();
    Press(60, 60);
    EXPECT_EQ(m_canvas->m_nMode, CM_DRAW);
    EXPECT_EQ(m_canvas->m_selection, std::deque<CUIObject*>{object});
    Release(60, 60);
    EXPECT_EQ(Objects().size(), 1u);
}

TEST_F(ToolTest, OnlyTheCurrentPageIsEdited) {
    AddRectangle(50, 50, 40, 40);
    AddCanvas();
    for (const DrawShape kind : {DS_SELECT, DS_RECTANGLE, DS_LINE}) {
        CUIToolBase::run_drawshape = kind;
        Drag({60, 60}, {100, 100});
    }
    EXPECT_EQ(Objects().size(), 1u);
    EXPECT_TRUE(m_canvas->m_selection.empty());
    EXPECT_EQ(::GetCapture(), nullptr);
}

TEST_F(ToolTest, AReleaseUnderAnotherToolModeOrPageLetsTheMouseGo) {
    CUICanvas* other = AddCanvas();
    const std::function<void()> changes[] = {
        [] { CUIToolBase::run_drawshape = DS_LINE; }, [] { CUIToolBase::run_drawshape = DS_BUTTON; },
        [] { CUIToolBase::run_drawshape = DS_ARC; },  [this] { m_canvas->OnModeProperty(); },
        [this] { m_canvas->SetInteractive(0); },      [&] { m_document->SetCurrentCanvas(other); },
        [this] { m_document->ClearCanvas(); },
    };
    for (const auto& change : changes) {
        m_document->AppendCanvas(m_canvas);
        m_canvas->SetInteractive(1);
        m_canvas->OnModeDraw();
        CUIToolBase::run_drawshape = DS_RECTANGLE;
        Press(60, 60);
        ASSERT_EQ(::GetCapture(), m_canvas->m_hWnd);
        change();
        Release(90, 90);
        EXPECT_EQ(::GetCapture(), nullptr);
        EXPECT_EQ(CUIToolBase::run_handle, -1);
    }
}

}  // namespace
