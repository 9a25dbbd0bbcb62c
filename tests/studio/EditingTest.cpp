// Editing with real mouse messages: what a user expects where the library keeps something else.
#include "studio/StudioFixture.h"

#include "studio/editing/Geometry.h"
#include "studio/editing/Grid.h"
#include "studio/editing/GroupObject.h"
#include "studio/editing/History.h"
#include "studio/editing/PageEdits.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

using namespace Studio;
using Lumo::CUIObject;

namespace {

constexpr auto kSelect = Lumo::DS_SELECT, kBox = Lumo::DS_RECTANGLE, kEllipse = Lumo::DS_ELLIPSE,
               kLine = Lumo::DS_LINE, kPoly = Lumo::DS_POLYLINE, kText = Lumo::DS_TEXTEDIT;

class EditingTest : public StudioFixture {
protected:
    void TearDown() override {
        PageGrid() = Grid();
        StudioFixture::TearDown();
    }

    // Every object with its kind, its place or points, and a mark while it is selected: "R 10,20 50,40* |
    // ...".
    CString State() {
        CString state;
        for (CUIObject* object : Objects()) {
            state += (state.IsEmpty() ? L"" : L" | ") + object->GetShapeName().Left(1);
            if (auto* poly = dynamic_cast<Lumo::CUIObjectPoly*>(object)) {
                for (const Gdiplus::PointF& point : *poly->NormalizePoints())
                    state.AppendFormat(L" %g,%g", point.X, point.Y);
            } else {
                const Gdiplus::RectF place = object->GetPosition();
                state.AppendFormat(L" %g,%g %g,%g", place.X, place.Y, place.Width, place.Height);
            }
            state += Page().IsSelected(object) ? L"*" : L"";
        }
        return state;
    }

