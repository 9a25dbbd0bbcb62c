#include <afxwin.h>
#include <gtest/gtest.h>

#include "WindowSupport.h"

#include <malloc.h>

#include <new>
#include <thread>
#include <vector>

namespace {

/// An edit control that sees its messages from the first one on.
class WatchedEdit : public CEdit {
public:
    bool wasCreated = false;
    CString textAtCreation;
    bool* isDeleted = nullptr;
    std::vector<UINT> keys;

protected:
    int OnCreate(LPCREATESTRUCT cs) {
        wasCreated = CEdit::OnCreate(cs) != -1;
        return wasCreated ? 0 : -1;
    }
    BOOL OnNcCreate(LPCREATESTRUCT cs) {
        textAtCreation = cs->lpszName;
        return CEdit::OnNcCreate(cs);
    }
    void OnChar(UINT key, UINT repeat, UINT flags) {
        keys.push_back(key);
        if (key == VK_ESCAPE)
            DestroyWindow();
        else
            CEdit::OnChar(key, repeat, flags);
    }
    void PostNcDestroy() override {
        if (isDeleted) {
            *isDeleted = true;
            delete this;
        }
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(WatchedEdit, CEdit)
    ON_WM_CREATE()
    ON_WM_NCCREATE()
    ON_WM_CHAR()
END_MESSAGE_MAP()

TEST(WindowCreation, BuiltInClassReportsItsCreationToTheObject) {
    CWnd parent;
    ASSERT_TRUE(CreateHidden(parent));
    WatchedEdit edit;
    ASSERT_TRUE(edit.CreateEx(0, _T("EDIT"), _T("한글"), WS_CHILD, CRect(1, 2, 90, 30), &parent, 1010));
    EXPECT_TRUE(edit.wasCreated);
    EXPECT_EQ(CString(_T("한글")), edit.textAtCreation);
    EXPECT_EQ(&edit, parent.GetDlgItem(1010));
    edit.SendMessage(WM_CHAR, 'A', 1);
    CString text;
    edit.GetWindowText(text);
    EXPECT_EQ(3, text.GetLength()) << "the control itself handled the key as well";
}

TEST(WindowCreation, ObjectMayDeleteItselfInItsOwnHandler) {
    CWnd parent;
    ASSERT_TRUE(CreateHidden(parent));
    bool isDeleted = false;
    auto* edit = new WatchedEdit;
    edit->isDeleted = &isDeleted;
    ASSERT_TRUE(edit->Create(WS_CHILD, CRect(0, 0, 50, 20), &parent, 5));
    HWND window = edit->m_hWnd;
    ::SendMessage(window, WM_CHAR, VK_ESCAPE, 1);
    EXPECT_TRUE(isDeleted);
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window));
}

/// Refuses or fails in WM_CREATE in the way it is told.
class Refusing : public CWnd {
public:
    int* ended;
    bool throws;
    Refusing(int* counter, bool throwing) : ended(counter), throws(throwing) {}

protected:
    int OnCreate(LPCREATESTRUCT) {
        if (throws)
            AfxThrowMemoryException();
        return -1;
    }
    void PostNcDestroy() override {
        ++*ended;
        delete this;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Refusing, CWnd)
    ON_WM_CREATE()
END_MESSAGE_MAP()

TEST(WindowCreation, RefusedWindowEndsItsObjectOnce) {
    int ended = 0;
    EXPECT_FALSE(CreateHidden(*new Refusing(&ended, false)));
    EXPECT_EQ(1, ended);
    EXPECT_FALSE(CreateHidden(*new Refusing(&ended, true)));
    EXPECT_EQ(2, ended);
    auto* unknownClass = new Refusing(&ended, false);
    EXPECT_FALSE(unknownClass->CreateEx(0, _T("no such class"), _T(""), 0, 0, 0, 1, 1, nullptr, nullptr));
    EXPECT_EQ(3, ended);
    CWnd after;
    EXPECT_TRUE(CreateHidden(after)) << "a failed creation leaves no hook behind";
}

TEST(WindowLifetime, ObjectThatGoesTakesItsWindowAlong) {
    HWND window;
    {
        CWnd object;
        ASSERT_TRUE(CreateHidden(object));
        window = object.m_hWnd;
        EXPECT_EQ(&object, CWnd::FromHandle(window));
    }
    EXPECT_FALSE(::IsWindow(window));
    EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
}

/// Calls a member as hosts do, who may have no object.
template <class Object, class Handle>
__attribute__((noinline, no_sanitize("undefined"))) Handle On(const Object* object,
                                                              Handle (Object::*member)() const) {
    return (object->*member)();
}

template <class Object, class Handle>
Handle OnNone(Handle (Object::*member)() const) {
    static const Object* none;
    return On(none, member);
}

TEST(NullObjects, HaveNoHandle) {
    EXPECT_EQ(nullptr, OnNone(&CWnd::GetSafeHwnd));
    EXPECT_EQ(nullptr, OnNone(&CWnd::operator HWND));
    EXPECT_EQ(nullptr, OnNone(&CMenu::GetSafeHmenu));
    EXPECT_EQ(nullptr, OnNone(&CMenu::operator HMENU));
    EXPECT_EQ(nullptr, OnNone(&CDC::GetSafeHdc));
    EXPECT_EQ(nullptr, OnNone(&CDC::operator HDC));
    EXPECT_EQ(nullptr, OnNone(&CGdiObject::GetSafeHandle));
    EXPECT_EQ(nullptr, OnNone(&CGdiObject::operator HGDIOBJ));
    EXPECT_EQ(nullptr, OnNone(&CPen::operator HPEN));
    EXPECT_EQ(nullptr, OnNone(&CBrush::operator HBRUSH));
    EXPECT_EQ(nullptr, OnNone(&CFont::operator HFONT));
    EXPECT_EQ(nullptr, OnNone(&CBitmap::operator HBITMAP));
    EXPECT_EQ(nullptr, OnNone(&CRgn::operator HRGN));
    CWnd window;
    ASSERT_TRUE(CreateHidden(window));
    EXPECT_TRUE(window.m_hWnd == window.GetSafeHwnd() && window.m_hWnd == static_cast<HWND>(window));
}

TEST(WindowLifetime, DestroyingTheParentEmptiesTheChildObject) {
    CWnd parent;
    CEdit child;
    ASSERT_TRUE(CreateHidden(parent));
    ASSERT_TRUE(child.Create(WS_CHILD, CRect(0, 0, 9, 9), &parent, 3));
    parent.DestroyWindow();
    EXPECT_EQ(nullptr, child.m_hWnd);
    EXPECT_EQ(nullptr, parent.m_hWnd);
    EXPECT_FALSE(child.DestroyWindow());
}

TEST(WindowLifetime, TemporaryObjectOwnsNothing) {
    HWND window =
        ::CreateWindow(_T("STATIC"), _T("t"), WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    CWnd* temporary = CWnd::FromHandle(window);
    EXPECT_EQ(temporary, CWnd::FromHandle(window));
    EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(window));
    CWnd::DeleteTempMap();
    EXPECT_TRUE(::IsWindow(window));
    ::DestroyWindow(window);
}

/// Blocks in use on the C runtime's heap, which all the DLLs share.
int UsedBlocks() {
    int used = 0;
    _HEAPINFO entry{};
    while (::_heapwalk(&entry) == _HEAPOK)
        used += entry._useflag == _USEDENTRY;
    return used;
}

TEST(WindowLifetime, EndedThreadsLeaveNothingBehind) {
    HWND desktop = ::GetDesktopWindow();
    auto runThreads = [desktop](int count) {
        for (int i = 0; i < count; ++i)
            std::thread([desktop] { EXPECT_NE(nullptr, CWnd::FromHandle(desktop)); }).join();
    };
    runThreads(5);
    const int before = UsedBlocks();
    ASSERT_GT(before, 100) << "the walk sees the heap";
    runThreads(20);
    EXPECT_LT(UsedBlocks(), before + 20) << "a state for every thread stays behind";
}

TEST(Subclassing, TakesOverAndGivesBack) {
    HWND window =
        ::CreateWindow(_T("EDIT"), _T("t"), WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, nullptr, nullptr);
    LONG_PTR before = ::GetWindowLongPtr(window, GWLP_WNDPROC);
    WatchedEdit edit;
    ASSERT_TRUE(edit.SubclassWindow(window));
    WatchedEdit second;
    EXPECT_FALSE(second.SubclassWindow(window)) << "a window has one object";
    ::SendMessage(window, WM_CHAR, 'x', 1);
    EXPECT_EQ(1u, edit.keys.size());
    EXPECT_EQ(window, edit.UnsubclassWindow());
    EXPECT_EQ(before, ::GetWindowLongPtr(window, GWLP_WNDPROC));
    ::SendMessage(window, WM_CHAR, 'x', 1);
    EXPECT_EQ(1u, edit.keys.size());
    ::DestroyWindow(window);
}

/// Throws what it is told to in the message it is told to.
class Thrower : public CWnd {
public:
    static int alive;
    int paints = 0;

