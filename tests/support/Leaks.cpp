#include "tests/support/Leaks.h"

#include "tests/support/Holdings.h"
#include "tests/support/NewBlocks.h"

#include <afxwin.h>
#include <gtest/gtest.h>
#include <ole2.h>

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace {

// What is on the clipboard is held for others.
void EmptyOwnClipboard() {
    DWORD owner = ::GetCurrentProcessId();
    if (const HWND window = ::GetClipboardOwner())
        ::GetWindowThreadProcessId(window, &owner);
    if (owner != ::GetCurrentProcessId() || ::CountClipboardFormats() == 0)
        return;
    ::OleSetClipboard(nullptr);
    if (::OpenClipboard(nullptr)) {
        ::EmptyClipboard();
        ::CloseClipboard();
    }
}

// What the class library makes for handles that are not its own goes when the program is idle.
void DeleteTemporaries() {
    CWnd::DeleteTempMap();
    CMenu::DeleteTempMap();
    CGdiObject::DeleteTempMap();
    CDC::DeleteTempMap();
}

/// Notes what each test left.
class Listener : public ::testing::EmptyTestEventListener {
public:
    std::vector<std::string> names;  // of the tests
    std::string report;

private:
    void OnTestStart(const ::testing::TestInfo&) override {
        m_graphics = GraphicsObjects();
        m_global = GlobalBlocks();
        NewBlocks::Begin();
    }

    void OnTestEnd(const ::testing::TestInfo& test) override {
        EmptyOwnClipboard();
        DeleteTemporaries();
        std::string left = NewBlocks::End();
        const auto add = [&](int count, const char* what) {
            if (count > 0)
                left += "  " + std::to_string(count) + " " + what + "\n";
        };
        add(GraphicsObjects() - m_graphics, "graphics objects of the system");
        add(GlobalBlocks() - m_global, "blocks of global memory");
        if (left.empty())
            return;
        names.push_back(std::string(test.test_suite_name()) + "." + test.name());
        report += names.back() + "\n" + left;
    }

    int m_graphics = 0;
    int m_global = 0;
};

// How often the test called `name`, run again and again with nothing between, left something in the end.
int TimesInARow(Listener& listener, const std::string& name) {
    constexpr int kTimes = 4;
    ::testing::GTEST_FLAG(filter) = name;
    int inARow = 0;
    for (int time = 0; time < kTimes; ++time) {
        listener.names.clear();
        listener.report.clear();
        inARow = RUN_ALL_TESTS() == 0 && listener.names.empty() ? 0 : inARow + 1;
    }
    return inARow;
}

}  // namespace

int RunTestsAndCountLeaks() {
    NewBlocks::Install();
    auto* listener = new Listener;
    ::testing::UnitTest::GetInstance()->listeners().Append(listener);
    const int result = RUN_ALL_TESTS();
    if (result != 0 || listener->names.empty())
        return result;
    std::printf("\nAgain, those that left something:\n");
    std::string leaks;
    // The system keeps what it made for one test until another one, or for good; a leak comes every time.
    for (const std::string& name : std::exchange(listener->names, {}))
        if (TimesInARow(*listener, name) > 2)
            leaks += listener->report;
    if (!leaks.empty())
        std::printf("\nLeaks, left at the end of each run of a test:\n%s", leaks.c_str());
    return leaks.empty() ? 0 : 1;
}
