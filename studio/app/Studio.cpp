// The program.
#include "studio/app/MainFrame.h"

#include <commctrl.h>
#include <shellapi.h>

namespace Studio {

namespace {

struct CommandLine {
    CString file;
    Language language = Language::kEnglish;
};

// Studio.exe [--lang en|ko] [file.cbf]
CommandLine ReadCommandLine() {
    CommandLine result;
    int count = 0;
    LPWSTR* words = ::CommandLineToArgvW(::GetCommandLine(), &count);
    for (int i = 1; words && i < count; ++i) {
        const CString word = words[i];
        if (word == L"--lang" && i + 1 < count)
            result.language =
                CString(words[++i]).CompareNoCase(L"ko") == 0 ? Language::kKorean : Language::kEnglish;
        else
            result.file = word;
    }
    ::LocalFree(words);
    return result;
}

class StudioApp : public CWinApp {
public:
    StudioApp() : CWinApp(L"Studio") {}

    BOOL InitInstance() override {
        INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
        ::InitCommonControlsEx(&controls);
        const CommandLine line = ReadCommandLine();
        SetLanguage(line.language);
        auto* frame = new MainFrame;
        if (!frame->CreateFrame())
            return FALSE;
        m_pMainWnd = frame;
        frame->ShowWindow(m_nCmdShow);
        frame->UpdateWindow();
        if (!line.file.IsEmpty())
            frame->OpenPath(line.file);
        return TRUE;
    }
};

StudioApp theApp;

}  // namespace

}  // namespace Studio
