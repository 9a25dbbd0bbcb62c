// The tabs themselves: their list, their places, what is where.
#include "window/TabCtrl.h"

#include "TabEditor.h"

#include <algorithm>

namespace Lumo {

namespace {

constexpr int kButton = 18;    // side of close, add and scroll buttons
constexpr int kButtonGap = 6;  // between a button and what is beside it
constexpr int kAddArea = kButton + 2 * kButtonGap;
constexpr int kScrollArea = 2 * kButton + 2 * kButtonGap;

}  // namespace

IMPLEMENT_DYNAMIC(TabCtrl, CWnd)

TabCtrl::TabCtrl() : m_style(std::make_unique<FlatTabStyle>()) {}

TabCtrl::~TabCtrl() {
    if (m_hWnd)
        DestroyWindow();
}

BOOL TabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    const LPCWSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CreateEx(0, windowClass, L"Tabs", style | WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, rect, parent,
                  id))
        return FALSE;
    Changed();
    return TRUE;
}

void TabCtrl::SetStyle(std::unique_ptr<TabStyle> style) {
    m_style = style ? std::move(style) : std::make_unique<FlatTabStyle>();
    Changed();
}

void TabCtrl::SetSide(TabSide side) {
    m_side = side;
    Changed();
}

void TabCtrl::SetCloseButtons(bool shown) {
    m_closeButtons = shown;
    Changed();
}

void TabCtrl::SetAddButton(bool shown) {
    m_addButton = shown;
    Changed();
}

int TabCtrl::AddTab(LPCWSTR text, DWORD_PTR data) {
    return InsertTab(GetTabCount(), text, data);
}

int TabCtrl::InsertTab(int index, LPCWSTR text, DWORD_PTR data) {
    EndRename(false);
    EndDrag();
    index = std::clamp(index, 0, GetTabCount());
    m_tabs.insert(m_tabs.begin() + index, {text, data});
    if (m_current < 0)
        m_current = 0;
    else if (m_current >= index)
        ++m_current;
    Changed();
    return index;
}

bool TabCtrl::RemoveTab(int index) {
    if (!IsTab(index))
        return false;
    EndRename(false);
    EndDrag();
    m_tabs.erase(m_tabs.begin() + index);
    if (m_current > index || m_current == GetTabCount())
        --m_current;
    Changed();
    return true;
}

void TabCtrl::RemoveAllTabs() {
    EndRename(false);
    EndDrag();
    m_tabs.clear();
    m_current = -1;
    Changed();
}

bool TabCtrl::MoveTab(int from, int to) {
    if (!IsTab(from) || !IsTab(to))
        return false;
    EndRename(false);
    EndDrag();
    const auto first = m_tabs.begin();
    if (from < to)
        std::rotate(first + from, first + from + 1, first + to + 1);
    else
        std::rotate(first + to, first + from, first + from + 1);
    if (m_current == from)
        m_current = to;
    else if (from < m_current && m_current <= to)
        --m_current;
    else if (to <= m_current && m_current < from)
        ++m_current;
    Changed();
    return true;
}

CString TabCtrl::GetTabText(int index) const {
    return IsTab(index) ? m_tabs[index].text : CString();
}

bool TabCtrl::SetTabText(int index, LPCWSTR text) {
    if (!IsTab(index))
        return false;
    m_tabs[index].text = text;
    Changed();
    return true;
}

DWORD_PTR TabCtrl::GetTabData(int index) const {
    return IsTab(index) ? m_tabs[index].data : 0;
}

bool TabCtrl::SetTabData(int index, DWORD_PTR data) {
    if (!IsTab(index))
        return false;
    m_tabs[index].data = data;
    return true;
}

bool TabCtrl::SetCurrent(int index) {
    if (!IsTab(index))
        return false;
    if (m_current != index) {
        m_current = index;
        if (m_hWnd)
            Invalidate(FALSE);
    }
    EnsureVisible(index);
    return true;
}

// Everything that changes texts, number, order or look ends here.
void TabCtrl::Changed() {
    if (!m_hWnd)
        return;
    m_hot = {};
    Arrange();
    Invalidate(FALSE);
}

void TabCtrl::Arrange() {
    CClientDC dc(this);
    const HGDIOBJ oldFont = ::SelectObject(dc, m_style->Font());
    int left = m_style->Indent();
    for (Tab& tab : m_tabs) {
        tab.left = left;
        tab.width = m_style->TabWidth(dc.GetTextExtent(tab.text).cx) + (m_closeButtons ? kButton : 0);
        left += tab.width + m_style->Gap();
    }
    ::SelectObject(dc, oldFont);
    CRect client;
    GetClientRect(client);
    m_scrolling = false;
    m_scrolling = ContentWidth() > client.Width();
    ScrollTo(m_offset);
}

// Width of the tabs and, as long as everything fits, the add button behind them.
int TabCtrl::ContentWidth() const {
    const int tabs = m_tabs.empty() ? m_style->Indent() : m_tabs.back().left + m_tabs.back().width;
    return tabs + (m_addButton && !m_scrolling ? kAddArea : 0);
}

// Width of the part that shows tabs; when they scroll the buttons stay beside it.
int TabCtrl::VisibleWidth() const {
    CRect client;
    GetClientRect(client);
    const int buttons = m_scrolling ? kScrollArea + (m_addButton ? kAddArea : 0) : 0;
    return (std::max)(static_cast<int>(client.Width()) - buttons, 0);
}

