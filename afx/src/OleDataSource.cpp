#include <afxole.h>

#include "OleFormat.h"
#include "ThreadState.h"

#include <shlobj.h>

#include <atomic>
#include <new>
#include <vector>

namespace {

/// A copy of a medium of its own; the kinds that are shared are counted.
HRESULT CopyMedium(const STGMEDIUM& from, CLIPFORMAT format, STGMEDIUM& to) {
    to = {};
    to.tymed = from.tymed;
    switch (from.tymed) {
        case TYMED_ISTREAM:
            to.pstm = from.pstm;
            to.pstm->AddRef();
            return S_OK;
        case TYMED_ISTORAGE:
            to.pstg = from.pstg;
            to.pstg->AddRef();
            return S_OK;
        default:
            to.hGlobal = ::OleDuplicateData(from.hGlobal, format, 0);
            return to.hGlobal ? S_OK : E_OUTOFMEMORY;
    }
}

/// The data source whose interface is on the clipboard.
std::atomic<COleDataSource*> clipboardSource = nullptr;

}  // namespace

/// The platform's side of a data source; its count is the data source's.
class COleDataSource::DataObject final : public IDataObject {
public:
    explicit DataObject(COleDataSource& owner) : m_owner(owner) {}
    virtual ~DataObject() { Empty(); }

    void Empty() {
        for (Entry& entry : m_entries) {
            ::CoTaskMemFree(entry.format.ptd);
            ::ReleaseStgMedium(&entry.medium);
        }
        m_entries.clear();
    }
    /// Takes the medium; one cached before in the same format goes.
    void Cache(const FORMATETC& format, const STGMEDIUM& medium) {
        if (Entry* known = Find(format)) {
            ::ReleaseStgMedium(&known->medium);
            known->medium = medium;
            return;
        }
        m_entries.push_back({format, medium});
        m_entries.back().format.ptd = nullptr;
    }

    STDMETHODIMP QueryInterface(REFIID iid, void** object) override {
        if (!object)
            return E_POINTER;
        bool isKnown = iid == IID_IUnknown || iid == IID_IDataObject;
        *object = isKnown ? this : nullptr;
        if (isKnown)
            AddRef();
        return isKnown ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return m_owner.InternalAddRef(); }
    STDMETHODIMP_(ULONG) Release() override { return m_owner.InternalRelease(); }

    STDMETHODIMP GetData(FORMATETC* format, STGMEDIUM* medium) override {
        if (!format || !medium)
            return E_INVALIDARG;
        Entry* entry = Find(*format);
        return entry ? CopyMedium(entry->medium, format->cfFormat, *medium) : DV_E_FORMATETC;
    }
    STDMETHODIMP GetDataHere(FORMATETC* format, STGMEDIUM* medium) override {
        if (!format || !medium)
            return E_INVALIDARG;
        Entry* entry = Find(*format);
        if (!entry)
            return DV_E_FORMATETC;
        if (entry->medium.tymed != TYMED_HGLOBAL || medium->tymed != TYMED_HGLOBAL)
            return DV_E_TYMED;
        return CopyInto(entry->medium.hGlobal, medium->hGlobal);
    }
    STDMETHODIMP QueryGetData(FORMATETC* format) override {
        if (!format)
            return E_INVALIDARG;
        return Find(*format) ? S_OK : DV_E_FORMATETC;
    }
    STDMETHODIMP GetCanonicalFormatEtc(FORMATETC*, FORMATETC* out) override {
        if (!out)
            return E_INVALIDARG;
        out->ptd = nullptr;
        return DATA_S_SAMEFORMATETC;
    }
    STDMETHODIMP SetData(FORMATETC*, STGMEDIUM*, BOOL) override { return E_NOTIMPL; }
    STDMETHODIMP EnumFormatEtc(DWORD direction, IEnumFORMATETC** formats) override {
        if (!formats)
            return E_POINTER;
        *formats = nullptr;
        if (direction != DATADIR_GET)
            return E_NOTIMPL;
        std::vector<FORMATETC> offered;
        try {
            for (const Entry& entry : m_entries)
                offered.push_back(entry.format);
        } catch (const std::bad_alloc&) {  // the platform, which calls, knows no exceptions
            return E_OUTOFMEMORY;
        }
        return ::SHCreateStdEnumFmtEtc(static_cast<UINT>(offered.size()), offered.data(), formats);
    }
    STDMETHODIMP DAdvise(FORMATETC*, DWORD, IAdviseSink*, DWORD*) override {
        return OLE_E_ADVISENOTSUPPORTED;
    }
    STDMETHODIMP DUnadvise(DWORD) override { return OLE_E_ADVISENOTSUPPORTED; }
    STDMETHODIMP EnumDAdvise(IEnumSTATDATA**) override { return OLE_E_ADVISENOTSUPPORTED; }

private:
    struct Entry {
        FORMATETC format;
        STGMEDIUM medium;
    };

