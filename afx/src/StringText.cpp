// What the text says: formatting, parts, searching and changing.
#include <afx.h>

#include <algorithm>
#include <cwchar>
#include <cwctype>
#include <utility>

void CString::FormatArguments(LPCWSTR pszFormat, ...) {
    va_list args;
    va_start(args, pszFormat);
    struct End {
        va_list& args;
        ~End() { va_end(args); }
    } end{args};
    FormatV(pszFormat, args);
}

void CString::FormatV(LPCWSTR pszFormat, va_list args) {
    if (!pszFormat)
        AfxThrowInvalidArgException();
    // The runtime's own functions: in them %s is wide text, in the compiler's replacements it is bytes.
    wchar_t brief[256];
    va_list copy;
    va_copy(copy, args);
    int length = ::_vsnwprintf(brief, ARRAYSIZE(brief), pszFormat, copy);
    va_end(copy);
    if (length >= 0)
        return SetString(brief, length);

    va_copy(copy, args);
    length = ::_vscwprintf(pszFormat, copy);
    va_end(copy);
    if (length < 0)
        AfxThrowInvalidArgException();
    CString formatted;
    ::_vsnwprintf(formatted.GetBuffer(length), size_t(length) + 1, pszFormat, args);
    formatted.ReleaseBuffer(length);
    *this = std::move(formatted);
}

void CString::AppendFormatV(LPCWSTR pszFormat, va_list args) {
    CString added;
    added.FormatV(pszFormat, args);
    *this += added;
}

