// The smallest host: a window with a page on which rectangles and ellipses are drawn, files, and a lamp that
// a click switches while the page runs.
#include "appearance/UIObjectRectangle.h"
#include "canvas/UICanvas.h"
#include "canvas/UITool.h"
#include "core/UIDocument.h"

#include <afxdlgs.h>

#include <utility>

using namespace Lumo;

namespace {

constexpr DWORD kDark = 0xFF404040, kLit = 0xFF40E040;

class Lamp : public CUIObjectEllipse {
public:
    Lamp() : CUIObjectEllipse({40, 40, 80, 80}, DS_BUTTON) { SetFillColor(kDark); }
    // The colour is the state, so that a file keeps it.
    void RelayEvent(CUICanvas* canvas, unsigned, unsigned, long) override {
        SetFillColor(GetFillColor() == kDark ? kLit : kDark);
        canvas->InvalidateObject(this);
    }
};

// While the page runs, a click goes to the object under the pointer.
class RunTool : public CUIToolBase {
public:
    static constexpr auto kKind = static_cast<DrawShape>(0x100);
    RunTool() : CUIToolBase(kKind) {}
    void OnLButtonDown(CUICanvas* canvas, UINT flags, const CPoint& point) override {
        CPoint at = point;
        canvas->ClientToDoc(at);
        if (CUIObject* object = canvas->GetDocument()->ObjectAt(at))
            object->RelayEvent(canvas, WM_LBUTTONDOWN, flags, MAKELONG(point.x, point.y));
    }
    void OnLButtonDblClk(CUICanvas* canvas, UINT flags, const CPoint& point) override {
        OnLButtonDown(canvas, flags, point);
    }
};

// Draws nothing when the button is released where it was pressed. The library's tool would take the first
// object off the page, so this one stands ahead of it.
class ShapeTool : public CUIDownUpTool {
public:
    explicit ShapeTool(DrawShape kind) : CUIDownUpTool(kind) {
        m_tools.pop_back();
        m_tools.push_front(this);
    }
    void OnLButtonUp(CUICanvas* canvas, UINT flags, const CPoint& point) override {
        CPoint at = point;
        canvas->ClientToDoc(at);
        const bool isClick = abs(at.x - run_down.x) < 4 && abs(at.y - run_down.y) < 4;
        if (isClick && ::GetCapture() == canvas->m_hWnd && !canvas->m_selection.empty()) {
            CUIDocument::DestroyObject(canvas->m_selection.front());
            run_drawshape = DS_SELECT;
            canvas->Invalidate(FALSE);
        }
        CUIDownUpTool::OnLButtonUp(canvas, flags, point);
    }
};

// In a file the kind of an object stands before its record, so that loading knows what to create.
class Document : public CUIDocument {
public:
    CUICanvas* m_page = nullptr;

    void Serialize(CArchive& ar) override {
        if (ar.IsStoring()) {
            ar << static_cast<DWORD>(GetCanvasObjectList()->size());
            for (CUIObject* object : *GetCanvasObjectList()) {
                ar << static_cast<int>(object->GetDrawShape());
                object->Serialize(ar);
            }
            return;
        }
        AppendCanvas(m_page);  // loading has taken all pages away
        DWORD count;
        for (ar >> count; count > 0; --count) {
            int kind;
            ar >> kind;
            Append(static_cast<DrawShape>(kind))->Serialize(ar);
        }
    }

    CUIObject* Append(DrawShape kind) {
        CUIObject* object = kind == DS_BUTTON ? new Lamp : CUIToolBase::CreateUIObject({}, kind);
        object->SetDocument(this);
        object->SetCanvas(m_page);
        AppendObject(object, m_page);
        return object;
    }
};

enum Command : WORD { kOpen = 1, kSave, kSelect, kRectangle, kEllipse, kRun };
constexpr LPCWSTR kTexts[] = {L"Open (F3)",     L"Save (F2)",   L"Select (Esc)",
                              L"Rectangle (R)", L"Ellipse (E)", L"Run (F5)"};
constexpr WORD kKeys[] = {VK_F3, VK_F2, VK_ESCAPE, 'R', 'E', VK_F5};

class Frame : public CFrameWnd {
public:
    ~Frame() override {
        m_document->Release();  // destroys the objects; the canvas is the host's
        delete m_page;
        ::DestroyAcceleratorTable(m_hAccelTable);
    }