    Entry* Find(const FORMATETC& wanted) {
        for (Entry& entry : m_entries) {
            const FORMATETC& format = entry.format;
            if (format.cfFormat == wanted.cfFormat && (format.tymed & wanted.tymed) &&
                (format.dwAspect & wanted.dwAspect))
                return &entry;
        }
        return nullptr;
    }
    static HRESULT CopyInto(HGLOBAL from, HGLOBAL to) {
        SIZE_T size = ::GlobalSize(from);
        if (::GlobalSize(to) < size)
            return STG_E_MEDIUMFULL;
        void* target = ::GlobalLock(to);
        const void* source = ::GlobalLock(from);
        if (target && source)
            ::CopyMemory(target, source, size);
        ::GlobalUnlock(from);
        ::GlobalUnlock(to);
        return target && source ? S_OK : E_OUTOFMEMORY;
    }

    COleDataSource& m_owner;
    std::vector<Entry> m_entries;
};

IMPLEMENT_DYNAMIC(COleDataSource, CCmdTarget)

COleDataSource::COleDataSource() : m_pDataObject(new DataObject(*this)) {}

COleDataSource::~COleDataSource() {
    COleDataSource* self = this;
    clipboardSource.compare_exchange_strong(self, nullptr);
    delete m_pDataObject;
}

void COleDataSource::Empty() {
    m_pDataObject->Empty();
}

void COleDataSource::CacheGlobalData(CLIPFORMAT cfFormat, HGLOBAL hGlobal, LPFORMATETC lpFormatEtc) {
    STGMEDIUM medium{};
    medium.tymed = TYMED_HGLOBAL;
    medium.hGlobal = hGlobal;
    if (hGlobal)
        m_pDataObject->Cache(FormatFor(cfFormat, lpFormatEtc, TYMED_HGLOBAL), medium);
}

void COleDataSource::CacheData(CLIPFORMAT cfFormat, LPSTGMEDIUM lpStgMedium, LPFORMATETC lpFormatEtc) {
    FORMATETC format = FormatFor(cfFormat, lpFormatEtc, lpStgMedium->tymed);
    format.tymed = lpStgMedium->tymed;
    m_pDataObject->Cache(format, *lpStgMedium);
}

LPDATAOBJECT COleDataSource::GetDataObject() {
    return m_pDataObject;
}

void COleDataSource::SetClipboard() {
    const HRESULT result = ::OleSetClipboard(m_pDataObject);
    if (result != S_OK)
        AfxThrowOleException(result);
    clipboardSource = this;
    // The clipboard counts on its own.
    InternalRelease();
}

void PASCAL COleDataSource::FlushClipboard() {
    if (GetClipboardOwner())
        ::OleFlushClipboard();
}

COleDataSource* PASCAL COleDataSource::GetClipboardOwner() {
    COleDataSource* source = clipboardSource;
    if (!source || ::OleIsCurrentClipboard(source->m_pDataObject) != S_OK)
        return nullptr;
    return source;
}

BOOL AFXAPI AfxOleInit() {
    ThreadState& state = GetThreadState();
    if (!state.oleStarted)
        state.oleStarted = SUCCEEDED(::OleInitialize(nullptr));
    return state.oleStarted;
}

void AFXAPI AfxOleTerm(BOOL bJustRevoke) {
    ThreadState& state = GetThreadState();
    if (!state.oleStarted)
        return;
    COleDataSource::FlushClipboard();
    if (bJustRevoke)
        return;
    state.oleStarted = false;
    ::OleUninitialize();
}
