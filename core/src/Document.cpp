// Life of documents and of their pages.
#include "core/UIDocument.h"

#include "canvas/UICanvas.h"
#include "core/UIObject.h"
#include "core/internal/Destruction.h"

#include <algorithm>
#include <memory>
#include <utility>

namespace Lumo {

namespace {

void Repaint(CUICanvas* canvas) {
    if (canvas && canvas->m_hWnd)
        canvas->Invalidate(FALSE);
}

}  // namespace

std::vector<CUIDocument*>& CUIDocument::Documents() {
    static std::vector<CUIDocument*> documents;
    return documents;
}

CUIDocument::CUIDocument() {
    Documents().push_back(this);
}

CUIDocument::CUIDocument(const CUIDocument& other)
    : m_auxiliary(other.m_auxiliary),
      m_pages(other.m_pages),
      m_atomCanvas(other.m_atomCanvas),
      m_bModified(other.m_bModified),
      m_pCurrent(other.m_pCurrent) {
    Documents().push_back(this);
}

CUIDocument& CUIDocument::operator=(const CUIDocument& other) {
    if (this == &other)
        return *this;
    FreeLists();
    m_auxiliary = other.m_auxiliary;
    m_pages = other.m_pages;
    m_atomCanvas = other.m_atomCanvas;
    m_bModified = other.m_bModified;
    m_pCurrent = other.m_pCurrent;
    return *this;
}

CUIDocument::~CUIDocument() {
    LeaveObjects();
    FreeLists();
    std::erase(Documents(), this);
    for (CUICanvas* canvas : CUICanvas::Canvases())
        if (canvas->m_pDocument == this)
            canvas->m_pDocument = nullptr;
}

void CUIDocument::Release() {
    ClearCanvas();
    delete this;
}

// Kept: the objects of a document that was not cleared stay alive; they only lose their pointer to it.
void CUIDocument::LeaveObjects() {
    for (auto& [canvas, objects] : m_pages) {
        if (!objects)
            continue;
        for (CUIObject* object : *objects)
            if (object && object->GetDocument() == this)
                object->SetDocument(nullptr);
    }
}

// Frees the lists that no copy of the document shares.
void CUIDocument::FreeLists() {
    for (auto& [canvas, objects] : m_pages) {
        const bool shared = std::any_of(
            Documents().begin(), Documents().end(),
            [this, list = objects](CUIDocument* other) { return other != this && other->HasList(list); });
        if (!shared)
            delete objects;
    }
    m_pages.clear();
}

bool CUIDocument::HasList(const CUIObjectDeque* objects) const {
    return std::any_of(m_pages.begin(), m_pages.end(),
                       [&](const auto& page) { return page.second == objects; });
}

// By index: what the objects of a page do as they end may make and end documents.
void CUIDocument::ForgetCanvas(CUICanvas* canvas) {
    for (size_t i = 0; i < Documents().size(); ++i) {  // NOLINT(modernize-loop-convert)
        CUIDocument* document = Documents()[i];
        if (document->m_pages.contains(canvas))
            document->m_bModified = 1;
        document->DropPage(canvas);
    }
    for (CUIDocument* document : Documents()) {
        if (document->m_pCurrent == canvas)
            document->m_pCurrent = nullptr;
        std::erase(document->m_auxiliary, canvas);
    }
}

void CUIDocument::DestroyObject(CUIObject* object) {
    if (object)
        Destruction::Destroy(object);
}

void CUIDocument::ClearObject(CUIObjectDeque* objects) {
    if (!objects || objects->empty())
        return;
    for (const auto& [canvas, page] : m_pages)
        if (page == objects)
            Repaint(canvas);
    Destruction::DestroyAll(std::exchange(*objects, {}));
}

// Removes a page here and in every copy of the document, then destroys its objects.
void CUIDocument::DropPage(CUICanvas* canvas) {
    const auto page = m_pages.find(canvas);
    if (page == m_pages.end())
        return;
    Repaint(canvas);
    const std::unique_ptr<CUIObjectDeque> objects(page->second);
    m_pages.erase(page);
    if (!objects)
        return;
    for (CUIDocument* document : Documents())
        std::erase_if(document->m_pages, [&](const auto& entry) { return entry.second == objects.get(); });
    Destruction::DestroyAll(*objects);
}

}  // namespace Lumo