CString CString::Left(int nCount) const {
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const {
    return Mid(nCount >= GetLength() ? 0 : GetLength() - std::max(nCount, 0));
}

CString CString::Mid(int iFirst) const {
    return Mid(iFirst, GetLength());
}

CString CString::Mid(int iFirst, int nCount) const {
    iFirst = std::clamp(iFirst, 0, GetLength());
    nCount = std::clamp(nCount, 0, GetLength() - iFirst);
    return nCount == GetLength() ? *this : CString(m_pszData + iFirst, nCount);
}

CString CString::SpanIncluding(LPCWSTR pszCharSet) const {
    return Left(int(std::wcsspn(m_pszData, pszCharSet)));
}

CString CString::SpanExcluding(LPCWSTR pszCharSet) const {
    return Left(int(std::wcscspn(m_pszData, pszCharSet)));
}

CString CString::Tokenize(LPCWSTR pszTokens, int& iStart) const {
    if (iStart >= 0 && iStart < GetLength()) {
        const int first = iStart + int(std::wcsspn(m_pszData + iStart, pszTokens));
        if (first < GetLength()) {
            const int count = int(std::wcscspn(m_pszData + first, pszTokens));
            iStart = first + count + 1;
            return Mid(first, count);
        }
    }
    iStart = -1;
    return CString();
}

int CString::Find(LPCWSTR pszSub, int iStart) const noexcept {
    if (!pszSub || iStart < 0 || iStart > GetLength())
        return -1;
    const wchar_t* found = std::wcsstr(m_pszData + iStart, pszSub);
    return found ? int(found - m_pszData) : -1;
}

int CString::Find(wchar_t ch, int iStart) const noexcept {
    if (iStart < 0 || iStart >= GetLength())
        return -1;
    const wchar_t* found = std::wmemchr(m_pszData + iStart, ch, GetLength() - iStart);
    return found ? int(found - m_pszData) : -1;
}

int CString::ReverseFind(wchar_t ch) const noexcept {
    int i = GetLength() - 1;
    while (i >= 0 && m_pszData[i] != ch)
        --i;
    return i;
}

int CString::FindOneOf(LPCWSTR pszCharSet) const noexcept {
    const wchar_t* found = pszCharSet ? std::wcspbrk(m_pszData, pszCharSet) : nullptr;
    return found ? int(found - m_pszData) : -1;
}

CString& CString::MakeUpper() {
    if (!IsEmpty())
        ::CharUpperBuffW(GetBuffer(), GetLength());
    return *this;
}

CString& CString::MakeLower() {
    if (!IsEmpty())
        ::CharLowerBuffW(GetBuffer(), GetLength());
    return *this;
}

CString& CString::MakeReverse() {
    LPWSTR text = GetBuffer();
    std::reverse(text, text + GetLength());
    return *this;
}

namespace {

auto IsSpace() {
    return [](wchar_t ch) { return std::iswspace(ch) != 0; };
}

auto IsOneOf(LPCWSTR set) {
    return [set](wchar_t ch) { return ch && set && std::wcschr(set, ch); };
}

template <class Test>
CString& CutLeft(CString& text, Test test) {
    int count = 0;
    while (count < text.GetLength() && test(text[count]))
        ++count;
    if (count)
        text.Delete(0, count);
    return text;
}

template <class Test>
CString& CutRight(CString& text, Test test) {
    int length = text.GetLength();
    while (length > 0 && test(text[length - 1]))
        --length;
    text.Truncate(length);
    return text;
}

}  // namespace

CString& CString::TrimLeft() {
    return CutLeft(*this, IsSpace());
}

CString& CString::TrimLeft(wchar_t chTarget) {
    return CutLeft(*this, [=](wchar_t ch) { return ch == chTarget; });
}

CString& CString::TrimLeft(LPCWSTR pszTargets) {
    return CutLeft(*this, IsOneOf(pszTargets));
}

CString& CString::TrimRight() {
    return CutRight(*this, IsSpace());
}

CString& CString::TrimRight(wchar_t chTarget) {
    return CutRight(*this, [=](wchar_t ch) { return ch == chTarget; });
}

CString& CString::TrimRight(LPCWSTR pszTargets) {
    return CutRight(*this, IsOneOf(pszTargets));
}

int CString::Replace(wchar_t chOld, wchar_t chNew) {
    const int count = int(std::count(m_pszData, m_pszData + GetLength(), chOld));
    if (count && chOld != chNew) {
        LPWSTR text = GetBuffer();
        std::replace(text, text + GetLength(), chOld, chNew);
    }
    return count;
}

int CString::Replace(LPCWSTR pszOld, LPCWSTR pszNew) {
    const int oldLength = pszOld ? int(std::wcslen(pszOld)) : 0;
    int at = oldLength ? Find(pszOld) : -1;
    if (at < 0)
        return 0;
    CString result;
    result.Preallocate(GetLength());
    int count = 0, from = 0;
    for (; at >= 0; at = Find(pszOld, from)) {
        result.Append(m_pszData + from, at - from);
        result.Append(pszNew);
        from = at + oldLength;
        ++count;
    }
    result.Append(m_pszData + from, GetLength() - from);
    *this = std::move(result);
    return count;
}

int CString::Remove(wchar_t ch) {
    if (Find(ch) < 0)
        return 0;
    LPWSTR text = GetBuffer();
    const int kept = int(std::remove(text, text + GetLength(), ch) - text);
    const int count = GetLength() - kept;
    ReleaseBuffer(kept);
    return count;
}

int CString::Insert(int iIndex, wchar_t ch) {
    const wchar_t text[] = {ch, 0};
    return Insert(iIndex, text);
}

int CString::Insert(int iIndex, LPCWSTR psz) {
    iIndex = std::clamp(iIndex, 0, GetLength());
    *this = Left(iIndex) + psz + Mid(iIndex);
    return GetLength();
}

int CString::Delete(int iIndex, int nCount) {
    iIndex = std::clamp(iIndex, 0, GetLength());
    nCount = std::clamp(nCount, 0, GetLength() - iIndex);
    if (nCount) {
        const int length = GetLength();
        LPWSTR text = GetBuffer();
        std::wmemmove(text + iIndex, text + iIndex + nCount, length - iIndex - nCount);
        ReleaseBuffer(length - nCount);
    }
    return GetLength();
}
