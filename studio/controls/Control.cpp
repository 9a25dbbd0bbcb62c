#include "studio/controls/Control.h"

#include "canvas/UICanvas.h"
#include "core/Geometry.h"
#include "core/PaintScope.h"
#include "studio/controls/MessagePoint.h"
#include "studio/document/ObjectExtras.h"

#include <cwctype>

namespace Studio {

using Gdiplus::RectF;

void Notify(Lumo::CUINotifyHandler& handler, CWnd* window, UINT message, UINT flags, LPARAM packed) {
    switch (message) {
        case WM_LBUTTONDOWN:
            handler.OnLButtonDown(window, message, flags, packed);
            break;
        case WM_LBUTTONUP:
            handler.OnLButtonUp(window, message, flags, packed);
            break;
        case WM_LBUTTONDBLCLK:
            handler.OnLButtonDblClk(window, message, flags, packed);
            break;
        case WM_RBUTTONDOWN:
            handler.OnRButtonDown(window, message, flags, packed);
            break;
        case WM_MOUSEMOVE:
            handler.OnMouseMove(window, message, flags, packed);
            break;
        case WM_MOUSEWHEEL:
            handler.OnMouseWheel(window, message, flags, packed);
            break;
        default:
            break;
    }
}

void Control::Connect(Device* device) {
    m_device = device;
    m_watched.clear();
    if (device) {
        Watch(m_watched);
        std::erase(m_watched, -1);
    }
    m_seen.assign(m_watched.size(), 0);
    for (size_t i = 0; i < m_watched.size(); ++i)
        m_seen[i] = device->Generation(m_watched[i]);
    m_seenAll = device ? device->Generation() : 0;
    m_stale = true;
}

bool Control::TakeChange(std::vector<CRect>& parts) {
    parts.clear();
    if (m_device && m_device->Generation() != m_seenAll) {
        m_seenAll = m_device->Generation();
        for (size_t i = 0; i < m_watched.size(); ++i) {
            const unsigned generation = m_device->Generation(m_watched[i]);
            m_stale |= generation != m_seen[i];
            m_seen[i] = generation;
        }
    }
    const bool changed = m_stale && !m_changed;
    m_changed = m_stale;
    return changed;
}

void Control::Hear(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    if (message == WM_MOUSELEAVE)
        Leave();
    else
        Notify(*this, window, message, flags, packed);
}

CString Control::Binding() {
    const ObjectExtras* extras = FindExtras(Self());
    return extras && !extras->binding.IsEmpty() ? extras->binding : CString(DefaultBinding());
}

int Control::ValueOf(LPCWSTR suffix) {
    return Source().Find(Binding() + suffix);
}

double Control::Value(LPCWSTR suffix, double otherwise) {
    return Source().Get(Binding() + suffix, otherwise);
}

int Control::Channel() {
    const CString binding = Binding();
    int number = 0;
    for (LPCWSTR c = binding; *c && *c != L'.'; ++c)
        number = std::iswdigit(*c) && number < 100 ? number * 10 + (*c - L'0') : number;
    return number;
}

void Control::WatchAll(std::vector<int>& values, LPCWSTR prefix) {
    const CString start = prefix;
    for (int value = 0; value < Source().Count(); ++value) {
        if (Source().Info(value).name.Left(start.GetLength()).CompareNoCase(start) == 0)
            values.push_back(value);
    }
}

CSize Control::Size() {
    const RectF bounds = Lumo::Normalised(Self().GetPosition());
    return {Lumo::RoundToInt(bounds.Width), Lumo::RoundToInt(bounds.Height)};
}

// A binding that means nothing to this control: its name, so that it can be put right.
void Control::RenderUnbound(Picture& picture) {
    const auto right = static_cast<float>(picture.Width());
    const auto bottom = static_cast<float>(picture.Height());
    picture.FrameRound(0, 0, right, bottom, 6.0f, Ink::kCard, Ink::kRed);
    picture.Text(Binding() + L" ?", 4, 0, right - 4, bottom, 12.0f, Ink::kRed,
                 Gdiplus::StringAlignmentCenter);
}

void Control::DrawPicture(Gdiplus::Graphics& g) {
    const RectF bounds = Lumo::Normalised(Self().GetPosition());
    constexpr int kLargest = 4096;
    const CSize size = Size();
    if (size.cx < 4 || size.cy < 4 || size.cx > kLargest || size.cy > kLargest)
        return;
    if (const CString binding = Binding(); binding != m_drawnBinding) {
        m_drawnBinding = binding;
        m_stale = true;
    }
    Refresh(m_picture, size.cx, size.cy, m_stale, [this](Picture& picture) {
        if (IsBound())
            Render(picture);
        else
            RenderUnbound(picture);
    });
    m_stale = m_changed = false;
    RectF clip;
    g.GetVisibleClipBounds(&clip);
    clip.Offset(-bounds.X, -bounds.Y);
    CRect part(static_cast<int>(clip.X) - 1, static_cast<int>(clip.Y) - 1,
               static_cast<int>(clip.X + clip.Width) + 2, static_cast<int>(clip.Y + clip.Height) + 2);
    m_picture->Draw(g, bounds.X, bounds.Y, &part);
}

CPoint Control::Corner() const {
    const RectF bounds = Lumo::Normalised(const_cast<Control*>(this)->Self().GetPosition());
    return {Lumo::RoundToInt(bounds.X + m_origin.X), Lumo::RoundToInt(bounds.Y + m_origin.Y)};
}

CPoint Control::Local(LPARAM packed) const {
    return Local(CPoint(LOWORD(packed), HIWORD(packed)));
}

CPoint Control::Local(const CPoint& point) const {
    return CPoint(0, 0) + Distance(point, Corner());
}

void ChartControl::Draw(Gdiplus::Graphics* g) {
    if (g && !Lumo::PaintScope::Misses(*g, Lumo::Normalised(GetPosition())))
        DrawPicture(*g);
}

void ChartControl::RelayEvent(Lumo::CUICanvas* canvas, UINT message, UINT wParam, long lParam) {
    Hear(canvas, message, wParam, lParam);
}

ButtonControl::ButtonControl(Lumo::DrawShape kind) : CUIObjectButtonRectRound(RectF(), kind) {
    // A button starts as the library's own `Init` leaves it.
    RectF none;
    Init(kind, none);
    m_coordinate.Format<Lumo::CUIShapeFormatText>().m_strText.Empty();
}

void ButtonControl::Connect(Device* device) {
    Control::Connect(device);
    if (device)
        m_drawnState = {GetButtonState(), GetChecked(), m_bDrawNormal,  m_bDrawDown,
                        m_bDrawFocus,     GetOver(),    m_bDrawDisabled};
    else
        std::tie(m_dwButtonState, m_bChecked, m_bDrawNormal, m_bDrawDown, m_bDrawFocus, m_bOver,
                 m_bDrawDisabled) = m_drawnState;
    m_pressed = false;
}

void ButtonControl::Draw(Gdiplus::Graphics* g) {
    if (g && !Lumo::PaintScope::Misses(*g, Lumo::Normalised(GetPosition())))
        CUIObjectButtonRectRound::Draw(g);
}

void ButtonControl::RelayEvent(Lumo::CUICanvas* canvas, UINT message, UINT wParam, long lParam) {
    Hear(canvas, message, wParam, lParam);
}

void ButtonControl::ChangeState(DWORD state) {
    if (GetButtonState() == state)
        return;
    SetButtonState(state);
    Touch();
}

void ButtonControl::OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonDown(window, message, flags, packed);
    m_pressed = true;
    m_dragged = false;
    ChangeState(kDown);
}

