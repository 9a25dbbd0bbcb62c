#include "ThreadState.h"

namespace {

PermanentMap<CGdiObject> permanentObjects;

/// An object of the class that fits the handle.
CGdiObject* MakeTemporary(HGDIOBJ handle) {
    switch (::GetObjectType(handle)) {
        case OBJ_PEN:
        case OBJ_EXTPEN:
            return new CPen;
        case OBJ_BRUSH:
            return new CBrush;
        case OBJ_FONT:
            return new CFont;
        case OBJ_BITMAP:
            return new CBitmap;
        case OBJ_REGION:
            return new CRgn;
        default:
            return new CGdiObject;
    }
}

}  // namespace

IMPLEMENT_DYNCREATE(CGdiObject, CObject)
IMPLEMENT_DYNAMIC(CPen, CGdiObject)
IMPLEMENT_DYNAMIC(CBrush, CGdiObject)
IMPLEMENT_DYNAMIC(CFont, CGdiObject)
IMPLEMENT_DYNAMIC(CBitmap, CGdiObject)
IMPLEMENT_DYNAMIC(CRgn, CGdiObject)

CGdiObject::CGdiObject() = default;

CGdiObject::~CGdiObject() {
    DeleteObject();
}

CGdiObject* PASCAL CGdiObject::FromHandle(HGDIOBJ hObject) {
    if (!hObject)
        return nullptr;
    if (CGdiObject* owner = permanentObjects.Find(hObject))
        return owner;
    return GetThreadState().graphics.Get(hObject, [hObject] { return MakeTemporary(hObject); });
}

void PASCAL CGdiObject::DeleteTempMap() {
    GetThreadState().graphics.Clear();
}

BOOL CGdiObject::Attach(HGDIOBJ hObject) {
    if (!hObject)
        return FALSE;
    DeleteObject();
    permanentObjects.Set(hObject, this);
    m_hObject = hObject;
    return TRUE;
}

HGDIOBJ CGdiObject::Detach() {
    HGDIOBJ handle = m_hObject;
    if (handle)
        permanentObjects.Remove(handle, this);
    m_hObject = nullptr;
    return handle;
}

BOOL CGdiObject::DeleteObject() {
    HGDIOBJ handle = Detach();
    return handle && ::DeleteObject(handle);
}

BOOL CBrush::CreatePatternBrush(CBitmap* pBitmap) {
    return Attach(::CreatePatternBrush(*pBitmap));
}

BOOL CFont::CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                       BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision,
                       BYTE nClipPrecision, BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename) {
    return Attach(::CreateFont(nHeight, nWidth, nEscapement, nOrientation, nWeight, bItalic, bUnderline,
                               cStrikeOut, nCharSet, nOutPrecision, nClipPrecision, nQuality, nPitchAndFamily,
                               lpszFacename));
}

BOOL CFont::CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC) {
    CClientDC screen(nullptr);
    CDC& dc = pDC ? *pDC : screen;
    LOGFONT font{};
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfHeight = -::MulDiv(nPointSize, dc.GetDeviceCaps(LOGPIXELSY), 720);
    ::lstrcpyn(font.lfFaceName, lpszFaceName, ARRAYSIZE(font.lfFaceName));
    return CreateFontIndirect(&font);
}

BOOL CBitmap::LoadBitmap(LPCTSTR lpszResourceName) {
    return Attach(::LoadBitmap(AfxFindResourceHandle(lpszResourceName, RT_BITMAP), lpszResourceName));
}

BOOL CBitmap::CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight) {
    return Attach(::CreateCompatibleBitmap(pDC->m_hDC, nWidth, nHeight));
}

int CRgn::CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode) {
    return ::CombineRgn(*this, *pRgn1, pRgn2 ? static_cast<HRGN>(*pRgn2) : nullptr, nCombineMode);
}
