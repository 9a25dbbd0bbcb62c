#include "studio/app/PageTabs.h"

namespace Studio {

using Lumo::TabNotify;

bool PageTabs::Create(CWnd& frame) {
    if (!m_tabs.Create(WS_VISIBLE, CRect(0, 0, 0, 0), &frame, kId))
        return false;
    // The current tab is one piece with the black page above it.
    Lumo::TabColors colors = Lumo::TabColorsOf(Lumo::TabTheme::kLight);
    colors.current = RGB(0, 0, 0);
    colors.currentText = RGB(0xFF, 0xFF, 0xFF);
    m_tabs.SetStyle(std::make_unique<Lumo::ClientAreaTabStyle>(colors));
    m_tabs.SetSide(Lumo::TabSide::kBelow);
    SetLocked(false);
    return true;
}

void PageTabs::SetLocked(bool locked) {
    m_locked = locked;
    m_tabs.EndRename(true);
    m_tabs.SetReorder(!locked);
    m_tabs.SetRename(!locked);
    m_tabs.SetAddButton(!locked);
}

void PageTabs::Refresh(StudioDocument& document) {
    const auto& pages = document.Pages();
    const int count = static_cast<int>(pages.size());
    while (m_tabs.GetTabCount() > count)
        m_tabs.RemoveTab(m_tabs.GetTabCount() - 1);
    while (m_tabs.GetTabCount() < count)
        m_tabs.AddTab(L"");
    for (int i = 0; i < count; ++i) {
        if (m_tabs.GetTabText(i) != pages[i].name)
            m_tabs.SetTabText(i, pages[i].name);
    }
    m_tabs.SetCurrent(document.CurrentIndex());
}

LRESULT PageTabs::Handle(const TabNotify& notify, StudioDocument& document,
                         const std::function<void()>& before, const std::function<void(CPoint)>& menu) {
    if (notify.hdr.code != Lumo::TABN_ENDRENAME && notify.hdr.code != Lumo::TABN_RENAME)
        before();
    switch (notify.hdr.code) {
        case Lumo::TABN_CHANGED:
            document.ShowPage(notify.tab);
            break;
        case Lumo::TABN_MOVE:
            // The document moves the page, and the tabs follow it.
            document.MovePage(notify.tab, notify.target);
            return 1;
        case Lumo::TABN_RENAME:
            return !Rename(notify, document);
        case Lumo::TABN_ADD:
            document.AddPage(document.CurrentIndex());
            break;
        case Lumo::TABN_MENU:
            if (!m_locked)
                menu(notify.point);
            break;
        case Lumo::TABN_ENDRENAME:
        case Lumo::TABN_DRAGEND:
            GiveFocusTo(document.CurrentPage());
            break;
        default:
            break;
    }
    return 0;
}

// Unless the user has gone on to another part of the window.
void PageTabs::GiveFocusTo(StudioCanvas* page) const {
    const HWND focus = ::GetFocus();
    if (page && (!focus || focus == m_tabs.m_hWnd || focus == m_tabs.GetParent()->m_hWnd))
        page->SetFocus();
}

bool PageTabs::Rename(const TabNotify& notify, StudioDocument& document) {
    if (document.RenamePage(notify.tab, notify.text))
        return true;
    CString reason;
    reason.Format(GetText(Text::kErrorPageName), notify.text);
    AfxMessageBox(reason, MB_OK | MB_ICONWARNING);
    return false;
}

}  // namespace Studio
