// Rectangles that act as child windows: mouse, keyboard, painting, nesting, and ends in the middle of a call.
#include "window/VirtualWindow.h"

#include "afx/WindowSupport.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <new>
#include <string>

using namespace Lumo;

namespace {

/// Writes down what it is told, and does what the test wants.
class Sign : public VirtualWindow {
public:
    Sign(char name, std::string& log) : m_name(name), m_log(log) {}

    bool takes = true;
    COLORREF color = RGB(255, 255, 255);
    std::function<void(const char*)> then;

    void OnPaint(CDC& dc) override {
        dc.FillSolidRect(-50, -50, 500, 500, color);
        dc.SetTextColor(color);
    }
    void OnMouseEnter() override { Note("+"); }
    void OnMouseLeave() override { Note("-"); }
    void OnMouseHover(CPoint) override { Note("~"); }
    void OnCaptureLost() override { Note("^"); }
    void OnFocus(bool has) override { Note(has ? "(" : ")"); }
    bool OnMouse(UINT message, UINT flags, CPoint point) override {
        CString text;
        text.Format(L"%d,%d", point.x, point.y);
        if (message == WM_MOUSEWHEEL)
            text.Format(L"w%d", static_cast<short>(HIWORD(flags)));
        if (message != WM_MOUSEMOVE)
            Note(std::string(text.GetString(), text.GetString() + text.GetLength()).c_str());
        return takes;
    }
    bool OnKey(UINT message, UINT key, UINT) override {
        if (message == WM_KEYDOWN)
            Note(std::string(1, static_cast<char>(key)).c_str());
        return takes;
    }

private:
    void Note(const char* what) {
        m_log += m_name;
        m_log += what;
        m_log += ' ';
        if (then)
            then(what);
    }

    const char m_name;
    std::string& m_log;
};

class Owner : public CWnd {
public:
    std::string got;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_LBUTTONDOWN || message == WM_MOUSEWHEEL || message == WM_KEYDOWN)
            got += message == WM_LBUTTONDOWN ? 'L' : message == WM_KEYDOWN ? 'K' : 'W';
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

// A holds B at its lower right corner, which reaches beyond it; C is beside them, D over a part of C.
class VirtualWindowTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_owner.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW)),
                                     L"", WS_POPUP | WS_VISIBLE, CRect(40, 30, 440, 330), nullptr, 0));
        // Where the pointer of the system is in nobody's way.
        ::SetCursorPos(1000, 800);
        PumpQueue();
        ASSERT_TRUE(a.Create(m_owner, CRect(20, 10, 120, 90)));
        ASSERT_TRUE(b.CreateIn(a, CRect(60, 50, 160, 150)));
        ASSERT_TRUE(c.Create(m_owner, CRect(200, 10, 300, 110)));
        ASSERT_TRUE(d.Create(m_owner, CRect(260, 60, 360, 160)));
    }
    void TearDown() override { m_owner.DestroyWindow(); }

    // What is written down about a message at a point of the owner.
    std::string Mouse(UINT message, int x, int y, WPARAM wParam = 0) {
        m_log.clear();
        m_owner.got.clear();
        m_owner.SendMessage(message, wParam, MAKELPARAM(x, y));
        return m_log + m_owner.got;
    }
    std::string Key(UINT key) {
        m_log.clear();
        m_owner.got.clear();
        m_owner.SendMessage(WM_KEYDOWN, key);
        return m_log + m_owner.got;
    }

    Owner m_owner;
    std::string m_log;
    Sign a{'a', m_log}, b{'b', m_log}, c{'c', m_log}, d{'d', m_log};
};

TEST_F(VirtualWindowTest, TheMouseFindsTheTopmostInItsOwnCoordinates) {
    EXPECT_EQ("a+ ", Mouse(WM_MOUSEMOVE, 30, 20));
    EXPECT_EQ("a- b+ ", Mouse(WM_MOUSEMOVE, 90, 70));
    EXPECT_TRUE(b.IsHot() && !a.IsHot());
    EXPECT_EQ("b- L", Mouse(WM_LBUTTONDOWN, 125, 95)) << "b is cut off by a";
    EXPECT_EQ("b+ b7,6 ", Mouse(WM_LBUTTONDOWN, 87, 66));
    EXPECT_EQ("b- d+ d20,30 ", Mouse(WM_LBUTTONDOWN, 280, 90)) << "d lies over c";
    EXPECT_EQ(CRect(80, 60, 120, 90), b.GetOwnerRect());
    EXPECT_EQ("d- ", Mouse(WM_MOUSELEAVE, 0, 0));

    b.takes = false;
    EXPECT_EQ("b+ b7,6 a67,56 ", Mouse(WM_LBUTTONDOWN, 87, 66));
    a.takes = false;
    EXPECT_EQ("b7,6 a67,56 L", Mouse(WM_LBUTTONDOWN, 87, 66));
    EXPECT_EQ("bw-120 aw-120 W", Mouse(WM_MOUSEWHEEL, 40 + 87, 30 + 66, MAKEWPARAM(0, -120)));

    a.Move(CRect(150, 140, 250, 220));
    EXPECT_EQ("b7,6 a67,56 L", Mouse(WM_LBUTTONDOWN, 217, 196)) << "it goes with its parent";
    d.Show(false);
    EXPECT_EQ("b- c+ c80,80 ", Mouse(WM_LBUTTONDOWN, 280, 90));
    EXPECT_FALSE(d.IsVisible());
}

