// The property panel in a real window, driven by real keys and controls.
#include "StudioFixture.h"
#include "studio/app/panels/PropertyPanel.h"
#include "studio/document/ObjectExtras.h"
#include "studio/editing/History.h"
#include "studio/editing/PageEdits.h"
#include "studio/properties/PropertyTable.h"
#include "support/Golden.h"
#include "support/MessageBoxAnswerer.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>

using namespace Studio;

namespace {

// Edit controls in the order in which they are made.
enum Edit { kName, kX, kY, kWidth, kHeight, kFillColor, kFillOpacity };

class PropertyPanelTest : public StudioFixture, public PropertyPanelOwner {
protected:
    void SetUp() override {
        StudioFixture::SetUp();
        m_parent.ShowWindow(SW_SHOWNOACTIVATE);
        MakePanel();
    }
    void TearDown() override {
        m_panel->DestroyWindow();
        StudioFixture::TearDown();
    }
    void MakePanel() {
        m_panel = std::make_unique<PropertyPanel>(*this);
        ASSERT_TRUE(m_panel->Create(m_parent));
        m_panel->MoveWindow(300, 0, PropertyPanel::kWidth, 400);
        m_edits = Controls(L"Edit");
    }

    StudioCanvas* PropertyPage() override { return m_document ? &Page() : nullptr; }
    void OnPropertyRefused(const CString& reason) override { m_reason = reason; }

    static BOOL CALLBACK Collect(HWND window, LPARAM list) {
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
        return TRUE;
    }
    // The panel's controls of a window class, in the order in which they are made.
    std::vector<HWND> Controls(LPCWSTR windowClass) {
        std::vector<HWND> controls;
        ::EnumChildWindows(m_panel->m_hWnd, Collect, reinterpret_cast<LPARAM>(&controls));
        std::erase_if(controls, [&](HWND control) {
            WCHAR name[16] = L"";
            ::GetClassName(control, name, 16);
            return ::lstrcmpi(name, windowClass) != 0;
        });
        return controls;
    }

