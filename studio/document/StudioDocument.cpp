#include "studio/document/StudioDocument.h"

#include "studio/document/PageFile.h"

namespace Studio {

StudioDocument::StudioDocument(CWnd& parent, CanvasListener& listener)
    : m_parent(parent), m_listener(listener) {
    m_edits.showPage = [this](StudioCanvas& page) { ShowPage(IndexOf(&page)); };
}

StudioDocument::~StudioDocument() {
    m_edits.Clear();
    m_pageOrder.clear();
}

bool StudioDocument::NewFile() {
    DocumentContents fresh;
    fresh.pages.emplace_back();
    fresh.pages.front().name.Format(GetText(Text::kPageName), 1);
    return NewFile(std::move(fresh));
}

bool StudioDocument::NewFile(DocumentContents contents) {
    if (!AttemptFile([&] { Adopt(std::move(contents)); }, m_error))
        return false;
    m_path.Empty();
    m_edits.MarkSaved();
    PagesChanged();
    return true;
}

StudioCanvas* StudioDocument::CurrentPage() {
    return static_cast<StudioCanvas*>(GetCurrentCanvas());
}

// Runs a file operation; whatever it raises becomes the error text and the result false.
template <class Action>
bool StudioDocument::Attempt(Text sentence, const CString& path, Action action) {
    m_error.Empty();
    if (AttemptFile(action, m_reason))
        return true;
    m_error.Format(GetText(sentence), path.GetString(), m_reason.GetString());
    return false;
}

int StudioDocument::Load(CString& path) {
    if (!Attempt(Text::kErrorRead, path, [&] { Adopt(LoadContents(path)); }))
        return 0;
    m_path = FullPath(path);
    m_edits.MarkSaved();
    PagesChanged();
    return 1;
}

bool StudioDocument::Recover(const CString& autosave, const CString& path) {
    if (!Attempt(Text::kErrorRead, autosave, [&] { Adopt(LoadContents(autosave)); }))
        return false;
    m_path = path;
    m_edits.MarkUnsaved();
    PagesChanged();
    return true;
}

int StudioDocument::Save(CString& path) {
    if (!SaveCopy(path))
        return 0;
    m_path = FullPath(path);
    m_edits.MarkSaved();
    return 1;
}

bool StudioDocument::SaveCopy(const CString& path) {
    const auto save = [&] { WritePageFile(path, [this](CArchive& ar) { Serialize(ar); }); };
    return Attempt(Text::kErrorWrite, path, save);
}

void StudioDocument::Serialize(CArchive& ar) {
    if (!ar.IsStoring()) {
        Adopt(LoadContents(ar));
        PagesChanged();
        return;
    }
    const int current = CurrentIndex();
    StoreHead(ar, m_pageOrder.size(), current < 0 ? 0 : current);
    for (const Page& page : m_pageOrder) {
        const auto* objects = GetCanvasObjectList(page.canvas.get());
        StorePage(ar, page.name, objects ? *objects : Lumo::CUIObjectDeque());
    }
    StoreEnd(ar);
}

std::unique_ptr<StudioCanvas> StudioDocument::MakeCanvas() {
    auto canvas = std::make_unique<StudioCanvas>(*this, m_listener);
    if (!canvas->CreatePage(m_parent))
        throw FileFault{Text::kFaultWindow};
    return canvas;
}

// Takes the pages over: everything that can fail comes first, then the old pages go.
void StudioDocument::Adopt(DocumentContents loaded) {
    std::vector<Page> pages;
    for (const PageContents& page : loaded.pages)
        pages.push_back({page.name, MakeCanvas()});
    DropPages();
    m_pageOrder = std::move(pages);
    for (size_t i = 0; i < m_pageOrder.size(); ++i) {
        AppendCanvas(m_pageOrder[i].canvas.get());
        FillPage(*m_pageOrder[i].canvas, std::move(loaded.pages[i].objects));
    }
    SetCurrentCanvas(m_pageOrder[loaded.current].canvas.get());
}

void StudioDocument::FillPage(StudioCanvas& canvas, std::vector<ObjectPtr> objects) {
    for (ObjectPtr& object : objects) {
        canvas.Adopt(*object);
        AppendObject(object.release(), &canvas);
    }
}

void StudioDocument::DropPages() {
    m_edits.Clear();
    ClearCanvas();
    m_pageOrder.clear();
}

}  // namespace Studio