    struct Counted : CSimpleException {
        Counted() { ++alive; }
        ~Counted() override { --alive; }
    };

protected:
    LRESULT OnThrow(WPARAM isMemory, LPARAM) {
        if (isMemory)
            throw std::bad_alloc();
        throw new Counted;
    }
    void OnPaint() {
        ++paints;
        throw new Counted;
    }
    DECLARE_MESSAGE_MAP()
};

int Thrower::alive = 0;

BEGIN_MESSAGE_MAP(Thrower, CWnd)
    ON_MESSAGE(WM_APP, &Thrower::OnThrow)
    ON_WM_PAINT()
END_MESSAGE_MAP()

TEST(HandlerException, EndsAtTheWindowProcedure) {
    Thrower window;
    ASSERT_TRUE(CreateHidden(window));
    EXPECT_EQ(0, window.SendMessage(WM_APP));
    EXPECT_EQ(0, window.SendMessage(WM_APP, 1));
    EXPECT_EQ(0, Thrower::alive);
    window.ShowWindow(SW_SHOWNA);
    window.Invalidate();
    window.UpdateWindow();
    EXPECT_GE(window.paints, 1);
    EXPECT_FALSE(window.GetUpdateRect(nullptr)) << "a failing paint must not come again for ever";
    EXPECT_EQ(0, Thrower::alive);
}

/// A program that keeps what it would have shown.
class QuietApp : public CWinApp {
public:
    QuietApp() : CWinApp(_T("Quiet")) {}
    std::vector<CString> shown;

