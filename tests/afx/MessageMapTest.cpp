#include <afxext.h>
#include <gtest/gtest.h>

#include "WindowSupport.h"

#include <string>
#include <type_traits>

namespace {

const UINT registeredMessage = ::RegisterWindowMessage(_T("class library test"));

/// Writes down which handler was called with what.
class Recorder : public CWnd {
public:
    std::string log;

protected:
    template <class Value>
    static auto Number(Value value) {
        if constexpr (std::is_pointer_v<Value>)
            return reinterpret_cast<UINT_PTR>(value);
        else
            return value;
    }
    /// Writes a handler's name and its arguments down; gives the handler's answer.
    template <class... Values>
    int Note(int answer, const char* name, Values... values) {
        log += name;
        ((log += " " + std::to_string(Number(values))), ...);
        log += ";";
        return answer;
    }
    void OnSize(UINT type, int cx, int cy) { Note(0, "size", type, cx, cy); }
    void OnMove(int x, int y) { Note(0, "move", x, y); }
    void OnMouseMove(UINT flags, CPoint p) { Note(0, "mouse", flags, p.x, p.y); }
    BOOL OnMouseWheel(UINT flags, short delta, CPoint p) {
        return Note(TRUE, "wheel", flags, delta, p.x, p.y);
    }
    void OnKeyDown(UINT key, UINT repeat, UINT flags) { Note(0, "key", key, repeat, flags); }
    void OnTimer(UINT_PTR id) { Note(0, "timer", id); }
    void OnSetFocus(CWnd* from) { Note(0, "focus", from == this); }
    void OnCaptureChanged(CWnd* to) { Note(0, "capture", to == this); }
    void OnContextMenu(CWnd* window, CPoint p) { Note(0, "context", window == this, p.x, p.y); }
    BOOL OnSetCursor(CWnd*, UINT hit, UINT message) { return Note(TRUE, "cursor", hit, message); }
    void OnNcLButtonDown(UINT hit, CPoint p) { Note(0, "nc", hit, p.x, p.y); }
    void OnSysCommand(UINT id, LPARAM lParam) { Note(0, "system", id, lParam); }
    void OnHScroll(UINT code, UINT position, CScrollBar*) { Note(0, "hscroll", code, position); }
    void OnActivate(UINT state, CWnd*, BOOL minimized) { Note(0, "activate", state, minimized); }
    BOOL OnEraseBkgnd(CDC* dc) { return Note(7, "erase", dc != nullptr); }
    HBRUSH OnCtlColor(CDC*, CWnd*, UINT kind) {
        return static_cast<HBRUSH>((Note(0, "colour", kind), ::GetStockObject(GRAY_BRUSH)));
    }
    UINT OnGetDlgCode() { return Note(0x1234, "dialog"); }
    BOOL OnQueryEndSession() { return Note(1, "query"); }
    LRESULT OnNcHitTest(CPoint p) { return Note(18, "hit", p.x, p.y); }
    void OnEnable(BOOL on) { Note(0, "enable", on); }
    void OnShowWindow(BOOL shown, UINT why) { Note(0, "show", shown, why); }
    void OnNcCalcSize(BOOL all, NCCALCSIZE_PARAMS* data) { Note(0, "frame", all, data); }
    void OnGetMinMaxInfo(MINMAXINFO* info) { Note(0, "limits", info); }
    void OnMenuSelect(UINT item, UINT flags, HMENU menu) { Note(0, "select", item, flags, menu); }
    void OnInitMenuPopup(CMenu* menu, UINT index, BOOL system) {
        Note(0, "popup", menu == nullptr, index, system);
    }
    int OnMouseActivate(CWnd* top, UINT hit, UINT message) {
        return Note(MA_NOACTIVATE, "click", top == this, hit, message);
    }
    BOOL OnCopyData(CWnd* from, COPYDATASTRUCT* data) { return Note(1, "data", from == this, data->dwData); }
    void OnDropFiles(HDROP files) { Note(0, "drop", files); }
    void OnRawInput(UINT code, HRAWINPUT input) { Note(0, "input", code, input); }
    void OnSettingChange(UINT what, LPCTSTR where) { Note(0, "setting", what, where[0]); }
    void OnMeasureItem(int id, LPMEASUREITEMSTRUCT item) { Note(0, "measure", id, item->itemID); }
    BOOL OnMaybe(UINT id) { return Note(id == 221, "maybe", id); }
    void OnClicks(UINT id) { Note(0, "clicks", id); }
    void OnHits(UINT id, NMHDR* header, LRESULT* result) {
        *result = Note(43, "hits", id, header->code == static_cast<UINT>(-13));
    }
    void OnCommand1() { Note(0, "command1"); }
    void OnRange(UINT id) { Note(0, "range", id); }
    void OnChange() { Note(0, "change"); }
    void OnHit(NMHDR* header, LRESULT* result) {
        *result = Note(42, "notify", header->code == static_cast<UINT>(-12));
    }
    LRESULT OnOwn(WPARAM wParam, LPARAM lParam) { return Note(5, "own", wParam, lParam); }
    LRESULT OnRegistered(WPARAM, LPARAM) { return Note(6, "registered"); }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Recorder, CWnd)
    ON_WM_SIZE()
    ON_WM_MOVE()
    ON_WM_MOUSEMOVE()
    ON_WM_MOUSEWHEEL()
    ON_WM_KEYDOWN()
    ON_WM_TIMER()
    ON_WM_SETFOCUS()
    ON_WM_CAPTURECHANGED()
    ON_WM_CONTEXTMENU()
    ON_WM_SETCURSOR()
    ON_WM_NCLBUTTONDOWN()
    ON_WM_SYSCOMMAND()
    ON_WM_HSCROLL()
    ON_WM_ACTIVATE()
    ON_WM_ERASEBKGND()
    ON_WM_CTLCOLOR()
    ON_WM_GETDLGCODE()
    ON_WM_QUERYENDSESSION()
    ON_WM_NCHITTEST()
    ON_WM_ENABLE()
    ON_WM_SHOWWINDOW()
    ON_WM_NCCALCSIZE()
    ON_WM_GETMINMAXINFO()
    ON_WM_MENUSELECT()
    ON_WM_INITMENUPOPUP()
    ON_WM_MOUSEACTIVATE()
    ON_WM_COPYDATA()
    ON_WM_DROPFILES()
    ON_WM_INPUT()
    ON_WM_SETTINGCHANGE()
    ON_WM_MEASUREITEM()
    ON_COMMAND_EX(220, &Recorder::OnMaybe)
    ON_COMMAND_EX(221, &Recorder::OnMaybe)
    ON_CONTROL_RANGE(BN_CLICKED, 310, 312, &Recorder::OnClicks)
    ON_NOTIFY_RANGE(-13, 300, 301, &Recorder::OnHits)
    ON_COMMAND(101, &Recorder::OnCommand1)
    ON_COMMAND_RANGE(200, 210, &Recorder::OnRange)
    ON_EN_CHANGE(300, &Recorder::OnChange)
    ON_NOTIFY(-12, 301, &Recorder::OnHit)
    ON_MESSAGE(WM_APP + 1, &Recorder::OnOwn)
    ON_REGISTERED_MESSAGE(registeredMessage, &Recorder::OnRegistered)
END_MESSAGE_MAP()

/// Has an entry of its own ahead of the base's and leaves the rest to it.
class Derived : public Recorder {
protected:
    void OnMouseMove(UINT flags, CPoint p) {
        log += "derived;";
        Recorder::OnMouseMove(flags, p);
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Derived, Recorder)
    ON_WM_MOUSEMOVE()
END_MESSAGE_MAP()

TEST(MessageMap, HandsEveryMessageItsArguments) {
    Recorder window;
    ASSERT_TRUE(CreateHidden(window));
    CButton child;
    ASSERT_TRUE(child.Create(_T("x"), 0, CRect(0, 0, 9, 9), &window, 301));
    auto self = reinterpret_cast<WPARAM>(window.m_hWnd);
    CClientDC dc(&window);
    auto context = reinterpret_cast<WPARAM>(dc.m_hDC);
    NMHDR header{child.m_hWnd, 301, static_cast<UINT>(-12)}, inRange = header, nobody = header;
    inRange.code = static_cast<UINT>(-13);
    nobody.hwndFrom = nullptr;
    COPYDATASTRUCT data{7, 0, nullptr};
    MEASUREITEMSTRUCT item{};
    item.CtlType = ODT_MENU;
    item.itemID = 9;
    LPARAM point = MAKELPARAM(static_cast<WORD>(-3), 40);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        LRESULT result;
        const char* log;
    } cases[] = {
        {WM_SIZE, SIZE_RESTORED, MAKELPARAM(40000, 20), 0, "size 0 40000 20;"},
        {WM_MOVE, 0, point, 0, "move -3 40;"},
        {WM_MOUSEMOVE, MK_SHIFT, point, 0, "mouse 4 -3 40;"},
        {WM_MOUSEWHEEL, MAKEWPARAM(MK_CONTROL, -120), point, 1, "wheel 8 -120 -3 40;"},
        {WM_KEYDOWN, VK_F2, 0x00010002, 0, "key 113 2 1;"},
        {WM_TIMER, 77, 0, 0, "timer 77;"},
        {WM_SETFOCUS, self, 0, 0, "focus 1;"},
        {WM_CAPTURECHANGED, 0, static_cast<LPARAM>(self), 0, "capture 1;"},
        {WM_CONTEXTMENU, self, point, 0, "context 1 -3 40;"},
        {WM_SETCURSOR, self, MAKELPARAM(HTCLIENT, WM_MOUSEMOVE), 1, "cursor 1 512;"},
        {WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 50000), 0, 0, "hscroll 5 50000;"},
        {WM_ACTIVATE, MAKEWPARAM(WA_CLICKACTIVE, 1), 0, 0, "activate 2 1;"},
        {WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(-7, 8), 0, "nc 2 -7 8;"},
        {WM_SYSCOMMAND, SC_MINIMIZE, MAKELPARAM(5, 6), 0, "system 61472 393221;"},
        {WM_ERASEBKGND, context, 0, 7, "erase 1;"},
        {WM_CTLCOLORSTATIC, context, 0, reinterpret_cast<LRESULT>(::GetStockObject(GRAY_BRUSH)), "colour 6;"},
        {WM_COMMAND, 101, 0, 1, "command1;"},
        {WM_COMMAND, 210, 0, 1, "range 210;"},
        {WM_COMMAND, 211, 0, 0, ""},
        {WM_COMMAND, MAKEWPARAM(300, EN_CHANGE), static_cast<LPARAM>(self), 1, "change;"},
        {WM_COMMAND, MAKEWPARAM(300, EN_KILLFOCUS), static_cast<LPARAM>(self), 0, ""},
        {WM_NOTIFY, 301, reinterpret_cast<LPARAM>(&header), 42, "notify 1;"},
        {WM_NOTIFY, 301, reinterpret_cast<LPARAM>(&inRange), 43, "hits 301 1;"},
        {WM_NOTIFY, 301, reinterpret_cast<LPARAM>(&nobody), 0, ""},
        {WM_GETDLGCODE, 0, 0, 0x1234, "dialog;"},
        {WM_QUERYENDSESSION, 0, 0, 1, "query;"},
        {WM_NCHITTEST, 0, point, 18, "hit -3 40;"},
        {WM_ENABLE, 1, 0, 0, "enable 1;"},
        {WM_SHOWWINDOW, 0, SW_PARENTCLOSING, 0, "show 0 1;"},
        {WM_NCCALCSIZE, 1, 77, 0, "frame 1 77;"},
        {WM_GETMINMAXINFO, 0, 78, 0, "limits 78;"},
        {WM_MENUSELECT, MAKEWPARAM(5, 6), 79, 0, "select 5 6 79;"},
        {WM_INITMENUPOPUP, 0, MAKELPARAM(3, 1), 0, "popup 1 3 1;"},
        {WM_MOUSEACTIVATE, self, MAKELPARAM(HTCAPTION, WM_RBUTTONDOWN), MA_NOACTIVATE, "click 1 2 516;"},
        {WM_COPYDATA, self, reinterpret_cast<LPARAM>(&data), 1, "data 1 7;"},
        {WM_DROPFILES, 80, 0, 0, "drop 80;"},
        {WM_INPUT, 0x101, 81, 0, "input 1 81;"},
        {WM_SETTINGCHANGE, 4, reinterpret_cast<LPARAM>(L"A"), 0, "setting 4 65;"},
        {WM_MEASUREITEM, 12, reinterpret_cast<LPARAM>(&item), 1, "measure 12 9;"},
        {WM_CTLCOLORMSGBOX, context, 0, reinterpret_cast<LRESULT>(::GetStockObject(GRAY_BRUSH)), "colour 0;"},
        {WM_COMMAND, 220, 0, 0, "maybe 220;"},
        {WM_COMMAND, 221, 0, 1, "maybe 221;"},
        {WM_COMMAND, 0, 0, 0, ""},
        {WM_COMMAND, MAKEWPARAM(309, BN_CLICKED), static_cast<LPARAM>(self), 0, ""},
        {WM_COMMAND, MAKEWPARAM(310, BN_CLICKED), static_cast<LPARAM>(self), 1, "clicks 310;"},
        {WM_COMMAND, MAKEWPARAM(312, BN_CLICKED), static_cast<LPARAM>(self), 1, "clicks 312;"},
        {WM_APP + 1, 8, 9, 5, "own 8 9;"},
        {registeredMessage, 0, 0, 6, "registered;"},
    };
    for (const auto& item : cases) {
        window.log.clear();
        EXPECT_EQ(item.result, window.SendMessage(item.message, item.wParam, item.lParam)) << item.log;
        EXPECT_EQ(item.log, window.log) << "message " << item.message;
    }
}

