// Tabs under real messages of the keyboard and the pump; TabScriptTest.cpp has the rest.
#include "window/TabCtrl.h"

#include "afx/WindowSupport.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Lumo;

namespace {

constexpr UINT kId = 77;

// Remembers the notifications and refuses one of them on demand.
class Host : public CWnd {
public:
    struct Note {
        UINT code;
        int tab, target;
        CString text;
    };
    std::vector<Note> notes;
    UINT refused = 0;

    bool Got(UINT code, int tab, int target = -1) const {
        for (const Note& note : notes) {
            if (note.code == code && note.tab == tab && note.target == target)
                return true;
        }
        return false;
    }

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
        if (message != WM_NOTIFY)
            return CWnd::WindowProc(message, wParam, lParam);
        const auto& notify = *reinterpret_cast<const TabNotify*>(lParam);
        EXPECT_EQ(kId, wParam);
        notes.push_back({notify.hdr.code, notify.tab, notify.target, notify.text});
        return notify.hdr.code == refused;
    }
};

class Tabs : public ::testing::Test {
protected:
    void SetUp() override {
        const LPCWSTR windowClass = AfxRegisterWndClass(0);
        ASSERT_TRUE(m_host.CreateEx(0, windowClass, L"Host", WS_POPUP | WS_VISIBLE, CRect(0, 0, 600, 200),
                                    nullptr, 0));
        ASSERT_TRUE(m_tabs.Create(WS_VISIBLE, CRect(0, 0, 600, 30), &m_host, kId));
        for (LPCWSTR text : {L"One", L"Two", L"Three", L"Four"})
            m_tabs.AddTab(text, text[0]);
    }
    void TearDown() override { m_host.DestroyWindow(); }

    CString Order() const {
        CString order;
        for (int i = 0; i < m_tabs.GetTabCount(); ++i)
            order += m_tabs.GetTabText(i) + (i == m_tabs.GetCurrent() ? L"* " : L" ");
        return order.Trim();
    }

    CPoint Middle(int tab) const { return m_tabs.GetTabRect(tab).CenterPoint(); }
    void Mouse(UINT message, CPoint at) {
        m_tabs.SendMessage(message, message == WM_LBUTTONUP ? 0 : MK_LBUTTON, MAKELPARAM(at.x, at.y));
    }
    void Click(CPoint at) {
        Mouse(WM_LBUTTONDOWN, at);
        Mouse(WM_LBUTTONUP, at);
    }
    void Key(UINT key) { m_tabs.SendMessage(WM_KEYDOWN, key); }
    // Presses a tab and moves it in front of another one, without releasing it.
    void Pull(int from, CPoint to) {
        Mouse(WM_LBUTTONDOWN, Middle(from));
        Mouse(WM_MOUSEMOVE, Middle(from) + CSize(20, 0));
        Mouse(WM_MOUSEMOVE, to);
    }
    // A key as the program's pump gets it.
    bool Pump(HWND window, UINT key) {
        MSG message = {window, WM_KEYDOWN, key, 0, 0, {}};
        return AfxPreTranslateMessage(&message) != FALSE;
    }
    COLORREF PixelAt(CPoint at) {
        m_tabs.RedrawWindow();
        CClientDC dc(&m_tabs);
        return dc.GetPixel(at.x, at.y);
    }

    Host m_host;
    TabCtrl m_tabs;
};

TEST_F(Tabs, IndicesThatAreNoneChangeNothing) {
    for (int none : {-1, 4}) {
        EXPECT_FALSE(m_tabs.RemoveTab(none) || m_tabs.MoveTab(none, 0) || m_tabs.SetCurrent(none));
        EXPECT_FALSE(m_tabs.SetTabText(none, L"x") || m_tabs.SetTabData(none, 1));
        EXPECT_TRUE(m_tabs.GetTabRect(none).IsRectEmpty() && m_tabs.GetTabText(none).IsEmpty());
        EXPECT_EQ(0u, m_tabs.GetTabData(none));
    }
    EXPECT_TRUE(m_tabs.SetTabText(3, L"Five") && m_tabs.SetTabData(3, 9));
    EXPECT_EQ(L"One* Two Three Five", Order());
    EXPECT_TRUE(m_tabs.GetTabData(3) == 9 && m_tabs.GetTabData(0) == L'O');
}