TEST_F(VirtualWindowTest, ACaptureGetsWhatIsOutside) {
    c.then = [&](const char* what) {
        if (*what == '5')
            c.SetCapture();
    };
    EXPECT_EQ("c+ c5,5 ", Mouse(WM_LBUTTONDOWN, 205, 15));
    EXPECT_TRUE(c.HasCapture());
    EXPECT_EQ(&m_owner, CWnd::GetCapture());
    EXPECT_EQ("c- c-190,-10 ", Mouse(WM_LBUTTONUP, 10, 0)) << "negative, and not hot";
    EXPECT_EQ("", Mouse(WM_MOUSEMOVE, 30, 20)) << "a is not entered meanwhile";
    EXPECT_EQ("c+ ", Mouse(WM_MOUSEMOVE, 205, 15));
    c.ReleaseCapture();
    EXPECT_EQ("c+ c^ ", m_log);
    EXPECT_EQ(nullptr, CWnd::GetCapture());
    EXPECT_EQ("c- a+ a10,10 ", Mouse(WM_LBUTTONUP, 30, 20));

    a.SetCapture();
    b.SetCapture();
    EXPECT_TRUE(b.HasCapture());
    CWnd other;
    ASSERT_TRUE(CreateHidden(other));
    other.SetCapture();
    EXPECT_FALSE(b.HasCapture());
    b.SetCapture();
    m_log.clear();
    a.Show(false);
    EXPECT_EQ("a- b^ ", m_log) << "hidden with what it is in";
    EXPECT_EQ(nullptr, CWnd::GetCapture());
    b.SetCapture();
    EXPECT_FALSE(b.HasCapture());
    other.DestroyWindow();
}

TEST_F(VirtualWindowTest, KeysGoToTheOneWithTheKeyboardAndUp) {
    EXPECT_EQ("K", Key('A'));
    CWnd other;
    ASSERT_TRUE(CreateHidden(other));
    other.SetFocus();
    b.SetFocus();
    EXPECT_EQ(&m_owner, CWnd::GetFocus());
    EXPECT_EQ("bX ", Key('X'));
    b.takes = a.takes = false;
    EXPECT_EQ("bX aX K", Key('X'));
    m_log.clear();
    c.SetFocus();
    EXPECT_EQ("b) c( ", m_log);
    m_log.clear();
    other.SetFocus();
    EXPECT_EQ("c) ", m_log);
    EXPECT_FALSE(c.HasFocus());
    EXPECT_EQ("K", Key('X'));
    other.DestroyWindow();
}

TEST_F(VirtualWindowTest, PaintingIsClippedAndLeavesTheContextAsItWas) {
    a.color = RGB(10, 0, 0);
    b.color = RGB(20, 0, 0);
    c.color = RGB(30, 0, 0);
    d.color = RGB(40, 0, 0);
    CClientDC screen(&m_owner);
    CDC dc;
    dc.CreateCompatibleDC(&screen);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&screen, 400, 300);
    const HGDIOBJ old = ::SelectObject(dc, bitmap);
    dc.FillSolidRect(0, 0, 400, 300, RGB(255, 255, 255));
    const COLORREF text = dc.GetTextColor();
    VirtualWindow::PaintIn(m_owner, dc);
    const struct {
        int x, y, red;
    } pixels[] = {{20, 10, 10},   {19, 10, 255},  {119, 10, 10},  {120, 10, 255}, {80, 60, 20},
                  {119, 89, 20},  {79, 60, 10},   {120, 89, 255}, {200, 109, 30}, {260, 60, 40},
                  {299, 109, 40}, {359, 159, 40}, {360, 159, 255}};
    for (const auto& pixel : pixels)
        EXPECT_EQ(pixel.red, GetRValue(dc.GetPixel(pixel.x, pixel.y))) << pixel.x << ',' << pixel.y;
    EXPECT_EQ(text, dc.GetTextColor());
    EXPECT_EQ(CPoint(0, 0), dc.GetWindowOrg());
    ::SelectObject(dc, old);

    m_owner.ValidateRect(nullptr);
    b.Invalidate();
    CRect invalid;
    m_owner.GetUpdateRect(invalid);
    EXPECT_EQ(CRect(80, 60, 120, 90), invalid);
    b.Move(CRect(0, 0, 10, 10));
    m_owner.GetUpdateRect(invalid);
    EXPECT_EQ(CRect(20, 10, 120, 90), invalid);
}

