// The tabs themselves: their list, their places, what is where.
#include "window/TabCtrl.h"

#include "TabEditor.h"

#include "window/Tools.h"

#include <algorithm>

namespace Lumo {

namespace {

// At 96 dots per inch.
constexpr int kButton = 18;    // side of close, add and scroll buttons
constexpr int kButtonGap = 6;  // between a button and what is beside it
constexpr int kImageGap = 4;   // between a picture and the text
constexpr int kAddArea = kButton + 2 * kButtonGap;
constexpr int kScrollArea = 2 * kButton + 2 * kButtonGap;

}  // namespace

IMPLEMENT_DYNAMIC(TabCtrl, CWnd)

TabCtrl::TabCtrl() : m_style(std::make_unique<FlatTabStyle>()) {
    ApplyDpi();
}

TabCtrl::~TabCtrl() {
    if (m_hWnd)
        DestroyWindow();
}

BOOL TabCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    const LPCWSTR windowClass = AfxRegisterWndClass(CS_DBLCLKS, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CreateEx(0, windowClass, L"Tabs", style | WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, rect, parent,
                  id))
        return FALSE;
    ApplyDpi();
    Changed();
    return TRUE;
}

void TabCtrl::SetStyle(std::unique_ptr<TabStyle> style) {
    m_style = style ? std::move(style) : std::make_unique<FlatTabStyle>();
    ApplyDpi();
    Changed();
}

void TabCtrl::SetDpi(int dpi) {
    m_dpi = dpi;
    ApplyDpi();
    Changed();
}

void TabCtrl::ApplyDpi() {
    m_style->SetDpi(m_dpi > 0 ? m_dpi : Tools::DpiOf(m_hWnd));
}

LRESULT TabCtrl::OnDpiChanged(WPARAM, LPARAM) {
    ApplyDpi();
    Changed();
    return 0;
}

void TabCtrl::SetSide(TabSide side) {
    m_side = side;
    TurnImages();
    Changed();
}

void TabCtrl::SetPageFrame(bool shown) {
    m_pageFrame = shown;
    Changed();
}

void TabCtrl::SetImages(HIMAGELIST list) {
    m_images = list;
    TurnImages();
    Changed();
}

// Texts are read upwards at the left, and downwards at the right.
void TabCtrl::TurnImages() {
    m_turned.Destroy();
    if (IsUpright())
        m_turned.Create(m_images);
    for (int turn = 1; turn < 3 && m_side == TabSide::kRight; ++turn)
        m_turned.Create(m_turned.Get());
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

bool TabCtrl::SetTabImage(int index, int image) {
    if (!IsTab(index))
        return false;
    m_tabs[index].image = image;
    Changed();
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
        const int text = dc.GetTextExtent(tab.text).cx;
        tab.left = left;
        tab.width = m_style->TabWidth(text) + ImageLength(static_cast<int>(&tab - m_tabs.data())) +
                    (m_closeButtons ? m_style->Scaled(kButton) : 0);
        left += tab.width + m_style->Gap();
    }
    ::SelectObject(dc, oldFont);
    m_scrolling = false;
    m_scrolling = ContentLength() > StripLength();
    ScrollTo(m_offset);
}

CRect TabCtrl::StripRect() const {
    CRect strip;
    GetClientRect(strip);
    if (!m_pageFrame)
        return strip;
    const int depth = m_style->Height();
    switch (m_side) {
        case TabSide::kBelow:
            strip.top = strip.bottom - depth;
            break;
        case TabSide::kLeft:
            strip.right = strip.left + depth;
            break;
        case TabSide::kRight:
            strip.left = strip.right - depth;
            break;
        default:
            strip.bottom = strip.top + depth;
    }
    return strip;
}

CRect TabCtrl::GetPageRect() const {
    CRect area(0, 0, 0, 0);
    if (!m_pageFrame || !m_hWnd)
        return area;
    CRect client;
    GetClientRect(client);
    area.SubtractRect(client, StripRect());
    const int frame = m_style->FrameWidth();
    area.DeflateRect(frame, frame);
    return area.Width() > 0 && area.Height() > 0 ? area : CRect(0, 0, 0, 0);
}

int TabCtrl::StripLength() const {
    const CRect strip = StripRect();
    return IsUpright() ? strip.Height() : strip.Width();
}

// How far along the strip a point is.
int TabCtrl::Along(CPoint point) const {
    const CPoint begin = StripRect().TopLeft();
    return IsUpright() ? point.y - begin.y : point.x - begin.x;
}

// The part of the strip between two places along it.
CRect TabCtrl::Cell(int from, int to) const {
    CRect cell = StripRect();
    if (IsUpright()) {
        cell.bottom = cell.top + to;
        cell.top += from;
    } else {
        cell.right = cell.left + to;
        cell.left += from;
    }
    return cell;
}

// A button in the middle of the tabs' depth.
CRect TabCtrl::ButtonRect(int from) const {
    const int button = m_style->Scaled(kButton);
    const CPoint middle = m_style->TabBounds(StripRect(), m_side).CenterPoint();
    const CRect cell = Cell(from, from + button);
    const CPoint corner =
        IsUpright() ? CPoint(middle.x - button / 2, cell.top) : CPoint(cell.left, middle.y - button / 2);
    return CRect(corner, CSize(button, button));
}

