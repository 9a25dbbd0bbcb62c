#include <afxole.h>

IMPLEMENT_DYNAMIC(COleClientItem, CCmdTarget)

COleClientItem::COleClientItem(COleDocument* pContainerDoc) : m_pDocument(pContainerDoc) {}

COleClientItem::~COleClientItem() {
    Release(OLECLOSE_NOSAVE);
}

/// Makes the storage in memory that the other program's object lives in.
bool COleClientItem::OpenStorage() {
    m_scLast = ::CreateILockBytesOnHGlobal(nullptr, TRUE, &m_lpLockBytes);
    if (SUCCEEDED(m_scLast))
        m_scLast = ::StgCreateDocfileOnILockBytes(
            m_lpLockBytes, STGM_SHARE_EXCLUSIVE | STGM_CREATE | STGM_READWRITE, 0, &m_lpStorage);
    return SUCCEEDED(m_scLast);
}

/// Ends the making of an item: loaded, or empty again with the reason kept.
BOOL COleClientItem::Finish(SCODE sc) {
    if (SUCCEEDED(sc) && m_lpObject) {
        m_scLast = sc;
        m_nItemState = loadedState;
        ::OleSetContainedObject(m_lpObject, TRUE);
        return TRUE;
    }
    Release(OLECLOSE_NOSAVE);
    m_scLast = FAILED(sc) ? sc : E_FAIL;
    return FALSE;
}

// Makes the object with create(wanted format, address of the object) in a fresh storage.
template <class Create>
BOOL COleClientItem::MakeObject(OLERENDER render, CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc,
                                Create create) {
    Release(OLECLOSE_NOSAVE);
    if (!OpenStorage())
        return Finish(m_scLast);
    FORMATETC format{cfFormat, nullptr, DVASPECT_CONTENT, -1, TYMED_NULL};
    const LPFORMATETC wanted = lpFormatEtc ? lpFormatEtc : render == OLERENDER_FORMAT ? &format : nullptr;
    return Finish(create(wanted, reinterpret_cast<void**>(&m_lpObject)));
}

BOOL COleClientItem::CreateNewItem(REFCLSID clsid, OLERENDER render, CLIPFORMAT cfFormat,
                                   LPFORMATETC lpFormatEtc) {
    return MakeObject(render, cfFormat, lpFormatEtc, [&](LPFORMATETC wanted, void** object) {
        return ::OleCreate(clsid, IID_IOleObject, render, wanted, nullptr, m_lpStorage, object);
    });
}

BOOL COleClientItem::CreateFromFile(LPCTSTR lpszFileName, REFCLSID clsid, OLERENDER render,
                                    CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc) {
    return MakeObject(render, cfFormat, lpFormatEtc, [&](LPFORMATETC wanted, void** object) {
        return ::OleCreateFromFile(clsid, lpszFileName, IID_IOleObject, render, wanted, nullptr, m_lpStorage,
                                   object);
    });
}

BOOL COleClientItem::CreateLinkFromFile(LPCTSTR lpszFileName, OLERENDER render, CLIPFORMAT cfFormat,
                                        LPFORMATETC lpFormatEtc) {
    return MakeObject(render, cfFormat, lpFormatEtc, [&](LPFORMATETC wanted, void** object) {
        return ::OleCreateLinkToFile(lpszFileName, IID_IOleObject, render, wanted, nullptr, m_lpStorage,
                                     object);
    });
}

BOOL COleClientItem::UpdateLink() {
    m_scLast = m_lpObject ? m_lpObject->Update() : OLE_E_BLANK;
    return m_scLast == S_OK;
}

BOOL COleClientItem::Draw(CDC* pDC, LPCRECT lpBounds, DVASPECT nDrawAspect) {
    m_scLast = m_lpObject ? ::OleDraw(m_lpObject, nDrawAspect, pDC->m_hDC, lpBounds) : OLE_E_BLANK;
    return SUCCEEDED(m_scLast);
}

BOOL COleClientItem::GetExtent(LPSIZE lpSize, DVASPECT nDrawAspect) {
    m_scLast = m_lpObject ? m_lpObject->GetExtent(nDrawAspect, lpSize) : OLE_E_BLANK;
    return SUCCEEDED(m_scLast);
}

BOOL COleClientItem::DoVerb(LONG nVerb, CWnd* pParent, LPMSG lpMsg) {
    HWND window = pParent ? pParent->m_hWnd : nullptr;
    RECT place{};
    if (window)
        ::GetClientRect(window, &place);
    m_scLast = m_lpObject ? m_lpObject->DoVerb(nVerb, lpMsg, nullptr, 0, window, &place) : OLE_E_BLANK;
    if (SUCCEEDED(m_scLast))
        m_nItemState = openState;
    return SUCCEEDED(m_scLast);
}

void COleClientItem::Run() {
    m_scLast = m_lpObject ? ::OleRun(m_lpObject) : OLE_E_BLANK;
}

void COleClientItem::Close(OLECLOSE dwCloseOption) {
    if (!m_lpObject)
        return;
    m_scLast = m_lpObject->Close(static_cast<DWORD>(dwCloseOption));
    m_nItemState = loadedState;
}

void COleClientItem::Release(OLECLOSE dwCloseOption) {
    Close(dwCloseOption);
    if (m_lpObject)
        m_lpObject->Release();
    if (m_lpStorage)
        m_lpStorage->Release();
    if (m_lpLockBytes)
        m_lpLockBytes->Release();
    m_lpObject = nullptr;
    m_lpStorage = nullptr;
    m_lpLockBytes = nullptr;
    m_nItemState = emptyState;
}

void COleClientItem::Delete(BOOL bAutoDelete) {
    Release(OLECLOSE_NOSAVE);
    if (bAutoDelete)
        InternalRelease();
}
