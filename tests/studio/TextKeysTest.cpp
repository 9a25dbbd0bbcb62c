// Keys in fields for text, with a real frame and its accelerators.
#include "studio/editing/TextKeys.h"

#include <gtest/gtest.h>

namespace {

constexpr UINT kSave = 40001;

class Frame : public CFrameWnd {
public:
    ~Frame() override { ::DestroyAcceleratorTable(m_hAccelTable); }
    bool Open() {
        ACCEL keys[] = {{FVIRTKEY | FCONTROL, 'S', kSave}, {FVIRTKEY, 'R', kSave}};
        m_hAccelTable = ::CreateAcceleratorTable(keys, 2);
        return Create(nullptr, L"Frame", WS_OVERLAPPEDWINDOW, CRect(0, 0, 300, 200)) != FALSE;
    }
    BOOL OnCommand(WPARAM command, LPARAM) override {
        saved += LOWORD(command) == kSave;
        return TRUE;
    }
    void PostNcDestroy() override {}

    int saved = 0;
};

bool Press(Frame& frame, CEdit& field, UINT key, bool control) {
    BYTE state[256] = {};
    state[VK_CONTROL] = control ? 0x80 : 0;
    ::SetKeyboardState(state);
    MSG message = {};
    message.hwnd = field.m_hWnd;
    message.message = WM_KEYDOWN;
    message.wParam = key;
    message.lParam = 1;
    const bool taken = Studio::TakeTextKey(message, frame);
    state[VK_CONTROL] = 0;
    ::SetKeyboardState(state);
    return taken;
}

}  // namespace

TEST(TextKeysTest, SelectsAllAndSavesButLeavesLettersToTheField) {
    Frame frame;
    ASSERT_TRUE(frame.Open());
    CEdit field;
    ASSERT_TRUE(field.Create(WS_CHILD | WS_VISIBLE | ES_MULTILINE, CRect(0, 0, 100, 60), &frame, 1));
    field.SetWindowText(L"one\r\ntwo");
    field.SetFocus();
    EXPECT_TRUE(Press(frame, field, 'A', true));
    int first = 0, last = 0;
    field.GetSel(first, last);
    EXPECT_EQ(first, 0);
    EXPECT_EQ(last, 8);
    EXPECT_TRUE(Press(frame, field, 'S', true));
    EXPECT_EQ(frame.saved, 1);
    for (UINT letter : {L'A', L'S', L'R'})
        EXPECT_FALSE(Press(frame, field, letter, false));
    EXPECT_EQ(frame.saved, 1) << "a letter that is typed is no command";
    frame.DestroyWindow();
}
