#include <afx.h>

#include <algorithm>
#include <climits>
#include <new>
#include <utility>

namespace {

constexpr int kSmallestBuffer = 128;

}  // namespace

CArchive::CArchive(CFile* pFile, UINT nMode, int nBufSize, void* lpBuf)
    : m_nMode(nMode),
      m_bUserBuf(lpBuf && nBufSize >= kSmallestBuffer),
      m_pFile(pFile),
      m_nBufSize(std::max(nBufSize, kSmallestBuffer)) {
    if (!pFile)
        AfxThrowInvalidArgException();
    m_strFileName = pFile->GetFilePath();
    m_lpBufStart = m_bUserBuf ? static_cast<BYTE*>(lpBuf) : new (std::nothrow) BYTE[m_nBufSize];
    if (!m_lpBufStart)
        AfxThrowMemoryException();
    m_lpBufCur = m_lpBufStart;
    m_lpBufMax = IsStoring() ? m_lpBufStart + m_nBufSize : m_lpBufStart;
}

CArchive::~CArchive() {
    try {
        if (!(m_nMode & bNoFlushOnDelete))
            Close();
    } catch (CException* e) {
        TRACE(L"CArchive: data lost in %s\n", m_strFileName.GetString());
        e->Delete();
    }
    ForgetObjects();
    if (!m_bUserBuf)
        delete[] m_lpBufStart;
}

void CArchive::ThrowReadOnly() const {
    AfxThrowArchiveException(CArchiveException::readOnly, m_strFileName);
}

void CArchive::ThrowWriteOnly() const {
    AfxThrowArchiveException(CArchiveException::writeOnly, m_strFileName);
}

void CArchive::RequireFile() const {
    if (!m_pFile)
        AfxThrowArchiveException(CArchiveException::genericException, m_strFileName);
}

void CArchive::LetGo() {
    m_pFile = nullptr;
    m_lpBufCur = m_lpBufMax = m_lpBufStart;
}

void CArchive::Flush() {
    RequireFile();
    if (IsLoading()) {
        if (m_lpBufCur != m_lpBufMax)
            m_pFile->Seek(m_lpBufCur - m_lpBufMax, CFile::current);
        m_lpBufCur = m_lpBufMax = m_lpBufStart;
    } else {
        if (m_lpBufCur != m_lpBufStart)
            m_pFile->Write(m_lpBufStart, UINT(m_lpBufCur - m_lpBufStart));
        m_lpBufCur = m_lpBufStart;
    }
}

void CArchive::Close() {
    if (!m_pFile)
        return;
    Flush();
    LetGo();
}

void CArchive::Abort() {
    LetGo();
}

void CArchive::Write(const void* lpBuf, UINT nMax) {
    if (!IsStoring())
        ThrowReadOnly();
    RequireFile();
    const BYTE* from = static_cast<const BYTE*>(lpBuf);
    const UINT fits = UINT(std::min<ptrdiff_t>(nMax, m_lpBufMax - m_lpBufCur));
    std::memcpy(m_lpBufCur, from, fits);
    m_lpBufCur += fits;
    from += fits;
    nMax -= fits;
    if (nMax == 0)
        return;
    Flush();
    const UINT direct = nMax - nMax % UINT(m_nBufSize);
    if (direct)
        m_pFile->Write(from, direct);
    std::memcpy(m_lpBufCur, from + direct, nMax - direct);
    m_lpBufCur += nMax - direct;
}

UINT CArchive::Read(void* lpBuf, UINT nMax) {
    if (!IsLoading())
        ThrowWriteOnly();
    RequireFile();
    BYTE* to = static_cast<BYTE*>(lpBuf);
    UINT wanted = nMax;
    while (wanted) {
        const UINT buffered = UINT(std::min<ptrdiff_t>(wanted, m_lpBufMax - m_lpBufCur));
        std::memcpy(to, m_lpBufCur, buffered);
        m_lpBufCur += buffered;
        to += buffered;
        wanted -= buffered;
        if (wanted == 0)
            break;
        UINT read;
        if (wanted >= UINT(m_nBufSize)) {
            read = m_pFile->Read(to, wanted - wanted % UINT(m_nBufSize));
            to += read;
            wanted -= read;
        } else {
            read = m_pFile->Read(m_lpBufStart, UINT(m_nBufSize));
            m_lpBufCur = m_lpBufStart;
            m_lpBufMax = m_lpBufStart + read;
        }
        if (read == 0)
            break;
    }
    return nMax - wanted;
}

