// Editing with real mouse messages: what a user expects where the library keeps something else.
#include "studio/StudioFixture.h"

#include "core/UIObjectPoly.h"
#include "studio/editing/GroupObject.h"
#include "studio/editing/History.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PageEdits.h"

#include <algorithm>
#include <random>
#include <gtest/gtest.h>

using namespace Studio;
using Lumo::CUIObject;

class EditingTest : public StudioFixture {};

TEST_F(EditingTest, DrawsNamedShapesOneAfterTheOther) {
    ChooseTool(Page(), Lumo::DS_RECTANGLE);
    Drag({20, 30}, {120, 90});
    // Dragged up and to the left, a shape stands all the same.
    Drag({300, 90}, {200, 30});
    ASSERT_EQ(2u, Objects().size());
    ExpectBounds(*Objects()[0], 20, 30, 100, 60);
    ExpectBounds(*Objects()[1], 200, 30, 100, 60);
    EXPECT_EQ(CString(L"Rectangle2"), Objects()[1]->GetShapeName());
    EXPECT_EQ(Objects()[1], Page().m_selection.front());
    EXPECT_EQ(Lumo::DS_RECTANGLE, Lumo::CUIToolBase::run_drawshape);
    EXPECT_EQ(1, m_document->GetModifiedFlag());
    EXPECT_EQ(&Page(), Objects()[0]->GetCanvas());
}

TEST_F(EditingTest, OnlyTheTooSmallShapeVanishes) {
    CUIObject* first = Add(Lumo::DS_RECTANGLE, 10, 10, 50, 50);
    CUIObject* second = Add(Lumo::DS_ELLIPSE, 100, 10, 50, 50);
    m_document->SetModifiedFlag(0);
    ChooseTool(Page(), Lumo::DS_RECTANGLE);
    Drag({200, 200}, {202, 202});
    EXPECT_EQ((Lumo::CUIObjectDeque{first, second}), Objects());
    EXPECT_TRUE(Page().m_selection.empty());
    EXPECT_EQ(Lumo::DS_SELECT, Lumo::CUIToolBase::run_drawshape);
    EXPECT_EQ(0, m_document->GetModifiedFlag());
}

TEST_F(EditingTest, BandSelectsWhatItTouches) {
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 50, 50, 60, 60);
    CUIObject* line = Add(Lumo::DS_LINE, 200, 50, 100, 100);
    CUIObject* distant = Add(Lumo::DS_ELLIPSE, 400, 200, 50, 50);
    Page().Select(nullptr, 0);
    Drag({90, 200}, {40, 100});
    EXPECT_EQ((Lumo::CUIObjectDeque{box}), Page().m_selection);
    // The corner of the line's rectangle is not the line.
    Drag({260, 45}, {305, 80}, MK_SHIFT);
    EXPECT_EQ(1u, Page().m_selection.size());
    Drag({180, 40}, {230, 90}, MK_SHIFT);
    EXPECT_EQ((Lumo::CUIObjectDeque{line, box}), Page().m_selection);
    Drag({380, 180}, {500, 300});
    EXPECT_EQ((Lumo::CUIObjectDeque{distant}), Page().m_selection);
    Click({550, 350});
    EXPECT_TRUE(Page().m_selection.empty());
}

TEST_F(EditingTest, MovesAllSelectedObjectsAndPicksOneByAClick) {
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 50, 50, 60, 60);
    auto* line = static_cast<Lumo::CUIObjectLine*>(Add(Lumo::DS_LINE, 200, 50, 100, 100));
    SelectAll(Page());
    m_document->SetModifiedFlag(0);
    Drag({80, 80}, {95, 70});
    ExpectBounds(*box, 65, 40, 60, 60);
    EXPECT_FLOAT_EQ(315.0f, line->NormalizePoints()->at(1).X);
    EXPECT_EQ(2u, Page().m_selection.size());
    EXPECT_EQ(1, m_document->GetModifiedFlag());
    Click({90, 70});
    EXPECT_EQ((Lumo::CUIObjectDeque{box}), Page().m_selection);
    Click({265, 90}, MK_SHIFT);
    EXPECT_EQ(2u, Page().m_selection.size());
    Click({90, 70}, MK_SHIFT);
    EXPECT_EQ((Lumo::CUIObjectDeque{line}), Page().m_selection);
    // With another tool active a line moves with its points all the same.
    ChooseTool(Page(), Lumo::DS_RECTANGLE);
    NudgeSelection(Page(), 5, 0);
    EXPECT_FLOAT_EQ(320.0f, line->NormalizePoints()->at(1).X);
}

