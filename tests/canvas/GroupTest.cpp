#include "behaviour/UIObjectList.h"
#include "canvas/CanvasFixture.h"

#include <gtest/gtest.h>

using namespace Lumo;

namespace {

using List = std::deque<CUIObject*>;

class Group : public CanvasFixture {
protected:
    CUIObjectList* MakeGroupOf(std::initializer_list<CUIObject*> objects) {
        m_canvas->Select(nullptr, 0);
        for (CUIObject* object : objects)
            m_canvas->Select(object, 1);
        m_canvas->OnToolsMakeGroup();
        return dynamic_cast<CUIObjectList*>(m_canvas->m_selection.front());
    }
};

TEST_F(Group, TakesTheSelectionOffThePageIntoARectangleFromTheOrigin) {
    CUIObject* a = AddRectangle(10, 10, 20, 20);
    CUIObject* other = AddRectangle(200, 10, 20, 20);
    CUIObject* b = AddRectangle(50, 40, 30, 10);
    TakeUpdateRect();
    CUIObjectList* group = MakeGroupOf({a, b});
    ASSERT_NE(group, nullptr);
    EXPECT_EQ(m_canvas->m_selection, (List{group}));
    EXPECT_EQ(Objects(), (List{other, group}));
    EXPECT_EQ(group->GetChildren(), (List{b, a})) << "the newest selection first";
    ExpectRect(group->GetPosition(), 0, 0, 80, 50);
    EXPECT_EQ(group->GetDrawShape(), DS_LIST);
    EXPECT_EQ(group->GetDocument(), m_document);
    EXPECT_EQ(group->GetCanvas(), m_canvas);
    EXPECT_EQ(a->GetRemoved(), 0);
    EXPECT_EQ(b->GetRemoved(), 0);
    EXPECT_EQ(TakeUpdateRect() & CRect(0, 0, 80, 50), CRect(0, 0, 80, 50));
}

TEST_F(Group, NeedsASelectionThatCoversAnArea) {
    m_canvas->OnToolsMakeGroup();
    EXPECT_TRUE(Objects().empty());
    CUIObject* flat = AddRectangle(0, 0, 40, 0);
    m_canvas->Select(flat, 0);
    m_canvas->OnToolsMakeGroup();
    EXPECT_EQ(Objects(), (List{flat}));
    EXPECT_EQ(m_canvas->m_selection, (List{flat}));
}

TEST_F(Group, GrowsNoDeeperThanAFileHolds) {
    CUIObject* inner = AddRectangle(13, 17, 20, 10);
    for (int depth = 1; depth <= CUIObjectList::kDeepest; ++depth)
        inner = MakeGroupOf({inner});
    CUIObject* beside = AddRectangle(50, 40, 30, 10);
    MakeGroupOf({beside, inner});
    EXPECT_EQ(Objects(), (List{inner, beside}));
    EXPECT_EQ(m_canvas->m_selection, (List{inner, beside}));
}

TEST_F(Group, SkipsSelectedObjectsOfAnotherPage) {
    CUICanvas* other = AddCanvas();
    CUIObject* foreign = AddRectangle(10, 10, 20, 20);
    m_document->SetCurrentCanvas(m_canvas);
    CUIObject* own = AddRectangle(50, 40, 30, 10);
    CUIObjectList* group = MakeGroupOf({foreign, own});
    EXPECT_EQ(group->GetChildren(), (List{own}));
    EXPECT_EQ(*m_document->GetCanvasObjectList(other), (List{foreign}));
}

TEST_F(Group, UngroupingPutsTheChildrenOnTopAndSelectsThem) {
    CUIObject* a = AddRectangle(10, 10, 20, 20);
    CUIObject* b = AddRectangle(50, 40, 30, 10);
    CUIObjectList* group = MakeGroupOf({a, b});
    CUIObject* other = AddRectangle(200, 10, 20, 20);
    group->SetPosition({5, 7, 80, 50});
    m_canvas->m_selection.push_back(other);
    TakeUpdateRect();
    m_canvas->OnToolsMakeUngroup();
    EXPECT_EQ(Objects(), (List{other, b, a}));
    EXPECT_EQ(m_canvas->m_selection, (List{b, a}));
    ExpectRect(a->GetPosition(), 15, 17, 20, 20);
    EXPECT_EQ(other->GetRemoved(), 0) << "the first object of the page was the group";
    EXPECT_EQ(TakeUpdateRect(), CRect(0, 0, kWidth, kHeight));
}

TEST_F(Group, UngroupingHidesTheFirstObjectOfThePage) {
    CUIObject* first = AddRectangle(200, 10, 20, 20);
    CUIObject* child = AddRectangle(10, 10, 20, 20);
    MakeGroupOf({child});
    m_canvas->OnToolsMakeUngroup();
    EXPECT_EQ(Objects(), (List{first, child}));
    EXPECT_EQ(first->GetRemoved(), 1);
    EXPECT_EQ(child->GetRemoved(), 0);
}

TEST_F(Group, UngroupingNeedsAGroupInFront) {
    m_canvas->OnToolsMakeUngroup();
    CUIObject* plain = AddRectangle(10, 10, 20, 20);
    m_canvas->Select(plain, 0);
    m_canvas->OnToolsMakeUngroup();
    EXPECT_EQ(m_canvas->m_selection, (List{plain}));
    EXPECT_EQ(plain->GetRemoved(), 0);
}

}  // namespace
