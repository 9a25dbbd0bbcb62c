// Frames: menus and controls that show what their commands allow, bars around the page, modal states, keys.
#include <afxext.h>
#include <commctrl.h>
#include <gtest/gtest.h>

#include "Expect.h"
#include "WindowSupport.h"

#include <string>

namespace {

/// A frame whose commands change what the menu shows.
class MenuFrame : public CFrameWnd {
public:
    CStatusBar bar;
    CWnd pane;
    CString shown = _T("0, 0");
    int ran = 0, updates = 0;
    bool isAllowed = false, isGone = false, removes = false;

protected:
    void PostNcDestroy() override { isGone = true; }
    void OnRun() { ++ran; }
    void OnUpdateRun(CCmdUI* ui) { ui->Enable(isAllowed); }
    void OnUpdateMode(CCmdUI* ui) { ui->SetRadio(ui->m_nID == 402); }
    void OnUpdateText(CCmdUI* ui) {
        ui->SetText(_T("실행 취소"));
        ui->SetCheck();
        if (removes)
            ui->m_pMenu->DeleteMenu(ui->m_nIndex, MF_BYPOSITION);
    }
    void OnUpdateFirst(CCmdUI* ui) {
        ++updates;
        EXPECT_TRUE(ui->m_pSubMenu && ui->m_nID == 410);
        ui->Enable(FALSE);
        ui->SetCheck();
        ui->SetText(_T("never"));
    }
    void OnUpdatePosition(CCmdUI* ui) { ui->SetText(shown); }
    void OnUpdateKeys(CCmdUI* ui) {
        ui->SetCheck(ui->m_nID == ID_INDICATOR_NUM ? 2 : 0), ui->Enable(isAllowed);
    }
    void OnPassOn(CCmdUI* ui) { ++updates, ui->ContinueRouting(); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(MenuFrame, CFrameWnd)
    ON_COMMAND(400, &MenuFrame::OnRun)
    ON_UPDATE_COMMAND_UI(400, &MenuFrame::OnUpdateRun)
    ON_UPDATE_COMMAND_UI_RANGE(401, 402, &MenuFrame::OnUpdateMode)
    ON_COMMAND(403, &MenuFrame::OnRun)
    ON_UPDATE_COMMAND_UI(403, &MenuFrame::OnUpdateText)
    ON_COMMAND(404, &MenuFrame::OnRun)
    ON_UPDATE_COMMAND_UI(410, &MenuFrame::OnUpdateFirst)
    ON_UPDATE_COMMAND_UI(801, &MenuFrame::OnUpdatePosition)
    ON_UPDATE_COMMAND_UI(ID_INDICATOR_NUM, &MenuFrame::OnUpdateKeys)
    ON_UPDATE_COMMAND_UI(805, &MenuFrame::OnPassOn)
END_MESSAGE_MAP()

class Frame : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(frame.Create(nullptr, _T("frame"), WS_OVERLAPPEDWINDOW, CRect(20, 30, 520, 430)));
    }
    void TearDown() override {
        if (frame.m_hWnd)
            frame.DestroyWindow();
    }
    /// An item as flags: g(rey), c(hecked), r(adio), and its text.
    static std::string Item(CMenu& menu, UINT position) {
        MENUITEMINFO info{};
        info.cbSize = sizeof info;
        info.fMask = MIIM_STATE | MIIM_FTYPE;
        menu.GetMenuItemInfo(position, &info, TRUE);
        CString text;
        menu.GetMenuString(position, text, MF_BYPOSITION);
        return std::string(info.fState & MFS_GRAYED ? "g" : "") + (info.fState & MFS_CHECKED ? "c" : "") +
               (info.fType & MFT_RADIOCHECK ? "r" : "") + std::to_string(text.GetLength());
    }
    std::string ShowPopup(CMenu& menu, bool system = false) {
        frame.SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu.m_hMenu), MAKELPARAM(0, system));
        std::string items;
        for (UINT i = 0; i < menu.GetMenuItemCount(); ++i)
            items += Item(menu, i) + ' ';
        return items;
    }

    MenuFrame frame;
};

