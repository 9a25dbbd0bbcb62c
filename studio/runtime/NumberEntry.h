// A field over the page in which a number is typed while the page runs.
#pragma once

#include "window/MouseHook.h"

#include <functional>

namespace Studio {

/// Opens with the old number selected. The return key hands the new one over, the escape key and a click
/// elsewhere give up. What is no number is refused with a beep.
class NumberEntry : public CEdit {
public:
    /// Opens the field over `area` (client coordinates) of `parent`; one that is open is given up. False when
    /// that fails. `done` gets the number.
    bool Open(CWnd& parent, CRect area, double number, std::function<void(double)> done);
    /// Closes the field without a result.
    void Close();
    bool IsOpen() const { return m_hWnd != nullptr; }

protected:
    DECLARE_MESSAGE_MAP()
    afx_msg void OnKeyDown(UINT key, UINT repeat, UINT flags);
    afx_msg void OnChar(UINT character, UINT repeat, UINT flags);
    afx_msg void OnKillFocus(CWnd* next);

private:
    void Accept();

    std::function<void(double)> m_done;
    Lumo::MouseHook m_elsewhere;
};

}  // namespace Studio
