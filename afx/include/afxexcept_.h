// The exceptions of the class library. They are thrown and caught by pointer; who catches one and does not
// throw it on calls Delete.
#pragma once

#include <afxobj_.h>
#include <afxstr.h>

/// Base of all exceptions of the class library.
class AFX_CLASS_EXPORT CException : public CObject {
    DECLARE_DYNAMIC(CException)

    /// The object is made with `new` and Delete destroys it.
    CException();
    /// `bAutoDelete` FALSE: the object lives elsewhere and Delete leaves it alone.
    explicit CException(BOOL bAutoDelete);

    /// Ends the exception; the pointer is not to be used afterwards.
    void Delete();

    /// Writes the exception's text, cut to `nMaxError` characters with the terminator, and 0 as the help
    /// context. FALSE, with an empty text, when there is none; nothing is written when there is no room at
    /// all.
    virtual BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const;

    BOOL m_bAutoDelete;

protected:
    /// Writes `text` for an override of GetErrorMessage.
    static BOOL CopyErrorMessage(const CString& text, LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext);
};

/// Base of the exceptions that carry nothing but their class.
class AFX_CLASS_EXPORT CSimpleException : public CException {
    DECLARE_DYNAMIC(CSimpleException)

    CSimpleException() = default;
    explicit CSimpleException(BOOL bAutoDelete) : CException(bAutoDelete) {}
};

/// Not enough memory.
class AFX_CLASS_EXPORT CMemoryException : public CSimpleException {
    DECLARE_DYNAMIC(CMemoryException)

    CMemoryException() = default;
    explicit CMemoryException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

/// A request that the class does not support.
class AFX_CLASS_EXPORT CNotSupportedException : public CSimpleException {
    DECLARE_DYNAMIC(CNotSupportedException)

    CNotSupportedException() = default;
    explicit CNotSupportedException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

/// An argument outside what the call allows.
class AFX_CLASS_EXPORT CInvalidArgException : public CSimpleException {
    DECLARE_DYNAMIC(CInvalidArgException)

    CInvalidArgException() = default;
    explicit CInvalidArgException(BOOL bAutoDelete) : CSimpleException(bAutoDelete) {}
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;
};

/// A failed operation on a file.
class AFX_CLASS_EXPORT CFileException : public CException {
    DECLARE_DYNAMIC(CFileException)

    enum {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        invalidFile,
        removeCurrentDir,
        directoryFull,
        badSeek,
        hardIO,
        sharingViolation,
        lockViolation,
        diskFull,
        endOfFile
    };

    explicit CFileException(int cause = none, LONG lOsError = -1, LPCWSTR lpszFileName = nullptr);

    /// The cause that stands for an error code of the system.
    static int PASCAL OsErrorToException(LONG lOsError);
    /// Throws the exception for an error code of the system; nothing for 0.
    static void PASCAL ThrowOsError(LONG lOsError, LPCWSTR lpszFileName = nullptr);

    /// The cause as a sentence with the file's name; for a generic cause the system's own text for the error
    /// code.
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    int m_cause;            ///< one of the causes above
    LONG m_lOsError;        ///< error code of the system, -1 when there is none
    CString m_strFileName;  ///< path of the file, empty when unknown
};

/// A failed operation on an archive.
class AFX_CLASS_EXPORT CArchiveException : public CException {
    DECLARE_DYNAMIC(CArchiveException)

    enum {
        none,
        genericException,
        readOnly,   ///< writing to an archive that loads
        endOfFile,  ///< reading beyond the end of the data
        writeOnly,  ///< reading from an archive that stores
        badIndex,
        badClass,
        badSchema,
        bufferFull
    };

    explicit CArchiveException(int cause = none, LPCWSTR lpszArchiveName = nullptr);

    /// The cause as a sentence with the file's name where it is known.
    BOOL GetErrorMessage(LPWSTR lpszError, UINT nMaxError, PUINT pnHelpContext = nullptr) const override;

    int m_cause;            ///< one of the causes above
    CString m_strFileName;  ///< path of the archive's file, empty when unknown
};

[[noreturn]] AFX_API_EXPORT void AFXAPI AfxThrowMemoryException();
[[noreturn]] AFX_API_EXPORT void AFXAPI AfxThrowNotSupportedException();
[[noreturn]] AFX_API_EXPORT void AFXAPI AfxThrowInvalidArgException();
[[noreturn]] AFX_API_EXPORT void AFXAPI AfxThrowFileException(int cause, LONG lOsError = -1,
                                                              LPCWSTR lpszFileName = nullptr);
[[noreturn]] AFX_API_EXPORT void AFXAPI AfxThrowArchiveException(int cause,
                                                                 LPCWSTR lpszArchiveName = nullptr);
