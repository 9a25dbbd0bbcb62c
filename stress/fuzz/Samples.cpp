#include "Samples.h"

#include "Loader.h"

#include "core/UIObjectPoly.h"
#include "studio/app/Texts.h"
#include "studio/document/DemoProject.h"
#include "studio/document/ObjectExtras.h"
#include "studio/document/PageImage.h"
#include "studio/editing/ComPtr.h"
#include "studio/editing/EmbeddedObject.h"
#include "studio/editing/GroupObject.h"

#include <cmath>
#include <unordered_set>

using namespace Studio;
using Lumo::CUIObject;

namespace {

constexpr Lumo::DrawShape kKinds[] = {
    Lumo::DS_RECTANGLE,    Lumo::DS_ELLIPSE,    Lumo::DS_TEXTEDIT,    Lumo::DS_LINE,
    Lumo::DS_POLYLINE,     Lumo::DS_CHARTPEQ,   Lumo::DS_BUTTONBAND,  Lumo::DS_CHARTDEVICE,
    Lumo::DS_BUTTONDEVICE, Lumo::DS_CHARTLEVEL, Lumo::DS_BUTTONLEVEL, Lumo::DS_STATECROSSOVER,
    Lumo::DS_STATEGEQ,     Lumo::DS_STATEPEQ,
};

PageContents MakePage(LPCWSTR name, std::vector<ObjectPtr> objects) {
    PageContents page;
    page.name = name;
    page.objects = std::move(objects);
    return page;
}

ObjectPtr MakeGroup(int depth) {
    ObjectPtr group = MakeObject(ObjectClass::kGroup);
    std::deque<CUIObject*> children;
    children.push_back(depth > 1 ? MakeGroup(depth - 1).release() : SampleObject(Lumo::DS_ELLIPSE).release());
    if (depth == 1)
        children.push_back(SampleObject(Lumo::DS_POLYLINE).release());
    dynamic_cast<GroupObject&>(*group).AdoptAll(children);
    return group;
}

ObjectPtr MakeEmbeddedSample() {
    ObjectPtr object = MakeObject(ObjectClass::kEmbedded);
    auto contents = std::make_shared<const EmbeddedContents>(L"Sample", Bytes(300, 7), SamplePicture());
    dynamic_cast<EmbeddedObject&>(*object).SetContents(std::move(contents));
    object->SetPosition(Gdiplus::RectF(5, 5, 40, 30));
    return object;
}

DocumentContents OnePage(ObjectPtr object) {
    DocumentContents contents;
    std::vector<ObjectPtr> objects;
    if (object)
        objects.push_back(std::move(object));
    contents.pages.push_back(MakePage(L"Page", std::move(objects)));
    return contents;
}

bool IsWithin(float value, float limit) {
    return std::isfinite(value) && std::fabs(value) <= limit;
}

void RequireSound(CUIObject* object, int depth, std::unordered_set<CUIObject*>& seen) {
    constexpr float kLimit = 1.0e6f;
    Require(object && seen.insert(object).second, "an object is null or stands in two places");
    Require(depth < 64, "groups lie too deep in groups");
    const ObjectClass objectClass = ClassOf(*object);
    Require(objectClass != ObjectClass::kNone && object->GetDrawShape() == KindOf(objectClass),
            "an object's class and kind do not fit");
    const Gdiplus::RectF place = object->GetPosition();
    Require(IsWithin(place.X, kLimit) && IsWithin(place.Y, kLimit) && IsWithin(place.Width, kLimit) &&
                IsWithin(place.Height, kLimit),
            "an object lies nowhere");
    if (auto* poly = dynamic_cast<Lumo::CUIObjectPoly*>(object)) {
        const auto& points = *poly->NormalizePoints();
        Require(points.size() <= static_cast<size_t>(poly->GetMaxPoints()), "a line has too many points");
        for (const Gdiplus::PointF& point : points)
            Require(IsWithin(point.X, kLimit) && IsWithin(point.Y, kLimit), "a point lies nowhere");
    }
    if (auto* group = dynamic_cast<GroupObject*>(object)) {
        for (CUIObject* child : group->GetChildren())
            RequireSound(child, depth + 1, seen);
    }
}

}  // namespace