    CString TextOf(Edit edit) {
        WCHAR text[256] = L"";
        ::GetWindowText(m_edits[edit], text, 256);
        return text;
    }
    void Focus(Edit edit) { ::SetFocus(m_edits[edit]); }
    void Type(Edit edit, LPCWSTR text) {
        Focus(edit);
        ::SendMessage(m_edits[edit], EM_SETSEL, 0, -1);
        ::SendMessage(m_edits[edit], EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(text));
    }
    // A key as the message pump hands it out; true when the panel keeps it from the frame.
    bool Press(UINT key, bool control = false, bool shift = false) {
        BYTE state[256] = {};
        state[VK_CONTROL] = control ? 0x80 : 0;
        state[VK_SHIFT] = shift ? 0x80 : 0;
        ::SetKeyboardState(state);
        MSG message = {};
        message.hwnd = ::GetFocus();
        message.message = WM_KEYDOWN;
        message.wParam = key;
        message.lParam = 1;
        const bool kept = m_panel->PreTranslateMessage(&message) != FALSE;
        state[VK_CONTROL] = state[VK_SHIFT] = 0;
        ::SetKeyboardState(state);
        return kept;
    }
    Pixels Picture() {
        ::HideCaret(nullptr);
        m_panel->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW);
        return PixelsOf(*m_panel);
    }
    // A panel as high as all that is in it.
    void Enlarge(int height) {
        m_parent.MoveWindow(0, 0, 600, height);
        m_panel->MoveWindow(300, 0, PropertyPanel::kWidth, height);
    }
    // Words: f(ocus) or t(ype, also =TEXT) with the number of an edit control, b(utton) or B (with its focus)
    // with that of a button, c(hoice) with that of a box and a row, h(eading), n(umber's arrow) up or N down
    // with a repetition, p(ress beside), y (time passes); R(eturn), E(scape), T(ab), S (back), U(p), D(own),
    // u and d with shift, K (Return with control), z (undo), g (another selection), G (none), w(heel), v
    // (scroll bar).
    void Do(const CString& words) {
        int at = 0;
        for (CString word = words.Tokenize(L" ", at); !word.IsEmpty(); word = words.Tokenize(L" ", at)) {
            const int number = ::_wtoi(word.Mid(1));
            const auto buttons = Controls(L"Button"), boxes = Controls(L"ComboBox");
            const HWND field = ::GetParent(m_edits[static_cast<unsigned>(number) % m_edits.size()]);
            CRect room;
            const auto message = [](HWND to, UINT what, WPARAM how, int px, int py) {
                ::SendMessage(to, what, how, MAKELPARAM(px, py));
            };
            const auto select = [&](const Lumo::CUIObjectDeque& objects) {
                Page().SelectOnly(objects);
                m_panel->Refresh();
            };
            const auto arrow = [&](int y) {
                ::GetClientRect(field, room);
                message(field, WM_LBUTTONDOWN, 0, room.right - 15, y);
                message(field, WM_TIMER, 1, 0, 0);
                message(field, WM_LBUTTONUP, 0, 0, 0);
                message(field, WM_LBUTTONDOWN, 0, room.right - 16, 3);
            };
            const auto choose = [&] {
                ::SetFocus(boxes[number]);
                ::SendMessage(boxes[number], CB_SETCURSEL, ::_wtoi(word.Mid(word.Find(L'=') + 1)), 0);
                ::SendMessage(::GetParent(boxes[number]), WM_COMMAND, MAKEWPARAM(1, CBN_SELCHANGE),
                              reinterpret_cast<LPARAM>(boxes[number]));
            };
            const std::map<WCHAR, std::function<void()>> acts = {
                {L'f', [&] { Focus(static_cast<Edit>(number)); }},
                {L't', [&] { Type(static_cast<Edit>(number), word.Mid(word.Find(L'=') + 1)); }},
                {L'B', [&] { ::SetFocus(buttons[number]); }},
                {L'b', [&] { ::SendMessage(buttons[number], BM_CLICK, 0, 0); }},
                {L'c', choose},
                {L'h', [&] { ::SendMessage(::GetDlgItem(*m_panel, number), BM_CLICK, 0, 0); }},
                {L'n', [&] { arrow(11); }},
                {L'N', [&] { arrow(12); }},
                {L'p', [&] { message(*m_panel, WM_LBUTTONDOWN, 0, 30, 5); }},
                {L'y', [&] { message(*m_panel, WM_TIMER, 2, 0, 0); }},
                {L'z', [&] { m_document->Edits().Undo(), m_panel->Refresh(); }},
                {L'g', [&] { select(Objects()); }},
                {L'G', [&] { select({}); }},
                {L'v', [&] { message(*m_panel, WM_VSCROLL, static_cast<WPARAM>(number), 0, 0); }},
                {L'w', [&] { m_panel->ScrollByWheel(static_cast<short>(number)); }},
                {L'K', [&] { Press(VK_RETURN, true); }},
                {L'R', [&] { Press(VK_RETURN); }},
                {L'E', [&] { Press(VK_ESCAPE); }},
                {L'T', [&] { Press(VK_TAB); }},
                {L'S', [&] { Press(VK_TAB, false, true); }},
                {L'U', [&] { Press(VK_UP); }},
                {L'D', [&] { Press(VK_DOWN); }},
                {L'u', [&] { Press(VK_UP, false, true); }},
                {L'd', [&] { Press(VK_DOWN, false, true); }},
            };
            acts.at(word[0])();
        }
    }

    // Where the focus is, what the first edit controls show, a refusal, how far the panel is scrolled, and
    // the places of the objects.
    CString State() {
        CString state = L"page";
        const HWND focus = ::GetFocus();
        for (LPCWSTR kind : {L"Edit", L"Button", L"ComboBox"}) {
            const auto controls = Controls(kind);
            const auto found = std::find(controls.begin(), controls.end(), focus);
            if (found != controls.end())
                state.Format(L"%.1s%d", kind, static_cast<int>(found - controls.begin()));
        }
        if (focus == m_panel->m_hWnd)
            state = L"panel";
        state += L":";
        for (int edit = kX; edit <= kFillOpacity; ++edit)
            state += L" " + TextOf(static_cast<Edit>(edit));
        state += m_reason.IsEmpty() ? L"" : L" (" + m_reason + L")";
        if (const int scroll = m_panel->GetScrollPos(SB_VERT))
            state.AppendFormat(L" ^%d", scroll);
        for (Lumo::CUIObject* object : Objects()) {
            const Gdiplus::RectF place = object->GetPosition();
            state.AppendFormat(L" | %g,%g %g,%g %X %d %d", place.X, place.Y, place.Width, place.Height,
                               static_cast<unsigned>(object->GetFillColor()), object->GetFillShapeMode(),
                               object->GetTextFontStyle());
        }
        return state;
    }

