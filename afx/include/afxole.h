// OLE: start-up, the clipboard's data source and data object, and embedded client items.
#pragma once

#include <afxdisp.h>

#include <ole2.h>

/// Starts OLE on the calling thread; false when the system refuses.
AFX_API_EXPORT BOOL AFXAPI AfxOleInit();
/// Ends what AfxOleInit started on the calling thread; nothing when it was not.
AFX_API_EXPORT void AFXAPI AfxOleTerm(BOOL bJustRevoke = FALSE);

/// Data offered to others. Made with new; SetClipboard hands it to the system, which destroys it when it is
/// replaced. Without SetClipboard the maker deletes it.
class AFX_CLASS_EXPORT COleDataSource : public CCmdTarget {
    DECLARE_DYNAMIC(COleDataSource)
public:
    COleDataSource();
    ~COleDataSource() override;

    /// Drops everything offered.
    void Empty();
    /// Offers global memory, which the object owns from now on; others receive copies.
    void CacheGlobalData(CLIPFORMAT cfFormat, HGLOBAL hGlobal, LPFORMATETC lpFormatEtc = nullptr);
    /// Offers a medium, which the object owns from now on.
    void CacheData(CLIPFORMAT cfFormat, LPSTGMEDIUM lpStgMedium, LPFORMATETC lpFormatEtc = nullptr);

    /// Puts the object on the clipboard and gives up the maker's ownership. Raises a COleException when the
    /// clipboard cannot be had; the maker still owns the object then.
    void SetClipboard();
    /// Leaves the data on the clipboard for when the object or the program is gone.
    static void PASCAL FlushClipboard();
    /// The class library's object on the clipboard, or null.
    static COleDataSource* PASCAL GetClipboardOwner();

    /// The platform's interface of the object; not counted.
    LPDATAOBJECT GetDataObject();

private:
    class DataObject;
    DataObject* m_pDataObject;
};

/// Data offered by somebody else, or by the clipboard.
class AFX_CLASS_EXPORT COleDataObject {
public:
    COleDataObject() = default;
    ~COleDataObject();
    COleDataObject(const COleDataObject&) = delete;
    COleDataObject& operator=(const COleDataObject&) = delete;

    LPDATAOBJECT m_lpDataObject = nullptr;

    void Attach(LPDATAOBJECT lpDataObject, BOOL bAutoRelease = TRUE);
    LPDATAOBJECT Detach();
    void Release();
    /// Looks at what is on the clipboard; false when there is no clipboard to be had.
    BOOL AttachClipboard();

    BOOL IsDataAvailable(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc = nullptr);
    /// A copy of the data, to be ended with ReleaseStgMedium; false when it is not offered.
    BOOL GetData(CLIPFORMAT cfFormat, LPSTGMEDIUM lpStgMedium, LPFORMATETC lpFormatEtc = nullptr);
    /// A copy in global memory, to be freed with GlobalFree; null when it is not offered.
    HGLOBAL GetGlobalData(CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc = nullptr);

private:
    BOOL m_bAutoRelease = TRUE;
};

class COleDocument;

/// An embedded or linked item of another program. Items keep their data in a storage in memory of their own.
class AFX_CLASS_EXPORT COleClientItem : public CCmdTarget {
    DECLARE_DYNAMIC(COleClientItem)
public:
    /// pContainerDoc may be null: the item belongs to no document.
    explicit COleClientItem(COleDocument* pContainerDoc = nullptr);
    ~COleClientItem() override;

    enum ItemState { emptyState, loadedState, openState, activeState, activeUIState };

    LPOLEOBJECT m_lpObject = nullptr;
    COleDocument* GetDocument() const { return m_pDocument; }
    SCODE GetLastStatus() const { return m_scLast; }  ///< result of the last call into the other program
    UINT GetItemState() const { return m_nItemState; }

    /// Make the item; false leaves it empty and GetLastStatus says why.
    BOOL CreateNewItem(REFCLSID clsid, OLERENDER render = OLERENDER_DRAW, CLIPFORMAT cfFormat = 0,
                       LPFORMATETC lpFormatEtc = nullptr);
    BOOL CreateFromFile(LPCTSTR lpszFileName, REFCLSID clsid = CLSID_NULL, OLERENDER render = OLERENDER_DRAW,
                        CLIPFORMAT cfFormat = 0, LPFORMATETC lpFormatEtc = nullptr);
    BOOL CreateLinkFromFile(LPCTSTR lpszFileName, OLERENDER render = OLERENDER_DRAW, CLIPFORMAT cfFormat = 0,
                            LPFORMATETC lpFormatEtc = nullptr);
    /// Brings the item's picture up to date; false when it is empty or the other program refuses.
    BOOL UpdateLink();
    /// Draws the item's cached picture.
    BOOL Draw(CDC* pDC, LPCRECT lpBounds, DVASPECT nDrawAspect = DVASPECT_CONTENT);
    /// Natural size in hundredths of a millimetre; false when it is not known.
    BOOL GetExtent(LPSIZE lpSize, DVASPECT nDrawAspect = DVASPECT_CONTENT);
    virtual BOOL DoVerb(LONG nVerb, CWnd* pParent, LPMSG lpMsg = nullptr);
    void Run();
    void Close(OLECLOSE dwCloseOption = OLECLOSE_SAVEIFDIRTY);
    /// Lets go of the other program's object; the item is empty afterwards.
    virtual void Release(OLECLOSE dwCloseOption = OLECLOSE_NOSAVE);
    /// Release, then destroys the item.
    void Delete(BOOL bAutoDelete = TRUE);

protected:
    COleDocument* m_pDocument;
    SCODE m_scLast = S_OK;
    UINT m_nItemState = emptyState;

private:
    bool OpenStorage();
    template <class Create>
    BOOL MakeObject(OLERENDER render, CLIPFORMAT cfFormat, LPFORMATETC lpFormatEtc, Create create);
    BOOL Finish(SCODE sc);

    LPLOCKBYTES m_lpLockBytes = nullptr;
    LPSTORAGE m_lpStorage = nullptr;
};
