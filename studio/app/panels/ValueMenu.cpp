#include "studio/app/panels/ValueMenu.h"

#include "studio/device/Device.h"

#include <cwctype>
#include <unordered_map>
#include <vector>

namespace Studio {

namespace {

/// The names in nested popup menus: "in", "in1", "in1.level".
class NameMenu {
public:
    explicit NameMenu(bool fronts) : m_fronts(fronts), m_root(::CreatePopupMenu()) {
        const Device& device = SampleDevice();
        for (int value = 0; value < device.Count(); ++value)
            Add(device.Info(value).name);
    }
    ~NameMenu() { ::DestroyMenu(m_root); }
    NameMenu(const NameMenu&) = delete;
    NameMenu& operator=(const NameMenu&) = delete;

    CString Ask(CWnd& owner, const CRect& field) const {
        TPMPARAMS beside = {sizeof beside, field};
        const int chosen =
            ::TrackPopupMenuEx(m_root, TPM_RETURNCMD | TPM_NONOTIFY | TPM_RIGHTALIGN | TPM_VERTICAL,
                               field.right, field.bottom, owner.m_hWnd, &beside);
        return chosen ? m_names[static_cast<size_t>(chosen - 1)] : CString();
    }

private:
    // A name's front parts end before its dots, and before the number of its first word.
    void Add(const CString& name) {
        HMENU menu = m_root;
        bool first = true;
        for (int i = 1; i < name.GetLength(); ++i) {
            const bool number = first && std::iswdigit(name[i]) && !std::iswdigit(name[i - 1]);
            const bool dot = name[i] == L'.';
            if (number || dot)
                menu = Submenu(menu, name.Left(i));
            first = first && !number && !dot;
        }
        Append(menu, name);
    }

    HMENU Submenu(HMENU parent, const CString& front) {
        HMENU& menu = m_submenus[front.GetString()];
        if (!menu) {
            menu = ::CreatePopupMenu();
            ::AppendMenu(parent, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), front);
            if (m_fronts) {
                Append(menu, front);
                ::AppendMenu(menu, MF_SEPARATOR, 0, nullptr);
            }
        }
        return menu;
    }

    void Append(HMENU menu, const CString& name) {
        m_names.push_back(name);
        ::AppendMenu(menu, MF_STRING, m_names.size(), name);
    }

    const bool m_fronts;
    HMENU m_root;
    std::vector<CString> m_names;
    std::unordered_map<std::wstring, HMENU> m_submenus;
};

}  // namespace

CString AskForValueName(CWnd& owner, const CRect& field, bool fronts) {
    return NameMenu(fronts).Ask(owner, field);
}

}  // namespace Studio
