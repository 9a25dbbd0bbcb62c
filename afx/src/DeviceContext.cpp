#include "ThreadState.h"

#include <cstdlib>

namespace {

PermanentMap<CDC> permanentContexts;

/// Does a step on the output handle and, where it is another one, on the attribute handle, whose result
/// counts.
template <class Step>
auto OnBoth(const CDC& dc, Step step) {
    decltype(step(dc.m_hDC)) result{};
    if (dc.m_hDC && dc.m_hDC != dc.m_hAttribDC)
        result = step(dc.m_hDC);
    if (dc.m_hAttribDC)
        result = step(dc.m_hAttribDC);
    return result;
}

/// Scales a length by two extents, whose signs are the directions of the axes and no matter of a length.
LONG ScaleLength(LONG length, LONG to, LONG from) {
    return ::MulDiv(length, std::abs(to), std::abs(from));
}

}  // namespace

IMPLEMENT_DYNCREATE(CDC, CObject)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CDC)
IMPLEMENT_DYNAMIC(CPaintDC, CDC)

CDC::CDC() = default;

CDC::~CDC() {
    DeleteDC();
}

CDC* PASCAL CDC::FromHandle(HDC hDC) {
    if (!hDC)
        return nullptr;
    if (CDC* owner = permanentContexts.Find(hDC))
        return owner;
    return GetThreadState().contexts.Get(hDC, [] { return new CDC; });
}

void PASCAL CDC::DeleteTempMap() {
    GetThreadState().contexts.Clear();
}

BOOL CDC::Attach(HDC hDC) {
    if (!hDC || m_hDC)
        return FALSE;
    permanentContexts.Set(hDC, this);
    m_hDC = hDC;
    SetAttribDC(hDC);
    return TRUE;
}

HDC CDC::Detach() {
    HDC handle = m_hDC;
    if (handle)
        permanentContexts.Remove(handle, this);
    ReleaseAttribDC();
    m_hDC = nullptr;
    return handle;
}

void CDC::SetOutputDC(HDC hDC) {
    ReleaseOutputDC();
    m_hDC = hDC;
    if (hDC)
        permanentContexts.Set(hDC, this);
}

void CDC::ReleaseOutputDC() {
    if (m_hDC)
        permanentContexts.Remove(m_hDC, this);
    m_hDC = nullptr;
}

BOOL CDC::DeleteDC() {
    HDC handle = Detach();
    return handle && ::DeleteDC(handle);
}

CWnd* CDC::GetWindow() const {
    return CWnd::FromHandle(::WindowFromDC(m_hDC));
}

int CDC::SaveDC() {
    return OnBoth(*this, [](HDC dc) { return ::SaveDC(dc); });
}

BOOL CDC::RestoreDC(int nSavedDC) {
    // A level from below 0 counts back; both handles were saved in step.
    return OnBoth(*this, [nSavedDC](HDC dc) { return ::RestoreDC(dc, nSavedDC); });
}

CGdiObject* CDC::Select(const CGdiObject* pObject) {
    if (!pObject)
        return nullptr;
    HGDIOBJ handle = pObject->m_hObject;
    return CGdiObject::FromHandle(OnBoth(*this, [handle](HDC dc) { return ::SelectObject(dc, handle); }));
}

CGdiObject* CDC::SelectStockObject(int nIndex) {
    HGDIOBJ handle = ::GetStockObject(nIndex);
    return CGdiObject::FromHandle(OnBoth(*this, [handle](HDC dc) { return ::SelectObject(dc, handle); }));
}

COLORREF CDC::SetBkColor(COLORREF crColor) {
    return OnBoth(*this, [crColor](HDC dc) { return ::SetBkColor(dc, crColor); });
}

COLORREF CDC::SetTextColor(COLORREF crColor) {
    return OnBoth(*this, [crColor](HDC dc) { return ::SetTextColor(dc, crColor); });
}

int CDC::SetBkMode(int nBkMode) {
    return OnBoth(*this, [nBkMode](HDC dc) { return ::SetBkMode(dc, nBkMode); });
}

int CDC::SetROP2(int nDrawMode) {
    return OnBoth(*this, [nDrawMode](HDC dc) { return ::SetROP2(dc, nDrawMode); });
}

int CDC::SetStretchBltMode(int nStretchMode) {
    return OnBoth(*this, [nStretchMode](HDC dc) { return ::SetStretchBltMode(dc, nStretchMode); });
}

UINT CDC::SetTextAlign(UINT nFlags) {
    return OnBoth(*this, [nFlags](HDC dc) { return ::SetTextAlign(dc, nFlags); });
}

int CDC::SetMapMode(int nMapMode) {
    return OnBoth(*this, [nMapMode](HDC dc) { return ::SetMapMode(dc, nMapMode); });
}

CPoint CDC::SetViewportOrg(int x, int y) {
    CPoint before;
    OnBoth(*this, [&](HDC dc) { return ::SetViewportOrgEx(dc, x, y, &before); });
    return before;
}

CSize CDC::SetViewportExt(int cx, int cy) {
    CSize before;
    OnBoth(*this, [&](HDC dc) { return ::SetViewportExtEx(dc, cx, cy, &before); });
    return before;
}