void TabCtrl::ScrollTo(int offset) {
    offset = std::clamp(offset, 0, (std::max)(ContentWidth() - VisibleWidth(), 0));
    if (offset == m_offset)
        return;
    m_offset = offset;
    Invalidate(FALSE);
}

void TabCtrl::EnsureVisible(int index) {
    if (!IsTab(index) || !m_hWnd)
        return;
    const Tab& tab = m_tabs[index];
    const int margin = m_style->Indent();
    if (tab.left + tab.width + margin > m_offset + VisibleWidth())
        ScrollTo(tab.left + tab.width + margin - VisibleWidth());
    if (tab.left - margin < m_offset)
        ScrollTo(tab.left - margin);
}

CRect TabCtrl::GetTabRect(int index) const {
    if (!IsTab(index) || !m_hWnd)
        return CRect(0, 0, 0, 0);
    CRect client;
    GetClientRect(client);
    const Tab& tab = m_tabs[index];
    const CRect cell(tab.left - m_offset, 0, tab.left + tab.width - m_offset, client.bottom);
    return m_style->TabBounds(cell, m_side);
}

CRect TabCtrl::GetPartRect(TabPart part, int index) const {
    CRect rect(0, 0, 0, 0);
    if (!m_hWnd)
        return rect;
    CRect client;
    GetClientRect(client);
    const CSize size(kButton, kButton);
    const int top = m_style->TabBounds(client, m_side).CenterPoint().y - kButton / 2;
    switch (part) {
        case TabPart::kTab:
            return GetTabRect(index);
        case TabPart::kClose:
            if (m_closeButtons && IsTab(index)) {
                const CRect tab = GetTabRect(index);
                rect =
                    CRect(CPoint(tab.right - kButton - kButtonGap, tab.CenterPoint().y - kButton / 2), size);
            }
            break;
        case TabPart::kAdd:
            if (m_addButton)
                rect = CRect(CPoint(AddLeft(), top), size);
            break;
        case TabPart::kScrollLeft:
        case TabPart::kScrollRight:
            if (m_scrolling) {
                const int left = client.right - kScrollArea + kButtonGap;
                rect = CRect(CPoint(part == TabPart::kScrollRight ? left + kButton : left, top), size);
            }
            break;
        default:
            break;
    }
    return rect;
}

int TabCtrl::AddLeft() const {
    return m_scrolling ? VisibleWidth() + kButtonGap : ContentWidth() - kButton - kButtonGap - m_offset;
}

TabPart TabCtrl::HitTest(CPoint point, int* tab) const {
    const Place place = PlaceAt(point);
    if (tab)
        *tab = place.tab;
    return place.part;
}

TabCtrl::Place TabCtrl::PlaceAt(CPoint point) const {
    CRect client;
    GetClientRect(client);
    if (!client.PtInRect(point))
        return {};
    for (TabPart part : {TabPart::kAdd, TabPart::kScrollLeft, TabPart::kScrollRight}) {
        if (GetPartRect(part).PtInRect(point))
            return {part, -1};
    }
    if (point.x >= VisibleWidth())
        return {};
    for (int index = 0; index < GetTabCount(); ++index) {
        if (GetPartRect(TabPart::kClose, index).PtInRect(point))
            return {TabPart::kClose, index};
        if (GetTabRect(index).PtInRect(point))
            return {TabPart::kTab, index};
    }
    return {};
}

LRESULT TabCtrl::Notify(TabNotifyCode code, int tab, int target, LPCWSTR text, CPoint at) {
    const HWND parent = ::GetParent(m_hWnd);
    TabNotify notify = {{m_hWnd, static_cast<UINT_PTR>(GetDlgCtrlID()), code}, tab, target, text, at};
    return ::SendMessage(parent, WM_NOTIFY, notify.hdr.idFrom, reinterpret_cast<LPARAM>(&notify));
}

// The user makes a tab current.
void TabCtrl::Choose(int index) {
    if (!IsTab(index) || index == m_current || Notify(TABN_CHANGING, index))
        return;
    if (SetCurrent(index))
        Notify(TABN_CHANGED, index);
}

bool TabCtrl::BeginRename(int index) {
    EndRename(true);
    if (!m_rename || !IsTab(index) || !m_hWnd || Notify(TABN_BEGINRENAME, index))
        return false;
    EnsureVisible(index);
    CRect rect = GetTabRect(index);
    rect.DeflateRect(3, 3);
    rect.right = std::min<LONG>(std::max<LONG>(rect.right, rect.left + 80), VisibleWidth());
    auto editor = std::make_unique<Editor>(*this);
    if (!editor->Open(rect, m_tabs[index].text, m_style->Font()))
        return false;
    m_edit = std::move(editor);
    m_renamed = index;
    return true;
}

void TabCtrl::EndRename(bool accept) {
    const auto editor = std::move(m_edit);
    if (!editor)
        return;
    const int index = m_renamed;
    CString text;
    editor->GetWindowText(text);
    text.Trim();
    editor->DestroyWindow();
    const bool changed = accept && IsTab(index) && !text.IsEmpty() && text != m_tabs[index].text;
    if (changed && !Notify(TABN_RENAME, index, -1, text))
        SetTabText(index, text);
    Notify(TABN_ENDRENAME, index);
}

LRESULT TabCtrl::OnEditorLeft(WPARAM, LPARAM editor) {
    if (m_edit && reinterpret_cast<LPARAM>(m_edit.get()) == editor)
        EndRename(true);
    return 0;
}

}  // namespace Lumo
