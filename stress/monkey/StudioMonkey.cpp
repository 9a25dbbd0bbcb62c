// Studio's main window: pages, toolbox, tabs, symbols, property panel, menus, keys, files, run mode.
#include "stress/monkey/Dialogs.h"
#include "stress/monkey/Input.h"
#include "stress/monkey/Monkey.h"
#include "stress/monkey/Objects.h"

#include "core/Geometry.h"
#include "studio/app/Commands.h"
#include "studio/app/MainFrame.h"

#include <set>

namespace monkey {

using namespace Studio;

namespace {

constexpr int kFreshEvery = 40;       // bursts that one document lasts
constexpr size_t kMostObjects = 400;  // of a document
constexpr size_t kMostPages = 12;
constexpr UINT kKeys[] = {VK_RETURN, VK_ESCAPE, VK_DELETE, VK_BACK,  VK_LEFT, VK_RIGHT, VK_UP,
                          VK_DOWN,   VK_TAB,    VK_F2,     VK_F4,    VK_F5,   VK_PRIOR, VK_NEXT,
                          VK_HOME,   VK_END,    VK_INSERT, VK_SPACE, 'V',     'R',      'E',
                          'L',       'P',       'T',       'I',      'G',     'Z',      'Y',
                          'X',       'C',       'A',       'D',      'N',     'S'};

// Ranges of commands, and how often one of them is taken.
constexpr struct {
    UINT first, last;
    int weight;
} kCommands[] = {
    {Lumo::ID_TOOL_SELECT, Lumo::ID_TOOL_ELLIPSE, 12},
    {Lumo::ID_POSITION_BACKWARD, Lumo::ID_ALIGN_CENTER, 22},
    {Lumo::ID_MODE_DRAW, Lumo::ID_MODE_RUNNING, 3},
    {Lumo::ID_OBJECT_COPY, Lumo::ID_OBJECT_REDO, 22},
    {Lumo::ID_OBJECT_PROPERTIES, Lumo::ID_OBJECT_PROPERTIES, 1},
    {ID_PAGE_FIRST, ID_PAGE_LAST, 24},
    {ID_VIEW_PROPERTIES, ID_INSERT_EMBEDDED, 3},
    {ID_PAGES_FIRST, ID_PAGES_LAST, 8},
    {ID_DOCUMENT_EXPORT, ID_VIEW_SYMBOLS, 1},
    {ID_FILE_NEW, ID_FILE_SAVE_AS, 2},
    {ID_APP_ABOUT, ID_APP_EXIT, 1},
};

std::string Utf8(const CString& text) {
    char bytes[100] = "";
    ::WideCharToMultiByte(CP_UTF8, 0, text, -1, bytes, sizeof bytes - 1, nullptr, nullptr);
    return bytes;
}

// Nobody who wants to hear of the pages of a document that is only loaded.
class Silence : public CanvasListener {
    void OnCanvasState(StudioCanvas&) override {}
    void OnCanvasPointer(StudioCanvas&, const CPoint*) override {}
    void OnCanvasMenu(StudioCanvas&, CPoint) override {}
};

BOOL CALLBACK FindPage(HWND window, LPARAM found) {
    auto* page = dynamic_cast<StudioCanvas*>(CWnd::FromHandlePermanent(window));
    if (page)
        *reinterpret_cast<StudioCanvas**>(found) = page;
    return page == nullptr;
}

BOOL CALLBACK CollectUsable(HWND window, LPARAM found) {
    if (::IsWindowVisible(window) && ::IsWindowEnabled(window))
        reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
    return TRUE;
}

struct IgnoringCase {
    bool operator()(const CString& a, const CString& b) const { return a.CompareNoCase(b) < 0; }
};
using Names = std::set<CString, IgnoringCase>;

void CheckNames(const std::deque<Lumo::CUIObject*>& objects, Names& names) {
    for (const Lumo::CUIObject* object : objects) {
        Require(names.insert(object->GetShapeName()).second, "two objects of a page have the same name");
        if (const auto* group = dynamic_cast<const Lumo::CUIObjectList*>(object))
            CheckNames(group->GetChildren(), names);
    }
}

class StudioMonkey : public Monkey {
public:
    StudioMonkey() { Open(); }
    ~StudioMonkey() override {
        if (m_frame)
            m_frame->DestroyWindow();
    }
    std::vector<BYTE> Bytes() override {
        return StoredBytes([this](CArchive& ar) { Document().Serialize(ar); });
    }
    void Act(Random& random) override;
    void Settle() override;
    void Check() override;
    void CheckThoroughly() override;

private:
    void Open();
    bool IsOpen() const { return ::IsWindow(m_window); }
    StudioDocument& Document() { return *m_document; }
    StudioCanvas& Page() { return *m_document->CurrentPage(); }
    void Command(UINT id) {
        m_frame->SendMessage(WM_COMMAND, id);
        Pump();
    }
    void UsePage(Random& random);
    void UseParts(Random& random);
    void UseCommand(Random& random);
    void UseWindows(Random& random);
    void CheckHistory();
    void CheckSaving();

