#include "gdiplus/Typeface.h"
#include "gdiplus/Handles.h"

#include <map>
#include <mutex>
#include <set>

namespace flat {

namespace {

constexpr int kEm = 2048;              // pixels at which outlines are read
constexpr size_t kMostGlyphs = 20000;  // of one typeface
constexpr size_t kMaskBytes = size_t{8} << 20;

std::recursive_mutex& Mutex() {
    static std::recursive_mutex& mutex = *new std::recursive_mutex;
    return mutex;
}

using Key = std::pair<std::wstring, int>;
std::map<Key, std::unique_ptr<Typeface>>& All() {
    static auto& all = *new std::map<Key, std::unique_ptr<Typeface>>;
    return all;
}

uint32_t lastNumber = 0;

raster::Point FromFixed(const POINTFX& point) {
    const auto value = [](const FIXED& fixed) { return fixed.value + fixed.fract / 65536.0; };
    return {value(point.x) / kEm, -value(point.y) / kEm};
}

// Reads what GetGlyphOutlineW with GGO_NATIVE gives: polygons, each a start and curves.
raster::Path ReadOutline(const std::vector<BYTE>& data) {
    raster::Path path;
    size_t at = 0;
    while (at + sizeof(TTPOLYGONHEADER) <= data.size()) {
        TTPOLYGONHEADER header;
        memcpy(&header, &data[at], sizeof header);
        const size_t end = at + header.cb;
        if (header.cb < sizeof header || end > data.size())
            break;
        raster::Point last = FromFixed(header.pfxStart);
        path.MoveTo(last);
        at += sizeof header;
        while (at + 4 <= end) {
            WORD type, count;
            memcpy(&type, &data[at], 2);
            memcpy(&count, &data[at + 2], 2);
            at += 4;
            if (at + count * sizeof(POINTFX) > end)
                break;
            std::vector<raster::Point> points(count);
            for (WORD i = 0; i < count; ++i) {
                POINTFX point;
                memcpy(&point, &data[at + i * sizeof(POINTFX)], sizeof point);
                points[i] = FromFixed(point);
            }
            at += count * sizeof(POINTFX);
            for (size_t i = 0; i < points.size(); ++i) {
                if (type == TT_PRIM_QSPLINE && i + 1 < points.size()) {
                    // Between two points of control the curve goes through their middle.
                    const raster::Point control = points[i];
                    const raster::Point to =
                        i + 2 == points.size() ? points[i + 1] : (points[i] + points[i + 1]) * 0.5;
                    path.CurveTo(last + (control - last) * (2.0 / 3), to + (control - to) * (2.0 / 3), to);
                    last = to;
                    if (i + 2 == points.size())
                        break;
                } else if (type == TT_PRIM_CSPLINE && i + 2 < points.size()) {
                    path.CurveTo(points[i], points[i + 1], points[i + 2]);
                    last = points[i + 2];
                    i += 2;
                } else {
                    path.LineTo(points[i]);
                    last = points[i];
                }
            }
        }
        path.Close();
        at = end;
    }
    return path;
}

int CALLBACK AddFamily(const LOGFONTW* font, const TEXTMETRICW*, DWORD type, LPARAM out) {
    if ((type & TRUETYPE_FONTTYPE) && font->lfFaceName[0] != L'@')
        reinterpret_cast<std::set<std::wstring>*>(out)->insert(font->lfFaceName);
    return 1;
}

std::set<std::wstring> Families(const std::wstring& family) {
    std::set<std::wstring> names;
    LOGFONTW font{};
    font.lfCharSet = DEFAULT_CHARSET;
    family.copy(font.lfFaceName, LF_FACESIZE - 1);
    HDC dc = CreateCompatibleDC(nullptr);
    EnumFontFamiliesExW(dc, &font, AddFamily, reinterpret_cast<LPARAM>(&names), 0);
    DeleteDC(dc);
    return names;
}

}  // namespace

TypefaceLock::TypefaceLock() {
    Mutex().lock();
}
TypefaceLock::~TypefaceLock() {
    Mutex().unlock();
}

raster::GlyphCache& Masks() {
    static raster::GlyphCache& masks = *new raster::GlyphCache(kMaskBytes);
    return masks;
}

Typeface* Typeface::Find(const std::wstring& family, int style) {
    const TypefaceLock lock;
    std::unique_ptr<Typeface>& found = All()[{family, style & FontStyleBoldItalic}];
    if (!found) {
        std::unique_ptr<Typeface> face(new Typeface);
        if (face->Open(family, style))
            found = std::move(face);
    }
    return found.get();
}

bool Typeface::Open(const std::wstring& family, int style) {
    LOGFONTW font{};
    font.lfHeight = -kEm;
    font.lfWeight = style & FontStyleBold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = (style & FontStyleItalic) != 0;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfOutPrecision = OUT_TT_ONLY_PRECIS;
    family.copy(font.lfFaceName, LF_FACESIZE - 1);
    m_dc = CreateCompatibleDC(nullptr);
    m_font = CreateFontIndirectW(&font);
    if (!m_dc || !m_font)
        return false;
    m_before = SelectObject(m_dc, m_font);
    TEXTMETRICW metrics;
    if (!GetTextMetricsW(m_dc, &metrics))
        return false;
    m_ascent = double(metrics.tmAscent) / kEm;
    m_descent = double(metrics.tmDescent) / kEm;
    m_spacing = double(metrics.tmHeight + metrics.tmExternalLeading) / kEm;
    OUTLINETEXTMETRICW outline{};
    if (GetOutlineTextMetricsW(m_dc, sizeof outline, &outline) && outline.otmEMSquare > 0)
        m_units = static_cast<UINT16>(outline.otmEMSquare);
    m_number = ++lastNumber;
    return true;
}

Typeface::~Typeface() {
    if (m_before)
        SelectObject(m_dc, m_before);
    if (m_font)
        DeleteObject(m_font);
    if (m_dc)
        DeleteDC(m_dc);
}

Typeface::Glyph Typeface::Read(uint32_t character) const {
    Glyph glyph;
    const MAT2 identity{{0, 1}, {0, 0}, {0, 0}, {0, 1}};
    GLYPHMETRICS metrics{};
    const UINT how = GGO_NATIVE | GGO_UNHINTED;
    const DWORD size = GetGlyphOutlineW(m_dc, character, how, &metrics, 0, nullptr, &identity);
    if (size == GDI_ERROR)
        return glyph;
    glyph.advance = double(metrics.gmCellIncX) / kEm;
    if (size == 0)
        return glyph;
    std::vector<BYTE> data(size);
    if (GetGlyphOutlineW(m_dc, character, how, &metrics, size, data.data(), &identity) != GDI_ERROR)
        glyph.outline = ReadOutline(data);
    return glyph;
}

const Typeface::Glyph& Typeface::Of(uint32_t character) {
    if (const auto found = m_glyphs.find(character); found != m_glyphs.end())
        return found->second;
    if (m_glyphs.size() >= kMostGlyphs)
        m_glyphs.clear();
    return m_glyphs[character] = Read(character);
}

std::vector<std::wstring> InstalledFamilies() {
    const std::set<std::wstring> names = Families({});
    return {names.begin(), names.end()};
}

bool IsFamilyInstalled(const std::wstring& family) {
    return !family.empty() && family.size() < LF_FACESIZE && !Families(family).empty();
}

void ReleaseTypefaces() {
    const TypefaceLock lock;
    All().clear();
    Masks().Clear();
}

}  // namespace flat
