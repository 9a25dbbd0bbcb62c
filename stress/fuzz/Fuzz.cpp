// Feeds hostile bytes to everything that reads bytes.
//
//   Fuzz [--inputs N | --minutes M] [--seed S] [--only LOADER] [--keep FOLDER]
//   Fuzz --replay LOADER FILE     one input again, in this process
//   Fuzz --self-test              whether faults of memory are seen
//   Fuzz --list                   the loaders
#include "GuardHeap.h"
#include "Loader.h"
#include "Round.h"
#include "SelfTest.h"
#include "Supervisor.h"

#include <cstdio>
#include <fstream>
#include <iterator>

namespace {

constexpr uint64_t kInputs = 20000;

int FeedFor(const std::wstring& mapping) {
    HANDLE memory = ::OpenFileMapping(FILE_MAP_ALL_ACCESS, FALSE, mapping.c_str());
    auto* round =
        memory ? static_cast<Round*>(::MapViewOfFile(memory, FILE_MAP_ALL_ACCESS, 0, 0, 0)) : nullptr;
    if (!round)
        return 2;
    DescribeCrashes(*round);
    return FeedRound(*round);
}

int Replay(const std::string& name, const char* path) {
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        std::printf("%s cannot be read\n", path);
        return 2;
    }
    const Bytes input{std::istreambuf_iterator<char>(file), {}};
    for (const Loader& loader : Loaders()) {
        if (loader.name != name)
            continue;
        try {
            std::printf("%s\n", Feed(loader, input, true) ? "loaded" : "refused");
            return 0;
        } catch (const Fault& fault) {
            std::printf("FAILED: %s\n", fault.what.c_str());
            return 1;
        }
    }
    std::printf("there is no loader %s\n", name.c_str());
    return 2;
}

int List() {
    for (const Loader& loader : Loaders())
        std::printf("%s\n", loader.name.c_str());
    return 0;
}

// Processes that crash on purpose must not start a debugger.
int Commit(int fault) {
    ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX);
    ::SetUnhandledExceptionFilter([](EXCEPTION_POINTERS* crash) -> LONG {
        ::TerminateProcess(::GetCurrentProcess(), crash->ExceptionRecord->ExceptionCode);
        return EXCEPTION_EXECUTE_HANDLER;
    });
    return CommitFault(fault);
}

int Run(int argc, char** argv) {
    Assignment assignment;
    assignment.inputs = kInputs;
    assignment.folder = "fuzz";
    for (int i = 1; i < argc; ++i) {
        const std::string option = argv[i];
        const bool has = i + 1 < argc;
        if (option == "--self-test")
            return TestHeap();
        if (option == "--list")
            return List();
        if (option == "--commit" && has)
            return Commit(std::atoi(argv[i + 1]));
        if (option == "--feed" && has)
            return FeedFor(std::wstring(argv[i + 1], argv[i + 1] + std::strlen(argv[i + 1])));
        if (option == "--replay" && i + 2 < argc)
            return Replay(argv[i + 1], argv[i + 2]);
        if (!has) {
            std::printf("what %s means is not known\n", option.c_str());
            return 2;
        }
        const char* value = argv[++i];
        if (option == "--inputs")
            assignment.inputs = std::strtoull(value, nullptr, 10);
        else if (option == "--minutes")
            assignment.minutes = std::strtod(value, nullptr);
        else if (option == "--seed")
            assignment.seed = std::strtoull(value, nullptr, 10);
        else if (option == "--only")
            assignment.only = value;
        else if (option == "--keep")
            assignment.folder = value;
    }
    return Supervise(assignment);
}

}  // namespace

int main(int argc, char** argv) {
    guard::Install();
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_HIDE))
        return 2;
    try {
        return Run(argc, argv);
    } catch (const Fault& fault) {
        std::printf("%s\n", fault.what.c_str());
        return 2;
    }
}
