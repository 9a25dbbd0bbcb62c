// The members that answer null when they are called on no object, as hosts of the class library do. A
// compiler may take `this` for an object wherever it sees these bodies, so they stand in the DLL and this
// file is compiled without that assumption; the package asks for the same in its hosts' files, where a call
// would otherwise prove its pointer.
#include <afxwin.h>

namespace {

template <class Object, class Handle>
Handle SafeHandle(const Object* object, Handle Object::*handle) {
    return object ? object->*handle : nullptr;
}

}  // namespace

CWnd::operator HWND() const {
    return SafeHandle(this, &CWnd::m_hWnd);
}

HWND CWnd::GetSafeHwnd() const {
    return SafeHandle(this, &CWnd::m_hWnd);
}

CMenu::operator HMENU() const {
    return SafeHandle(this, &CMenu::m_hMenu);
}

HMENU CMenu::GetSafeHmenu() const {
    return SafeHandle(this, &CMenu::m_hMenu);
}

CDC::operator HDC() const {
    return SafeHandle(this, &CDC::m_hDC);
}

HDC CDC::GetSafeHdc() const {
    return SafeHandle(this, &CDC::m_hDC);
}

CGdiObject::operator HGDIOBJ() const {
    return SafeHandle(this, &CGdiObject::m_hObject);
}

HGDIOBJ CGdiObject::GetSafeHandle() const {
    return SafeHandle(this, &CGdiObject::m_hObject);
}

CPen::operator HPEN() const {
    return static_cast<HPEN>(SafeHandle<CGdiObject>(this, &CGdiObject::m_hObject));
}

CBrush::operator HBRUSH() const {
    return static_cast<HBRUSH>(SafeHandle<CGdiObject>(this, &CGdiObject::m_hObject));
}

CFont::operator HFONT() const {
    return static_cast<HFONT>(SafeHandle<CGdiObject>(this, &CGdiObject::m_hObject));
}

CBitmap::operator HBITMAP() const {
    return static_cast<HBITMAP>(SafeHandle<CGdiObject>(this, &CGdiObject::m_hObject));
}

CRgn::operator HRGN() const {
    return static_cast<HRGN>(SafeHandle<CGdiObject>(this, &CGdiObject::m_hObject));
}
