#include "canvas/UINotifyHandler.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Lumo;

namespace {

// Writes down the notifications it gets.
template <class Base>
class Recorder : public Base {
public:
    struct Note {
        char what;  // 'E'nter, 'D'rag, 'L'eave
        CPoint point;
        int state;
        bool operator==(const Note&) const = default;
    };

    void OnDragEnter(CWnd*, UINT, const CPoint& point) override { Add('E', point); }
    void OnDrag(CWnd*, UINT, const CPoint& point) override { Add('D', point); }
    void OnDragLeave(CWnd*, UINT, const CPoint& point) override { Add('L', point); }

    void Down(int x, int y) { this->OnLButtonDown(nullptr, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y)); }
    void Move(int x, int y, UINT flags = MK_LBUTTON) {
        this->OnMouseMove(nullptr, WM_MOUSEMOVE, flags, MAKELPARAM(x, y));
    }
    void Up(int x, int y) { this->OnLButtonUp(nullptr, WM_LBUTTONUP, 0, MAKELPARAM(x, y)); }

    int State() const { return this->m_nDragState; }
    std::string What() const {
        std::string what;
        for (const Note& note : m_notes)
            what += note.what;
        return what;
    }

    std::vector<Note> m_notes;

private:
    void Add(char what, const CPoint& point) { m_notes.push_back({what, point, this->m_nDragState}); }
};

using Handler = Recorder<CUINotifyHandler>;
using HandlerEx = Recorder<CUINotifyHandlerEx>;

TEST(NotifyHandler, TellsADragFromItsStartToItsEnd) {
    Handler handler;
    handler.Down(10, 10);
    handler.Move(10, 10);
    EXPECT_TRUE(handler.m_notes.empty()) << "the mouse has not left the press point";
    handler.Move(11, 10);
    handler.Move(30, 300);
    handler.Up(12, 10);
    EXPECT_EQ(handler.m_notes, (std::vector<Handler::Note>{{'E', {10, 10}, DRAG_STARTING},
                                                           {'D', {11, 10}, DRAG_DRAGGING},
                                                           {'D', {30, 300}, DRAG_DRAGGING},
                                                           {'L', {12, 10}, DRAG_ENDED}}));
    handler.m_notes.clear();
    handler.Move(50, 50);
    EXPECT_EQ(handler.What(), "ED") << "an ended drag starts again while the button is held";
}

TEST(NotifyHandler, AReleaseNextToThePressLeavesTheDragOpen) {
    const struct {
        int x, y;
        bool ends;
    } rows[] = {{11, 10, false}, {8, 8, false},  {11, 11, false},
                {12, 10, true},  {10, 12, true}, {7, 10, true}};
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << row.x << ", " << row.y);
        Handler handler;
        handler.Down(10, 10);
        handler.Move(11, 10);
        handler.Up(row.x, row.y);
        EXPECT_EQ(handler.What(), row.ends ? "EDL" : "ED");
        EXPECT_EQ(handler.State(), row.ends ? DRAG_ENDED : DRAG_DRAGGING);
    }
}

TEST(NotifyHandler, AMoveWithoutTheButtonIsNoDrag) {
    Handler handler;
    handler.Down(10, 10);
    handler.Move(40, 40, MK_SHIFT);
    handler.Up(40, 40);
    EXPECT_TRUE(handler.m_notes.empty());
    EXPECT_EQ(handler.State(), DRAG_IDLE);
}

TEST(NotifyHandler, PointsAreUnsigned) {
    Handler handler;
    handler.Down(10, 10);
    handler.Move(-1, -2);
    EXPECT_EQ(handler.m_notes.back().point, CPoint(0xFFFF, 0xFFFE));
}

// The handler that goes by the cursor and the physical button: both are really moved and pressed here, over a
// window that takes the click.
class NotifyHandlerEx : public ::testing::Test {
protected:
    NotifyHandlerEx() {
        m_window.CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, AfxRegisterWndClass(0), L"target",
                          WS_POPUP | WS_VISIBLE, 300, 300, 200, 200, nullptr, nullptr);
        Cursor(310, 310);
    }

    ~NotifyHandlerEx() override { Button(false); }

    static void Cursor(int x, int y) {
        ::SetCursorPos(x, y);
        Pump();
    }

    static void Button(bool down) {
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP;
        ::SendInput(1, &input, sizeof(input));
        Pump();
    }

    static void Pump() {
        MSG msg;
        while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessage(&msg);
    }

    CWnd m_window;
    HandlerEx m_handler;
};

TEST_F(NotifyHandlerEx, StartsWhereTheLastReleaseLeftTheCursor) {
    m_handler.Down(1, 1);
    m_handler.Up(1, 1);
    EXPECT_TRUE(m_handler.m_notes.empty());
    m_handler.Down(1, 1);
    Button(true);
    m_handler.Move(5, 6);
    EXPECT_TRUE(m_handler.m_notes.empty()) << "the cursor has not moved since the release";
    Cursor(340, 330);
    m_handler.Move(7, 8);
    EXPECT_TRUE(m_handler.m_notes.empty()) << "the new position is only read at the end of the move";
    m_handler.Move(9, 10);
    m_handler.Move(11, 12);
    Cursor(360, 350);
    Button(false);
    m_handler.Up(13, 14);
    EXPECT_EQ(m_handler.m_notes, (std::vector<HandlerEx::Note>{{'E', {310, 310}, DRAG_STARTING},
                                                               {'D', {9, 10}, DRAG_DRAGGING},
                                                               {'D', {11, 12}, DRAG_DRAGGING},
                                                               {'L', {340, 330}, DRAG_ENDED}}));
    EXPECT_EQ(m_handler.State(), DRAG_ENDED);
    m_handler.m_notes.clear();
    Button(true);
    Cursor(340, 330);
    m_handler.Move(5, 6);
    m_handler.Move(5, 6);
    EXPECT_TRUE(m_handler.m_notes.empty()) << "only a press makes a new drag possible";
}

class OpenHandler : public CUINotifyHandler {
public:
    using CUINotifyHandler::m_ptCursor;
};

TEST_F(NotifyHandlerEx, ThePlainHandlerReadsTheCursorAtPressesAndMoves) {
    OpenHandler handler;
    handler.OnLButtonDown(nullptr, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(1, 2));
    EXPECT_EQ(handler.m_ptCursor, CPoint(310, 310));
    Cursor(340, 330);
    handler.OnMouseMove(nullptr, WM_MOUSEMOVE, 0, MAKELPARAM(3, 4));
    EXPECT_EQ(handler.m_ptCursor, CPoint(340, 330));
}

TEST_F(NotifyHandlerEx, LooksAtTheButtonItselfAndNotAtTheFlags) {
    m_handler.Down(1, 1);
    m_handler.Up(1, 1);
    m_handler.Down(1, 1);
    Cursor(340, 330);
    m_handler.Move(5, 6, MK_LBUTTON);
    m_handler.Move(5, 6, MK_LBUTTON);
    EXPECT_TRUE(m_handler.m_notes.empty());
    Button(true);
    m_handler.Move(5, 6, 0);
    EXPECT_EQ(m_handler.What(), "ED");
}

}  // namespace