TEST_F(EditingTest, ResizesAcrossTheOppositeEdge) {
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 100, 100, 50, 40);
    Drag({150, 140}, {60, 180});
    ExpectBounds(*box, 60, 100, 40, 80);
    Drag({100, 180}, {140, 200}, MK_SHIFT);
    ExpectBounds(*box, 60, 100, 80, 160);
    auto* line = static_cast<Lumo::CUIObjectLine*>(Add(Lumo::DS_LINE, 200, 200, 50, 50));
    Drag({250, 250}, {260, 220});
    EXPECT_FLOAT_EQ(200.0f, line->NormalizePoints()->at(0).X);
    EXPECT_FLOAT_EQ(260.0f, line->NormalizePoints()->at(1).X);
    EXPECT_FLOAT_EQ(220.0f, line->NormalizePoints()->at(1).Y);
}

TEST_F(EditingTest, ACancelledGestureLeavesNoTrace) {
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 100, 100, 50, 40);
    m_document->SetModifiedFlag(0);
    struct {
        Lumo::DrawShape tool;
        CPoint from, to;
    } gestures[] = {
        {Lumo::DS_SELECT, {120, 120}, {200, 200}},   {Lumo::DS_SELECT, {150, 140}, {300, 300}},
        {Lumo::DS_SELECT, {10, 10}, {300, 300}},     {Lumo::DS_ELLIPSE, {200, 200}, {300, 300}},
        {Lumo::DS_POLYLINE, {200, 200}, {300, 300}},
    };
    for (const auto& gesture : gestures) {
        for (bool loseCapture : {false, true}) {
            SCOPED_TRACE(::testing::Message() << gesture.tool << " at " << gesture.from.x);
            Page().Select(box, 0);
            ChooseTool(Page(), gesture.tool);
            Mouse(WM_LBUTTONDOWN, gesture.from.x, gesture.from.y);
            Mouse(WM_MOUSEMOVE, gesture.to.x, gesture.to.y);
            const bool spans = Page().CurrentGesture() && Page().CurrentGesture()->SpansPresses();
            if (loseCapture && !spans)
                ::ReleaseCapture();
            else
                EXPECT_TRUE(Page().CancelGesture());
            EXPECT_EQ(nullptr, Page().CurrentGesture());
            EXPECT_NE(Page().m_hWnd, ::GetCapture());
            // The release that follows belongs to nothing.
            Mouse(WM_LBUTTONUP, gesture.to.x, gesture.to.y);
            EXPECT_EQ((Lumo::CUIObjectDeque{box}), Objects());
            ExpectBounds(*box, 100, 100, 50, 40);
            EXPECT_EQ(0, m_document->GetModifiedFlag());
        }
    }
}

TEST_F(EditingTest, DrawsLinesByDragAndByClicks) {
    ChooseTool(Page(), Lumo::DS_LINE);
    Drag({20, 20}, {120, 60});
    EXPECT_EQ(Lumo::DS_SELECT, Lumo::CUIToolBase::run_drawshape);
    ChooseTool(Page(), Lumo::DS_LINE);
    Click({30, 100});
    Mouse(WM_MOUSEMOVE, 80, 110);
    ASSERT_EQ(2u, Objects().size());
    // The free end follows the mouse without a button.
    EXPECT_FLOAT_EQ(80.0f, static_cast<Lumo::CUIObjectPoly*>(Objects()[1])->NormalizePoints()->at(1).X);
    EXPECT_NE(Page().m_hWnd, ::GetCapture());
    Click({130, 120});
    EXPECT_EQ(nullptr, Page().CurrentGesture());
    ExpectBounds(*Objects()[1], 30, 100, 100, 20);
    EXPECT_EQ(CString(L"Line2"), Objects()[1]->GetShapeName());
}

TEST_F(EditingTest, EndsAPolylineInEveryWay) {
    const auto draw = [&] {
        ChooseTool(Page(), Lumo::DS_POLYLINE);
        for (CPoint at : {CPoint(20, 20), CPoint(60, 80), CPoint(100, 20)})
            Click(at);
    };
    const auto points = [&] {
        return static_cast<Lumo::CUIObjectPoly*>(Objects().back())->NormalizePoints()->size();
    };
    draw();
    Mouse(WM_LBUTTONDBLCLK, 100, 20);
    EXPECT_EQ(3u, points());
    draw();
    Mouse(WM_RBUTTONDOWN, 300, 300);
    Mouse(WM_RBUTTONUP, 300, 300);
    EXPECT_EQ(3u, points());
    EXPECT_EQ(0, m_menus);
    draw();
    Page().FinishEditing();
    EXPECT_EQ(3u, points());
    EXPECT_EQ(3u, Objects().size());
    EXPECT_EQ(Lumo::DS_SELECT, Lumo::CUIToolBase::run_drawshape);
    // A double click on one spot is no figure.
    ChooseTool(Page(), Lumo::DS_POLYLINE);
    Click({200, 200});
    Mouse(WM_LBUTTONDBLCLK, 200, 200);
    EXPECT_EQ(3u, Objects().size());
}