    int DoMessageBox(LPCTSTR text, UINT, UINT) override {
        shown.emplace_back(text);
        return IDOK;
    }
};

TEST(HandlerException, ProgramShowsItsText) {
    QuietApp app;
    Thrower window;
    ASSERT_TRUE(CreateHidden(window));
    window.SendMessage(WM_APP, 1);
    ASSERT_EQ(1u, app.shown.size());
    TCHAR expected[256];
    CMemoryException(FALSE).GetErrorMessage(expected, 256);
    EXPECT_EQ(CString(expected), app.shown[0]);
    AfxMessageBox(_T("own"));
    EXPECT_EQ(CString(_T("own")), app.shown[1]);
}

TEST(WindowMembers, StylesChangeOnce) {
    struct Window : CWnd {
        std::vector<UINT> placed;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            if (message == WM_WINDOWPOSCHANGING)
                placed.push_back(reinterpret_cast<WINDOWPOS*>(lParam)->flags);
            return CWnd::WindowProc(message, wParam, lParam);
        }
    } window;
    ASSERT_TRUE(CreateHidden(window));
    window.placed.clear();
    EXPECT_TRUE(window.ModifyStyle(WS_CAPTION, WS_TABSTOP));
    EXPECT_EQ(DWORD(WS_TABSTOP), window.GetStyle() & (WS_CAPTION | WS_TABSTOP));
    EXPECT_FALSE(window.ModifyStyle(WS_CAPTION, WS_TABSTOP, SWP_FRAMECHANGED));
    EXPECT_TRUE(window.placed.empty());
    EXPECT_TRUE(window.ModifyStyleEx(0, WS_EX_TOOLWINDOW, SWP_FRAMECHANGED));
    EXPECT_TRUE(window.GetExStyle() & WS_EX_TOOLWINDOW);
    ASSERT_EQ(1u, window.placed.size());
    EXPECT_EQ(UINT(SWP_NOSIZE | SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED),
              window.placed[0] & 0x3F);
}

/// Counts a message.
struct Counting : CWnd {
    int got = 0;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        got += message == WM_APP + 5 && wParam == 6 && lParam == 7;
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

TEST(WindowMembers, Family) {
    auto* frame = new CFrameWnd;
    ASSERT_TRUE(frame->Create(nullptr, _T("frame")));
    Counting parent, middle, inner, popup;
    ASSERT_TRUE(parent.Create(nullptr, nullptr, WS_VISIBLE, CRect(3, 4, 300, 200), frame, 49));
    ASSERT_TRUE(middle.Create(nullptr, _T("m"), WS_CHILD, CRect(10, 20, 110, 120), &parent, 50));
    ASSERT_TRUE(inner.Create(nullptr, nullptr, WS_CHILD, CRect(5, 6, 25, 36), &middle, 51));
    const HWND foreign = ::CreateWindow(_T("STATIC"), _T("foreign"), WS_CHILD, 0, 0, 1, 1, middle,
                                        reinterpret_cast<HMENU>(52), nullptr, nullptr);
    ASSERT_TRUE(popup.CreateEx(0, AfxRegisterWndClass(0), _T(""), WS_POPUP, 0, 0, 9, 9, parent, nullptr));
    EXPECT_TRUE(inner.GetTopLevelParent() == frame && popup.GetTopLevelParent() == frame);
    EXPECT_TRUE(inner.GetParentFrame() == frame && inner.GetTopLevelFrame() == frame);
    EXPECT_TRUE(frame->GetParentFrame() == nullptr && frame->GetTopLevelFrame() == frame);
    EXPECT_EQ(nullptr, CWnd().GetParentFrame());
    EXPECT_TRUE(frame->GetDescendantWindow(51) == &inner && parent.GetDescendantWindow(50, TRUE) == &middle);
    EXPECT_EQ(foreign, frame->GetDescendantWindow(52)->m_hWnd);
    EXPECT_EQ(nullptr, frame->GetDescendantWindow(52, TRUE));
    EXPECT_EQ(nullptr, frame->GetDescendantWindow(53));
    inner.SetDlgCtrlID(50);
    EXPECT_EQ(&inner, frame->GetDescendantWindow(50)) << "the innermost of several";
    const auto send = [&](BOOL deep, BOOL permanent) {
        middle.got = inner.got = 0;
        parent.SendMessageToDescendants(WM_APP + 5, 6, 7, deep, permanent);
        return middle.got * 10 + inner.got;
    };
    EXPECT_TRUE(send(TRUE, TRUE) == 11 && send(FALSE, TRUE) == 10 && send(TRUE, FALSE) == 11);
    CRect rect;
    inner.GetWindowRect(&rect);
    parent.ScreenToClient(&rect);
    EXPECT_EQ(CRect(15, 26, 35, 56), rect);
    parent.ClientToScreen(&rect);
    CRect back;
    inner.GetWindowRect(&back);
    EXPECT_EQ(back, rect);
    CString text(_T("old"));
    EXPECT_TRUE(parent.GetDlgItemText(50, text) == 1 && text == _T("m"));
    EXPECT_TRUE(parent.GetDlgItemText(99, text) == 0 && text.IsEmpty());
    CMenu menu;
    menu.CreateMenu();
    EXPECT_TRUE(frame->SetMenu(&menu) && frame->GetMenu() == &menu && frame->SetMenu(nullptr));
    EXPECT_EQ(nullptr, frame->GetMenu());
    EXPECT_NE(nullptr, frame->GetSystemMenu(FALSE));
    SCROLLINFO info{}, read{};
    info.fMask = SIF_ALL;
    info.nMax = 90, info.nPage = 11, info.nPos = 33;
    EXPECT_TRUE(parent.SetScrollInfo(SB_VERT, &info) && parent.GetScrollInfo(SB_VERT, &read));
    EXPECT_TRUE(read.nPos == 33 && read.nPage == 11);
    EXPECT_TRUE(parent.GetScrollInfo(SB_VERT, &read, SIF_POS) && read.fMask == SIF_POS);
    CFont font;
    font.CreatePointFont(90, _T("Arial"));
    CStatic label;
    ASSERT_TRUE(label.Create(_T(""), WS_CHILD, CRect(0, 0, 9, 9), &parent));
    label.SetFont(&font);
    EXPECT_EQ(&font, label.GetFont());
    label.SetFont(nullptr);
    EXPECT_EQ(0, label.SendMessage(WM_GETFONT));
    frame->DestroyWindow();
}

TEST(WindowMembers, SelectingTextScrollsThereUnlessToldNotTo) {
    struct Edit : CEdit {
        int scrolls = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
            scrolls += message == EM_SCROLLCARET;
            return CEdit::WindowProc(message, wParam, lParam);
        }
    } edit;
    CWnd parent;
    ASSERT_TRUE(CreateHidden(parent));
    ASSERT_TRUE(edit.Create(WS_CHILD, CRect(0, 0, 80, 30), &parent, 62));
    edit.SetWindowText(_T("abcdef"));
    edit.SetSel(2, 5, TRUE);
    EXPECT_EQ(0, edit.scrolls);
    int start, end;
    edit.GetSel(start, end);
    EXPECT_TRUE(start == 2 && end == 5);
    edit.SetSel(1, 1);
    EXPECT_EQ(1, edit.scrolls);
}

TEST(WaitCursorRequests, GoThroughTheProgram) {
    struct Program : CWinApp {
        std::vector<int> codes;
        void DoWaitCursor(int code) override { codes.push_back(code); }
    } program;
    {
        CWaitCursor wait;
        wait.Restore();
    }
    program.BeginWaitCursor();
    program.RestoreWaitCursor();
    program.EndWaitCursor();
    EXPECT_EQ(std::vector<int>({1, 0, -1, 1, 0, -1}), program.codes);
}

TEST(WindowMembers, CombosAndListsKeepTheirItems) {
    CWnd parent;
    CComboBox combo;
    CListBox list;
    ASSERT_TRUE(CreateHidden(parent));
    ASSERT_TRUE(combo.Create(CBS_DROPDOWNLIST, CRect(0, 0, 90, 200), &parent, 60));
    ASSERT_TRUE(list.Create(0, CRect(0, 40, 90, 90), &parent, 61));
    for (LPCTSTR item : {_T("하나"), _T("two"), _T("")}) {
        combo.AddString(item);
        list.AddString(item);
    }
    CString text;
    combo.GetLBText(0, text);
    EXPECT_EQ(CString(_T("하나")), text);
    list.GetText(1, text);
    EXPECT_EQ(CString(_T("two")), text);
    list.GetText(9, text);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_EQ(1, combo.FindStringExact(-1, _T("two")));
    EXPECT_EQ(3, list.GetCount());
}

}  // namespace
