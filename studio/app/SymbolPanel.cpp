#include "studio/app/SymbolPanel.h"

#include "studio/app/Painting.h"
#include "studio/document/PageImage.h"

#include <shlobj.h>

#include <algorithm>
#include <utility>

namespace Studio {

using namespace Gdiplus;

namespace {

constexpr int kHead = 64;
constexpr int kMargin = 10;
constexpr int kPictureHeight = 64;
constexpr int kName = 22;
constexpr int kCell = kPictureHeight + kName + 12;
constexpr int kFolderHeight = 24;
constexpr int kFolderTop = 32;
constexpr DWORD kPictureGround = 0xFF14171C;

COLORREF ToColorRef(DWORD argb) {
    return RGB(argb >> 16 & 0xFF, argb >> 8 & 0xFF, argb & 0xFF);
}

void DrawLabel(CDC& dc, const CString& text, CRect rect, DWORD color, UINT format) {
    dc.SetTextColor(ToColorRef(color));
    dc.DrawText(text, rect, format | DT_NOPREFIX);
}

constexpr UINT kLine = DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS;

}  // namespace

BEGIN_MESSAGE_MAP(SymbolPanel, CWnd)
    ON_WM_PAINT()
    ON_WM_ERASEBKGND()
    ON_WM_SIZE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSELEAVE()
    ON_WM_LBUTTONDOWN()
    ON_WM_LBUTTONUP()
    ON_WM_CAPTURECHANGED()
    ON_WM_SETCURSOR()
END_MESSAGE_MAP()

bool SymbolPanel::Create(CWnd& parent) {
    const LPCWSTR windowClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return CreateEx(0, windowClass, L"Symbols", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0),
                    &parent, 0) != FALSE;
}

void SymbolPanel::ShowFolder(const CString& folder) {
    m_folder = folder;
    m_entries.clear();
    for (const CString& path : FindSymbols(folder))
        m_entries.push_back({path, nullptr});
    m_offset = 0;
    m_hot = m_pressed = kNothing;
    if (m_hWnd)
        Invalidate(FALSE);
}

CRect SymbolPanel::CellRect(int index) const {
    return CRect(CPoint(kMargin, kHead + index * kCell - m_offset), CSize(kWidth - 2 * kMargin, kCell - 6));
}

CRect SymbolPanel::FolderRect() const {
    return CRect(CPoint(kMargin, kFolderTop), CSize(kWidth - 2 * kMargin, kFolderHeight));
}

int SymbolPanel::PartAt(CPoint point) const {
    if (FolderRect().PtInRect(point))
        return kFolderButton;
    if (point.y < kHead)
        return kNothing;
    for (int index = 0; index < static_cast<int>(m_entries.size()); ++index) {
        if (CellRect(index).PtInRect(point))
            return index;
    }
    return kNothing;
}

void SymbolPanel::SetHot(int part) {
    if (std::exchange(m_hot, part) != part)
        Invalidate(FALSE);
}

void SymbolPanel::ScrollTo(int offset) {
    CRect client;
    GetClientRect(client);
    const int most = static_cast<int>(m_entries.size()) * kCell + kHead - client.Height();
    offset = std::clamp(offset, 0, std::max(most, 0));
    if (std::exchange(m_offset, offset) != offset)
        Invalidate(FALSE);
}

BOOL SymbolPanel::OnEraseBkgnd(CDC*) {
    return TRUE;
}

void SymbolPanel::OnSize(UINT type, int cx, int cy) {
    CWnd::OnSize(type, cx, cy);
    ScrollTo(m_offset);
    Invalidate(FALSE);
}

void SymbolPanel::OnPaint() {
    CPaintDC window(this);
    CRect client;
    GetClientRect(client);
    CDC dc;
    dc.CreateCompatibleDC(&window);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&window, client.Width(), client.Height());
    const HGDIOBJ oldBitmap = ::SelectObject(dc, bitmap);
    const HGDIOBJ oldFont = ::SelectObject(dc, BarFont());
    dc.SetBkMode(TRANSPARENT);
    dc.FillSolidRect(client, ToColorRef(Palette::kBar));
    for (int index = 0; index < static_cast<int>(m_entries.size()); ++index) {
        CRect seen;
        if (seen.IntersectRect(CellRect(index), client))
            PaintCell(dc, index);
    }
    PaintHead(dc);
    if (m_entries.empty())
        DrawLabel(dc, GetText(Text::kSymbolsNone), CRect(kMargin, kHead + 8, kWidth - kMargin, kHead + 80),
                  Palette::kQuietText, DT_WORDBREAK | DT_CENTER);
    dc.FillSolidRect(kWidth - 1, 0, 1, client.Height(), ToColorRef(Palette::kEdge));
    ::BitBlt(window, 0, 0, client.Width(), client.Height(), dc, 0, 0, SRCCOPY);
    ::SelectObject(dc, oldFont);
    ::SelectObject(dc, oldBitmap);
}

DWORD SymbolPanel::FaceOf(int part, DWORD plain) const {
    if (m_hot != part)
        return plain;
    return m_pressed == part ? Palette::kPressed : Palette::kHover;
}

