// Start-up, shutdown and memory.
#include "gdiplus/Handles.h"
#include "gdiplus/Typeface.h"

#include <atomic>
#include <mutex>
#include <set>

namespace flat {

namespace {

std::atomic<int> startups{0};
std::mutex tokenMutex;
ULONG_PTR lastToken = 0;
std::set<ULONG_PTR>& Tokens() {
    static std::set<ULONG_PTR>& tokens = *new std::set<ULONG_PTR>;
    return tokens;
}

}  // namespace

bool IsStarted() {
    return startups.load(std::memory_order_relaxed) > 0;
}

}  // namespace flat

using namespace flat;

extern "C" {

namespace Gdiplus {

GpStatus WINGDIPAPI GdiplusNotificationHook(ULONG_PTR* token) {
    return Answer([&] { Out(token) = 1; });
}

VOID WINGDIPAPI GdiplusNotificationUnhook(ULONG_PTR) {}

GpStatus WINGDIPAPI GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                                   GdiplusStartupOutput* output) {
    return Answer([&] {
        Require(token && input);
        Require(input->GdiplusVersion == 1 || input->GdiplusVersion == 2, UnsupportedGdiplusVersion);
        // Without a thread of its own the caller is to call the hooks, which have nothing to do here.
        Require(output || !input->SuppressBackgroundThread);
        const std::lock_guard lock(tokenMutex);
        *token = ++lastToken;
        Tokens().insert(lastToken);
        ++startups;
        if (output) {
            output->NotificationHook = input->SuppressBackgroundThread ? GdiplusNotificationHook : nullptr;
            output->NotificationUnhook =
                input->SuppressBackgroundThread ? GdiplusNotificationUnhook : nullptr;
        }
    });
}

VOID WINGDIPAPI GdiplusShutdown(ULONG_PTR token) {
    const std::lock_guard lock(tokenMutex);
    if (Tokens().erase(token) != 0 && --startups == 0)
        ReleaseTypefaces();
}

namespace DllExports {

VOID* WINGDIPAPI GdipAlloc(size_t size) {
    return HeapAlloc(GetProcessHeap(), 0, size);
}

VOID WINGDIPAPI GdipFree(VOID* block) {
    if (block)
        HeapFree(GetProcessHeap(), 0, block);
}

}  // namespace DllExports

}  // namespace Gdiplus

}  // extern "C"

BOOL WINAPI DllMain(HINSTANCE, DWORD, LPVOID) {
    return TRUE;
}