TEST_F(VirtualWindowTest, AnyMayEndInTheMiddle) {
    auto last = std::make_unique<Sign>('x', m_log);
    ASSERT_TRUE(last->CreateIn(b, CRect(0, 0, 40, 40)));
    last->takes = false;
    last->then = [&](const char* what) {
        if (*what == '5') {
            last.reset();
            b.Destroy();
        }
    };
    EXPECT_EQ("x+ x5,6 L", Mouse(WM_LBUTTONDOWN, 85, 66)) << "b, which is next, is nowhere any more";
    EXPECT_EQ(nullptr, b.GetOwner());

    c.takes = false;
    c.then = [&](const char* what) {
        for (Sign* sign : {&a, &b, &c, &d}) {
            if (*what == '+')
                sign->Destroy();
        }
    };
    EXPECT_EQ("c+ L", Mouse(WM_LBUTTONDOWN, 205, 15));
    c.then = nullptr;
    EXPECT_EQ("L", Mouse(WM_LBUTTONDOWN, 205, 15));
    EXPECT_EQ(nullptr, c.GetOwner());
    CClientDC screen(nullptr);
    VirtualWindow::PaintIn(m_owner, screen);
    c.Move(CRect(1, 2, 3, 4));
    c.SetFocus();
    c.SetToolTip(L"nowhere");

    ASSERT_TRUE(a.Create(m_owner, CRect(0, 0, 50, 50)));
    ASSERT_TRUE(b.CreateIn(a, CRect(0, 0, 20, 20)));
    EXPECT_FALSE(a.CreateIn(b, CRect(0, 0, 9, 9))) << "in itself";
    EXPECT_FALSE(c.CreateIn(d, CRect(0, 0, 9, 9))) << "that one is nowhere";
    b.SetCapture();
    m_owner.DestroyWindow();
    EXPECT_EQ(nullptr, a.GetOwner());
    EXPECT_EQ(nullptr, b.GetParent());
    EXPECT_FALSE(a.Create(m_owner, CRect(0, 0, 9, 9)));
}

TEST_F(VirtualWindowTest, WhatAnOverrideThrowsIsReported) {
    struct Program : CWinApp {
        UINT reported = 0;
        LRESULT ProcessWndProcException(CException*, const MSG* message) override {
            return static_cast<LRESULT>(reported = message->message);
        }
    } program;
    a.then = [](const char*) { throw std::bad_alloc(); };
    Mouse(WM_MOUSEMOVE, 30, 20);
    EXPECT_EQ(UINT(WM_MOUSEMOVE), program.reported);
    EXPECT_TRUE(a.IsHot());
}

BOOL CALLBACK TakeShownTip(HWND window, LPARAM result) {
    WCHAR name[40] = {};
    ::GetClassName(window, name, 40);
    if (CString(name) == TOOLTIPS_CLASS && ::IsWindowVisible(window))
        *reinterpret_cast<HWND*>(result) = window;
    return TRUE;
}

// With the pointer itself: the system asks for a cursor, and time passes.
TEST_F(VirtualWindowTest, CursorTipAndHoverBelongToTheRectangle) {
    const HCURSOR hand = ::LoadCursor(nullptr, IDC_HAND);
    a.SetCursor(hand);
    a.SetToolTip(L"In a");
    ::SetCursorPos(40 + 90, 30 + 70);
    const auto tip = [&] {
        HWND found = nullptr;
        ::EnumThreadWindows(::GetCurrentThreadId(), &TakeShownTip, reinterpret_cast<LPARAM>(&found));
        return found;
    };
    m_log.clear();
    const ULONGLONG end = ::GetTickCount64() + 5000;
    while ((!tip() || m_log.find('~') == std::string::npos) && ::GetTickCount64() < end) {
        ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        PumpQueue();
    }
    EXPECT_EQ("b+ b~ ", m_log) << "once";
    EXPECT_EQ(hand, ::GetCursor()) << "of the one it is in";
    ASSERT_NE(nullptr, tip());
    WCHAR text[80] = {};
    ::GetWindowText(tip(), text, 80);
    EXPECT_STREQ(L"In a", text);
    ::SetCursorPos(40 + 250, 30 + 20);
    PumpQueue();
    EXPECT_EQ(nullptr, tip());
    EXPECT_NE(hand, ::GetCursor());
}

}  // namespace