TEST_F(EditingTest, DeletesWhatIsSelectedAndNothingElse) {
    CUIObject* first = Add(Lumo::DS_RECTANGLE, 10, 10, 50, 50);
    CUIObject* second = Add(Lumo::DS_ELLIPSE, 100, 10, 50, 50);
    Add(Lumo::DS_LINE, 200, 10, 50, 50);
    Page().SelectOnly({second, Objects()[2]});
    DeleteSelection(Page());
    EXPECT_EQ((Lumo::CUIObjectDeque{first}), Objects());
    EXPECT_TRUE(Page().m_selection.empty());
    // The right button selects what its menu is about.
    Mouse(WM_RBUTTONDOWN, 30, 30);
    Mouse(WM_RBUTTONUP, 30, 30);
    EXPECT_EQ((Lumo::CUIObjectDeque{first}), Page().m_selection);
    EXPECT_EQ(1, m_menus);
}

TEST_F(EditingTest, GroupsStayWhereTheyAre) {
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 50, 50, 60, 40);
    auto* line = static_cast<Lumo::CUIObjectLine*>(Add(Lumo::DS_LINE, 200, 60, 50, 90));
    SelectAll(Page());
    GroupSelection(Page());
    ASSERT_EQ(1u, Objects().size());
    auto* group = dynamic_cast<GroupObject*>(Objects()[0]);
    ASSERT_NE(nullptr, group);
    ExpectBounds(*group, 50, 50, 200, 100);
    Gdiplus::Bitmap bitmap(300, 200, PixelFormat32bppPARGB);
    Gdiplus::Graphics g(&bitmap);
    Gdiplus::Color inside, outside;
    for (int paint = 0; paint < 3; ++paint) {
        g.Clear(Gdiplus::Color(0xFF000000));
        group->Draw(&g);
        bitmap.GetPixel(60, 80, &inside);
        bitmap.GetPixel(120, 140, &outside);
        EXPECT_NE(0xFF000000, inside.GetValue());
        EXPECT_EQ(0xFF000000, outside.GetValue());
    }
    // Names of children stay taken.
    EXPECT_EQ(CString(L"Rectangle2"), Add(Lumo::DS_RECTANGLE, 300, 300, 20, 20)->GetShapeName());
    DeleteSelection(Page());
    Drag({80, 70}, {90, 75});
    Drag({260, 155}, {460, 255});
    ExpectBounds(*group, 60, 55, 400, 200);
    RotateSelection(Page(), true);
    RotateSelection(Page(), false);
    UngroupSelection(Page());
    EXPECT_EQ((Lumo::CUIObjectDeque{box, line}), Objects());
    EXPECT_EQ(2u, Page().m_selection.size());
    ExpectBounds(*box, 60, 55, 120, 80);
    EXPECT_FLOAT_EQ(460.0f, line->NormalizePoints()->at(1).X);
    EXPECT_FLOAT_EQ(255.0f, line->NormalizePoints()->at(1).Y);
}

TEST_F(EditingTest, ArrangesTheWholeSelection) {
    CUIObject* a = Add(Lumo::DS_RECTANGLE, 10, 10, 20, 20);
    CUIObject* b = Add(Lumo::DS_LINE, 100, 50, 40, 20);
    CUIObject* c = Add(Lumo::DS_ELLIPSE, 200, 90, 30, 30);
    Page().SelectOnly({a, b});
    RestackSelection(Page(), Stacking::kFront);
    EXPECT_EQ((Lumo::CUIObjectDeque{c, a, b}), Objects());
    RestackSelection(Page(), Stacking::kForward);
    EXPECT_EQ((Lumo::CUIObjectDeque{c, a, b}), Objects());
    RestackSelection(Page(), Stacking::kBackward);
    EXPECT_EQ((Lumo::CUIObjectDeque{a, b, c}), Objects());
    Page().SelectOnly({a, c});
    RestackSelection(Page(), Stacking::kForward);
    EXPECT_EQ((Lumo::CUIObjectDeque{b, a, c}), Objects());
    RestackSelection(Page(), Stacking::kBack);
    EXPECT_EQ((Lumo::CUIObjectDeque{a, c, b}), Objects());
    Page().SelectOnly({c, b, a});
    AlignSelection(Page(), Alignment::kLeft);
    EXPECT_FLOAT_EQ(10.0f, b->GetPosition().X);
    EXPECT_FLOAT_EQ(10.0f, static_cast<Lumo::CUIObjectPoly*>(b)->NormalizePoints()->at(0).X);
    AlignSelection(Page(), Alignment::kMiddles);
    EXPECT_FLOAT_EQ(5.0f, c->GetPosition().Y);
    // A quarter turn about the selection's middle takes the points of a line along.
    Page().SelectOnly({b});
    RotateSelection(Page(), true);
    ExpectBounds(*b, 20, 0, 20, 40);
}

