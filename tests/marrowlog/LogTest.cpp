// CLoggable: the lines of the log file; CCSWrapper: who gets in.
#include "support/TemporaryFile.h"

#include <CSWrapper.h>
#include <Loggable.h>

#include <gtest/gtest.h>

#include <regex>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace {

/// Points the log at a file for the length of a test.
struct LogTo {
    explicit LogTo(LPCWSTR path) { ::SetEnvironmentVariableW(L"MARROWLOG_FILE", path); }
    ~LogTo() { ::SetEnvironmentVariableW(L"MARROWLOG_FILE", nullptr); }
};

const std::string kStamp = R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d\.\d{3} )";

TEST(Log, AppendsLinesInUtf8WithTimeAndLevel) {
    const TemporaryFile file("before\r\n");
    const CString name(L"\xD30C\xC77C");
    {
        const LogTo log(file.Path());
        ::SetLastError(1234);
        CLoggable::AddLogLine(5, 0, L"[\xC608\xC678] %s of %hs: %d, %.1f", name.GetString(), "CPage", 42,
                              0.5);
        EXPECT_EQ(1234u, ::GetLastError());
        CLoggable::AddLogLine(-1, 0, L"%s", CString(L'x', 5000).GetString());
        CLoggable::AddLogLine(0, 0, nullptr);
    }
    CLoggable::AddLogLine(5, 0, L"not in the file");
    const std::regex expected(
        "before\r\n" + kStamp +
        "\\[5\\] \\[\xEC\x98\x88\xEC\x99\xB8\\] \xED\x8C\x8C\xEC\x9D\xBC of CPage: 42, 0\\.5\r\n" + kStamp +
        "\\[-1\\] x{5000}\r\n" + kStamp + "\\[0\\] \r\n");
    std::string content = file.Read();
    EXPECT_TRUE(std::regex_match(content, expected)) << content.substr(0, 200);
}

TEST(Log, WhatCannotBeWrittenIsLeftOut) {
    const TemporaryFile file;
    {
        const LogTo log(file.Path() + L"\\no\\such\\folder.log");
        CLoggable::AddLogLine(5, 0, L"lost");
    }
    EXPECT_FALSE(file.Exists());
    CFile held(file.Path(), CFile::modeCreate | CFile::modeWrite | CFile::shareExclusive);
    const LogTo log(file.Path());
    CLoggable::AddLogLine(5, 0, L"lost");
    EXPECT_EQ(0u, held.GetLength());
}

TEST(Log, LinesOfSeveralThreadsDoNotMix) {
    const TemporaryFile file;
    const LogTo log(file.Path());
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int t = 0; t < 4; ++t)
        threads.emplace_back([t] {
            for (int i = 0; i < 100; ++i)
                CLoggable::AddLogLine(t, 0, L"%s", CString(wchar_t(L'a' + t), 100).GetString());
        });
    for (std::thread& thread : threads)
        thread.join();
    std::istringstream lines(file.Read());
    const std::regex expected(kStamp + R"(\[\d\] (a{100}|b{100}|c{100}|d{100}))" + "\r");
    int count = 0;
    for (std::string line; std::getline(lines, line); ++count)
        EXPECT_TRUE(std::regex_match(line, expected)) << line;
    EXPECT_EQ(400, count);
}

bool OtherThreadGetsIn(CCSWrapper& section) {
    bool entered = false;
    std::thread([&] {
        entered = section.TryLock();
        if (entered)
            section.Unlock();
    }).join();
    return entered;
}

TEST(CSWrapper, CopiesAreFreshSections) {
    CCSWrapper section, assigned;
    {
        const CCSLock lock(section), again(section);
        CCSWrapper copy(section);
        assigned = section;
        EXPECT_FALSE(OtherThreadGetsIn(section));
        EXPECT_TRUE(OtherThreadGetsIn(copy));
        EXPECT_TRUE(OtherThreadGetsIn(assigned));
    }
    EXPECT_TRUE(OtherThreadGetsIn(section));
}

}  // namespace
