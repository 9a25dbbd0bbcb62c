// Pages that are larger than their window.
#include "StudioFixture.h"
#include "studio/document/ObjectExtras.h"
#include "studio/runtime/RunSession.h"
#include "support/Golden.h"

#include <gtest/gtest.h>

using namespace Studio;
using Lumo::CUIObject;

namespace {

class ScrollTest : public StudioFixture, public RunHost {
protected:
    bool HasBar(DWORD style) { return (Page().GetStyle() & style) != 0; }

    void GoToPage(const CString&) override {}
    void GoToPage(int) override {}
    void StepPage(int) override {}
    bool Confirm(const CString&) override { return true; }
    void EnterNumber(int, const Gdiplus::RectF&) override {}
};

}  // namespace

TEST_F(ScrollTest, WhatIsBeyondTheWindowCanBeReachedAndDrawnUpon) {
    Add(Lumo::DS_RECTANGLE, 20, 20, 100, 50);
    Page().NotifyState();
    Settle();
    EXPECT_FALSE(HasBar(WS_HSCROLL) || HasBar(WS_VSCROLL)) << "everything is seen";

    CUIObject* distant = Add(Lumo::DS_RECTANGLE, 1000, 700, 80, 40);
    CUIObject* above = Add(Lumo::DS_RECTANGLE, 20, -300, 80, 40);
    Page().Select(nullptr, 0);
    Page().NotifyState();
    Settle();
    EXPECT_TRUE(HasBar(WS_HSCROLL) && HasBar(WS_VSCROLL));

    Page().SendMessage(WM_HSCROLL, SB_BOTTOM);
    Page().SendMessage(WM_VSCROLL, SB_BOTTOM);
    const CPoint end = Page().ScrollOrigin();
    CRect client;
    Page().GetClientRect(client);
    EXPECT_LE(1080, end.x + client.right);
    EXPECT_LE(740, end.y + client.bottom);
    Click(CPoint(1040 - end.x, 720 - end.y));
    ASSERT_EQ(1u, Page().m_selection.size());
    EXPECT_EQ(distant, Page().m_selection.front());

    ChooseTool(Page(), Lumo::DS_RECTANGLE);
    Drag(CPoint(10, 10), CPoint(60, 50));
    ExpectBounds(*Objects().back(), static_cast<float>(end.x + 10), static_cast<float>(end.y + 10), 50, 40);

    Page().ScrollTo(CPoint(-10000, -10000));
    Page().ScrollTo(CPoint(0, -300));
    ChooseTool(Page(), Lumo::DS_SELECT);
    Click(CPoint(60, 20));
    EXPECT_EQ(above, Page().m_selection.front());
}

TEST_F(ScrollTest, TheViewComesBackWhenWhatItShowedIsGone) {
    CUIObject* object = Add(Lumo::DS_RECTANGLE, 1500, 20, 80, 40);
    Page().NotifyState();
    Settle();
    Page().ScrollTo(CPoint(1000, 0));
    EXPECT_EQ(1000, Page().ScrollOrigin().x);
    object->SetPosition(Gdiplus::RectF(20, 20, 80, 40));
    Page().NotifyState();
    Settle();
    EXPECT_EQ(CPoint(0, 0), Page().ScrollOrigin());
    EXPECT_FALSE(HasBar(WS_HSCROLL));
}

TEST_F(ScrollTest, ADragBeyondTheEdgeTakesTheViewAlong) {
    constexpr UINT_PTR kFollowTimer = 1;
    CUIObject* box = Add(Lumo::DS_RECTANGLE, 500, 20, 80, 40);
    Mouse(WM_LBUTTONDOWN, 540, 40);
    Mouse(WM_MOUSEMOVE, 580, 40);
    Mouse(WM_MOUSEMOVE, 640, 40);
    Page().SendMessage(WM_TIMER, kFollowTimer);
    Page().SendMessage(WM_TIMER, kFollowTimer);
    const int gone = Page().ScrollOrigin().x;
    EXPECT_LT(0, gone);
    Mouse(WM_LBUTTONUP, 640, 40);
    ExpectBounds(*box, static_cast<float>(600 + gone), 20, 80, 40);
    const CPoint still = Page().ScrollOrigin();
    Page().SendMessage(WM_TIMER, kFollowTimer);
    EXPECT_EQ(still, Page().ScrollOrigin());
}

