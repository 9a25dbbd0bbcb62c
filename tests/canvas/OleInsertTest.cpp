#include "canvas/CanvasFixture.h"

#include <afxole.h>
#include <gtest/gtest.h>

namespace {

class OleInsert : public CanvasFixture {
protected:
    OleInsert() { EXPECT_TRUE(AfxOleInit()); }
    ~OleInsert() override { AfxOleTerm(); }

    // Runs the command and presses `button` in the dialog it shows.
    void InsertAndPress(int button) {
        s_button = button;
        s_shown = 0;
        const UINT_PTR timer = ::SetTimer(nullptr, 0, 20, PressButton);
        m_canvas->OnInsertOleObject();
        ::KillTimer(nullptr, timer);
    }

    static void CALLBACK PressButton(HWND, UINT, UINT_PTR, DWORD) {
        ::EnumThreadWindows(::GetCurrentThreadId(), Press, 0);
    }

    static BOOL CALLBACK Press(HWND window, LPARAM) {
        wchar_t name[16] = L"";
        ::GetClassName(window, name, 16);
        if (wcscmp(name, L"#32770") != 0 || !::IsWindowVisible(window))
            return TRUE;
        // A dialog that does not accept its button is closed with the next tick.
        ::PostMessage(window, WM_COMMAND, s_shown++ == 0 ? s_button : IDCANCEL, 0);
        return FALSE;
    }

    static inline int s_button = 0;
    static inline int s_shown = 0;
};

TEST_F(OleInsert, ShowsTheDialogAndAddsNothingWithoutAClientItem) {
    for (int button : {IDCANCEL, IDOK}) {
        m_document->SetModifiedFlag(0);
        EXPECT_NO_THROW(InsertAndPress(button));
        EXPECT_GT(s_shown, 0) << "the dialog was there";
        EXPECT_TRUE(Objects().empty());
        EXPECT_EQ(m_document->GetModifiedFlag(), 0);
    }
}

}  // namespace
