// The tab control as tables of what is there, what the user does and what comes of it.
#include "window/TabCtrl.h"

#include "afx/WindowSupport.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>
#include <string>

using namespace Lumo;

namespace {

// Writes down the notifications and refuses one of them on demand.
class Parent : public CWnd {
public:
    std::string notes;
    UINT refused = 0;
    std::function<void()> onNote = [] {};

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_NOTIFY)
            return CWnd::WindowProc(message, wParam, lParam);
        static const char* const names[] = {"changing", "changed", "move", "moved", "begin",  "rename",
                                            "end",      "close",   "add",  "menu",  "dragend"};
        const auto& note = *reinterpret_cast<const TabNotify*>(lParam);
        EXPECT_TRUE(wParam == 77 && note.hdr.idFrom == 77 && ::GetParent(note.hdr.hwndFrom) == m_hWnd);
        std::ostringstream out;
        out << ' ' << names[note.hdr.code - TABN_FIRST];
        if (note.tab >= 0)
            out << note.tab;
        if (note.target >= 0)
            out << '>' << note.target;
        if (note.text)
            out << '(' << CStringA(note.text) << ')';
        if (note.hdr.code == TABN_MENU)
            out << '@' << note.point.x << ',' << note.point.y;
        notes += out.str();
        onNote();
        return note.hdr.code == refused;
    }

private:
    static std::string CStringA(LPCWSTR text) { return std::string(text, text + ::wcslen(text)); }
};

// The tabs A, B, C and D are 56 wide each, the first one from 6 on. A state or a gesture is a row of words:
//
//   close add reorder rename stop below   what the control has; stop is WS_TABSTOP
//   more:N cur:N insert:N remove:N mv:N,M all width:N begin:N accept cancel   calls of the host
//   refuse:N                              the host refuses a notification, counted from the first
//   down:X,Y move: up: double: middle: right: wheel:N leave lose away   the mouse; lose takes the capture,
//                                         away gives the parent the keyboard
//   key:NAME pump:NAME alt:NAME type:TEXT the keyboard, the pump's keys, with Alt, the editor's text
//
// What comes of it are the tabs with the current one marked, how far they are scrolled, what is under the
// pointer or under way, and the notifications.
class TabScript : public ::testing::Test {
protected:
    struct Row {
        const char *state, *gesture, *expected;
    };