TEST_F(ScrollTest, AScrolledPageIsOperatedWhereItIsSeen) {
    m_parent.ShowWindow(SW_SHOWNA);
    Page().ShowWindow(SW_SHOWNA);
    CUIObject* button = Add(Lumo::DS_RECTANGLE, 1000, 20, 80, 40);
    ObjectExtras& extras = *EditExtras(*button);
    extras.binding = L"in1.mute";
    extras.TurnOn(Behaviour::kButton, true);
    Page().NotifyState();
    Settle();
    Device device;
    RunSession session(*m_document, device, *this);
    session.Update();
    Page().ScrollTo(CPoint(900, 0));
    Page().UpdateWindow();
    const CPoint origin = Page().ScrollOrigin();
    ASSERT_LT(0, origin.x);
    Click(CPoint(1040 - origin.x, 40));
    EXPECT_EQ(1.0, device.Get(L"in1.mute"));

    CClientDC dc(&Page());
    EXPECT_NE(0u, dc.GetPixel(1040 - origin.x, 40)) << "the object is painted there";
    EXPECT_EQ(0u, dc.GetPixel(1040 - origin.x - 100, 40));
}

// As wide as the window, but not when the other direction's bar stands in it.
TEST_F(ScrollTest, ABarThatTakesRoomBringsTheOther) {
    Add(Lumo::DS_RECTANGLE, 10, 10, 582, 700);
    Page().NotifyState();
    Settle();
    EXPECT_TRUE(HasBar(WS_HSCROLL) && HasBar(WS_VSCROLL));
    Device device;
    RunSession session(*m_document, device, *this);
    Page().ScrollTo(CPoint(10000, 10000));
    CRect client;
    Page().GetClientRect(client);
    EXPECT_EQ(592, Page().ScrollOrigin().x + client.right);
    EXPECT_EQ(710, Page().ScrollOrigin().y + client.bottom);
}

TEST_F(ScrollTest, BarsAndWheel) {
    Add(Lumo::DS_RECTANGLE, -300, -200, 50, 40);
    Add(Lumo::DS_RECTANGLE, 1500, 1100, 50, 40);
    Page().NotifyState();
    Settle();
    const struct {
        UINT message, how;
        CPoint origin;
    } rows[] = {
        {WM_HSCROLL, SB_LINEDOWN, {53, 44}}, {WM_HSCROLL, SB_PAGEDOWN, {616, 44}},
        {WM_HSCROLL, SB_LINEUP, {13, 44}},   {WM_HSCROLL, SB_PAGEUP, {-400, 44}},
        {WM_HSCROLL, SB_TOP, {-400, 44}},    {WM_HSCROLL, SB_BOTTOM, {1067, 44}},
        {WM_VSCROLL, SB_LINEDOWN, {33, 64}}, {WM_VSCROLL, SB_PAGEDOWN, {33, 427}},
        {WM_VSCROLL, SB_LINEUP, {33, 24}},   {WM_VSCROLL, SB_PAGEUP, {33, -300}},
        {WM_VSCROLL, SB_TOP, {33, -300}},    {WM_VSCROLL, SB_BOTTOM, {33, 857}},
        {WM_MOUSEWHEEL, 0, {33, -76}},       {WM_MOUSEWHEEL, MK_SHIFT, {-87, 44}},
    };
    for (const auto& row : rows) {
        Page().ScrollTo(CPoint(33, 44));
        Page().SendMessage(row.message, row.message == WM_MOUSEWHEEL ? MAKEWPARAM(row.how, 240) : row.how,
                           row.message == WM_MOUSEWHEEL ? MAKELPARAM(50, 50) : 0);
        EXPECT_EQ(row.origin, Page().ScrollOrigin())
            << row.how << " " << Page().ScrollOrigin().x << ", " << Page().ScrollOrigin().y;
    }
}

TEST_F(ScrollTest, ABandStaysWhereItBeganOnThePage) {
    m_parent.ShowWindow(SW_SHOWNA);
    Page().ShowWindow(SW_SHOWNA);
    Add(Lumo::DS_RECTANGLE, 1500, 1100, 50, 40);
    Page().NotifyState();
    Settle();
    Play(L"d100,100 m500,300 m640,450");
    Page().SendMessage(WM_TIMER, 1);
    EXPECT_NE(Page().ScrollOrigin(), CPoint(0, 0));
    const Pixels parts = PixelsOf(Page());
    Page().Invalidate(FALSE);
    Page().UpdateWindow();
    EXPECT_EQ(CountDiffering(PixelsOf(Page()), parts), 0u);
}
