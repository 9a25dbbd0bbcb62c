#include <afxdlgs.h>
#include <gtest/gtest.h>

#include "WindowSupport.h"

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace {

BOOL CALLBACK TakeVisibleDialog(HWND window, LPARAM found) {
    TCHAR name[32];
    ::GetClassName(window, name, 32);
    if (::lstrcmp(name, _T("#32770")) != 0 || !::IsWindowVisible(window))
        return TRUE;
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

/// The visible dialog of this thread, or null.
HWND FindDialog() {
    HWND found = nullptr;
    ::EnumThreadWindows(::GetCurrentThreadId(), &TakeVisibleDialog, reinterpret_cast<LPARAM>(&found));
    return found;
}

/// While it lives, acts on the dialog as soon as one is shown; the dialog's own pump drives it.
class DialogUser {
public:
    explicit DialogUser(std::function<void(HWND)> act) : m_act(std::move(act)) {
        current = this;
        m_timer = ::SetTimer(nullptr, 0, 20, OnTimer);
    }
    ~DialogUser() {
        ::KillTimer(nullptr, m_timer);
        current = nullptr;
    }
    /// How many dialogs were shown meanwhile.
    size_t Shown() const { return m_shown.size(); }

private:
    static void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
        HWND dialog = current ? FindDialog() : nullptr;
        if (!dialog)
            return;
        current->m_shown.insert(dialog);
        current->m_act(dialog);
    }
    static DialogUser* current;
    std::function<void(HWND)> m_act;
    UINT_PTR m_timer = 0;
    std::set<HWND> m_shown;
};

DialogUser* DialogUser::current = nullptr;

/// A dialog template without controls, as it lies in memory.
struct EmptyTemplate {
    alignas(4) DLGTEMPLATE header{WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 100, 60};
    WORD menuClassTitle[3] = {0, 0, 0};
};

class AskDialog : public CDialog {
public:
    int starts = 0;
    bool refusesFirst = false;
    bool endsItself = false;

protected:
    BOOL OnInitDialog() override {
        ++starts;
        if (endsItself)
            EndDialog(99);
        return CDialog::OnInitDialog();
    }
    void OnOK() override {
        if (!std::exchange(refusesFirst, false))
            CDialog::OnOK();
    }
};

TEST(Dialog, RunsUntilItIsAnswered) {
    EmptyTemplate memory;
    const struct {
        WORD command;
        INT_PTR result;
    } cases[] = {{IDOK, IDOK}, {IDCANCEL, IDCANCEL}};
    for (auto item : cases) {
        AskDialog dialog;
        dialog.refusesFirst = true;
        ASSERT_TRUE(dialog.InitModalIndirect(&memory.header));
        DialogUser user([&](HWND window) { ::PostMessage(window, WM_COMMAND, item.command, 0); });
        EXPECT_EQ(item.result, dialog.DoModal());
        EXPECT_EQ(1, dialog.starts);
        EXPECT_EQ(nullptr, dialog.m_hWnd);
    }
    AskDialog hasty;
    hasty.endsItself = true;
    hasty.InitModalIndirect(&memory.header);
    EXPECT_EQ(99, hasty.DoModal());
    AskDialog missing;
    EXPECT_EQ(-1, missing.DoModal());
    CDialog noResource(12345);
    EXPECT_EQ(-1, noResource.DoModal());
}

TEST(Dialog, BelongsToTheMainWindowUnlessToldOtherwise) {
    CWinApp program(_T("Dialogs"));
    CFrameWnd main;
    CWnd other;
    ASSERT_TRUE(CreateHidden(main));
    ASSERT_TRUE(CreateHidden(other));
    program.m_pMainWnd = &main;
    EmptyTemplate memory;
    for (CWnd* parent : {static_cast<CWnd*>(nullptr), &other}) {
        CWnd* const owner = parent ? parent : &main;
        AskDialog modeless;
        ASSERT_TRUE(modeless.Create(MAKEINTRESOURCE(700), parent));
        EXPECT_EQ(owner, modeless.GetOwner());
        EXPECT_TRUE(modeless.GetDlgItem(710) && modeless.starts == 1);
        modeless.DestroyWindow();
        EXPECT_FALSE(modeless.Create(MAKEINTRESOURCE(701), parent)) << "no such template";
        AskDialog modal;
        modal.InitModalIndirect(&memory.header, parent);
        bool wasDisabled = false;
        DialogUser user([&](HWND window) {
            wasDisabled = !owner->IsWindowEnabled();
            ::PostMessage(window, WM_COMMAND, IDOK, 0);
        });
        EXPECT_EQ(IDOK, modal.DoModal());
        EXPECT_TRUE(wasDisabled && owner->IsWindowEnabled());
    }
    program.m_pMainWnd = nullptr;
}

TEST(Dialog, KeysGoThroughItsControlsAndButtonsEndIt) {
    AskDialog dialog;
    ASSERT_TRUE(dialog.Create(MAKEINTRESOURCE(700)));
    dialog.ShowWindow(SW_SHOW);
    const auto key = [&](UINT message, UINT which) {
        MSG pressed = {dialog.GetDlgItem(710)->m_hWnd, message, which, 0, 0, {}};
        return dialog.PreTranslateMessage(&pressed) != FALSE;
    };
    dialog.GetDlgItem(710)->SetFocus();
    EXPECT_TRUE(key(WM_KEYDOWN, VK_TAB));
    EXPECT_EQ(711, CWnd::GetFocus()->GetDlgCtrlID());
    EXPECT_FALSE(key(WM_PAINT, 0) || key(WM_APP, 0) || key(WM_TIMER, 0));
    EXPECT_TRUE(key(WM_MOUSEMOVE, 0));
    EXPECT_FALSE(dialog.SendMessage(WM_COMMAND, MAKEWPARAM(IDOK, BN_SETFOCUS)));
    EXPECT_FALSE(dialog.SendMessage(WM_COMMAND, 999));
    EXPECT_TRUE(dialog.IsWindowVisible());
    EXPECT_TRUE(dialog.SendMessage(WM_COMMAND, IDCANCEL));
    EXPECT_FALSE(dialog.IsWindowVisible()) << "hidden, but still there";
    EXPECT_FALSE(dialog.CreateIndirect(nullptr) || dialog.InitModalIndirect(nullptr));
    dialog.DestroyWindow();
}

/// A folder of its own, gone with the object.
struct TestFolder {
    CString path;
    TestFolder() {
        TCHAR temp[MAX_PATH];
        ::GetTempPath(MAX_PATH, temp);
        path.Format(_T("%safxdlg%u"), temp, ::GetCurrentProcessId());
        ::CreateDirectory(path, nullptr);
    }
    ~TestFolder() { ::RemoveDirectory(path); }
};

BOOL CALLBACK NoteControl(HWND window, LPARAM notes) {
    TCHAR name[32], text[64];
    ::GetClassName(window, name, 32);
    ::GetWindowText(window, text, 64);
    auto& all = *reinterpret_cast<std::wstring*>(notes);
    if (::lstrcmpi(name, _T("Edit")) == 0 && ::IsWindowVisible(window))
        all += std::wstring(text) + L'|';
    if (::lstrcmpi(name, _T("ComboBox")) == 0 && ::SendMessage(window, CB_GETCOUNT, 0, 0) == 2)
        all += L"filter " + std::to_wstring(::SendMessage(window, CB_GETCURSEL, 0, 0)) + L'|';
    return TRUE;
}

TEST(FileDialog, ShowsWhatItIsGivenAndGivesTheChosenPath) {
    TestFolder folder;
    for (DWORD row = 0; row < 2; ++row) {
        CFileDialog dialog(FALSE, _T("cbf"), row ? _T("plain") : folder.path + _T("\\새 page.cbf"),
                           OFN_OVERWRITEPROMPT, _T("Pages (*.cbf)|*.cbf|All (*.*)|*.*||"));
        dialog.m_ofn.lpstrTitle = _T("Pick one");
        dialog.m_ofn.lpstrInitialDir = folder.path;
        dialog.m_ofn.nFilterIndex = 2 * row;
        std::wstring seen;
        DialogUser user([&](HWND window) {
            TCHAR title[32];
            ::GetWindowText(window, title, 32);
            seen = std::wstring(title) + L'|';
            ::EnumChildWindows(window, &NoteControl, reinterpret_cast<LPARAM>(&seen));
            ::PostMessage(window, WM_COMMAND, IDOK, 0);
        });
        ASSERT_EQ(IDOK, dialog.DoModal());
        EXPECT_EQ(1u, user.Shown());
        EXPECT_EQ(row ? L"Pick one|plain|filter 1|" : L"Pick one|\xC0C8 page.cbf|filter 0|", seen);
        const CString name(row ? _T("plain") : _T("새 page"));
        EXPECT_EQ(0, dialog.GetFolderPath().CompareNoCase(folder.path));
        EXPECT_EQ(name, dialog.GetFileTitle());
        if (row == 0) {  // some systems add one that is missing
            EXPECT_EQ(_T("cbf"), dialog.GetFileExt());
        }
        EXPECT_EQ(row + 1u, dialog.m_ofn.nFilterIndex);
        EXPECT_EQ(folder.path.GetLength() + 1, dialog.m_ofn.nFileOffset);
        EXPECT_EQ(dialog.GetPathName().ReverseFind('.') + 1, dialog.m_ofn.nFileExtension);
        EXPECT_EQ(dialog.GetFileName(), CString(dialog.m_ofn.lpstrFileTitle));
    }
}

TEST(FileDialog, CanBeCancelled) {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_FILEMUSTEXIST);
    DialogUser user([](HWND window) { ::PostMessage(window, WM_COMMAND, IDCANCEL, 0); });
    EXPECT_EQ(IDCANCEL, dialog.DoModal());
    EXPECT_EQ(1u, user.Shown());
    EXPECT_TRUE(dialog.GetPathName().IsEmpty());
}

}  // namespace