    Pixels Painted() {
        Page().UpdateWindow();
        return PixelsOf(Page());
    }
};

// What is done with a tool to a rectangle, a line and an ellipse, a command that follows, and what is there
// then.
const struct {
    Lumo::DrawShape tool;
    LPCWSTR gesture;
    void (*command)(StudioCanvas&);
    LPCWSTR state;
} kRows[] = {
    // clang-format off
    {kSelect, L"d120,120 u120,120 d240,90s u240,90s", nullptr, L"R 100,100 50,40* | L 200,60 280,120* | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d240,90s u240,90s d130,120s u130,120s", nullptr, L"R 100,100 50,40 | L 200,60 280,120* | E 350,95 60,64"},
    {kSelect, L"d10,10 m420,200 u420,200 d380,130 u380,130", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64*"},
    {kSelect, L"d90,130 m130,150 u100,139", nullptr, L"R 100,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d90,150 m99,90 u99,90", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d240,100s m230,130s u250,60s d285,40s m260,99s u262,99s", nullptr, L"R 100,100 50,40* | L 200,60 280,120* | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d300,300 u300,300", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d300,300s u300,300s", nullptr, L"R 100,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"R120,120", nullptr, L"R 100,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d10,10 m420,200 u420,200 R120,120", nullptr, L"R 100,100 50,40* | L 200,60 280,120* | E 350,95 60,64*"},
    {kSelect, L"d120,120 m122,118 u122,118", nullptr, L"R 100,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 m123,120 m121,120 u121,120", nullptr, L"R 101,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 m90,90 m160,133 u160,133", nullptr, L"R 140,113 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 m150,125c u150,125c", nullptr, L"R 130,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d10,10 m420,200 u420,200 d240,90 m250,70 u250,70", nullptr, L"R 110,80 50,40* | L 210,40 290,100* | E 360,75 60,64*"},
    {kSelect, L"d120,120 m200,200 e u200,200", nullptr, L"R 100,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 m200,200 x u200,200", nullptr, L"R 100,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 m200,200 f", nullptr, L"R 180,180 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 m200,200 R200,200 u200,200", nullptr, L"R 100,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d150,140 m60,180 u60,180", nullptr, L"R 60,100 40,80* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d150,140 m170,190s u170,190s", nullptr, L"R 100,100 112.5,90* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d100,100 m90,80 u90,80", nullptr, L"R 90,80 60,60* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d125,100 m90,80 u90,80", nullptr, L"R 100,80 50,60* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d150,120 m190,80 u190,80", nullptr, L"R 100,100 90,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d150,140 m170,143c u170,143c", nullptr, L"R 100,100 50,43* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d150,140 u150,140", nullptr, L"R 100,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d150,140 m300,300 e", nullptr, L"R 100,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d240,90 u240,90 d280,120 m300,70 u300,70", nullptr, L"R 100,100 50,40 | L 200,60 300,70* | E 350,95 60,64"},
    {kSelect, L"d240,90 u240,90 d200,60 m270,10c u270,10c", nullptr, L"R 100,100 50,40 | L 280,10 280,120* | E 350,95 60,64"},
    {kSelect, L"d10,10 m420,200 u420,200 d280,120 m300,70 u300,70", nullptr, L"R 100,100 50,40* | L 200,60 300,70* | E 350,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200 d150,140 m170,150 u170,150", nullptr, L"R 100,100 70,50* | L 200,60 280,120* | E 350,95 80,74*"},
    {kBox, L"d20,30 m120,90 u120,90 d300,290 m200,230 u200,230", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | R 20,30 100,60 | R 200,230 100,60*"},
    {kBox, L"d20,30 m120,90s u120,90s", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | R 20,30 100,100*"},
    {kBox, L"d20,30 m100,100 u22,32", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64"},
    {kBox, L"d20,30 u23,33", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | R 20,30 3,3*"},
    {kText, L"d20,30 m120,90 e d20,130 m90,160 x", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64"},
    {kEllipse, L"d20,30 m120,90 R120,90 u120,90", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64"},
    {kLine, L"d20,20 m60,60 u120,60", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | L 20,20 120,60*"},
    {kLine, L"d30,100 u34,100 m80,110 d130,120 u130,120", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | L 30,100 130,120*"},
    {kLine, L"d30,200 u30,200 m80,210c d130,212c u130,212c", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | L 30,200 130,200*"},
    {kLine, L"d30,100 u35,100", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | L 30,100 35,100*"},
    {kPoly, L"d20,20 u20,20 d60,80 u60,80 d100,20 u100,20 D100,20 u100,20", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | P 20,20 60,80 100,20*"},
    {kPoly, L"d20,20 u20,20 d60,80 u60,80 d100,20 u100,20 m300,300 R300,300", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | P 20,20 60,80 100,20*"},
    {kPoly, L"d20,20 m60,80 u60,80 d100,20 u100,20 m300,300 f", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | P 20,20 60,80 100,20*"},
    {kPoly, L"d20,20 m60,80 u60,80 d100,20 u100,20 m300,300 e", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64"},
    {kPoly, L"d200,200 u200,200 D200,200 u200,200", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64"},
    {kPictureTool, L"d30,40 m90,100 u150,60", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 picture 30,40 120,20"},
    {kPictureTool, L"d30,40 u36,44", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 picture 30,40 0,0"},
    {kPictureTool, L"d30,45 u35,40", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 picture 30,40 5,5"},
    {kPictureTool, L"d30,40 m90,100 e u150,60", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { NudgeSelection(page, 5, -2); }, L"R 105,98 50,40* | L 205,58 285,118* | E 355,93 60,64*"},
    {kSelect, L"d120,120 u120,120 d240,90s u240,90s", &DeleteSelection, L"E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d240,90s u240,90s", &GroupSelection, L"E 350,95 60,64 | G 100,60 180,80*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { AlignSelection(page, Alignment::kLeft); }, L"R 350,100 50,40* | L 350,60 430,120* | E 350,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { AlignSelection(page, Alignment::kRight); }, L"R 360,100 50,40* | L 330,60 410,120* | E 350,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { AlignSelection(page, Alignment::kTop); }, L"R 100,95 50,40* | L 200,95 280,155* | E 350,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { AlignSelection(page, Alignment::kBottom); }, L"R 100,119 50,40* | L 200,99 280,159* | E 350,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { AlignSelection(page, Alignment::kCentres); }, L"R 355,100 50,40* | L 340,60 420,120* | E 350,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { AlignSelection(page, Alignment::kMiddles); }, L"R 100,107 50,40* | L 200,97 280,157* | E 350,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { AlignSelection(page, Alignment::kBoth); }, L"R 355,107 50,40* | L 340,97 420,157* | E 350,95 60,64*"},
    {kSelect, L"d120,120 u120,120 d240,90s u240,90s", [](StudioCanvas& page) { AlignSelection(page, Alignment::kTop); }, L"R 100,60 50,40* | L 200,60 280,120* | E 350,95 60,64"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { DistributeSelection(page, true); }, L"R 100,100 50,40* | L 210,60 290,120* | E 350,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { DistributeSelection(page, false); }, L"R 100,87.5 50,40* | L 200,60 280,120* | E 350,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { RotateSelection(page, true); }, L"R 224.5,-45.5 40,50* | L 304.5,54.5 244.5,134.5* | E 205.5,204.5 64,60*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { RotateSelection(page, false); }, L"R 245.5,214.5 40,50* | L 205.5,164.5 265.5,84.5* | E 240.5,-45.5 64,60*"},
    {kSelect, L"d10,10 m290,200 u290,200", [](StudioCanvas& page) { GroupSelection(page), RotateSelection(page, true), UngroupSelection(page); }, L"E 350,95 60,64 | R 150,10 40,50* | L 230,110 170,190*"},
    {kSelect, L"d10,10 m290,200 u290,200", [](StudioCanvas& page) { GroupSelection(page), RotateSelection(page, false), UngroupSelection(page); }, L"E 350,95 60,64 | R 190,140 40,50* | L 150,90 210,10*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { FlipSelection(page, true); }, L"R 360,100 50,40* | L 310,60 230,120* | E 100,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { FlipSelection(page, false); }, L"R 100,79 50,40* | L 200,159 280,99* | E 350,60 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { GroupSelection(page), FlipSelection(page, true), UngroupSelection(page); }, L"R 360,100 50,40* | L 310,60 230,120* | E 100,95 60,64*"},
    {kSelect, L"d10,10 m420,200 u420,200", [](StudioCanvas& page) { GroupSelection(page), FlipSelection(page, false), UngroupSelection(page); }, L"R 100,79 50,40* | L 200,159 280,99* | E 350,60 60,64*"},
    {kSelect, L"d120,120 u120,120", [](StudioCanvas& page) { RestackSelection(page, Stacking::kForward); }, L"L 200,60 280,120 | R 100,100 50,40* | E 350,95 60,64"},
    {kSelect, L"d10,10 m290,200 u290,200", [](StudioCanvas& page) { RestackSelection(page, Stacking::kFront); }, L"E 350,95 60,64 | R 100,100 50,40* | L 200,60 280,120*"},
    {kSelect, L"d240,90 u240,90 d380,120s u380,120s", [](StudioCanvas& page) { RestackSelection(page, Stacking::kBackward); }, L"L 200,60 280,120* | E 350,95 60,64* | R 100,100 50,40"},
    {kSelect, L"d380,120 u380,120", [](StudioCanvas& page) { RestackSelection(page, Stacking::kBack); }, L"E 350,95 60,64* | R 100,100 50,40 | L 200,60 280,120"},
    {kSelect, L"d380,120 u380,120", [](StudioCanvas& page) { RestackSelection(page, Stacking::kForward); }, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64*"},
    {kSelect, L"d120,120 u120,120", [](StudioCanvas& page) { ChooseTool(page, kLine), NudgeSelection(page, 5, 0); }, L"R 105,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d10,10 m290,200 u290,200", [](StudioCanvas& page) { GroupSelection(page), page.FinishEditing(); }, L"E 350,95 60,64 | G 100,60 180,80*"},
    {kSelect, L"d10,10 m290,200 u290,200", [](StudioCanvas& page) { GroupSelection(page), PlaceFitted(*page.Objects()->back(), CaptureGeometry(*page.Objects()->back()), {10, 20, 360, 40}), UngroupSelection(page); }, L"E 350,95 60,64 | R 10,40 100,20* | L 210,20 370,50*"},
    {kBox, L"", [](StudioCanvas&) { PageGrid().snapping = true; }, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64"},
    {kBox, L"d18,33 m123,88 u123,88", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | R 20,30 100,60*"},
    {kPoly, L"d18,33 m66,88 u66,88 m123,88 f", nullptr, L"R 100,100 50,40 | L 200,60 280,120 | E 350,95 60,64 | P 20,30 70,90*"},
    {kSelect, L"d120,120 m133,127 u133,127", nullptr, L"R 110,110 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 m133,121c u133,121c", nullptr, L"R 113,100 50,40* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d120,120 u120,120 d150,140 m166,151 u166,151", nullptr, L"R 100,100 70,50* | L 200,60 280,120 | E 350,95 60,64"},
    {kSelect, L"d10,10 m420,200 u420,200 d120,120 m136,120 u136,120", nullptr, L"R 120,100 50,40* | L 220,60 300,120* | E 370,95 60,64*"},
    // clang-format on
};

}  // namespace

TEST_F(EditingTest, TheCursorTellsWhatAPressDoes) {
    CUIObject* box = Add(kBox, 100, 100, 50, 40);
    Add(kBox, 200, 100, 50, 40);
    Page().SelectOnly({box});
    const auto at = [&](Lumo::DrawShape tool, int x, int y) {
        return dynamic_cast<PageTool*>(Lumo::CUIToolBase::FindTool(tool))->CursorAt(Page(), {x, y});
    };
    const struct {
        int x, y;
        LPCWSTR cursor;
    } rows[] = {{100, 100, IDC_SIZENWSE}, {150, 100, IDC_SIZENESW}, {150, 140, IDC_SIZENWSE},
                {100, 140, IDC_SIZENESW}, {125, 100, IDC_SIZENS},   {150, 120, IDC_SIZEWE},
                {125, 120, IDC_SIZEALL},  {96, 113, IDC_ARROW},     {225, 120, IDC_ARROW}};
    for (const auto& row : rows)
        EXPECT_EQ(at(kSelect, row.x, row.y), ::LoadCursor(nullptr, row.cursor)) << row.x << ", " << row.y;
    EXPECT_EQ(at(kBox, 125, 120), ::LoadCursor(nullptr, IDC_CROSS));
}

TEST_F(EditingTest, Gestures) {
    m_parent.ShowWindow(SW_SHOWNA);
    Page().ShowWindow(SW_SHOWNA);
    for (const auto& row : kRows) {
        SCOPED_TRACE(testing::Message() << "row " << &row - kRows);
        ChooseTool(Page(), kSelect);
        SelectAll(Page());
        DeleteSelection(Page());
        Add(kBox, 100, 100, 50, 40);
        Add(kLine, 200, 60, 80, 60)->SetLineWidth(4);
        Add(kEllipse, 350, 95, 60, 64)->SetText(L"wide caption");
        Page().Select(nullptr, 0);
        m_document->Edits().MarkSaved();
        ChooseTool(Page(), row.tool);
        const CString before = State();
        Play(row.gesture);
        if (row.command)
            row.command(Page());
        Settle();
        EXPECT_STREQ(State() + m_picture, row.state);
        m_picture.Empty();
        const Pixels parts = Painted();
        Page().Invalidate(FALSE);
        EXPECT_EQ(CountDiffering(Painted(), parts), 0u) << "something is stale";
        EXPECT_EQ(nullptr, Page().CurrentGesture());
        EXPECT_NE(Page().m_hWnd, ::GetCapture());
        // Undone, everything stands where it stood.
        const CString after = State();
        int steps = 0;
        while (m_document->GetModifiedFlag() && m_document->Edits().Undo())
            ++steps;
        Page().Select(nullptr, 0);
        EXPECT_STREQ(State(), before);
        while (steps-- > 0)
            m_document->Edits().Redo();
        CString plain = State(), wanted = after;
        plain.Replace(L"*", L""), wanted.Replace(L"*", L"");
        EXPECT_STREQ(plain, wanted);
    }
}

TEST_F(EditingTest, UngroupingPutsEveryGroupsChildrenInItsPlace) {
    Lumo::CUIObjectDeque order;
    for (int i = 0; i < 6; ++i)
        order.push_back(Add(Lumo::DS_RECTANGLE, static_cast<float>(i * 20), 10, 10, 10));
    Page().SelectOnly({order[0], order[1]});
    GroupSelection(Page());
    CUIObject* first = Objects().back();
    Page().SelectOnly({order[3], order[4]});
    GroupSelection(Page());
    CUIObject* second = Objects().back();
    EXPECT_EQ((Lumo::CUIObjectDeque{order[2], order[5], first, second}), Objects());
    Page().SelectOnly({order[5], first, second});
    UngroupSelection(Page());
    EXPECT_EQ((Lumo::CUIObjectDeque{order[2], order[5], order[0], order[1], order[3], order[4]}), Objects());
    EXPECT_EQ(5u, Page().m_selection.size()) << "what is no group stays selected";
    ExpectBounds(*order[4], 80, 10, 10, 10);
    m_document->Edits().Undo();
    EXPECT_EQ((Lumo::CUIObjectDeque{order[2], order[5], first, second}), Objects());
    EXPECT_EQ(2u, static_cast<GroupObject*>(second)->GetChildren().size());
}
