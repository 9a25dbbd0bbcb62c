#include "studio/app/CommandLine.h"

#include "studio/document/DemoProject.h"
#include "studio/document/FileReport.h"
#include "studio/document/PageImage.h"
#include "studio/document/SymbolLibrary.h"
#include "window/Tools.h"

#include <shellapi.h>

#include <string>

namespace Studio {

namespace {

using Task = CommandLine::Task;

struct TaskInfo {
    LPCWSTR word;
    Task task;
    size_t least, most;  // arguments
};

constexpr TaskInfo kTasks[] = {
    {L"--render", Task::kRender, 2, 3},      {L"--check", Task::kCheck, 1, 1},
    {L"--make-demo", Task::kMakeDemo, 1, 1}, {L"--make-symbols", Task::kMakeSymbols, 1, 1},
    {L"--help", Task::kExplain, 0, 0},
};

bool HasRightCount(const CommandLine& line) {
    if (line.task == Task::kRefuse)
        return false;
    for (const TaskInfo& info : kTasks) {
        if (info.task == line.task)
            return line.arguments.size() >= info.least && line.arguments.size() <= info.most;
    }
    return line.arguments.size() <= 1;
}

// A program with windows has no console, but it may have been given one, a pipe or a file.
void Print(const CString& text) {
    const std::string bytes = Lumo::Tools::ToUtf8(text);
    DWORD written;
    const HANDLE output = ::GetStdHandle(STD_OUTPUT_HANDLE);
    if (output && output != INVALID_HANDLE_VALUE)
        ::WriteFile(output, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
}

// Page number from 1; without one, the page that the file shows first.
void Render(const CommandLine& line) {
    const DocumentContents contents = LoadContents(line.arguments[0]);
    size_t page = contents.current;
    if (line.arguments.size() == 3)
        page = static_cast<size_t>(_wtoi(line.arguments[2])) - 1;
    if (page >= contents.pages.size())
        throw FileFault{Text::kFaultNoPage};
    WritePagePicture(ListOf(contents.pages[page]), line.arguments[1]);
}

int Check(const CString& path) {
    const FileReport report = ReportFile(path);
    Print(report.text);
    return report.sound ? 0 : 1;
}

void Carry(const CommandLine& line) {
    switch (line.task) {
        case Task::kRender:
            Render(line);
            break;
        case Task::kMakeDemo:
            WriteContents(MakeDemoProject(), line.arguments[0]);
            break;
        case Task::kMakeSymbols:
            WriteStandardSymbols(line.arguments[0]);
            break;
        default:
            Print(GetText(Text::kUsage));
            break;
    }
}

}  // namespace

CommandLine CommandLine::Read() {
    std::vector<CString> words;
    int count = 0;
    LPWSTR* first = ::CommandLineToArgvW(::GetCommandLine(), &count);
    for (int i = 1; first && i < count; ++i)
        words.emplace_back(first[i]);
    ::LocalFree(first);
    return Parse(words);
}

CommandLine CommandLine::Parse(const std::vector<CString>& words) {
    CommandLine line;
    if (PRIMARYLANGID(::GetUserDefaultUILanguage()) == LANG_KOREAN)
        line.language = Language::kKorean;
    for (size_t i = 0; i < words.size(); ++i) {
        const CString& word = words[i];
        bool known = false;
        for (const TaskInfo& info : kTasks) {
            if (word == info.word) {
                line.task = info.task;
                known = true;
            }
        }
        if (known)
            continue;
        if (word == L"--lang" && i + 1 < words.size())
            line.language = words[++i].CompareNoCase(L"ko") == 0 ? Language::kKorean : Language::kEnglish;
        else if (word == L"--demo")
            line.demo = true;
        else if (word.Left(2) == L"--")
            line.task = Task::kRefuse;
        else
            line.arguments.push_back(word);
    }
    if (!HasRightCount(line))
        line.task = Task::kRefuse;
    return line;
}

int RunTask(const CommandLine& line) {
    if (line.task == Task::kCheck)
        return Check(line.arguments[0]);
    if (line.task == Task::kRefuse) {
        Print(GetText(Text::kUsage));
        return 1;
    }
    CString reason;
    if (AttemptFile([&] { Carry(line); }, reason))
        return 0;
    Print(reason + L"\n");
    return 1;
}

}  // namespace Studio
