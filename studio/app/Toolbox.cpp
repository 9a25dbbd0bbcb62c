#include "studio/app/Toolbox.h"

#include "studio/app/Commands.h"
#include "studio/app/Painting.h"
#include "studio/app/ToolIcons.h"
#include "studio/editing/ObjectFactory.h"

#include <commctrl.h>

#include <cstddef>
#include <utility>

namespace Studio {

using namespace Gdiplus;

namespace {

constexpr int kButton = 40;
constexpr int kStep = 44;
constexpr int kMargin = 8;
constexpr int kGap = 9;  // between the drawing tools and the audio controls
constexpr float kIcon = 24.0f;
// As much of the record as every version of the platform's controls takes.
constexpr UINT kToolInfoSize = offsetof(TTTOOLINFO, lParam);

int ButtonCount() {
    return static_cast<int>(Tools().size());
}

// The audio controls are the last buttons.
int FirstControl() {
    int button = 0;
    while (button < ButtonCount() && !IsControl(Tools()[button].kind))
        ++button;
    return button;
}

int RowsFor(int buttons, int columns) {
    return (buttons + columns - 1) / columns;
}

// The face of a button with round corners.
void FillRound(Graphics& g, DWORD color) {
    constexpr float kDiameter = 12.0f;
    constexpr float kFar = kButton - kDiameter;
    GraphicsPath path;
    path.AddArc(0.0f, 0.0f, kDiameter, kDiameter, 180, 90);
    path.AddArc(kFar, 0.0f, kDiameter, kDiameter, 270, 90);
    path.AddArc(kFar, kFar, kDiameter, kDiameter, 0, 90);
    path.AddArc(0.0f, kFar, kDiameter, kDiameter, 90, 90);
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
    ON_WM_SIZE()
END_MESSAGE_MAP()

bool Toolbox::Create(CWnd& parent) {
    const LPCWSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CreateEx(0, windowClass, L"Tools", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0),
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
    for (int button = 0; button < ButtonCount(); ++button) {
        const ToolInfo& tool = Tools()[button];
        CString text;
        text = GetPlainText(tool.name);
        if (tool.key)
            text.AppendFormat(L" (%c)", tool.key);
        // Some systems make the tip a few pixels too narrow for a long text.
        text += L"  ";
        TTTOOLINFO info = {};
        info.cbSize = kToolInfoSize;
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

int Toolbox::ColumnsFor(int height) {
    return kMargin + ButtonCount() * kStep + kGap <= height ? 1 : 2;
}

int Toolbox::WidthFor(int height) {
    return 2 * kMargin - (kStep - kButton) + ColumnsFor(height) * kStep;
}

void Toolbox::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    m_columns = ColumnsFor(cy);
    for (int button = 0; button < ButtonCount(); ++button) {
        TTTOOLINFO info = {};
        info.cbSize = kToolInfoSize;
        info.hwnd = m_hWnd;
        info.uId = static_cast<UINT_PTR>(button);
        info.rect = ButtonRect(button);
        ::SendMessage(m_tooltip, TTM_NEWTOOLRECT, 0, reinterpret_cast<LPARAM>(&info));
    }
    Invalidate(FALSE);
}

CRect Toolbox::ButtonRect(int button) const {
    const int first = FirstControl();
    const bool control = button >= first;
    const int place = control ? button - first : button;
    const int row = place / m_columns + (control ? RowsFor(first, m_columns) : 0);
    return CRect(CPoint(kMargin + place % m_columns * kStep, kMargin + row * kStep + (control ? kGap : 0)),
                 CSize(kButton, kButton));
}

int Toolbox::ButtonAt(CPoint point) const {
    for (int button = 0; button < ButtonCount(); ++button) {
        if (ButtonRect(button).PtInRect(point))
            return button;
    }
    return -1;
}

void Toolbox::OnPaint() {
    BufferedPaint paint(*this);
    Graphics& g = paint.Graphics();
    g.Clear(Color(Palette::kBar));
    for (int button = 0; button < ButtonCount(); ++button) {
        const CRect rect = ButtonRect(button);
        if (!paint.Needs(rect))
            continue;
        const auto face = DrawSmooth(kButton, kButton, [&](Graphics& smooth) { DrawFace(smooth, button); });
        g.DrawImage(face.get(), static_cast<INT>(rect.left), static_cast<INT>(rect.top));
    }
    Pen edge{Color(Palette::kEdge)};
    const INT right = paint.Client().right;
    const INT y = ButtonRect(FirstControl()).top - (kStep - kButton + kGap) / 2 - 1;
    g.DrawLine(&edge, kMargin, y, right - kMargin, y);
    g.DrawLine(&edge, right - 1, 0, right - 1, static_cast<INT>(paint.Client().bottom));
}

void Toolbox::DrawFace(Graphics& g, int button) const {
    const ToolInfo& tool = Tools()[button];
    const bool chosen = tool.kind == m_current;
    if (button == m_pressed && button == m_hot)
        FillRound(g, Palette::kPressed);
    else if (chosen)
        FillRound(g, Palette::kChosen);
    else if (button == m_hot)
        FillRound(g, Palette::kHover);
    constexpr float kInset = (kButton - kIcon) / 2.0f;
    DrawToolIcon(g, tool.kind, kInset, kInset, kIcon, chosen ? Palette::kAccent : Palette::kText);
}

BOOL Toolbox::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void Toolbox::SetHot(int button) {
    if (m_hot == button)
        return;
    for (int changed : {std::exchange(m_hot, button), button}) {
        if (changed >= 0)
            InvalidateRect(ButtonRect(changed), FALSE);
    }
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
