#include "Supervisor.h"

#include "Loader.h"
#include "Round.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <memory>

namespace {

constexpr uint64_t kRound = 20000;   // inputs of one process
constexpr ULONGLONG kHang = 10000;   // milliseconds for one input, far more than any needs
constexpr ULONGLONG kStart = 60000;  // until the first one: seeds and windows are made
constexpr int kMostFailures = 25;

class Process {
public:
    explicit Process(const std::wstring& arguments) {
        WCHAR program[MAX_PATH];
        ::GetModuleFileName(nullptr, program, MAX_PATH);
        std::wstring line = L'"' + std::wstring(program) + L"\" " + arguments;
        STARTUPINFO startup = {};
        startup.cb = sizeof startup;
        if (!::CreateProcess(program, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                             &m_info))
            throw Fault{"the feeding process cannot be started"};
    }
    ~Process() {
        ::CloseHandle(m_info.hThread);
        ::CloseHandle(m_info.hProcess);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    bool Ends(DWORD milliseconds) {
        return ::WaitForSingleObject(m_info.hProcess, milliseconds) == WAIT_OBJECT_0;
    }
    void Kill() {
        ::TerminateProcess(m_info.hProcess, 1);
        ::WaitForSingleObject(m_info.hProcess, 5000);
    }
    DWORD Code() {
        DWORD code = 1;
        ::GetExitCodeProcess(m_info.hProcess, &code);
        return code;
    }

private:
    PROCESS_INFORMATION m_info = {};
};

class Supervisor {
public:
    explicit Supervisor(const Assignment& assignment)
        : m_assignment(assignment), m_name(L"TesselFuzz" + std::to_wstring(::GetCurrentProcessId())) {
        m_mapping = ::CreateFileMapping(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0, sizeof(Round),
                                        m_name.c_str());
        m_round = static_cast<Round*>(::MapViewOfFile(m_mapping, FILE_MAP_ALL_ACCESS, 0, 0, 0));
        if (!m_round || Loaders().size() > Round::kMostLoaders)
            throw Fault{"no memory to share"};
        m_round->seed = assignment.seed;
    }
    ~Supervisor() {
        ::UnmapViewOfFile(m_round);
        ::CloseHandle(m_mapping);
    }
    Supervisor(const Supervisor&) = delete;
    Supervisor& operator=(const Supervisor&) = delete;

    int Run() {
        const ULONGLONG start = ::GetTickCount64();
        const auto end = static_cast<ULONGLONG>(m_assignment.minutes * 60000);
        for (uint64_t given = 0; m_failures < kMostFailures;) {
            if (end ? ::GetTickCount64() - start >= end : given >= m_assignment.inputs)
                break;
            const uint64_t size = end ? kRound : std::min(kRound, m_assignment.inputs - given);
            Assign(size);
            FeedRound();
            given += size;
        }
        Report(static_cast<double>(::GetTickCount64() - start) / 1000);
        return m_failures == 0 ? 0 : 1;
    }

private:
    bool IsMeant(const Loader& loader) const {
        return m_assignment.only.empty() || m_assignment.only == loader.name;
    }

    // Divides the inputs of a round among the loaders by their shares.
    void Assign(uint64_t size) {
        uint64_t all = 0, given = 0, before = 0;
        for (const Loader& loader : Loaders())
            all += IsMeant(loader) ? loader.share : 0;
        for (size_t i = 0; i < Loaders().size(); ++i) {
            given += IsMeant(Loaders()[i]) ? Loaders()[i].share : 0;
            const uint64_t until = all ? size * given / all : 0;
            m_round->loaders[i].end += until - before;
            before = until;
        }
    }

    void FeedRound() {
        bool whole = false;
        while (!whole && m_failures < kMostFailures) {
            m_round->fault[0] = 0;
            Process process(L"--feed " + m_name);
            const bool hangs = !WaitFor(process);
            whole = !hangs && process.Code() == 0 && IsFinished();
            if (!whole)
                Keep(hangs ? "hang" : m_round->fault[0] ? m_round->fault : CodeText(process.Code()));
        }
    }

    bool IsFinished() const {
        return std::all_of(std::begin(m_round->loaders), std::end(m_round->loaders),
                           [](const Round::Progress& progress) { return progress.next == progress.end; });
    }

    // False when it hangs.
    bool WaitFor(Process& process) {
        const LONG64 first = m_round->begun;
        LONG64 seen = first;
        ULONGLONG moved = ::GetTickCount64();
        while (!process.Ends(100)) {
            const ULONGLONG now = ::GetTickCount64();
            if (m_round->begun != seen) {
                seen = m_round->begun;
                moved = now;
            } else if (now - moved > (seen == first ? kStart : kHang)) {
                process.Kill();
                return false;
            }
        }
        return true;
    }

    static std::string CodeText(DWORD code) {
        char text[64];
        std::snprintf(text, sizeof text, "the process ended with code %08lx", code);
        return text;
    }

    // Writes the input that failed to a file, and goes on behind it.
    void Keep(const std::string& what) {
        const Loader& loader = Loaders()[m_round->current];
        Round::Progress& progress = m_round->loaders[m_round->current];
        const std::string name = m_assignment.folder + "\\" + loader.name + "-" +
                                 std::to_string(m_assignment.seed) + "-" + std::to_string(progress.next) +
                                 ".bin";
        ::CreateDirectoryA(m_assignment.folder.c_str(), nullptr);
        const std::unique_ptr<FILE, int (*)(FILE*)> file(std::fopen(name.c_str(), "wb"), &std::fclose);
        if (file)
            std::fwrite(m_round->input, 1, m_round->inputSize, file.get());
        std::printf("FAILED %s, input %llu (%lu bytes): %s\n  replay: Fuzz.exe --replay %s %s\n",
                    loader.name.c_str(), static_cast<unsigned long long>(progress.next),
                    static_cast<unsigned long>(m_round->inputSize), what.c_str(), loader.name.c_str(),
                    name.c_str());
        std::fflush(stdout);
        ++m_failures;
        ++progress.next;
    }

    void Report(double seconds) const {
        uint64_t tried = 0;
        std::printf("%-20s %5s %10s %10s %10s\n", "loader", "seeds", "tried", "loaded", "refused");
        for (size_t i = 0; i < Loaders().size(); ++i) {
            const Round::Progress& progress = m_round->loaders[i];
            if (progress.next == 0)
                continue;
            std::printf("%-20s %5zu %10llu %10llu %10llu\n", Loaders()[i].name.c_str(),
                        Loaders()[i].seeds.size(), static_cast<unsigned long long>(progress.next),
                        static_cast<unsigned long long>(progress.loaded),
                        static_cast<unsigned long long>(progress.refused));
            tried += progress.next;
        }
        std::printf("seed %llu: %llu inputs in %.1f s, %.0f a second, %d failed\n",
                    static_cast<unsigned long long>(m_assignment.seed),
                    static_cast<unsigned long long>(tried), seconds, static_cast<double>(tried) / seconds,
                    m_failures);
    }

    const Assignment m_assignment;
    std::wstring m_name;
    HANDLE m_mapping = nullptr;
    Round* m_round = nullptr;
    int m_failures = 0;
};

}  // namespace

int Supervise(const Assignment& assignment) {
    return Supervisor(assignment).Run();
}

DWORD RunSelf(const std::wstring& arguments, DWORD milliseconds) {
    Process process(arguments);
    if (!process.Ends(milliseconds))
        process.Kill();
    return process.Code();
}
