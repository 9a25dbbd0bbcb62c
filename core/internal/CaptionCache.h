// Fonts, string formats and text sizes that captions share.
#pragma once

#include <memory>
#include <unordered_map>

#include "appearance/UIShapeFormat.h"

namespace Lumo {

// One per process, used on the user-interface thread only. Bounded: a table that is full starts over.
class CaptionCache {
public:
    static CaptionCache& Get();

    // The font of a record; a missing family is replaced by a sans serif one. Null when there is no such
    // font. Valid until the next call.
    const Gdiplus::Font* FontOf(const CUIShapeFormatText& text);

    // The format with an alignment.
    const Gdiplus::StringFormat* FormatOf(Gdiplus::StringAlignment alignment);

    // Size of the text without a layout limit, in page units.
    Gdiplus::SizeF Measure(Gdiplus::Graphics& graphics, const CUIShapeFormatText& text,
                           const Gdiplus::Font& font);

    void Clear();

private:
    struct FontKey {
        CString family;
        float size;
        int style;
        int unit;
        bool operator==(const FontKey& other) const;
    };
    struct MeasureKey {
        CString text;
        const Gdiplus::Font* font;
        int hint;
        int pageUnit;
        float pageScale;
        float resolution;
        bool operator==(const MeasureKey& other) const;
    };
    struct Hash {
        size_t operator()(const FontKey& key) const;
        size_t operator()(const MeasureKey& key) const;
    };

    std::unordered_map<FontKey, std::unique_ptr<Gdiplus::Font>, Hash> m_fonts;
    std::unordered_map<MeasureKey, Gdiplus::SizeF, Hash> m_sizes;
    std::unique_ptr<Gdiplus::StringFormat> m_formats[3];
};

// Frees everything in the cache. Must be called before GDI+ is shut down.
void ClearCaptionCache();

}  // namespace Lumo
