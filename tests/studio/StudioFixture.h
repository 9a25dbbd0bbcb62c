// A document with real page windows for Studio's tests.
#pragma once

#include "canvas/UITool.h"
#include "core/UIObjectPoly.h"
#include "studio/document/StudioDocument.h"
#include "studio/editing/PageTool.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

/// Opens a document with one page in a real parent window, with Studio's tools registered.
class StudioFixture : public ::testing::Test, public Studio::CanvasListener {
protected:
    void SetUp() override {
        const LPCWSTR windowClass = AfxRegisterWndClass(0);
        ASSERT_TRUE(m_parent.CreateEx(0, windowClass, L"Host", WS_POPUP, CRect(0, 0, 600, 400), nullptr, 0));
        m_document = new Studio::StudioDocument(m_parent, *this);
        ASSERT_TRUE(m_document->NewFile());
        Page().MoveWindow(0, 0, 600, 400);
        Studio::ChooseTool(Page(), Lumo::DS_SELECT);
    }

    void TearDown() override {
        m_document->Release();
        m_parent.DestroyWindow();
        for (const CString& file : m_files)
            ::DeleteFile(file);
    }

    Studio::StudioCanvas& Page() { return *m_document->CurrentPage(); }
    Lumo::CUIObjectDeque& Objects() { return *Page().Objects(); }

    /// A mouse message as the system sends it.
    void Mouse(UINT message, int x, int y, UINT flags = 0) {
        if (message != WM_LBUTTONUP && message != WM_MOUSEMOVE)
            flags |= MK_LBUTTON;
        Page().SendMessage(message, flags, MAKELPARAM(x, y));
    }

    /// Press, three moves and a release.
    void Drag(CPoint from, CPoint to, UINT flags = 0) {
        Mouse(WM_LBUTTONDOWN, from.x, from.y, flags);
        for (int step = 1; step <= 3; ++step)
            Mouse(WM_MOUSEMOVE, from.x + (to.x - from.x) * step / 3, from.y + (to.y - from.y) * step / 3,
                  flags);
        Mouse(WM_LBUTTONUP, to.x, to.y, flags);
    }

    void Click(CPoint at, UINT flags = 0) {
        Mouse(WM_LBUTTONDOWN, at.x, at.y, flags);
        Mouse(WM_LBUTTONUP, at.x, at.y, flags);
    }

    /// A gesture of words with a place each, measured from `corner`, and s(hift) or c(ontrol): m(ove),
    /// d(own), u(p), D(ouble click), R(ight button), w(heel), W(heel down); and those without: l(eave), x
    /// (the mouse is taken away), e(scape), f(inish), t(ick).
    void Play(const CString& gesture, CPoint corner = CPoint(0, 0)) {
        int at = 0;
        for (CString word = gesture.Tokenize(L" ", at); !word.IsEmpty(); word = gesture.Tokenize(L" ", at)) {
            const int x = ::_wtoi(word.Mid(1)) + corner.x;
            const int y = ::_wtoi(word.Mid(word.Find(L',') + 1)) + corner.y;
            const WCHAR last = word[word.GetLength() - 1];
            const UINT flags = last == L's' ? MK_SHIFT : last == L'c' ? MK_CONTROL : 0;
            const UINT held = m_down ? MK_LBUTTON : 0;
            CPoint screen(x, y);
            Page().ClientToScreen(&screen);
            m_down = word[0] == L'd' || word[0] == L'D' || (m_down && word[0] != L'u');
            const auto turn = [&](int by) {
                Page().SendMessage(WM_MOUSEWHEEL, MAKEWPARAM(flags, by), MAKELPARAM(screen.x, screen.y));
            };
            const auto right = [&](UINT message) { Page().SendMessage(message, flags, MAKELPARAM(x, y)); };
            const std::map<WCHAR, std::function<void()>> acts = {
                {L'm', [&] { Mouse(WM_MOUSEMOVE, x, y, flags | held); }},
                {L'd', [&] { Mouse(WM_LBUTTONDOWN, x, y, flags); }},
                {L'D', [&] { Mouse(WM_LBUTTONDBLCLK, x, y, flags); }},
                {L'u', [&] { Mouse(WM_LBUTTONUP, x, y, flags); }},
                {L'R', [&] { right(WM_RBUTTONDOWN), right(WM_RBUTTONUP); }},
                {L'w', [&] { turn(WHEEL_DELTA); }},
                {L'W', [&] { turn(-WHEEL_DELTA); }},
                {L'l', [&] { Page().SendMessage(WM_MOUSELEAVE); }},
                {L'x', [] { ::ReleaseCapture(); }},
                {L'e', [&] { Page().CancelGesture(); }},
                {L'f', [&] { Page().FinishEditing(); }},
                {L't', [&] { OnTick(); }},
            };
            acts.at(word[0])();
        }
        m_down = false;
    }
    virtual void OnTick() {}

    /// Puts a drawn object on the page.
    Lumo::CUIObject* Add(Lumo::DrawShape kind, float x, float y, float width, float height) {
        Lumo::CUIObject* object =
            Studio::MakeDrawnObject(kind, Gdiplus::RectF(x, y, width, height)).release();
        if (auto* poly = dynamic_cast<Lumo::CUIObjectPoly*>(object)) {
            Gdiplus::PointF from(x, y), to(x + width, y + height);
            poly->AddPoint(from);
            poly->AddPoint(to);
        }
        Page().AddObject(object);
        return object;
    }

    /// A file name in the temporary folder; the file is deleted after the test.
    CString FileName(LPCWSTR name) {
        WCHAR folder[MAX_PATH];
        ::GetTempPath(MAX_PATH, folder);
        CString path;
        path.Format(L"%sstudio_test_%lu_%s", folder, ::GetCurrentProcessId(), name);
        m_files.push_back(path);
        return path;
    }

    void OnCanvasState(Studio::StudioCanvas&) override { ++m_notifications; }
    void OnCanvasPointer(Studio::StudioCanvas&, const CPoint*) override {}
    void OnCanvasMenu(Studio::StudioCanvas&, CPoint) override { ++m_menus; }
    void OnCanvasPicture(Studio::StudioCanvas&, const Gdiplus::RectF& place) override {
        m_picture.Format(L" picture %g,%g %g,%g", place.X, place.Y, place.Width, place.Height);
    }
    /// Handles the messages that wait.
    static void Settle() {
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_REMOVE))
            ::DispatchMessage(&message);
    }

    CWnd m_parent;
    Studio::PageTools m_tools;
    Studio::StudioDocument* m_document = nullptr;
    std::vector<CString> m_files;
    int m_notifications = 0;
    int m_menus = 0;
    CString m_picture;
    bool m_down = false;
};

/// Compares rectangles for readable messages.
inline void ExpectBounds(Lumo::CUIObject& object, float x, float y, float width, float height) {
    const Gdiplus::RectF bounds = object.GetPosition();
    EXPECT_FLOAT_EQ(x, bounds.X);
    EXPECT_FLOAT_EQ(y, bounds.Y);
    EXPECT_FLOAT_EQ(width, bounds.Width);
    EXPECT_FLOAT_EQ(height, bounds.Height);
}