    TabScript() {
        m_parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP | WS_VISIBLE, CRect(40, 30, 440, 230),
                          nullptr, 0);
        Make();
    }
    ~TabScript() override { m_parent.DestroyWindow(); }

    void Make() {
        ::SetCursorPos(900, 700);
        m_parent.refused = 0;
        m_tabs = std::make_unique<TabCtrl>();
        m_tabs->Create(WS_VISIBLE, CRect(0, 0, 300, 30), &m_parent, 77);
        for (LPCWSTR text : {L"A", L"B", L"C", L"D"})
            m_tabs->AddTab(text, text[0]);
        m_parent.SetFocus();
        m_parent.notes.clear();
    }

    void ExpectStates(std::initializer_list<Row> rows) {
        for (const Row& row : rows) {
            Make();
            Run(row.state);
            m_parent.notes.clear();
            Run(row.gesture);
            EXPECT_EQ(State(), row.expected) << row.state << " : " << row.gesture;
        }
    }

    void Run(const std::string& script) {
        std::istringstream words(script);
        for (std::string word; words >> word;)
            Do(word);
    }

    void Mouse(UINT message, int x, int y) {
        m_tabs->SendMessage(message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(x, y));
    }

    void Do(const std::string& word) {
        const std::string verb = word.substr(0, word.find(':'));
        const std::string text = word.substr(std::min(word.size(), verb.size() + 1));
        int x = 0, y = 0;
        char comma = 0;
        std::istringstream(text) >> x >> comma >> y;
        const std::map<std::string, UINT> keys = {
            {"left", VK_LEFT},  {"right", VK_RIGHT}, {"home", VK_HOME},     {"end", VK_END}, {"f2", VK_F2},
            {"del", VK_DELETE}, {"esc", VK_ESCAPE},  {"return", VK_RETURN}, {"x", 'X'}};
        const std::map<std::string, UINT> mouse = {{"down", WM_LBUTTONDOWN}, {"move", WM_MOUSEMOVE},
                                                   {"up", WM_LBUTTONUP},     {"double", WM_LBUTTONDBLCLK},
                                                   {"middle", WM_MBUTTONUP}, {"right", WM_RBUTTONUP}};
        TabCtrl& tabs = *m_tabs;
        const std::map<std::string, std::function<void()>> verbs = {
            {"close", [&] { tabs.SetCloseButtons(true); }},
            {"add", [&] { tabs.SetAddButton(true); }},
            {"reorder", [&] { tabs.SetReorder(true); }},
            {"rename", [&] { tabs.SetRename(true); }},
            {"stop", [&] { tabs.ModifyStyle(0, WS_TABSTOP); }},
            {"below", [&] { tabs.SetSide(TabSide::kBelow); }},
            {"more",
             [&] {
                 for (; x > 0; --x)
                     tabs.AddTab(L"x");
             }},
            {"cur", [&] { tabs.SetCurrent(x); }},
            {"insert", [&] { tabs.InsertTab(x, L"N"); }},
            {"remove", [&] { tabs.RemoveTab(x); }},
            {"mv", [&] { tabs.MoveTab(x, y); }},
            {"all", [&] { tabs.RemoveAllTabs(); }},
            {"width", [&] { tabs.SetWindowPos(nullptr, 0, 0, x, 30, SWP_NOZORDER | SWP_NOMOVE); }},
            {"begin", [&] { tabs.BeginRename(x); }},
            {"accept", [&] { tabs.EndRename(true); }},
            {"cancel", [&] { tabs.EndRename(false); }},
            {"refuse", [&] { m_parent.refused = TABN_FIRST + static_cast<UINT>(x); }},
            {"wheel", [&] { tabs.SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(0, x)); }},
            {"leave", [&] { tabs.SendMessage(WM_MOUSELEAVE); }},
            {"lose", [] { ::ReleaseCapture(); }},
            {"away",
             [&] {
                 m_parent.SetFocus();
                 PumpQueue();
             }},
            {"key", [&] { tabs.SendMessage(WM_KEYDOWN, keys.at(text)); }},
            {"pump", [&] { Pump(keys.at(text)); }},
            {"alt", [&] { Pump(keys.at(text), WM_SYSKEYDOWN); }},
            {"type", [&] { tabs.GetWindow(GW_CHILD)->SetWindowText(CString(text.c_str())); }},
        };
        if (const auto found = mouse.find(verb); found != mouse.end())
            Mouse(found->second, x, y);
        else
            verbs.at(verb)();
    }

    // A key as the program's pump gets it.
    void Pump(UINT key, UINT kind = WM_KEYDOWN) {
        MSG message = {::GetFocus(), kind, key, 0, 0, {}};
        m_parent.notes += AfxPreTranslateMessage(&message) ? " taken" : "";
    }

    std::string State() {
        std::ostringstream out;
        for (int i = 0; i < m_tabs->GetTabCount(); ++i)
            out << Narrow(m_tabs->GetTabText(i)) << (i == m_tabs->GetCurrent() ? "* " : " ");
        if (m_tabs->GetTabCount() > 0 && m_tabs->GetTabRect(0).left != 6)
            out << "scrolled " << 6 - m_tabs->GetTabRect(0).left << ' ';
        if (m_tabs->GetHover() >= 0)
            out << "over " << m_tabs->GetHover() << ' ';
        if (m_tabs->IsDragging())
            out << "drag ";
        if (m_tabs->IsRenaming())
            out << "edit " << Editor() << ' ';
        if (CWnd::GetCapture() == m_tabs.get())
            out << "held ";
        if (CWnd::GetFocus() == m_tabs.get())
            out << "focus ";
        return out.str() + ":" + m_parent.notes;
    }

    std::string Editor() {
        CWnd* editor = m_tabs->GetWindow(GW_CHILD);
        CRect rect;
        editor->GetWindowRect(rect);
        m_tabs->ScreenToClient(rect);
        CString text;
        editor->GetWindowText(text);
        constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | ES_AUTOHSCROLL;
        EXPECT_TRUE((editor->GetStyle() & kStyle) == kStyle && editor->SendMessage(EM_GETLIMITTEXT) == 64);
        std::ostringstream out;
        out << Narrow(text) << ' ' << rect.left << '-' << rect.right;
        return out.str();
    }

    static std::string Narrow(const CString& text) {
        return std::string(text.GetString(), text.GetString() + text.GetLength());
    }

    // What is along a line through the control, from where on.
    std::string Along(bool across, int at) {
        static const char* const names[] = {"-", "t", "x", "+", "<", ">"};
        std::ostringstream out;
        std::string before;
        for (int i = -1; i <= (across ? 300 : 30); ++i) {
            int tab = -1;
            const TabPart part = m_tabs->HitTest(across ? CPoint(i, at) : CPoint(at, i), &tab);
            const std::string what = names[static_cast<int>(part)] + (tab < 0 ? "" : std::to_string(tab));
            if (what != before)
                out << i << what << ' ';
            before = what;
        }
        return out.str();
    }

    Parent m_parent;
    std::unique_ptr<TabCtrl> m_tabs;
};

