// CFile, a file of the system, and CMemFile, a file in memory.
#pragma once

#include <afxobj_.h>
#include <afxstr.h>

class CFileException;

/// A file of the system. Failures raise CFileException, except where a member says otherwise.
class AFX_CLASS_EXPORT CFile : public CObject {
    DECLARE_DYNAMIC(CFile)

    /// One access mode, one share mode and options, combined with `|`.
    enum OpenFlags {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        modeReadWrite = 0x0002,
        shareCompat = 0x0000,
        shareExclusive = 0x0010,
        shareDenyWrite = 0x0020,
        shareDenyRead = 0x0030,
        shareDenyNone = 0x0040,
        modeNoInherit = 0x0080,
        modeCreate = 0x1000,      ///< makes the file, or empties the one that is there
        modeNoTruncate = 0x2000,  ///< with modeCreate: keeps what is there
        typeText = 0x4000,
        typeBinary = 0x8000,
        osNoBuffer = 0x10000,
        osWriteThrough = 0x20000,
        osRandomAccess = 0x40000,
        osSequentialScan = 0x80000
    };
    enum SeekPosition { begin = 0, current = 1, end = 2 };

    static const HANDLE hFileNull;  ///< the value of m_hFile when no file is open

    CFile();
    /// Takes an open file over and closes it in the end.
    explicit CFile(HANDLE hFile);
    /// Opens a file or raises the exception.
    CFile(LPCWSTR lpszFileName, UINT nOpenFlags);
    /// Closes the file; a failure is not reported.
    ~CFile() override;

    operator HANDLE() const { return m_hFile; }

    /// Opens a file. FALSE when that fails, with cause, error code and path in `pError` when it is given.
    virtual BOOL Open(LPCWSTR lpszFileName, UINT nOpenFlags, CFileException* pError = nullptr);

    /// Name without folders, and full path; empty when no file was opened by name.
    virtual CString GetFileName() const;
    virtual CString GetFilePath() const;
    /// Sets the path that GetFilePath and exceptions give; the file stays the same.
    virtual void SetFilePath(LPCWSTR lpszNewName);

    /// Position, length and moves in bytes; Seek returns the new position from the beginning.
    virtual ULONGLONG GetPosition() const;
    virtual ULONGLONG GetLength() const;
    virtual ULONGLONG Seek(LONGLONG lOff, UINT nFrom);
    ULONGLONG SeekToEnd() { return Seek(0, end); }
    void SeekToBegin() { Seek(0, begin); }
    /// Cuts or extends the file; the position is at the new end afterwards.
    virtual void SetLength(ULONGLONG dwNewLen);

    /// Reads up to `nCount` bytes and returns how many there were; 0 at the end.
    virtual UINT Read(void* lpBuf, UINT nCount);
    /// Writes all bytes, or raises CFileException::diskFull when the disk takes fewer.
    virtual void Write(const void* lpBuf, UINT nCount);

    /// Brings what was written to the disk.
    virtual void Flush();
    virtual void Close();
    /// Closes without raising an exception whatever happens.
    virtual void Abort();

    static void PASCAL Rename(LPCWSTR lpszOldName, LPCWSTR lpszNewName);
    static void PASCAL Remove(LPCWSTR lpszFileName);

    HANDLE m_hFile;  ///< the system's handle; hFileNull when no file is open

protected:
    BOOL m_bCloseOnDelete;
    CString m_strFileName;

private:
    [[noreturn]] void ThrowLastError() const;
    void RequireOpen() const;
};

/// A file in memory, which grows as it is written. Positions and sizes are in bytes.
class AFX_CLASS_EXPORT CMemFile : public CFile {
    DECLARE_DYNAMIC(CMemFile)

    /// An empty file that grows by multiples of `nGrowBytes` (0: not at all).
    explicit CMemFile(UINT nGrowBytes = 1024);
    /// A file on the caller's memory, which stays the caller's; see Attach.
    CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    ~CMemFile() override;

    /// Puts the file on the caller's memory: its content when `nGrowBytes` is 0, else an empty file with that
    /// room, where the memory must come from malloc.
    void Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes = 0);
    /// Gives the memory to the caller, who frees it with free; the file is empty afterwards. Null when there
    /// is none.
    BYTE* Detach();

    ULONGLONG GetPosition() const override;
    ULONGLONG GetLength() const override;
    ULONGLONG Seek(LONGLONG lOff, UINT nFrom) override;
    /// Cuts the file or extends it with zeros; the position stays unless it would lie behind the new end.
    void SetLength(ULONGLONG dwNewLen) override;
    UINT Read(void* lpBuf, UINT nCount) override;
    void Write(const void* lpBuf, UINT nCount) override;
    void Flush() override;
    /// Frees the memory when it is the file's own.
    void Close() override;
    void Abort() override;

protected:
    virtual BYTE* Alloc(SIZE_T nBytes);
    virtual BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes);
    virtual void Free(BYTE* lpMem);
    /// Makes room for `dwNewLen` bytes or raises CMemoryException.
    virtual void GrowFile(SIZE_T dwNewLen);

    SIZE_T m_nGrowBytes;
    SIZE_T m_nPosition;
    SIZE_T m_nBufferSize;
    SIZE_T m_nFileSize;
    BYTE* m_lpBuffer;
    BOOL m_bAutoDelete;

private:
    void Reset();
};