TEST(MessageMap, DerivedHandlerComesFirstAndTheBaseServesTheRest) {
    Derived window;
    ASSERT_TRUE(CreateHidden(window));
    window.log.clear();
    window.SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(1, 2));
    window.SendMessage(WM_COMMAND, 101);
    EXPECT_EQ("derived;mouse 0 1 2;command1;", window.log);
}

/// A control that handles what its parent is told about it, or lets the parent.
class Reflecting : public CWnd {
public:
    std::string log;
    bool passesOn = false;
    static inline const HBRUSH brush = static_cast<HBRUSH>(::GetStockObject(LTGRAY_BRUSH));

protected:
    void OnChange() { log += "change;"; }
    BOOL OnUpdate() {
        log += "update;";
        return !passesOn;
    }
    void OnHit(NMHDR*, LRESULT* result) {
        log += "hit;";
        *result = 21;
    }
    void OnMute(NMHDR*, LRESULT*) { log += "mute;"; }
    BOOL OnMaybe(NMHDR*, LRESULT* result) {
        log += "maybe;";
        *result = 22;
        return !passesOn;
    }
    HBRUSH CtlColor(CDC*, UINT kind) {
        log += "colour " + std::to_string(kind) + ";";
        return passesOn ? nullptr : brush;
    }
    void HScroll(UINT code, UINT position) {
        log += "scroll " + std::to_string(code) + " " + std::to_string(position) + ";";
    }
    void VScroll(UINT code, UINT position) {
        log += "vertical " + std::to_string(code) + " " + std::to_string(position) + ";";
    }
    void DrawItem(LPDRAWITEMSTRUCT item) { log += "draw " + std::to_string(item->itemID) + ";"; }
    void MeasureItem(LPMEASUREITEMSTRUCT item) { log += "measure " + std::to_string(item->itemID) + ";"; }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Reflecting, CWnd)
    ON_CONTROL_REFLECT(EN_CHANGE, &Reflecting::OnChange)
    ON_CONTROL_REFLECT_EX(EN_UPDATE, &Reflecting::OnUpdate)
    ON_NOTIFY_REFLECT(-12, &Reflecting::OnHit)
    ON_NOTIFY_REFLECT(-14, &Reflecting::OnMute)
    ON_NOTIFY_REFLECT_EX(-13, &Reflecting::OnMaybe)
    ON_WM_CTLCOLOR_REFLECT()
    ON_WM_HSCROLL_REFLECT()
    ON_WM_VSCROLL_REFLECT()
    ON_WM_DRAWITEM_REFLECT()
    ON_WM_MEASUREITEM_REFLECT()
