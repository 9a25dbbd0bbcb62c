#include "StudioHost.h"

#include "Exercise.h"
#include "Loader.h"

#include "studio/document/PageImage.h"
#include "studio/editing/ObjectClipboard.h"
#include "studio/editing/PageEdits.h"
#include "tests/support/Clipboard.h"

using namespace Studio;

StudioHost& StudioHost::Get() {
    static auto* const host = new StudioHost;  // windows cannot outlive main
    return *host;
}

StudioHost::StudioHost() {
    const LPCWSTR windowClass = AfxRegisterWndClass(0);
    m_parent.CreateEx(0, windowClass, L"Fuzz", WS_POPUP, CRect(0, 0, 600, 400), nullptr, 0);
    m_document = new StudioDocument(m_parent, *this);
    m_document->NewFile();
}

Bytes StudioHost::Archived() {
    return Stored([&](CArchive& ar) { m_document->Serialize(ar); });
}

bool StudioHost::LoadFile(CString path, bool recover, bool use) {
    m_document->NewFile();
    m_document->AddPage(0);
    m_document->CurrentPage()->AddObject(MakeDrawnObject(Lumo::DS_ELLIPSE, {1, 2, 30, 40}).release());
    const Bytes before = Archived();
    const bool loaded = recover ? m_document->Recover(path, L"") : m_document->Load(path) != 0;
    Require(m_document->GetError().IsEmpty() == loaded,
            "a refusal without a reason, or a reason without one");
    if (!loaded) {
        Require(Archived() == before && m_document->GetModifiedFlag(), "a refused file changed the document");
    } else {
        Require((m_document->GetModifiedFlag() != 0) == recover, "the modified mark is wrong after a load");
        const Bytes first = Archived();
        Require(m_document->Save(path) && m_document->Load(path), "what was saved cannot be loaded");
        Require(Archived() == first, "what was saved comes back changed");
    }
    if (use && loaded) {
        Edit();
        Run();
    }
    m_document->NewFile();
    return loaded;
}

// All objects are duplicated, grouped, turned and moved; undone, the document is as it was.
void StudioHost::Edit() {
    StudioCanvas& page = *m_document->CurrentPage();
    const Bytes before = Archived();
    SelectAll(page);
    DuplicateSelection(page);
    SelectAll(page);
    NudgeSelection(page, 3, -2);
    FlipSelection(page, true);
    RotateSelection(page, true);
    GroupSelection(page);
    UngroupSelection(page);
    while (m_document->Edits().Undo()) {
    }
    Require(Archived() == before, "undoing everything does not give the loaded document");
}

void StudioHost::Run() {
    StudioCanvas& page = *m_document->CurrentPage();
    page.MoveWindow(0, 0, 600, 400);
    const Bytes before = Archived();
    {
        Device device;
        RunSession session(*m_document, device, *this);
        Canvas64 canvas;
        for (int tick = 0; tick < 4; ++tick) {
            session.Tick(0.7);
            const int x = tick * 20 + 15, y = tick * 10 + 25;
            page.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
            page.SendMessage(WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(x + 30, y + 3));
            page.SendMessage(WM_LBUTTONUP, 0, MAKELPARAM(x + 30, y + 3));
            session.Wheel(page, 0, 120, CPoint(x, y));
            session.Update();
            DrawObjects(canvas.graphics, *page.Objects());
        }
    }
    Require(Archived() == before, "running a page changed it");
}

bool StudioHost::Paste(const Bytes& input) {
    m_document->NewFile();
    StudioCanvas& page = *m_document->CurrentPage();
    const size_t valid = UnpackObjects(input).size();
    static const UINT format = ::RegisterClipboardFormat(L"Tessel Studio Objects");
    Require(PutOnClipboard(page.m_hWnd, format, input), "the clipboard cannot be opened");
    PasteObjects(page);
    Require(page.Objects()->size() == valid, "the paste gives something else than the bytes");
    const Bytes pasted = Archived();
    if (valid != 0) {
        Require(m_document->Edits().Undo() && page.Objects()->empty(), "the paste cannot be undone");
        Require(m_document->Edits().Redo() && Archived() == pasted, "the paste cannot be done again");
    }
    m_document->NewFile();
    return valid != 0;
}