TEST_F(TabScript, Parts) {
    const struct {
        const char* state;
        bool across;
        int at;
        const char* parts;
    } rows[] = {
        {"", true, 15, "-1- 6t0 62t1 118t2 174t3 230- "},
        {"", false, 34, "-1- 0t0 30- "},
        {"close add", true, 15,
         "-1- 6t0 56x0 74t0 80t1 130x1 148t1 154t2 204x2 222- 228+ 246- 258< 276> 294- "},
        {"close", false, 55, "-1- 0t0 30- "},
        {"add", false, 246, "-1- 6+ 24- "},
        {"more:3 add", true, 15, "-1- 6t0 62t1 118t2 174t3 222- 228+ 246- 258< 276> 294- "},
        {"more:3 close cur:6", true, 15,
         "-1- 0t3 6x3 24t3 30t4 80x4 98t4 104t5 154x5 172t5 178t6 228x6 246t6 252- 258< 276> 294- "},
        {"more:3 add", false, 282, "-1- 6> 24- "},
        {"all add", true, 15, "-1- 12+ 30- "},
    };
    for (const auto& row : rows) {
        Make();
        Run(row.state);
        EXPECT_EQ(Along(row.across, row.at), row.parts) << row.state;
    }
}

TEST_F(TabScript, Calls) {
    ExpectStates({
        {"", "", "A* B C D :"},
        {"cur:2", "insert:1", "A N B C* D :"},
        {"cur:2", "insert:2", "A B N C* D :"},
        {"cur:2", "insert:3", "A B C* N D :"},
        {"all", "insert:7 insert:-1 insert:9", "N N* N :"},
        {"cur:2", "remove:2", "A B D* :"},
        {"cur:3", "remove:3", "A B C* :"},
        {"cur:2", "remove:0", "B C* D :"},
        {"cur:2", "remove:3 remove:3 remove:-1", "A B C* :"},
        {"cur:2", "all remove:0 cur:0", ":"},
        {"cur:1", "mv:0,2", "B* C A D :"},
        {"cur:1", "mv:3,0", "D A B* C :"},
        {"cur:1", "mv:1,3", "A C D B* :"},
        {"cur:2", "mv:3,2", "A B D C* :"},
        {"cur:2", "mv:1,2", "A C* B D :"},
        {"cur:2", "mv:0,1", "B A C* D :"},
        {"cur:1", "mv:0,4 mv:-1,0 mv:4,0 mv:0,-1 cur:4 cur:-1", "A B* C D :"},
    });
}

