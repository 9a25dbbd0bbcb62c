#include "core/internal/CaptionCache.h"

#include <functional>
#include <string_view>

#include "core/internal/GraphicsStateScope.h"

namespace Lumo {

namespace {

constexpr wchar_t kLastResort[] = L"Arial";
constexpr size_t kMaxFonts = 256;
// More than the objects of a large page, so that repainting it in order does not measure every caption anew.
constexpr size_t kMaxSizes = 32768;

size_t Mix(size_t seed, size_t value) {
    return seed ^ (value + 0x9E3779B9u + (seed << 6) + (seed >> 2));
}

size_t HashOf(const CString& text) {
    return std::hash<std::wstring_view>()(
        {static_cast<LPCWSTR>(text), static_cast<size_t>(text.GetLength())});
}

std::unique_ptr<Gdiplus::Font> MakeFont(const Gdiplus::FontFamily& family, const CUIShapeFormatText& text) {
    auto font = std::make_unique<Gdiplus::Font>(&family, text.m_fFontSize, text.m_nFontStyle, text.GetUnit());
    if (font->GetLastStatus() != Gdiplus::Ok)
        font.reset();
    return font;
}

std::unique_ptr<Gdiplus::Font> MakeFont(const CUIShapeFormatText& text) {
    if (text.m_nUnit < Gdiplus::UnitWorld || text.m_nUnit > Gdiplus::UnitMillimeter)
        return nullptr;
    const Gdiplus::FontFamily family(text.m_strFontName);
    if (family.IsAvailable())
        return MakeFont(family, text);
    if (const Gdiplus::FontFamily* generic = Gdiplus::FontFamily::GenericSansSerif())
        return MakeFont(*generic, text);
    // Systems without the fonts behind the generic family still have a replacement for this one.
    return MakeFont(Gdiplus::FontFamily(kLastResort), text);
}

}  // namespace

bool CaptionCache::FontKey::operator==(const FontKey& other) const {
    return size == other.size && style == other.style && unit == other.unit && family == other.family;
}

bool CaptionCache::MeasureKey::operator==(const MeasureKey& other) const {
    return font == other.font && hint == other.hint && pageUnit == other.pageUnit &&
           pageScale == other.pageScale && resolution == other.resolution && text == other.text;
}

size_t CaptionCache::Hash::operator()(const FontKey& key) const {
    return Mix(Mix(HashOf(key.family), std::hash<float>()(key.size)), key.style * 31u + key.unit);
}

size_t CaptionCache::Hash::operator()(const MeasureKey& key) const {
    return Mix(HashOf(key.text), std::hash<const void*>()(key.font));
}

CaptionCache& CaptionCache::Get() {
    static CaptionCache cache;
    return cache;
}

const Gdiplus::Font* CaptionCache::FontOf(const CUIShapeFormatText& text) {
    const FontKey key{text.m_strFontName, text.m_fFontSize, text.m_nFontStyle, text.m_nUnit};
    if (const auto found = m_fonts.find(key); found != m_fonts.end())
        return found->second.get();
    if (m_fonts.size() >= kMaxFonts)
        Clear();
    return m_fonts.emplace(key, MakeFont(text)).first->second.get();
}

const Gdiplus::StringFormat* CaptionCache::FormatOf(Gdiplus::StringAlignment alignment) {
    auto& format = m_formats[alignment];
    if (format == nullptr) {
        format = std::make_unique<Gdiplus::StringFormat>(Gdiplus::StringFormatFlagsNoClip);
        // The box that a caption is laid out in is as high as its text, so that the line alignment moves
        // nothing; but for any other than the first the text is measured once more at every drawing.
        format->SetAlignment(alignment);
    }
    return format.get();
}

Gdiplus::SizeF CaptionCache::Measure(Gdiplus::Graphics& graphics, const CUIShapeFormatText& text,
                                     const Gdiplus::Font& font) {
    const MeasureKey key{text.m_strText,          &font,
                         text.m_nRenderHint,      graphics.GetPageUnit(),
                         graphics.GetPageScale(), graphics.GetDpiX()};
    if (const auto found = m_sizes.find(key); found != m_sizes.end())
        return found->second;
    GraphicsStateScope state(graphics);
    graphics.SetTextRenderingHint(text.GetRenderHint());
    Gdiplus::RectF box;
    graphics.MeasureString(text.m_strText, text.m_strText.GetLength(), &font, Gdiplus::PointF(),
                           FormatOf(text.GetAlignment()), &box);
    const Gdiplus::SizeF size(box.Width, box.Height);
    if (m_sizes.size() >= kMaxSizes)
        m_sizes.clear();
    m_sizes.emplace(key, size);
    return size;
}

void CaptionCache::Clear() {
    m_sizes.clear();
    m_fonts.clear();
    for (auto& format : m_formats)
        format.reset();
}

void ClearCaptionCache() {
    CaptionCache::Get().Clear();
}

}  // namespace Lumo