ObjectPtr SampleObject(Lumo::DrawShape kind) {
    ObjectPtr object = MakeDrawnObject(kind, Gdiplus::RectF(12.5f, 20, 60, 40));
    object->SetText(L"\xD55C caption");
    object->SetShapeName(L"Name1");
    if (auto* poly = dynamic_cast<Lumo::CUIObjectPoly*>(object.get())) {
        for (Gdiplus::PointF point : {Gdiplus::PointF(12.5f, 20), Gdiplus::PointF(72.5f, 60)})
            poly->AddPoint(point);
    }
    ObjectExtras& extras = *EditExtras(*object);
    extras.binding = kind == Lumo::DS_RECTANGLE ? CString(L"in1.gain") : extras.binding;
    for (int behaviour = 0; behaviour < kBehaviourCount; ++behaviour)
        extras.TurnOn(static_cast<Behaviour>(behaviour), (kind + behaviour) % 3 == 0);
    for (LPCWSTR name : {L"in1.level", L"out1.level"}) {
        auto* line = new CPrefTrendLine;
        line->m_strName = name;
        extras.prefs.m_trend.m_lines.push_back(line);
    }
    return object;
}

std::vector<DocumentContents> SampleDocuments() {
    std::vector<DocumentContents> documents;
    documents.push_back(OnePage(nullptr));
    for (Lumo::DrawShape kind : kKinds)
        documents.push_back(OnePage(SampleObject(kind)));
    documents.push_back(OnePage(MakeDrawnObject(Lumo::DS_RECTANGLE, Gdiplus::RectF(0, 0, 10, 10))));
    documents.push_back(OnePage(MakeGroup(1)));
    documents.push_back(OnePage(MakeGroup(3)));
    documents.push_back(OnePage(MakeGroup(62)));
    documents.push_back(OnePage(MakeEmbeddedSample()));
    DocumentContents& several = documents.emplace_back();
    for (LPCWSTR name : {L"First", L"\xB450 \xBC88\xC9F8", L""}) {
        std::vector<ObjectPtr> objects;
        objects.push_back(SampleObject(Lumo::DS_RECTANGLE));
        objects.push_back(SampleObject(Lumo::DS_LINE));
        several.pages.push_back(MakePage(name, std::move(objects)));
    }
    several.current = 1;
    documents.push_back(MakeDemoProject());
    return documents;
}

Bytes SamplePicture() {
    Gdiplus::Bitmap bitmap(6, 4, PixelFormat32bppARGB);
    IStream* made = nullptr;
    ::CreateStreamOnHGlobal(nullptr, TRUE, &made);
    const ComPtr<IStream> stream(made);
    const CLSID encoder = PngEncoder();
    bitmap.Save(stream.get(), &encoder, nullptr);
    STATSTG state = {};
    stream->Stat(&state, STATFLAG_NONAME);
    Bytes png(static_cast<size_t>(state.cbSize.QuadPart));
    stream->Seek({}, STREAM_SEEK_SET, nullptr);
    stream->Read(png.data(), static_cast<ULONG>(png.size()), nullptr);
    return png;
}

Bytes ArchivedContents(const DocumentContents& contents) {
    return Stored([&](CArchive& ar) {
        StoreHead(ar, contents.pages.size(), contents.current);
        for (const PageContents& page : contents.pages)
            StorePage(ar, page.name, ListOf(page));
        StoreEnd(ar);
    });
}

void RequireSound(const std::vector<ObjectPtr>& objects) {
    std::unordered_set<CUIObject*> seen;
    for (const ObjectPtr& object : objects)
        RequireSound(object.get(), 0, seen);
}

void RequireSound(const DocumentContents& contents) {
    Require(!contents.pages.empty() && contents.current < contents.pages.size(), "no page is shown");
    for (const PageContents& page : contents.pages)
        RequireSound(page.objects);
}
