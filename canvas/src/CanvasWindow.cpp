// The canvas as a window: life, messages that are not the mouse's, raw input.
#include "canvas/UICanvas.h"

#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UIEdit.h"
#include "canvas/UITool.h"
#include "canvas/src/Press.h"
#include "core/UIDocument.h"

#include <algorithm>
#include <iterator>

namespace Lumo {

IMPLEMENT_DYNAMIC(CUICanvas, CWnd)

BEGIN_MESSAGE_MAP(CUICanvas, CWnd)
    ON_WM_PAINT()
    ON_WM_CONTEXTMENU()
    ON_WM_CREATE()
    ON_WM_SETFOCUS()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_LBUTTONDBLCLK()
    ON_WM_MOUSEMOVE()
    ON_WM_RBUTTONDOWN()
    ON_WM_ERASEBKGND()
    ON_WM_NCDESTROY()
END_MESSAGE_MAP()

namespace {

constexpr float kScaleSteps[] = {0.25f, 0.5f, 0.75f, 1.0f, 1.25f, 1.5f, 2.0f, 3.0f, 4.0f};

}  // namespace

std::vector<CUICanvas*>& CUICanvas::Canvases() {
    static std::vector<CUICanvas*> canvases;
    return canvases;
}

CUICanvas::CUICanvas() : CUICanvas(nullptr) {}

CUICanvas::CUICanvas(CUIDocument* document) : m_pDocument(document) {
    Canvases().push_back(this);
}

CUICanvas::~CUICanvas() {
    if (m_hWnd)
        DestroyWindow();
    Press::Abandon(this);
    std::erase(Canvases(), this);
    CUIDocument::ForgetCanvas(this);
}

int CUICanvas::Init(int bSkipDisplayQuery, CSize& size) {
    Clear();
    m_nWidth = size.cx ? size.cx : ::GetSystemMetrics(SM_CXSCREEN);
    m_nHeight = size.cy ? size.cy : ::GetSystemMetrics(SM_CYSCREEN);
    if (!bSkipDisplayQuery) {
        CDC display;
        display.CreateDC(L"DISPLAY", nullptr, nullptr, nullptr);
        display.GetDeviceCaps(BITSPIXEL);  // Kept: the colour depth is asked for and not used
    }
    return 1;
}

void CUICanvas::Clear() {
    m_bInteractive = 0;
    m_selection.clear();
}

int CUICanvas::OnCreate(LPCREATESTRUCT) {
    if (Default() == -1)
        return -1;
    CUIToolBase::run_drawshape = DS_LINE;
    BuildContextMenu();
    return 0;
}

void CUICanvas::OnSetFocus(CWnd*) {
    Default();
    if (m_pEdit)
        m_pEdit->SetFocus();
}

void CUICanvas::OnContextMenu(CWnd*, CPoint) {}

void CUICanvas::OnNcDestroy() {
    CWnd::OnNcDestroy();
}

BOOL CUICanvas::OnCommand(WPARAM wParam, LPARAM lParam) {
    return CWnd::OnCommand(wParam, lParam);
}

BOOL CUICanvas::PreTranslateMessage(MSG* msg) {
    const bool keyDown = msg->message == WM_KEYDOWN || msg->message == WM_SYSKEYDOWN;
    if (keyDown && msg->wParam == VK_F2 && (::GetKeyState(VK_SHIFT) & ~1) != 0)
        return TRUE;
    if (msg->message == WM_CONTEXTMENU)
        return TRUE;
    return CWnd::PreTranslateMessage(msg);
}

LRESULT CALLBACK CUICanvas::WindowProc(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam) {
    switch (message) {
        case WM_CREATE:
            return 0;
        case WM_DESTROY:
            ::PostQuitMessage(0);
            return 0;
        case WM_COPYDATA:
            return 1;
        default:
            return ::DefWindowProc(hwnd, message, wParam, lParam);
    }
}

void CUICanvas::OnCanvasScale(UINT step) {
    if (step >= std::size(kScaleSteps))
        return;
    m_fScaleX = m_fScaleY = kScaleSteps[step];
    if (m_hWnd)
        Invalidate(TRUE);
}

int CUICanvas::RegisterRawInput(HWND target) {
    constexpr USHORT kGenericDesktop = 1;
    constexpr USHORT kKeyboard = 6;
    constexpr USHORT kMouse = 2;
    RAWINPUTDEVICE devices[] = {{kGenericDesktop, kKeyboard, RIDEV_INPUTSINK, target},
                                {kGenericDesktop, kMouse, RIDEV_INPUTSINK, target}};
    const BOOL done = ::RegisterRawInputDevices(devices, std::size(devices), sizeof(devices[0]));
    if (!done) {
        CString text;
        text.Format(L"RegisterRawInputDevices Error %d", ::GetLastError());
        MessageBox(text, nullptr, MB_OK);
    }
    return done;
}

// Kept: only the mouse is taken back, the keyboard registration stays.
int CUICanvas::UnRegisterRawInput() {
    RAWINPUTDEVICE mouse = {1, 2, RIDEV_REMOVE, nullptr};
    return ::RegisterRawInputDevices(&mouse, 1, sizeof(mouse));
}

}  // namespace Lumo
