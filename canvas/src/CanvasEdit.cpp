// Opening and closing the in-place editor.
#include "canvas/UICanvas.h"

#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UIEdit.h"
#include "core/internal/Destruction.h"

namespace Lumo {

void CUICanvas::EditText(CUIObjectTextEdit* obj) {
    if (m_pEdit != nullptr) {
        if (obj == nullptr)
            InvalidateObject(m_pEdit->GetEditedObject());
        m_pEdit->DestroyWindow();
    }
    if (obj == nullptr)
        return;
    Destruction::Note(obj, this);
    m_pEdit = new CUIEdit;
    if (!m_pEdit->Create(this, &m_pEdit, obj))
        return;
    m_pEdit->SetLimitText(0);
    m_pEdit->InitialText();
    m_pEdit->ShowWindow(SW_SHOW);
    m_pEdit->SetFocus();
}

}  // namespace Lumo
