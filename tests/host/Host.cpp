// A host of the library: it overrides everything that can be overridden, draws a rectangle with the mouse,
// saves and loads it, and has an extension DLL. It knows the installed files only. Ends with 0 when every
// check passed.
#include "Overrides.h"

#include <afxadv.h>

#include <cstdio>

namespace {

int g_failures = 0;

void Check(bool passed, const char* what) {
    if (passed)
        return;
    ++g_failures;
    std::printf("failed: %s\n", what);
}

// Makes a call through a base and checks that it ended in the host's override.
#define CALL(name, expression)                                            \
    do {                                                                  \
        g_marks.clear();                                                  \
        static_cast<void>(expression);                                    \
        Check(g_marks.count(name) == 1, name ", called by " #expression); \
    } while (false)

// An archive that takes what a `Serialize` writes.
class Storage {
public:
    CArchive& Archive() { return m_archive; }

private:
    CSharedFile m_file;
    CArchive m_archive{&m_file, CArchive::store};
};

void CallQueries(CUIObject& object) {
    RectF rect(0, 0, 10, 10);
    PointF point(1, 1);
    CALL("ControlHandle", object.ControlHandle(0, rect));
    CALL("HitTest rectangle", object.HitTest(rect));
    CALL("HitTest point", object.HitTest(point, 1));
    CALL("RotateRect", object.RotateRect(90, rect));
    CALL("RotatePoint", object.RotatePoint(90, point, rect));
    CALL("GetHandleCount", object.GetHandleCount());
    CALL("GetHandlePoint", object.GetHandlePoint(0));
    CALL("GetHandleRect", object.GetHandleRect(0));
    CALL("GetHandleCursor", object.GetHandleCursor(0));
    CALL("NormalizeHandle", object.NormalizeHandle(0));
    CALL("GetItemRect", object.GetItemRect(&rect));
    CALL("GetType", object.GetType());
}

void CallChanges(CUIObject& object) {
    RectF rect(0, 0, 10, 10);
    PointF point(1, 1);
    CALL("Init", object.Init(DS_RECTANGLE, rect));
    CALL("ResetColor", object.ResetColor());
    CALL("Rotate about a point", object.Rotate(90, rect, point));
    CALL("Rotate a rectangle", object.Rotate(90, rect));
    CALL("Rotate", object.Rotate(90));
    CALL("Invert", object.Invert(1));
    CALL("MoveTo", object.MoveTo(8, point));
    CALL("FocusMoveTo", object.FocusMoveTo(8, point));
    CALL("MoveHandleTo", object.MoveHandleTo(8, point));
    CALL("RelayEvent", object.RelayEvent(nullptr, WM_LBUTTONDOWN, 0, 0));
    CALL("ShowCoordinateDialog", object.ShowCoordinateDialog(nullptr));
    CALL("ShowPreferenceDialog", object.ShowPreferenceDialog(nullptr));
}

void CallDrawing(CUIObject& object) {
    Storage storage;
    CALL("GetRoundRectPath", object.GetRoundRectPath(nullptr, RectF(), 4));
    CALL("Draw", object.Draw(nullptr));
    CALL("DrawType", object.DrawType(nullptr));
    CALL("DrawDragImage", object.DrawDragImage(nullptr, PointF()));
    CALL("DrawTracker", object.DrawTracker(nullptr));
    CALL("Serialize", object.Serialize(storage.Archive()));
}

void CallOwn(CUIObject&) {}

void CallOwn(CUIObjectPoly& poly) {
    PointF point(1, 1);
    CALL("AddPoint", poly.AddPoint(point));
    CALL("LastPoint", poly.LastPoint(point, 0));
    CALL("RecalcBounds", poly.RecalcBounds());
    CALL("RectMode", poly.RectMode());
    CALL("RotatePoints", poly.RotatePoints(90, point, RectF()));
}

template <class Shape>
void CallShape(Shape& shape) {
    PointF point;
    CALL("DrawContents", shape.DrawContents(nullptr));
    CALL("DrawDragImage of the shape", shape.DrawDragImage(nullptr, point));
}
void CallOwn(CUIObjectRectangle& shape) {
    CallShape(shape);
}
void CallOwn(CUIObjectEllipse& shape) {
    CallShape(shape);
}
void CallOwn(CUIObjectTextEdit& shape) {
    CallShape(shape);
}

void CallOwn(CUIObjectList& group) {
    CALL("MakeGroup", group.MakeGroup(nullptr));
    CALL("MakeUnGroup", group.MakeUnGroup(nullptr));
    CALL("DrawDragImage of the group", group.DrawDragImage(nullptr, POINT{}));
}

void CallOwn(CUIObjectButton& button) {
    CALL("DrawNormal", button.DrawNormal(nullptr));
    CALL("DrawDown", button.DrawDown(nullptr));
    CALL("DrawFocus", button.DrawFocus(nullptr));
    CALL("DrawOver", button.DrawOver(nullptr));
    CALL("DrawDisabled", button.DrawDisabled(nullptr));
    CALL("DrawChecked", button.DrawChecked(nullptr, 0));
}

void CallOwn(CUIObjectOle& ole) {
    CALL("Draw of the item", ole.Draw(static_cast<CDC*>(nullptr)));
}

// `Base` names the library's class, through which the slots it adds are called.
template <class Host, class Base>
void CheckObject() {
    auto* object = new Host(RectF(0, 0, 10, 10), DS_RECTANGLE);
    CallQueries(*object);
    CallChanges(*object);
    CallDrawing(*object);
    CallOwn(static_cast<Base&>(*object));
    CALL("Release", CUIDocument::DestroyObject(object));
    Check(g_marks.count("destructor") == 1, "the destructor of an object");
}

template <template <class> class Host, class... Bases>
void CheckObjects() {
    (CheckObject<Host<Bases>, Bases>(), ...);
}

template <class Base>
void CheckFormat() {
    Storage storage;
    auto* host = new HostFormat<Base>(CString(L"format"), 1);
    CUIShapeFormat& format = *host;
    Base& own = *host;
    CALL("Set as base", format.Set(format));
    CALL("Set", own.Set(own));
    CALL("LoadDefault", format.LoadDefault());
    CALL("Serialize", format.Serialize(storage.Archive()));
    CALL("Release", format.Release());
    Check(g_marks.count("destructor") == 1, "the destructor of a format");
}

template <class Base, class Record>
void CheckRecord() {
    Storage storage;
    Base* record = new HostRecord<Record>;
    CALL("Serialize", record->Serialize(storage.Archive()));
    CALL("destructor", delete record);
}

template <class... Records>
void CheckPreferences() {
    (CheckRecord<CPrefBase, Records>(), ...);
}

void CheckTool(CUIToolBase&& tool) {
    const CPoint point(0, 0);
    CALL("OnLButtonDown", tool.OnLButtonDown(nullptr, 0, point));
    CALL("OnLButtonUp", tool.OnLButtonUp(nullptr, 0, point));
    CALL("OnMouseMove", tool.OnMouseMove(nullptr, 0, point));
    CALL("OnLButtonDblClk", tool.OnLButtonDblClk(nullptr, 0, point));
    CALL("OnRButtonDown", tool.OnRButtonDown(nullptr, 0, point));
}

template <class... Tools>
void CheckTools() {
    (CheckTool(HostTool<Tools>(DS_ARC)), ...);
}

template <class Base>
void CheckHandler() {
    HostHandler<Base> host;
    Base& handler = host;
    const CPoint point(0, 0);
    CALL("OnLButtonDown", handler.OnLButtonDown(nullptr, 0, 0, 0));
    CALL("OnLButtonUp", handler.OnLButtonUp(nullptr, 0, 0, 0));
    CALL("OnLButtonDblClk", handler.OnLButtonDblClk(nullptr, 0, 0, 0));
    CALL("OnRButtonDown", handler.OnRButtonDown(nullptr, 0, 0, 0));
    CALL("OnRButtonUp", handler.OnRButtonUp(nullptr, 0, 0, 0));
    CALL("OnRButtonDblClk", handler.OnRButtonDblClk(nullptr, 0, 0, 0));
    CALL("OnMButtonDown", handler.OnMButtonDown(nullptr, 0, 0, 0));
    CALL("OnMButtonUp", handler.OnMButtonUp(nullptr, 0, 0, 0));
    CALL("OnMButtonDblClk", handler.OnMButtonDblClk(nullptr, 0, 0, 0));
    CALL("OnMouseMove", handler.OnMouseMove(nullptr, 0, 0, 0));
    CALL("OnMouseWheel", handler.OnMouseWheel(nullptr, 0, 0, 0));
    CALL("OnDragEnter", handler.OnDragEnter(nullptr, 0, point));
    CALL("OnDrag", handler.OnDrag(nullptr, 0, point));
    CALL("OnDragLeave", handler.OnDragLeave(nullptr, 0, point));
    CALL("OnKeyDown", handler.OnKeyDown(nullptr, 0, 0, 0));
}

void CheckDocument() {
    Storage storage;
    CString path(L"page");
    CUIDocument* document = new HostDocument;
    CALL("Load", document->Load(path));
    CALL("Save", document->Save(path));
    CALL("Serialize", document->Serialize(storage.Archive()));
    CALL("Release", document->Release());
    Check(g_marks.count("destructor") == 1, "the destructor of a document");
}

void CheckCanvas() {
    CUICanvas* canvas = new HostCanvas;
    CPoint point(0, 0);
    MSG msg = {};
    CALL("OnCommand", canvas->OnCommand(0, 0));
    CALL("PreTranslateMessage", canvas->PreTranslateMessage(&msg));
    CALL("InvalidateObject", canvas->InvalidateObject(nullptr));
    CALL("MoveTo", canvas->MoveTo(8, point, point, 0));
    CALL("OnPrepareDC", canvas->OnPrepareDC(nullptr, nullptr));
    CALL("destructor", delete canvas);
}

void CheckOverrides() {
    CheckObjects<HostObject, CUIObject>();
    CheckObjects<HostPoly, CUIObjectPoly, CUIObjectLine, CUIObjectPolyLine>();
    CheckObjects<HostShape, CUIObjectRectangle, CUIObjectEllipse, CUIObjectTextEdit>();
    CheckObjects<HostGroup, CUIObjectList, CUIObjectSymbol, CUIObjectChartBase>();
    CheckObjects<HostButton, CUIObjectButton, CUIObjectButtonRect, CUIObjectButtonRectRound,
                 CUIObjectButtonEllipse>();
    CheckObject<HostOle, CUIObjectOle>();

    CheckFormat<CUIShapeFormatText>();
    CheckFormat<CUIShapeFormatFill>();
    CheckFormat<CUIShapeFormatLineColor>();
    CheckFormat<CUIShapeFormatLineStyle>();
    CheckFormat<CUIShapeFormatShadow>();
    CheckFormat<CUIShapeFormatScale>();
    CheckFormat<CUIShapeFormatPosition>();
    CheckFormat<CUIShapeFormatTextBox>();
    CheckRecord<CUICoordinate, CUICoordinate>();
    CheckRecord<CUIPreference, CUIPreference>();
    CheckPreferences<CPrefBase, CPrefCondition, CPrefFill, CPrefMove, CPrefSize, CPrefRotate, CPrefColor,
                     CPrefHide, CPrefInput, CPrefBlink, CPrefButton, CPrefPage, CPrefText, CPrefSlider,
                     CPrefTrend, CPrefTrendLine>();

    CheckTools<CUIToolBase, CUIDownTool, CUISymbolTool, CUIDownUpTool, CUIMultiDownTool, CUIConfigurationTool,
               CUIRunningTool>();
    CheckTool(HostTool<CUISelectTool>());
    CheckTool(HostTool<CUITextTool>());
    CheckHandler<CUINotifyBase>();
    CheckHandler<CUINotifyHandler>();
    CheckHandler<CUINotifyHandlerEx>();
    CheckDocument();
    CheckCanvas();
}

void CheckEdit(CUICanvas* canvas) {
    auto* text = new CUIObjectTextEdit(RectF(10, 10, 80, 20), DS_TOOL_TEXT);
    auto* host = new HostEdit;
    CUIEdit* owner = host;
    Check(host->Create(canvas, &owner, text) != FALSE, "an editor of the host");
    CWnd* edit = host;
    MSG msg = {};
    CALL("PreTranslateMessage", edit->PreTranslateMessage(&msg));
    CALL("DestroyWindow", edit->DestroyWindow());
    Check(g_marks.count("PostNcDestroy") == 1 && g_marks.count("destructor") == 1, "the end of an editor");
    Check(owner == nullptr, "the owner's pointer to an editor");
    CUIDocument::DestroyObject(text);
}

void DrawRectangle(CUICanvas* canvas) {
    CUIToolBase::run_drawshape = DS_RECTANGLE;
    canvas->SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(20, 30));
    canvas->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(80, 70));
    canvas->SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(120, 90));
}

