// Waiting for paints: all windows, the limit, and what stays in the queue.
#include "window/PaintFinishWaiter.h"

#include "afx/WindowSupport.h"

#include <gtest/gtest.h>

#include <atomic>
#include <imm.h>
#include <thread>

using namespace Lumo;

namespace {

/// Invalidates itself in its first paints.
class Painted : public CWnd {
public:
    int paints = 0;
    int unfinished = 0;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_PAINT)
            return CWnd::WindowProc(message, wParam, lParam);
        CPaintDC dc(this);
        ++paints;
        if (paints <= unfinished)
            Invalidate();
        return 0;
    }
};

bool Create(Painted& window, DWORD style, CWnd* parent) {
    return window.CreateEx(0, AfxRegisterWndClass(0), L"", style | WS_VISIBLE, CRect(5, 6, 205, 126), parent,
                           0);
}

class PaintFinishWaiterTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(Create(m_frame, WS_OVERLAPPEDWINDOW, nullptr) && Create(m_child, WS_CHILD, &m_frame) &&
                    Create(m_inner, WS_CHILD, &m_child));
        PumpQueue();
        m_frame.paints = m_child.paints = m_inner.paints = 0;
    }
    void TearDown() override { m_frame.DestroyWindow(); }

    Painted m_frame, m_child, m_inner;
};

TEST_F(PaintFinishWaiterTest, EverythingIsPaintedAndTheQueueStays) {
    const PaintFinishWaiter waiter(m_frame);
    EXPECT_TRUE(waiter.IsFinished());
    m_inner.Invalidate();
    EXPECT_FALSE(waiter.IsFinished());
    m_inner.unfinished = 3;
    m_frame.PostMessage(WM_KEYDOWN, 'A');
    m_frame.PostMessage(WM_APP, 7);
    EXPECT_TRUE(waiter.Wait());
    EXPECT_EQ(4, m_inner.paints) << "until it was done";
    EXPECT_EQ(0, m_frame.paints) << "nothing was invalid there";
    MSG message;
    ASSERT_TRUE(::PeekMessage(&message, m_frame, WM_KEYDOWN, WM_APP, PM_REMOVE));
    EXPECT_EQ(UINT(WM_KEYDOWN), message.message);
    ASSERT_TRUE(::PeekMessage(&message, m_frame, WM_KEYDOWN, WM_APP, PM_REMOVE));
    EXPECT_EQ(UINT(WM_APP), message.message);

    m_child.unfinished = 1 << 20;
    m_child.Invalidate();
    const ULONGLONG begin = ::GetTickCount64();
    EXPECT_FALSE(waiter.Wait(100));
    EXPECT_GE(::GetTickCount64() - begin, 90u);
    EXPECT_LT(::GetTickCount64() - begin, 5000u);
}

TEST_F(PaintFinishWaiterTest, HiddenMinimisedAndDestroyedWindowsHaveNothingLeft) {
    m_frame.ShowWindow(SW_MINIMIZE);
    m_child.Invalidate();
    EXPECT_TRUE(PaintFinishWaiter(m_child).Wait(0));
    m_frame.ShowWindow(SW_HIDE);
    EXPECT_TRUE(PaintFinishWaiter(m_child).Wait(0));
    m_child.DestroyWindow();
    EXPECT_TRUE(PaintFinishWaiter(m_child).Wait(0));
}

// Its paint asks the waiting thread for something.
TEST_F(PaintFinishWaiterTest, AnotherThreadsWindowIsWaitedForAndAnswered) {
    std::atomic<HWND> other = nullptr;
    const HWND frame = m_frame;
    std::thread painter([&] {
        ::ImmDisableIME(0);  // some systems keep memory of each thread that has one
        const HWND window = ::CreateWindow(L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 40, 30, nullptr,
                                           nullptr, nullptr, nullptr);
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessage(&message);
        ::InvalidateRect(window, nullptr, TRUE);
        other = window;
        ::SendMessage(frame, WM_NULL, 0, 0);
        ::UpdateWindow(window);
        ::DestroyWindow(window);
    });
    while (!other)
        ::SwitchToThread();
    EXPECT_TRUE(PaintFinishWaiter(other).Wait(5000));
    painter.join();
}

}  // namespace
