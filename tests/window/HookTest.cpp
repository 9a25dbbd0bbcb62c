// Hooks under real input: order, swallowing, listeners that come and go in the middle, modal dialogs.
#include "window/KeyboardHook.h"
#include "window/MouseHook.h"

#include "afx/WindowSupport.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <string>
#include <thread>
#include <vector>

using namespace Lumo;

namespace {

/// Counts what reaches it.
class Target : public CWnd {
public:
    std::string got;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message == WM_KEYDOWN || message == WM_KEYUP)
            got += static_cast<char>(message == WM_KEYDOWN ? wParam : wParam | 0x20);
        if (message == WM_LBUTTONDOWN || message == WM_MOUSEWHEEL || message == WM_NCLBUTTONDOWN)
            got += message == WM_LBUTTONDOWN ? '!' : message == WM_MOUSEWHEEL ? '@' : '#';
        // The system would wait for the release in a loop of its own.
        return message == WM_NCLBUTTONDOWN ? 0 : CWnd::WindowProc(message, wParam, lParam);
    }
};

void SendKey(WORD key, bool down) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
    ::SendInput(1, &input, sizeof input);
}

void SendMouse(DWORD flags, int data = 0) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = static_cast<DWORD>(data);
    ::SendInput(1, &input, sizeof input);
}

// Not the usual pump: that waits for a message that it has seen, which may be swallowed when it is taken.
void Pump() {
    MSG message;
    while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessage(&message);
}

class HookTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(m_target.CreateEx(WS_EX_TOPMOST, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE,
                                      CRect(50, 60, 350, 260), nullptr, 0));
        m_target.SetForegroundWindow();
        m_target.SetFocus();
        ::SetCursorPos(100, 110);
        Pump();
    }
    void TearDown() override { m_target.DestroyWindow(); }

    // What the windows get of a key that is pressed and released.
    std::string Press(WORD key) {
        m_target.got.clear();
        SendKey(key, true);
        SendKey(key, false);
        Pump();
        return m_target.got;
    }
    std::string Click() {
        m_target.got.clear();
        SendMouse(MOUSEEVENTF_LEFTDOWN);
        SendMouse(MOUSEEVENTF_LEFTUP);
        Pump();
        return m_target.got;
    }

    Target m_target;
    std::string m_heard;
};

TEST_F(HookTest, TheLastStartedIsAskedFirstAndMaySwallow) {
    KeyboardHook first, second;
    bool swallow = false;
    ASSERT_TRUE(first.Start([&](const HookedKey& key) {
        m_heard += key.down ? "1" : "";
        return false;
    }));
    ASSERT_TRUE(second.Start([&](const HookedKey& key) {
        m_heard += key.down ? "2" : "-";
        EXPECT_EQ(UINT('K'), key.key);
        EXPECT_FALSE(key.alt || (key.down && key.repeated));
        return swallow;
    }));
    EXPECT_EQ("Kk", Press('K'));
    EXPECT_EQ("21-", m_heard);
    swallow = true;
    EXPECT_EQ("", Press('K'));
    EXPECT_EQ("21-2-", m_heard);
    second.Stop();
    EXPECT_FALSE(second.IsRunning());
    EXPECT_EQ("Kk", Press('K'));
    EXPECT_FALSE(first.Start(nullptr));
    EXPECT_FALSE(first.IsRunning());
    Press('K');
    EXPECT_EQ("21-2-1", m_heard);
}

TEST_F(HookTest, ListenersComeAndGoInTheMiddleOfACall) {
    KeyboardHook old, late;
    auto victim = std::make_unique<KeyboardHook>();
    auto itself = std::make_unique<KeyboardHook>();
    old.Start([&](const HookedKey& key) { return m_heard += key.down ? "o" : "", false; });
    victim->Start([&](const HookedKey&) { return m_heard += "v", false; });
    itself->Start([&](const HookedKey& key) {
        m_heard += "i";
        victim.reset();
        late.Start([&](const HookedKey& now) { return m_heard += now.down ? "L" : "l", false; });
        const std::string kept(1000, 'x');  // the function is still there after its end
        itself.reset();
        return key.down && kept.size() == 1;
    });
    EXPECT_EQ("Qq", Press('Q'));
    EXPECT_EQ("iol", m_heard);
}

