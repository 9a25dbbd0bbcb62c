#include "studio/editing/EmbeddedItem.h"

#include "studio/document/ObjectArchive.h"
#include "studio/document/PageImage.h"
#include "studio/editing/Pixels.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstring>

namespace Studio {

using Gdiplus::SizeF;

namespace {

constexpr float kPixelsPerHimetric = 96.0f / 2540.0f;
constexpr float kSmallestSide = 16.0f;
const SizeF kUsualSize(240.0f, 160.0f);

constexpr DWORD kStorageMode = STGM_READWRITE | STGM_SHARE_EXCLUSIVE;

ComPtr<ILockBytes> BytesOn(HGLOBAL memory) {
    ILockBytes* bytes = nullptr;
    ::CreateILockBytesOnHGlobal(memory, TRUE, &bytes);
    return ComPtr<ILockBytes>(bytes);
}

std::vector<BYTE> BytesOf(ILockBytes& bytes) {
    HGLOBAL memory = nullptr;
    STATSTG state = {};
    if (FAILED(::GetHGlobalFromILockBytes(&bytes, &memory)) || FAILED(bytes.Stat(&state, STATFLAG_NONAME)))
        return {};
    const auto* data = static_cast<const BYTE*>(::GlobalLock(memory));
    if (!data)
        return {};
    const size_t size = std::min<size_t>(::GlobalSize(memory), state.cbSize.QuadPart);
    std::vector<BYTE> copy(data, data + size);
    ::GlobalUnlock(memory);
    return copy;
}

// A bitmap that is drawn on as on a screen, white at first.
class Sheet {
public:
    explicit Sheet(SIZE size) {
        const BITMAPINFO info = PixelInfo(size.cx, size.cy);
        void* bits = nullptr;
        m_bitmap = ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_dc.CreateCompatibleDC(nullptr);
        m_before = ::SelectObject(m_dc.m_hDC, m_bitmap);
        ::PatBlt(m_dc.m_hDC, 0, 0, size.cx, size.cy, WHITENESS);
    }
    ~Sheet() {
        Leave();
        ::DeleteObject(m_bitmap);
    }
    Sheet(const Sheet&) = delete;
    Sheet& operator=(const Sheet&) = delete;

    CDC& Dc() { return m_dc; }
    std::vector<BYTE> Png() {
        Leave();
        Gdiplus::Bitmap picture(m_bitmap, nullptr);
        return picture.GetLastStatus() == Gdiplus::Ok ? EncodePng(picture) : std::vector<BYTE>();
    }

private:
    void Leave() {
        if (m_before)
            ::SelectObject(m_dc.m_hDC, m_before);
        m_before = nullptr;
    }

    CDC m_dc;
    HBITMAP m_bitmap;
    HGDIOBJ m_before = nullptr;
};

}  // namespace

// What the other program sees of its container. It outlives the item while the program holds it.
class EmbeddedItem::Site : public IOleClientSite {
public:
    explicit Site(EmbeddedItem& item) : m_item(&item) {}
    virtual ~Site() = default;

    void Forget() { m_item = nullptr; }

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** found) override {
        const bool known = ::IsEqualIID(id, IID_IUnknown) || ::IsEqualIID(id, IID_IOleClientSite);
        *found = known ? this : nullptr;
        if (known)
            AddRef();
        return known ? S_OK : E_NOINTERFACE;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++m_count; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG count = --m_count;
        if (count == 0)
            delete this;
        return count;
    }

