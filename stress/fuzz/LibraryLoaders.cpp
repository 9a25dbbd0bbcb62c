// The library's objects, the records in them, and documents.
#include "Loader.h"

#include "Exercise.h"
#include "Scratch.h"

#include "stress/support/Imports.h"

#include "appearance/UIObjectRectangle.h"
#include "behaviour/UIObjectButton.h"
#include "behaviour/UIObjectChartBase.h"
#include "behaviour/UIObjectOle.h"
#include "behaviour/UIObjectTextEdit.h"
#include "canvas/UICanvas.h"
#include "canvas/UITool.h"
#include "core/UIDocument.h"
#include "core/UIObjectPoly.h"

#include <memory>

using namespace Lumo;
using Gdiplus::RectF;

namespace {

const RectF kPlace(10.0f, 20.0f, 120.0f, 60.0f);

struct ObjectDestroyer {
    void operator()(CUIObject* object) const { CUIDocument::DestroyObject(object); }
};
template <class Class>
using Owner = std::unique_ptr<Class, ObjectDestroyer>;

Bytes Archived(CUIObject& object) {
    return Stored([&](CArchive& ar) { object.Serialize(ar); });
}

// A new object as it is, and one whose texts and numbers are all different from the defaults.
std::vector<Bytes> ObjectSeeds(CUIObject& object) {
    std::vector<Bytes> seeds = {Archived(object)};
    CString text(L"\xD55C\xAE00 caption ");
    while (text.GetLength() < 400)
        text += text;
    object.SetText(text);
    object.SetTextFontName(L"NanumGothic");
    object.SetShapeName(L"\xC774\xB984");
    object.SetFillShapeMode(2);
    object.SetLineShapeMode(2);
    object.SetLineWidth(7.5f);
    object.SetLineDashStyle(Gdiplus::DashStyleDashDot);
    object.SetLineDashValue(3.0f, 1.0f, 2.0f, 4.0f);
    object.SetRotateAngle(30.0f);
    seeds.push_back(Archived(object));
    return seeds;
}

template <class Make>
Loader ObjectLoader(const char* name, Make make) {
    const auto load = [make](const Bytes& input, bool use) {
        const auto object = make();
        const bool loaded = Loads(input, [&](CArchive& ar) { object->Serialize(ar); });
        RequireLasting(*object, make);
        if (use)
            Exercise(*object);
        return loaded;
    };
    return {name, 30, ObjectSeeds(*make()), load};
}

template <class Class>
Owner<Class> Make(DrawShape kind) {
    return Owner<Class>(new Class(kPlace, kind));
}

template <class Format>
Loader FormatLoader(const char* name) {
    const auto load = [](const Bytes& input, bool) {
        Format format;
        const bool loaded = Loads(input, [&](CArchive& ar) { format.Serialize(ar); });
        RequireLasting(format, [] { return std::make_unique<Format>(); });
        return loaded;
    };
    Format format;
    std::vector<Bytes> seeds = {Stored([&](CArchive& ar) { format.Serialize(ar); })};
    if constexpr (requires { format.LoadDefault(); })
        format.LoadDefault();
    seeds.push_back(Stored([&](CArchive& ar) { format.Serialize(ar); }));
    return {name, 20, seeds, load};
}

// A group as files hold it: with children, which are groups in part.
Owner<CUIObjectList> MakeFullGroup(int depth) {
    auto group = Make<CUIObjectList>(DS_LIST);
    if (depth > 0) {
        group->MakeGroup(MakeFullGroup(depth - 1).release());
        return group;
    }
    for (DrawShape kind : {DS_RECTANGLE, DS_LINE, DS_TEXTEDIT, DS_SYMBOL})
        group->MakeGroup(CUIToolBase::CreateUIObject(kPlace, kind));
    return group;
}

template <class Class>
Loader GroupLoader(const char* name, DrawShape kind) {
    Loader loader = ObjectLoader(name, [kind] { return Make<Class>(kind); });
    loader.seeds.push_back(Archived(*MakeFullGroup(0)));
    loader.seeds.push_back(Archived(*MakeFullGroup(3)));
    loader.seeds.push_back(Archived(*MakeFullGroup(62)));
    return loader;
}

// A document as a host rebuilds it before it reads.
class RebuiltDocument : public CUIDocument {
public:
    void Serialize(CArchive& ar) override {
        if (ar.IsLoading() && GetCanvasList().empty())
            Rebuild();
        CUIDocument::Serialize(ar);
    }
    void Rebuild() {
        for (CUICanvas& canvas : m_canvases) {
            AppendCanvas(&canvas);
            for (DrawShape kind : {DS_RECTANGLE, DS_POLYLINE, DS_TEXTEDIT, DS_LIST, DS_ELLIPSE, DS_LINE})
                AppendObject(CUIToolBase::CreateUIObject(kPlace, kind), &canvas);
        }
    }

private:
    CUICanvas m_canvases[2];
};

struct DocumentReleaser {
    void operator()(CUIDocument* document) const { document->Release(); }
};
using DocumentOwner = std::unique_ptr<RebuiltDocument, DocumentReleaser>;

DocumentOwner MakeDocument() {
    return DocumentOwner(new RebuiltDocument);
}

void ExerciseDocument(CUIDocument& document) {
    Canvas64 canvas;
    document.DrawCanvas(&canvas.graphics);
    CPoint point(40, 40);
    document.ObjectAt(point);
    // Without a page the object would belong to nobody.
    if (document.GetCurrentCanvas())
        document.SetShapeName(document.CreateObject(DS_RECTANGLE, CRect(0, 0, 5, 5)));
}

int messages = 0;

int WINAPI CountMessage(HWND, LPCWSTR, LPCWSTR, UINT) {
    ++messages;
    return IDOK;
}

bool LoadDocumentFile(const Bytes& input, bool use) {
    const DocumentOwner document = MakeDocument();
    CString path = WriteScratch(input);
    messages = 0;
    const bool loaded = document->Load(path) != 0;
    Require(messages == (loaded ? 0 : 1), "a refused file is not reported once");
    if (use)
        ExerciseDocument(*document);
    Require(document->Save(path) != 0, "the document cannot be saved after a load");
    document->ClearCanvas();
    Require(document->Load(path) != 0, "the saved document cannot be loaded");
    return loaded;
}

bool LoadDocumentArchive(const Bytes& input, bool use) {
    const DocumentOwner document = MakeDocument();
    const bool loaded = Loads(input, [&](CArchive& ar) { document->Serialize(ar); });
    RequireLasting(*document, MakeDocument);
    if (use)
        ExerciseDocument(*document);
    return loaded;
}

}  // namespace

