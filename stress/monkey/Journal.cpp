#include "stress/monkey/Journal.h"

#include <windows.h>

#include <array>
#include <atomic>
#include <csignal>
#include <cstdarg>
#include <cstdio>

namespace monkey {

namespace {

constexpr DWORD kPause = 5000;  // milliseconds
constexpr int kPauses = 12;     // after which nothing is expected any more
constexpr int kHung = 2;
constexpr size_t kKept = 60;

const char* g_subject = "";
std::uint64_t g_seed = 0;
std::uint64_t g_burst = 0;
std::atomic<std::uint64_t> g_sent = 0;
std::array<char[160], kKept> g_last;

LONG WINAPI OnCrash(EXCEPTION_POINTERS* crash) {
    char what[80];
    std::snprintf(what, sizeof what, "crash: exception %08lx at %p",
                  static_cast<unsigned long>(crash->ExceptionRecord->ExceptionCode),
                  crash->ExceptionRecord->ExceptionAddress);
    Report(what);
    return EXCEPTION_CONTINUE_SEARCH;
}

void OnAbort(int) {
    Report("the program aborted itself: a failed assertion or an exception that nobody caught");
}

BOOL CALLBACK PressEscape(HWND window, LPARAM) {
    ::PostMessage(window, WM_KEYDOWN, VK_ESCAPE, 0);
    return TRUE;
}

// A menu or a drag of the system may wait for the user, who would leave it with Escape.
DWORD WINAPI Watch(void* thread) {
    int pauses = 0;
    for (std::uint64_t seen = g_sent;; seen = g_sent) {
        ::Sleep(kPause);
        pauses = seen == g_sent ? pauses + 1 : 0;
        if (pauses > kPauses) {
            Report("a message is not answered");
            ::TerminateProcess(::GetCurrentProcess(), kHung);
        }
        if (pauses > 0)
            ::EnumThreadWindows(static_cast<DWORD>(reinterpret_cast<ULONG_PTR>(thread)), &PressEscape, 0);
    }
}

}  // namespace

void StartJournal(const char* subject, std::uint64_t seed) {
    g_subject = subject;
    g_seed = seed;
    ::SetUnhandledExceptionFilter(&OnCrash);
    std::signal(SIGABRT, &OnAbort);
    ::CloseHandle(::CreateThread(nullptr, 0, &Watch,
                                 reinterpret_cast<void*>(ULONG_PTR{::GetCurrentThreadId()}), 0, nullptr));
}

void Note(const char* format, ...) {
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(g_last[g_sent % kKept], sizeof g_last[0], format, arguments);
    va_end(arguments);
    ++g_sent;
}

void NoteBurst(std::uint64_t burst) {
    g_burst = burst;
}

std::uint64_t MessagesSent() {
    return g_sent;
}

void Report(const std::string& what) {
    const std::uint64_t sent = g_sent;
    std::printf("FAILED: %s\n  %s, seed %llu, burst %llu, message %llu; the last messages:\n", what.c_str(),
                g_subject, g_seed, g_burst, sent);
    for (std::uint64_t i = sent > kKept ? sent - kKept : 0; i < sent; ++i)
        std::printf("    %llu  %s\n", i + 1, g_last[i % kKept]);
    std::printf("  replay: Monkey.exe --%s --seed %llu --messages %llu\n", g_subject, g_seed, sent);
    std::fflush(stdout);
}

}  // namespace monkey
