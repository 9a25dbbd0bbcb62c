// The canvas of the library: mouse, keys, commands, modes and tools, while pages, objects and the document
// come and go.
#include "stress/monkey/CanvasHost.h"
#include "stress/monkey/Input.h"
#include "stress/monkey/Monkey.h"
#include "stress/monkey/Objects.h"

#include "behaviour/UIObjectTextEdit.h"
#include "canvas/CanvasCommands.h"
#include "canvas/UITool.h"
#include "core/Geometry.h"

#include <algorithm>

namespace monkey {

using namespace Lumo;

namespace {

constexpr size_t kMostObjects = 100;  // on a page
constexpr UINT kKeys[] = {VK_RETURN, VK_ESCAPE, VK_DELETE, VK_BACK, VK_LEFT, VK_RIGHT,
                          VK_UP,     VK_DOWN,   VK_TAB,    VK_F2,   VK_F10,  'A'};

class CanvasMonkey : public Monkey {
public:
    std::vector<BYTE> Bytes() override {
        return StoredBytes([this](CArchive& ar) { m_host.Document().Serialize(ar); });
    }
    void Act(Random& random) override;
    void Settle() override;
    void Check() override;
    void CheckThoroughly() override;

private:
    CUICanvas& SomeCanvas(Random& random) {
        return random.Chance(80) ? m_host.Current() : *random.Pick(m_host.Canvases());
    }
    CUIObject* SomeObject(Random& random) {
        return m_host.Objects().empty() ? nullptr : random.Pick(m_host.Objects());
    }
    CPoint SomePoint(Random& random);
    void UseMouse(Random& random);
    void UseKeys(Random& random);
    void UseCommand(Random& random);
    void UseMenu();
    void ChangeWindows(Random& random);
    void ChangeObjects(Random& random);
    void ChangePages(Random& random);
    void ChangeSelection(Random& random);