// A button where a tab's text ends.
CRect TabCtrl::CloseRect(const CRect& tab) const {
    const int button = m_style->Scaled(kButton);
    const int gap = m_style->Scaled(kButtonGap);
    const CPoint middle = tab.CenterPoint();
    CPoint corner(tab.right - button - gap, middle.y - button / 2);
    if (m_side == TabSide::kLeft)
        corner = CPoint(middle.x - button / 2, tab.top + gap);
    else if (m_side == TabSide::kRight)
        corner = CPoint(middle.x - button / 2, tab.bottom - button - gap);
    return CRect(corner, CSize(button, button));
}

// What a tab's picture takes along the strip.
int TabCtrl::ImageLength(int index) const {
    int width = 0, height = 0;
    if (m_tabs[index].image < 0 || !m_images || !::ImageList_GetIconSize(m_images, &width, &height))
        return 0;
    return width + m_style->Scaled(kImageGap);
}

// Length of the tabs and, as long as everything fits, the add button behind them.
int TabCtrl::ContentLength() const {
    const int tabs = m_tabs.empty() ? m_style->Indent() : m_tabs.back().left + m_tabs.back().width;
    return tabs + (m_addButton && !m_scrolling ? m_style->Scaled(kAddArea) : 0);
}

// Length of the part that shows tabs; when they scroll the buttons stay beside it.
int TabCtrl::VisibleLength() const {
    const int buttons = m_scrolling ? kScrollArea + (m_addButton ? kAddArea : 0) : 0;
    return (std::max)(StripLength() - m_style->Scaled(buttons), 0);
}

void TabCtrl::ScrollTo(int offset) {
    offset = std::clamp(offset, 0, (std::max)(ContentLength() - VisibleLength(), 0));
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
    if (tab.left + tab.width + margin > m_offset + VisibleLength())
        ScrollTo(tab.left + tab.width + margin - VisibleLength());
    if (tab.left - margin < m_offset)
        ScrollTo(tab.left - margin);
}

CRect TabCtrl::GetTabRect(int index) const {
    if (!IsTab(index) || !m_hWnd)
        return CRect(0, 0, 0, 0);
    const Tab& tab = m_tabs[index];
    return m_style->TabBounds(Cell(tab.left - m_offset, tab.left + tab.width - m_offset), m_side);
}

CRect TabCtrl::GetPartRect(TabPart part, int index) const {
    const CRect none(0, 0, 0, 0);
    if (!m_hWnd)
        return none;
    const int first = StripLength() - m_style->Scaled(kScrollArea - kButtonGap);
    switch (part) {
        case TabPart::kTab:
            return GetTabRect(index);
        case TabPart::kClose:
            return m_closeButtons && IsTab(index) ? CloseRect(GetTabRect(index)) : none;
        case TabPart::kAdd:
            return m_addButton ? ButtonRect(AddLeft()) : none;
        case TabPart::kScrollLeft:
            return m_scrolling ? ButtonRect(first) : none;
        case TabPart::kScrollRight:
            return m_scrolling ? ButtonRect(first + m_style->Scaled(kButton)) : none;
        default:
            return none;
    }
}

int TabCtrl::AddLeft() const {
    return m_scrolling ? VisibleLength() + m_style->Scaled(kButtonGap)
                       : ContentLength() - m_style->Scaled(kButton + kButtonGap) - m_offset;
}

TabPart TabCtrl::HitTest(CPoint point, int* tab) const {
    const Place place = PlaceAt(point);
    if (tab)
        *tab = place.tab;
    return place.part;
}

TabCtrl::Place TabCtrl::PlaceAt(CPoint point) const {
    if (!StripRect().PtInRect(point))
        return {};
    for (TabPart part : {TabPart::kAdd, TabPart::kScrollLeft, TabPart::kScrollRight}) {
        if (GetPartRect(part).PtInRect(point))
            return {part, -1};
    }
    if (Along(point) >= VisibleLength())
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

// Over the tab; texts are not typed upwards, so beside the pages it leaves the strip.
CRect TabCtrl::EditorRect(int index) const {
    CRect rect = GetTabRect(index);
    const int inset = m_style->Scaled(3);
    rect.DeflateRect(inset, inset);
    if (IsUpright()) {
        rect.right = rect.left + m_style->Scaled(160);
        rect.bottom = rect.top + m_style->Scaled(24);
        ClientToScreen(rect);
        return Tools::KeepOnScreen(rect);
    }
    const int right =
        (std::max)(static_cast<int>(rect.right), static_cast<int>(rect.left) + m_style->Scaled(80));
    rect.right = (std::min)(right, static_cast<int>(StripRect().left) + VisibleLength());
    return rect;
}

bool TabCtrl::BeginRename(int index) {
    EndRename(true);
    if (!m_rename || !IsTab(index) || !m_hWnd || Notify(TABN_BEGINRENAME, index))
        return false;
    EnsureVisible(index);
    auto editor = std::make_unique<Editor>(*this);
    if (!editor->Open(EditorRect(index), IsUpright(), m_tabs[index].text, m_style->Font()))
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