// Stays while the symbols scroll under it.
void SymbolPanel::PaintHead(CDC& dc) const {
    dc.FillSolidRect(0, 0, kWidth, kHead, ToColorRef(Palette::kBar));
    DrawLabel(dc, GetText(Text::kSymbols), CRect(kMargin, 6, kWidth - kMargin, 28), Palette::kText, kLine);
    CRect button = FolderRect();
    dc.FillSolidRect(button, ToColorRef(Palette::kEdge));
    button.DeflateRect(1, 1);
    dc.FillSolidRect(button, ToColorRef(FaceOf(kFolderButton, 0xFFFFFFFF)));
    DrawLabel(dc, GetText(Text::kSymbolsFolder), button, Palette::kText, kLine | DT_CENTER);
}

void SymbolPanel::PaintCell(CDC& dc, int index) {
    const CRect cell = CellRect(index);
    dc.FillSolidRect(cell, ToColorRef(FaceOf(index, Palette::kBar)));
    Entry& entry = m_entries[index];
    Graphics g(dc.m_hDC);
    g.DrawImage(&PictureOf(entry), static_cast<INT>(cell.left) + 4, static_cast<INT>(cell.top) + 4);
    DrawLabel(dc, SymbolName(entry.path),
              CRect(cell.left + 2, cell.bottom - kName, cell.right - 2, cell.bottom), Palette::kText,
              kLine | DT_CENTER);
}

// A file that is no symbol shows an empty ground; inserting it says why.
Bitmap& SymbolPanel::PictureOf(Entry& entry) {
    if (entry.picture)
        return *entry.picture;
    const CSize size(kWidth - 2 * kMargin - 8, kPictureHeight);
    ObjectPtr symbol;
    CString reason;
    AttemptFile([&] { symbol = LoadSymbol(entry.path); }, reason);
    Lumo::CUIObjectDeque objects;
    if (symbol)
        objects.push_back(symbol.get());
    entry.picture = DrawSmooth(size.cx, size.cy, [&](Graphics& g) {
        g.Clear(Color(kPictureGround));
        DrawFitted(g, objects, size);
    });
    return *entry.picture;
}

void SymbolPanel::OnMouseMove(UINT flags, CPoint point) {
    TRACKMOUSEEVENT track = {sizeof track, TME_LEAVE, m_hWnd, 0};
    ::TrackMouseEvent(&track);
    SetHot(PartAt(point));
    const bool held = (flags & MK_LBUTTON) && m_pressed >= 0;
    const CSize way = point - m_pressedAt;
    if (held && (std::abs(way.cx) > ::GetSystemMetrics(SM_CXDRAG) ||
                 std::abs(way.cy) > ::GetSystemMetrics(SM_CYDRAG)))
        m_dragging = true;
    if (m_dragging)
        ::SetCursor(::LoadCursor(nullptr, IDC_CROSS));
}

BOOL SymbolPanel::OnSetCursor(CWnd*, UINT, UINT) {
    ::SetCursor(::LoadCursor(nullptr, m_hot == kNothing ? IDC_ARROW : IDC_HAND));
    return TRUE;
}

void SymbolPanel::OnMouseLeave() {
    SetHot(kNothing);
}

void SymbolPanel::OnLButtonDown(UINT, CPoint point) {
    m_pressed = PartAt(point);
    m_pressedAt = point;
    m_dragging = false;
    SetHot(m_pressed);
    if (m_pressed != kNothing)
        SetCapture();
    Invalidate(FALSE);
}

void SymbolPanel::OnLButtonUp(UINT, CPoint point) {
    const int pressed = m_pressed;
    const bool dragged = m_dragging;
    if (GetCapture() == this)
        ReleaseCapture();
    if (pressed == kFolderButton && PartAt(point) == kFolderButton) {
        ChooseFolder();
    } else if (pressed >= 0 && onInsert) {
        // A copy: the call may show another folder.
        const CString path = m_entries[pressed].path;
        CPoint screen = point;
        ClientToScreen(&screen);
        if (PartAt(point) == pressed)
            onInsert(path, nullptr);
        else if (dragged)
            onInsert(path, &screen);
    }
}

void SymbolPanel::OnCaptureChanged(CWnd*) {
    m_pressed = kNothing;
    m_dragging = false;
    Invalidate(FALSE);
}

void SymbolPanel::ScrollByWheel(short turn) {
    ScrollTo(m_offset - turn * kCell / WHEEL_DELTA);
}

void SymbolPanel::ChooseFolder() {
    BROWSEINFO info = {};
    info.hwndOwner = GetTopLevelParent()->m_hWnd;
    info.lpszTitle = GetText(Text::kSymbolsFolderTitle);
    info.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE;
    LPITEMIDLIST chosen = ::SHBrowseForFolder(&info);
    if (!chosen)
        return;
    WCHAR folder[MAX_PATH];
    if (::SHGetPathFromIDList(chosen, folder)) {
        ShowFolder(folder);
        if (onFolder)
            onFolder();
    }
    ::CoTaskMemFree(chosen);
}

}  // namespace Studio
