#include "window/VirtualWindow.h"

#include "VirtualHost.h"

#include <utility>

namespace Lumo {

VirtualWindow::~VirtualWindow() {
    Destroy();
}

bool VirtualWindow::Create(CWnd& owner, const CRect& rect) {
    if (!owner.m_hWnd)
        return false;
    Destroy();
    auto host = VirtualHost::FindOrMake(owner.m_hWnd);
    if (!host)
        return false;
    Place(std::move(host), nullptr, rect);
    return true;
}

bool VirtualWindow::CreateIn(VirtualWindow& parent, const CRect& rect) {
    if (!parent.m_host || parent.IsWithin(*this))
        return false;
    const auto host = parent.m_host;
    Destroy();
    Place(host, &parent, rect);
    return true;
}

void VirtualWindow::Place(std::shared_ptr<VirtualHost> host, VirtualWindow* parent, const CRect& rect) {
    m_host = std::move(host);
    m_parent = parent;
    m_rect = rect;
    m_shown = true;
    (parent ? parent->m_children : m_host->Roots()).push_back(this);
    Invalidate();
}

void VirtualWindow::Destroy() {
    if (!m_host)
        return;
    Invalidate();
    const auto host = m_host;
    host->Release([this](const VirtualWindow& window) { return window.IsWithin(*this); }, false);
    std::erase(m_parent ? m_parent->m_children : host->Roots(), this);
    Forget();
    host->LeaveWhenEmpty();
}

void VirtualWindow::Forget() {
    for (VirtualWindow* child : std::exchange(m_children, {}))
        child->Forget();
    m_parent = nullptr;
    m_host.reset();
}

void VirtualWindow::PaintIn(CWnd& owner, CDC& dc) {
    const auto host = VirtualHost::Find(owner.m_hWnd);
    if (!host)
        return;
    for (VirtualWindow* window : host->Roots())
        window->Paint(dc);
}

void VirtualWindow::Paint(CDC& dc) {
    CRect clip;
    if (!m_shown)
        return;
    const int outer = dc.SaveDC();
    dc.IntersectClipRect(m_rect);
    if (dc.GetClipBox(clip) != NULLREGION) {
        ::OffsetWindowOrgEx(dc, -m_rect.left, -m_rect.top, nullptr);
        const int inner = dc.SaveDC();
        OnPaint(dc);
        dc.RestoreDC(inner);
        for (VirtualWindow* child : m_children)
            child->Paint(dc);
    }
    dc.RestoreDC(outer);
}

HWND VirtualWindow::GetOwner() const {
    return m_host ? m_host->Window() : nullptr;
}

bool VirtualWindow::IsWithin(const VirtualWindow& other) const {
    return this == &other || (m_parent && m_parent->IsWithin(other));
}

// Where its (0, 0) is in the owner.
CPoint VirtualWindow::Origin() const {
    return m_parent ? m_parent->Origin() + m_rect.TopLeft() : m_rect.TopLeft();
}

CRect VirtualWindow::GetOwnerRect() const {
    if (!m_parent)
        return m_rect;
    CRect seen;
    seen.IntersectRect(m_rect + m_parent->Origin(), m_parent->GetOwnerRect());
    return seen;
}

void VirtualWindow::Move(const CRect& rect) {
    if (rect == m_rect)
        return;
    Invalidate();
    m_rect = rect;
    Invalidate();
    if (m_host)
        m_host->RefreshToolTip();
}

void VirtualWindow::Show(bool shown) {
    if (shown == m_shown)
        return;
    Invalidate();
    m_shown = shown;
    Invalidate();
    if (const auto host = m_host; host && !shown)
        host->Release([this](const VirtualWindow& window) { return window.IsWithin(*this); }, true);
}

bool VirtualWindow::IsVisible() const {
    return m_host && m_shown && (!m_parent || m_parent->IsVisible());
}

void VirtualWindow::Invalidate() {
    if (IsVisible())
        ::InvalidateRect(m_host->Window(), GetOwnerRect(), FALSE);
}

bool VirtualWindow::IsHot() const {
    return m_host && m_host->Hot() == this;
}

bool VirtualWindow::HasCapture() const {
    return m_host && m_host->Captured() == this;
}

bool VirtualWindow::HasFocus() const {
    return m_host && m_host->Focused() == this;
}

void VirtualWindow::SetCapture() {
    if (IsVisible())
        m_host->SetCapture(*this);
}

// The owner hears of it by a message, which passes it on.
void VirtualWindow::ReleaseCapture() {
    if (HasCapture())
        ::ReleaseCapture();
}

void VirtualWindow::SetFocus() {
    if (IsVisible())
        m_host->SetFocus(this);
}

void VirtualWindow::SetToolTip(const CString& text) {
    m_toolTip = text;
    if (m_host)
        m_host->RefreshToolTip();
}

void VirtualWindow::OnPaint(CDC&) {}
void VirtualWindow::OnMouseEnter() {}
void VirtualWindow::OnMouseLeave() {}
void VirtualWindow::OnMouseHover(CPoint) {}
void VirtualWindow::OnCaptureLost() {}
void VirtualWindow::OnFocus(bool) {}

bool VirtualWindow::OnMouse(UINT message, UINT, CPoint) {
    return message != WM_MOUSEWHEEL && message != WM_MOUSEHWHEEL;
}

bool VirtualWindow::OnKey(UINT, UINT, UINT) {
    return false;
}

}  // namespace Lumo
