// Runs beside a GDI+ that cannot start, or none: the library says so and refuses to load, and Studio ends.
#include "support/MessageBoxAnswerer.h"

#include <gtest/gtest.h>

namespace {

constexpr wchar_t kCaption[] = L"Tessel Matrix Software Version 1111";
constexpr DWORD kInitFailed = 0xC0000142;
constexpr DWORD kPatience = 30000;

TEST(NoGdiplus, TheLibrarySaysSoAndRefusesToLoad) {
    for (size_t i = 1; i <= 3; ++i) {
        MessageBoxAnswerer boxes;
        EXPECT_EQ(nullptr, ::LoadLibrary(L"TesselCtrls.dll"));
        EXPECT_EQ(static_cast<DWORD>(ERROR_DLL_INIT_FAILED), ::GetLastError());
        EXPECT_EQ(nullptr, ::GetModuleHandle(L"TesselCtrls.dll"));
        ASSERT_EQ(1u, boxes.texts.size());
        EXPECT_EQ(CString(kCaption), boxes.captions[0]);
        EXPECT_EQ(CString(L"GDI Plus 엔진을 초기화 할수 없습니다. \n\n프로그램을 종료합니다."),
                  boxes.texts[0]);
    }
}

TEST(NoGdiplus, StudioEndsWithTheMessage) {
    STARTUPINFO start = {};
    start.cb = sizeof start;
    PROCESS_INFORMATION studio = {};
    wchar_t command[] = L"Studio.exe";
    ::SetErrorMode(SEM_FAILCRITICALERRORS);
    ASSERT_TRUE(
        ::CreateProcess(nullptr, command, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start, &studio));
    bool told = false;
    const ULONGLONG end = ::GetTickCount64() + kPatience;
    while (::WaitForSingleObject(studio.hProcess, 20) == WAIT_TIMEOUT && ::GetTickCount64() < end) {
        const HWND box = ::FindWindow(L"#32770", kCaption);
        told = told || box;
        if (box)
            ::PostMessage(box, WM_COMMAND, IDOK, 0);
    }
    DWORD code = 0;
    ::GetExitCodeProcess(studio.hProcess, &code);
    ::TerminateProcess(studio.hProcess, 1);  // only one that has not ended
    EXPECT_TRUE(told);
    EXPECT_EQ(kInitFailed, code);
    ::CloseHandle(studio.hThread);
    ::CloseHandle(studio.hProcess);
}

}  // namespace