    CanvasHost m_host;
};

CPoint CanvasMonkey::SomePoint(Random& random) {
    CUIObject* object = random.Chance(60) ? SomeObject(random) : nullptr;
    CPoint at(random.Between(-20, 430), random.Between(-20, 330));
    if (!object)
        return at;
    const Gdiplus::RectF bounds = object->GetPosition();
    at = random.Chance(50) ? PointAtlFromGdi(object->GetHandlePoint(random.Below(9)))
                           : PointAtlFromGdi(CentreOf(bounds));
    at.Offset(random.Between(-3, 3), random.Between(-3, 3));
    return CPoint(std::clamp<LONG>(at.x, -500, 900), std::clamp<LONG>(at.y, -500, 900));
}

// A tool that drags out an object has the document name it.
void CanvasMonkey::UseMouse(Random& random) {
    CUICanvas& canvas = SomeCanvas(random);
    const size_t before = m_host.Objects().size();
    SendMouse(random, canvas, SomePoint(random));
    const auto& objects = m_host.Objects();
    if (objects.size() <= before ||
        !dynamic_cast<CUIDownUpTool*>(CUIToolBase::FindTool(objects.back()->GetDrawShape())))
        return;
    const CString& name = objects.back()->GetShapeName();
    Require(
        std::count_if(objects.begin(), objects.end(),
                      [&](CUIObject* other) { return other->GetShapeName().CompareNoCase(name) == 0; }) == 1,
        "a drawn object did not get a name of its own");
}

void CanvasMonkey::UseKeys(Random& random) {
    if (!random.Chance(40))
        SendText(random);
    else
        SendKey(random, random.Pick(kKeys), random.Chance(20), random.Chance(20));
}

void CanvasMonkey::UseCommand(Random& random) {
    // The dialogs of the two document commands take long.
    UINT id =
        static_cast<UINT>(random.Chance(20) ? random.Between(ID_TOOL_SELECT, ID_TOOL_ELLIPSE)
                                            : random.Between(ID_POSITION_BACKWARD, ID_OBJECT_PROPERTIES));
    if ((id == ID_DOCUMENT_LOAD || id == ID_DOCUMENT_SAVE) && !random.Chance(10))
        id = ID_MODE_DRAW;
    Note("command %u", id);
    m_host.SendMessage(WM_COMMAND, id);
    Pump();
}

void CanvasMonkey::UseMenu() {
    Note("context menu");
    m_host.Current().SendMessage(WM_CONTEXTMENU, reinterpret_cast<WPARAM>(m_host.Current().m_hWnd), -1);
    m_host.Current().m_contextMenu.TrackPopupMenu(TPM_LEFTALIGN, 200, 200, &m_host);
    Pump();
}

void CanvasMonkey::ChangeWindows(Random& random) {
    CUICanvas& canvas = SomeCanvas(random);
    const int what = random.Below(10);
    Note("window %d", what);
    switch (what) {
        case 0:
            canvas.SendMessage(WM_CANCELMODE);
            break;
        case 1:
            ::ReleaseCapture();
            break;
        case 2:
            m_host.SetCapture();
            ::ReleaseCapture();
            break;
        case 3:
            (random.Chance(50) ? static_cast<CWnd&>(m_host) : canvas).SetFocus();
            break;
        case 4:
            ::SetFocus(nullptr);
            break;
        case 5:
            canvas.ShowWindow(SW_HIDE);
            canvas.ShowWindow(SW_SHOW);
            break;
        case 6:
        case 7:
            canvas.SetWindowPos(nullptr, 0, 0, random.Between(0, 500), random.Between(0, 400),
                                SWP_NOMOVE | SWP_NOZORDER);
            break;
        case 8:
            canvas.InvalidateRect(
                CRect(CPoint(random.Below(300), random.Below(300)), CSize(random.Below(90), 40)));
            canvas.UpdateWindow();
            break;
        default:
            canvas.OnCanvasScale(static_cast<UINT>(random.Between(0, 10)));
            canvas.UpdateCanvas(nullptr, random.Between(0, 6), nullptr);
    }
    Pump();
}

void CanvasMonkey::ChangeObjects(Random& random) {
    CUIDocument& document = m_host.Document();
    CUIObject* object = SomeObject(random);
    const int what = random.Below(12);
    Note("objects %d", what);
    if (what < 6) {
        CUIObject* made = MakeSomeObject(random);
        made->SetDocument(&document);
        made->SetCanvas(&m_host.Current());
        document.AppendObject(made, &m_host.Current());
        if (random.Chance(50))
            document.SetShapeName(made);
    } else if (what == 6) {
        document.CreateObject(static_cast<DrawShape>(random.Between(-1, 30)), CRect(10, 10, 90, 60));
    } else if (what == 7) {
        document.RemoveObject(object, random.Below(2));
    } else if (what == 8) {
        CUIDocument::DestroyObject(object);
    } else if (what == 9) {
        if (object)
            object->SetRemoved(0);
    } else if (what == 10) {
        if (auto* group = dynamic_cast<CUIObjectList*>(object); group && !group->GetChildren().empty())
            CUIDocument::DestroyObject(random.Pick(group->GetChildren()));
    } else if (random.Chance(20)) {
        document.ClearObject(&m_host.Objects());
    }
    Pump();
}

void CanvasMonkey::ChangePages(Random& random) {
    CUIDocument& document = m_host.Document();
    CUICanvas* canvas = random.Pick(m_host.Canvases()).get();
    const int what = random.Below(16);
    Note("pages %d", what);
    if (what < 3)
        m_host.AddPage();
    else if (what < 7)
        document.SetCurrentCanvas(canvas);
    else if (what < 9)
        random.Chance(50) ? document.MoveNextCanvas() : document.MovePrevCanvas();
    else if (what == 9)
        m_host.DestroyPage(random.Below(static_cast<int>(m_host.Canvases().size())));
    else if (what == 10)
        document.DeleteCanvas(canvas);
    else if (what == 11)
        document.AppendCanvas(canvas);
    else if (what == 12 && random.Chance(30))
        document.ClearCanvas();
    else if (what == 13 && random.Chance(30))
        m_host.ReplaceDocument();
    else if (what == 14)
        canvas->SetInteractive(random.Chance(80));
    else
        canvas->OnModeText();
    Pump();
}

void CanvasMonkey::ChangeSelection(Random& random) {
    CUICanvas& canvas = m_host.Current();
    CUIObject* object = SomeObject(random);
    const int what = random.Below(8);
    Note("selection %d", what);
    if (what < 3)
        canvas.Select(object, 1);
    else if (what == 3)
        canvas.Select(object, 0);
    else if (what == 4)
        canvas.Deselect(object);
    else if (what == 5)
        canvas.EditText(dynamic_cast<CUIObjectTextEdit*>(object));
    else
        CUIToolBase::run_drawshape = static_cast<DrawShape>(random.Chance(90)   ? random.Between(0, 28)
                                                            : random.Chance(50) ? DS_TOOL_TEXT
                                                                                : DS_TOOL_PROPERTY);
    Pump();
}

void CanvasMonkey::Act(Random& random) {
    const int draw = random.Below(100);
    if (draw < 58)
        UseMouse(random);
    else if (draw < 66)
        UseKeys(random);
    else if (draw < 76)
        UseCommand(random);
    else if (draw < 81)
        ChangeWindows(random);
    else if (draw < 88)
        ChangeObjects(random);
    else if (draw < 91)
        ChangePages(random);
    else if (draw < 99)
        ChangeSelection(random);
    else
        UseMenu();
}

// A figure keeps the mouse between its clicks until a double click ends it, also when another tool was chosen
// meanwhile.
void CanvasMonkey::Settle() {
    LetGo(m_host.Current(), CPoint(5, 5));
    for (const UINT message : {WM_LBUTTONDBLCLK, WM_LBUTTONUP}) {
        if (const HWND figure = ::GetCapture())
            ::SendMessage(figure, message, 0, MAKELPARAM(5, 5));
    }
    for (const auto& canvas : m_host.Canvases()) {
        canvas->SetInteractive(1);
        canvas->OnModeDraw();
        canvas->SetWindowPos(nullptr, 0, 0, 410, 310, SWP_NOMOVE | SWP_NOZORDER);
    }
    if (m_host.Objects().size() > kMostObjects)
        m_host.Document().ClearObject(&m_host.Objects());
    m_host.UpdateWindow();
    Pump(true);
}

void CanvasMonkey::Check() {
    RequireFreeMouse("the mouse is still captured");
    ObjectSet all;
    for (const auto& [canvas, objects] : m_host.Document().GetCanvasList())
        Meet(*objects, all);
    for (const auto& canvas : m_host.Canvases()) {
        const CUIObjectDeque* page = m_host.Document().GetCanvasObjectList(canvas.get());
        CheckSelection(canvas->m_selection, page ? *page : CUIObjectDeque());
        CheckEditor(*canvas, all);
    }
    const std::vector<BYTE> before = Bytes();
    for (const auto& canvas : m_host.Canvases()) {
        for (const int at : {10, 100, 200})
            canvas->SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(at, at));
    }
    Require(before == Bytes(), "a gesture is stuck: moving the mouse without a button changes objects");
    RequireFreeMouse("moving the mouse captures it");
}

// Kept: a group takes no children from an archive.
void CanvasMonkey::CheckThoroughly() {
    for (const auto& [canvas, objects] : m_host.Document().GetCanvasList()) {
        for (CUIObject* object : *objects) {
            const auto* group = dynamic_cast<CUIObjectList*>(object);
            CUIObject* copy = group && !group->GetChildren().empty() ? nullptr : MakeLike(*object);
            if (!copy)
                continue;
            std::vector<BYTE> bytes = StoredBytes([&](CArchive& ar) { object->Serialize(ar); });
            LoadBytes(bytes, [&](CArchive& ar) { copy->Serialize(ar); });
            const bool same = bytes == StoredBytes([&](CArchive& ar) { copy->Serialize(ar); });
            CUIDocument::DestroyObject(copy);
            Require(same, "an object that was saved and loaded saves differently");
        }
    }
}

}  // namespace

std::unique_ptr<Monkey> MakeCanvasMonkey() {
    return std::make_unique<CanvasMonkey>();
}

}  // namespace monkey
