#include "ThreadState.h"

#include <vector>

namespace {

PermanentMap<CMenu> permanentMenus;

}  // namespace

IMPLEMENT_DYNCREATE(CMenu, CObject)

CMenu::CMenu() = default;

CMenu::~CMenu() {
    DestroyMenu();
}

CMenu* PASCAL CMenu::FromHandlePermanent(HMENU hMenu) {
    return hMenu ? permanentMenus.Find(hMenu) : nullptr;
}

CMenu* PASCAL CMenu::FromHandle(HMENU hMenu) {
    if (!hMenu)
        return nullptr;
    if (CMenu* owner = permanentMenus.Find(hMenu))
        return owner;
    return GetThreadState().menus.Get(hMenu, [] { return new CMenu; });
}

void PASCAL CMenu::DeleteTempMap() {
    GetThreadState().menus.Clear();
}

BOOL CMenu::Attach(HMENU hMenu) {
    if (!hMenu || m_hMenu)
        return FALSE;
    permanentMenus.Set(hMenu, this);
    m_hMenu = hMenu;
    return TRUE;
}

HMENU CMenu::Detach() {
    HMENU handle = m_hMenu;
    if (handle)
        permanentMenus.Remove(handle, this);
    m_hMenu = nullptr;
    return handle;
}

BOOL CMenu::DestroyMenu() {
    HMENU handle = Detach();
    return handle && ::DestroyMenu(handle);
}

BOOL CMenu::LoadMenu(LPCTSTR lpszResourceName) {
    return Attach(::LoadMenu(AfxFindResourceHandle(lpszResourceName, RT_MENU), lpszResourceName));
}

int CMenu::GetMenuString(UINT nIDItem, CString& rString, UINT nFlags) const {
    rString.Empty();
    int length = ::GetMenuString(m_hMenu, nIDItem, nullptr, 0, nFlags);
    if (length <= 0)
        return 0;
    std::vector<TCHAR> text(static_cast<size_t>(length) + 1);
    length = ::GetMenuString(m_hMenu, nIDItem, text.data(), length + 1, nFlags);
    rString = CString(text.data(), length);
    return length;
}
