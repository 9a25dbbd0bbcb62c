#include "studio/document/StudioDocument.h"

#include "studio/document/PageFile.h"

#include <algorithm>
#include <new>

namespace Studio {

using Lumo::CUIObject;

namespace {

// A page is a window; a small file must not ask for very many of them.
constexpr DWORD kMaxPages = 1000;
constexpr DWORD kEndMark = 0x21444E45;  // "END!"

void Require(bool sound) {
    if (!sound)
        throw FileFault{Text::kFaultContent};
}

CString Describe(const CException& e) {
    // The contents end before they should: to the user that is damage, not an archive's affair.
    if (e.IsKindOf(RUNTIME_CLASS(CArchiveException)))
        return GetText(Text::kFaultContent);
    if (e.IsKindOf(RUNTIME_CLASS(CMemoryException)))
        return GetText(Text::kFaultMemory);
    WCHAR text[512] = L"";
    e.GetErrorMessage(text, static_cast<UINT>(std::size(text)));
    return text;
}

}  // namespace

StudioDocument::StudioDocument(CWnd& parent, CanvasListener& listener)
    : m_parent(parent), m_listener(listener) {}

StudioDocument::~StudioDocument() {
    m_edits.Clear();
    m_pageOrder.clear();
}

bool StudioDocument::NewFile() {
    LoadedDocument fresh;
    fresh.pages.emplace_back();
    fresh.pages.front().name.Format(GetText(Text::kPageName), 1);
    try {
        Adopt(std::move(fresh));
    } catch (const FileFault& fault) {
        m_error = GetText(fault.reason);
        return false;
    }
    m_path.Empty();
    m_edits.MarkSaved();
    return true;
}

StudioCanvas* StudioDocument::CurrentPage() {
    return static_cast<StudioCanvas*>(GetCurrentCanvas());
}

// Runs a file operation; whatever it raises becomes the error text and the result false.
template <class Action>
bool StudioDocument::Attempt(Text sentence, const CString& path, Action action) {
    CString reason;
    try {
        action();
        m_error.Empty();
        return true;
    } catch (const FileFault& fault) {
        reason = GetText(fault.reason);
    } catch (const std::bad_alloc&) {
        reason = GetText(Text::kFaultMemory);
    } catch (CException* e) {
        reason = Describe(*e);
        e->Delete();
    }
    m_error.Format(GetText(sentence), path.GetString(), reason.GetString());
    return false;
}

int StudioDocument::Load(CString& path) {
    const auto load = [&] { ReadPageFile(path, [this](CArchive& ar) { Serialize(ar); }); };
    if (!Attempt(Text::kErrorRead, path, load))
        return 0;
    m_path = FullPath(path);
    m_edits.MarkSaved();
    return 1;
}

int StudioDocument::Save(CString& path) {
    const auto save = [&] { WritePageFile(path, [this](CArchive& ar) { Serialize(ar); }); };
    if (!Attempt(Text::kErrorWrite, path, save))
        return 0;
    m_path = FullPath(path);
    m_edits.MarkSaved();
    return 1;
}

void StudioDocument::Serialize(CArchive& ar) {
    if (ar.IsStoring())
        StorePages(ar);
    else
        Adopt(LoadPages(ar));
}

void StudioDocument::StorePages(CArchive& ar) {
    const auto current = std::find_if(m_pageOrder.begin(), m_pageOrder.end(), [this](const Page& page) {
        return page.canvas.get() == GetCurrentCanvas();
    });
    ar << static_cast<DWORD>(m_pageOrder.size());
    ar << static_cast<DWORD>(current == m_pageOrder.end() ? 0 : current - m_pageOrder.begin());
    for (const Page& page : m_pageOrder) {
        const auto* objects = GetCanvasObjectList(page.canvas.get());
        const auto isThere = [](const CUIObject* object) { return object != nullptr; };
        ar << page.name;
        ar << static_cast<DWORD>(objects ? std::count_if(objects->begin(), objects->end(), isThere) : 0);
        for (CUIObject* object : objects ? *objects : Lumo::CUIObjectDeque()) {
            if (object)
                StoreObject(ar, *object);
        }
    }
    ar << kEndMark;
}

StudioDocument::LoadedPage StudioDocument::LoadPage(CArchive& ar) {
    LoadedPage page;
    DWORD count;
    ar >> page.name >> count;
    for (DWORD i = 0; i < count; ++i)
        page.objects.push_back(LoadObject(ar));
    return page;
}

StudioDocument::LoadedDocument StudioDocument::LoadPages(CArchive& ar) {
    LoadedDocument loaded;
    DWORD count, current, mark;
    ar >> count >> current;
    Require(count >= 1 && count <= kMaxPages && current < count);
    for (DWORD i = 0; i < count; ++i)
        loaded.pages.push_back(LoadPage(ar));
    loaded.current = current;
    BYTE beyond;
    ar >> mark;
    Require(mark == kEndMark && ar.Read(&beyond, 1) == 0);
    return loaded;
}

std::unique_ptr<StudioCanvas> StudioDocument::MakeCanvas() {
    auto canvas = std::make_unique<StudioCanvas>(*this, m_listener);
    if (!canvas->CreatePage(m_parent))
        throw FileFault{Text::kFaultWindow};
    return canvas;
}

// Takes the pages over: everything that can fail comes first, then the old pages go.
void StudioDocument::Adopt(LoadedDocument loaded) {
    std::vector<Page> pages;
    for (const LoadedPage& page : loaded.pages)
        pages.push_back({page.name, MakeCanvas()});
    DropPages();
    m_pageOrder = std::move(pages);
    for (size_t i = 0; i < m_pageOrder.size(); ++i) {
        StudioCanvas* canvas = m_pageOrder[i].canvas.get();
        AppendCanvas(canvas);
        for (ObjectPtr& object : loaded.pages[i].objects) {
            object->SetDocument(this);
            object->SetCanvas(canvas);
            AppendObject(object.release(), canvas);
        }
    }
    SetCurrentCanvas(m_pageOrder[loaded.current].canvas.get());
}

void StudioDocument::DropPages() {
    m_edits.Clear();
    ClearCanvas();
    m_pageOrder.clear();
}

}  // namespace Studio
