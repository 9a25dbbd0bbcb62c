#include "Round.h"

#include "GuardHeap.h"
#include "Loader.h"
#include "Scratch.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <typeinfo>

namespace {

// What a load may take: the objects of a small archive are larger than their bytes, and a page has a window.
constexpr size_t kBytesPerByte = 64;
constexpr size_t kBytesBesides = size_t(4) << 20;

Round* crashRound = nullptr;

std::string NameOf(const void* address) {
    HMODULE module = nullptr;
    char path[MAX_PATH] = "?", text[MAX_PATH + 32];
    ::GetModuleHandleExA(
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
        static_cast<LPCSTR>(address), &module);
    if (module)
        ::GetModuleFileNameA(module, path, MAX_PATH);
    const char* name = std::strrchr(path, '\\');
    std::snprintf(text, sizeof text, "%s+%llx", name ? name + 1 : path,
                  static_cast<unsigned long long>(static_cast<const char*>(address) -
                                                  reinterpret_cast<const char*>(module)));
    return text;
}

LONG WINAPI OnCrash(EXCEPTION_POINTERS* crash) {
    const EXCEPTION_RECORD& record = *crash->ExceptionRecord;
    std::snprintf(crashRound->fault, sizeof crashRound->fault, "crash %08lx at %s", record.ExceptionCode,
                  NameOf(record.ExceptionAddress).c_str());
    ::TerminateProcess(::GetCurrentProcess(), record.ExceptionCode);
    return EXCEPTION_EXECUTE_HANDLER;
}

bool FeedOnce(const Loader& loader, const Bytes& input, bool use) {
    guard::WatchPeak();
    bool loaded = false;
    try {
        loaded = loader.load(input, use);
    } catch (CException* exception) {
        const std::string name = exception->GetRuntimeClass()->m_lpszClassName;
        exception->Delete();
        throw Fault{name + " escapes"};
    } catch (const std::exception& exception) {
        throw Fault{std::string(typeid(exception).name()) + " escapes: " + exception.what()};
    }
    Require(guard::Peak() <= input.size() * kBytesPerByte + kBytesBesides,
            "much more memory than the input justifies");
    return loaded;
}

}  // namespace

void DescribeCrashes(Round& round) {
    crashRound = &round;
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    ::SetUnhandledExceptionFilter(&OnCrash);
}

bool Feed(const Loader& loader, const Bytes& input, bool use) {
    size_t blocks = guard::Live().blocks;
    const bool loaded = FeedOnce(loader, input, use);
    // What is made once and kept does not grow again and again.
    for (int again = 0; guard::Live().blocks > blocks; ++again) {
        Require(again < 4, "memory leaks");
        blocks = guard::Live().blocks;
        FeedOnce(loader, input, use);
    }
    return loaded;
}

int FeedRound(Round& round) {
    const std::vector<Loader>& loaders = Loaders();
    Bytes input;
    for (size_t i = 0; i < loaders.size(); ++i) {
        Round::Progress& progress = round.loaders[i];
        round.current = static_cast<UINT32>(i);
        for (; progress.next < progress.end; ++progress.next) {
            Random random(round.seed, loaders[i].name, progress.next);
            input = Mutate(loaders[i].seeds, random);
            if (loaders[i].seal)
                loaders[i].seal(input);
            round.inputSize = static_cast<UINT32>(input.size());
            std::copy(input.begin(), input.end(), round.input);
            round.begun = round.begun + 1;
            try {
                ++(Feed(loaders[i], input, IsUsed(progress.next)) ? progress.loaded : progress.refused);
            } catch (const Fault& fault) {
                std::snprintf(round.fault, sizeof round.fault, "%s", fault.what.c_str());
                return 1;
            }
        }
    }
    DeleteScratch();
    return 0;
}