TEST_F(Tabs, EditorRenamesOnReturnAndOnLeaving) {
    Mouse(WM_LBUTTONDBLCLK, Middle(1));
    EXPECT_FALSE(m_tabs.IsRenaming()) << "not allowed yet";
    m_tabs.SetRename(true);
    const auto type = [&](int tab, LPCWSTR text) {
        Mouse(WM_LBUTTONDBLCLK, Middle(tab));
        EXPECT_TRUE(m_tabs.IsRenaming());
        CWnd* editor = m_tabs.GetWindow(GW_CHILD);
        editor->SetWindowText(text);
        return editor->m_hWnd;
    };
    EXPECT_TRUE(Pump(type(1, L" New name "), VK_RETURN));
    EXPECT_EQ(L"One* New name Three Four", Order());
    EXPECT_TRUE(Pump(type(1, L"No"), VK_ESCAPE));
    EXPECT_TRUE(Pump(type(1, L"  "), VK_RETURN));
    type(2, L"Left");
    ::SetFocus(m_host);
    PumpQueue();
    EXPECT_FALSE(m_tabs.IsRenaming());
    EXPECT_EQ(L"One* New name Left Four", Order());
    m_host.refused = TABN_RENAME;
    Pump(type(0, L"No"), VK_RETURN);
    m_host.refused = TABN_BEGINRENAME;
    EXPECT_FALSE(m_tabs.BeginRename(0));
    EXPECT_EQ(L"One* New name Left Four", Order());

    m_host.refused = 0;
    type(2, L"Pressed");
    ::SetCursorPos(300, 150);
    INPUT press = {};
    press.mi.dwFlags = MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_LEFTUP;
    ::SendInput(1, &press, sizeof press);
    PumpQueue();
    EXPECT_EQ(L"One* New name Pressed Four", Order()) << "the host takes no keyboard";
    type(3, L"Gone");
    m_tabs.RemoveTab(3);
    EXPECT_FALSE(m_tabs.IsRenaming());
    PumpQueue();
    EXPECT_EQ(L"One* New name Pressed", Order());
}

constexpr TabSide kSides[] = {TabSide::kAbove, TabSide::kBelow, TabSide::kLeft, TabSide::kRight};

// Beside the pages, and with them in one window of 900 by 800.
class TabSides : public Tabs {
protected:
    void SetUp() override {
        Tabs::SetUp();
        m_host.MoveWindow(0, 0, 900, 800);
        m_tabs.MoveWindow(0, 0, 900, 800);
        m_tabs.SetPageFrame(true);
    }
    // Near the beginning of a tab, before its text, so many pixels away from the pages.
    CPoint AtPageEdge(TabSide side, int tab, int out) const {
        const CRect rect = m_tabs.GetTabRect(tab);
        switch (side) {
            case TabSide::kAbove:
                return {rect.left + 7, rect.bottom - 1 - out};
            case TabSide::kBelow:
                return {rect.left + 7, rect.top + out};
            case TabSide::kLeft:
                return {rect.right - 1 - out, rect.top + 7};
            default:
                return {rect.left + out, rect.top + 7};
        }
    }
    static bool IsUpright(TabSide side) { return side == TabSide::kLeft || side == TabSide::kRight; }
};