END_MESSAGE_MAP()

/// A parent with handlers for the same.
class Reflected : public CWnd {
public:
    std::string log;

protected:
    void OnChange() { log += "change;"; }
    void OnUpdate() { log += "update;"; }
    void OnKillFocusOf() { log += "focus;"; }
    void OnHit(NMHDR*, LRESULT*) { log += "hit;"; }
    void OnMaybe(NMHDR*, LRESULT* result) {
        log += "maybe;";
        *result = 32;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Reflected, CWnd)
    ON_EN_CHANGE(51, &Reflected::OnChange)
    ON_EN_UPDATE(51, &Reflected::OnUpdate)
    ON_EN_KILLFOCUS(51, &Reflected::OnKillFocusOf)
    ON_NOTIFY(-12, 51, &Reflected::OnHit)
    ON_NOTIFY(-13, 51, &Reflected::OnMaybe)
END_MESSAGE_MAP()

TEST(Reflection, ShowsTheControlWhatItsParentIsTold) {
    Reflected parent;
    Reflecting control;
    ASSERT_TRUE(CreateHidden(parent));
    ASSERT_TRUE(control.Create(nullptr, nullptr, WS_CHILD, CRect(0, 0, 9, 9), &parent, 51));
    const auto window = reinterpret_cast<LPARAM>(control.m_hWnd);
    NMHDR hit{control.m_hWnd, 51, static_cast<UINT>(-12)}, maybe = hit;
    maybe.code = static_cast<UINT>(-13);
    NMHDR mute = hit;
    mute.code = static_cast<UINT>(-14);
    DRAWITEMSTRUCT item{};
    item.itemID = 6;
    item.hwndItem = control;
    MEASUREITEMSTRUCT size{};
    size.CtlID = 51;
    size.itemID = 7;
    MEASUREITEMSTRUCT ofMenu = size;
    ofMenu.CtlType = ODT_MENU;
    DRAWITEMSTRUCT inMenu = item;
    inMenu.CtlType = ODT_MENU;
    CClientDC dc(&control);
    const auto context = reinterpret_cast<WPARAM>(dc.m_hDC);
    const struct {
        UINT message;
        WPARAM wParam;
        LPARAM lParam;
        const char *control, *parent, *passedOn;
        LRESULT answer, passedAnswer;
    } cases[] = {
        {WM_COMMAND, MAKEWPARAM(51, EN_CHANGE), window, "change;", "", "", 1, 1},
        {WM_COMMAND, MAKEWPARAM(0, EN_CHANGE), window, "change;", "", "", 1, 1},
        {WM_COMMAND, MAKEWPARAM(51, EN_UPDATE), window, "update;", "", "update;", 1, 1},
        {WM_COMMAND, MAKEWPARAM(51, EN_KILLFOCUS), window, "", "focus;", "focus;", 1, 1},
        {WM_NOTIFY, 51, reinterpret_cast<LPARAM>(&hit), "hit;", "", "", 21, 21},
        {WM_NOTIFY, 51, reinterpret_cast<LPARAM>(&maybe), "maybe;", "", "maybe;", 22, 32},
        {WM_NOTIFY, 51, reinterpret_cast<LPARAM>(&mute), "mute;", "", "", 0, 0},
        {WM_CTLCOLOREDIT, context, window, "colour 1;", "", "", reinterpret_cast<LRESULT>(Reflecting::brush),
         -1},
        {WM_HSCROLL, MAKEWPARAM(SB_THUMBTRACK, 70), window, "scroll 5 70;", "", "", 0, 0},
        {WM_VSCROLL, MAKEWPARAM(SB_THUMBTRACK, 71), window, "vertical 5 71;", "", "", 0, 0},
        {WM_DRAWITEM, 51, reinterpret_cast<LPARAM>(&item), "draw 6;", "", "", 1, 1},
        {WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&inMenu), "", "", "", -1, -1},
        {WM_MEASUREITEM, 51, reinterpret_cast<LPARAM>(&size), "measure 7;", "", "", 1, 1},
        {WM_MEASUREITEM, 0, reinterpret_cast<LPARAM>(&ofMenu), "", "", "", -1, -1},
    };
    for (bool passesOn : {false, true}) {
        control.passesOn = passesOn;
        for (const auto& c : cases) {
            control.log.clear();
            parent.log.clear();
            const LRESULT answer = parent.SendMessage(c.message, c.wParam, c.lParam);
            EXPECT_EQ(c.control, control.log) << &c - cases;
            EXPECT_EQ(passesOn ? c.passedOn : c.parent, parent.log) << &c - cases;
            const LRESULT expected = passesOn ? c.passedAnswer : c.answer;
            EXPECT_TRUE(expected == -1 || expected == answer) << &c - cases << ": " << answer;
        }
    }
}

}  // namespace
