// Sends messages at random and checks what has to hold after each burst. Two runs of a seed meet the same.
#include "stress/monkey/Clock.h"
#include "stress/monkey/Dialogs.h"
#include "stress/monkey/Input.h"
#include "stress/monkey/Monkey.h"
#include "stress/monkey/Scratch.h"

#include "studio/editing/TextKeys.h"

#include <afxole.h>
#include <commctrl.h>

#include <cstdlib>
#include <cstdio>
#include <cstring>

namespace monkey {

namespace {

constexpr std::uint64_t kProgressEvery = 10000;  // messages
constexpr int kThoroughEvery = 10;               // bursts
constexpr int kLongestPause = 40;                // milliseconds between two messages

class MonkeyApp : public CWinApp {
public:
    MonkeyApp() : CWinApp(L"Monkey") {}
    BOOL PreTranslateMessage(MSG* message) override {
        auto* frame = dynamic_cast<CFrameWnd*>(m_pMainWnd);
        return (frame && Studio::TakeTextKey(*message, *frame)) || CWinApp::PreTranslateMessage(message);
    }
};

MonkeyApp theApp;

struct Options {
    bool studio = false;
    bool trace = false;
    std::uint64_t messages = 10000;
    std::uint64_t seed = 1;
};

Options Read(int count, char** words) {
    Options options;
    for (int i = 1; i < count; ++i) {
        if (!std::strcmp(words[i], "--studio") || !std::strcmp(words[i], "--canvas"))
            options.studio = words[i][2] == 's';
        else if (!std::strcmp(words[i], "--trace"))
            options.trace = true;
        else if (!std::strcmp(words[i], "--messages") && i + 1 < count)
            options.messages = std::strtoull(words[++i], nullptr, 10);
        else if (!std::strcmp(words[i], "--seed") && i + 1 < count)
            options.seed = std::strtoull(words[++i], nullptr, 10);
        else
            throw Broken{"usage: Monkey.exe [--canvas|--studio] [--messages N] [--seed S] [--trace]"};
    }
    return options;
}

void Burst(Monkey& monkey, const Options& options, std::uint64_t burst) {
    NoteBurst(burst);
    const int length = Random(options.seed, burst).Between(20, 50);
    for (int i = 0; i < length && MessagesSent() < options.messages; ++i) {
        Random random(options.seed, burst, i + 1);
        SetDialogAnswers(Random(random.Next()));
        PassTime(static_cast<DWORD>(random.Below(kLongestPause)));
        if (random.Chance(20))
            RunDueTimers();
        monkey.Act(random);
    }
    monkey.Settle();
    theApp.OnIdle(0);
    theApp.OnIdle(1);
    monkey.Check();
    if (burst % kThoroughEvery == kThoroughEvery - 1)
        monkey.CheckThoroughly();
}

// Goes on from `digest` (FNV-1a).
std::uint64_t Digest(std::uint64_t digest, const std::vector<unsigned char>& bytes) {
    for (const unsigned char byte : bytes)
        digest = (digest ^ byte) * 0x100000001B3u;
    return digest;
}

int Run(const Options& options) {
    const char* subject = options.studio ? "studio" : "canvas";
    std::printf("monkey: %s, seed %llu, %llu messages\n", subject, options.seed, options.messages);
    std::fflush(stdout);
    StartJournal(subject, options.seed);
    StartClock();
    const Scratch scratch(subject, options.seed);
    const DialogAnswerer answerer(scratch.Folder());
    const OwnMouse mouse;
    std::unique_ptr<Monkey> monkey = options.studio ? MakeStudioMonkey() : MakeCanvasMonkey();
    std::uint64_t bursts = 0;
    std::uint64_t digest = 0xCBF29CE484222325u;
    try {
        std::uint64_t next = kProgressEvery;
        while (MessagesSent() < options.messages) {
            Burst(*monkey, options, bursts++);
            digest = Digest(digest, monkey->Bytes());
            if (options.trace)
                std::printf("burst %llu, message %llu: %016llx\n", bursts - 1, MessagesSent(), digest);
            if (MessagesSent() < next)
                continue;
            std::printf("%llu messages\n", MessagesSent());
            std::fflush(stdout);
            next += kProgressEvery;
        }
        monkey->CheckThoroughly();
    } catch (const Broken& broken) {
        Report(broken.what);
        return 1;
    }
    monkey.reset();
    std::printf("%llu messages in %llu bursts, %d dialogs and menus answered; all invariants held\n",
                MessagesSent(), bursts, answerer.Answered());
    std::printf("all states: %016llx\n", digest);
    return 0;
}

}  // namespace

}  // namespace monkey

int main(int count, char** words) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_SHOW))
        return 2;
    INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
    ::InitCommonControlsEx(&controls);
    try {
        return monkey::Run(monkey::Read(count, words));
    } catch (const monkey::Broken& usage) {
        std::puts(usage.what.c_str());
        return 2;
    }
}
