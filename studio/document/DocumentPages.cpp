// Page commands of the document. What a page held stays alive in the step that took it away.
#include "studio/document/StudioDocument.h"

#include <algorithm>
#include <utility>

namespace Studio {

using Lumo::CUIObjectDeque;

/// A page that is not in the document now.
struct StudioDocument::AbsentPage {
    Page page;
    CUIObjectDeque objects;

    AbsentPage() = default;
    AbsentPage(const AbsentPage&) = delete;
    AbsentPage& operator=(const AbsentPage&) = delete;
    ~AbsentPage() { ReleaseObjects(objects); }
};

int StudioDocument::IndexOf(const Lumo::CUICanvas* canvas) const {
    const auto isThis = [&](const Page& page) { return page.canvas.get() == canvas; };
    const auto page = std::find_if(m_pageOrder.begin(), m_pageOrder.end(), isThis);
    return page == m_pageOrder.end() ? -1 : static_cast<int>(page - m_pageOrder.begin());
}

int StudioDocument::CurrentIndex() {
    return IndexOf(GetCurrentCanvas());
}

void StudioDocument::PagesChanged() {
    if (onPages)
        onPages();
}

bool StudioDocument::ShowPage(int index) {
    if (!IsPage(index))
        return false;
    SetCurrentCanvas(m_pageOrder[index].canvas.get());
    PagesChanged();
    return true;
}

bool StudioDocument::HasPageName(const CString& name) const {
    return std::any_of(m_pageOrder.begin(), m_pageOrder.end(),
                       [&](const Page& page) { return page.name.CompareNoCase(name) == 0; });
}

CString StudioDocument::FreePageName() const {
    CString name;
    int number = static_cast<int>(m_pageOrder.size());
    do
        name.Format(GetText(Text::kPageName), ++number);
    while (HasPageName(name));
    return name;
}

CString StudioDocument::FreeCopyName(const CString& name) const {
    CString copy;
    int number = 1;
    do
        copy.Format(L"%s (%d)", name.GetString(), ++number);
    while (HasPageName(copy));
    return copy;
}

// The page goes, its objects stay with it.
void StudioDocument::Detach(AbsentPage& absent, int index) {
    absent.page = std::move(m_pageOrder[index]);
    m_pageOrder.erase(m_pageOrder.begin() + index);
    StudioCanvas* canvas = absent.page.canvas.get();
    canvas->ShowWindow(SW_HIDE);
    absent.objects.swap(*GetCanvasObjectList(canvas));
    DeleteCanvas(canvas);
    ShowPage(std::min(index, static_cast<int>(m_pageOrder.size()) - 1));
}

void StudioDocument::Attach(AbsentPage& absent, int index) {
    StudioCanvas* canvas = absent.page.canvas.get();
    AppendCanvas(canvas);
    GetCanvasObjectList(canvas)->swap(absent.objects);
    m_pageOrder.insert(m_pageOrder.begin() + index, std::move(absent.page));
    absent.page = {};
    ShowPage(index);
}

bool StudioDocument::InsertPage(int index, CString name, std::vector<ObjectPtr> objects, Text step) {
    auto absent = std::make_shared<AbsentPage>();
    if (!AttemptFile([&] { absent->page = {name, MakeCanvas()}; }, m_error))
        return false;
    for (ObjectPtr& object : objects) {
        absent->page.canvas->Adopt(*object);
        absent->objects.push_back(object.release());
    }
    EditScope edit(*CurrentPage(), step);
    edit.Do([=, this] { Attach(*absent, index); }, [=, this] { Detach(*absent, index); });
    return true;
}

bool StudioDocument::AddPage(int index) {
    return IsPage(index) && InsertPage(index + 1, FreePageName(), {}, Text::kStepAddPage);
}

bool StudioDocument::DuplicatePage(int index) {
    if (!IsPage(index))
        return false;
    const Page& page = m_pageOrder[index];
    std::vector<ObjectPtr> copies;
    const auto copy = [&] { copies = CopyObjects(*GetCanvasObjectList(page.canvas.get())); };
    return AttemptFile(copy, m_error) &&
           InsertPage(index + 1, FreeCopyName(page.name), std::move(copies), Text::kStepDuplicatePage);
}

bool StudioDocument::RemovePage(int index) {
    if (!IsPage(index) || m_pageOrder.size() == 1)
        return false;
    auto absent = std::make_shared<AbsentPage>();
    // The step belongs to a page that is there before and after it.
    EditScope edit(*m_pageOrder[index ? index - 1 : 1].canvas, Text::kStepRemovePage);
    edit.Do([=, this] { Detach(*absent, index); }, [=, this] { Attach(*absent, index); });
    return true;
}

bool StudioDocument::RenamePage(int index, const CString& name) {
    if (!IsPage(index) || name.IsEmpty())
        return false;
    const CString old = m_pageOrder[index].name;
    if (name.CompareNoCase(old) != 0 && HasPageName(name))
        return false;
    if (name == old)
        return true;
    // A tab's editor is left by a press on a page, too, which may have begun something there.
    if (StudioCanvas* current = CurrentPage())
        current->FinishEditing();
    const auto rename = [this, index](const CString& to) {
        m_pageOrder[index].name = to;
        ShowPage(index);
    };
    EditScope edit(*m_pageOrder[index].canvas, Text::kStepRenamePage);
    edit.Do([=] { rename(name); }, [=] { rename(old); });
    return true;
}

bool StudioDocument::MovePage(int from, int to) {
    if (!IsPage(from) || !IsPage(to))
        return false;
    if (from == to)
        return true;
    const auto move = [this](int source, int target) {
        Page page = std::move(m_pageOrder[source]);
        m_pageOrder.erase(m_pageOrder.begin() + source);
        m_pageOrder.insert(m_pageOrder.begin() + target, std::move(page));
        ShowPage(target);
    };
    EditScope edit(*m_pageOrder[from].canvas, Text::kStepMovePage);
    edit.Do([=] { move(from, to); }, [=] { move(to, from); });
    return true;
}

}  // namespace Studio