TEST_F(HookTest, WhatAListenerThrowsIsReportedAndSwallowsNothing) {
    struct Program : CWinApp {
        int reported = 0;
        LRESULT ProcessWndProcException(CException*, const MSG*) override { return ++reported; }
    } program;
    KeyboardHook hook;
    hook.Start([&](const HookedKey& key) -> bool {
        if (key.down)
            throw std::bad_alloc();
        AfxThrowUserException();
        return true;
    });
    EXPECT_EQ("Zz", Press('Z'));
    EXPECT_EQ(2, program.reported);
}

TEST_F(HookTest, TheMouseTellsWhereAndWhat) {
    MouseHook hook;
    bool swallow = false;
    std::vector<HookedMouse> heard;
    ASSERT_TRUE(hook.Start([&](const HookedMouse& mouse) {
        if (mouse.message != WM_MOUSEMOVE)
            heard.push_back(mouse);
        return swallow;
    }));
    EXPECT_EQ("!", Click());
    ASSERT_EQ(2u, heard.size());
    EXPECT_EQ(UINT(WM_LBUTTONDOWN), heard[0].message);
    EXPECT_EQ(CPoint(100, 110), heard[0].point);
    EXPECT_EQ(m_target.m_hWnd, heard[0].window);
    EXPECT_EQ(UINT(HTCLIENT), heard[0].hitTest);
    heard.clear();
    SendMouse(MOUSEEVENTF_WHEEL, -240);
    Pump();
    ASSERT_EQ(1u, heard.size());
    EXPECT_EQ(-240, heard[0].wheel);
    swallow = true;
    EXPECT_EQ("", Click());
    m_target.SendMessage(WM_LBUTTONDOWN);
    EXPECT_EQ("!", m_target.got) << "what is sent is nobody's input";
}

TEST_F(HookTest, APressElsewhereIsOneOutsideTheWindowAndItsChildren) {
    Target child, inner;
    const LPCWSTR windowClass = AfxRegisterWndClass(0);
    child.CreateEx(0, windowClass, L"", WS_CHILD | WS_VISIBLE, CRect(30, 30, 130, 130), &m_target, 0);
    inner.CreateEx(0, windowClass, L"", WS_CHILD | WS_VISIBLE, CRect(20, 20, 60, 60), &child, 0);
    MouseHook hook;
    int presses = 0;
    EXPECT_FALSE(hook.StartElsewhere(child, nullptr));
    ASSERT_TRUE(hook.StartElsewhere(child, [&] { ++presses; }));
    Click();
    ::SetCursorPos(50 + 60, 60 + 60);
    Click();
    EXPECT_EQ("!!", child.got + inner.got);
    EXPECT_EQ(0, presses);
    ::SetCursorPos(50 + 10, 60 + 10);
    SendMouse(MOUSEEVENTF_WHEEL, 120);
    Pump();
    EXPECT_EQ("!", Click());
    EXPECT_EQ(1, presses) << "neither the wheel nor the release";
    CMenu menu;
    menu.CreatePopupMenu();
    menu.AppendMenu(MF_STRING, 7, L"In a menu");
    ::SetCursorPos(200, 210);
    SendMouse(MOUSEEVENTF_LEFTDOWN);
    SendMouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(7, ::TrackPopupMenu(menu, TPM_RETURNCMD, 190, 200, 0, child, nullptr));
    EXPECT_EQ(1, presses) << "the menu is the window's";
}

TEST_F(HookTest, AModalDialogsInputIsHeardAndTheLastOneUnhooks) {
    struct Dialog : CDialog {
        BOOL OnInitDialog() override {
            SendKey('M', true);
            SendKey('M', false);
            return TRUE;
        }
    } dialog;
    struct {
        DLGTEMPLATE dialog = {WS_POPUP | WS_VISIBLE | WS_CAPTION, 0, 0, 0, 0, 90, 40};
        WORD none[3] = {};
    } resource;
    KeyboardHook hook;
    hook.Start([&](const HookedKey& key) {
        if (key.key == 'M' && !key.down)
            dialog.EndDialog(7);
        return m_heard += static_cast<char>(key.key), false;
    });
    ASSERT_TRUE(dialog.InitModalIndirect(&resource.dialog, &m_target));
    EXPECT_EQ(7, dialog.DoModal());
    EXPECT_EQ("MM", m_heard);
    // A listener of another thread hears nothing of this one's.
    std::thread([&] {
        KeyboardHook other;
        EXPECT_TRUE(other.Start([&](const HookedKey&) { return m_heard += "other", false; }));
        hook.Stop();
    }).join();
    m_target.SetFocus();
    Press('X');
    EXPECT_EQ("MM", m_heard);
}

}  // namespace