void CArchive::FillBuffer(UINT needed) {
    RequireFile();
    const ptrdiff_t kept = m_lpBufMax - m_lpBufCur;
    std::memmove(m_lpBufStart, m_lpBufCur, size_t(kept));
    m_lpBufCur = m_lpBufStart;
    m_lpBufMax = m_lpBufStart + kept;
    while (m_lpBufMax - m_lpBufStart < ptrdiff_t(needed)) {
        const UINT read = m_pFile->Read(m_lpBufMax, UINT(m_lpBufStart + m_nBufSize - m_lpBufMax));
        if (read == 0)
            AfxThrowArchiveException(CArchiveException::endOfFile, m_strFileName);
        m_lpBufMax += read;
    }
}

ULONGLONG CArchive::BytesLeft() const {
    const ULONGLONG length = m_pFile->GetLength(), position = m_pFile->GetPosition();
    return ULONGLONG(m_lpBufMax - m_lpBufCur) + (length > position ? length - position : 0);
}

// The common case: a short text that the buffer holds whole. A text that is there already keeps its sharing.
inline bool CArchive::LoadBufferedText(CString& string) {
    constexpr DWORD kUnicodeText = 0x00FFFEFF;  // the marks before a length of one byte
    DWORD head;
    const ptrdiff_t buffered = m_lpBufMax - m_lpBufCur;
    if (!IsLoading() || buffered < ptrdiff_t(sizeof head))
        return false;
    std::memcpy(&head, m_lpBufCur, sizeof head);
    const int count = int(head >> 24);
    const size_t size = size_t(count) * sizeof(wchar_t);
    if ((head & 0x00FFFFFF) != kUnicodeText || count == 0xFF || size_t(buffered) < sizeof head + size)
        return false;
    const BYTE* text = m_lpBufCur + sizeof head;
    m_lpBufCur += sizeof head + size;
    if (count == string.GetLength() && std::memcmp(text, string.GetString(), size) == 0)
        return true;
    CString loaded;
    std::memcpy(loaded.GetBuffer(count), text, size);
    loaded.ReleaseBuffer(count);
    string = std::move(loaded);
    return true;
}

namespace {

constexpr BYTE kLongerThanByte = 0xFF;
constexpr WORD kUnicodeMark = 0xFFFE;
constexpr WORD kLongerThanWord = 0xFFFF;
constexpr DWORD kLongerThanDword = 0xFFFFFFFF;

struct StoredLength {
    ULONGLONG characters;
    UINT characterSize;
};

StoredLength ReadStringLength(CArchive& ar) {
    StoredLength length = {0, sizeof(char)};
    BYTE byte;
    WORD word;
    DWORD dword;
    ar >> byte;
    if (byte == kLongerThanByte) {
        ar >> word;
        if (word == kUnicodeMark) {
            length.characterSize = sizeof(wchar_t);
            ar >> byte;
            if (byte == kLongerThanByte)
                ar >> word;
        }
    }
    if (byte != kLongerThanByte) {
        length.characters = byte;
    } else if (word != kLongerThanWord) {
        length.characters = word;
    } else if (ar >> dword; dword != kLongerThanDword) {
        length.characters = dword;
    } else {
        ar >> length.characters;
    }
    return length;
}

void WriteStringLength(CArchive& ar, int length) {
    ar << kLongerThanByte << kUnicodeMark;
    if (length < kLongerThanByte)
        ar << BYTE(length);
    else if (length < kUnicodeMark)
        ar << kLongerThanByte << WORD(length);
    else
        ar << kLongerThanByte << kLongerThanWord << DWORD(length);
}

}  // namespace

CArchive& AFXAPI operator<<(CArchive& ar, const CString& string) {
    WriteStringLength(ar, string.GetLength());
    ar.Write(string.GetString(), UINT(string.GetLength()) * sizeof(wchar_t));
    return ar;
}

CArchive& AFXAPI operator>>(CArchive& ar, CString& string) {
    if (ar.LoadBufferedText(string))
        return ar;
    const StoredLength length = ReadStringLength(ar);
    const auto buffered = ULONGLONG(ar.m_lpBufMax - ar.m_lpBufCur);
    // The file is only asked for what the buffer does not hold already.
    if (length.characters > buffered / length.characterSize &&
        length.characters > ar.BytesLeft() / length.characterSize)
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.m_strFileName);
    if (length.characters > INT_MAX)
        AfxThrowMemoryException();
    const int count = int(length.characters);
    const UINT bytes = UINT(count) * length.characterSize;
    CString loaded, ansi;
    // Bytes of the ANSI form are read into a string's memory and converted from there.
    CString& target = length.characterSize == sizeof(wchar_t) ? loaded : ansi;
    void* memory = target.GetBuffer(length.characterSize == sizeof(wchar_t) ? count : count / 2 + 1);
    if (ar.Read(memory, bytes) != bytes)
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.m_strFileName);
    if (&target == &loaded)
        loaded.ReleaseBuffer(count);
    else
        loaded = CString(static_cast<const char*>(memory), count);
    string = std::move(loaded);
    return ar;
}
