#include <afxole.h>

#include "OleFormat.h"

COleDataObject::~COleDataObject() {
    Release();
}

void COleDataObject::Attach(LPDATAOBJECT lpDataObject, BOOL bAutoRelease) {
    Release();
    m_lpDataObject = lpDataObject;
    m_bAutoRelease = bAutoRelease;
}

LPDATAOBJECT COleDataObject::Detach() {
    LPDATAOBJECT object = m_lpDataObject;
    m_lpDataObject = nullptr;
    return object;
}

void COleDataObject::Release() {
    LPDATAOBJECT object = Detach();
    if (object && m_bAutoRelease)
        object->Release();
}

BOOL COleDataObject::AttachClipboard() {
    LPDATAOBJECT object = nullptr;
    if (FAILED(::OleGetClipboard(&object)))
        return FALSE;
    Attach(object, TRUE);
    return TRUE;
}

BOOL COleDataObject::IsDataAvailable(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc) {
    constexpr DWORD anyMedium =
        TYMED_HGLOBAL | TYMED_FILE | TYMED_ISTREAM | TYMED_ISTORAGE | TYMED_GDI | TYMED_MFPICT | TYMED_ENHMF;
    FORMATETC format = FormatFor(cfFormat, lpFormatEtc, anyMedium);
    return m_lpDataObject && m_lpDataObject->QueryGetData(&format) == S_OK;
}

BOOL COleDataObject::GetData(CLIPFORMAT cfFormat, LPSTGMEDIUM lpStgMedium, LPFORMATETC lpFormatEtc) {
    constexpr DWORD anyMedium =
        TYMED_HGLOBAL | TYMED_ISTREAM | TYMED_ISTORAGE | TYMED_GDI | TYMED_MFPICT | TYMED_ENHMF;
    FORMATETC format = FormatFor(cfFormat, lpFormatEtc, anyMedium);
    return m_lpDataObject && SUCCEEDED(m_lpDataObject->GetData(&format, lpStgMedium));
}

HGLOBAL COleDataObject::GetGlobalData(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc) {
    FORMATETC format = FormatFor(cfFormat, lpFormatEtc, TYMED_HGLOBAL);
    STGMEDIUM medium{};
    if (!m_lpDataObject || FAILED(m_lpDataObject->GetData(&format, &medium)))
        return nullptr;
    if (medium.tymed == TYMED_HGLOBAL && !medium.pUnkForRelease)
        return medium.hGlobal;
    // Memory that somebody else frees is copied, since the caller frees what is returned.
    HGLOBAL copy =
        medium.tymed == TYMED_HGLOBAL ? ::OleDuplicateData(medium.hGlobal, format.cfFormat, 0) : nullptr;
    ::ReleaseStgMedium(&medium);
    return copy;
}
