#include "stress/endurance/Cycles.h"
#include "stress/endurance/Meter.h"

#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UICanvas.h"
#include "canvas/UITool.h"
#include "core/UIDocument.h"
#include "core/UIObjectPoly.h"

#include <iterator>
#include <memory>

namespace endurance {

using namespace Lumo;

namespace {

constexpr DrawShape kKinds[] = {DS_RECTANGLE, DS_ELLIPSE, DS_LINE, DS_POLYLINE, DS_TEXTEDIT};

class Parent : public CWnd {
public:
    Parent() {
        CreateEx(0, AfxRegisterWndClass(0), L"Parent", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 20, 20, 820,
                 620, nullptr, nullptr);
    }
    ~Parent() override { DestroyWindow(); }
};

// A host whose document reads a file into objects of its own.
class Document : public CUIDocument {
public:
    explicit Document(CWnd& parent) {
        CString name;
        CRect rect(0, 0, 800, 600);
        CreateCanvas(WS_CHILD | WS_VISIBLE, name, rect, parent);
        m_canvas.reset(GetCurrentCanvas());
        Fill();
    }
    CUICanvas& Canvas() { return *m_canvas; }
    void Serialize(CArchive& ar) override {
        if (ar.IsLoading()) {
            AppendCanvas(m_canvas.get());
            Fill();
        }
        CUIDocument::Serialize(ar);
    }

private:
    void Fill() {
        for (int i = 0; i < 200; ++i) {
            const int row = i / 20;
            const Gdiplus::RectF place(static_cast<float>(i % 20) * 40.0f, static_cast<float>(row) * 60.0f,
                                       34, 50);
            CUIObject* object = CUIToolBase::CreateUIObject(place, kKinds[i % std::size(kKinds)]);
            if (auto* poly = dynamic_cast<CUIObjectPoly*>(object)) {
                Gdiplus::PointF from(place.X, place.Y), to(place.X + 34, place.Y + 50);
                poly->AddPoint(from);
                poly->AddPoint(to);
            }
            object->SetText(L"caption");
            AppendObject(object, nullptr);
        }
    }
    std::unique_ptr<CUICanvas> m_canvas;
};

class Blank : public CWnd {
public:
    explicit Blank(CWnd& parent) {
        CreateEx(0, AfxRegisterWndClass(0, nullptr, static_cast<HBRUSH>(::GetStockObject(GRAY_BRUSH))),
                 L"Blank", WS_CHILD | WS_VISIBLE, CRect(0, 0, 800, 600), &parent, 0);
    }
    ~Blank() override { DestroyWindow(); }
};

void Paint(CWnd& window, int round) {
    const CSize kSizes[] = {{300, 200}, {800, 600}, {640, 90}, {500, 580}};
    if (round % 50 == 49)
        window.SetWindowPos(nullptr, 0, 0, kSizes[round / 50 % 4].cx, kSizes[round / 50 % 4].cy,
                            SWP_NOMOVE | SWP_NOZORDER);
    window.InvalidateRect(
        CRect(CPoint(round * 7 % 700, round * 5 % 500), CSize(20 + round % 200, 20 + round % 90)));
    window.UpdateWindow();
}

}  // namespace

bool EndureCanvas(int paints, int cycles) {
    Parent parent;
    bool flat = true;
    {
        Blank blank(parent);
        flat &= Endure("paints of an empty window", paints, [&](int round) { Paint(blank, round); });
    }
    auto* document = new Document(parent);
    flat &= Endure("paints of a canvas", paints, [&](int round) { Paint(document->Canvas(), round); });
    WCHAR folder[MAX_PATH];
    ::GetTempPath(MAX_PATH, folder);
    CString path;
    path.Format(L"%sendurance-%lu.cbf", folder, ::GetCurrentProcessId());
    bool saved = true;
    flat &= Endure("saves and loads of a document", cycles,
                   [&](int) { saved = document->Save(path) && document->Load(path) && saved; });
    ::DeleteFile(path);
    document->Release();
    flat &= Endure("canvases with an editor, opened and closed", cycles, [&](int) {
        auto* shown = new Document(parent);
        shown->Canvas().EditText(dynamic_cast<CUIObjectTextEdit*>(shown->GetCanvasObjectList()->at(4)));
        shown->Canvas().UpdateWindow();
        shown->Release();
    });
    return flat && saved;
}

}  // namespace endurance