    std::unique_ptr<PropertyPanel> m_panel;
    std::vector<HWND> m_edits;
    CString m_reason;
};

// What is done, and the state afterwards.
const struct {
    LPCWSTR words, state;
} kRows[] = {
    // clang-format off
    {L"t1=070", L"E1: 070 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t1=070 R", L"E1: 70 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 70,20 100,50 483E7BFA 1 0"},
    {L"t1=80 E", L"E1: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t1=90 T", L"E2: 90 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 90,20 100,50 483E7BFA 1 0"},
    {L"f1 E", L"page: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t1=90 S", L"E0: 90 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 90,20 100,50 483E7BFA 1 0"},
    {L"t1=90 p", L"panel: 90 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 90,20 100,50 483E7BFA 1 0"},
    {L"t3=0 R", L"E3: 10 20 0 50 3E7BFA 28% (This must be from 1 to 100000.) | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t3=0 R E", L"E3: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t3=0 R t3=60", L"E3: 10 20 60 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t3=0 R y t3=60 R z", L"E3: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t3=wide f1", L"E1: 10 20 100 50 3E7BFA 28% (This is not a number.) | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t3=wide f1 y", L"E1: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t3=0 R f5", L"E5: 10 20 100 50 3E7BFA 28% (This must be from 1 to 100000.) | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t3=0 R w-120", L"E3: 10 20 0 50 3E7BFA 28% ^60 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t3=0 R t5=12345 R", L"E5: 10 20 100 50 12345 28% (A colour is six digits 0-9, A-F: 3E7BFA.) | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t5=112233 R", L"E5: 10 20 100 50 112233 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 48112233 1 0"},
    {L"t5=112233 t6=50 R", L"E6: 10 20 100 50 112233 50% | 40,20 100,50 48445566 1 0 | 10,20 100,50 80112233 1 0"},
    {L"t5=zz R t5=445566", L"E5: 10 20 100 50 445566 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t6=101 f1", L"E1: 10 20 100 50 3E7BFA 28% (This must be from 0 to 100.) | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t6=40 E", L"E6: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t5=zz R E", L"E5: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"f1 U U D", L"E1: 11 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 11,20 100,50 483E7BFA 1 0"},
    {L"f1 U U D z", L"E1: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"f1 u d u", L"E1: 20 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 20,20 100,50 483E7BFA 1 0"},
    {L"t1=15 U", L"E1: 16 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 16,20 100,50 483E7BFA 1 0"},
    {L"t1=x U", L"E1: x 20 100 50 3E7BFA 28% (This is not a number.) | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t1=100000 U", L"E1: 100000 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 100000,20 100,50 483E7BFA 1 0"},
    {L"n1", L"E1: 12 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 12,20 100,50 483E7BFA 1 0"},
    {L"N4", L"E4: 10 20 100 48 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,48 483E7BFA 1 0"},
    {L"n0", L"page: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"g n1", L"E1:  20 100 50  28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"g t1=44 R", L"E1: 44 20 100 50  28% | 44,20 100,50 48445566 1 0 | 44,20 100,50 483E7BFA 1 0"},
    {L"g t1=55 g R", L"E1: 55 20 100 50  28% | 55,20 100,50 48445566 1 0 | 55,20 100,50 483E7BFA 1 0"},
    {L"g t1=44 G", L"page:       | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"f4 T", L"B1: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"f4 T R", L"B1: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"h1 f4 T", L"B0: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"h1 h2 T S S", L"B0: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"w-120", L"page: 10 20 100 50 3E7BFA 28% ^60 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"w-32000", L"page: 10 20 100 50 3E7BFA 28% ^777 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"w-240 w120 f1", L"E1: 10 20 100 50 3E7BFA 28% ^60 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"v1", L"page: 10 20 100 50 3E7BFA 28% ^30 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"v1 v1 v0", L"page: 10 20 100 50 3E7BFA 28% ^30 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"v3", L"page: 10 20 100 50 3E7BFA 28% ^400 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"v7", L"page: 10 20 100 50 3E7BFA 28% ^777 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"v7 v2", L"page: 10 20 100 50 3E7BFA 28% ^377 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"v7 v6", L"page: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"f9 S", L"E8: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"f13 K R", L"E13: 10 20 100 50 3E7BFA 28% ^234 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"t9=7 R t10=31 R", L"E10: 10 20 100 50 3E7BFA 28% (A colour is six digits 0-9, A-F: 3E7BFA.) ^16 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"f18", L"E18: 10 20 100 50 3E7BFA 28% ^534 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"B14 S", L"E17: 10 20 100 50 3E7BFA 28% ^447 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"b1", L"B1: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"h1", L"B0: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"B9 R", L"B9: 10 20 100 50 3E7BFA 28% ^321 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 2"},
    {L"B9 R R", L"B9: 10 20 100 50 3E7BFA 28% ^321 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"B9 T T", L"B11: 10 20 100 50 3E7BFA 28% ^321 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"b9 b11", L"B11: 10 20 100 50 3E7BFA 28% ^321 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 10"},
    {L"g b9 z", L"B9:  20 100 50  28% ^321 | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"c0=2", L"C0: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 3 0"},
    {L"c0=2 c0=0 z", L"C0: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"c0=1 R", L"C0: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"c0=1 R E", L"C0: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    {L"E", L"page: 10 20 100 50 3E7BFA 28% | 40,20 100,50 48445566 1 0 | 10,20 100,50 483E7BFA 1 0"},
    // clang-format on
};

}  // namespace

TEST_F(PropertyPanelTest, KeysAndMouse) {
    for (const auto& row : kRows) {
        SCOPED_TRACE(testing::Message() << "row " << &row - kRows);
        ::SetFocus(Page());
        Page().SelectOnly(Objects());
        DeleteSelection(Page());
        Add(Lumo::DS_RECTANGLE, 40, 20, 100, 50)->SetFillColor(0x48445566);
        Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
        m_panel->Refresh();
        Do(L"w32000 y");
        m_document->Edits().MarkSaved();
        m_reason.Empty();
        Do(row.words);
        EXPECT_STREQ(State(), row.state);
        if (CString(row.words).Find(L'h') >= 0) {
            ::SetFocus(Page());
            m_panel->DestroyWindow();
            MakePanel();
        }
    }
}

TEST_F(PropertyPanelTest, KeysOfTextStayInThePanelKeysOfCommandsDoNot) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel->Refresh();
    Focus(kName);
    for (UINT key : {UINT{'R'}, UINT{VK_DELETE}, UINT{VK_LEFT}})
        EXPECT_TRUE(Press(key)) << key;
    for (UINT key : {UINT{'A'}, UINT{'C'}})
        EXPECT_TRUE(Press(key, true)) << key;
    for (UINT key : {UINT{'S'}, UINT{'Y'}, UINT{'G'}})
        EXPECT_FALSE(Press(key, true)) << key;
    for (UINT key : {VK_F1, VK_F4, VK_F5, VK_F24})
        EXPECT_FALSE(Press(key)) << key;
}

TEST_F(PropertyPanelTest, ManyChangesAreShownOnceWhenThereIsTime) {
    Lumo::CUIObject* object = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel->Refresh();
    for (int i = 1; i <= 50; ++i) {
        object->SetPosition({10.0f + static_cast<float>(i), 20, 100, 50});
        m_panel->RefreshSoon();
    }
    EXPECT_EQ(L"10", TextOf(kX));
    const DWORD end = ::GetTickCount() + 2000;
    MSG message;
    while (TextOf(kX) == L"10" && ::GetTickCount() < end && ::GetMessage(&message, nullptr, 0, 0))
        ::DispatchMessage(&message);
    EXPECT_EQ(L"60", TextOf(kX));
}

// Keys for a menu that is open: d(own), r(ight), u(p), R(eturn), E(scape).
std::string g_menuKeys;
void CALLBACK PostMenuKeys(HWND window, UINT, UINT_PTR timer, DWORD) {
    ::KillTimer(window, timer);
    for (const char key : g_menuKeys)
        ::PostMessage(window, WM_KEYDOWN,
                      key == 'd'   ? VK_DOWN
                      : key == 'r' ? VK_RIGHT
                      : key == 'u' ? VK_UP
                      : key == 'R' ? VK_RETURN
                                   : VK_ESCAPE,
                      1);
}

TEST_F(PropertyPanelTest, ValuesComeFromAMenu) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel->Refresh();
    Do(L"c7=15");
    m_edits = Controls(L"Edit");
    const struct {
        int edit;
        const char* keys;
        LPCWSTR text;
    } rows[] = {{17, "drR", L"in"},
                {17, "drdrR", L"in1"},
                {17, "drdrdR", L"in1.level"},
                {17, "E", L"in1.level"},
                {18, "drrR", L"in1.level"},
                {18, "urR", L"master.gain"},
                {18, "drdrdR", L"in2.peak"},
                {19, "drrR", L"in1.level"},
                {19, "drdrR", L"in1.level, in2.level"},
                {19, "E", L"in1.level, in2.level"}};
    for (const auto& row : rows) {
        Focus(static_cast<Edit>(row.edit));
        g_menuKeys = row.keys;
        ::SetTimer(m_parent, 1, 50, &PostMenuKeys);
        EXPECT_TRUE(Press(VK_DOWN));
        EXPECT_STREQ(TextOf(static_cast<Edit>(row.edit)), row.text);
    }
}

TEST_F(PropertyPanelTest, ColoursComeFromADialog) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel->Refresh();
    MessageBoxAnswerer answerer;
    answerer.onBox = [] {
        for (int id : {706, 707, 708})
            ::SetDlgItemInt(::FindWindow(L"#32770", nullptr), id, static_cast<UINT>(id - 690), FALSE);
    };
    Do(L"B2 R");
    EXPECT_EQ(answerer.captions.size(), 1u);
    EXPECT_EQ(TextOf(kFillColor), L"101112");
}

// The platform's box hands the mouse on to its list when the button goes up, also to a list that is closed.
TEST_F(PropertyPanelTest, AListThatLosesTheFocusWhileItIsPressedGivesTheMouseBack) {
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel->Refresh();
    const HWND box = Controls(L"ComboBox").at(0);
    ::SendMessage(box, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(70, 12));
    ASSERT_NE(0, ::SendMessage(box, CB_GETDROPPEDSTATE, 0, 0));
    Focus(kX);
    EXPECT_EQ(0, ::SendMessage(box, CB_GETDROPPEDSTATE, 0, 0));
    ::SendMessage(box, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(70, 40));
    ::SendMessage(box, WM_LBUTTONUP, 0, MAKELPARAM(70, 12));
    EXPECT_EQ(nullptr, ::GetCapture());
}

// Every kind of object, several, none; with all that they have being different.
TEST_F(PropertyPanelTest, ShowsWhatIsSelected) {
    Enlarge(880);
    Sheet sheet(1100);
    const auto show = [&](const Lumo::CUIObjectDeque& objects) {
        Page().SelectOnly(objects);
        m_panel->Refresh();
        sheet.Add(Picture());
    };
    Lumo::CUIObject* shape = Add(Lumo::DS_RECTANGLE, -10, 20.25f, 100, 50);
    shape->SetFillShapeMode(3), shape->SetFillColor(0x80123456), shape->SetLineShapeMode(2);
    shape->SetLineColor(0xABCDEF), shape->SetLineAlpha(51), shape->SetLineWidth(3.5f);
    shape->SetLineDashStyle(2), shape->SetTextFontStyle(5), shape->SetTextAlignment(2);
    shape->SetText(L"two\nlines"), shape->SetTextColor(0x40FF00FF), shape->SetTextFontSize(17);
    shape->GetCoordinate().Format<Lumo::CUIShapeFormatFill>().m_strImagePath = L"C:\\signs\\lamp.png";
    Lumo::CUIObject* line = Add(Lumo::DS_LINE, 200, 20, 60, 30);
    line->SetLineStartCap(Gdiplus::LineCapArrowAnchor), line->SetLineEndCap(Gdiplus::LineCapRound);
    line->SetTextFontStyle(10);
    Lumo::CUIObject* text = Add(Lumo::DS_TEXTEDIT, 10, 120, 100, 50);
    Lumo::CUIObject* control = Add(Lumo::DS_CHARTPEQ, 300, 120, 100, 50);
    EditExtras(*control)->binding = L"out3.peq";
    show({});
    for (Lumo::CUIObject* object : {shape, line, text, control})
        show({object});
    show({shape, line, text});
    Page().SelectOnly({shape, text});
    GroupSelection(Page());
    show({Objects().back()});
    // The record of each behaviour; with it alone on it is the one that is shown.
    Enlarge(640);
    for (UINT header = 1; header <= 4; ++header)
        ::SendMessage(::GetDlgItem(*m_panel, static_cast<int>(header)), BM_CLICK, 0, 0);
    for (int i = 0; i < kBehaviourCount; ++i) {
        const auto behaviour = static_cast<Behaviour>(i);
        Lumo::CUIObject* object = Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
        EditExtras(*object)->binding = L"in1.level";
        EditExtras(*object)->TurnOn(behaviour, true);
        for (const Property& field : BehaviourFields(behaviour)) {
            const int number = static_cast<int>(&field - BehaviourFields(behaviour).data());
            const PropertyValue now = field.get(*object);
            if (std::holds_alternative<float>(now))
                field.set(*object, PropertyValue(number + 0.0f));
            else if (field.kind == FieldKind::kChoice)
                field.set(*object, PropertyValue(number % static_cast<int>(field.choices().size())));
            else if (std::holds_alternative<int>(now))
                field.set(*object, PropertyValue(number % 2));
            else if (std::holds_alternative<ColorParts>(now))
                field.set(*object, PartsOf(0x20103040u * static_cast<DWORD>(number)));
            else if (field.label != Text::kPropLineColors)
                field.set(*object, PropertyValue(CString(L"in1.level")));
        }
        show({object});
    }
    ExpectGolden(sheet.All(), "studio", "properties", 20);
}

// The states of the fields that the mouse and the keys make.
TEST_F(PropertyPanelTest, FieldsShowTheirState) {
    Enlarge(980);
    Sheet sheet(1100);
    Add(Lumo::DS_RECTANGLE, 10, 20, 100, 50);
    m_panel->Refresh();
    const auto header = [&](int number) { return ::GetDlgItem(*m_panel, number); };
    const auto buttons = Controls(L"Button");
    Type(kWidth, L"0");
    Press(VK_RETURN);
    sheet.Add(Picture());
    Type(kFillOpacity, L"200");
    Press(VK_RETURN);
    ::SendMessage(header(4), BM_CLICK, 0, 0);
    sheet.Add(Picture());
    ::SendMessage(header(4), BM_CLICK, 0, 0);
    // Another behaviour, and the panel in a low window, scrolled.
    Do(L"c7=13");
    Enlarge(300);
    for (LPCWSTR words : {L"v7", L"w240"}) {
        Do(words);
        sheet.Add(Picture());
    }
    Enlarge(980);
    Do(L"c7=10");
    for (int i = 0; i < static_cast<int>(buttons.size()); ++i) {
        CRect place;
        ::SetFocus(buttons[i]);
        ::GetWindowRect(buttons[i], place);
        m_panel->ScreenToClient(place);
        Picture();
        ::SendMessage(buttons[i], BM_SETSTATE, i % 2, 0);
        sheet.Add(PixelsOf(*m_panel, place));
        ::SendMessage(buttons[i], BM_SETSTATE, 0, 0);
    }
    for (const HWND box : Controls(L"ComboBox")) {
        COMBOBOXINFO info = {};
        info.cbSize = sizeof info;
        ::GetComboBoxInfo(box, &info);
        ::SetFocus(box);
        m_panel->Refresh();
        if (::SendMessage(box, CB_FINDSTRINGEXACT, 0, reinterpret_cast<LPARAM>(L"Segoe UI")) >= 0)
            continue;  // the fonts of the system
        ::SendMessage(box, CB_SHOWDROPDOWN, TRUE, 0);
        ::SendMessage(info.hwndList, LB_SETCURSEL, 1, 0);
        ::RedrawWindow(info.hwndList, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        CWnd list;
        list.Attach(info.hwndList);
        sheet.Add(PixelsOf(list));
        list.Detach();
        ::SendMessage(box, CB_SHOWDROPDOWN, FALSE, 0);
    }
    ExpectGolden(sheet.All(), "studio", "fields", 20);
}
