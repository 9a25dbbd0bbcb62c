#include "canvas/UIEdit.h"

#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UICanvas.h"
#include "core/Geometry.h"

namespace Lumo {

namespace {

constexpr DWORD kEditStyle = WS_CHILD | WS_VISIBLE | WS_TABSTOP | ES_CENTER | ES_AUTOVSCROLL |
                             ES_AUTOHSCROLL | ES_NOHIDESEL | ES_WANTRETURN;
constexpr UINT kEditId = 1010;

}  // namespace

IMPLEMENT_DYNAMIC(CUIEdit, CEdit)

BEGIN_MESSAGE_MAP(CUIEdit, CEdit)
    ON_WM_CREATE()
    ON_WM_CHAR()
END_MESSAGE_MAP()

CUIEdit::CUIEdit() = default;

CUIEdit::~CUIEdit() = default;

BOOL CUIEdit::Create(CWnd* parent, CUIEdit** ownerSlot, CUIObjectTextEdit* obj) {
    m_rect = RectAtlFromGdi(obj->GetPosition());
    if (auto* canvas = dynamic_cast<CUICanvas*>(parent))
        canvas->DocToClient(m_rect);
    obj->SetEditing(1);
    m_ppOwner = ownerSlot;
    m_pObject = obj;
    return CEdit::Create(kEditStyle, m_rect, parent, kEditId);
}

int CUIEdit::OnCreate(LPCREATESTRUCT create) {
    return CEdit::OnCreate(create) == -1 ? -1 : 0;
}

void CUIEdit::InitialText() {
    SetWindowText(m_pObject->GetText());
    calcTextMetrics();
    SetSel(0, -1);  // which scrolls the caret into view, too
}

void CUIEdit::ChangeFont(LOGFONT& lf) {
    m_font.DeleteObject();
    if (!m_font.CreateFontIndirect(&lf))
        return;
    SetFont(&m_font);
    calcTextMetrics();
}

void CUIEdit::calcTextMetrics() {
    CClientDC dc(this);
    CFont* font = GetFont();
    CFont* old = font != nullptr ? dc.SelectObject(font) : nullptr;
    TEXTMETRIC metrics;
    if (dc.GetTextMetrics(&metrics)) {
        m_nCharWidth = metrics.tmAveCharWidth;
        m_nLineHeight = metrics.tmHeight + metrics.tmExternalLeading;
    }
    if (old != nullptr)
        dc.SelectObject(old);
}

void CUIEdit::ReSize() {
    const int height = m_nLineHeight * GetLineCount();
    MoveWindow(m_rect.left, m_rect.top + (m_rect.Height() - height) / 2, m_rect.Width(), height);
}

void CUIEdit::SaveText() {
    CString text;
    GetWindowText(text);
    m_pObject->SetText(text);
    // Kept: in the control's own font the object stays marked as being edited.
    if (GetFont() != nullptr)
        m_pObject->SetEditing(0);
}

void CUIEdit::OnChar(UINT ch, UINT repeat, UINT flags) {
    if (ch != VK_RETURN && ch != VK_ESCAPE) {
        CEdit::OnChar(ch, repeat, flags);
        return;
    }
    if (ch == VK_RETURN)
        SaveText();
    DestroyWindow();
}

BOOL CUIEdit::DestroyWindow() {
    // Before the window goes: its focus falls to the canvas, which would hand it back to an editor it still
    // has.
    LeaveOwner();
    return CEdit::DestroyWindow();
}

BOOL CUIEdit::PreTranslateMessage(MSG* msg) {
    CFrameWnd* frame = GetTopLevelFrame();
    if (frame != nullptr && frame->m_bHelpMode)
        return FALSE;
    if (msg->message < WM_KEYFIRST || msg->message > WM_KEYLAST)
        return FALSE;
    ::TranslateMessage(msg);
    ::DispatchMessage(msg);
    return TRUE;
}

void CUIEdit::PostNcDestroy() {
    LeaveOwner();
    m_font.DeleteObject();
    delete this;
}

void CUIEdit::LeaveOwner() {
    if (m_ppOwner != nullptr && *m_ppOwner == this)
        *m_ppOwner = nullptr;
    m_ppOwner = nullptr;
}

}  // namespace Lumo
