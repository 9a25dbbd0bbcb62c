// An embedded item of another program while Studio holds it.
#pragma once

#include "studio/editing/ComPtr.h"
#include "studio/editing/EmbeddedContents.h"

#include <afxole.h>

#include <functional>

namespace Studio {

/// The class library's item; this one can be stored in bytes and made of them, shows its picture, and tells
/// when the other program saves it. Needs OLE on its thread (`AfxOleInit`).
class EmbeddedItem : public COleClientItem {
public:
    EmbeddedItem();
    /// Closes the other program's window; what is not saved there is lost.
    ~EmbeddedItem() override;

    /// Makes the item of the data that `Capture` stored. False leaves it empty; `GetLastStatus` says why.
    bool LoadData(const std::vector<BYTE>& data);
    /// What the item is now. Never null: an item that cannot be stored, or draws nothing, leaves that part
    /// empty.
    EmbeddedContentsPtr Capture();
    /// Natural size in page units; one that suits a page when the item has none.
    Gdiplus::SizeF NaturalSize();
    /// Opens the item's window in the other program. False when that fails; `GetLastStatus` says why.
    bool Open(CWnd& owner);

    /// Gives the item its container; `onSave` is called when the other program wants the item to be saved.
    void Watch(std::function<void()> onSave);

    void Release(OLECLOSE dwCloseOption = OLECLOSE_NOSAVE) override;

private:
    class Site;

    CString ClassName();
    std::vector<BYTE> StoredData();
    std::vector<BYTE> DrawnPicture();

    std::function<void()> m_onSave;
    Site* m_site = nullptr;
    ComPtr<ILockBytes> m_bytes;
    ComPtr<IStorage> m_storage;
};

/// Why a call failed: the system's words for its status, or the number.
CString StatusText(SCODE status);

}  // namespace Studio
