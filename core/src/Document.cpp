// Life of documents, and the one way in which an object becomes unreachable: its destruction takes it out of
// all page lists, selections and groups, whatever document or canvas holds it.
#include "core/UIDocument.h"

#include "behaviour/UIObjectList.h"
#include "canvas/UICanvas.h"
#include "core/UIObject.h"

#include <algorithm>
#include <unordered_set>
#include <utility>
#include <vector>

namespace Lumo {

namespace {

std::vector<CUIDocument*>& Documents() {
    static std::vector<CUIDocument*> documents;
    return documents;
}

// The object that is being released after everybody has forgotten it, null as soon as it is destroyed. Its
// destructor need not search for it again, so destroying a whole page takes one walk and not one per object.
CUIObject* s_pForgotten = nullptr;

}  // namespace

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

// kept: the objects of a document that was not cleared stay alive; they only lose their pointer to it.
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

void CUIDocument::ForgetObject(CUIObject* object) {
    for (CUIDocument* document : Documents())
        for (auto& [canvas, objects] : document->m_pages)
            if (objects)
                std::erase(*objects, object);
    for (CUICanvas* canvas : CUICanvas::Canvases())
        canvas->ForgetObject(object);
    CUIObjectList::ForgetChild(object);
}

void CUIDocument::ForgetObjects(const std::unordered_set<CUIObject*>& doomed) {
    const auto isDoomed = [&](CUIObject* object) { return doomed.contains(object); };
    for (CUIDocument* document : Documents())
        for (auto& [canvas, objects] : document->m_pages)
            if (objects)
                std::erase_if(*objects, isDoomed);
    for (CUICanvas* canvas : CUICanvas::Canvases())
        canvas->ForgetObjects(doomed);
    for (CUIObject* object : doomed)
        CUIObjectList::ForgetChild(object);
}

void CUIDocument::DestroyObject(CUIObject* object) {
    if (!object)
        return;
    ForgetObject(object);
    ReleaseForgotten(object);
}

void CUIDocument::ForgetDestroyed(CUIObject* object) {
    if (object == s_pForgotten)
        s_pForgotten = nullptr;
    else
        ForgetObject(object);
}

// A group's Release destroys its children and leaves the group itself, which is then deleted here, unless a
// host's override has done so.
void CUIDocument::ReleaseForgotten(CUIObject* object) {
    CUIObject* const outer = std::exchange(s_pForgotten, object);
    auto* group = dynamic_cast<CUIObjectList*>(object);
    object->Release();
    if (s_pForgotten == object)
        delete group;
    s_pForgotten = outer;
}

void CUIDocument::ForgetCanvas(CUICanvas* canvas) {
    for (CUIDocument* document : Documents()) {
        const auto page = document->m_pages.find(canvas);
        if (page != document->m_pages.end())
            document->DropPage(page);
        if (document->m_pCurrent == canvas)
            document->m_pCurrent = nullptr;
        std::erase(document->m_auxiliary, canvas);
    }
}

void CUIDocument::ClearObject(CUIObjectDeque* objects) {
    if (!objects || objects->empty())
        return;
    const CUIObjectDeque cleared = std::move(*objects);
    objects->clear();
    std::unordered_set<CUIObject*> doomed(cleared.begin(), cleared.end());
    doomed.erase(nullptr);
    ForgetObjects(doomed);
    for (CUIObject* object : cleared) {
        if (doomed.erase(object))
            ReleaseForgotten(object);
    }
}

// Destroys the objects of a page and removes its list here and in every copy of the document.
void CUIDocument::DropPage(CUIPageMap::iterator page) {
    CUIObjectDeque* objects = page->second;
    ClearObject(objects);
    m_pages.erase(page);
    if (!objects)
        return;
    for (CUIDocument* document : Documents())
        std::erase_if(document->m_pages, [&](const auto& entry) { return entry.second == objects; });
    delete objects;
}

}  // namespace Lumo
