// Pages with more objects than can be drawn at every step of a drag.
#include "StudioFixture.h"
#include "studio/editing/GroupObject.h"
#include "studio/editing/PageEdits.h"

#include <gtest/gtest.h>

using namespace Studio;
using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

constexpr COLORREF kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255), kBlack = RGB(0, 0, 0);

class ManyObjectsTest : public StudioFixture {
protected:
    CUIObject* AddFilled(float x, float y, float width, float height, COLORREF color) {
        CUIObject* object = Add(Lumo::DS_RECTANGLE, x, y, width, height);
        object->SetFillColor(0xFF000000 | GetRValue(color) << 16 | GetGValue(color) << 8 | GetBValue(color));
        object->SetFillAlpha(255.0f);
        object->SetLineShapeMode(0);
        object->SetText(L" ");
        return object;
    }

    COLORREF Pixel(int x, int y) {
        Page().UpdateWindow();
        CClientDC dc(&Page());
        return dc.GetPixel(x, y);
    }
};

}  // namespace

TEST_F(ManyObjectsTest, ManyDraggedObjectsMoveAsOutlines) {
    m_parent.ShowWindow(SW_SHOWNA);
    Page().ShowWindow(SW_SHOWNA);
    CUIObject* still = AddFilled(20, 300, 40, 40, kBlue);
    for (int i = 0; i < 300; ++i) {
        const int column = i % 20;
        const int row = i / 20;
        AddFilled(static_cast<float>(10 + column * 12), static_cast<float>(10 + row * 12), 10, 10, kRed);
    }
    SelectAll(Page());
    Page().Deselect(still);
    EXPECT_EQ(kRed, Pixel(15, 15));
    Mouse(WM_LBUTTONDOWN, 15, 15);
    Mouse(WM_MOUSEMOVE, 30, 15);
    Mouse(WM_MOUSEMOVE, 315, 15);
    EXPECT_EQ(kBlack, Pixel(15, 15)) << "nothing stays behind";
    EXPECT_EQ(kBlack, Pixel(315, 15)) << "the inside is left out";
    EXPECT_NE(kBlack, Pixel(310, 15)) << "the outline moves along";
    EXPECT_EQ(kBlue, Pixel(40, 320)) << "the rest is there";
    Mouse(WM_LBUTTONUP, 315, 15);
    EXPECT_EQ(kRed, Pixel(315, 15));
    Mouse(WM_LBUTTONDOWN, 315, 15);
    Mouse(WM_MOUSEMOVE, 400, 200);
    EXPECT_TRUE(Page().CancelGesture());
    EXPECT_EQ(kRed, Pixel(315, 15)) << "a drag that is given up leaves no outlines";
}

TEST_F(ManyObjectsTest, UngroupingPutsEveryGroupsChildrenInItsPlace) {
    CUIObjectDeque order;
    for (int i = 0; i < 6; ++i)
        order.push_back(Add(Lumo::DS_RECTANGLE, static_cast<float>(i * 20), 10, 10, 10));
    Page().SelectOnly({order[0], order[1]});
    GroupSelection(Page());
    CUIObject* first = Objects().back();
    Page().SelectOnly({order[3], order[4]});
    GroupSelection(Page());
    CUIObject* second = Objects().back();
    EXPECT_EQ((CUIObjectDeque{order[2], order[5], first, second}), Objects());
    Page().SelectOnly({order[5], first, second});
    UngroupSelection(Page());
    EXPECT_EQ((CUIObjectDeque{order[2], order[5], order[0], order[1], order[3], order[4]}), Objects());
    EXPECT_EQ(5u, Page().m_selection.size()) << "what is no group stays selected";
    ExpectBounds(*order[4], 80, 10, 10, 10);
    m_document->Edits().Undo();
    EXPECT_EQ((CUIObjectDeque{order[2], order[5], first, second}), Objects());
    EXPECT_EQ(2u, static_cast<GroupObject*>(second)->GetChildren().size());
}