CPoint CDC::SetWindowOrg(int x, int y) {
    CPoint before;
    OnBoth(*this, [&](HDC dc) { return ::SetWindowOrgEx(dc, x, y, &before); });
    return before;
}

CSize CDC::SetWindowExt(int cx, int cy) {
    CSize before;
    OnBoth(*this, [&](HDC dc) { return ::SetWindowExtEx(dc, cx, cy, &before); });
    return before;
}

CPoint CDC::GetViewportOrg() const {
    CPoint origin;
    ::GetViewportOrgEx(m_hAttribDC, &origin);
    return origin;
}

CSize CDC::GetViewportExt() const {
    CSize extent;
    ::GetViewportExtEx(m_hAttribDC, &extent);
    return extent;
}

CPoint CDC::GetWindowOrg() const {
    CPoint origin;
    ::GetWindowOrgEx(m_hAttribDC, &origin);
    return origin;
}

CSize CDC::GetWindowExt() const {
    CSize extent;
    ::GetWindowExtEx(m_hAttribDC, &extent);
    return extent;
}

void CDC::DPtoLP(LPSIZE lpSize) const {
    CSize window = GetWindowExt();
    CSize viewport = GetViewportExt();
    lpSize->cx = ScaleLength(lpSize->cx, window.cx, viewport.cx);
    lpSize->cy = ScaleLength(lpSize->cy, window.cy, viewport.cy);
}

void CDC::LPtoDP(LPSIZE lpSize) const {
    CSize window = GetWindowExt();
    CSize viewport = GetViewportExt();
    lpSize->cx = ScaleLength(lpSize->cx, viewport.cx, window.cx);
    lpSize->cy = ScaleLength(lpSize->cy, viewport.cy, window.cy);
}

int CDC::SelectClipRgn(CRgn* pRgn) {
    HRGN region = pRgn ? static_cast<HRGN>(*pRgn) : nullptr;
    return OnBoth(*this, [region](HDC dc) { return ::SelectClipRgn(dc, region); });
}

int CDC::IntersectClipRect(int x1, int y1, int x2, int y2) {
    return OnBoth(*this, [=](HDC dc) { return ::IntersectClipRect(dc, x1, y1, x2, y2); });
}

int CDC::ExcludeClipRect(LPCRECT lpRect) {
    return OnBoth(*this, [lpRect](HDC dc) {
        return ::ExcludeClipRect(dc, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    });
}

CPoint CDC::MoveTo(int x, int y) {
    CPoint before;
    OnBoth(*this, [&](HDC dc) { return ::MoveToEx(dc, x, y, &before); });
    return before;
}

BOOL CDC::LineTo(int x, int y) {
    if (m_hAttribDC && m_hAttribDC != m_hDC)
        ::MoveToEx(m_hAttribDC, x, y, nullptr);  // the line is drawn once, the position moves on both
    return ::LineTo(m_hDC, x, y);
}

void CDC::FillSolidRect(LPCRECT lpRect, COLORREF clr) {
    ::SetBkColor(m_hDC, clr);
    ::ExtTextOut(m_hDC, 0, 0, ETO_OPAQUE, lpRect, nullptr, 0, nullptr);
}

void CDC::FillSolidRect(int x, int y, int cx, int cy, COLORREF clr) {
    RECT rect{x, y, x + cx, y + cy};
    FillSolidRect(&rect, clr);
}

void CDC::Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight) {
    int width = lpRect->right - lpRect->left;
    int height = lpRect->bottom - lpRect->top;
    FillSolidRect(lpRect->left, lpRect->top, width - 1, 1, clrTopLeft);
    FillSolidRect(lpRect->left, lpRect->top, 1, height - 1, clrTopLeft);
    FillSolidRect(lpRect->right - 1, lpRect->top, 1, height, clrBottomRight);
    FillSolidRect(lpRect->left, lpRect->bottom - 1, width, 1, clrBottomRight);
}

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount) {
    return ::TextOut(m_hDC, x, y, lpszString, nCount);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat) {
    return ::DrawText(m_hDC, lpszString, nCount, lpRect, nFormat);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const {
    CSize size;
    ::GetTextExtentPoint32(m_hAttribDC, lpszString, nCount, &size);
    return size;
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd ? pWnd->m_hWnd : nullptr) {
    if (!Attach(::GetDC(m_hWnd)))
        AfxThrowResourceException();
}

CClientDC::~CClientDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CWindowDC::CWindowDC(CWnd* pWnd) : m_hWnd(pWnd ? pWnd->m_hWnd : nullptr) {
    if (!Attach(::GetWindowDC(m_hWnd)))
        AfxThrowResourceException();
}

CWindowDC::~CWindowDC() {
    ::ReleaseDC(m_hWnd, Detach());
}

CPaintDC::CPaintDC(CWnd* pWnd) : m_ps{}, m_hWnd(pWnd->m_hWnd) {
    if (!Attach(::BeginPaint(m_hWnd, &m_ps)))
        AfxThrowResourceException();
}

CPaintDC::~CPaintDC() {
    Detach();
    ::EndPaint(m_hWnd, &m_ps);
}
