#include "studio/app/panels/CaptionField.h"

namespace Studio {

CString CaptionField::Format(const PropertyValue& value) const {
    // The control wants both characters at the end of a line.
    CString text = std::get<CString>(value);
    text.Replace(L"\r\n", L"\n");
    text.Replace(L"\n", L"\r\n");
    return text;
}

bool CaptionField::OnKey(UINT key) {
    if (key == VK_RETURN && ::GetKeyState(VK_CONTROL) < 0) {
        m_edit.ReplaceSel(L"\r\n", TRUE);
        return true;
    }
    return EditField::OnKey(key);
}

}  // namespace Studio
