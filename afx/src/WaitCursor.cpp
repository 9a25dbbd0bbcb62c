#include "CommandMessages.h"

namespace {

int waitRequests = 0;
HCURSOR cursorBefore = nullptr;

void ChangeWaitCursor(int code) {
    if (CWinApp* app = AfxGetApp())
        app->DoWaitCursor(code);
    else
        DoProcessWaitCursor(code);
}

}  // namespace

void DoProcessWaitCursor(int code) {
    waitRequests += code;
    if (waitRequests > 0) {
        HCURSOR before = ::SetCursor(::LoadCursor(nullptr, IDC_WAIT));
        if (code > 0 && waitRequests == 1)
            cursorBefore = before;
    } else if (code != 0) {
        waitRequests = 0;
        ::SetCursor(cursorBefore);
    }
}

void CWinApp::DoWaitCursor(int nCode) {
    DoProcessWaitCursor(nCode);
}

void CCmdTarget::BeginWaitCursor() {
    ChangeWaitCursor(1);
}

void CCmdTarget::EndWaitCursor() {
    ChangeWaitCursor(-1);
}

void CCmdTarget::RestoreWaitCursor() {
    ChangeWaitCursor(0);
}

CWaitCursor::CWaitCursor() {
    ChangeWaitCursor(1);
}

CWaitCursor::~CWaitCursor() {
    ChangeWaitCursor(-1);
}

void CWaitCursor::Restore() {
    ChangeWaitCursor(0);
}