void ButtonControl::OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnLButtonUp(window, message, flags, packed);
    const bool inside = CRect(CPoint(0, 0), Size()).PtInRect(Local(packed));
    if (m_pressed && inside && !m_dragged)
        Click();
    m_pressed = false;
    ChangeState(inside ? kOver : kNormal);
}

void ButtonControl::OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) {
    CUINotifyHandler::OnMouseMove(window, message, flags, packed);
    const bool inside = CRect(CPoint(0, 0), Size()).PtInRect(Local(packed));
    ChangeState(m_pressed && (inside || m_dragged) ? kDown : inside ? kOver : kNormal);
}

void ButtonControl::Leave() {
    m_pressed = false;
    ChangeState(kNormal);
}

void ButtonControl::RenderFace(Picture& picture, DWORD lit) {
    const auto right = static_cast<float>(picture.Width());
    const auto bottom = static_cast<float>(picture.Height());
    const DWORD state = GetButtonState();
    const DWORD face = state == kDown ? Ink::kFaceDown : state == kOver ? Ink::kFaceHover : Ink::kFace;
    picture.FrameRound(0, 0, right, bottom, 6.0f, face, lit ? lit : Ink::kEdge);
    if (lit)
        picture.FillRound(1, 1, right - 1, bottom - 1, 5.0f, WithAlpha(lit, 0x30));
}

}  // namespace Studio
