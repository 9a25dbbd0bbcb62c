// CArchive, a buffered stream of values on a file.
#pragma once

#include <afxobj_.h>
#include <afxstr.h>

#include <cstring>
#include <type_traits>

class CFile;

/// Writes values to a file or reads them back, little-endian, through a buffer of its own. Storing to a
/// loading archive raises CArchiveException::readOnly, loading from a storing one writeOnly, loading beyond
/// the end of the data endOfFile; the value loaded into is unchanged then. The file raises its own
/// exceptions.
class AFX_CLASS_EXPORT CArchive {
public:
    enum Mode { store = 0, load = 1, bNoFlushOnDelete = 2, bNoByteSwap = 4 };

    /// `pFile` is open, outlives the archive and is not used otherwise until Close. The buffer has `nBufSize`
    /// bytes, at least 128; it is the caller's `lpBuf` when that is given and large enough.
    CArchive(CFile* pFile, UINT nMode, int nBufSize = 4096, void* lpBuf = nullptr);
    /// Closes the archive unless it was made with bNoFlushOnDelete, which drops what is not written yet. A
    /// failure is not reported: call Close to learn of one.
    ~CArchive();

    CArchive(const CArchive&) = delete;
    CArchive& operator=(const CArchive&) = delete;

    BOOL IsLoading() const { return (m_nMode & load) != 0; }
    BOOL IsStoring() const { return (m_nMode & load) == 0; }
    /// The file, null after Close or Abort.
    CFile* GetFile() const { return m_pFile; }

    /// Reads up to `nMax` bytes and returns how many there were.
    UINT Read(void* lpBuf, UINT nMax);
    void Write(const void* lpBuf, UINT nMax);
    /// Storing: writes the buffer to the file. Loading: drops it and puts the file at the next value.
    void Flush();
    /// Flushes and lets go of the file, which stays open.
    void Close();
    /// Lets go of the file without flushing and without raising an exception.
    void Abort();

    /// Writes the characters without an end mark.
    void WriteString(LPCWSTR lpsz);
    /// Reads characters up to the end of the line, which is taken but not given, or of the data. FALSE when
    /// the data had ended before.
    BOOL ReadString(CString& rString);
    /// The same with at most `nMax` - 1 characters and a terminator; what does not fit stays in the archive.
    /// Returns `lpsz`, null when the data had ended before.
    LPWSTR ReadString(LPWSTR lpsz, UINT nMax);

    /// Stores an object of a class with IMPLEMENT_SERIAL by its class and its Serialize, or null. An object
    /// that is stored again comes as a reference to the first time, and as one object when loaded. It must
    /// stay alive and in its place as long as the archive. Objects inside each other go 1,000 deep, as with
    /// ReadObject; more raise genericException.
    void WriteObject(const CObject* pOb);
    /// Loads what WriteObject stored. New objects belong to the caller. badClass for an unknown class or one
    /// that is not `pClass` or derived from it, badSchema for a schema that the class does not load, badIndex
    /// for a reference to nothing. An object whose own loading fails is deleted, unless others got a
    /// reference to it before.
    CObject* ReadObject(const CRuntimeClass* pClass);
    /// The schema with which the object being loaded was stored; to be asked once, in the Serialize of a
    /// class with VERSIONABLE_SCHEMA. -1 otherwise.
    UINT GetObjectSchema();
    void SetObjectSchema(UINT nSchema) { m_nObjectSchema = nSchema; }

    CArchive& operator<<(BYTE value) { return Put(value); }
    CArchive& operator<<(char value) { return Put(value); }
    CArchive& operator<<(bool value) { return Put(BYTE(value ? 1 : 0)); }
    CArchive& operator<<(short value) { return Put(value); }
    CArchive& operator<<(WORD value) { return Put(value); }
    CArchive& operator<<(wchar_t value) { return Put(value); }
    CArchive& operator<<(int value) { return Put(value); }
    CArchive& operator<<(unsigned value) { return Put(value); }
    CArchive& operator<<(LONG value) { return Put(value); }
    CArchive& operator<<(DWORD value) { return Put(value); }
    CArchive& operator<<(LONGLONG value) { return Put(value); }
    CArchive& operator<<(ULONGLONG value) { return Put(value); }
    CArchive& operator<<(float value) { return Put(value); }
    CArchive& operator<<(double value) { return Put(value); }
    // Any other pointer than one to an object would be stored as a bool.
    template <class T>
    requires(!std::is_convertible_v<T*, const CObject*>) CArchive& operator<<(T*) = delete;

