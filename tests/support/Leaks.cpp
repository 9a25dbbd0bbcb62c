#include "tests/support/Leaks.h"

#include "tests/support/Holdings.h"
#include "tests/support/NewBlocks.h"

#include <afxwin.h>
#include <gtest/gtest.h>
#include <ole2.h>

#include <cstdio>
#include <string>
#include <utility>

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
    std::string names;  // of the tests, as a filter
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
        const std::string name = std::string(test.test_suite_name()) + "." + test.name();
        names += (names.empty() ? "" : ":") + name;
        report += name + "\n" + left;
    }

    int m_graphics = 0;
    int m_global = 0;
};

}  // namespace

int RunTestsAndCountLeaks() {
    NewBlocks::Install();
    auto* listener = new Listener;
    ::testing::UnitTest::GetInstance()->listeners().Append(listener);
    int result = RUN_ALL_TESTS();
    // The system keeps things that it made for one test until another one; a leak comes every time.
    for (int again = 0; again < 2 && result == 0 && !listener->names.empty(); ++again) {
        std::printf("\nOnce more, those that left something:\n");
        ::testing::GTEST_FLAG(filter) = std::exchange(listener->names, {});
        listener->report.clear();
        result = RUN_ALL_TESTS();
    }
    if (result != 0 || listener->names.empty())
        return result;
    std::printf("\nLeaks, left at the end of each run of a test:\n%s", listener->report.c_str());
    return 1;
}