void AddLibraryLoaders(std::vector<Loader>& loaders) {
    ReplaceImport(L"TesselAfx.dll", "MessageBoxW", &CountMessage);
    loaders.push_back(ObjectLoader("object", [] { return Make<CUIObject>(DS_ARC); }));
    loaders.push_back(ObjectLoader("rectangle", [] { return Make<CUIObjectRectangle>(DS_RECTANGLE); }));
    loaders.push_back(ObjectLoader("ellipse", [] { return Make<CUIObjectEllipse>(DS_ELLIPSE); }));
    loaders.push_back(ObjectLoader("line", [] { return Make<CUIObjectLine>(DS_LINE); }));
    loaders.push_back(ObjectLoader("polyline", [] { return Make<CUIObjectPolyLine>(DS_POLYLINE); }));
    loaders.push_back(ObjectLoader("text", [] { return Make<CUIObjectTextEdit>(DS_TEXTEDIT); }));
    loaders.push_back(ObjectLoader("button", [] { return Make<CUIObjectButton>(DS_BUTTON); }));
    loaders.push_back(ObjectLoader("ole", [] { return Make<CUIObjectOle>(DS_OLE); }));
    loaders.push_back(GroupLoader<CUIObjectList>("group", DS_LIST));
    loaders.push_back(GroupLoader<CUIObjectSymbol>("symbol", DS_SYMBOL));
    loaders.push_back(GroupLoader<CUIObjectChartBase>("chart", DS_CHARTPEQ));

    loaders.push_back(FormatLoader<CUIShapeFormatText>("format-text"));
    loaders.push_back(FormatLoader<CUIShapeFormatFill>("format-fill"));
    loaders.push_back(FormatLoader<CUIShapeFormatLineColor>("format-line-color"));
    loaders.push_back(FormatLoader<CUIShapeFormatLineStyle>("format-line-style"));
    loaders.push_back(FormatLoader<CUIShapeFormatShadow>("format-shadow"));
    loaders.push_back(FormatLoader<CUIShapeFormatScale>("format-scale"));
    loaders.push_back(FormatLoader<CUIShapeFormatPosition>("format-position"));
    loaders.push_back(FormatLoader<CUIShapeFormatTextBox>("format-text-box"));
    loaders.push_back(FormatLoader<CUICoordinate>("coordinate"));

    const DocumentOwner document = MakeDocument();
    document->Rebuild();
    const std::vector<Bytes> seeds = {Stored([&](CArchive& ar) { document->Serialize(ar); })};
    loaders.push_back({"document", 20, seeds, LoadDocumentArchive});
    loaders.push_back({"document-file", 6, seeds, LoadDocumentFile});
}
