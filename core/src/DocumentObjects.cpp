// Objects of a page: adding and removing, finding, naming, drawing.
#include "core/UIDocument.h"

#include "canvas/UICanvas.h"
#include "core/Geometry.h"
#include "core/UIObject.h"
#include "core/internal/Destruction.h"
#include "core/internal/ObjectFactory.h"

#include <algorithm>

namespace Lumo {

namespace {

wchar_t FoldAscii(wchar_t c) {
    return c >= L'A' && c <= L'Z' ? c + (L'a' - L'A') : c;
}

// Whether two texts of the same length are the same but for case. From the end, where the names of one kind
// differ.
bool SameText(const CString& a, const CString& b, int length) {
    const wchar_t* left = a;
    const wchar_t* right = b;
    for (int i = length; i-- > 0;) {
        if (left[i] >= 0x80 || right[i] >= 0x80)
            return a.CompareNoCase(b) == 0;
        if (FoldAscii(left[i]) != FoldAscii(right[i]))
            return false;
    }
    return true;
}

CUIObject* FindByName(const CUIObjectDeque* objects, const CString& name) {
    if (!objects)
        return nullptr;
    const int length = name.GetLength();
    for (CUIObject* object : *objects) {
        if (!object)
            continue;
        const CString& other = object->GetShapeName();
        if (other.GetLength() == length && SameText(other, name, length))
            return object;
    }
    return nullptr;
}

}  // namespace

CUIObject* CUIDocument::CreateObject(DrawShape kind, CRect rect) {
    // Kept: lines and polylines, which the tools' factory makes, are not made here.
    CUIObject* object = MakeAreaObject(kind, RectGdiFromAtl(rect));
    if (object) {
        object->SetDocument(this);
        object->SetCanvas(GetCurrentCanvas());
    } else if (GetCurrentCanvas()) {
        m_bModified = 1;  // Kept: a kind that makes no object still marks a document with a page as modified
    }
    AppendObject(object, nullptr);
    return object;
}

void CUIDocument::AppendObject(CUIObject* object, CUICanvas* canvas) {
    if (!object)
        return;
    const auto page = canvas ? m_pages.find(canvas) : CurrentPage();
    if (page != m_pages.end()) {
        if (!page->first || !page->second)
            return;
        page->second->push_back(object);
        Destruction::Note(object, page->first);
    }
    m_bModified = 1;
}

// Kept: the argument only has to be there; the object acted on is the first one of the current page.
template <class Action>
void CUIDocument::ActOnFirstObject(CUIObject* object, Action action) {
    if (!object || m_pages.empty())
        return;
    const auto page = CurrentPage();
    if (page != m_pages.end()) {
        CUIObjectDeque* objects = page->second;
        if (!page->first || !objects || objects->empty())
            return;
        const auto first =
            std::find_if(objects->begin(), objects->end(), [](CUIObject* entry) { return entry; });
        if (first != objects->end())
            action(*first);
    }
    m_bModified = 1;
}

void CUIDocument::DeleteObject(CUIObject* object) {
    ActOnFirstObject(object, [](CUIObject* first) { DestroyObject(first); });
}

void CUIDocument::RemoveObject(CUIObject* object, int destroy) {
    if (destroy)
        DeleteObject(object);
    else
        ActOnFirstObject(object, [this](CUIObject* first) {
            GetCurrentCanvas()->InvalidateObject(first);
            first->SetRemoved(1);
        });
}

CUIObject* CUIDocument::FindObject(CString& name, CUICanvas* canvas) {
    return FindByName(GetCanvasObjectList(canvas ? canvas : GetCurrentCanvas()), name);
}

CUIObject* CUIDocument::ObjectAt(Gdiplus::PointF& pt) {
    const CUIObjectDeque* objects = GetCanvasObjectList();
    if (!objects)
        return nullptr;
    for (auto entry = objects->rbegin(); entry != objects->rend(); ++entry) {
        CUIObject* object = *entry;
        if (!object || object->GetRemoved())
            continue;
        const int handle = object->HitTest(pt, 0);
        if (handle >= 0 && handle == object->GetHandleCount() - 1)
            return object;
    }
    return nullptr;
}

CUIObject* CUIDocument::ObjectAt(CPoint& pt) {
    Gdiplus::PointF point = PointGdiFromAtl(pt);
    return ObjectAt(point);
}

int CUIDocument::GetShapeCount(DrawShape kind) {
    const CUIObjectDeque* objects = GetCanvasObjectList();
    if (!objects)
        return 0;
    return static_cast<int>(std::count_if(objects->begin(), objects->end(), [kind](const CUIObject* object) {
        return object && object->GetDrawShape() == kind;
    }));
}

int CUIDocument::CheckShapeName(CString& name) {
    return !name.IsEmpty() && FindByName(GetCanvasObjectList(), name) != nullptr;
}

void CUIDocument::SetShapeName(CUIObject* object) {
    const CUIObjectDeque* objects = GetCanvasObjectList();
    if (!object || !objects || objects->empty())
        return;
    const DrawShape kind = object->GetDrawShape();
    CString name;
    for (int n = GetShapeCount(kind);; ++n) {
        name.Format(L"%s%d", static_cast<LPCTSTR>(GetDrawShapeName(kind)), n);
        if (!CheckShapeName(name))
            break;
    }
    object->SetShapeName(name);
}

void CUIDocument::DrawCanvas(Gdiplus::Graphics* g, CUICanvas* canvas) {
    const CUIObjectDeque* objects = canvas ? GetCanvasObjectList(canvas) : nullptr;
    for (size_t i = 0; objects && i < objects->size(); ++i) {  // the list may change
        CUIObject* object = (*objects)[i];
        if (object && !object->GetRemoved())
            object->Draw(g);
    }
}

void CUIDocument::DrawCanvas(Gdiplus::Graphics* g) {
    DrawCanvas(g, GetCurrentCanvas());
}

void CUIDocument::DrawObject(Gdiplus::Graphics* g, CUIObject* focus) {
    const CUIObjectDeque* objects = focus ? GetCanvasObjectList() : nullptr;
    if (!objects)
        return;
    for (CUIObject* object : *objects)
        if (object && (!object->GetRemoved() || object == focus))
            object->Draw(g);
}

void CUIDocument::UpdateAllCanvas(CUICanvas* canvas, long hint, void* data) {
    const bool isForAll = hint >= 3 && hint <= 5;
    if (!canvas && isForAll) {
        for (const auto& [page, objects] : m_pages)
            if (page)
                page->UpdateCanvas(nullptr, hint, data);
    } else if (canvas && (hint == 0 || hint == 1)) {
        canvas->UpdateCanvas(canvas, hint, data);
    } else if (canvas && hint == 2) {
        for (CUICanvas* entry : m_auxiliary)
            if (entry)
                entry->UpdateCanvas(canvas, hint, data);
    }
}

}  // namespace Lumo
