#include <afxwin.h>
#include <gtest/gtest.h>

#include "WindowSupport.h"

#include <string>

namespace {

/// Counts the queued messages it is shown and swallows one of them.
class Filter : public CWnd {
public:
    UINT swallowed = 0;
    int shown = 0;
    int handled = 0;

    BOOL PreTranslateMessage(MSG* message) override {
        ++shown;
        return message->message == swallowed;
    }

protected:
    LRESULT OnOwn(WPARAM, LPARAM) { return ++handled; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Filter, CWnd)
    ON_MESSAGE(WM_APP + 1, &Filter::OnOwn)
    ON_MESSAGE(WM_APP + 2, &Filter::OnOwn)
END_MESSAGE_MAP()

TEST(Pump, ShowsQueuedMessagesToTheWindowAndItsParents) {
    Filter parent;
    Filter child;
    ASSERT_TRUE(CreateHidden(parent));
    ASSERT_TRUE(child.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_CHILD, CRect(0, 0, 5, 5), &parent, 1));
    PumpQueue();
    parent.shown = child.shown = 0;
    parent.swallowed = WM_APP + 2;
    child.PostMessage(WM_APP + 1);
    child.PostMessage(WM_APP + 2);
    PumpQueue();
    EXPECT_EQ(2, child.shown);
    EXPECT_EQ(2, parent.shown);
    EXPECT_EQ(1, child.handled) << "the parent swallowed the other";
}

/// A program that ends when its idle work ran and its main window was closed.
class SmallApp : public CWinApp {
public:
    SmallApp() : CWinApp(_T("Small")) {}
    int idleCalls = 0;
    CFrameWnd* frame = nullptr;
    int accelerated = 0;