TEST_F(TabSides, StripFrameAndColoursOfEveryVariantAtBothScales) {
    for (int dpi : {96, 192}) {
        for (TabTheme theme : {TabTheme::kLight, TabTheme::kDark, TabTheme::kBlue}) {
            const TabColors colors = TabColorsOf(theme);
            m_tabs.SetStyle(std::make_unique<ClientAreaTabStyle>(theme));
            m_tabs.SetDpi(dpi);
            const int scale = dpi / 96;
            EXPECT_EQ(30 * scale, m_tabs.GetHeight());
            for (TabSide side : kSides) {
                SCOPED_TRACE(testing::Message() << dpi << " side " << static_cast<int>(side));
                m_tabs.SetSide(side);
                const CRect page = m_tabs.GetPageRect();
                const int frame = 6 * scale;
                EXPECT_EQ(IsUpright(side) ? CSize(900 - 30 * scale - frame, 800 - frame)
                                          : CSize(900 - frame, 800 - 30 * scale - frame),
                          page.Size());
                EXPECT_EQ(side == TabSide::kLeft ? 33 * scale : 3 * scale, page.left);
                EXPECT_EQ(side == TabSide::kAbove ? 33 * scale : 3 * scale, page.top);
                m_tabs.RedrawWindow();
                CClientDC dc(&m_tabs);
                const auto at = [&](CPoint point) { return dc.GetPixel(point.x, point.y); };
                for (int out : {0, 14 * scale}) {
                    EXPECT_EQ(colors.current, at(AtPageEdge(side, 0, out))) << "one piece with the page";
                    EXPECT_EQ(out ? colors.tab : colors.edge, at(AtPageEdge(side, 2, out)));
                }
                // The three sides beside the strip have a line and a rim, the strip's side its own line.
                const CPoint middle = page.CenterPoint();
                const CPoint rims[] = {{middle.x, page.top - 1},
                                       {middle.x, page.bottom},
                                       {page.left - 1, middle.y},
                                       {page.right, middle.y}};
                const CPoint lines[] = {{middle.x, page.top - 3 * scale},
                                        {middle.x, page.bottom + 3 * scale - 1},
                                        {page.left - 3 * scale, middle.y},
                                        {page.right + 3 * scale - 1, middle.y}};
                for (int i = 0; i < 4; ++i) {
                    EXPECT_EQ(colors.current, at(rims[i]));
                    EXPECT_EQ(kSides[i] == side ? colors.current : colors.edge, at(lines[i])) << i;
                }
            }
        }
    }
    m_tabs.SetPageFrame(false);
    EXPECT_TRUE(m_tabs.GetPageRect().IsRectEmpty());
}

TEST_F(TabSides, MouseAndKeysWorkAtEverySide) {
    m_tabs.SetCloseButtons(true);
    m_tabs.SetAddButton(true);
    m_tabs.SetReorder(true);
    for (int dpi : {96, 192}) {
        m_tabs.SetDpi(dpi);
        m_tabs.SetSide(TabSide::kAbove);
        const int length = m_tabs.GetTabRect(2).Width();
        for (TabSide side : kSides) {
            SCOPED_TRACE(testing::Message() << dpi << " side " << static_cast<int>(side));
            m_tabs.SetSide(side);
            const CRect tab = m_tabs.GetTabRect(2);
            EXPECT_EQ(length, IsUpright(side) ? tab.Height() : tab.Width());
            Click(Middle(1));
            EXPECT_EQ(1, m_tabs.GetCurrent());
            Key(IsUpright(side) ? VK_DOWN : VK_RIGHT);
            EXPECT_EQ(2, m_tabs.GetCurrent());
            Key(IsUpright(side) ? VK_UP : VK_LEFT);
            Key(IsUpright(side) ? VK_LEFT : VK_UP);
            EXPECT_EQ(1, m_tabs.GetCurrent());
            int hit = -1;
            const CRect close = m_tabs.GetPartRect(TabPart::kClose, 3);
            EXPECT_EQ(TabPart::kClose, m_tabs.HitTest(close.CenterPoint(), &hit));
            EXPECT_EQ(3, hit);
            CRect within;
            EXPECT_TRUE(within.UnionRect(close, m_tabs.GetTabRect(3)) && within == m_tabs.GetTabRect(3));
            EXPECT_EQ(TabPart::kAdd, m_tabs.HitTest(m_tabs.GetPartRect(TabPart::kAdd).CenterPoint()));
            EXPECT_EQ(TabPart::kNothing, m_tabs.HitTest(m_tabs.GetPageRect().CenterPoint()));

            const CSize behind = IsUpright(side) ? CSize(0, 5) : CSize(5, 0);
            Mouse(WM_LBUTTONDOWN, Middle(0));
            Mouse(WM_MOUSEMOVE, Middle(0) + CSize(20, 20));
            Mouse(WM_MOUSEMOVE, Middle(3) + behind);
            m_tabs.RedrawWindow();
            Mouse(WM_LBUTTONUP, Middle(3) + behind);
            EXPECT_EQ(L"Two Three Four One*", Order());
            m_tabs.MoveTab(3, 0);
        }
    }
    m_tabs.MoveWindow(0, 0, 700, 250);
    ASSERT_TRUE(m_tabs.IsScrolling()) << "they do not fit from top to bottom";
    const CRect up = m_tabs.GetPartRect(TabPart::kScrollLeft);
    EXPECT_LE(up.bottom, m_tabs.GetPartRect(TabPart::kScrollRight).top);
    m_tabs.SetCurrent(3);
    EXPECT_LE(m_tabs.GetTabRect(3).bottom, up.top);
}

