#include "canvas/CanvasFixture.h"

#include <algorithm>
#include <gtest/gtest.h>

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

TEST_F(Selection, FollowsAHostThatChangesTheQueueItself) {
    CUIObject* a = AddRectangle(10, 10, 5, 5);
    CUIObject* b = AddRectangle(20, 10, 5, 5);
    CUIObject* c = AddRectangle(30, 10, 5, 5);
    for (const List& selected : {List{a, b, c}, List{c, a}, List{b}, List{}, List{c, b, a}}) {
        m_canvas->m_selection = selected;
        for (CUIObject* object : {c, a, b, b, a, c})
            EXPECT_EQ(m_canvas->IsSelected(object) != 0, std::ranges::count(selected, object) != 0);
    }
}

// A page of a host that watches what is repainted.
class WatchingCanvas : public CUICanvas {
public:
    using CUICanvas::CUICanvas;
    void InvalidateObject(CUIObject* obj) override {
        repainted.emplace_back(obj, IsSelected(obj));
        CUICanvas::InvalidateObject(obj);
    }
    std::vector<std::pair<CUIObject*, BOOL>> repainted;
};

TEST_F(Selection, AnObjectIsInTheSelectionWhenItsSelectingIsRepaintedAndOutOfItAfterwards) {
    CUIObject* a = AddRectangle(10, 10, 5, 5);
    WatchingCanvas canvas(m_document);
    canvas.Select(a, 0);
    canvas.Deselect(a);
    canvas.Select(a, 1);
    canvas.Select(nullptr, 0);
    const decltype(canvas.repainted) expected = {{a, TRUE}, {a, FALSE}, {a, TRUE}, {a, TRUE}};
    EXPECT_EQ(canvas.repainted, expected);
}

TEST_F(Selection, MovingFewRepaintsTheirPlacesAndMovingManyTheRectangleAroundThem) {
    const auto isMiddleInvalid = [&] {
        CRgn invalid;
        invalid.CreateRectRgn(0, 0, 0, 0);
        m_canvas->GetUpdateRgn(&invalid);
        return invalid.PtInRegion(200, 150) != 0;
    };
    CPoint from(0, 0);
    CPoint to(7, 5);
    for (const int count : {1, 100}) {
        m_canvas->Select(nullptr, 0);
        for (int i = 0; i < count; ++i) {
            m_canvas->Select(AddRectangle(20, 20, 10, 10), 1);
            m_canvas->Select(AddRectangle(350, 250, 10, 10), 1);
        }
        TakeUpdateRect();
        m_canvas->MoveTo(8, from, to, 0);
        EXPECT_EQ(isMiddleInvalid(), count > 1);
        EXPECT_EQ(TakeUpdateRect(), CRect(14, 14, 373, 271));
        for (CUIObject* object : m_canvas->m_selection)
            EXPECT_EQ(static_cast<int>(object->GetPosition().X) % 10, 7);
    }
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
    for (const UINT_PTR empty : {UINT_PTR{0}, ~UINT_PTR{0}}) {
        m_canvas->m_selection.push_front(reinterpret_cast<CUIObject*>(empty));  // hosts mark empty slots so
        EXPECT_EQ(m_canvas->GetSelectionLastRect(), CRect(0, 0, 0, 0));
        m_canvas->m_selection.pop_front();
    }
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