    MainFrame* m_frame = nullptr;
    HWND m_window = nullptr;
    StudioDocument* m_document = nullptr;  // the window's, as long as that is there
    int m_opened = 0;
    int m_bursts = 0;
};

void StudioMonkey::Open() {
    SetLanguage(m_opened++ % 2 ? Language::kKorean : Language::kEnglish);
    m_frame = new MainFrame;
    Require(m_frame->CreateFrame(), "Studio's window cannot be made");
    m_window = m_frame->m_hWnd;
    AfxGetApp()->m_pMainWnd = m_frame;
    StudioCanvas* page = nullptr;
    ::EnumChildWindows(m_window, &FindPage, reinterpret_cast<LPARAM>(&page));
    Require(page != nullptr, "Studio has no page");
    m_document = static_cast<StudioDocument*>(&page->Document());
    m_frame->ShowWindow(SW_SHOW);
    m_frame->OpenDemo();
    Pump();
}

void StudioMonkey::UsePage(Random& random) {
    StudioCanvas& page = Page();
    CRect client;
    page.GetClientRect(client);
    CPoint at(random.Between(-10, client.right + 10), random.Between(-10, client.bottom + 10));
    const auto& objects = *page.Objects();
    if (!objects.empty() && random.Chance(60)) {
        Lumo::CUIObject& object = *random.Pick(objects);
        at = Lumo::PointAtlFromGdi(random.Chance(40) ? object.GetHandlePoint(random.Below(9))
                                                     : Lumo::CentreOf(object.GetPosition()));
        page.DocToClient(at);
        at.Offset(random.Between(-2, 2), random.Between(-2, 2));
        at.x = std::clamp<LONG>(at.x, -100, client.right + 100);
        at.y = std::clamp<LONG>(at.y, -100, client.bottom + 100);
    }
    SendMouse(random, page, at);
}

// Toolbox, tabs, symbols, property panel and the controls in them.
void StudioMonkey::UseParts(Random& random) {
    std::vector<HWND> parts;
    for (HWND part = ::GetWindow(m_window, GW_CHILD); part; part = ::GetWindow(part, GW_HWNDNEXT))
        CollectUsable(part, reinterpret_cast<LPARAM>(&parts));
    std::vector<HWND> controls(1, random.Pick(parts));
    ::EnumChildWindows(controls[0], &CollectUsable, reinterpret_cast<LPARAM>(&controls));
    CWnd& control = *CWnd::FromHandle(random.Pick(controls));
    CRect client;
    control.GetClientRect(client);
    SendMouse(random, control, CPoint(random.Below(client.right), random.Below(client.bottom)));
}

void StudioMonkey::UseCommand(Random& random) {
    int draw = random.Below(99);
    const auto* range = std::begin(kCommands);
    while (draw >= range->weight)
        draw -= range++->weight;
    const UINT id =
        static_cast<UINT>(random.Between(static_cast<int>(range->first), static_cast<int>(range->last)));
    Note("command %u", id);
    Command(id);
}

void StudioMonkey::UseWindows(Random& random) {
    StudioCanvas& page = Page();
    const int what = random.Below(9);
    Note("window %d", what);
    switch (what) {
        case 0:
            page.SendMessage(WM_CANCELMODE);
            break;
        case 1:
            ::ReleaseCapture();
            break;
        case 2:
            m_frame->SetCapture();
            ::ReleaseCapture();
            break;
        case 3:
            (random.Chance(50) ? static_cast<CWnd&>(*m_frame) : page).SetFocus();
            break;
        case 4:
            ::SetFocus(nullptr);
            break;
        case 5:
            m_frame->SetWindowPos(nullptr, 0, 0, random.Between(300, 1350), random.Between(200, 900),
                                  SWP_NOMOVE | SWP_NOZORDER);
            break;
        case 6:
            m_frame->ShowWindow(random.Chance(50) ? SW_MINIMIZE : SW_MAXIMIZE);
            m_frame->ShowWindow(SW_RESTORE);
            break;
        case 7:
            page.SendMessage(random.Chance(50) ? WM_HSCROLL : WM_VSCROLL,
                             static_cast<WPARAM>(random.Below(4)));
            break;
        default:
            page.Invalidate(FALSE);
            Pump(true);
    }
    Pump();
}

void StudioMonkey::Act(Random& random) {
    if (!IsOpen())
        Open();
    const int draw = random.Below(100);
    if (draw < 46)
        UsePage(random);
    else if (draw < 60)
        UseParts(random);
    else if (draw < 74)
        UseCommand(random);
    else if (draw < 88)
        SendKey(random, random.Pick(kKeys), random.Chance(30), random.Chance(20));
    else if (draw < 95)
        SendText(random);
    else
        UseWindows(random);
}

// A figure goes on between its clicks until it is cancelled. From time to time a document begins anew.
void StudioMonkey::Settle() {
    if (!IsOpen())
        Open();
    LetGo(Page(), CPoint(5, 5));
    if (!IsOpen())
        Open();
    m_frame->SetFocus();
    if (const Gesture* gesture = Page().CurrentGesture()) {
        Require(gesture->SpansPresses(), "a gesture goes on without a button");
        Command(ID_PAGE_ESCAPE);
    }
    ObjectSet all;
    for (const Studio::Page& page : Document().Pages())
        Meet(*page.canvas->Objects(), all);
    if (++m_bursts % kFreshEvery == 0 || all.size() > kMostObjects ||
        Document().Pages().size() > kMostPages) {
        m_frame->SetRunning(false);
        SetDialogAnswers(Random(0), IDNO);
        Command(m_bursts % 3 ? UINT{ID_FILE_NEW} : UINT{ID_DOCUMENT_DEMO});
    }
    m_frame->UpdateWindow();
    Pump(true);
}

void StudioMonkey::Check() {
    RequireFreeMouse("the mouse is still captured");
    ObjectSet all;
    Names pages;
    for (const Studio::Page& page : Document().Pages()) {
        Require(pages.insert(page.name).second, "two pages have the same name");
        const auto& objects = *page.canvas->Objects();
        Names names;
        Meet(objects, all);
        CheckNames(objects, names);
        CheckSelection(page.canvas->m_selection, objects);
        for (const Lumo::CUIObject* object : objects)
            Require(object->GetCanvas() == page.canvas.get() && object->GetDocument() == &Document(),
                    "an object does not know its page");
        Require(!page.canvas->CurrentGesture(), "a gesture is stuck");
        CheckEditor(*page.canvas, all);
    }
    if (m_frame->IsRunning())
        return;
    const std::vector<BYTE> before = Bytes();
    for (const int at : {10, 150, 300})
        Page().SendMessage(WM_MOUSEMOVE, 0, MAKELPARAM(at, at));
    Require(before == Bytes(), "moving the mouse without a button changes the document");
    RequireFreeMouse("moving the mouse captures it");
}

// Every step that is undone and made again leads back to where it started. The page that is shown is stored,
// too, and steps of the history show theirs.
void StudioMonkey::CheckHistory() {
    History& edits = Document().Edits();
    const auto state = [this] {
        Document().ShowPage(0);
        return Bytes();
    };
    while (edits.Redo()) {
    }
    std::vector<std::vector<BYTE>> states(1, state());
    while (edits.Undo())
        states.push_back(state());
    for (size_t left = states.size() - 1; left > 0; --left) {
        const CString name = edits.RedoName();
        edits.Redo();
        if (states[left - 1] != state())
            throw Broken{"undoing and redoing a step does not lead back: " + Utf8(name)};
    }
}

void StudioMonkey::CheckSaving() {
    std::vector<BYTE> bytes = Bytes();
    Silence silence;
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP, CRect(0, 0, 10, 10), nullptr, 0);
    auto* copy = new StudioDocument(parent, silence);
    LoadBytes(bytes, [&](CArchive& ar) { copy->Serialize(ar); });
    const bool same = bytes == StoredBytes([&](CArchive& ar) { copy->Serialize(ar); });
    copy->Release();
    parent.DestroyWindow();
    Require(same, "a document that was saved and loaded saves differently");
}

void StudioMonkey::CheckThoroughly() {
    m_frame->SetRunning(false);
    Page().FinishEditing();
    CheckHistory();
    CheckSaving();
    Check();
}

}  // namespace

std::unique_ptr<Monkey> MakeStudioMonkey() {
    return std::make_unique<StudioMonkey>();
}

}  // namespace monkey
