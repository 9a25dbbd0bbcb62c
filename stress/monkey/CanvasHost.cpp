#include "stress/monkey/CanvasHost.h"

#include "appearance/UIObjectRectangle.h"
#include "behaviour/UIObjectButton.h"
#include "behaviour/UIObjectChartBase.h"
#include "behaviour/UIObjectList.h"
#include "behaviour/UIObjectOle.h"
#include "behaviour/UIObjectTextEdit.h"
#include "canvas/CanvasCommands.h"
#include "canvas/UITool.h"
#include "core/UIObjectPoly.h"

#include <typeinfo>

namespace monkey {

using namespace Lumo;

namespace {

template <class Object>
CUIObject* Make(const Gdiplus::RectF& place, DrawShape kind) {
    return new Object(place, kind);
}

// The kind 0xFF01 is what the text tool opens its editor on.
constexpr struct {
    CUIObject* (*make)(const Gdiplus::RectF& place, DrawShape kind);
    DrawShape kind;
} kClasses[] = {
    {&Make<CUIObject>, DS_UNKNOWN},
    {&Make<CUIObjectRectangle>, DS_RECTANGLE},
    {&Make<CUIObjectEllipse>, DS_ELLIPSE},
    {&Make<CUIObjectTextEdit>, DS_TOOL_TEXT},
    {&Make<CUIObjectTextEdit>, DS_TEXTEDIT},
    {&Make<CUIObjectList>, DS_LIST},
    {&Make<CUIObjectSymbol>, DS_SYMBOL},
    {&Make<CUIObjectLine>, DS_LINE},
    {&Make<CUIObjectPolyLine>, DS_POLYLINE},
    {&Make<CUIObjectButton>, DS_BUTTON},
    {&Make<CUIObjectButtonRect>, DS_BUTTONBAND},
    {&Make<CUIObjectButtonRectRound>, DS_BUTTONLEVEL},
    {&Make<CUIObjectButtonEllipse>, DS_BUTTONDEVICE},
    {&Make<CUIObjectChartBase>, DS_CHARTPEQ},
    {&Make<CUIObjectOle>, DS_OLE},
};

const struct {
    UINT id;
    void (CUICanvas::*run)();
} kRoutes[] = {
    {ID_POSITION_BACKWARD, &CUICanvas::OnToolsPositionBackward},
    {ID_POSITION_FORWARD, &CUICanvas::OnToolsPositionForward},
    {ID_POSITION_FRONT, &CUICanvas::OnToolsPositionFront},
    {ID_POSITION_BACK, &CUICanvas::OnToolsPositionBack},
    {ID_ROTATE_LEFT, &CUICanvas::OnToolsRotateLeft},
    {ID_ROTATE_RIGHT, &CUICanvas::OnToolsRotateRight},
    {ID_GROUP_MAKE, &CUICanvas::OnToolsMakeGroup},
    {ID_GROUP_UNMAKE, &CUICanvas::OnToolsMakeUngroup},
    {ID_ALIGN_LEFT, &CUICanvas::OnToolsAlignLeft},
    {ID_ALIGN_RIGHT, &CUICanvas::OnToolsAlignRight},
    {ID_ALIGN_TOP, &CUICanvas::OnToolsAlignTop},
    {ID_ALIGN_BOTTOM, &CUICanvas::OnToolsAlignBottom},
    {ID_ALIGN_VCENTER, &CUICanvas::OnToolsAlignVCenter},
    {ID_ALIGN_HCENTER, &CUICanvas::OnToolsAlignHCenter},
    {ID_ALIGN_CENTER, &CUICanvas::OnToolsAlignCenter},
    {ID_MODE_DRAW, &CUICanvas::OnModeDraw},
    {ID_MODE_POLY, &CUICanvas::OnModePoly},
    {ID_MODE_PROPERTY, &CUICanvas::OnModeProperty},
    {ID_MODE_RUNNING, &CUICanvas::OnModeRunning},
    {ID_OBJECT_COPY, &CUICanvas::OnEditObjectCopy},
    {ID_OBJECT_CUT, &CUICanvas::OnEditObjectCut},
    {ID_OBJECT_DELETE, &CUICanvas::OnEditObjectDelete},
    {ID_OBJECT_PASTE, &CUICanvas::OnEditObjectPaste},
};

constexpr DrawShape kToolKinds[] = {DS_SELECT, DS_LINE, DS_POLYLINE, DS_RECTANGLE, DS_ELLIPSE};

}  // namespace

CUIObject* MakeSomeObject(Random& random) {
    const auto& chosen = random.Pick(kClasses);
    const Gdiplus::RectF place(
        static_cast<float>(random.Between(-20, 350)), static_cast<float>(random.Between(-20, 250)),
        static_cast<float>(random.Between(-30, 150)), static_cast<float>(random.Between(0, 100)));
    CUIObject* object = chosen.make(place, chosen.kind);
    if (auto* poly = dynamic_cast<CUIObjectPoly*>(object)) {
        for (int points = random.Between(0, 5); points > 0; --points) {
            Gdiplus::PointF point(static_cast<float>(random.Below(400)),
                                  static_cast<float>(random.Below(300)));
            poly->AddPoint(point);
        }
    }
    object->SetText(random.Chance(50) ? L"caption" : L"");
    return object;
}

CUIObject* MakeLike(CUIObject& object) {
    for (const auto& known : kClasses) {
        CUIObject* made = known.make({0, 0, 0, 0}, known.kind);
        if (typeid(*made) == typeid(object))
            return made;
        CUIDocument::DestroyObject(made);
    }
    return nullptr;
}

CanvasHost::CanvasHost() {
    CreateEx(0, AfxRegisterWndClass(0), L"Host", WS_OVERLAPPEDWINDOW | WS_VISIBLE | WS_CLIPCHILDREN, 20, 20,
             900, 700, nullptr, nullptr);
    AfxGetApp()->m_pMainWnd = this;
    AddPage();
}

CanvasHost::~CanvasHost() {
    m_document->Release();
    m_canvases.clear();
    DestroyWindow();
}

CUICanvas& CanvasHost::Current() {
    if (m_document->GetCurrentCanvas() == nullptr)
        m_document->AppendCanvas(m_canvases.front().get());
    return *m_document->GetCurrentCanvas();
}

void CanvasHost::AddPage() {
    if (m_canvases.size() == kMostPages)
        return;
    const int place = static_cast<int>(m_canvases.size());
    CRect rect(CPoint(place % 2 * 420, place / 2 * 320), CSize(410, 310));
    CString name(L"page");
    m_document->CreateCanvas(WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS, name, rect, m_hWnd);
    m_canvases.emplace_back(m_document->GetCurrentCanvas());
}

void CanvasHost::DestroyPage(int index) {
    if (m_canvases.size() == 1)
        return;
    m_canvases[index]->DestroyWindow();
    m_canvases.erase(m_canvases.begin() + index);
}

void CanvasHost::ReplaceDocument() {
    m_document->Release();
    m_document = new CUIDocument;
    for (const auto& canvas : m_canvases) {
        canvas->SetDocument(m_document);
        m_document->AppendCanvas(canvas.get());
    }
}

BOOL CanvasHost::OnCommand(WPARAM wParam, LPARAM lParam) {
    const UINT id = LOWORD(wParam);
    for (const auto& route : kRoutes) {
        if (route.id == id)
            (Current().*route.run)();
    }
    if (id >= ID_TOOL_SELECT && id <= ID_TOOL_ELLIPSE)
        CUIToolBase::run_drawshape = kToolKinds[id - ID_TOOL_SELECT];
    else if (id == ID_DOCUMENT_LOAD)
        m_document->LoadDocument();
    else if (id == ID_DOCUMENT_SAVE)
        m_document->SaveDocument();
    else if (id == ID_OBJECT_PROPERTIES && !Current().m_selection.empty())
        Current().m_selection.front()->ShowPreferenceDialog(&Current());
    return CWnd::OnCommand(wParam, lParam);
}

}  // namespace monkey