    CArchive& operator>>(BYTE& value) { return Get(value); }
    CArchive& operator>>(char& value) { return Get(value); }
    CArchive& operator>>(bool& value) {
        BYTE byte;
        Get(byte);
        value = byte != 0;
        return *this;
    }
    CArchive& operator>>(short& value) { return Get(value); }
    CArchive& operator>>(WORD& value) { return Get(value); }
    CArchive& operator>>(wchar_t& value) { return Get(value); }
    CArchive& operator>>(int& value) { return Get(value); }
    CArchive& operator>>(unsigned& value) { return Get(value); }
    CArchive& operator>>(LONG& value) { return Get(value); }
    CArchive& operator>>(DWORD& value) { return Get(value); }
    CArchive& operator>>(LONGLONG& value) { return Get(value); }
    CArchive& operator>>(ULONGLONG& value) { return Get(value); }
    CArchive& operator>>(float& value) { return Get(value); }
    CArchive& operator>>(double& value) { return Get(value); }

    CString m_strFileName;  ///< path of the file, for exceptions

private:
    friend AFX_API_EXPORT CArchive& AFXAPI operator>>(CArchive& ar, CString& string);

    template <class T>
    CArchive& Put(T value) {
        if (!IsStoring())
            ThrowReadOnly();
        if (m_lpBufMax - m_lpBufCur < ptrdiff_t(sizeof(T)))
            Flush();
        std::memcpy(m_lpBufCur, &value, sizeof(T));
        m_lpBufCur += sizeof(T);
        return *this;
    }
    template <class T>
    CArchive& Get(T& value) {
        if (!IsLoading())
            ThrowWriteOnly();
        if (m_lpBufMax - m_lpBufCur < ptrdiff_t(sizeof(T)))
            FillBuffer(sizeof(T));
        std::memcpy(&value, m_lpBufCur, sizeof(T));
        m_lpBufCur += sizeof(T);
        return *this;
    }

    [[noreturn]] void ThrowReadOnly() const;
    [[noreturn]] void ThrowWriteOnly() const;
    void RequireFile() const;
    void FillBuffer(UINT needed);
    ULONGLONG BytesLeft() const;
    bool LoadBufferedText(CString& string);
    void LetGo();

    struct ObjectTable;
    class ObjectScope;
    ObjectTable& Objects();
    void ForgetObjects();
    void WriteClass(const CRuntimeClass* pClass);
    const CRuntimeClass* ReadClass(const CRuntimeClass* pClass, UINT& schema, DWORD& number);
    CObject* LoadNew(const CRuntimeClass* pClass, UINT schema);
    [[noreturn]] void Throw(int cause) const;

    UINT m_nMode;
    BOOL m_bUserBuf;
    CFile* m_pFile;
    int m_nBufSize;
    BYTE* m_lpBufStart;
    BYTE* m_lpBufCur;
    BYTE* m_lpBufMax;  // storing: end of the buffer, loading: end of what was read
    ObjectTable* m_pObjects = nullptr;
    UINT m_nObjectSchema = static_cast<UINT>(-1);
};

/// Stores the text as FF FE FF, its length (one byte below 255, else FF and two bytes below FFFE, else FF FF
/// FF and four bytes) and its UTF-16LE characters.
AFX_API_EXPORT CArchive& AFXAPI operator<<(CArchive& ar, const CString& string);
/// Loads that form, or the one without FF FE FF, whose characters are bytes of the ANSI code page. A length
/// beyond the data that is left raises endOfFile before any memory is taken.
AFX_API_EXPORT CArchive& AFXAPI operator>>(CArchive& ar, CString& string);

inline CArchive& operator<<(CArchive& ar, const CObject* pOb) {
    ar.WriteObject(pOb);
    return ar;
}
inline CArchive& operator>>(CArchive& ar, CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}
inline CArchive& operator>>(CArchive& ar, const CObject*& pOb) {
    pOb = ar.ReadObject(nullptr);
    return ar;
}