bool IsDrawn(const CUIObject& object) {
    return object.GetShapeName() == L"Rectangle1" && object.GetPosition().Equals(RectF(20, 30, 100, 60));
}

// The records stand one after the other; which object each belongs to is the host's to know.
bool ReadsBack(const CString& path) {
    CFile file(path, CFile::modeRead | CFile::shareDenyWrite);
    CArchive ar(&file, CArchive::load);
    CUIObjectRectangle object;
    object.Serialize(ar);
    return IsDrawn(object);
}

void CheckPage() {
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"host", WS_POPUP | WS_VISIBLE, 10, 10, 300, 200, nullptr,
                    nullptr);
    auto* document = new CUIDocument;
    CString name;
    CRect rect(0, 0, 300, 200);
    Check(document->CreateCanvas(WS_CHILD | WS_VISIBLE, name, rect, parent.m_hWnd) == 1, "a canvas");
    CUICanvas* canvas = document->GetCurrentCanvas();
    CheckEdit(canvas);

    DrawRectangle(canvas);
    const CUIObjectDeque& objects = *document->GetCanvasObjectList();
    Check(objects.size() == 1 && IsDrawn(*objects.front()), "a rectangle drawn with the mouse");
    canvas->UpdateWindow();

    wchar_t folder[MAX_PATH], file[MAX_PATH];
    ::GetTempPath(MAX_PATH, folder);
    ::GetTempFileName(folder, L"hst", 0, file);
    CString path(file);
    Check(document->Save(path) == 1, "saving");
    Check(ReadsBack(path), "the record in the file");
    Check(document->Load(path) == 1 && document->GetCanvasList().empty(), "loading into a cleared document");
    ::DeleteFile(path);

    document->Release();
    canvas->DestroyWindow();
    delete canvas;
}

