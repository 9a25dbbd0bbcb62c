// How the cost of each operation on a whole page grows with the page. Ten times the objects cost about ten
// times as much, up to three times that where they leave the processor's caches or the heap's small blocks; a
// loop in a loop would cost a hundred times as much.
#include "bench/Page.h"
#include "bench/Table.h"

#include <algorithm>
#include <iterator>
#include <limits>

using namespace Lumo;

namespace bench {

namespace {

struct Operation {
    const char* name;
    void (*run)(Page& page);
};

void SelectEach(Page& page) {
    for (CUIObject* object : *page.document->GetCanvasObjectList())
        page.canvas->Select(object, 1);
}

void DeselectEach(Page& page) {
    const std::deque<CUIObject*> selection = page.canvas->m_selection;
    for (CUIObject* object : selection)
        page.canvas->Deselect(object);
}

void Move(Page& page) {
    CPoint from(0, 0);
    CPoint to(5, 5);
    page.canvas->MoveTo(8, from, to, 0);
}

void NameOne(Page& page) {
    page.document->SetShapeName(page.document->GetCanvasObjectList()->back());
}

void FindNothing(Page& page) {
    CString name(L"nothing");
    page.document->FindObject(name, page.canvas.get());
}

void DestroyOne(Page& page) {
    page.document->RemoveObject(page.document->GetCanvasObjectList()->front(), 1);
}

// As many as the page holds, none of them on it.
void DestroyOthers(Page& page) {
    std::vector<CUIObject*> others;
    for (size_t i = page.document->GetCanvasObjectList()->size(); i-- > 0;)
        others.push_back(CUIToolBase::CreateUIObject({3, 5, 8, 4}, DS_RECTANGLE));
    for (CUIObject* object : others)
        CUIDocument::DestroyObject(object);
}

// In this order on one page; what changes the selection is followed by selecting again.
constexpr Operation kOperations[] = {
    {"select each object", SelectEach},
    {"align the selected", [](Page& page) { page.canvas->OnToolsAlignCenter(); }},
    {"rotate the selected", [](Page& page) { page.canvas->OnToolsRotateLeft(); }},
    {"move the selected", Move},
    {"restack the selected", [](Page& page) { page.canvas->OnToolsPositionFront(); }},
    {"copy the selected", [](Page& page) { page.canvas->OnEditObjectCopy(); }},
    {"paste", [](Page& page) { page.canvas->OnEditObjectPaste(); }},
    {nullptr, SelectEach},
    {"deselect each object", DeselectEach},
    {nullptr, SelectEach},
    {"group the selected", [](Page& page) { page.canvas->OnToolsMakeGroup(); }},
    {"ungroup", [](Page& page) { page.canvas->OnToolsMakeUngroup(); }},
    {"name one object", NameOne},
    {"find an object by name", FindNothing},
    {"destroy one object", DestroyOne},
    {"destroy as many others", DestroyOthers},
    {"clear the page", [](Page& page) { page.document->ClearCanvasObject(); }},
};

using Times = std::vector<double>;

// The best of five rounds, each on a page of its own.
Times TimesOf(int objects) {
    Times best(std::size(kOperations), std::numeric_limits<double>::max());
    for (int round = 0; round < 5; ++round) {
        Page page(1280, 800);
        for (int i = 0; i < objects; ++i) {
            const int row = i / 100;
            page.Add(DS_RECTANGLE, static_cast<float>(i % 1000), static_cast<float>(row), 8, 4);
        }
        for (size_t i = 0; i < best.size(); ++i)
            best[i] = std::min(best[i], Seconds([&] { kOperations[i].run(page); }));
    }
    return best;
}

}  // namespace

void MeasureScaling(std::vector<Line>& lines) {
    constexpr int kFew = 1000;
    constexpr int kMany = 10000;
    constexpr double kLinear = 40.0;
    const Times few = TimesOf(kFew);
    const Times many = TimesOf(kMany);
    for (size_t i = 0; i < many.size(); ++i) {
        if (kOperations[i].name == nullptr)
            continue;
        const auto microseconds = [&](const Times& times) {
            return std::to_string(static_cast<int>(times[i] * 1e6));
        };
        lines.push_back({std::string(kOperations[i].name) + ", 10,000 objects against 1,000",
                         many[i] / few[i], "x", kLinear, false,
                         microseconds(many) + " us against " + microseconds(few) + " us"});
    }
}

}  // namespace bench
