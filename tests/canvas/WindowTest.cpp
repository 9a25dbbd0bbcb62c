#include "canvas/CanvasFixture.h"

#include <afxext.h>
#include <gtest/gtest.h>

using namespace Lumo;

namespace {

using WindowTest = CanvasFixture;

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

TEST_F(WindowTest, FailsQuietlyWithoutAParent) {
    CString name;
    CRect rect(0, 0, 10, 10);
    EXPECT_EQ(m_document->CreateCanvas(WS_CHILD, name, rect, nullptr), 0);
    EXPECT_EQ(m_document->GetCanvasList().size(), 1u);
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
    CUIObject* a = AddRectangle(10, 10, 10, 10);
    TakeUpdateRect();
    m_document->UpdateAllCanvas(nullptr, 0, nullptr);
    EXPECT_TRUE(TakeUpdateRect().IsRectEmpty());
    m_document->UpdateAllCanvas(m_canvas, 1, a);
    EXPECT_EQ(TakeUpdateRect(), CRect(7, 7, 23, 23));
    m_document->UpdateAllCanvas(m_canvas, 0, nullptr);
    EXPECT_EQ(TakeUpdateRect(), CRect(0, 0, kWidth, kHeight));
}

TEST_F(WindowTest, AnUnknownScaleStepChangesNothing) {
    TakeUpdateRect();
    m_canvas->OnCanvasScale(9);
    EXPECT_TRUE(TakeUpdateRect().IsRectEmpty());
    m_canvas->OnCanvasScale(8);
    EXPECT_EQ(TakeUpdateRect(), CRect(0, 0, kWidth, kHeight));
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