    bool CreateFrame() {
        CString name;
        CRect rect(0, 0, 10, 10);  // the frame fits it in
        if (!Create(nullptr, L"Minimal host", WS_OVERLAPPEDWINDOW, CRect(80, 60, 740, 560)) ||
            !m_document->CreateCanvas(WS_CHILD | WS_VISIBLE, name, rect, m_hWnd))
            return false;
        m_page = m_document->m_page = m_document->GetCurrentCanvas();
        m_page->SetDlgCtrlID(AFX_IDW_PANE_FIRST);
        m_document->Append(DS_BUTTON);
        CMenu menu;
        menu.CreateMenu();
        ACCEL keys[kRun] = {};
        for (WORD id = kOpen; id <= kRun; ++id) {
            menu.AppendMenu(MF_STRING, id, kTexts[id - 1]);
            keys[id - 1] = {FVIRTKEY, kKeys[id - 1], id};
        }
        SetMenu(&menu);
        menu.Detach();  // it is the window's now
        m_hAccelTable = ::CreateAcceleratorTable(keys, kRun);
        RecalcLayout();
        Choose(kSelect);
        return true;
    }

    // Works through everything as a user would and writes both files; true when all of it had its effect.
    bool Demonstrate(CString file, LPCWSTR picture) {
        Choose(kRectangle);
        Drag({200, 60}, {420, 200});
        Choose(kEllipse);
        Drag({120, 240}, {360, 380});
        Choose(kEllipse);
        Drag({500, 300}, {500, 300});  // draws nothing
        Choose(kRun);
        Drag({80, 80}, {80, 80});
        if (!m_document->Save(file) || !Open(file) || m_document->GetCanvasObjectList()->size() != 3 ||
            m_document->GetCanvasObjectList()->front()->GetFillColor() != kLit)
            return false;
        Gdiplus::Bitmap bitmap(640, 440);
        Gdiplus::Graphics graphics(&bitmap);
        m_page->Draw(&graphics, 640, 440);
        const CLSID png = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
        return bitmap.Save(picture, &png, nullptr) == Gdiplus::Ok;
    }

protected:
    DECLARE_MESSAGE_MAP()
    void Choose(UINT command) {
        static constexpr DrawShape kTools[] = {DS_SELECT, DS_RECTANGLE, DS_ELLIPSE};
        if (command <= kSave)
            return AskForFile(command == kOpen);
        m_page->m_nMode = command == kRun ? CM_RUNNING : CM_DRAW;
        m_page->Select(nullptr, 0);
        CUIToolBase::run_drawshape = command == kRun ? RunTool::kKind : kTools[command - kSelect];
        m_page->Invalidate(FALSE);
    }

private:
    void AskForFile(bool open) {
        CFileDialog dialog(open, L"cbf", nullptr, OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                           L"Pages (*.cbf)|*.cbf||", this);
        if (dialog.DoModal() != IDOK)
            return;
        CString path = dialog.GetPathName();
        if (!(open ? Open(path) : m_document->Save(path)))
            AfxMessageBox(path + (open ? L" cannot be opened." : L" cannot be saved."));
    }
    // Into a new document, since the old one would be empty after a file that cannot be read.
    bool Open(CString path) {
        auto* document = new Document;
        document->m_page = m_page;
        const bool loaded = document->Load(path) && document->GetCurrentCanvas();
        if (loaded) {
            std::swap(m_document, document);
            m_page->SetDocument(m_document);
            m_page->Invalidate(FALSE);
        }
        document->Release();
        return loaded;
    }
    void Drag(CPoint from, CPoint to) {
        m_page->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(from.x, from.y));
        m_page->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(to.x, to.y));
        m_page->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(to.x, to.y));
    }

    Document* m_document = new Document;
    CUICanvas* m_page = nullptr;
    RunTool m_runTool;
    ShapeTool m_rectangleTool{DS_RECTANGLE}, m_ellipseTool{DS_ELLIPSE};
};

BEGIN_MESSAGE_MAP(Frame, CFrameWnd)
    ON_COMMAND_RANGE(kOpen, kRun, &Frame::Choose)
END_MESSAGE_MAP()

class HostApp : public CWinApp {
public:
    HostApp() : CWinApp(L"Minimal host") {}
    BOOL InitInstance() override {
        auto* frame = new Frame;  // deletes itself with its window
        if (!frame->CreateFrame())
            return FALSE;
        m_pMainWnd = frame;
        frame->ShowWindow(m_nCmdShow);
        int count = 0;
        LPWSTR* words = ::CommandLineToArgvW(::GetCommandLine(), &count);
        if (count == 4 && CString(words[1]) == L"--demo") {
            m_code = frame->Demonstrate(words[2], words[3]) ? 0 : 1;
            frame->DestroyWindow();
        }
        ::LocalFree(words);
        return m_pMainWnd != nullptr;
    }
    int ExitInstance() override {
        CWinApp::ExitInstance();
        return m_code;
    }

private:
    int m_code = 0;
};

HostApp g_app;

}  // namespace