TEST_F(TabScript, Choosing) {
    ExpectStates({
        {"", "down:70,9", "A B* C D held : changing1 changed1"},
        {"", "down:70,9 up:70,9", "A B* C D : changing1 changed1"},
        {"", "down:34,9 up:150,9", "A* B C D :"},
        {"", "down:290,9 up:290,9", "A* B C D :"},
        {"stop", "down:70,9 up:70,9", "A B* C D focus : changing1 changed1"},
        {"refuse:0", "down:70,9 up:70,9", "A* B C D : changing1"},
        {"cur:1", "key:right key:right key:right", "A B C D* : changing2 changed2 changing3 changed3"},
        {"cur:1", "key:left key:left key:left", "A* B C D : changing0 changed0"},
        {"cur:1", "key:end key:home key:x", "A* B C D : changing3 changed3 changing0 changed0"},
        {"cur:1", "key:home key:end", "A B C D* : changing0 changed0 changing3 changed3"},
        {"all", "key:right key:left key:end", ":"},
        {"", "right:150,9", "A B C* D : changing2 changed2 menu2@190,39"},
        {"", "right:290,9", "A* B C D : menu@330,39"},
        {"refuse:0", "right:150,9", "A* B C D : changing2 menu2@190,39"},
        {"", "move:70,9 move:150,20", "A* B C D over 2 :"},
        {"", "move:70,9 move:290,20", "A* B C D :"},
        {"", "move:70,9 leave", "A* B C D :"},
        {"", "move:70,9 insert:0", "N A* B C D :"},
    });
}

TEST_F(TabScript, Dragging) {
    ExpectStates({
        {"", "down:34,9 move:60,9 move:150,9 up:150,9", "A* B C D over 2 :"},
        {"reorder", "down:34,9 move:36,9 move:34,11", "A* B C D over 0 held :"},
        {"reorder", "down:34,9 move:40,9", "A* B C D drag held focus :"},
        {"reorder", "down:34,9 move:34,15", "A* B C D drag held focus :"},
        {"reorder", "down:34,9 move:60,9 move:90,9 up:90,9", "A* B C D : dragend"},
        {"reorder", "down:34,9 move:60,9 move:91,9 up:91,9", "B A* C D : dragend move0>1 moved0>1"},
        {"reorder", "down:34,9 move:60,9 move:146,9 up:146,9", "B A* C D : dragend move0>1 moved0>1"},
        {"reorder", "down:34,9 move:60,9 move:299,9 up:299,9", "B C D A* : dragend move0>3 moved0>3"},
        {"reorder", "down:150,9 move:120,9 move:2,9 up:2,9",
         "C* A B D : changing2 changed2 dragend move2>0 moved2>0"},
        {"reorder refuse:2", "down:150,9 move:120,9 move:2,9 up:2,9",
         "A B C* D : changing2 changed2 dragend move2>0"},
        {"reorder", "down:150,9 move:120,9 right:2,9 up:2,9", "A B C* D : changing2 changed2 dragend"},
        {"reorder", "down:150,9 move:120,9 lose up:2,9", "A B C* D : changing2 changed2 dragend"},
        {"reorder", "down:150,9 move:120,9 pump:esc up:2,9", "A B C* D : changing2 changed2 dragend taken"},
        {"reorder", "down:150,9 move:120,9 pump:x", "A B C* D drag held focus : changing2 changed2"},
        {"reorder", "down:150,9 move:120,9 remove:0", "B C* D : changing2 changed2 dragend"},
        {"reorder", "down:150,9 move:120,9 insert:0", "N A B C* D : changing2 changed2 dragend"},
        {"reorder", "down:150,9 move:120,9 mv:0,1", "B A C* D : changing2 changed2 dragend"},
        {"reorder", "down:150,9 move:120,9 all", ": changing2 changed2 dragend"},
        {"reorder close", "down:70,9 move:120,9 up:2,9", "A* B C D over 1 :"},
    });
}

