// CMemFile and CSharedFile: files in memory.
#include <afx.h>
#include <afxadv.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <utility>

IMPLEMENT_DYNAMIC(CMemFile, CFile)
IMPLEMENT_DYNAMIC(CSharedFile, CMemFile)

namespace {

SIZE_T RoundUp(SIZE_T size, SIZE_T step) {
    return (size + step - 1) / step * step;
}

}  // namespace

CMemFile::CMemFile(UINT nGrowBytes) : m_nGrowBytes(nGrowBytes) {
    Reset();
}

CMemFile::CMemFile(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) : CMemFile(nGrowBytes) {
    Attach(lpBuffer, nBufferSize, nGrowBytes);
}

CMemFile::~CMemFile() {
    CMemFile::Close();
}

void CMemFile::Reset() {
    m_nPosition = m_nBufferSize = m_nFileSize = 0;
    m_lpBuffer = nullptr;
    m_bAutoDelete = TRUE;
}

void CMemFile::Attach(BYTE* lpBuffer, UINT nBufferSize, UINT nGrowBytes) {
    Close();
    m_lpBuffer = lpBuffer;
    m_nBufferSize = nBufferSize;
    m_nFileSize = nGrowBytes ? 0 : nBufferSize;
    m_nGrowBytes = nGrowBytes;
    m_bAutoDelete = FALSE;
}

BYTE* CMemFile::Detach() {
    BYTE* detached = m_lpBuffer;
    Reset();
    return detached;
}

ULONGLONG CMemFile::GetPosition() const {
    return m_nPosition;
}

ULONGLONG CMemFile::GetLength() const {
    return m_nFileSize;
}

ULONGLONG CMemFile::Seek(LONGLONG lOff, UINT nFrom) {
    const LONGLONG origin = nFrom == begin ? 0 : LONGLONG(nFrom == current ? m_nPosition : m_nFileSize);
    LONGLONG position;
    if (nFrom > end || __builtin_add_overflow(origin, lOff, &position) || position < 0)
        AfxThrowFileException(CFileException::badSeek);
    m_nPosition = SIZE_T(position);
    return m_nPosition;
}

void CMemFile::SetLength(ULONGLONG dwNewLen) {
    GrowFile(SIZE_T(dwNewLen));
    if (dwNewLen > m_nFileSize)
        std::memset(m_lpBuffer + m_nFileSize, 0, SIZE_T(dwNewLen) - m_nFileSize);
    m_nFileSize = SIZE_T(dwNewLen);
    m_nPosition = std::min(m_nPosition, m_nFileSize);
}

UINT CMemFile::Read(void* lpBuf, UINT nCount) {
    if (m_nPosition >= m_nFileSize)
        return 0;
    const UINT read = UINT(std::min<SIZE_T>(nCount, m_nFileSize - m_nPosition));
    std::memcpy(lpBuf, m_lpBuffer + m_nPosition, read);
    m_nPosition += read;
    return read;
}

void CMemFile::Write(const void* lpBuf, UINT nCount) {
    if (nCount == 0)
        return;
    const SIZE_T position = m_nPosition;
    if (position > m_nFileSize)
        SetLength(position);
    GrowFile(position + nCount);
    std::memcpy(m_lpBuffer + position, lpBuf, nCount);
    m_nPosition = position + nCount;
    m_nFileSize = std::max(m_nFileSize, m_nPosition);
}

void CMemFile::Flush() {}

void CMemFile::Close() {
    if (m_lpBuffer && m_bAutoDelete)
        Free(m_lpBuffer);
    Reset();
}

void CMemFile::Abort() {
    Close();
}

BYTE* CMemFile::Alloc(SIZE_T nBytes) {
    return static_cast<BYTE*>(std::malloc(nBytes));
}

BYTE* CMemFile::Realloc(BYTE* lpMem, SIZE_T nBytes) {
    return static_cast<BYTE*>(std::realloc(lpMem, nBytes));
}

void CMemFile::Free(BYTE* lpMem) {
    std::free(lpMem);
}

void CMemFile::GrowFile(SIZE_T dwNewLen) {
    if (dwNewLen <= m_nBufferSize)
        return;
    if (m_nGrowBytes == 0 || dwNewLen > SIZE_T(PTRDIFF_MAX) / 2)
        AfxThrowMemoryException();
    // Half as much again at least: a block that moves for every step would cost the square of its size.
    const SIZE_T size = RoundUp(std::max(dwNewLen, m_nBufferSize + m_nBufferSize / 2), m_nGrowBytes);
    BYTE* grown = m_lpBuffer ? Realloc(m_lpBuffer, size) : Alloc(size);
    if (!grown)
        AfxThrowMemoryException();
    m_lpBuffer = grown;
    m_nBufferSize = size;
}

CSharedFile::CSharedFile(UINT nAllocFlags, UINT nGrowBytes)
    : CMemFile(nGrowBytes), m_nAllocFlags(nAllocFlags | GMEM_ZEROINIT) {}

CSharedFile::~CSharedFile() {
    CSharedFile::Close();
}

HGLOBAL CSharedFile::Detach() {
    if (!m_hGlobalMemory)
        return nullptr;
    const SIZE_T size = m_nGrowBytes ? RoundUp(m_nFileSize, m_nGrowBytes) : m_nBufferSize;
    HGLOBAL detached = m_hGlobalMemory;
    m_hGlobalMemory = nullptr;
    CMemFile::Detach();
    ::GlobalUnlock(detached);
    if (size && size < ::GlobalSize(detached))
        if (HGLOBAL shrunk = ::GlobalReAlloc(detached, size, m_nAllocFlags))
            detached = shrunk;
    return detached;
}

void CSharedFile::SetHandle(HGLOBAL hGlobalMemory, BOOL bAllowGrow) {
    Close();
    m_lpBuffer = hGlobalMemory ? static_cast<BYTE*>(::GlobalLock(hGlobalMemory)) : nullptr;
    if (!m_lpBuffer)
        AfxThrowInvalidArgException();
    m_hGlobalMemory = hGlobalMemory;
    m_nBufferSize = m_nFileSize = ::GlobalSize(hGlobalMemory);
    m_bAutoDelete = bAllowGrow;
    if (!bAllowGrow)
        m_nGrowBytes = 0;
}

void CSharedFile::Close() {
    if (m_hGlobalMemory && !m_bAutoDelete)
        ::GlobalUnlock(std::exchange(m_hGlobalMemory, nullptr));
    CMemFile::Close();
}

BYTE* CSharedFile::Alloc(SIZE_T nBytes) {
    m_hGlobalMemory = ::GlobalAlloc(m_nAllocFlags, nBytes);
    return m_hGlobalMemory ? static_cast<BYTE*>(::GlobalLock(m_hGlobalMemory)) : nullptr;
}

BYTE* CSharedFile::Realloc(BYTE* lpMem, SIZE_T nBytes) {
    ::GlobalUnlock(m_hGlobalMemory);
    HGLOBAL grown = ::GlobalReAlloc(m_hGlobalMemory, nBytes, m_nAllocFlags);
    if (grown)
        m_hGlobalMemory = grown;
    BYTE* locked = static_cast<BYTE*>(::GlobalLock(m_hGlobalMemory));
    // The old block stays when there is no larger one; it is locked again at its old place.
    m_lpBuffer = locked ? locked : lpMem;
    return grown ? locked : nullptr;
}

void CSharedFile::Free(BYTE*) {
    HGLOBAL memory = std::exchange(m_hGlobalMemory, nullptr);
    ::GlobalUnlock(memory);
    ::GlobalFree(memory);
}
