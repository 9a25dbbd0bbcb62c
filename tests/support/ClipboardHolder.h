// A clipboard that another process holds open. Included once in a test program, which runs itself as that
// process.
#pragma once

#include <afxwin.h>
#include <gtest/gtest.h>

namespace clipboard_holder {

constexpr DWORD kPatience = 30000;
constexpr wchar_t kHeld[] = L"TesselClipboardHeld";
constexpr wchar_t kEnd[] = L"TesselClipboardEnd";

TEST(ClipboardHolder, DISABLED_Hold) {
    const HANDLE held = ::OpenEvent(EVENT_MODIFY_STATE, FALSE, kHeld);
    const HANDLE end = ::OpenEvent(SYNCHRONIZE, FALSE, kEnd);
    ASSERT_TRUE(held && end && ::OpenClipboard(nullptr));
    ::SetEvent(held);
    ::WaitForSingleObject(end, kPatience);
    ::CloseClipboard();
}

}  // namespace clipboard_holder

/// Holds the clipboard while it lives.
class ClipboardHolder {
public:
    ClipboardHolder() {
        using namespace clipboard_holder;
        m_held = ::CreateEvent(nullptr, TRUE, FALSE, kHeld);
        m_end = ::CreateEvent(nullptr, TRUE, FALSE, kEnd);
        wchar_t program[MAX_PATH];
        ::GetModuleFileName(nullptr, program, MAX_PATH);
        CString command;
        command.Format(L"\"%s\" --gtest_also_run_disabled_tests --gtest_filter=ClipboardHolder.*", program);
        STARTUPINFO start = {};
        start.cb = sizeof start;
        if (!::CreateProcess(program, command.GetBuffer(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                             &start, &m_process))
            ADD_FAILURE() << "no second process: " << ::GetLastError();
        const HANDLE either[] = {m_held, m_process.hProcess};
        EXPECT_EQ(WAIT_OBJECT_0, ::WaitForMultipleObjects(2, either, FALSE, kPatience))
            << "the clipboard is not held";
    }
    ~ClipboardHolder() {
        ::SetEvent(m_end);
        ::WaitForSingleObject(m_process.hProcess, clipboard_holder::kPatience);
        for (HANDLE handle : {m_held, m_end, m_process.hThread, m_process.hProcess})
            ::CloseHandle(handle);
    }
    ClipboardHolder(const ClipboardHolder&) = delete;
    ClipboardHolder& operator=(const ClipboardHolder&) = delete;

private:
    HANDLE m_held, m_end;
    PROCESS_INFORMATION m_process = {};
};