TEST_F(TabScript, Renaming) {
    ExpectStates({
        {"", "double:70,9 begin:1", "A* B C D :"},
        {"rename", "double:70,9", "A* B C D edit B 65-145 : begin1"},
        {"rename", "begin:4 begin:-1", "A* B C D :"},
        {"rename", "double:70,9 type:new pump:return", "A* new C D focus : begin1 rename1(new) end1 taken"},
        {"rename", "double:70,9 alt:x pump:x", "A* B C D edit B 65-145 : begin1 taken"},
        {"rename", "double:70,9 type:new pump:esc", "A* B C D focus : begin1 end1 taken"},
        {"rename", "double:70,9 type:new away", "A* new C D : begin1 rename1(new) end1"},
        {"rename", "double:70,9 pump:return", "A* B C D focus : begin1 end1 taken"},
        {"rename", "double:70,9 type: pump:return", "A* B C D focus : begin1 end1 taken"},
        {"rename", "double:70,9 type:new down:150,9",
         "A new C* D held focus : begin1 rename1(new) end1 changing2 changed2"},
        {"rename", "double:70,9 type:new wheel:120", "A* new C D focus : begin1 rename1(new) end1"},
        {"rename", "double:70,9 type:new right:150,9",
         "A new C* D focus : begin1 rename1(new) end1 changing2 changed2 menu2@190,39"},
        {"rename", "double:70,9 type:new width:280", "A* new C D focus : begin1 rename1(new) end1"},
        {"rename", "double:70,9 type:new begin:2",
         "A* new C D edit C 121-201 : begin1 rename1(new) end1 begin2"},
        {"rename", "double:70,9 type:new insert:0", "N A* B C D focus : begin1 end1"},
        {"rename", "double:70,9 type:new remove:3", "A* B C focus : begin1 end1"},
        {"rename", "double:70,9 type:new mv:0,1", "B A* C D focus : begin1 end1"},
        {"rename", "double:70,9 type:new all", "focus : begin1 end1"},
        {"rename refuse:4", "double:70,9", "A* B C D : begin1"},
        {"rename refuse:5", "double:70,9 type:new accept", "A* B C D focus : begin1 rename1(new) end1"},
        {"rename cur:2", "key:f2", "A B C* D edit C 121-201 : begin2"},
        {"rename more:3 cur:6", "key:f2", "A B C D x x x* scrolled 146 edit x 199-252 : begin6"},
        {"rename width:100", "begin:0", "A* B C D edit A 9-52 : begin0"},
    });
}

TEST_F(TabScript, Buttons) {
    ExpectStates({
        {"close", "down:60,15 up:60,15", "A* B C D : close0"},
        {"close", "down:60,15 up:34,15", "A* B C D :"},
        {"close", "down:60,15 up:134,15", "A* B C D :"},
        {"close", "down:60,15 lose up:60,15", "A* B C D :"},
        {"close", "double:60,15 up:60,15", "A* B C D : close0"},
        {"close cur:1", "key:del middle:34,15 middle:290,15", "A B* C D : close1 close0"},
        {"", "key:del middle:34,15", "A* B C D :"},
        {"add", "down:246,15 up:246,15", "A* B C D : add"},
        {"add", "double:246,15 up:246,15", "A* B C D : add"},
        {"add", "double:280,15", "A* B C D : add"},
        {"add more:3", "double:275,29", "A* B C D x x x :"},
        {"", "double:280,15", "A* B C D :"},
    });
    // The host removes the tab in its answer.
    Make();
    m_parent.onNote = [&] { m_tabs->RemoveTab(3); };
    Run("down:202,9");
    m_parent.onNote = [] {};
    EXPECT_EQ(State(), "A* B C : changing3");
}

