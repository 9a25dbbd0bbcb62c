// Pictures of a known state that somebody has looked at, in tests/<folder>/golden, and what is painted now.
//
// support/golden/system.png shows how the system draws that the pictures were made on. Where letters and
// curves look the same every pixel of a picture has to be the same; elsewhere it may differ a little.
//
// A program that uses this is named in tests/CMakeLists.txt, which tells it where the pictures are.
// scripts/renew-golden.sh takes over the pictures that differ, after a look at them. Without the system's own
// picture (delete it to move all pictures to another system) it is made, too.
#pragma once

#include <afxwin.h>
#include <objidl.h>
#include <gdiplus.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

/// Pixels as 0xRRGGBB, row by row from the top.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<DWORD> rgb;
    bool operator==(const Pixels&) const = default;
};

/// The pixels of an area of a device context after `draw` has drawn on a copy of it.
template <class Draw>
Pixels PixelsOf(HDC from, const CRect& area, Draw draw) {
    Pixels pixels{area.Width(), area.Height(), {}};
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = pixels.width;
    info.bmiHeader.biHeight = -pixels.height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HDC to = ::CreateCompatibleDC(from);
    const HBITMAP bitmap = ::CreateDIBSection(to, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = ::SelectObject(to, bitmap);
    ::BitBlt(to, 0, 0, pixels.width, pixels.height, from, area.left, area.top, SRCCOPY);
    draw(to);
    ::GdiFlush();
    const auto* first = static_cast<const DWORD*>(bits);
    pixels.rgb.assign(first, first + static_cast<size_t>(pixels.width) * pixels.height);
    for (DWORD& pixel : pixels.rgb)
        pixel &= 0xFFFFFF;
    ::SelectObject(to, before);
    ::DeleteObject(bitmap);
    ::DeleteDC(to);
    return pixels;
}

/// What a window with its children shows, all of it or an area.
inline Pixels PixelsOf(CWnd& window, CRect area = CRect(0, 0, 0, 0)) {
    if (area.IsRectNull())
        window.GetClientRect(area);
    const HDC from = ::GetDCEx(window, nullptr, DCX_CACHE);
    Pixels pixels = PixelsOf(from, area, [](HDC) {});
    ::ReleaseDC(window, from);
    return pixels;
}

/// Pictures in rows of a width, one beside the other.
class Sheet {
public:
    explicit Sheet(int width) { m_all.width = width; }
    void Add(const Pixels& part) {
        constexpr int kGap = 3;
        if (m_at.x + part.width > m_all.width)
            m_at = CPoint(0, m_all.height + kGap);
        m_all.height = std::max<int>(m_all.height, m_at.y + part.height);
        m_all.rgb.resize(static_cast<size_t>(m_all.width) * m_all.height);
        for (int y = 0; y < part.height; ++y)
            std::copy_n(part.rgb.begin() + static_cast<ptrdiff_t>(y) * part.width, part.width,
                        m_all.rgb.begin() + static_cast<ptrdiff_t>(m_at.y + y) * m_all.width + m_at.x);
        m_at.x += part.width + kGap;
    }
    const Pixels& All() const { return m_all; }

private:
    Pixels m_all;
    CPoint m_at{0, 0};
};

/// How many pixels differ by more than `rounding`; all when the sizes do. `where` gets the first of them.
inline size_t CountDiffering(const Pixels& a, const Pixels& b, CPoint* where = nullptr, int rounding = 0) {
    if (a.width != b.width || a.height != b.height)
        return std::max(a.rgb.size(), b.rgb.size());
    size_t count = 0;
    for (size_t i = 0; i < a.rgb.size(); ++i) {
        bool same = true;
        for (int shift : {0, 8, 16})
            same &= std::abs(static_cast<int>(a.rgb[i] >> shift & 0xFF) -
                             static_cast<int>(b.rgb[i] >> shift & 0xFF)) <= rounding;
        if (!same && count++ == 0 && where)
            *where = CPoint(static_cast<int>(i) % a.width, static_cast<int>(i) / a.width);
    }
    return count;
}

namespace golden {

inline Pixels Load(const std::filesystem::path& path) {
    Gdiplus::Bitmap bitmap(path.wstring().c_str());
    Pixels pixels{static_cast<int>(bitmap.GetWidth()), static_cast<int>(bitmap.GetHeight()), {}};
    pixels.rgb.resize(static_cast<size_t>(pixels.width) * pixels.height);
    Gdiplus::BitmapData data{};
    data.Stride = pixels.width * 4, data.Scan0 = pixels.rgb.data();
    const Gdiplus::Rect all(0, 0, pixels.width, pixels.height);
    const UINT mode = Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeUserInputBuf;
    if (bitmap.LockBits(&all, mode, PixelFormat32bppARGB, &data) == Gdiplus::Ok)
        bitmap.UnlockBits(&data);
    for (DWORD& pixel : pixels.rgb)
        pixel &= 0xFFFFFF;
    return pixels;
}

inline void Save(const Pixels& pixels, const std::filesystem::path& path) {
    constexpr CLSID kPng = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    std::filesystem::create_directories(path.parent_path());
    auto* bytes = reinterpret_cast<BYTE*>(const_cast<DWORD*>(pixels.rgb.data()));
    Gdiplus::Bitmap bitmap(pixels.width, pixels.height, pixels.width * 4, PixelFormat32bppRGB, bytes);
    bitmap.Save(path.wstring().c_str(), &kPng, nullptr);
}

inline std::filesystem::path Kept(const std::string& folder, const std::string& name) {
    return std::string(TESSEL_TESTS) + "/" + folder + "/golden/" + name + ".png";
}

inline std::filesystem::path Seen(const std::string& folder, const std::string& name) {
    return std::string(TESSEL_SEEN) + "/" + folder + "/" + name + ".png";
}

/// Letters of Studio's fonts and curves, drawn through the platform.
inline Pixels DrawSystem() {
    return PixelsOf(nullptr, CRect(0, 0, 240, 90), [](HDC dc) {
        Gdiplus::Graphics g(dc);
        g.Clear(Gdiplus::Color(0xFF203040));
        const Gdiplus::FontFamily family(L"Segoe UI");
        const Gdiplus::SolidBrush brush{Gdiplus::Color(0xFFF0E0D0)};
        const LPCWSTR text = L"Rfg jWa 0123456789 \x2192";
        for (const int bold : {0, 1}) {
            g.SetTextRenderingHint(bold ? Gdiplus::TextRenderingHintAntiAlias
                                        : Gdiplus::TextRenderingHintSystemDefault);
            const Gdiplus::Font font(&family, 11.0f + 2.0f * bold, bold, Gdiplus::UnitPixel);
            g.DrawString(text, -1, &font, Gdiplus::PointF(3, 3.0f + 17.0f * bold), &brush);
            CFont own;
            own.CreateFont(-12, 0, 0, 0, bold ? FW_BOLD : FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, 0,
                           0, DEFAULT_QUALITY, 0, L"Segoe UI");
            const HGDIOBJ before = ::SelectObject(dc, own);
            ::SetTextColor(dc, RGB(200, 220, 90));
            ::SetBkMode(dc, TRANSPARENT);
            ::TextOut(dc, 3, 42 + 18 * bold, text, ::lstrlen(text));
            ::SelectObject(dc, before);
        }
        for (const auto mode : {Gdiplus::SmoothingModeNone, Gdiplus::SmoothingModeAntiAlias}) {
            const Gdiplus::Pen pen(Gdiplus::Color(0xFF80FFA0), 2.5f);
            const float y = mode == Gdiplus::SmoothingModeNone ? 4.0f : 46.0f;
            g.SetSmoothingMode(mode);
            g.DrawEllipse(&pen, 160.0f, y, 71.0f, 34.0f);
            g.DrawBezier(&pen, 165.0f, y, 240.0f, y + 30.0f, 150.0f, y + 12.0f, 228.0f, y + 38.0f);
        }
    });
}

/// Whether this system draws as the one did that the pictures were made on. In 32 bits the sums of a program
/// are rounded in another way.
inline bool IsSystem() {
    static const bool is = [] {
        const std::filesystem::path kept = Kept("support", "system");
        const Pixels here = DrawSystem();
        if (!std::filesystem::exists(kept))
            Save(here, Seen("support", "system"));
        return sizeof(void*) == 8 && Load(kept) == here;
    }();
    return is;
}

}  // namespace golden

/// Compares with the picture `name` of a folder of tests. On another system than that of the pictures one in
/// `letters` pixels may differ for the sake of letters, and the others by rounding. What differs is left in
/// the build folder.
inline void ExpectGolden(const Pixels& seen, const std::string& folder, const std::string& name,
                         size_t letters = 160) {
    const std::filesystem::path kept = golden::Kept(folder, name), now = golden::Seen(folder, name);
    std::filesystem::remove(now);
    const bool same = golden::IsSystem();
    CPoint where(0, 0);
    const size_t differing = CountDiffering(seen, golden::Load(kept), &where, same ? 0 : 24);
    if (differing <= (same ? 0 : seen.rgb.size() / letters))
        return;
    golden::Save(seen, now);
    ADD_FAILURE() << differing << " pixels differ from " << kept << ", the first at " << where.x << ", "
                  << where.y << "; look at " << now
                  << " and take it over with scripts/renew-golden.sh if it is right";
}

/// The same for a text, which every system writes alike.
inline void ExpectGoldenText(const std::string& seen, const std::string& folder, const std::string& name) {
    const auto kept = golden::Kept(folder, name).replace_extension("txt");
    const auto now = golden::Seen(folder, name).replace_extension("txt");
    std::filesystem::remove(now);
    std::ifstream file(kept, std::ios::binary);
    if (std::string(std::istreambuf_iterator<char>(file), {}) == seen)
        return;
    std::filesystem::create_directories(now.parent_path());
    std::ofstream(now, std::ios::binary) << seen;
    ADD_FAILURE() << now << " differs from " << kept;
}