TEST_F(Frame, PopupsShowWhatTheHandlersSay) {
    CMenu menu, inner;
    ASSERT_TRUE(menu.CreatePopupMenu() && inner.CreatePopupMenu());
    inner.AppendMenu(MF_STRING, 410, _T("inside"));
    for (UINT id = 400; id <= 405; ++id)
        menu.AppendMenu(MF_STRING, id, _T("Undo"));
    menu.AppendMenu(MF_SEPARATOR);
    menu.AppendMenu(MF_POPUP, reinterpret_cast<UINT_PTR>(inner.m_hMenu), _T("More"));
    menu.AppendMenu(MF_STRING, 0xF010, _T("Move"));
    EXPECT_EQ("4 4 4 4 4 4 g0 4 4 ", ShowPopup(menu, true)) << "the system's own menu is left alone";
    // Disabled by its handler, radio off and on without a command, renamed and checked, a command alone,
    // no handler at all. Separators are grey.
    EXPECT_EQ("g4 gr4 gcr4 c5 4 g4 g0 4 4 ", ShowPopup(menu));
    EXPECT_EQ(1, frame.updates) << "a popup asks for its first item, which does not change it";
    frame.isAllowed = true;
    frame.m_bAutoMenuEnable = FALSE;
    menu.EnableMenuItem(405, MF_ENABLED);
    EXPECT_EQ("4 gr4 gcr4 c5 4 4 g0 4 4 ", ShowPopup(menu));
    frame.m_bAutoMenuEnable = TRUE;
    frame.removes = true;
    EXPECT_EQ("4 gr4 gcr4 4 g4 g0 4 4 ", ShowPopup(menu)) << "an item may go; the next is not left out";
    inner.Detach();
    CString text(_T("old"));
    EXPECT_EQ(0, menu.GetMenuString(999, text, MF_BYCOMMAND));
    EXPECT_TRUE(text.IsEmpty());
    menu.ModifyMenu(0, MF_BYPOSITION | MF_STRING, 400, _T("1"));
    EXPECT_EQ(1, menu.GetMenuString(0, text, MF_BYPOSITION));
    EXPECT_EQ(_T("1"), text);
}