TEST_F(TabScript, Scrolling) {
    ExpectStates({
        {"more:3", "down:282,15 up:282,15", "A* B C D x x x scrolled 60 :"},
        {"more:3", "down:282,15", "A* B C D x x x scrolled 60 held :"},
        {"more:3", "double:282,15 up:282,15 down:282,15 up:282,15 down:282,15 up:282,15",
         "A* B C D x x x scrolled 146 :"},
        {"more:3 cur:6", "down:262,15 up:262,15", "A B C D x x x* scrolled 86 :"},
        {"more:3", "wheel:-60", "A* B C D x x x scrolled 30 :"},
        {"more:3", "wheel:-1200 wheel:120", "A* B C D x x x scrolled 86 :"},
        {"more:3 add", "wheel:-1200", "A* B C D x x x scrolled 176 :"},
        {"more:3", "cur:4", "A B C D x* x x scrolled 40 :"},
        {"more:3 cur:6", "cur:1", "A B* C D x x x scrolled 56 :"},
        {"more:3 cur:6", "width:400", "A B C D x x x* :"},
        {"cur:3", "width:120", "A B C D* scrolled 158 :"},
        {"more:3 cur:6", "remove:0 remove:0 remove:0", "D x x x* :"},
        {"more:3 reorder cur:6", "down:34,9 move:60,9 move:2,9 up:2,9",
         "A B C D* x x x scrolled 146 : changing3 changed3 dragend"},
    });
}

TEST_F(TabScript, HoldingAButtonAndDraggingToAnEndScrollOn) {
    const auto scrollsTo = [&](int offset) {
        const ULONGLONG end = ::GetTickCount64() + 2000;
        while (m_tabs->GetTabRect(0).left != 6 - offset && ::GetTickCount64() < end) {
            ::MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
            PumpQueue();
        }
        return m_tabs->GetTabRect(0).left == 6 - offset;
    };
    ::SetCursorPos(40 + 282, 30 + 15);
    PumpQueue();
    Run("more:3 move:282,15 down:282,15");
    EXPECT_TRUE(scrollsTo(120) && scrollsTo(146));
    ::SetCursorPos(40 + 262, 30 + 15);
    Run("move:282,15 up:282,15 move:262,15 down:262,15");
    EXPECT_TRUE(scrollsTo(0));
    Run("up:262,15 reorder down:34,9 move:60,9");
    ::SetCursorPos(40 + 229, 30 + 15);
    EXPECT_TRUE(scrollsTo(60) && scrollsTo(146));
    ::SetCursorPos(40 + 23, 30 + 15);
    EXPECT_TRUE(scrollsTo(86) && scrollsTo(0));
    Run("lose");
}

// Notes what is painted and how: the tabs, their texts and the signs.
struct Noting : TabStyle {
    explicit Noting(std::string& notes) : TabStyle(TabColorsOf(TabTheme::kLight)), m_notes(notes) {}
    int Gap() const override { return 5; }
    void DrawGround(CDC&, const CRect& strip, TabSide) const override { Note("g", strip, {}); }
    void DrawTab(CDC&, const CRect& bounds, TabSide, const TabState& state) const override {
        Note("t", bounds, state);
    }
    void DrawText(CDC&, const CString& text, const CRect& bounds, const TabState& state) const override {
        Note(std::string(1, static_cast<char>(text[0])), bounds, state);
    }
    void DrawSign(CDC&, TabSign sign, const CRect& bounds, const TabState& state) const override {
        Note(std::string(1, "x+<>"[static_cast<int>(sign)]), bounds, state);
    }
    void DrawDropMark(CDC&, int x, const CRect& strip) const override {
        m_notes += "mark" + std::to_string(x) + "/" + std::to_string(strip.Width()) + " ";
    }
    void Note(const std::string& what, const CRect& bounds, const TabState& state) const {
        m_notes += what + std::to_string(bounds.left) + "-" + std::to_string(bounds.right) + "," +
                   std::to_string(bounds.top) + "-" + std::to_string(bounds.bottom);
        m_notes += state.current ? "c" : "";
        m_notes += state.hover ? "h" : "";
        m_notes += state.pressed ? "p" : "";
        m_notes += state.focused ? "f" : "";
        m_notes += state.disabled ? "d " : " ";
    }
    std::string& m_notes;
};

