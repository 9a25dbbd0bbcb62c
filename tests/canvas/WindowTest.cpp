#include "canvas/CanvasFixture.h"

#include "stress/support/Imports.h"

#include <afxext.h>

#include <memory>
#include <gtest/gtest.h>

using namespace Lumo;

namespace {

using WindowTest = CanvasFixture;

// A document that shows what it keeps for derived ones.
class OpenDocument : public CUIDocument {
public:
    using CUIDocument::m_atomCanvas;
    using CUIDocument::m_auxiliary;
};

class OpenCanvas : public CUICanvas {
public:
    using CUICanvas::m_fScaleX;
    using CUICanvas::m_fScaleY;
};

// A tool that counts what reaches it.
class CountingTool : public CUIToolBase {
public:
    using CUIToolBase::CUIToolBase;
    void OnLButtonDown(CUICanvas*, UINT, const CPoint&) override { ++downs; }
    void OnLButtonUp(CUICanvas*, UINT, const CPoint&) override { ++others; }
    void OnMouseMove(CUICanvas*, UINT, const CPoint&) override { ++others; }
    void OnLButtonDblClk(CUICanvas*, UINT, const CPoint&) override { ++others; }
    int downs = 0;
    int others = 0;
};

TEST_F(WindowTest, IsCreatedAsDescribed) {
    wchar_t text[32];
    m_canvas->GetWindowText(text, 32);
    EXPECT_STREQ(text, L"Canvas");
    EXPECT_EQ(::GetWindowLong(m_canvas->m_hWnd, GWL_ID), 0);
    EXPECT_EQ(::GetClassLongPtr(m_canvas->m_hWnd, GCL_STYLE) & (CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW),
              ULONG_PTR(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW));
    EXPECT_EQ(::GetClassLongPtr(m_canvas->m_hWnd, GCLP_HBRBACKGROUND), 0u);
    EXPECT_EQ(m_document->GetCurrentCanvas(), m_canvas);
    EXPECT_EQ(m_canvas->GetRuntimeClass(), CUICanvas::GetThisClass());
    EXPECT_STREQ(CUICanvas::GetThisClass()->m_lpszClassName, "CUICanvas");
    WNDCLASSEX registered = {};
    registered.cbSize = sizeof(registered);
    EXPECT_TRUE(::GetClassInfoEx(::GetModuleHandle(L"TesselCtrls.dll"), L"Tessel Canvas", &registered));
    EXPECT_EQ(registered.style, UINT(CS_HREDRAW | CS_VREDRAW | CS_OWNDC));
    EXPECT_EQ(registered.hbrBackground, ::GetStockObject(BLACK_BRUSH));
}

BOOL WINAPI KnowsNoClass(HINSTANCE, LPCWSTR, WNDCLASSW*) {
    return FALSE;
}

ATOM WINAPI RegistersNoClass(const WNDCLASSW*) {
    return 0;
}

TEST_F(WindowTest, AHostsWindowOfTheRegisteredClassEndsTheLoop) {
    const HWND window = ::CreateWindowEx(0, L"Tessel Canvas", L"", WS_POPUP, 0, 0, 90, 80, nullptr, nullptr,
                                         ::GetModuleHandle(L"TesselCtrls.dll"), nullptr);
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(::SendMessage(window, WM_COPYDATA, 0, 0), 1);
    MSG msg;
    while (::PeekMessage(&msg, nullptr, 0, 0, PM_REMOVE))
        ::DispatchMessage(&msg);
    ::DestroyWindow(window);
    ASSERT_TRUE(::PeekMessage(&msg, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(msg.wParam, 0u);
}

TEST_F(WindowTest, FailsQuietlyWithoutAParentOrAWindowClass) {
    CString name;
    CRect rect(0, 0, 10, 10);
    EXPECT_EQ(m_document->CreateCanvas(WS_CHILD, name, rect, nullptr), 0);
    ASSERT_TRUE(ReplaceImport(L"TesselAfx.dll", "GetClassInfoW", &KnowsNoClass));
    ASSERT_TRUE(ReplaceImport(L"TesselAfx.dll", "RegisterClassW", &RegistersNoClass));
    EXPECT_EQ(m_document->CreateCanvas(WS_CHILD, name, rect, m_parent.m_hWnd), 0);
    ReplaceImport(L"TesselAfx.dll", "GetClassInfoW", &::GetClassInfoW);
    ReplaceImport(L"TesselAfx.dll", "RegisterClassW", &::RegisterClassW);
    EXPECT_EQ(m_document->GetCanvasList().size(), 1u);
    EXPECT_EQ(m_document->GetCurrentCanvas(), m_canvas);
}

TEST_F(WindowTest, EveryDocumentKnowsTheWindowClass) {
    OpenDocument other;
    CString name;
    CRect rect(0, 0, 10, 10);
    ASSERT_EQ(other.CreateCanvas(WS_CHILD, name, rect, m_parent.m_hWnd), 1);
    WNDCLASSEX known = {};
    known.cbSize = sizeof(known);
    EXPECT_EQ(other.m_atomCanvas,
              ::GetClassInfoEx(::GetModuleHandle(L"TesselCtrls.dll"), L"Tessel Canvas", &known));
    delete other.GetCurrentCanvas();
}

TEST_F(WindowTest, ACanvasThatIsDestroyedTakesItsPageAndModifiesTheDocument) {
    auto canvas = std::make_unique<CUICanvas>(m_document);
    m_document->AppendCanvas(canvas.get());
    m_document->SetModifiedFlag(0);
    canvas.reset();
    EXPECT_EQ(m_document->GetModifiedFlag(), 1);
    EXPECT_EQ(m_document->GetCanvasList().size(), 1u);
    EXPECT_EQ(m_document->GetCurrentCanvas(), nullptr);
    m_document->SetModifiedFlag(0);
    canvas = std::make_unique<CUICanvas>(m_document);
    canvas.reset();
    EXPECT_EQ(m_document->GetModifiedFlag(), 0) << "it had no page";
}

TEST_F(WindowTest, RemembersTheSizeOfThePage) {
    CSize size(640, 0);
    m_canvas->Select(AddRectangle(10, 20, 30, 15), 0);
    m_canvas->Init(0, size);
    EXPECT_TRUE(m_canvas->m_selection.empty());
    EXPECT_EQ(m_canvas->GetInteractive(), 0);
    EXPECT_EQ(m_canvas->GetWidth(), 640);
    EXPECT_EQ(m_canvas->GetHeight(), ::GetSystemMetrics(SM_CYSCREEN));
    size = CSize(0, 480);
    m_canvas->Init(1, size);
    EXPECT_EQ(m_canvas->GetWidth(), ::GetSystemMetrics(SM_CXSCREEN));
    EXPECT_EQ(m_canvas->GetHeight(), 480);
}

TEST_F(WindowTest, TheModeChoosesTheToolAndTheInteractiveFlagSilencesIt) {
    CountingTool property(DS_TOOL_PROPERTY);
    CountingTool arc(DS_ARC);
    CUIToolBase::run_drawshape = DS_ARC;
    m_canvas->OnModeProperty();
    Press(5, 5);
    EXPECT_EQ(property.downs, 1);
    m_canvas->OnModeRunning();
    Press(5, 5);
    Move(5, 5);
    Release(5, 5);
    DoubleClick(5, 5);
    EXPECT_EQ(arc.downs, 1);
    EXPECT_EQ(arc.others, 3);
    CSize size(0, 0);
    EXPECT_EQ(m_canvas->Init(0, size), 1);
    Press(5, 5);
    EXPECT_EQ(arc.downs, 1);
    m_canvas->SetInteractive(1);
    CUIToolBase::run_drawshape = DS_BEZIER;  // no tool: dropped
    Press(5, 5);
    EXPECT_EQ(arc.downs, 1);
}

TEST_F(WindowTest, SwallowsTwoMessages) {
    MSG menu = {m_canvas->m_hWnd, WM_CONTEXTMENU, 0, 0, 0, {0, 0}};
    EXPECT_TRUE(m_canvas->PreTranslateMessage(&menu));
    MSG f2 = {m_canvas->m_hWnd, WM_KEYDOWN, VK_F2, 0, 0, {0, 0}};
    EXPECT_FALSE(m_canvas->PreTranslateMessage(&f2));
    BYTE keys[256] = {};
    keys[VK_SHIFT] = 0x80;
    ::SetKeyboardState(keys);
    EXPECT_TRUE(m_canvas->PreTranslateMessage(&f2));
    f2.message = WM_SYSKEYDOWN;
    EXPECT_TRUE(m_canvas->PreTranslateMessage(&f2));
    keys[VK_SHIFT] = 0;
    ::SetKeyboardState(keys);
}

TEST_F(WindowTest, OneUnitIsOnePixelAndRectanglesComeBackNormalised) {
    CRect rect(50, 30, 10, 20);
    m_canvas->ClientToDoc(rect);
    EXPECT_EQ(rect, CRect(10, 20, 50, 30));
    Gdiplus::RectF real(1.4f, 2.6f, 10.0f, -4.0f);
    m_canvas->DocToClient(real);
    ExpectRect(real, 1, -1, 10, 4);
    Gdiplus::PointF point(2.5f, -2.5f);
    m_canvas->ClientToDoc(point);
    EXPECT_TRUE(point.Equals(Gdiplus::PointF(3, -3)));
    CPoint whole(7, 9);
    m_canvas->DocToClient(whole);
    EXPECT_EQ(whole, CPoint(7, 9));
}

TEST_F(WindowTest, APrinterMapsByItsResolution) {
    CClientDC dc(m_canvas);
    CPrintInfo info;
    m_canvas->OnPrepareDC(&dc, &info);
    SIZE window, viewport;
    ::GetWindowExtEx(dc.m_hDC, &window);
    ::GetViewportExtEx(dc.m_hDC, &viewport);
    EXPECT_EQ(::GetMapMode(dc.m_hDC), MM_ANISOTROPIC);
    EXPECT_EQ(window.cx, dc.GetDeviceCaps(HORZRES) * 5 / dc.GetDeviceCaps(HORZSIZE));
    EXPECT_EQ(window.cy, dc.GetDeviceCaps(VERTRES) * 5 / dc.GetDeviceCaps(VERTSIZE));
    EXPECT_EQ(viewport.cx, dc.GetDeviceCaps(LOGPIXELSX));
    EXPECT_EQ(viewport.cy, dc.GetDeviceCaps(LOGPIXELSY));
}

TEST_F(WindowTest, InvalidatesTheObjectWithRoomForOutlineAndHandles) {
    CUIObject* object = AddRectangle(100, 100, 40, 20);
    object->SetLineWidth(3.5f);
    TakeUpdateRect();
    m_canvas->InvalidateObject(object);
    EXPECT_EQ(TakeUpdateRect(), CRect(96, 96, 144, 124));
    m_canvas->m_selection = {object};
    m_canvas->InvalidateObject(object);
    EXPECT_EQ(TakeUpdateRect(), CRect(93, 93, 147, 127));
    m_canvas->InvalidateObject(nullptr);
    EXPECT_TRUE(TakeUpdateRect().IsRectEmpty());
}

TEST_F(WindowTest, HintsSayWhatIsRepainted) {
    CUIObject* a = AddRectangle(10, 10, 10, 10);
    CUIObject* b = AddRectangle(100, 100, 10, 10);
    const CRect aRect(7, 7, 23, 23);
    const CRect bRect(94, 94, 116, 116);
    const CRect whole(0, 0, kWidth, kHeight);
    std::deque<CUIObject*> list = {a};
    m_canvas->m_selection = {b};
    TakeUpdateRect();
    const struct {
        long hint;
        void* data;
        CRect expected;
    } cases[] = {
        {0, nullptr, whole},   {1, a, aRect},       {1, nullptr, CRect()},
        {2, nullptr, bRect},   {3, &list, aRect},   {3, &m_canvas->m_selection, CRect()},
        {3, nullptr, CRect()}, {4, &list, CRect()}, {9, a, CRect()},
    };
    for (const auto& c : cases) {
        m_canvas->UpdateCanvas(nullptr, c.hint, c.data);
        EXPECT_EQ(TakeUpdateRect(), c.expected) << c.hint;
    }
    a->SetDrawShape(DS_OLE);
    m_canvas->UpdateCanvas(nullptr, 4, &list);
    EXPECT_EQ(TakeUpdateRect(), aRect);
    EXPECT_EQ(m_canvas->m_selection.size(), 1u);
    m_canvas->UpdateCanvas(nullptr, 5, nullptr);
    EXPECT_EQ(TakeUpdateRect(), whole);
    EXPECT_TRUE(m_canvas->m_selection.empty());
}

TEST_F(WindowTest, TheDocumentPassesUpdatesOn) {
    CUICanvas* second = AddCanvas();
    CUIObject* a = Add(DS_RECTANGLE, 10, 20, 30, 15);
    CUIObject* b = Add(DS_RECTANGLE, 100, 120, 25, 10);
    b->SetDrawShape(DS_OLE);
    std::deque<CUIObject*> both = {a, b};
    const CRect none;
    const CRect ofA(7, 17, 43, 38);
    const CRect ofB(97, 117, 128, 133);
    const CRect ofBoth(7, 17, 128, 133);
    const CRect whole(0, 0, kWidth, kHeight);
    m_document->*(&OpenDocument::m_auxiliary) = {second};
    const struct {
        CUICanvas* canvas;
        long hint;
        void* data;
        CRect first, second;
    } rows[] = {
        {m_canvas, 0, nullptr, whole, none},
        {m_canvas, 1, a, ofA, none},
        {m_canvas, 2, nullptr, none, CRect(97 - 3, 117 - 3, 128 + 3, 133 + 3)},  // with room for handles
        {m_canvas, 3, &both, none, none},
        {m_canvas, 5, nullptr, none, none},
        {nullptr, 0, nullptr, none, none},
        {nullptr, 1, a, none, none},
        {nullptr, 2, nullptr, none, none},
        {nullptr, 3, &both, ofBoth, CRect(7, 17, 131, 136)},
        {nullptr, 3, &second->m_selection, ofB, none},  // the sender skips its own list
        {nullptr, 4, &both, ofB, CRect(94, 114, 131, 136)},
        {nullptr, 6, &both, none, none},
        {nullptr, 5, nullptr, whole, whole},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        second->m_selection = {b};
        TakeUpdateRect(*m_canvas);
        TakeUpdateRect(*second);
        m_document->UpdateAllCanvas(row.canvas, row.hint, row.data);
        EXPECT_EQ(TakeUpdateRect(*m_canvas), row.first);
        EXPECT_EQ(TakeUpdateRect(*second), row.second);
    }
    EXPECT_TRUE(second->m_selection.empty());
}

TEST_F(WindowTest, OtherPagesRepaintWhatACommandChanges) {
    CUICanvas* other = AddCanvas();
    m_document->SetCurrentCanvas(m_canvas);
    CUIObject* object = AddRectangle(10, 20, 30, 15);
    const struct {
        void (CUICanvas::*command)();
        CRect repainted;
    } rows[] = {
        {&CUICanvas::OnEditObjectDelete, CRect(7, 17, 43, 38)},
        {&CUICanvas::OnToolsMakeGroup, CRect(-3, -3, 43, 38) & CRect(0, 0, kWidth, kHeight)},
        {&CUICanvas::OnToolsMakeUngroup, CRect(7, 17, 43, 38)},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(&row - rows);
        if (m_canvas->m_selection.empty())
            m_canvas->Select(object, 0);
        TakeUpdateRect(*other);
        (m_canvas->*row.command)();
        EXPECT_EQ(TakeUpdateRect(*other), row.repainted);
    }
}

TEST_F(WindowTest, AnUnknownScaleStepChangesNothing) {
    TakeUpdateRect();
    m_canvas->OnCanvasScale(9);
    EXPECT_TRUE(TakeUpdateRect().IsRectEmpty());
    m_canvas->OnCanvasScale(8);
    EXPECT_EQ(TakeUpdateRect(), CRect(0, 0, kWidth, kHeight));
    EXPECT_EQ(m_canvas->*(&OpenCanvas::m_fScaleX), 4.0f);
    EXPECT_EQ(m_canvas->*(&OpenCanvas::m_fScaleY), 4.0f);
}

TEST_F(WindowTest, RawInputLeavesTheKeyboardRegistered) {
    ASSERT_TRUE(m_canvas->RegisterRawInput(m_parent.m_hWnd));
    EXPECT_TRUE(m_canvas->UnRegisterRawInput());
    UINT count = 0;
    ::GetRegisteredRawInputDevices(nullptr, &count, sizeof(RAWINPUTDEVICE));
    std::vector<RAWINPUTDEVICE> devices(count);
    ::GetRegisteredRawInputDevices(devices.data(), &count, sizeof(RAWINPUTDEVICE));
    ASSERT_EQ(devices.size(), 1u);
    EXPECT_EQ(devices[0].usUsage, 6);
    RAWINPUTDEVICE keyboard = {1, 6, RIDEV_REMOVE, nullptr};
    ::RegisterRawInputDevices(&keyboard, 1, sizeof(keyboard));
}

TEST_F(WindowTest, AReleasedDocumentLeavesNoPointerInItsCanvas) {
    AddRectangle(10, 10, 50, 50);
    m_canvas->Select(Objects().front(), 0);
    m_document->Release();
    EXPECT_EQ(m_canvas->GetDocument(), nullptr);
    CUIToolBase::run_drawshape = DS_RECTANGLE;
    Drag({20, 20}, {60, 60});
    m_canvas->Invalidate();
    m_canvas->UpdateWindow();
    m_document = new CUIDocument;
}

}  // namespace
