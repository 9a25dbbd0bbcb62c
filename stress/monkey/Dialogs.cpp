#include "stress/monkey/Dialogs.h"

#include "stress/monkey/Clock.h"

#include <dlgs.h>

#include <vector>

namespace monkey {

namespace {

constexpr int kPatience = 4;  // answers within one message
constexpr LPCWSTR kFiles[] = {L"a.cbf",       L"b.cbf",       L"c.cbf",  L"broken.cbf",
                              L"missing.cbf", L"picture.bmp", L"out.png"};

CString g_folder;
Random g_random(0);
int g_button = 0;
int g_answers = 0;  // within this message
int g_all = 0;

BOOL CALLBACK CollectButton(HWND child, LPARAM found) {
    WCHAR name[16] = L"";
    ::GetClassName(child, name, 16);
    if (!::lstrcmpi(name, L"Button") && ::IsWindowVisible(child) && ::IsWindowEnabled(child))
        reinterpret_cast<std::vector<int>*>(found)->push_back(::GetDlgCtrlID(child));
    return TRUE;
}

// A message box has buttons, an icon and a text, and nothing else.
bool IsMessageBox(HWND dialog) {
    int others = 0;
    for (HWND child = ::GetWindow(dialog, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
        WCHAR name[16] = L"";
        ::GetClassName(child, name, 16);
        if (::lstrcmpi(name, L"Button") && ::lstrcmpi(name, L"Static"))
            ++others;
    }
    return others == 0;
}

int AnswerOf(HWND dialog) {
    if (g_answers > kPatience)
        return IDCANCEL;
    if (IsMessageBox(dialog)) {
        if (g_button && ::GetDlgItem(dialog, g_button))
            return g_button;
        std::vector<int> buttons;
        ::EnumChildWindows(dialog, &CollectButton, reinterpret_cast<LPARAM>(&buttons));
        return buttons.empty() ? IDCANCEL : g_random.Pick(buttons);
    }
    if (!::GetDlgItem(dialog, cmb13) || g_random.Chance(30))
        return IDCANCEL;
    ::SetDlgItemText(dialog, cmb13, g_folder + L"\\" + g_random.Pick(kFiles));
    return IDOK;
}

// A menu takes keys whatever window they are for; the one it belongs to may go while it is open.
void UseMenu() {
    const HWND window = AfxGetMainWnd()->m_hWnd;
    ++g_all;
    PostDueTimers();
    for (int steps = g_random.Below(12); steps > 0; --steps)
        ::PostMessage(window, WM_KEYDOWN, VK_DOWN, 0);
    if (g_random.Chance(60))
        ::PostMessage(window, WM_KEYDOWN, VK_RETURN, 0);
    for (int level = 0; level < 3; ++level)
        ::PostMessage(window, WM_KEYDOWN, VK_ESCAPE, 0);
}

LRESULT CALLBACK OnActivation(int code, WPARAM wParam, LPARAM lParam) {
    WCHAR name[16] = L"";
    const HWND window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_ACTIVATE && ::GetClassName(window, name, 16) && !::lstrcmp(name, L"#32770")) {
        PostDueTimers();
        ++g_answers;
        ++g_all;
        ::PostMessage(window, WM_COMMAND, AnswerOf(window), 0);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

LRESULT CALLBACK OnMenu(int code, WPARAM wParam, LPARAM lParam) {
    const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
    if (code == HC_ACTION && message.message == WM_ENTERMENULOOP)
        UseMenu();
    // A press on a scroll bar or a frame is followed until the button goes up.
    if (code == HC_ACTION && message.message == WM_NCLBUTTONDOWN)
        ::PostMessage(message.hwnd, WM_LBUTTONUP, 0, message.lParam);
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

DialogAnswerer::DialogAnswerer(const CString& folder) {
    g_folder = folder;
    m_activations = ::SetWindowsHookEx(WH_CBT, &OnActivation, nullptr, ::GetCurrentThreadId());
    m_menus = ::SetWindowsHookEx(WH_CALLWNDPROC, &OnMenu, nullptr, ::GetCurrentThreadId());
}

DialogAnswerer::~DialogAnswerer() {
    ::UnhookWindowsHookEx(m_activations);
    ::UnhookWindowsHookEx(m_menus);
}

int DialogAnswerer::Answered() const {
    return g_all;
}

void SetDialogAnswers(const Random& random, int button) {
    g_random = random;
    g_button = button;
    g_answers = 0;
}

}  // namespace monkey