TEST_F(Frame, CommandsThatAreDisabledDoNotRunAndTheProgramGetsTheRest) {
    frame.SendMessage(WM_COMMAND, 400);
    EXPECT_EQ(0, frame.ran);
    frame.isAllowed = true;
    frame.SendMessage(WM_COMMAND, 400);
    EXPECT_EQ(1, frame.ran);
    EXPECT_FALSE(frame.SendMessage(WM_COMMAND, ID_APP_EXIT)) << "there is no program";
    CWinApp program(_T("Frames"));
    EXPECT_TRUE(frame.SendMessage(WM_COMMAND, ID_APP_EXIT));
    EXPECT_FALSE(frame.isGone);
    program.m_pMainWnd = &frame;
    EXPECT_TRUE(frame.SendMessage(WM_COMMAND, ID_APP_EXIT));
    EXPECT_TRUE(frame.isGone && program.m_pMainWnd == nullptr);
    MSG quit;
    EXPECT_TRUE(::PeekMessage(&quit, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(Frame, HasItsMenuItsPlaceAndItsKeys) {
    CRect rect;
    frame.GetWindowRect(rect);
    EXPECT_EQ(CRect(20, 30, 520, 430), rect);
    EXPECT_EQ(UINT(CS_DBLCLKS), ::GetClassLongPtr(frame, GCL_STYLE));
    EXPECT_EQ(ULONG_PTR(COLOR_WINDOW + 1), ::GetClassLongPtr(frame, GCLP_HBRBACKGROUND));
    EXPECT_TRUE(frame.LoadAccelTable(MAKEINTRESOURCE(720)));
    for (UINT message : {WM_KEYDOWN, WM_KEYUP, WM_LBUTTONDOWN}) {
        MSG key = {frame, message, VK_F5, 0, 0, {}};
        EXPECT_EQ(message == WM_KEYDOWN, frame.PreTranslateMessage(&key) != FALSE) << message;
    }
    EXPECT_EQ(1, frame.ran);
    MSG other = {frame, WM_KEYDOWN, VK_F6, 0, 0, {}};
    EXPECT_FALSE(frame.PreTranslateMessage(&other));
    EXPECT_FALSE(frame.LoadAccelTable(MAKEINTRESOURCE(721)));
    MenuFrame withMenu, none;
    ASSERT_TRUE(withMenu.Create(nullptr, _T("menu"), WS_OVERLAPPEDWINDOW, CFrameWnd::rectDefault, &frame,
                                MAKEINTRESOURCE(730), WS_EX_TOOLWINDOW));
    EXPECT_EQ(400u, withMenu.GetMenu()->GetSubMenu(0)->GetMenuItemID(0));
    EXPECT_EQ(&frame, withMenu.GetOwner());
    EXPECT_TRUE(withMenu.GetExStyle() & WS_EX_TOOLWINDOW);
    withMenu.GetWindowRect(rect);
    EXPECT_GT(rect.Width(), 50) << "the system chose";
    withMenu.DestroyWindow();
    EXPECT_FALSE(none.Create(nullptr, _T(""), 0, CRect(0, 0, 9, 9), nullptr, MAKEINTRESOURCE(731)));
    EXPECT_TRUE(none.isGone) << "no such menu";
}

TEST_F(Frame, ModalStateDisablesTheOthersAndNests) {
    MenuFrame other, hidden, disabled;
    for (MenuFrame* window : {&other, &hidden, &disabled})
        ASSERT_TRUE(window->Create(nullptr, _T("other")));
    for (MenuFrame* window : {&frame, &other, &disabled})
        window->ShowWindow(SW_SHOWNA);
    disabled.EnableWindow(FALSE);
    frame.BeginModalState();
    frame.BeginModalState();
    EXPECT_TRUE(!frame.IsWindowEnabled() && !other.IsWindowEnabled() && hidden.IsWindowEnabled());
    frame.EndModalState();
    EXPECT_TRUE(frame.InModalState() && !other.IsWindowEnabled());
    frame.EndModalState();
    EXPECT_TRUE(frame.IsWindowEnabled() && other.IsWindowEnabled() && !disabled.IsWindowEnabled());
    frame.EndModalState();
    EXPECT_FALSE(frame.InModalState());
    frame.BeginModalState();
    frame.BeginModalState();
    frame.SendMessage(WM_CLOSE);
    EXPECT_TRUE(frame.isGone && other.IsWindowEnabled()) << "a frame that goes gives the others back";
    for (MenuFrame* window : {&other, &hidden, &disabled})
        window->DestroyWindow();
}

/// A bar of 30 by 40 that counts how often it is asked to show its commands.
class PlainBar : public CControlBar {
public:
    int updates = 0;
    CSize CalcFixedLayout(BOOL, BOOL horizontal) override {
        EXPECT_EQ((m_dwStyle & (CBRS_ALIGN_TOP | CBRS_ALIGN_BOTTOM)) != 0, horizontal != FALSE);
        return CSize(30, 40);
    }
    void OnUpdateCmdUI(CFrameWnd* target, BOOL disable) override { updates += target && disable; }
};

TEST_F(Frame, BarsTakeTheirEdgesAndLeaveTheRestToThePage) {
    PlainBar bars[6];
    const DWORD edges[] = {CBRS_TOP, CBRS_LEFT, CBRS_RIGHT, CBRS_BOTTOM, CBRS_TOP, 0};
    for (int i = 0; i < 6; ++i) {
        bars[i].m_dwStyle = edges[i];
        ASSERT_TRUE(bars[i].Create(nullptr, nullptr, WS_CHILD | (i == 4 ? 0 : WS_VISIBLE), CRect(1, 1, 2, 2),
                                   &frame, 0xE810 + i));
        // The last made is asked first.
        bars[i].SetWindowPos(&CWnd::wndBottom, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    }
    ASSERT_TRUE(frame.pane.Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 1, 1), &frame,
                                  AFX_IDW_PANE_FIRST));
    frame.ShowWindow(SW_SHOWNA);
    CRect all;
    frame.GetClientRect(all);
    const int right = all.right, bottom = all.bottom;
    const CRect expected[] = {{0, 0, right, 40},
                              {0, 40, 30, bottom},
                              {right - 30, 40, right, bottom},
                              {30, bottom - 40, right - 30, bottom},
                              {1, 1, 2, 2},
                              {1, 1, 2, 2}};
    const auto place = [&](CWnd& window) {
        CRect rect;
        window.GetWindowRect(rect);
        frame.ScreenToClient(rect);
        return rect;
    };
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(expected[i], place(bars[i])) << i;
    EXPECT_EQ(CRect(30, 40, right - 30, bottom - 40), place(frame.pane));
    CRect left, given(5, 6, 400, 300);
    frame.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, left, given);
    EXPECT_EQ(CRect(35, 46, 370, 260), left);
    EXPECT_EQ(CRect(30, 40, right - 30, bottom - 40), place(frame.pane)) << "a question moves nothing";
    frame.RepositionBars(0xE811, 0xE812, 0, CWnd::reposQuery, left, given);
    EXPECT_EQ(CRect(35, 6, 370, 300), left);
    frame.SendMessage(WM_SIZE, SIZE_MINIMIZED, MAKELPARAM(9, 9));
    EXPECT_EQ(expected[0], place(bars[0]));
    CWinApp program(_T("Bars"));
    program.m_pMainWnd = &frame;
    EXPECT_TRUE(program.OnIdle(0));
    EXPECT_FALSE(program.OnIdle(1));
    EXPECT_TRUE(bars[0].updates == 1 && bars[4].updates == 0);
    frame.ShowWindow(SW_HIDE);
    program.OnIdle(0);
    EXPECT_EQ(1, bars[0].updates);
    program.m_pMainWnd = nullptr;
}

TEST_F(Frame, StatusBarKeepsItsPanes) {
    ASSERT_TRUE(frame.bar.Create(&frame));
    const UINT panes[] = {ID_SEPARATOR, 801, ID_INDICATOR_NUM, 5003, 805};
    EXPECT_FALSE(frame.bar.SetIndicators(panes, 0) || frame.bar.SetIndicators(panes, 256));
    ASSERT_TRUE(frame.bar.SetIndicators(panes, 5));
    frame.bar.SetPaneInfo(1, 801, SBPS_NORMAL, 90);
    frame.bar.SetPaneInfo(2, ID_INDICATOR_NUM, SBPS_NORMAL, 40);
    frame.bar.SetPaneInfo(4, 805, SBPS_STRETCH | SBPS_POPOUT, 20);
    frame.bar.SetPaneInfo(9, 1, SBPS_NORMAL, 1);
    frame.ShowWindow(SW_SHOWNA);
    const auto control = [&](int pane) {
        TCHAR text[32] = {};
        const LRESULT answer = frame.bar.SendMessage(SB_GETTEXT, pane, reinterpret_cast<LPARAM>(text));
        return std::to_string(HIWORD(answer)) + std::string(text, text + ::lstrlen(text));
    };
    CRect client, bar;
    frame.GetClientRect(&client);
    frame.bar.GetWindowRect(&bar);
    frame.ScreenToClient(&bar);
    EXPECT_TRUE(client.bottom == bar.bottom && client.Width() == bar.Width());
    TEXTMETRIC metrics;
    CClientDC dc(&frame.bar);
    CFont* before = dc.SelectObject(frame.bar.GetFont());
    dc.GetTextMetrics(&metrics);
    const int width = dc.GetTextExtent(_T("third")).cx;
    dc.SelectObject(before);
    EXPECT_EQ(metrics.tmHeight + 8, bar.Height());
    // Every pane takes 8 more than its width; the first and the last share what is left.
    const int share = (client.Width() - 5 * 8 - 90 - 40 - width) / 2;
    int ends[6];
    ASSERT_EQ(5, frame.bar.SendMessage(SB_GETPARTS, 6, reinterpret_cast<LPARAM>(ends)));
    const int expected[] = {share + 8, share + 106, share + 154, share + 162 + width,
                            2 * share + 170 + width};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(expected[i], ends[i]) << i;
    frame.bar.SetPaneInfo(1, 801, SBPS_NORMAL, 100);
    frame.bar.SendMessage(SB_GETPARTS, 6, reinterpret_cast<LPARAM>(ends));
    EXPECT_EQ((client.Width() - 5 * 8 - 100 - 40 - width) / 2 + 116, ends[1]) << "laid out anew";
    UINT id, style;
    int wide;
    frame.bar.GetPaneInfo(0, id, style, wide);
    EXPECT_TRUE(id == 0 && style == (SBPS_STRETCH | SBPS_NOBORDERS) &&
                wide == ::GetSystemMetrics(SM_CXSCREEN) / 4);
    frame.bar.GetPaneInfo(3, id, style, wide);
    EXPECT_TRUE(id == 5003 && style == 0 && wide == width);
    frame.bar.GetPaneInfo(5, id, style, wide);
    EXPECT_TRUE(id == 0 && style == 0 && wide == 0);

    frame.shown = _T("12, 34");
    frame.SetMessageText(_T("준비"));
    EXPECT_EQ(_T("준비"), frame.bar.GetPaneText(0));
    frame.SetMessageText(static_cast<LPCTSTR>(nullptr));
    EXPECT_TRUE(frame.bar.GetPaneText(0).IsEmpty());
    EXPECT_TRUE(frame.bar.SetPaneText(2, _T("NUM")) && frame.bar.SetPaneText(4, _T("quiet"), FALSE));
    frame.bar.OnUpdateCmdUI(&frame, TRUE);
    EXPECT_EQ(1, frame.updates);
    EXPECT_EQ("012, 34", control(1));
    EXPECT_EQ("512", control(2)) << "disabled by its handler: popped out, without its text";
    EXPECT_EQ("0third", control(3)) << "what has no handler is no indicator";
    EXPECT_EQ("512", control(4));
    frame.isAllowed = true;
    frame.bar.OnUpdateCmdUI(&frame, TRUE);
    EXPECT_EQ("512NUM", control(2));
    frame.bar.GetPaneInfo(2, id, style, wide);
    EXPECT_EQ(UINT(SBPS_POPOUT), style);
    EXPECT_TRUE(frame.bar.CommandToIndex(5003) == 3 && frame.bar.CommandToIndex(99) == -1);
    EXPECT_TRUE(frame.bar.GetItemID(4) == 805 && frame.bar.GetItemID(5) == 0 && frame.bar.GetCount() == 5);
    EXPECT_FALSE(frame.bar.SetPaneText(5, _T("x")) || frame.bar.SetPaneText(-1, _T("x")));
    EXPECT_TRUE(frame.bar.GetPaneText(-1).IsEmpty() && frame.bar.GetPaneText(5).IsEmpty());
    EXPECT_TRUE(frame.bar.GetStyle() & SBARS_SIZEGRIP);
    ASSERT_TRUE(frame.bar.SetIndicators(nullptr, 2));
    EXPECT_TRUE(frame.bar.GetCount() == 2 && frame.bar.GetItemID(1) == ID_SEPARATOR);
    frame.bar.GetPaneInfo(1, id, style, wide);
    EXPECT_TRUE(style == 0 && wide == 0) << "the first one alone stretches";
}

TEST(Menu, ObjectsAreFoundByTheirHandles) {
    CMenu menu, loaded;
    ASSERT_TRUE(menu.CreatePopupMenu());
    HMENU handle = menu.m_hMenu;
    EXPECT_FALSE(menu.Attach(handle) || loaded.Attach(nullptr) || loaded.DestroyMenu());
    EXPECT_TRUE(&menu == CMenu::FromHandlePermanent(handle) && &menu == CMenu::FromHandle(handle));
    EXPECT_EQ(handle, menu.Detach());
    EXPECT_EQ(nullptr, CMenu::FromHandlePermanent(handle));
    EXPECT_NE(&menu, CMenu::FromHandle(handle));
    EXPECT_TRUE(!CMenu::FromHandlePermanent(nullptr) && !CMenu::FromHandle(nullptr));
    ::DestroyMenu(handle);
    EXPECT_TRUE(loaded.LoadMenu(730));
    handle = loaded.m_hMenu;
    EXPECT_TRUE(loaded.DestroyMenu() && !::IsMenu(handle));
    {
        CMenu brief;
        brief.CreateMenu();
        handle = brief.m_hMenu;
    }
    EXPECT_FALSE(::IsMenu(handle)) << "gone with its object";
}

TEST(CommandState, ControlsShowWhatTheHandlersSay) {
    /// Counts the texts that it is given.
    struct Label : CStatic {
        int texts = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            texts += message == WM_SETTEXT;
            return CStatic::WindowProc(message, wParam, lParam);
        }
    } label;
    CWnd parent;
    CButton box, next;
    ASSERT_TRUE(CreateHidden(parent));
    ASSERT_TRUE(label.Create(_T("old"), WS_CHILD, CRect(0, 0, 9, 9), &parent, 7));
    const DWORD style = WS_CHILD | WS_VISIBLE | WS_TABSTOP | BS_AUTO3STATE;
    ASSERT_TRUE(box.Create(_T("box"), style, CRect(0, 9, 9, 18), &parent, 8));
    ASSERT_TRUE(next.Create(_T("next"), style, CRect(9, 9, 18, 18), &parent, 9));
    parent.ShowWindow(SW_SHOW);
    CCmdUI none, ui, check;
    none.Enable();
    none.SetCheck();
    none.SetText(_T("nowhere"));
    EXPECT_TRUE(none.m_bEnableChanged);
    ui.m_pOther = &label;
    ui.SetText(_T("old"));
    EXPECT_EQ(0, label.texts) << "the same text would only flicker";
    ui.SetText(_T("new"));
    CString text;
    label.GetWindowText(text);
    EXPECT_TRUE(text == _T("new") && label.texts == 1);
    ui.SetCheck(1);
    ui.Enable(FALSE);
    EXPECT_FALSE(label.IsWindowEnabled());
    check.m_pOther = &box;
    for (int state : {2, 1, 0}) {
        check.SetCheck(state);
        EXPECT_EQ(state, box.GetCheck());
    }
    check.SetRadio();
    EXPECT_EQ(1, box.GetCheck());
    check.SetRadio(FALSE);
    EXPECT_EQ(0, box.GetCheck());
    next.SetFocus();
    check.Enable(FALSE);
    EXPECT_EQ(&next, CWnd::GetFocus()) << "it had no focus to lose";
    check.Enable();
    box.SetFocus();
    check.Enable();
    EXPECT_EQ(&box, CWnd::GetFocus());
    check.Enable(FALSE);
    EXPECT_EQ(&next, CWnd::GetFocus()) << "a disabled control would leave the keyboard without a target";
    MenuFrame frame;
    for (UINT id : {0u, 0xFFFFu})
        EXPECT_TRUE((check.m_nID = id, check.DoUpdate(&frame, TRUE))) << "separators";
    EXPECT_FALSE(box.IsWindowEnabled());
    check.m_nID = 404;
    EXPECT_FALSE(check.DoUpdate(&frame, FALSE));
    EXPECT_FALSE(box.IsWindowEnabled());
    EXPECT_FALSE(check.DoUpdate(&frame, TRUE));
    EXPECT_TRUE(box.IsWindowEnabled());
    check.m_nID = 805;
    EXPECT_FALSE(check.DoUpdate(&frame, FALSE)) << "passed on";
    check.m_nID = 400;
    EXPECT_TRUE(check.DoUpdate(&frame, TRUE));
    EXPECT_FALSE(box.IsWindowEnabled());
}

}  // namespace