    HRESULT STDMETHODCALLTYPE SaveObject() override {
        if (!m_item)
            return E_FAIL;
        m_item->m_onSave();
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetMoniker(DWORD, DWORD, IMoniker** moniker) override {
        *moniker = nullptr;
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE GetContainer(IOleContainer** container) override {
        *container = nullptr;
        return E_NOINTERFACE;
    }
    HRESULT STDMETHODCALLTYPE ShowObject() override { return S_OK; }
    HRESULT STDMETHODCALLTYPE OnShowWindow(BOOL) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE RequestNewObjectLayout() override { return E_NOTIMPL; }

private:
    std::atomic<ULONG> m_count = 1;
    EmbeddedItem* m_item;
};

EmbeddedItem::EmbeddedItem() = default;

EmbeddedItem::~EmbeddedItem() {
    EmbeddedItem::Release(OLECLOSE_NOSAVE);
}

void EmbeddedItem::Release(OLECLOSE dwCloseOption) {
    if (m_site) {
        if (m_lpObject && dwCloseOption == OLECLOSE_NOSAVE)
            m_site->Forget();
        COleClientItem::Close(dwCloseOption);
        if (m_lpObject)
            m_lpObject->SetClientSite(nullptr);
        m_site->Forget();
        m_site->Release();
        m_site = nullptr;
    }
    COleClientItem::Release(OLECLOSE_NOSAVE);
    m_storage.reset();
    m_bytes.reset();
}

bool EmbeddedItem::LoadData(const std::vector<BYTE>& data) {
    Release(OLECLOSE_NOSAVE);
    HGLOBAL memory = data.empty() ? nullptr : ::GlobalAlloc(GMEM_MOVEABLE, data.size());
    if (!memory) {
        m_scLast = data.empty() ? OLE_E_BLANK : E_OUTOFMEMORY;
        return false;
    }
    std::memcpy(::GlobalLock(memory), data.data(), data.size());
    ::GlobalUnlock(memory);
    m_bytes = BytesOn(memory);
    IStorage* storage = nullptr;
    m_scLast = m_bytes
                   ? ::StgOpenStorageOnILockBytes(m_bytes.get(), nullptr, kStorageMode, nullptr, 0, &storage)
                   : E_OUTOFMEMORY;
    m_storage.reset(storage);
    void* object = nullptr;
    if (SUCCEEDED(m_scLast))
        m_scLast = ::OleLoad(storage, IID_IOleObject, nullptr, &object);
    if (FAILED(m_scLast)) {
        const SCODE reason = m_scLast;
        Release(OLECLOSE_NOSAVE);
        m_scLast = reason;
        return false;
    }
    m_lpObject = static_cast<LPOLEOBJECT>(object);
    m_nItemState = loadedState;
    ::OleSetContainedObject(m_lpObject, TRUE);
    return true;
}

void EmbeddedItem::Watch(std::function<void()> onSave) {
    m_onSave = std::move(onSave);
    if (m_site || !m_lpObject)
        return;
    m_site = new Site(*this);
    m_lpObject->SetClientSite(m_site);
}

bool EmbeddedItem::Open(CWnd& owner) {
    return DoVerb(OLEIVERB_PRIMARY, &owner) != FALSE;
}

EmbeddedContentsPtr EmbeddedItem::Capture() {
    return std::make_shared<const EmbeddedContents>(ClassName(), StoredData(), DrawnPicture());
}

CString EmbeddedItem::ClassName() {
    LPOLESTR text = nullptr;
    if (!m_lpObject || FAILED(m_lpObject->GetUserType(USERCLASSTYPE_FULL, &text)) || !text)
        return GetText(Text::kEmbeddedObject);
    CString name = text;
    ::CoTaskMemFree(text);
    return name;
}

std::vector<BYTE> EmbeddedItem::StoredData() {
    const auto persistent = Query<IPersistStorage>(m_lpObject, IID_IPersistStorage);
    const ComPtr<ILockBytes> bytes = persistent ? BytesOn(nullptr) : nullptr;
    IStorage* made = nullptr;
    if (!bytes || FAILED(::StgCreateDocfileOnILockBytes(bytes.get(), kStorageMode | STGM_CREATE, 0, &made)))
        return {};
    ComPtr<IStorage> storage(made);
    const bool saved = SUCCEEDED(::OleSave(persistent.get(), storage.get(), FALSE));
    persistent->SaveCompleted(nullptr);
    if (!saved || FAILED(storage->Commit(STGC_DEFAULT)))
        return {};
    storage.reset();
    bytes->Flush();
    return BytesOf(*bytes);
}

SizeF EmbeddedItem::NaturalSize() {
    SIZE extent = {};
    if (!GetExtent(&extent) || extent.cx <= 0 || extent.cy <= 0)
        return kUsualSize;
    const auto side = [](LONG himetric) {
        return std::clamp(std::round(static_cast<float>(himetric) * kPixelsPerHimetric), kSmallestSide,
                          static_cast<float>(EmbeddedContents::kLargestSide));
    };
    return SizeF(side(extent.cx), side(extent.cy));
}

std::vector<BYTE> EmbeddedItem::DrawnPicture() {
    if (!Query<IViewObject>(m_lpObject, IID_IViewObject))
        return {};
    UpdateLink();
    const SizeF natural = NaturalSize();
    const CRect area(0, 0, static_cast<int>(natural.Width), static_cast<int>(natural.Height));
    Sheet sheet(area.Size());
    if (!Draw(&sheet.Dc(), area))
        return {};
    try {
        return sheet.Png();
    } catch (const FileFault&) {
        return {};
    }
}

CString StatusText(SCODE status) {
    if (status == OLE_E_BLANK)
        return GetText(Text::kFaultBlank);
    WCHAR words[512] = L"";
    ::FormatMessage(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                    static_cast<DWORD>(status), 0, words, ARRAYSIZE(words), nullptr);
    CString text = words;
    if (text.Trim().IsEmpty())
        text.Format(GetText(Text::kFaultStatus), static_cast<unsigned>(status));
    return text;
}

}  // namespace Studio