TEST_F(EditingTest, EditsATextBoxInPlace) {
    CUIObject* text = Add(Lumo::DS_TEXTEDIT, 50, 50, 200, 40);
    text->SetText(L"before");
    m_document->SetModifiedFlag(0);
    // Hit in the corner, where the library's text box is not.
    Mouse(WM_LBUTTONDBLCLK, 60, 60);
    ASSERT_NE(nullptr, Page().m_pEdit);
    reinterpret_cast<CWnd*>(Page().m_pEdit)->SetWindowText(L"after");
    Click({400, 300});
    EXPECT_EQ(nullptr, Page().m_pEdit);
    EXPECT_EQ(CString(L"after"), text->GetText());
    EXPECT_EQ(1, m_document->GetModifiedFlag());
    // An object that goes while it is edited takes its editor along.
    Mouse(WM_LBUTTONDBLCLK, 60, 60);
    ASSERT_NE(nullptr, Page().m_pEdit);
    RemoveObjects(Page(), {text}, Text::kStepDelete);
    EXPECT_EQ(nullptr, Page().m_pEdit);
    EXPECT_TRUE(Objects().empty());
}

TEST_F(EditingTest, SurvivesCarelessUse) {
    std::mt19937 random(7);
    const auto upTo = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    const Lumo::DrawShape tools[] = {Lumo::DS_SELECT, Lumo::DS_SELECT,   Lumo::DS_RECTANGLE,
                                     Lumo::DS_LINE,   Lumo::DS_POLYLINE, Lumo::DS_TEXTEDIT};
    const UINT messages[] = {WM_LBUTTONDOWN, WM_LBUTTONUP,     WM_MOUSEMOVE,   WM_MOUSEMOVE,
                             WM_LBUTTONUP,   WM_LBUTTONDBLCLK, WM_RBUTTONDOWN, WM_RBUTTONUP};
    const UINT keys[] = {0, 0, MK_SHIFT, MK_CONTROL};
    for (int step = 0; step < 6000; ++step) {
        Mouse(messages[upTo(8)], upTo(400), upTo(300), keys[upTo(4)]);
        const int command = upTo(80);
        if (command < 4 || (command >= 6 && command < 19))
            Page().FinishEditing();
        switch (command) {
            case 0:
                SelectAll(Page());
                break;
            case 1:
                GroupSelection(Page());
                break;
            case 2:
                UngroupSelection(Page());
                break;
            case 3:
                DeleteSelection(Page());
                break;
            case 4:
                Page().CancelGesture();
                break;
            case 5:
                ::ReleaseCapture();
                break;
            case 6:
                RotateSelection(Page(), true);
                break;
            case 7:
            case 8:
            case 9:
                m_document->Edits().Undo();
                break;
            case 10:
            case 11:
                m_document->Edits().Redo();
                break;
            case 12:
                if (Objects().size() < 300)
                    DuplicateSelection(Page());
                break;
            case 13:
                RestackSelection(Page(), static_cast<Stacking>(upTo(4)));
                break;
            case 14:
                FlipSelection(Page(), true);
                break;
            case 15:
                if (m_document->Pages().size() < 5)
                    m_document->DuplicatePage(m_document->CurrentIndex());
                break;
            case 16:
                m_document->RemovePage(upTo(5));
                break;
            case 17:
                m_document->ShowPage(upTo(5));
                break;
            case 18:
                CutSelection(Page());
                PasteObjects(Page());
                break;
            default:
                if (upTo(4) == 0) {
                    Page().FinishEditing();
                    ChooseTool(Page(), tools[upTo(6)]);
                }
        }
        for (CUIObject* selected : Page().m_selection)
            ASSERT_NE(Objects().end(), std::find(Objects().begin(), Objects().end(), selected)) << step;
        ASSERT_TRUE(Page().CurrentGesture() || ::GetCapture() != Page().m_hWnd) << step;
    }
    CString path = FileName(L"careless.cbf");
    Page().FinishEditing();
    while (m_document->Edits().CanUndo())
        ASSERT_TRUE(m_document->Edits().Undo());
    EXPECT_TRUE(Objects().empty());
    while (m_document->Edits().CanRedo())
        ASSERT_TRUE(m_document->Edits().Redo());
    EXPECT_TRUE(m_document->Save(path));
    EXPECT_TRUE(m_document->Load(path));
}
