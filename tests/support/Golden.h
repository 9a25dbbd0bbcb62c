// Pictures of a known state that somebody has looked at, in tests/<folder>/golden, and what is painted now.
//
// A source that uses this is named in tests/CMakeLists.txt, which tells it where the pictures are.
// scripts/renew-golden.sh takes over the pictures that differ, after a look at them.
#pragma once

#include <afxwin.h>
#include <objidl.h>
#include <gdiplus.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

/// Pixels as 0xRRGGBB, row by row from the top.
struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<DWORD> rgb;
    bool operator==(const Pixels&) const = default;
};

/// What a window shows.
inline Pixels PixelsOf(CWnd& window) {
    CRect client;
    window.GetClientRect(client);
    Pixels pixels{client.right, client.bottom, {}};
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = client.right;
    info.bmiHeader.biHeight = -client.bottom;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    CClientDC from(&window);
    const HDC to = ::CreateCompatibleDC(from);
    const HBITMAP bitmap = ::CreateDIBSection(to, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = ::SelectObject(to, bitmap);
    ::BitBlt(to, 0, 0, client.right, client.bottom, from, 0, 0, SRCCOPY);
    ::GdiFlush();
    const auto* first = static_cast<const DWORD*>(bits);
    pixels.rgb.assign(first, first + static_cast<size_t>(client.right) * client.bottom);
    for (DWORD& pixel : pixels.rgb)
        pixel &= 0xFFFFFF;
    ::SelectObject(to, before);
    ::DeleteObject(bitmap);
    ::DeleteDC(to);
    return pixels;
}

/// How many pixels differ by more than rounding; all when the sizes do. `where` gets the first of them.
inline size_t CountDiffering(const Pixels& a, const Pixels& b, CPoint* where = nullptr) {
    constexpr int kRounding = 24;
    if (a.width != b.width || a.height != b.height)
        return std::max(a.rgb.size(), b.rgb.size());
    size_t count = 0;
    for (size_t i = 0; i < a.rgb.size(); ++i) {
        bool same = true;
        for (int shift : {0, 8, 16})
            same &= std::abs(static_cast<int>(a.rgb[i] >> shift & 0xFF) -
                             static_cast<int>(b.rgb[i] >> shift & 0xFF)) <= kRounding;
        if (!same && count++ == 0 && where)
            *where = CPoint(static_cast<int>(i) % a.width, static_cast<int>(i) / a.width);
    }
    return count;
}

namespace golden {

inline Pixels Load(const std::filesystem::path& path) {
    Gdiplus::Bitmap bitmap(path.wstring().c_str());
    Pixels pixels{static_cast<int>(bitmap.GetWidth()), static_cast<int>(bitmap.GetHeight()), {}};
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            Gdiplus::Color color;
            bitmap.GetPixel(x, y, &color);
            pixels.rgb.push_back(color.GetValue() & 0xFFFFFF);
        }
    }
    return pixels;
}

inline void Save(const Pixels& pixels, const std::filesystem::path& path) {
    constexpr CLSID kPng = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};
    std::filesystem::create_directories(path.parent_path());
    Gdiplus::Bitmap bitmap(pixels.width, pixels.height, PixelFormat24bppRGB);
    for (int i = 0; i < static_cast<int>(pixels.rgb.size()); ++i)
        bitmap.SetPixel(i % pixels.width, i / pixels.width, Gdiplus::Color(0xFF000000 | pixels.rgb[i]));
    bitmap.Save(path.wstring().c_str(), &kPng, nullptr);
}

}  // namespace golden

/// Compares with the picture `name` of a folder of tests. `letters` is how many pixels may differ for the
/// sake of the letters in it, which no two versions of a font draw alike. Pictures without letters are
/// compared to the pixel. What differs is left in the build folder.
inline void ExpectGolden(const Pixels& seen, const std::string& folder, const std::string& name,
                         size_t letters = 0) {
    const std::filesystem::path kept = std::string(TESSEL_TESTS) + "/" + folder + "/golden/" + name + ".png";
    const std::filesystem::path now = std::string(TESSEL_SEEN) + "/" + folder + "/" + name + ".png";
    std::filesystem::remove(now);
    CPoint where(0, 0);
    const size_t differing = CountDiffering(seen, golden::Load(kept), &where);
    if (differing <= letters)
        return;
    golden::Save(seen, now);
    ADD_FAILURE() << differing << " pixels differ from " << kept << ", the first at " << where.x << ", "
                  << where.y << "; look at " << now
                  << " and take it over with scripts/renew-golden.sh if it is right";
}
