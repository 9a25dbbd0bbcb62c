// Fonts of the system as outlines, from GDI.
#pragma once

#include "gdiplus/Platform.h"
#include "raster/GlyphCache.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace flat {

/// A family in a style, measured and outlined at one size; 1 is the height of an em.
class Typeface {
public:
    struct Glyph {
        double advance = 0;
        raster::Path outline;
    };

    /// Null when no font can be made. It stays until ReleaseTypefaces.
    static Typeface* Find(const std::wstring& family, int style);
    ~Typeface();

    const Glyph& Of(uint32_t character);
    uint32_t Number() const { return m_number; }
    double Ascent() const { return m_ascent; }
    double Descent() const { return m_descent; }
    double LineSpacing() const { return m_spacing; }
    UINT16 UnitsPerEm() const { return m_units; }

private:
    Typeface() = default;
    bool Open(const std::wstring& family, int style);
    Glyph Read(uint32_t character) const;

    HDC m_dc = nullptr;
    HFONT m_font = nullptr;
    HGDIOBJ m_before = nullptr;
    uint32_t m_number = 0;
    double m_ascent = 0, m_descent = 0, m_spacing = 0;
    UINT16 m_units = 2048;
    std::unordered_map<uint32_t, Glyph> m_glyphs;
};

/// Masks of all typefaces; one lock for them and for Typeface.
raster::GlyphCache& Masks();
class TypefaceLock {
public:
    TypefaceLock();
    ~TypefaceLock();
    TypefaceLock(const TypefaceLock&) = delete;
    TypefaceLock& operator=(const TypefaceLock&) = delete;
};

/// Names of the families whose fonts have outlines, in order.
std::vector<std::wstring> InstalledFamilies();
bool IsFamilyInstalled(const std::wstring& family);

/// Gives back what is kept of the system's fonts.
void ReleaseTypefaces();

}  // namespace flat
