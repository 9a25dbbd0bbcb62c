// Families, collections and fonts.
#include "gdiplus/FontObject.h"
#include "gdiplus/Typeface.h"

namespace flat {

namespace {

template <class Measure>
GpStatus Metric(const GpFontFamily* family, INT style, UINT16* value, Measure measure) {
    return Answer([&] {
        const TypefaceLock lock;
        Typeface* face = Typeface::Find(Get<FamilyObject>(family).name, style);
        Require(value);
        Require(face, FontStyleNotFound);
        *value = static_cast<UINT16>(std::lround(measure(*face) * face->UnitsPerEm()));
    });
}

GpStatus Generic(GpFontFamily** family, const wchar_t* name) {
    return Answer([&] { Give(family, std::make_unique<FamilyObject>(name)); });
}

}  // namespace

}  // namespace flat

using namespace flat;

namespace Gdiplus::DllExports {
extern "C" {

GpStatus WINGDIPAPI GdipCreateFontFamilyFromName(const WCHAR* name, GpFontCollection*,
                                                 GpFontFamily** family) {
    return Answer([&] {
        Require(name && family);
        Require(IsFamilyInstalled(name), FontFamilyNotFound);
        Give(family, std::make_unique<FamilyObject>(name));
    });
}

GpStatus WINGDIPAPI GdipDeleteFontFamily(GpFontFamily* family) {
    return Answer([&] { Destroy<FamilyObject>(family); });
}

GpStatus WINGDIPAPI GdipCloneFontFamily(GpFontFamily* family, GpFontFamily** clone) {
    return Answer([&] { Give(clone, std::make_unique<FamilyObject>(Get<FamilyObject>(family))); });
}

GpStatus WINGDIPAPI GdipGetGenericFontFamilySansSerif(GpFontFamily** family) {
    return Generic(family, IsFamilyInstalled(L"Microsoft Sans Serif") ? L"Microsoft Sans Serif" : L"Arial");
}

GpStatus WINGDIPAPI GdipGetGenericFontFamilySerif(GpFontFamily** family) {
    return Generic(family, L"Times New Roman");
}

GpStatus WINGDIPAPI GdipGetGenericFontFamilyMonospace(GpFontFamily** family) {
    return Generic(family, L"Courier New");
}

GpStatus WINGDIPAPI GdipGetFamilyName(const GpFontFamily* family, WCHAR* name, LANGID) {
    return Answer([&] {
        const FamilyObject& own = Get<FamilyObject>(family);
        Require(name);
        name[own.name.copy(name, LF_FACESIZE - 1)] = 0;
    });
}

GpStatus WINGDIPAPI GdipIsStyleAvailable(const GpFontFamily* family, INT style, BOOL* available) {
    return Answer([&] { Out(available) = Typeface::Find(Get<FamilyObject>(family).name, style) != nullptr; });
}

GpStatus WINGDIPAPI GdipGetEmHeight(const GpFontFamily* family, INT style, UINT16* value) {
    return Metric(family, style, value, [](const Typeface&) { return 1.0; });
}

GpStatus WINGDIPAPI GdipGetCellAscent(const GpFontFamily* family, INT style, UINT16* value) {
    return Metric(family, style, value, [](const Typeface& face) { return face.Ascent(); });
}

GpStatus WINGDIPAPI GdipGetCellDescent(const GpFontFamily* family, INT style, UINT16* value) {
    return Metric(family, style, value, [](const Typeface& face) { return face.Descent(); });
}

GpStatus WINGDIPAPI GdipGetLineSpacing(const GpFontFamily* family, INT style, UINT16* value) {
    return Metric(family, style, value, [](const Typeface& face) { return face.LineSpacing(); });
}

GpStatus WINGDIPAPI GdipNewInstalledFontCollection(GpFontCollection** collection) {
    return Answer([&] {
        // One for all; callers do not delete it.
        static GpFontCollection* shared = nullptr;
        const TypefaceLock lock;
        Require(collection);
        if (!FindObject(shared, Kind::FontCollection, Kind::FontCollection)) {
            auto own = std::make_unique<CollectionObject>();
            own->families = InstalledFamilies();
            Give(&shared, std::move(own));
        }
        *collection = shared;
    });
}

GpStatus WINGDIPAPI GdipGetFontCollectionFamilyCount(GpFontCollection* collection, INT* count) {
    return Answer([&] { Out(count) = static_cast<INT>(Get<CollectionObject>(collection).families.size()); });
}

GpStatus WINGDIPAPI GdipGetFontCollectionFamilyList(GpFontCollection* collection, INT wanted,
                                                    GpFontFamily** families, INT* found) {
    return Answer([&] {
        const CollectionObject& own = Get<CollectionObject>(collection);
        Require(families && found && wanted >= 0);
        INT i = 0;
        for (; i < wanted && static_cast<size_t>(i) < own.families.size(); ++i)
            Give(&families[i], std::make_unique<FamilyObject>(own.families[static_cast<size_t>(i)]));
        *found = i;
    });
}

GpStatus WINGDIPAPI GdipCreateFont(const GpFontFamily* family, REAL size, INT style, Unit unit,
                                   GpFont** font) {
    return Answer([&] {
        const FamilyObject& own = Get<FamilyObject>(family);
        Require(font && size > 0 && std::isfinite(size));
        Require(unit >= UnitWorld && unit <= UnitMillimeter && unit != UnitDisplay);
        Require(Typeface::Find(own.name, style), FontStyleNotFound);
        auto made = std::make_unique<FontObject>();
        made->family = own.name;
        made->size = size;
        made->style = style;
        made->unit = unit;
        Give(font, std::move(made));
    });
}

GpStatus WINGDIPAPI GdipCloneFont(GpFont* font, GpFont** clone) {
    return Answer([&] { Give(clone, std::make_unique<FontObject>(Get<FontObject>(font))); });
}

GpStatus WINGDIPAPI GdipDeleteFont(GpFont* font) {
    return Answer([&] { Destroy<FontObject>(font); });
}

GpStatus WINGDIPAPI GdipGetFontSize(GpFont* font, REAL* size) {
    return Answer([&] { Out(size) = Get<FontObject>(font).size; });
}

GpStatus WINGDIPAPI GdipGetFontStyle(GpFont* font, INT* style) {
    return Answer([&] { Out(style) = Get<FontObject>(font).style; });
}

GpStatus WINGDIPAPI GdipGetFontUnit(GpFont* font, Unit* unit) {
    return Answer([&] { Out(unit) = Get<FontObject>(font).unit; });
}

GpStatus WINGDIPAPI GdipGetFamily(GpFont* font, GpFontFamily** family) {
    return Answer([&] { Give(family, std::make_unique<FamilyObject>(Get<FontObject>(font).family)); });
}

}  // extern "C"
}  // namespace Gdiplus::DllExports