    BOOL InitInstance() override {
        frame = new CFrameWnd;
        if (!frame->Create(nullptr, _T("main")))
            return FALSE;
        m_pMainWnd = frame;
        frame->ShowWindow(SW_SHOW);
        return TRUE;
    }
    BOOL OnIdle(LONG count) override {
        ++idleCalls;
        if (CWinApp::OnIdle(count))
            return TRUE;
        if (m_pMainWnd)
            m_pMainWnd->PostMessage(accelerated ? WM_COMMAND : WM_KEYDOWN, accelerated ? ID_APP_EXIT : VK_F5);
        return FALSE;
    }

protected:
    void OnAccelerated() { ++accelerated; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(SmallApp, CWinApp)
    ON_COMMAND(700, &SmallApp::OnAccelerated)
END_MESSAGE_MAP()

TEST(Program, RunsFromWinMainToTheEndOfItsMainWindow) {
    SmallApp app;
    ACCEL key{FVIRTKEY, VK_F5, 700};
    HACCEL table = ::CreateAcceleratorTable(&key, 1);
    TCHAR line[] = _T("file.cbf");
    ASSERT_EQ(&app, AfxGetApp());
    ASSERT_EQ(&app, AfxGetThread());
    ASSERT_TRUE(AfxWinInit(::GetModuleHandle(nullptr), nullptr, line, SW_SHOW));
    ASSERT_TRUE(app.InitInstance());
    app.frame->m_hAccelTable = table;
    EXPECT_EQ(0, app.Run());
    EXPECT_EQ(1, app.accelerated) << "the frame's accelerator reached the program's handler";
    EXPECT_GE(app.idleCalls, 2);
    EXPECT_EQ(nullptr, app.m_pMainWnd);
    EXPECT_EQ(CString(_T("file.cbf")), CString(app.m_lpCmdLine));
    EXPECT_EQ(CString(_T("Small")), CString(AfxGetAppName()));
    ::DestroyAcceleratorTable(table);
}

TEST(Program, EndsWithoutRunningWhenItDoesNotStart) {
    struct Program : CWinApp {
        bool starts = true, hasWindow = false;
        std::string calls;
        BOOL InitApplication() override { return calls += "a", starts; }
        BOOL InitInstance() override {
            calls += "i";
            if (hasWindow && (m_pMainWnd = new CFrameWnd))
                static_cast<CFrameWnd*>(m_pMainWnd)->Create(nullptr, _T("main"));
            m_msgCur.wParam = 7;
            return FALSE;
        }
        int Run() override { return calls += "r", CWinApp::Run(); }
        int ExitInstance() override { return calls += "e", CWinApp::ExitInstance(); }
    };
    const HINSTANCE self = ::GetModuleHandle(nullptr);
    TCHAR line[] = _T("x.cbf");
    for (int row = 0; row < 3; ++row) {
        Program app;
        app.starts = row > 0;
        app.hasWindow = row == 2;
        EXPECT_EQ(row ? 7 : -1, AfxWinMain(self, nullptr, line, SW_HIDE));
        EXPECT_EQ(row ? "aie" : "a", app.calls);
        EXPECT_TRUE(app.m_hInstance == self && app.m_nCmdShow == SW_HIDE && app.m_lpCmdLine == line);
        EXPECT_TRUE(CString(app.m_pszAppName) == _T("Title 57344") &&
                    CString(app.m_pszExeName) == _T("test_afx"));
        EXPECT_TRUE(app.m_nThreadID == ::GetCurrentThreadId() && !app.m_pMainWnd);
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
            continue;
    }
    EXPECT_TRUE(!AfxGetApp() && !AfxGetThread());
    EXPECT_EQ(-1, AfxWinMain(self, nullptr, line, SW_HIDE));
    EXPECT_EQ(CString(_T("test_afx")), AfxGetAppName());
    CWinApp windowless(_T("Own"));
    EXPECT_EQ(0, windowless.Run()) << "without a main window there is nothing to wait for";
    EXPECT_TRUE(windowless.LoadStandardIcon(IDI_APPLICATION) && !windowless.LoadIcon(9) &&
                !windowless.LoadCursor(9));
}

TEST(Pump, NewPlacesAndMostMessagesGiveIdleWork) {
    CWinThread thread;
    const struct {
        UINT message;
        LONG x, y;
        bool isIdle;
    } cases[] = {{WM_MOUSEMOVE, 5, 6, true},   {WM_MOUSEMOVE, 5, 6, false}, {WM_NCMOUSEMOVE, 5, 6, false},
                 {WM_NCMOUSEMOVE, 5, 7, true}, {WM_MOUSEMOVE, 4, 7, true},  {WM_PAINT, 1, 1, false},
                 {0x0118, 1, 1, false},        {WM_KEYDOWN, 4, 7, true},    {WM_MOUSEMOVE, 4, 7, false}};
    for (const auto& c : cases) {
        MSG message = {nullptr, c.message, 0, 0, 0, {c.x, c.y}};
        EXPECT_EQ(c.isIdle, thread.IsIdleMessage(&message) != FALSE) << &c - cases;
    }
}

TEST(Pump, TheMainWindowSeesTheMessagesOfOthers) {
    CWinApp program(_T("Pump"));
    Filter main, other, inside;
    ASSERT_TRUE(CreateHidden(main) && CreateHidden(other));
    ASSERT_TRUE(inside.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_CHILD, CRect(0, 0, 5, 5), &main, 1));
    program.m_pMainWnd = &main;
    main.swallowed = WM_APP + 2;
    const auto show = [&](CWnd* window, UINT message) {
        main.shown = other.shown = inside.shown = 0;
        MSG posted = {window ? window->m_hWnd : nullptr, message, 0, 0, 0, {}};
        std::string seen = AfxPreTranslateMessage(&posted) ? "!" : "";
        for (const Filter* filter : {&inside, &other, &main})
            seen += static_cast<char>('0' + filter->shown);
        return seen;
    };
    EXPECT_EQ("101", show(&inside, WM_APP + 1));
    EXPECT_EQ("!101", show(&inside, WM_APP + 2));
    EXPECT_EQ("011", show(&other, WM_APP + 1));
    EXPECT_EQ("!011", show(&other, WM_APP + 2));
    EXPECT_EQ("000", show(nullptr, WM_APP + 2));
    other.swallowed = WM_APP + 1;
    EXPECT_EQ("!010", show(&other, WM_APP + 1));
    program.m_pMainWnd = nullptr;
    EXPECT_EQ("!010", show(&other, WM_APP + 1));
}

/// A window whose modal loop notes its idle work.
TEST(ModalLoop, ShowsItselfWhenIdleAndEndsWithItsResult) {
    struct Program : CWinApp {
        using CWinApp::CWinApp;
        std::string calls;
        CWnd* window = nullptr;
        BOOL OnIdle(LONG count) override {
            calls += std::to_string(count) + (window->IsWindowVisible() ? "v " : "h ");
            if (count == 0 && calls.size() < 8)
                window->PostMessage(WM_APP);
            if (count == 1 && calls.size() > 8)
                window->EndModalLoop(12);
            return count < 1;
        }
    } program(_T("Modal"));
    for (const auto& [flags, calls] :
         {std::pair<DWORD, const char*>{0, "0h 0h 0h 1h "}, {CWnd::MLF_SHOWONIDLE, "0v 0v 0v 1v "}}) {
        CWnd window;
        ASSERT_TRUE(CreateHidden(window));
        PumpQueue();
        program.calls.clear();
        program.window = &window;
        EXPECT_EQ(12, window.RunModalLoop(flags));
        EXPECT_EQ(calls, program.calls);
        EXPECT_FALSE(window.ContinueModal());
        window.EndModalLoop(13);
        PumpQueue();
        ::PostQuitMessage(3);
        EXPECT_EQ(-1, window.RunModalLoop());
        MSG quit;
        EXPECT_TRUE(::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE))
            << "the outer pump ends as well";
    }
}

TEST(WaitCursor, NestsAndComesBack) {
    HCURSOR arrow = ::LoadCursor(nullptr, IDC_ARROW);
    HCURSOR wait = ::LoadCursor(nullptr, IDC_WAIT);
    ::SetCursor(arrow);
    {
        CWaitCursor outer;
        {
            CWaitCursor inner;
            EXPECT_EQ(wait, ::GetCursor());
        }
        EXPECT_EQ(wait, ::GetCursor());
        ::SetCursor(arrow);
        outer.Restore();
        EXPECT_EQ(wait, ::GetCursor());
    }
    EXPECT_EQ(arrow, ::GetCursor());
}

}  // namespace
