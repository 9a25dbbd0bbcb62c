// The place of a frame in a settings file: left, top, right, bottom of the window that is not maximised, and
// whether it is, in one value, so that the file never has a half of it.
#include "window/Tools.h"

#include <Ini.h>

#include <cwchar>

namespace Lumo {

namespace {

constexpr WCHAR kKey[] = L"Placement";
constexpr LONG kFarthest = 100000;  // pixels; what is beyond is no place

// The system keeps places from the corner of the work area on, but those of tool windows from the monitor's.
CPoint OriginOf(HWND window, const CRect& place) {
    if (::GetWindowLong(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW)
        return CPoint(0, 0);
    MONITORINFO info = {};
    info.cbSize = sizeof info;
    ::GetMonitorInfo(::MonitorFromRect(place, MONITOR_DEFAULTTONEAREST), &info);
    return CPoint(info.rcWork.left - info.rcMonitor.left, info.rcWork.top - info.rcMonitor.top);
}

bool IsPlace(const CRect& rect) {
    for (LONG at : {rect.left, rect.top, rect.right, rect.bottom}) {
        if (at < -kFarthest || at > kFarthest)
            return false;
    }
    return rect.Width() > 0 && rect.Height() > 0;
}

bool IsOrdinary(int show) {
    return show == SW_SHOWNORMAL || show == SW_SHOW || show == SW_SHOWDEFAULT;
}

}  // namespace

bool Tools::SavePlacement(HWND window, CIni& ini, const CString& section) {
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    if (!::GetWindowPlacement(window, &placement))
        return false;
    const CRect place = placement.rcNormalPosition;
    const bool minimised = placement.showCmd == SW_SHOWMINIMIZED;
    const bool maximised =
        minimised ? (placement.flags & WPF_RESTORETOMAXIMIZED) != 0 : placement.showCmd == SW_SHOWMAXIMIZED;
    CString text;
    text.Format(L"%ld,%ld,%ld,%ld,%d", place.left, place.top, place.right, place.bottom, maximised ? 1 : 0);
    return ini.SetString(section, kKey, text) != FALSE;
}

int Tools::LoadPlacement(HWND window, const CIni& ini, const CString& section, int show) {
    const CString text = ini.GetString(section, kKey);
    CRect place;
    int maximised = 0;
    WCHAR more = 0;
    WINDOWPLACEMENT placement = {};
    placement.length = sizeof placement;
    if (std::swscanf(text, L"%ld,%ld,%ld,%ld,%d%lc", &place.left, &place.top, &place.right, &place.bottom,
                     &maximised, &more) != 5 ||
        !IsPlace(place) || !::GetWindowPlacement(window, &placement))
        return show;
    const CPoint origin = OriginOf(window, place);
    placement.rcNormalPosition = KeepOnScreen(place + origin) - origin;
    placement.flags = 0;
    if (!::IsWindowVisible(window))
        placement.showCmd = SW_HIDE;
    ::SetWindowPlacement(window, &placement);
    return maximised == 1 && IsOrdinary(show) ? SW_SHOWMAXIMIZED : show;
}

}  // namespace Lumo
