// Typing into a text box on the page: the library's editor, and the step of the history that it makes.
#include "studio/editing/StudioCanvas.h"

#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UIEdit.h"
#include "core/Geometry.h"
#include "studio/editing/History.h"

#include <algorithm>
#include <utility>

namespace Studio {

using Lumo::CUICanvas;
using Lumo::CUIObject;

void StudioCanvas::BeginTextEdit(Lumo::CUIObjectTextEdit& object) {
    EndTextEdit();
    m_edited = &object;
    m_textBefore = object.GetText();
    EditText(&object);
    if (!m_pEdit)
        return;
    LOGFONT font = {};
    font.lfHeight = -std::clamp(Lumo::RoundToInt(object.GetTextFontSize()), 10, 72);
    font.lfCharSet = DEFAULT_CHARSET;
    ::lstrcpyn(font.lfFaceName, object.GetTextFontName(), LF_FACESIZE);
    m_pEdit->ChangeFont(font);
    m_pEdit->ReSize();
}

void StudioCanvas::EndTextEdit() {
    if (!m_pEdit)
        return;
    m_pEdit->SaveText();
    EditText(nullptr);
}

// The editor looks like the text box under it.
HBRUSH StudioCanvas::OnCtlColor(CDC* dc, CWnd* control, UINT type) {
    if (type != CTLCOLOR_EDIT || !m_edited)
        return CUICanvas::OnCtlColor(dc, control, type);
    constexpr COLORREF kGround = RGB(0x2A, 0x2E, 0x36);
    if (!m_editGround.m_hObject)
        m_editGround.CreateSolidBrush(kGround);
    dc->SetBkColor(kGround);
    dc->SetTextColor(RGB(0xFF, 0xFF, 0xFF));
    return m_editGround;
}

// The editor goes, by whatever key or command.
LRESULT StudioCanvas::OnParentNotify(WPARAM event, LPARAM window) {
    if (LOWORD(event) == WM_DESTROY && m_edited) {
        const auto* objects = Objects();
        CUIObject* edited = std::exchange(m_edited, nullptr);
        if (objects && std::find(objects->begin(), objects->end(), edited) != objects->end())
            KeepTypedText(*edited, reinterpret_cast<HWND>(window));
    }
    return Default();
}

// The editor has stored its text by now, unless it was left with Escape; or unless it is empty, which the
// object does not take as a text.
void StudioCanvas::KeepTypedText(CUIObject& object, HWND editor) {
    const bool emptied = ::GetWindowTextLength(editor) == 0 && ::GetKeyState(VK_ESCAPE) >= 0;
    const CString typed = emptied ? CString() : object.GetText();
    InvalidateObject(&object);
    if (typed == m_textBefore)
        return;
    CString& text = object.GetCoordinate().Format<Lumo::CUIShapeFormatText>().m_strText;
    text = m_textBefore;
    EditScope edit(*this, Text::kStepTyping);
    edit.Touch(object);
    text = typed;
}

}  // namespace Studio
