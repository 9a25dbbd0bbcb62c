// Timers that end with their object, and windows that move together.
#include "window/DeferWindow.h"
#include "window/Timer.h"

#include "afx/WindowSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <vector>

using namespace Lumo;

namespace {

// Handles messages until the condition holds or two seconds have passed.
template <class Condition>
bool PumpUntil(Condition condition) {
    const ULONGLONG end = ::GetTickCount64() + 2000;
    while (!condition() && ::GetTickCount64() < end) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        PumpQueue();
    }
    return condition();
}

class Child : public CWnd {
public:
    explicit Child(CWnd& parent) {
        CreateEx(0, AfxRegisterWndClass(0), L"child", WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &parent, 0);
    }
    CRect Place() const {
        CRect rect;
        GetWindowRect(rect);
        GetParent()->ScreenToClient(rect);
        return rect;
    }
    int m_moves = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_WINDOWPOSCHANGED)
            ++m_moves;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

class WindowHelpers : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(CreateHidden(m_parent)); }
    void TearDown() override { m_parent.DestroyWindow(); }

    CWnd m_parent;
};

TEST_F(WindowHelpers, TimerTicksUntilItIsStoppedOrGone) {
    int ticks = 0;
    auto timer = std::make_unique<Timer>();
    ASSERT_TRUE(timer->Start(m_parent, 10, [&] {
        if (++ticks == 2)
            timer->Stop();
    }));
    EXPECT_TRUE(PumpUntil([&] { return ticks == 2; }));
    EXPECT_FALSE(timer->IsRunning());

    bool destroyed = false;
    ASSERT_TRUE(timer->Start(m_parent, 10, [&] {
        timer.reset();
        destroyed = true;
    }));
    EXPECT_TRUE(PumpUntil([&] { return destroyed; }));
    EXPECT_EQ(2, ticks);
}

TEST_F(WindowHelpers, WhatATickThrowsGoesTheWayOfAHandlersExceptions) {
    struct Program : CWinApp {
        std::vector<UINT_PTR> reported;
        LRESULT ProcessWndProcException(CException* e, const MSG* message) override {
            EXPECT_EQ(UINT(WM_TIMER), message->message);
            EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CSimpleException)));
            reported.push_back(message->wParam);
            return 0;
        }
    } program;
    Timer timer;
    int ticks = 0;
    ASSERT_TRUE(timer.Start(m_parent, 10, [&] {
        if (++ticks == 1)
            throw std::bad_alloc();
        AfxThrowUserException();
    }));
    EXPECT_TRUE(PumpUntil([&] { return ticks == 2; })) << "it goes on after the first";
    timer.Stop();
    EXPECT_EQ(std::vector<UINT_PTR>(2, reinterpret_cast<UINT_PTR>(&timer)), program.reported);
}

TEST_F(WindowHelpers, TimerEndsWithItsWindow) {
    Timer timer;
    ASSERT_TRUE(timer.Start(m_parent, 10, [] {}));
    EXPECT_TRUE(timer.IsRunning());
    m_parent.DestroyWindow();
    EXPECT_FALSE(timer.IsRunning());
}

TEST_F(WindowHelpers, ATickUnderWayFindsNoStoppedTimer) {
    int ticks = 0;
    WPARAM id = 0;
    MSG tick = {};
    {
        Timer timer;
        ASSERT_TRUE(timer.Start(m_parent, 10, [&] { ++ticks; }));
        id = reinterpret_cast<WPARAM>(&timer);
        while (!::PeekMessage(&tick, m_parent, WM_TIMER, WM_TIMER, PM_REMOVE))
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        ASSERT_EQ(id, tick.wParam);
    }
    ::DispatchMessage(&tick);
    EXPECT_EQ(0, ticks);
}

TEST_F(WindowHelpers, TimerNeedsAWindow) {
    CWnd none;
    Timer timer;
    EXPECT_FALSE(timer.Start(none, 10, [] {}));
    EXPECT_FALSE(timer.IsRunning());
}

TEST_F(WindowHelpers, WindowsMoveTogetherAndOnlyWhenTheyMust) {
    Child a(m_parent), b(m_parent), c(m_parent);
    CWnd none;
    a.m_moves = b.m_moves = c.m_moves = 0;
    {
        DeferWindow layout;
        layout.Move(a, CRect(5, 6, 25, 36));
        layout.Move(b, CRect(0, 0, 10, 10));
        layout.Hide(c);
        layout.Move(none, CRect(0, 0, 1, 1));
        EXPECT_EQ(0, a.m_moves);
    }
    EXPECT_EQ(CRect(5, 6, 25, 36), a.Place());
    EXPECT_EQ(1, a.m_moves);
    EXPECT_EQ(0, b.m_moves);
    EXPECT_FALSE(c.GetStyle() & WS_VISIBLE);
    const int moves = c.m_moves;
    {
        DeferWindow layout;
        layout.Hide(c);
        layout.Hide(none);
        layout.Show(none, CRect(0, 0, 5, 5));
        layout.Show(a, CRect(5, 6, 25, 36));
        layout.Move(b, CRect(1, 0, 10, 10));
    }
    EXPECT_TRUE(c.m_moves == moves && a.m_moves == 1 && b.m_moves == 1) << "what is so already is left alone";
    {
        DeferWindow layout;
        layout.Show(c, CRect(0, 0, 10, 10));
    }
    EXPECT_TRUE(c.GetStyle() & WS_VISIBLE);
}

TEST_F(WindowHelpers, ChildrenOfDifferentParentsMoveToo) {
    CWnd other;
    ASSERT_TRUE(CreateHidden(other));
    {
        Child a(m_parent), b(other);
        {
            DeferWindow layout;
            layout.Move(a, CRect(1, 2, 3, 4));
            layout.Move(b, CRect(5, 6, 7, 8));
        }
        EXPECT_EQ(CRect(1, 2, 3, 4), a.Place());
        EXPECT_EQ(CRect(5, 6, 7, 8), b.Place());
    }
    other.DestroyWindow();
}

}  // namespace