TEST_F(TabScript, Painting) {
    const struct {
        const char *state, *painted;
    } rows[] = {
        {"cur:1 move:150,9",
         "g0-300,0-30 t6-62,0-30 A10-58,4-26 t128-184,0-30h C132-180,4-26h t189-245,0-30 D193-241,4-26 "
         "t67-123,0-30c "
         "B71-119,4-26c "},
        {"close add cur:2 move:40,15",
         "g0-300,0-30 t-16-58,0-30h x34-52,6-24h A-12-34,4-26h t63-137,0-30 x113-131,6-24 B67-113,4-26 "
         "t221-295,0-30 "
         "x271-289,6-24 D225-271,4-26 t142-216,0-30c x192-210,6-24c C146-192,4-26c +228-246,6-24 "
         "<258-276,6-24 >276-294,6-24 "},
        {"close down:60,15",
         "g0-300,0-30 t85-159,0-30 x135-153,6-24 B89-135,4-26 t164-238,0-30 x214-232,6-24 C168-214,4-26 "
         "t243-317,0-30 "
         "x293-311,6-24 D247-293,4-26 t6-80,0-30c x56-74,6-24cp A10-56,4-26c <258-276,6-24d >276-294,6-24 "},
        {"stop down:80,9 up:80,9",
         "g0-300,0-30 t6-62,0-30 A10-58,4-26 t128-184,0-30 C132-180,4-26 t189-245,0-30 D193-241,4-26 "
         "t67-123,0-30cf "
         "B71-119,4-26cf "},
        {"more:3 move:262,15",
         "g0-300,0-30 t67-123,0-30 B71-119,4-26 t128-184,0-30 C132-180,4-26 t189-245,0-30 D193-241,4-26 "
         "t250-306,0-30 "
         "x254-302,4-26 t6-62,0-30c A10-58,4-26c <258-276,6-24hd >276-294,6-24 "},
        {"more:3 cur:6 down:282,15",
         "g0-300,0-30 t-48-8,0-30 C-44-4,4-26 t13-69,0-30 D17-65,4-26 t74-130,0-30 x78-126,4-26 "
         "t135-191,0-30 "
         "x139-187,4-26 t196-252,0-30c x200-248,4-26c <258-276,6-24 >276-294,6-24pd "},
        {"reorder down:34,9 move:60,9 move:150,9",
         "g0-300,0-30 t67-123,0-30 B71-119,4-26 t128-184,0-30 C132-180,4-26 t189-245,0-30 D193-241,4-26 "
         "t6-62,0-30cp "
         "A10-58,4-26cp mark126/300 "},
        {"reorder down:34,9 move:60,9 move:299,9",
         "g0-300,0-30 t67-123,0-30 B71-119,4-26 t128-184,0-30 C132-180,4-26 t189-245,0-30 D193-241,4-26 "
         "t6-62,0-30cp "
         "A10-58,4-26cp mark247/300 "},
        {"reorder down:150,9 move:120,9 move:2,9",
         "g0-300,0-30 t6-62,0-30 A10-58,4-26 t67-123,0-30 B71-119,4-26 t189-245,0-30 D193-241,4-26 "
         "t128-184,0-30cp "
         "C132-180,4-26cp mark4/300 "},
    };
    std::string notes;
    for (const auto& row : rows) {
        Make();
        m_tabs->SetStyle(std::make_unique<Noting>(notes));
        Run(row.state);
        notes.clear();
        m_tabs->RedrawWindow();
        EXPECT_EQ(notes, row.painted) << row.state;
    }
}

}  // namespace