TEST_F(TabSides, TextsAndPicturesAreTurned) {
    /// Shows where a text begins and where its upper side is.
    struct Marking : ClientAreaTabStyle {
        void DrawText(CDC& dc, const CString&, const CRect& bounds, const TabState&) const override {
            dc.FillSolidRect(bounds.left, bounds.top, 12, bounds.Height(), RGB(250, 0, 0));
            dc.FillSolidRect(bounds.left, bounds.top, bounds.Width(), 4, RGB(0, 250, 0));
        }
    };
    // Its left half is blue.
    const HIMAGELIST images = ::ImageList_Create(16, 12, ILC_COLOR32, 1, 0);
    std::vector<DWORD> pixels(192);
    for (size_t i = 0; i < pixels.size(); ++i)
        pixels[i] = i % 16 < 8 ? 0x0000FA : 0xFFFFFF;
    CBitmap bitmap;
    bitmap.CreateBitmap(16, 12, 1, 32, pixels.data());
    ::ImageList_Add(images, bitmap, nullptr);
    m_tabs.SetStyle(std::make_unique<Marking>());
    const int before = m_tabs.GetTabRect(1).Width();
    m_tabs.SetImages(images);
    EXPECT_FALSE(m_tabs.SetTabImage(4, 0));
    EXPECT_TRUE(m_tabs.SetTabImage(1, 0));
    EXPECT_EQ(before + 20, m_tabs.GetTabRect(1).Width());
    for (TabSide side : {TabSide::kAbove, TabSide::kLeft, TabSide::kRight}) {
        SCOPED_TRACE(static_cast<int>(side));
        m_tabs.SetSide(side);
        m_tabs.RedrawWindow();
        const CRect tab = m_tabs.GetTabRect(1);
        CClientDC dc(&m_tabs);
        // Along the text from its beginning, and down from its upper side.
        const auto at = [&](int along, int down) {
            const CPoint point = side == TabSide::kAbove  ? CPoint(tab.left + along, tab.top + down)
                                 : side == TabSide::kLeft ? CPoint(tab.left + down, tab.bottom - 1 - along)
                                                          : CPoint(tab.right - 1 - down, tab.top + along);
            return dc.GetPixel(point.x, point.y);
        };
        EXPECT_EQ(RGB(0, 0, 250), at(9, 14));
        EXPECT_EQ(RGB(255, 255, 255), at(22, 14));
        EXPECT_EQ(RGB(250, 0, 0), at(30, 14)) << "behind the picture";
        EXPECT_EQ(RGB(0, 250, 0), at(60, 5));
        EXPECT_NE(RGB(250, 0, 0), at(60, 14));
        EXPECT_NE(RGB(0, 250, 0), at(60, 12));
    }
    m_tabs.SetImages(nullptr);
    EXPECT_EQ(before, m_tabs.GetTabRect(1).Height());
    ::ImageList_Destroy(images);
}

TEST_F(TabSides, NamesAreTypedAcrossBesideThePages) {
    m_tabs.SetRename(true);
    m_tabs.SetSide(TabSide::kRight);
    ASSERT_TRUE(m_tabs.BeginRename(2));
    CWnd* editor = CWnd::GetFocus();
    CRect place, screen;
    editor->GetWindowRect(place);
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &screen, 0);
    EXPECT_GT(place.Width(), 4 * place.Height());
    EXPECT_TRUE(place.left >= screen.left && place.right <= screen.right);
    editor->SetWindowText(L"Across");
    EXPECT_TRUE(Pump(*editor, VK_RETURN));
    EXPECT_EQ(L"One* Two Across Four", Order());
    ASSERT_TRUE(m_tabs.BeginRename(0));
    m_host.DestroyWindow();
    EXPECT_FALSE(m_tabs.IsRenaming()) << "it goes with the control";
}

}  // namespace
