// Answers the message boxes that the thread shows while it lives, and keeps what they said.
#pragma once

#include <afxwin.h>

#include <functional>
#include <vector>

class MessageBoxAnswerer {
public:
    explicit MessageBoxAnswerer(int answer = IDOK) : m_answer(answer), m_outer(s_current) {
        s_current = this;
        m_hook = ::SetWindowsHookEx(WH_CBT, &OnCbt, nullptr, ::GetCurrentThreadId());
    }
    ~MessageBoxAnswerer() {
        ::UnhookWindowsHookEx(m_hook);
        s_current = m_outer;
    }

    std::function<void()> onBox;  // called while a box is open
    std::vector<CString> captions;
    std::vector<CString> texts;

private:
    static LRESULT CALLBACK OnCbt(int code, WPARAM wParam, LPARAM lParam) {
        const HWND hwnd = reinterpret_cast<HWND>(wParam);
        wchar_t name[16] = {};
        if (code == HCBT_ACTIVATE && ::GetClassName(hwnd, name, 16) && CString(name) == L"#32770")
            s_current->Answer(hwnd);
        return ::CallNextHookEx(nullptr, code, wParam, lParam);
    }

    void Answer(HWND box) {
        wchar_t text[1024] = {};
        ::GetWindowText(box, text, 1024);
        captions.emplace_back(text);
        text[0] = 0;
        for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
            wchar_t name[16] = {};
            ::GetClassName(child, name, 16);
            if (CString(name).CompareNoCase(L"Static") == 0 && ::GetWindowTextLength(child) > 0)
                ::GetWindowText(child, text, 1024);
        }
        texts.emplace_back(text);
        if (onBox)
            onBox();
        ::PostMessage(box, WM_COMMAND, m_answer, 0);
    }

    static inline MessageBoxAnswerer* s_current = nullptr;
    int m_answer;
    MessageBoxAnswerer* m_outer;
    HHOOK m_hook = nullptr;
};
