// Keys, wheel and focus in the property panel.
#include "studio/app/panels/PropertyPanel.h"
#include "studio/editing/History.h"
#include "studio/editing/StudioCanvas.h"

#include <algorithm>
#include <iterator>

namespace Studio {

namespace {

bool IsDown(int key) {
    return ::GetKeyState(key) < 0;
}

// Keys that edit text, with Ctrl; the others are commands of the frame.
bool EditsText(UINT key) {
    switch (key) {
        case 'A':
        case 'C':
        case 'V':
        case 'X':
        case VK_LEFT:
        case VK_RIGHT:
        case VK_HOME:
        case VK_END:
        case VK_INSERT:
        case VK_DELETE:
        case VK_BACK:
        case VK_RETURN:
            return true;
        default:
            return false;
    }
}

bool IsEdit(HWND window) {
    WCHAR name[16] = L"";
    ::GetClassName(window, name, static_cast<int>(std::size(name)));
    return ::lstrcmpi(name, L"Edit") == 0;
}

}  // namespace

BOOL PropertyPanel::OnCommand(WPARAM wParam, LPARAM lParam) {
    for (auto& section : m_sections) {
        if (reinterpret_cast<HWND>(lParam) != section->header.m_hWnd)
            continue;
        if (HIWORD(wParam) == BN_CLICKED) {
            section->header.Toggle();
            LayOut();
            Refresh();
        }
        return TRUE;
    }
    return CWnd::OnCommand(wParam, lParam);
}

PropertyField* PropertyPanel::FocusedField() {
    const CWnd* focus = GetFocus();
    if (!focus || !IsChild(focus))
        return nullptr;
    return dynamic_cast<PropertyField*>(CWnd::FromHandlePermanent(::GetParent(focus->m_hWnd)));
}

void PropertyPanel::OnFieldFocus(PropertyField& field) {
    if (m_refused && m_note.Covers(field))
        m_refused->EndRefusal();
    EnsureVisible(field);
    // What is written from now on is another step, also with the same field.
    if (StudioCanvas* page = m_owner.PropertyPage())
        page->Edits().BreakMerging();
}

// Headings and the controls of fields that can be used, from top to bottom.
std::vector<CWnd*> PropertyPanel::FocusOrder() {
    std::vector<CWnd*> order;
    for (auto& section : m_sections) {
        order.push_back(&section->header);
        if (!section->header.IsOpen())
            continue;
        for (Row& row : section->rows) {
            for (auto& field : row.fields) {
                if (field->State().enabled)
                    order.insert(order.end(), field->Controls().begin(), field->Controls().end());
            }
        }
    }
    return order;
}

void PropertyPanel::MoveFocus(bool back) {
    const std::vector<CWnd*> order = FocusOrder();
    const HWND focus = ::GetFocus();
    const auto now = std::find_if(order.begin(), order.end(),
                                  [focus](const CWnd* control) { return control->m_hWnd == focus; });
    const auto count = static_cast<int>(order.size());
    const int from = now == order.end() ? (back ? 0 : -1) : static_cast<int>(now - order.begin());
    CWnd* next = order[static_cast<size_t>((from + (back ? count - 1 : 1)) % count)];
    next->SetFocus();
    EnsureVisible(*next);
}

void PropertyPanel::FocusFirst() {
    Refresh();
    for (CWnd* control : FocusOrder()) {
        if (control->GetParent() != this) {
            control->SetFocus();
            return;
        }
    }
    SetFocus();
}

void PropertyPanel::LeaveToPage() {
    if (StudioCanvas* page = m_owner.PropertyPage())
        page->SetFocus();
}

void PropertyPanel::OnLButtonDown(UINT, CPoint) {
    // A click beside the fields ends typing.
    if (FocusedField())
        SetFocus();
}

bool PropertyPanel::OnKey(UINT key) {
    if (key == VK_TAB && !IsDown(VK_CONTROL)) {
        MoveFocus(IsDown(VK_SHIFT));
        return true;
    }
    PropertyField* field = FocusedField();
    if (field && field->OnKey(key))
        return true;
    CWnd* focus = GetFocus();
    if (key == VK_RETURN && focus && focus != this && focus->GetParent() == this) {
        focus->SendMessage(BM_CLICK);
        return true;
    }
    if (key == 'A' && IsDown(VK_CONTROL) && focus && IsEdit(focus->m_hWnd)) {
        focus->SendMessage(EM_SETSEL, 0, -1);
        return true;
    }
    const bool dropped = focus && focus->SendMessage(CB_GETDROPPEDSTATE) != 0;
    if (key == VK_ESCAPE && !dropped) {
        LeaveToPage();
        return true;
    }
    return false;
}

// Letters, arrows and the like are the control's, not keys of tools.
bool PropertyPanel::IsForControl(const MSG& message) const {
    if (message.message == WM_CHAR || message.message == WM_KEYUP)
        return true;
    if (message.message != WM_KEYDOWN)
        return false;
    const auto key = static_cast<UINT>(message.wParam);
    if (key >= VK_F1 && key <= VK_F24)
        return key == VK_F4 && ::SendMessage(message.hwnd, CB_GETDROPPEDSTATE, 0, 0) != 0;
    if (!IsDown(VK_CONTROL))
        return true;
    if (key == 'Z' && IsEdit(message.hwnd))
        return ::SendMessage(message.hwnd, EM_GETMODIFY, 0, 0) != 0;
    return EditsText(key) && IsEdit(message.hwnd);
}

BOOL PropertyPanel::PreTranslateMessage(MSG* message) {
    if (message->message == WM_MOUSEWHEEL) {
        if (::SendMessage(message->hwnd, CB_GETDROPPEDSTATE, 0, 0))
            return FALSE;
        ScrollByWheel(GET_WHEEL_DELTA_WPARAM(message->wParam));
        return TRUE;
    }
    if (message->message == WM_KEYDOWN && OnKey(static_cast<UINT>(message->wParam)))
        return TRUE;
    if (!IsForControl(*message))
        return CWnd::PreTranslateMessage(message);
    ::TranslateMessage(message);
    ::DispatchMessage(message);
    return TRUE;
}

}  // namespace Studio
