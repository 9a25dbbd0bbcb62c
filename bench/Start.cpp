// From starting a program to its first painted window.
#include "bench/Table.h"

#include <afxwin.h>

#include <stdexcept>
#include <string>

namespace bench {

namespace {

constexpr DWORD kPatience = 20000;

CString FolderOfThisProgram() {
    wchar_t path[MAX_PATH];
    ::GetModuleFileName(nullptr, path, MAX_PATH);
    const CString whole(path);
    return whole.Left(whole.ReverseFind(L'\\') + 1);
}

struct Wanted {
    DWORD process;
    HWND found;
};

BOOL CALLBACK FindWindowOf(HWND hwnd, LPARAM wanted) {
    auto* search = reinterpret_cast<Wanted*>(wanted);
    DWORD owner = 0;
    ::GetWindowThreadProcessId(hwnd, &owner);
    if (owner != search->process || !::IsWindowVisible(hwnd) || ::GetWindowTextLength(hwnd) == 0)
        return TRUE;
    search->found = hwnd;
    return FALSE;
}

// The program's window once it is shown, answers and has painted all its parts; null when it does not come.
HWND AwaitPaintedWindow(DWORD process) {
    Wanted wanted = {process, nullptr};
    for (DWORD waited = 0; !wanted.found && waited < kPatience; ++waited) {
        ::EnumWindows(&FindWindowOf, reinterpret_cast<LPARAM>(&wanted));
        if (!wanted.found)
            ::Sleep(1);
    }
    if (wanted.found) {
        ::SendMessageTimeout(wanted.found, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, nullptr);
        ::RedrawWindow(wanted.found, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
    }
    return wanted.found;
}

double SecondsToStart(CString command) {
    STARTUPINFO startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    HWND window = nullptr;
    const double seconds = Seconds([&] {
        if (::CreateProcess(nullptr, command.GetBuffer(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                            &startup, &process))
            window = AwaitPaintedWindow(process.dwProcessId);
    });
    command.ReleaseBuffer();
    if (!process.hProcess)
        throw std::runtime_error("a program whose start is measured does not start");
    ::PostMessage(window, WM_CLOSE, 0, 0);
    if (::WaitForSingleObject(process.hProcess, kPatience) != WAIT_OBJECT_0)
        ::TerminateProcess(process.hProcess, 1);
    ::CloseHandle(process.hThread);
    ::CloseHandle(process.hProcess);
    return seconds;
}

class EmptyWindow : public CWnd {
    void PostNcDestroy() override { ::PostQuitMessage(0); }
};

}  // namespace

int ShowEmptyWindow() {
    EmptyWindow window;
    window.CreateEx(0, AfxRegisterWndClass(0), L"empty", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 1280, 820,
                    nullptr, nullptr);
    window.UpdateWindow();
    MSG message;
    while (::GetMessage(&message, nullptr, 0, 0) > 0)
        ::DispatchMessage(&message);
    return 0;
}

void MeasureStart(std::vector<Line>& lines) {
    const CString folder = FolderOfThisProgram();
    std::vector<double> studio;
    std::vector<double> empty;
    for (int round = 0; round < 4; ++round) {
        studio.push_back(SecondsToStart(L"\"" + folder + L"Studio.exe\" --demo"));
        empty.push_back(SecondsToStart(L"\"" + folder + L"Bench.exe\" empty"));
    }
    studio.erase(studio.begin());
    empty.erase(empty.begin());
    lines.push_back({"start of Studio with its demo project, over an empty window's",
                     Median(studio) - Median(empty), "s", 0.5, false,
                     std::to_string(static_cast<int>(Median(studio) * 1e3)) + " ms against " +
                         std::to_string(static_cast<int>(Median(empty) * 1e3)) + " ms"});
}

}  // namespace bench