std::set<std::string> ExportsOf(HMODULE module) {
    const auto* image = reinterpret_cast<const BYTE*>(module);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(image);
    const auto* header = reinterpret_cast<const IMAGE_NT_HEADERS*>(image + dos->e_lfanew);
    const auto& place = header->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_EXPORT];
    const auto* exports = reinterpret_cast<const IMAGE_EXPORT_DIRECTORY*>(image + place.VirtualAddress);
    const auto* names = reinterpret_cast<const DWORD*>(image + exports->AddressOfNames);
    std::set<std::string> found;
    for (DWORD i = 0; place.Size != 0 && i < exports->NumberOfNames; ++i)
        found.insert(reinterpret_cast<const char*>(image + names[i]));
    return found;
}

// What a DLL of the host exports is the host's: it imports the library and does not export it once more.
void CheckExtension() {
    const std::set<std::string> own = ExportsOf(::LoadLibrary(L"extension.dll"));
    Check(!own.empty(), "the exports of an extension DLL");
    for (const wchar_t* name : {L"TesselCtrls.dll", L"TesselAfx.dll", L"MarrowLog.dll"})
        for (const std::string& symbol : ExportsOf(::GetModuleHandle(name)))
            Check(own.count(symbol) == 0, ("not exported by an extension DLL: " + symbol).c_str());
}

class HostApp : public CWinApp {
public:
    BOOL InitInstance() override {
        CheckOverrides();
        CheckPage();
        CheckExtension();
        return FALSE;
    }
    int ExitInstance() override {
        CWinApp::ExitInstance();
        return g_failures == 0 ? 0 : 1;
    }
};

HostApp g_app;

}  // namespace
