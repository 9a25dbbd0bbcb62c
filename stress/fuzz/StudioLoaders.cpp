// Studio's archives: pages of objects, the clipboard's objects, and what every object carries.
#include "Loader.h"

#include "Exercise.h"
#include "Samples.h"

#include "core/UIObjectPoly.h"
#include "studio/document/ObjectExtras.h"
#include "studio/document/PageImage.h"
#include "studio/editing/EmbeddedContents.h"
#include "studio/editing/ObjectClipboard.h"

using namespace Studio;

namespace {

// As `Loads`, with Studio's own refusal.
template <class Load>
bool LoadsOrRefuses(const Bytes& input, Load load) {
    try {
        return Loads(input, load);
    } catch (const FileFault&) {
        return false;
    }
}

template <DWORD version>
bool LoadPages(const Bytes& input, bool use) {
    DocumentContents contents;
    if (!LoadsOrRefuses(input, [&](CArchive& ar) { contents = LoadContents(ar, version); }))
        return false;
    RequireSound(contents);
    const Bytes first = ArchivedContents(contents);
    DocumentContents again;
    Require(LoadsOrRefuses(first, [&](CArchive& ar) { again = LoadContents(ar); }),
            "what was saved is refused");
    Require(ArchivedContents(again) == first, "what was saved comes back changed");
    if (use) {
        Canvas64 canvas;
        for (const PageContents& page : contents.pages)
            DrawFitted(canvas.graphics, ListOf(page), CSize(64, 64));
    }
    return true;
}

std::vector<Bytes> PageSeeds() {
    std::vector<Bytes> seeds;
    for (const DocumentContents& contents : SampleDocuments())
        seeds.push_back(ArchivedContents(contents));
    return seeds;
}

// What the first version wrote of a line: neither binding nor behaviours.
Bytes FirstVersion() {
    const ObjectPtr line = SampleObject(Lumo::DS_LINE);
    const auto& points = *dynamic_cast<Lumo::CUIObjectPoly&>(*line).NormalizePoints();
    return Stored([&](CArchive& ar) {
        StoreHead(ar, 1, 0);
        ar << CString(L"Page") << DWORD(1) << static_cast<DWORD>(ObjectClass::kLine);
        line->Serialize(ar);
        ar << 0 << 1 << 0 << 2 << 0;
        ar << 2 << static_cast<DWORD>(points.size());
        for (const Gdiplus::PointF& point : points)
            ar << point.X << point.Y;
        StoreEnd(ar);
    });
}

Lumo::CUIObjectDeque Pointers(const std::vector<ObjectPtr>& objects) {
    Lumo::CUIObjectDeque list;
    for (const ObjectPtr& object : objects)
        list.push_back(object.get());
    return list;
}

bool LoadClipboard(const Bytes& input, bool use) {
    const std::vector<ObjectPtr> objects = UnpackObjects(input);
    if (objects.empty())
        return false;
    RequireSound(objects);
    const Bytes first = PackObjects(Pointers(objects));
    const std::vector<ObjectPtr> again = UnpackObjects(first);
    Require(again.size() == objects.size(), "what was copied is refused");
    Require(PackObjects(Pointers(again)) == first, "what was copied comes back changed");
    if (use) {
        for (const ObjectPtr& object : objects)
            Exercise(*object);
    }
    return true;
}

std::vector<Bytes> ClipboardSeeds() {
    std::vector<Bytes> seeds;
    for (const DocumentContents& contents : SampleDocuments())
        seeds.push_back(PackObjects(ListOf(contents.pages.front())));
    return seeds;
}

bool LoadExtras(const Bytes& input, bool use) {
    ObjectExtras extras;
    const bool loaded = Loads(input, [&](CArchive& ar) { extras.Serialize(ar); });
    const auto make = [] { return std::make_unique<ObjectExtras>(); };
    RequireLasting(extras, make);
    if (use) {
        ObjectExtras copy(extras);
        const Bytes stored = Stored([&](CArchive& ar) { copy.Serialize(ar); });
        Require(stored == Stored([&](CArchive& ar) { extras.Serialize(ar); }), "a copy differs");
    }
    return loaded;
}

Loader ExtrasLoader() {
    const ObjectPtr object = SampleObject(Lumo::DS_CHARTPEQ);
    ObjectExtras plain;
    return {"studio-extras",
            20,
            {Stored([&](CArchive& ar) { plain.Serialize(ar); }),
             Stored([&](CArchive& ar) { EditExtras(*object)->Serialize(ar); })},
            LoadExtras};
}

bool LoadEmbedded(const Bytes& input, bool) {
    EmbeddedContentsPtr contents;
    if (!LoadsOrRefuses(input, [&](CArchive& ar) { contents = EmbeddedContents::Load(ar); }))
        return false;
    const auto store = [](const EmbeddedContents& from) {
        return Stored([&](CArchive& ar) { from.Store(ar); });
    };
    const Bytes first = store(*contents);
    EmbeddedContentsPtr again;
    Require(LoadsOrRefuses(first, [&](CArchive& ar) { again = EmbeddedContents::Load(ar); }),
            "what was saved is refused");
    Require(store(*again) == first, "what was saved comes back changed");
    contents->Image();
    return true;
}

Loader EmbeddedLoader() {
    std::vector<Bytes> seeds;
    for (const Bytes& picture : {Bytes(), SamplePicture()}) {
        const EmbeddedContents contents(L"Sample", Bytes(600, 7), picture);
        seeds.push_back(Stored([&](CArchive& ar) { contents.Store(ar); }));
    }
    return {"studio-embedded", 5, seeds, LoadEmbedded};
}

}  // namespace

void AddStudioLoaders(std::vector<Loader>& loaders) {
    loaders.push_back({"studio-pages", 60, PageSeeds(), LoadPages<kArchiveVersion>});
    std::vector<Bytes> seeds = PageSeeds();
    seeds.insert(seeds.begin(), 20, FirstVersion());
    loaders.push_back({"studio-pages-1", 20, seeds, LoadPages<1>});
    loaders.push_back({"studio-clipboard", 40, ClipboardSeeds(), LoadClipboard});
    loaders.push_back(ExtrasLoader());
    loaders.push_back(EmbeddedLoader());
}
