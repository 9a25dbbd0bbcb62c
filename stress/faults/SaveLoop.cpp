// Saves two versions of a document in turn until it is killed: SaveLoop way folder. The ways are "studio" (a
// document's file), "autosave" (the backup beside it), "untitled" (the backup of a document without a file)
// and "library" (the base class of documents). Makes the references old.ref and new.ref in the folder when
// they are not there, and the file "ready" once it is under way.
#include "studio/document/Autosave.h"
#include "studio/document/PageFile.h"
#include "studio/editing/History.h"
#include "studio/editing/ObjectFactory.h"

#include <cstdio>
#include <functional>

using namespace Studio;

namespace {

constexpr int kObjects = 1500;

class Silent : public CanvasListener {
    void OnCanvasState(StudioCanvas&) override {}
    void OnCanvasPointer(StudioCanvas&, const CPoint*) override {}
    void OnCanvasMenu(StudioCanvas&, CPoint) override {}
};

[[noreturn]] void Fail(const CString& why) {
    std::fprintf(stderr, "%ls\n", why.GetString());
    std::exit(2);
}

void Require(bool done, const CString& why) {
    if (!done)
        Fail(why);
}

void Touch(const CString& path) {
    CFile(path, CFile::modeCreate | CFile::modeWrite);
}

// A document in two versions, and the way it is saved.
struct Subject {
    std::function<void(bool newer)> change;
    std::function<bool()> save;
    std::function<CString()> error;
    CString file;
};

std::vector<ObjectPtr> Boxes(int count) {
    std::vector<ObjectPtr> boxes;
    for (int i = 0; i < count; ++i) {
        const auto at = static_cast<float>(i % 40 * 20);
        boxes.push_back(MakeDrawnObject(Lumo::DS_RECTANGLE, Gdiplus::RectF(at, at, 15, 15)));
        boxes.back()->SetText(L"Level of channel");
    }
    return boxes;
}

// The newer version has a page more.
Subject StudioSubject(StudioDocument& document) {
    Subject subject;
    // Neither version is the one without changes: that has no backup.
    Require(document.AddPage(0) && document.DuplicatePage(0), document.GetError());
    bool isNewer = true;
    subject.change = [&document, isNewer](bool newer) mutable {
        if (newer != isNewer)
            newer ? document.Edits().Redo() : document.Edits().Undo();
        isNewer = newer;
    };
    subject.error = [&document] { return document.GetError(); };
    return subject;
}

Subject LibrarySubject(Lumo::CUIDocument& document, const CString& file) {
    for (ObjectPtr& box : Boxes(kObjects))
        document.AppendObject(box.release(), nullptr);
    Subject subject;
    subject.change = [&document](bool newer) {
        document.GetCanvasObjectList()->front()->SetText(newer ? L"new" : L"older");
    };
    subject.save = [&document, path = CString(file)]() mutable { return document.Save(path) != 0; };
    subject.file = file;
    subject.error = [] { return CString(L"The library does not save."); };
    return subject;
}

void Run(const Subject& subject, const CString& folder) {
    for (bool newer : {false, true}) {
        const CString reference = folder + (newer ? L"\\new.ref" : L"\\old.ref");
        subject.change(newer);
        Require(subject.save(), subject.error());
        if (::GetFileAttributes(reference) == INVALID_FILE_ATTRIBUTES)
            ::CopyFile(subject.file, reference, TRUE);
    }
    Touch(folder + L"\\ready");
    for (bool newer = false;; newer = !newer) {
        subject.change(newer);
        Require(subject.save(), subject.error());
    }
}

void RunStudio(const CString& way, const CString& folder) {
    Silent listener;
    CWnd parent;
    parent.CreateEx(0, AfxRegisterWndClass(0), L"", WS_POPUP, CRect(0, 0, 600, 400), nullptr, 0);
    auto* document = new StudioDocument(parent, listener);
    DocumentContents contents;
    contents.pages.emplace_back();
    contents.pages.front().objects = Boxes(kObjects);
    Require(document->NewFile(std::move(contents)), document->GetError());
    CString file = folder + L"\\page.cbf";
    Autosave autosave(*document, folder);
    // As at the start of the program: what is left behind is looked at, and declined.
    for (const CString& copy : autosave.FindLeftBehind())
        ::DeleteFile(copy);
    if (way != L"untitled")
        Require(document->Save(file), document->GetError());
    Subject subject = StudioSubject(*document);
    subject.save = [&autosave] { return autosave.Update(); };
    if (way == L"untitled") {
        subject.file.Format(L"%s\\untitled-%lu.autosave", folder.GetString(), ::GetCurrentProcessId());
    } else if (way == L"autosave") {
        subject.file = Autosave::PathFor(file);
    } else {
        subject.file = file;
        subject.save = [document, &file] { return document->Save(file) != 0; };
    }
    Run(subject, folder);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (!AfxWinInit(::GetModuleHandle(nullptr), nullptr, ::GetCommandLine(), SW_HIDE) || count != 3)
        return 2;
    const CString way = arguments[1], folder = FullPath(arguments[2]);
    if (way != L"library")
        RunStudio(way, folder);
    auto* document = new Lumo::CUIDocument;
    auto* canvas = new Lumo::CUICanvas;
    document->AppendCanvas(canvas);
    Run(LibrarySubject(*document, folder + L"\\page.cbf"), folder);
    return 0;
}
