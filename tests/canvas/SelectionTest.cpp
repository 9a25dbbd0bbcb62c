#include "tests/canvas/CanvasFixture.h"

using namespace Lumo;

namespace {

using Selection = CanvasFixture;
using List = std::deque<CUIObject*>;

TEST_F(Selection, PutsTheNewestInFrontAndEachObjectOnce) {
    CUIObject* a = AddRectangle(10, 20, 30, 40);
    CUIObject* b = AddRectangle(100, 100, 40, 20);
    m_canvas->Select(a, 0);
    m_canvas->Select(b, 1);
    EXPECT_EQ(m_canvas->m_selection, (List{b, a}));
    EXPECT_EQ(m_canvas->GetSelectionLastRect(), CRect(100, 100, 140, 120));

    TakeUpdateRect();
    m_canvas->Select(a, 1);
    EXPECT_EQ(m_canvas->m_selection, (List{b, a}));
    EXPECT_TRUE(TakeUpdateRect().IsRectEmpty());

    m_canvas->Select(a, 0);
    EXPECT_EQ(m_canvas->m_selection, (List{a}));
    EXPECT_TRUE(m_canvas->IsSelected(a));
    EXPECT_FALSE(m_canvas->IsSelected(b));
    EXPECT_FALSE(m_canvas->IsSelected(nullptr));
}

TEST_F(Selection, RepaintsWhatIsSelectedAndWhatNoLongerIsWithItsHandles) {
    CUIObject* a = AddRectangle(50, 50, 40, 20);
    a->SetLineWidth(2.0f);
    const CRect withHandles(44, 44, 96, 76);
    TakeUpdateRect();
    m_canvas->Select(a, 0);
    EXPECT_EQ(TakeUpdateRect(), withHandles);
    m_canvas->Deselect(a);
    EXPECT_EQ(TakeUpdateRect(), withHandles);
    EXPECT_TRUE(m_canvas->m_selection.empty());
    m_canvas->Deselect(a);
    EXPECT_TRUE(TakeUpdateRect().IsRectEmpty());

    m_canvas->Select(a, 0);
    TakeUpdateRect();
    m_canvas->Select(nullptr, 0);
    EXPECT_EQ(TakeUpdateRect(), withHandles);
    EXPECT_TRUE(m_canvas->m_selection.empty());
}

TEST_F(Selection, StartingAnewLeavesPolyAndTextModeOnly) {
    for (const auto& [before, after] : {std::pair{CM_DRAW, CM_DRAW},
                                        {CM_POLY, CM_DRAW},
                                        {CM_TEXT, CM_DRAW},
                                        {CM_PROPERTY, CM_PROPERTY},
                                        {CM_RUNNING, CM_RUNNING}}) {
        m_canvas->m_nMode = before;
        m_canvas->Select(nullptr, 1);
        EXPECT_EQ(m_canvas->m_nMode, before);
        m_canvas->Select(nullptr, 0);
        EXPECT_EQ(m_canvas->m_nMode, after);
    }
}

TEST_F(Selection, RectanglesOfTheSelection) {
    EXPECT_EQ(m_canvas->GetSelectionRect(), CRect(0, 0, 0, 0));
    EXPECT_EQ(m_canvas->GetSelectionLastRect(), CRect(0, 0, 0, 0));

    m_canvas->Select(AddRectangle(100, 100, 40, 20), 0);
    EXPECT_EQ(m_canvas->GetSelectionRect(), CRect(0, 0, 140, 120)) << "the union starts from the origin";
    EXPECT_EQ(m_canvas->GetSelectionLastRect(), CRect(100, 100, 140, 120));

    m_canvas->Select(AddRectangle(-10.4f, -5.5f, 5, 5), 1);
    EXPECT_EQ(m_canvas->GetSelectionRect(), CRect(-10, -6, 140, 120));
}

TEST_F(Selection, ARectangleOnTheFarEdgesIsNotInside) {
    const CRect outer(10, 10, 50, 50);
    EXPECT_TRUE(m_canvas->IsInRect(outer, CRect(10, 10, 49, 49)));
    EXPECT_FALSE(m_canvas->IsInRect(outer, CRect(10, 10, 50, 49)));
    EXPECT_FALSE(m_canvas->IsInRect(outer, CRect(9, 10, 20, 20)));
}

TEST_F(Selection, TheRubberBandOnlyEmptiesTheSelection) {
    CUIObject* a = AddRectangle(50, 50, 40, 20);
    for (int whole : {0, 1}) {
        m_canvas->Select(a, 0);
        m_canvas->SelectWithinRect(CRect(0, 0, 200, 200), 1, whole);
        EXPECT_EQ(m_canvas->m_selection, (List{a}));
        m_canvas->SelectWithinRect(CRect(0, 0, 200, 200), 0, whole);
        EXPECT_TRUE(m_canvas->m_selection.empty());
    }
}

}  // namespace
