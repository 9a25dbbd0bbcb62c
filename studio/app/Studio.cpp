// The program.
#include "studio/app/CommandLine.h"
#include "studio/app/MainFrame.h"
#include "studio/editing/TextKeys.h"

#include <afxole.h>
#include <commctrl.h>

namespace Studio {

namespace {

class StudioApp : public CWinApp {
public:
    StudioApp() : CWinApp(L"Studio") {}

    BOOL InitInstance() override {
        INITCOMMONCONTROLSEX controls = {sizeof controls, ICC_BAR_CLASSES | ICC_STANDARD_CLASSES};
        ::InitCommonControlsEx(&controls);
        const CommandLine line = CommandLine::Read();
        SetLanguage(line.language);
        if (line.task != CommandLine::Task::kShow) {
            m_exitCode = RunTask(line);
            return FALSE;
        }
        auto* frame = new MainFrame;
        if (!frame->CreateFrame())
            return FALSE;
        m_pMainWnd = frame;
        frame->ShowWhereItWas(m_nCmdShow);
        frame->UpdateWindow();
        if (line.arguments.empty())
            frame->Start(line.demo);
        else
            frame->OpenPath(line.arguments.front());
        return TRUE;
    }

    BOOL PreTranslateMessage(MSG* message) override {
        auto* frame = static_cast<CFrameWnd*>(m_pMainWnd);
        return (frame && TakeTextKey(*message, *frame)) || CWinApp::PreTranslateMessage(message);
    }

    int ExitInstance() override {
        const int code = CWinApp::ExitInstance();
        AfxOleTerm();
        return m_exitCode ? m_exitCode : code;
    }

private:
    int m_exitCode = 0;
};

StudioApp theApp;

}  // namespace

}  // namespace Studio
