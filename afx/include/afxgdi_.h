// Graphics objects and device contexts. Included by afxwin.h.
//
// A wrapper owns its handle: the destructor deletes what is attached. FromHandle gives a temporary wrapper
// that owns nothing and lives until the next idle time of its thread. Members named after a function of the
// platform do what that function does with the wrapper's handle.
#pragma once

#include <afx.h>
#include <atltypes.h>

class CWnd;

/// Base of pens, brushes, fonts, bitmaps and regions.
class AFX_CLASS_EXPORT CGdiObject : public CObject {
    DECLARE_DYNCREATE(CGdiObject)
public:
    CGdiObject();
    ~CGdiObject() override;

    HGDIOBJ m_hObject = nullptr;  ///< the handle, null when there is none

    operator HGDIOBJ() const;
    HGDIOBJ GetSafeHandle() const;  ///< the handle, null also when called on no object

    /// The wrapper of a handle, a temporary one when no object owns the handle; null for null.
    static CGdiObject* PASCAL FromHandle(HGDIOBJ hObject);
    static void PASCAL DeleteTempMap();

    /// Takes ownership of a handle; false for null.
    BOOL Attach(HGDIOBJ hObject);
    /// Gives the handle away; null when there was none.
    HGDIOBJ Detach();
    /// Deletes the handle; false when there was none.
    BOOL DeleteObject();

    int GetObject(int nCount, LPVOID lpObject) const { return ::GetObject(m_hObject, nCount, lpObject); }
    UINT GetObjectType() const { return ::GetObjectType(m_hObject); }
    /// Attaches a stock object, which is never really deleted.
    BOOL CreateStockObject(int nIndex) { return Attach(::GetStockObject(nIndex)); }
};

class AFX_CLASS_EXPORT CPen : public CGdiObject {
    DECLARE_DYNAMIC(CPen)
public:
    CPen() = default;
    CPen(int nPenStyle, int nWidth, COLORREF crColor) { CreatePen(nPenStyle, nWidth, crColor); }

    operator HPEN() const;
    static CPen* PASCAL FromHandle(HPEN hPen) { return static_cast<CPen*>(CGdiObject::FromHandle(hPen)); }
    BOOL CreatePen(int nPenStyle, int nWidth, COLORREF crColor) {
        return Attach(::CreatePen(nPenStyle, nWidth, crColor));
    }
    BOOL CreatePenIndirect(LPLOGPEN lpLogPen) { return Attach(::CreatePenIndirect(lpLogPen)); }
    int GetLogPen(LOGPEN* pLogPen) { return ::GetObject(m_hObject, sizeof(LOGPEN), pLogPen); }
};

class CBitmap;

class AFX_CLASS_EXPORT CBrush : public CGdiObject {
    DECLARE_DYNAMIC(CBrush)
public:
    CBrush() = default;
    explicit CBrush(COLORREF crColor) { CreateSolidBrush(crColor); }
    CBrush(int nIndex, COLORREF crColor) { CreateHatchBrush(nIndex, crColor); }

    operator HBRUSH() const;
    static CBrush* PASCAL FromHandle(HBRUSH hBrush) {
        return static_cast<CBrush*>(CGdiObject::FromHandle(hBrush));
    }
    BOOL CreateSolidBrush(COLORREF crColor) { return Attach(::CreateSolidBrush(crColor)); }
    BOOL CreateHatchBrush(int nIndex, COLORREF crColor) {
        return Attach(::CreateHatchBrush(nIndex, crColor));
    }
    BOOL CreatePatternBrush(CBitmap* pBitmap);
    /// One of the system's colours (COLOR_...); never really deleted.
    BOOL CreateSysColorBrush(int nIndex) { return Attach(::GetSysColorBrush(nIndex)); }
    int GetLogBrush(LOGBRUSH* pLogBrush) { return ::GetObject(m_hObject, sizeof(LOGBRUSH), pLogBrush); }
};

class CDC;

class AFX_CLASS_EXPORT CFont : public CGdiObject {
    DECLARE_DYNAMIC(CFont)
public:
    CFont() = default;

    operator HFONT() const;
    static CFont* PASCAL FromHandle(HFONT hFont) {
        return static_cast<CFont*>(CGdiObject::FromHandle(hFont));
    }
    BOOL CreateFontIndirect(const LOGFONT* lpLogFont) { return Attach(::CreateFontIndirect(lpLogFont)); }
    BOOL CreateFont(int nHeight, int nWidth, int nEscapement, int nOrientation, int nWeight, BYTE bItalic,
                    BYTE bUnderline, BYTE cStrikeOut, BYTE nCharSet, BYTE nOutPrecision, BYTE nClipPrecision,
                    BYTE nQuality, BYTE nPitchAndFamily, LPCTSTR lpszFacename);
    /// Height in tenths of a point, measured on pDC or the screen.
    BOOL CreatePointFont(int nPointSize, LPCTSTR lpszFaceName, CDC* pDC = nullptr);
    int GetLogFont(LOGFONT* pLogFont) { return ::GetObject(m_hObject, sizeof(LOGFONT), pLogFont); }
};

