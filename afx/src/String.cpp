// The text's memory: sharing, growing, assigning and appending.
#include <afx.h>

#include "Resources.h"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <cwchar>

namespace {

constexpr ptrdiff_t kLongest = INT_MAX / 2 - 64;
// Capacities come in steps, so that a string built character by character moves seldom.
constexpr ptrdiff_t kStep = 8;

int Length(LPCWSTR text) {
    const size_t length = text ? std::wcslen(text) : 0;
    if (length > size_t(kLongest))
        AfxThrowMemoryException();
    return int(length);
}

}  // namespace

constinit CString::NilString CString::s_nil{{{1}, 0, 0}, 0};

wchar_t* CString::Allocate(ptrdiff_t capacity) {
    if (capacity > kLongest)
        AfxThrowMemoryException();
    const ptrdiff_t rounded = capacity / kStep * kStep + kStep - 1;
    void* memory = std::malloc(sizeof(CStringData) + (rounded + 1) * sizeof(wchar_t));
    if (!memory)
        AfxThrowMemoryException();
    wchar_t* text = (new (memory) CStringData{{1}, 0, int(rounded)})->data();
    text[0] = 0;
    return text;
}

void CString::Free(wchar_t* text) noexcept {
    std::free(Data(text));
}

void CString::ThrowBadIndex() {
    AfxThrowInvalidArgException();
}

LPWSTR CString::PrepareWrite(ptrdiff_t capacity) {
    CStringData* data = Data(m_pszData);
    if (IsOwn() && capacity <= data->nAllocLength)
        return m_pszData;
    if (IsOwn())
        capacity = std::max(capacity, std::min<ptrdiff_t>(data->nAllocLength * ptrdiff_t(3) / 2, kLongest));
    wchar_t* moved = Allocate(std::max<ptrdiff_t>(capacity, data->nDataLength));
    std::wmemcpy(moved, m_pszData, data->nDataLength + 1);
    Data(moved)->nDataLength = data->nDataLength;
    Drop(m_pszData);
    m_pszData = moved;
    return m_pszData;
}

CString::CString(LPCWSTR psz) : CString() {
    if (!LoadNumbered(psz))
        SetString(psz);
}

CString::CString(const wchar_t* pch, int nLength) : CString() {
    SetString(pch, nLength);
}

CString::CString(LPCSTR psz) : CString() {
    if (!LoadNumbered(psz))
        *this = psz;
}

CString::CString(const char* pch, int nLength) : CString() {
    Convert(pch, nLength);
}

CString::CString(wchar_t ch, int nRepeat) : CString() {
    if (nRepeat > 0)
        std::wmemset(GetBufferSetLength(nRepeat), ch, nRepeat);
}

bool CString::LoadNumbered(const void* text) {
    const auto number = reinterpret_cast<ULONG_PTR>(text);
    if (number == 0 || !IS_INTRESOURCE(text))
        return false;
    LoadString(UINT(number));
    return true;
}

BOOL CString::LoadString(UINT nID) {
    return LoadString(FindStringModule(nID), nID);
}

BOOL CString::LoadString(HINSTANCE hInstance, UINT nID) {
    LPCWSTR text = nullptr;
    const int length = ::LoadStringW(hInstance, nID, reinterpret_cast<LPWSTR>(&text), 0);
    if (length <= 0)
        return FALSE;
    SetString(text, length);
    return TRUE;
}

CString& CString::operator=(LPCWSTR psz) {
    SetString(psz);
    return *this;
}

CString& CString::operator=(LPCSTR psz) {
    const size_t length = psz ? std::strlen(psz) : 0;
    if (length > size_t(kLongest))
        AfxThrowMemoryException();
    Convert(psz, int(length));
    return *this;
}

CString& CString::operator=(wchar_t ch) {
    SetString(&ch, 1);
    return *this;
}

void CString::Convert(const char* pch, int nLength) {
    CString converted;
    const int length = nLength > 0 ? ::MultiByteToWideChar(CP_ACP, 0, pch, nLength, nullptr, 0) : 0;
    if (length > 0)
        ::MultiByteToWideChar(CP_ACP, 0, pch, nLength, converted.GetBufferSetLength(length), length);
    *this = std::move(converted);
}

void CString::SetString(LPCWSTR psz) {
    SetString(psz, Length(psz));
}

