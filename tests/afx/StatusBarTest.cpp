#include <afxext.h>
#include <gtest/gtest.h>

#include "WindowSupport.h"

namespace {

class BarFrame : public CFrameWnd {
public:
    CStatusBar bar;
    CWnd pane;
    CString shown = _T("0, 0");

protected:
    void PostNcDestroy() override {}
    void OnUpdatePosition(CCmdUI* ui) { ui->SetText(shown); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(BarFrame, CFrameWnd)
    ON_UPDATE_COMMAND_UI(801, &BarFrame::OnUpdatePosition)
END_MESSAGE_MAP()

TEST(StatusBar, KeepsItsPanesAndLeavesTheRestToThePage) {
    BarFrame frame;
    ASSERT_TRUE(frame.Create(nullptr, _T("frame"), WS_OVERLAPPEDWINDOW, CRect(0, 0, 500, 400)));
    ASSERT_TRUE(frame.bar.Create(&frame));
    ASSERT_TRUE(frame.pane.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_CHILD | WS_VISIBLE,
                                    CRect(0, 0, 1, 1), &frame, AFX_IDW_PANE_FIRST));
    const UINT panes[] = {ID_SEPARATOR, 801, 802};
    ASSERT_TRUE(frame.bar.SetIndicators(panes, 3));
    frame.bar.SetPaneInfo(1, 801, SBPS_NORMAL, 90);
    frame.ShowWindow(SW_SHOWNA);
    frame.RecalcLayout();
    CRect client;
    CRect bar;
    CRect pane;
    frame.GetClientRect(&client);
    frame.bar.GetWindowRect(&bar);
    frame.ScreenToClient(&bar);
    frame.pane.GetWindowRect(&pane);
    frame.ScreenToClient(&pane);
    EXPECT_EQ(client.bottom, bar.bottom);
    EXPECT_EQ(client.Width(), bar.Width());
    EXPECT_GT(bar.Height(), 10);
    EXPECT_EQ(CRect(0, 0, client.right, bar.top), pane);

    frame.shown = _T("12, 34");
    frame.SetMessageText(_T("준비"));
    frame.bar.OnUpdateCmdUI(&frame, TRUE);
    EXPECT_EQ(CString(_T("준비")), frame.bar.GetPaneText(0));
    EXPECT_EQ(CString(_T("12, 34")), frame.bar.GetPaneText(1));
    TCHAR inControl[32] = {};
    frame.bar.SendMessage(WM_USER + 13, 1, reinterpret_cast<LPARAM>(inControl));  // SB_GETTEXTW
    EXPECT_STREQ(_T("12, 34"), inControl);
    EXPECT_EQ(2, frame.bar.CommandToIndex(802));
    EXPECT_EQ(-1, frame.bar.CommandToIndex(99));
    EXPECT_FALSE(frame.bar.SetPaneText(3, _T("x")));
    EXPECT_TRUE(frame.bar.GetPaneText(-1).IsEmpty());
    frame.DestroyWindow();
}

TEST(Frame, ModalStateDisablesTheOthersAndNests) {
    BarFrame frame;
    ASSERT_TRUE(frame.Create(nullptr, _T("frame")));
    frame.ShowWindow(SW_SHOWNA);
    frame.BeginModalState();
    frame.BeginModalState();
    EXPECT_FALSE(frame.IsWindowEnabled());
    frame.EndModalState();
    EXPECT_TRUE(frame.InModalState());
    frame.EndModalState();
    EXPECT_TRUE(frame.IsWindowEnabled());
    frame.EndModalState();
    EXPECT_FALSE(frame.InModalState());
    frame.DestroyWindow();
}

}  // namespace