class AFX_CLASS_EXPORT CBitmap : public CGdiObject {
    DECLARE_DYNAMIC(CBitmap)
public:
    CBitmap() = default;

    operator HBITMAP() const;
    static CBitmap* PASCAL FromHandle(HBITMAP hBitmap) {
        return static_cast<CBitmap*>(CGdiObject::FromHandle(hBitmap));
    }
    BOOL LoadBitmap(LPCTSTR lpszResourceName);
    BOOL LoadBitmap(UINT nIDResource) { return LoadBitmap(MAKEINTRESOURCE(nIDResource)); }
    BOOL CreateBitmap(int nWidth, int nHeight, UINT nPlanes, UINT nBitcount, const void* lpBits) {
        return Attach(::CreateBitmap(nWidth, nHeight, nPlanes, nBitcount, lpBits));
    }
    BOOL CreateCompatibleBitmap(CDC* pDC, int nWidth, int nHeight);
    int GetBitmap(BITMAP* pBitMap) { return ::GetObject(m_hObject, sizeof(BITMAP), pBitMap); }
};

class AFX_CLASS_EXPORT CRgn : public CGdiObject {
    DECLARE_DYNAMIC(CRgn)
public:
    CRgn() = default;

    operator HRGN() const;
    static CRgn* PASCAL FromHandle(HRGN hRgn) { return static_cast<CRgn*>(CGdiObject::FromHandle(hRgn)); }
    BOOL CreateRectRgn(int x1, int y1, int x2, int y2) { return Attach(::CreateRectRgn(x1, y1, x2, y2)); }
    BOOL CreateRectRgnIndirect(LPCRECT lpRect) { return Attach(::CreateRectRgnIndirect(lpRect)); }
    BOOL CreateEllipticRgn(int x1, int y1, int x2, int y2) {
        return Attach(::CreateEllipticRgn(x1, y1, x2, y2));
    }
    BOOL CreateEllipticRgnIndirect(LPCRECT lpRect) { return Attach(::CreateEllipticRgnIndirect(lpRect)); }
    BOOL CreatePolygonRgn(const POINT* lpPoints, int nCount, int nMode) {
        return Attach(::CreatePolygonRgn(lpPoints, nCount, nMode));
    }
    BOOL CreateRoundRectRgn(int x1, int y1, int x2, int y2, int x3, int y3) {
        return Attach(::CreateRoundRectRgn(x1, y1, x2, y2, x3, y3));
    }
    void SetRectRgn(LPCRECT lpRect) {
        ::SetRectRgn(*this, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    int CombineRgn(const CRgn* pRgn1, const CRgn* pRgn2, int nCombineMode);
    BOOL EqualRgn(const CRgn* pRgn) const { return ::EqualRgn(*this, *pRgn); }
    int OffsetRgn(int x, int y) { return ::OffsetRgn(*this, x, y); }
    int OffsetRgn(POINT point) { return ::OffsetRgn(*this, point.x, point.y); }
    int GetRgnBox(LPRECT lpRect) const { return ::GetRgnBox(*this, lpRect); }
    BOOL PtInRegion(int x, int y) const { return ::PtInRegion(*this, x, y); }
    BOOL PtInRegion(POINT point) const { return ::PtInRegion(*this, point.x, point.y); }
    BOOL RectInRegion(LPCRECT lpRect) const { return ::RectInRegion(*this, lpRect); }
};

/// A device context. Output goes to m_hDC, questions to m_hAttribDC; both are usually the same handle.
class AFX_CLASS_EXPORT CDC : public CObject {
    DECLARE_DYNCREATE(CDC)
public:
    CDC();
    ~CDC() override;

    HDC m_hDC = nullptr;
    HDC m_hAttribDC = nullptr;
    BOOL m_bPrinting = FALSE;

    operator HDC() const;
    HDC GetSafeHdc() const;  ///< the output handle, null also when called on no object
    BOOL IsPrinting() const { return m_bPrinting; }

    /// The wrapper of a handle, a temporary one when no object owns the handle; null for null.
    static CDC* PASCAL FromHandle(HDC hDC);
    static void PASCAL DeleteTempMap();

    /// Takes ownership of a handle for output and questions; false for null.
    BOOL Attach(HDC hDC);
    /// Gives the handle away; null when there was none.
    HDC Detach();
    virtual void SetAttribDC(HDC hDC) { m_hAttribDC = hDC; }
    virtual void SetOutputDC(HDC hDC);
    virtual void ReleaseAttribDC() { m_hAttribDC = nullptr; }
    virtual void ReleaseOutputDC();

    BOOL CreateDC(LPCTSTR lpszDriverName, LPCTSTR lpszDeviceName, LPCTSTR lpszOutput,
                  const void* lpInitData) {
        return Attach(
            ::CreateDC(lpszDriverName, lpszDeviceName, lpszOutput, static_cast<const DEVMODE*>(lpInitData)));
    }
    BOOL CreateCompatibleDC(CDC* pDC) { return Attach(::CreateCompatibleDC(pDC ? pDC->m_hDC : nullptr)); }
    BOOL DeleteDC();
    int GetDeviceCaps(int nIndex) const { return ::GetDeviceCaps(m_hAttribDC, nIndex); }
    CWnd* GetWindow() const;

    virtual int SaveDC();
    virtual BOOL RestoreDC(int nSavedDC);

    CGdiObject* SelectStockObject(int nIndex);
    CPen* SelectObject(CPen* pPen) { return static_cast<CPen*>(Select(pPen)); }
    CBrush* SelectObject(CBrush* pBrush) { return static_cast<CBrush*>(Select(pBrush)); }
    CFont* SelectObject(CFont* pFont) { return static_cast<CFont*>(Select(pFont)); }
    CBitmap* SelectObject(CBitmap* pBitmap) { return static_cast<CBitmap*>(Select(pBitmap)); }
    /// Copies the region into the clip region; returns its complexity.
    int SelectObject(CRgn* pRgn) { return SelectClipRgn(pRgn); }
    CGdiObject* SelectObject(CGdiObject* pObject) { return Select(pObject); }
    CFont* GetCurrentFont() const {
        return CFont::FromHandle(static_cast<HFONT>(::GetCurrentObject(m_hAttribDC, OBJ_FONT)));
    }

    virtual COLORREF SetBkColor(COLORREF crColor);
    virtual COLORREF SetTextColor(COLORREF crColor);
    COLORREF GetBkColor() const { return ::GetBkColor(m_hAttribDC); }
    COLORREF GetTextColor() const { return ::GetTextColor(m_hAttribDC); }
    int SetBkMode(int nBkMode);
    int GetBkMode() const { return ::GetBkMode(m_hAttribDC); }
    int SetROP2(int nDrawMode);
    int SetStretchBltMode(int nStretchMode);
    UINT SetTextAlign(UINT nFlags);

    virtual int SetMapMode(int nMapMode);
    int GetMapMode() const { return ::GetMapMode(m_hAttribDC); }
    virtual CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT point) { return SetViewportOrg(point.x, point.y); }
    virtual CSize SetViewportExt(int cx, int cy);
    CSize SetViewportExt(SIZE size) { return SetViewportExt(size.cx, size.cy); }
    CPoint SetWindowOrg(int x, int y);
    CPoint SetWindowOrg(POINT point) { return SetWindowOrg(point.x, point.y); }
    virtual CSize SetWindowExt(int cx, int cy);
    CSize SetWindowExt(SIZE size) { return SetWindowExt(size.cx, size.cy); }
    CPoint GetViewportOrg() const;
    CSize GetViewportExt() const;
    CPoint GetWindowOrg() const;
    CSize GetWindowExt() const;

    /// Device to logical and back; sizes are converted by the extents alone and keep their
    /// signs.
    void DPtoLP(LPPOINT lpPoints, int nCount = 1) const { ::DPtoLP(m_hAttribDC, lpPoints, nCount); }
    void DPtoLP(LPRECT lpRect) const { ::DPtoLP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void DPtoLP(LPSIZE lpSize) const;
    void LPtoDP(LPPOINT lpPoints, int nCount = 1) const { ::LPtoDP(m_hAttribDC, lpPoints, nCount); }
    void LPtoDP(LPRECT lpRect) const { ::LPtoDP(m_hAttribDC, reinterpret_cast<LPPOINT>(lpRect), 2); }
    void LPtoDP(LPSIZE lpSize) const;

    virtual int GetClipBox(LPRECT lpRect) const { return ::GetClipBox(m_hDC, lpRect); }
    int SelectClipRgn(CRgn* pRgn);
    int IntersectClipRect(int x1, int y1, int x2, int y2);
    int IntersectClipRect(LPCRECT lpRect) {
        return IntersectClipRect(lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    int ExcludeClipRect(LPCRECT lpRect);
    BOOL RectVisible(LPCRECT lpRect) const { return ::RectVisible(m_hDC, lpRect); }

    CPoint MoveTo(int x, int y);
    CPoint MoveTo(POINT point) { return MoveTo(point.x, point.y); }
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT point) { return LineTo(point.x, point.y); }
    BOOL Polyline(const POINT* lpPoints, int nCount) { return ::Polyline(m_hDC, lpPoints, nCount); }
    BOOL Polygon(const POINT* lpPoints, int nCount) { return ::Polygon(m_hDC, lpPoints, nCount); }
    BOOL Rectangle(int x1, int y1, int x2, int y2) { return ::Rectangle(m_hDC, x1, y1, x2, y2); }
    BOOL Rectangle(LPCRECT lpRect) {
        return ::Rectangle(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    BOOL Ellipse(int x1, int y1, int x2, int y2) { return ::Ellipse(m_hDC, x1, y1, x2, y2); }
    BOOL Ellipse(LPCRECT lpRect) {
        return ::Ellipse(m_hDC, lpRect->left, lpRect->top, lpRect->right, lpRect->bottom);
    }
    void FillRect(LPCRECT lpRect, CBrush* pBrush) { ::FillRect(m_hDC, lpRect, *pBrush); }
    void FrameRect(LPCRECT lpRect, CBrush* pBrush) { ::FrameRect(m_hDC, lpRect, *pBrush); }
    void InvertRect(LPCRECT lpRect) { ::InvertRect(m_hDC, lpRect); }
    /// Fills with a plain colour, which stays set as the background colour.
    void FillSolidRect(LPCRECT lpRect, COLORREF clr);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF clr);
    void Draw3dRect(LPCRECT lpRect, COLORREF clrTopLeft, COLORREF clrBottomRight);
    void DrawFocusRect(LPCRECT lpRect) { ::DrawFocusRect(m_hDC, lpRect); }
    BOOL DrawEdge(LPRECT lpRect, UINT nEdge, UINT nFlags) { return ::DrawEdge(m_hDC, lpRect, nEdge, nFlags); }
    BOOL DrawFrameControl(LPRECT lpRect, UINT nType, UINT nState) {
        return ::DrawFrameControl(m_hDC, lpRect, nType, nState);
    }
    BOOL DrawIcon(int x, int y, HICON hIcon) { return ::DrawIcon(m_hDC, x, y, hIcon); }
    COLORREF GetPixel(int x, int y) const { return ::GetPixel(m_hDC, x, y); }
    COLORREF GetPixel(POINT point) const { return ::GetPixel(m_hDC, point.x, point.y); }
    COLORREF SetPixel(int x, int y, COLORREF crColor) { return ::SetPixel(m_hDC, x, y, crColor); }
    BOOL BitBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, DWORD dwRop) {
        return ::BitBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc, dwRop);
    }
    BOOL StretchBlt(int x, int y, int nWidth, int nHeight, CDC* pSrcDC, int xSrc, int ySrc, int nSrcWidth,
                    int nSrcHeight, DWORD dwRop) {
        return ::StretchBlt(m_hDC, x, y, nWidth, nHeight, pSrcDC ? pSrcDC->m_hDC : nullptr, xSrc, ySrc,
                            nSrcWidth, nSrcHeight, dwRop);
    }
    BOOL PatBlt(int x, int y, int nWidth, int nHeight, DWORD dwRop) {
        return ::PatBlt(m_hDC, x, y, nWidth, nHeight, dwRop);
    }

    virtual BOOL TextOut(int x, int y, LPCTSTR lpszString, int nCount);
    BOOL TextOut(int x, int y, const CString& str) { return TextOut(x, y, str, str.GetLength()); }
    virtual int DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat);
    int DrawText(const CString& str, LPRECT lpRect, UINT nFormat) {
        return DrawText(str, str.GetLength(), lpRect, nFormat);
    }
    CSize GetTextExtent(LPCTSTR lpszString, int nCount) const;
    CSize GetTextExtent(const CString& str) const { return GetTextExtent(str, str.GetLength()); }
    BOOL GetTextMetrics(LPTEXTMETRIC lpMetrics) const { return ::GetTextMetrics(m_hAttribDC, lpMetrics); }

private:
    CGdiObject* Select(const CGdiObject* pObject);
};

/// The client area of a window (null: the whole screen), released with the object.
class AFX_CLASS_EXPORT CClientDC : public CDC {
    DECLARE_DYNAMIC(CClientDC)
public:
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

protected:
    HWND m_hWnd;
};

/// A whole window with its frame (null: the whole screen), released with the object.
class AFX_CLASS_EXPORT CWindowDC : public CDC {
    DECLARE_DYNAMIC(CWindowDC)
public:
    explicit CWindowDC(CWnd* pWnd);
    ~CWindowDC() override;

protected:
    HWND m_hWnd;
};

/// Begins painting a window and ends it with the object; only for WM_PAINT handlers.
class AFX_CLASS_EXPORT CPaintDC : public CDC {
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps;  ///< with the update rectangle

protected:
    HWND m_hWnd;
};
