#include <afxwin.h>
#include <gtest/gtest.h>

#include "WindowSupport.h"

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
