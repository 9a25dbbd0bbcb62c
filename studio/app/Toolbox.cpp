#include "studio/app/Toolbox.h"

#include "studio/app/Commands.h"
#include "studio/app/Painting.h"
#include "studio/app/ToolIcons.h"

#include <commctrl.h>

namespace Studio {

using namespace Gdiplus;

namespace {

constexpr int kButton = 40;
constexpr int kStep = 44;
constexpr int kMargin = 8;
constexpr float kIcon = 24.0f;

void FillRound(Graphics& g, const CRect& rect, DWORD color) {
    constexpr float d = 10.0f;
    const RectF r(rect.left + 0.5f, rect.top + 0.5f, rect.Width() - 1.0f, rect.Height() - 1.0f);
    GraphicsPath path;
    path.AddArc(r.X, r.Y, d, d, 180, 90);
    path.AddArc(r.X + r.Width - d, r.Y, d, d, 270, 90);
    path.AddArc(r.X + r.Width - d, r.Y + r.Height - d, d, d, 0, 90);
    path.AddArc(r.X, r.Y + r.Height - d, d, d, 90, 90);
    path.CloseFigure();
    SolidBrush brush{Color(color)};
    g.FillPath(&brush, &path);
}

}  // namespace

BEGIN_MESSAGE_MAP(Toolbox, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_DESTROY()
END_MESSAGE_MAP()

bool Toolbox::Create(CWnd& parent) {
    const LPCWSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CreateEx(0, windowClass, L"Tools", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CRect(0, 0, kWidth, 0),
                  &parent, 0))
        return false;
    AddTooltips();
    return true;
}

void Toolbox::AddTooltips() {
    m_tooltip = ::CreateWindowEx(
        WS_EX_TOPMOST, TOOLTIPS_CLASS, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, m_hWnd, nullptr, AfxGetInstanceHandle(), nullptr);
    if (!m_tooltip)
        return;
    ::SendMessage(m_tooltip, WM_SETFONT, reinterpret_cast<WPARAM>(BarFont()), FALSE);
    for (int button = 0; button < static_cast<int>(Tools().size()); ++button) {
        const ToolInfo& tool = Tools()[button];
        CString text;
        text.Format(L"%s (%c)", GetPlainText(tool.name).GetString(), tool.key);
        TTTOOLINFO info = {};
        info.cbSize = TTTOOLINFO_V1_SIZE;
        info.uFlags = TTF_SUBCLASS;
        info.hwnd = m_hWnd;
        info.uId = static_cast<UINT_PTR>(button);
        info.rect = ButtonRect(button);
        info.lpszText = const_cast<LPWSTR>(text.GetString());
        ::SendMessage(m_tooltip, TTM_ADDTOOL, 0, reinterpret_cast<LPARAM>(&info));
    }
}

void Toolbox::SetCurrent(Lumo::DrawShape kind) {
    if (m_current == kind)
        return;
    m_current = kind;
    Invalidate(FALSE);
}

CRect Toolbox::ButtonRect(int button) {
    return CRect(CPoint(kMargin, kMargin + button * kStep), CSize(kButton, kButton));
}

int Toolbox::ButtonAt(CPoint point) {
    for (int button = 0; button < static_cast<int>(Tools().size()); ++button) {
        if (ButtonRect(button).PtInRect(point))
            return button;
    }
    return -1;
}

void Toolbox::OnPaint() {
    BufferedPaint paint(*this);
    Graphics& g = paint.Graphics();
    g.Clear(Color(Palette::kBar));
    for (int button = 0; button < static_cast<int>(Tools().size()); ++button)
        DrawButton(g, button);
    Pen edge{Color(Palette::kEdge)};
    g.SetSmoothingMode(SmoothingModeNone);
    g.DrawLine(&edge, kWidth - 1, 0, kWidth - 1, paint.Client().bottom);
}

void Toolbox::DrawButton(Graphics& g, int button) const {
    const ToolInfo& tool = Tools()[button];
    const CRect rect = ButtonRect(button);
    const bool chosen = tool.kind == m_current;
    if (button == m_pressed && button == m_hot)
        FillRound(g, rect, Palette::kPressed);
    else if (chosen)
        FillRound(g, rect, Palette::kChosen);
    else if (button == m_hot)
        FillRound(g, rect, Palette::kHover);
    const float inset = (kButton - kIcon) / 2.0f;
    DrawToolIcon(g, tool.kind, rect.left + inset, rect.top + inset, kIcon,
                 chosen ? Palette::kAccent : Palette::kText);
}

BOOL Toolbox::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void Toolbox::SetHot(int button) {
    if (m_hot == button)
        return;
    m_hot = button;
    Invalidate(FALSE);
}

void Toolbox::OnMouseMove(UINT, CPoint point) {
    TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&track);
    SetHot(ButtonAt(point));
}

void Toolbox::OnMouseLeave() {
    SetHot(-1);
}

void Toolbox::OnLButtonDown(UINT, CPoint point) {
    m_pressed = ButtonAt(point);
    SetHot(m_pressed);
    SetCapture();
    Invalidate(FALSE);
}

void Toolbox::OnLButtonUp(UINT, CPoint point) {
    const int pressed = m_pressed;
    if (GetCapture() == this)
        ReleaseCapture();
    if (pressed >= 0 && pressed == ButtonAt(point))
        GetParent()->SendMessage(WM_COMMAND, Tools()[pressed].command);
}

void Toolbox::OnCaptureChanged(CWnd*) {
    m_pressed = -1;
    Invalidate(FALSE);
}

void Toolbox::OnDestroy() {
    if (m_tooltip)
        ::DestroyWindow(m_tooltip);
    m_tooltip = nullptr;
    CWnd::OnDestroy();
}

}  // namespace Studio