void CString::SetString(LPCWSTR pch, int nLength) {
    if (!pch || nLength <= 0)
        return Empty();
    if (IsOwn() && nLength <= GetAllocLength()) {
        std::wmemmove(m_pszData, pch, nLength);
    } else {
        // The source may lie in the old text, which is let go last.
        wchar_t* text = Allocate(nLength);
        std::wmemcpy(text, pch, nLength);
        Drop(m_pszData);
        m_pszData = text;
    }
    SetLength(nLength);
}

void CString::Empty() noexcept {
    Drop(m_pszData);
    m_pszData = Nil();
}

void CString::FreeExtra() {
    if (IsOwn() && GetAllocLength() - GetLength() >= kStep)
        *this = CString(m_pszData, GetLength());
}

void CString::SetAt(int iChar, wchar_t ch) {
    if (iChar < 0 || iChar >= GetLength())
        ThrowBadIndex();
    PrepareWrite(GetLength())[iChar] = ch;
}

LPWSTR CString::GetBuffer() {
    return PrepareWrite(GetLength());
}

LPWSTR CString::GetBuffer(int nMinBufferLength) {
    if (nMinBufferLength < 0)
        ThrowBadIndex();
    return PrepareWrite(nMinBufferLength);
}

LPWSTR CString::GetBufferSetLength(int nLength) {
    GetBuffer(nLength);
    SetLength(nLength);
    return m_pszData;
}

void CString::ReleaseBuffer(int nNewLength) {
    if (nNewLength < 0)
        nNewLength = int(wcsnlen(m_pszData, GetAllocLength()));
    if (nNewLength > GetAllocLength())
        ThrowBadIndex();
    // Without a GetBuffer before it the text may be shared.
    if (nNewLength != GetLength())
        PrepareWrite(nNewLength);
    if (IsOwn())
        SetLength(nNewLength);
}

void CString::Preallocate(int nLength) {
    if (nLength > GetAllocLength())
        PrepareWrite(nLength);
}

void CString::Truncate(int nNewLength) {
    if (nNewLength >= GetLength())
        return;
    PrepareWrite(GetLength());
    SetLength(std::max(nNewLength, 0));
}

void CString::Append(LPCWSTR psz) {
    Append(psz, Length(psz));
}

void CString::Append(LPCWSTR pch, int nLength) {
    if (!pch || nLength <= 0)
        return;
    const int oldLength = GetLength();
    // The added text may be part of this one: keep that alive until it is copied.
    const CString source = pch >= m_pszData && pch <= m_pszData + oldLength ? *this : CString();
    std::wmemcpy(PrepareWrite(ptrdiff_t(oldLength) + nLength) + oldLength, pch, nLength);
    SetLength(oldLength + nLength);
}

CString& CString::operator+=(const CString& text) {
    if (IsEmpty())
        *this = text;
    else
        Append(text.m_pszData, text.GetLength());
    return *this;
}

CString& CString::operator+=(LPCWSTR psz) {
    Append(psz);
    return *this;
}

CString& CString::operator+=(LPCSTR psz) {
    return *this += CString(psz);
}

CString& CString::operator+=(wchar_t ch) {
    AppendChar(ch);
    return *this;
}

int CString::Compare(LPCWSTR psz) const noexcept {
    return std::wcscmp(m_pszData, psz ? psz : L"");
}

int CString::CompareNoCase(LPCWSTR psz) const noexcept {
    return m_pszData == psz ? 0 : ::_wcsicmp(m_pszData, psz ? psz : L"");
}

namespace {

CString Join(LPCWSTR a, int lengthA, LPCWSTR b, int lengthB) {
    CString joined;
    if (ptrdiff_t(lengthA) + lengthB > kLongest)
        AfxThrowMemoryException();
    joined.Preallocate(lengthA + lengthB);
    joined.Append(a, lengthA);
    joined.Append(b, lengthB);
    return joined;
}

}  // namespace

CString AFXAPI operator+(const CString& a, const CString& b) {
    return Join(a, a.GetLength(), b, b.GetLength());
}

CString AFXAPI operator+(const CString& a, LPCWSTR b) {
    return Join(a, a.GetLength(), b, Length(b));
}

CString AFXAPI operator+(LPCWSTR a, const CString& b) {
    return Join(a, Length(a), b, b.GetLength());
}

CString AFXAPI operator+(const CString& a, LPCSTR b) {
    return a + CString(b);
}

CString AFXAPI operator+(LPCSTR a, const CString& b) {
    return CString(a) + b;
}

CString AFXAPI operator+(const CString& a, wchar_t b) {
    return Join(a, a.GetLength(), &b, 1);
}

CString AFXAPI operator+(wchar_t a, const CString& b) {
    return Join(&a, 1, b, b.GetLength());
}
