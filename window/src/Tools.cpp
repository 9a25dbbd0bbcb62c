// Scale, monitors, sizes of texts, colours as texts.
#include "window/Tools.h"

#include <algorithm>
#include <cwchar>

namespace Lumo {

namespace {

CRect WorkAreaOfMonitor(HMONITOR monitor) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(monitor, &info);
    return info.rcWork;
}

int ScreenDpi() {
    const HDC screen = ::GetDC(nullptr);
    const int dpi = ::GetDeviceCaps(screen, LOGPIXELSY);
    ::ReleaseDC(nullptr, screen);
    return dpi;
}

// The value of a digit, or nothing.
std::optional<int> HexDigit(WCHAR ch) {
    if (ch >= L'0' && ch <= L'9')
        return ch - L'0';
    const int letter = ch | 0x20;
    if (letter >= L'a' && letter <= L'f')
        return letter - L'a' + 10;
    return {};
}

std::optional<COLORREF> HexColor(const CString& digits) {
    const int count = digits.GetLength();
    if (count != 3 && count != 6)
        return {};
    int parts[3];
    for (int i = 0; i < 3; ++i) {
        const auto high = HexDigit(digits[i * count / 3]);
        const auto low = HexDigit(digits[(i + 1) * count / 3 - 1]);
        if (!high || !low)
            return {};
        parts[i] = *high * 16 + *low;
    }
    return RGB(parts[0], parts[1], parts[2]);
}

// The number up to the mark that ends it, which is stepped over.
std::optional<int> NextPart(LPCWSTR& at, WCHAR mark) {
    const auto skip = [&] {
        while (*at == L' ' || *at == L'\t')
            ++at;
    };
    skip();
    if (*at < L'0' || *at > L'9')
        return {};
    int number = 0;
    for (; *at >= L'0' && *at <= L'9'; ++at) {
        number = number * 10 + (*at - L'0');
        if (number > 255)
            return {};
    }
    skip();
    if (*at != mark)
        return {};
    if (mark)
        ++at;
    return number;
}

BOOL CALLBACK AddWorkArea(HMONITOR monitor, HDC, LPRECT, LPARAM list) {
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    if (::GetMonitorInfo(monitor, &info)) {
        auto& found = *reinterpret_cast<std::vector<CRect>*>(list);
        found.insert(info.dwFlags & MONITORINFOF_PRIMARY ? found.begin() : found.end(), info.rcWork);
    }
    return TRUE;
}

}  // namespace

int Tools::DpiOf(HWND window) {
    // Not in every version of the system that the library runs on.
    using Question = UINT(WINAPI*)(HWND);
    static const auto ask = reinterpret_cast<Question>(
        reinterpret_cast<void*>(::GetProcAddress(::GetModuleHandle(L"user32.dll"), "GetDpiForWindow")));
    const UINT dpi = window && ask ? ask(window) : 0;
    return dpi ? static_cast<int>(dpi) : ScreenDpi();
}

std::vector<CRect> Tools::WorkAreas() {
    std::vector<CRect> areas;
    ::EnumDisplayMonitors(nullptr, nullptr, &AddWorkArea, reinterpret_cast<LPARAM>(&areas));
    return areas;
}

CRect Tools::WorkAreaOf(const CRect& rect) {
    return WorkAreaOfMonitor(::MonitorFromRect(rect, MONITOR_DEFAULTTONEAREST));
}

CRect Tools::KeepOnScreen(const CRect& rect) {
    const CRect area = WorkAreaOf(rect);
    const CSize size((std::min)(rect.Width(), area.Width()), (std::min)(rect.Height(), area.Height()));
    const CPoint at(std::clamp(rect.left, area.left, area.right - size.cx),
                    std::clamp(rect.top, area.top, area.bottom - size.cy));
    return CRect(at, size);
}

CSize Tools::TextExtent(const CString& text, HFONT font, int width) {
    if (text.IsEmpty())
        return CSize(0, 0);
    CDC dc;
    dc.CreateCompatibleDC(nullptr);
    const HGDIOBJ old = ::SelectObject(dc, font ? font : ::GetStockObject(DEFAULT_GUI_FONT));
    CRect rect(0, 0, (std::max)(width, 0), 0);
    dc.DrawText(text, rect, DT_CALCRECT | DT_NOPREFIX | DT_EXPANDTABS | (width > 0 ? DT_WORDBREAK : 0));
    ::SelectObject(dc, old);
    return rect.Size();
}

CString Tools::ColorText(COLORREF color) {
    CString text;
    text.Format(L"#%02X%02X%02X", GetRValue(color), GetGValue(color), GetBValue(color));
    return text;
}

std::optional<COLORREF> Tools::ColorOf(const CString& text) {
    CString name = text;
    name.Trim();
    if (name.Left(1) == L"#")
        return HexColor(name.Mid(1));
    LPCWSTR at = name;
    const auto red = NextPart(at, L',');
    const auto green = red ? NextPart(at, L',') : red;
    const auto blue = green ? NextPart(at, L'\0') : green;
    if (!blue || at != name.GetString() + name.GetLength())
        return {};
    return RGB(*red, *green, *blue);
}

}  // namespace Lumo
