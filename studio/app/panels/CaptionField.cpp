#include "studio/app/panels/CaptionField.h"

namespace Studio {

bool CaptionField::OnKey(UINT key) {
    if (key == VK_RETURN && ::GetKeyState(VK_CONTROL) < 0) {
        m_edit.ReplaceSel(L"\r\n", TRUE);
        return true;
    }
    return EditField::OnKey(key);
}

}  // namespace Studio
