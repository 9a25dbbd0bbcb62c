// CString, the class library's text.
#pragma once

#include <afxver_.h>

#include <windows.h>

#include <atomic>
#include <compare>
#include <cstdarg>
#include <cstddef>
#include <type_traits>

/// What stands in front of the characters of a string; shared by all copies of the text.
struct CStringData {
    std::atomic<long> nRefs;  ///< strings that point here
    int nDataLength;          ///< characters, without the terminator
    int nAllocLength;         ///< characters that fit, without the terminator

    wchar_t* data() noexcept { return reinterpret_cast<wchar_t*>(this + 1); }
};

/// An argument as printf's `...` can carry it: a string class goes as its character pointer, all else as it
/// is.
template <class T>
auto AfxVarArg(const T& arg) {
    if constexpr (std::is_class_v<T>)
        return static_cast<LPCWSTR>(arg);
    else
        return arg;
}

/// UTF-16 text of any length. One pointer wide and reference counted: copies share the characters and
/// allocate nothing, a change first makes the text the string's own. The count is atomic, so copies may go to
/// other threads; one string object belongs to one thread at a time. Lack of memory raises CMemoryException,
/// an index outside the text CInvalidArgException. A null pointer given as text stands for the empty text.
class AFX_CLASS_EXPORT CString {
public:
    using XCHAR = wchar_t;
    using PXSTR = LPWSTR;
    using PCXSTR = LPCWSTR;

    CString() noexcept : m_pszData(Nil()) {}
    CString(const CString& other) noexcept : m_pszData(Share(other.m_pszData)) {}
    CString(CString&& other) noexcept : m_pszData(other.m_pszData) { other.m_pszData = Nil(); }
    /// Also MAKEINTRESOURCE of a string resource's number: its text, empty when there is none.
    CString(LPCWSTR psz);
    /// The first `nLength` characters at `pch`, which may contain zeros.
    CString(const wchar_t* pch, int nLength);
    /// Converts from the ANSI code page; takes the number of a string resource, too.
    CString(LPCSTR psz);
    /// Converts `nLength` bytes from the ANSI code page.
    CString(const char* pch, int nLength);
    /// `nRepeat` times the character; empty for less than one.
    explicit CString(wchar_t ch, int nRepeat = 1);
    ~CString() { Drop(m_pszData); }

    // NOLINTNEXTLINE(bugprone-unhandled-self-assignment): the text is shared before the old one is dropped
    CString& operator=(const CString& other) noexcept {
        wchar_t* old = m_pszData;
        m_pszData = Share(other.m_pszData);
        Drop(old);
        return *this;
    }
    CString& operator=(CString&& other) noexcept {
        wchar_t* taken = other.m_pszData;
        other.m_pszData = m_pszData;
        m_pszData = taken;
        return *this;
    }
    CString& operator=(LPCWSTR psz);
    CString& operator=(LPCSTR psz);
    CString& operator=(wchar_t ch);
    void SetString(LPCWSTR psz);
    void SetString(LPCWSTR pch, int nLength);

    /// Takes the text of a string resource, looked for where AfxLoadString looks, or in one module. FALSE,
    /// and the old text stays, when there is none.
    BOOL LoadString(UINT nID);
    BOOL LoadString(HINSTANCE hInstance, UINT nID);

    int GetLength() const noexcept { return Data(m_pszData)->nDataLength; }
    bool IsEmpty() const noexcept { return GetLength() == 0; }
    /// Makes the text empty and gives its share of the memory back.
    void Empty() noexcept;
    /// Characters that fit before the text has to move, without the terminator.
    int GetAllocLength() const noexcept { return Data(m_pszData)->nAllocLength; }
    /// Gives back memory beyond the text's length.
    void FreeExtra();

    /// The characters, zero terminated, never null; valid until this string changes or ends.
    operator LPCWSTR() const noexcept { return m_pszData; }
    LPCWSTR GetString() const noexcept { return m_pszData; }
    /// Character at a 0-based index; the index `GetLength()` gives the terminator.
    wchar_t GetAt(int iChar) const {
        if (iChar < 0 || iChar > GetLength())
            ThrowBadIndex();
        return m_pszData[iChar];
    }
    wchar_t operator[](int iChar) const { return GetAt(iChar); }
    /// Replaces the character at a 0-based index below the length.
    void SetAt(int iChar, wchar_t ch);

    /// The characters for writing, for this string alone; end with ReleaseBuffer before any other member.
    LPWSTR GetBuffer();
    /// The same with room for at least `nMinBufferLength` characters and the terminator.
    LPWSTR GetBuffer(int nMinBufferLength);
    /// The same, with the length already set to `nLength`.
    LPWSTR GetBufferSetLength(int nLength);
    /// Sets the length after writing; -1 takes it from the terminator (at most the room given).
    void ReleaseBuffer(int nNewLength = -1);
    void ReleaseBufferSetLength(int nNewLength) { ReleaseBuffer(nNewLength); }
    /// Makes room for `nLength` characters without changing the text.
    void Preallocate(int nLength);
    /// Cuts the text to at most `nNewLength` characters.
    void Truncate(int nNewLength);

    void Append(LPCWSTR psz);
    void Append(LPCWSTR pch, int nLength);
    void AppendChar(wchar_t ch) { Append(&ch, 1); }
    CString& operator+=(const CString& text);
    CString& operator+=(LPCWSTR psz);
    CString& operator+=(LPCSTR psz);
    CString& operator+=(wchar_t ch);

    /// Below, at or above 0 as the text sorts before, with or after `psz` by character values.
    int Compare(LPCWSTR psz) const noexcept;
    /// The same, ignoring case in the sense of the current locale.
    int CompareNoCase(LPCWSTR psz) const noexcept;

    /// Sets the text as printf does; `%s` takes wide text, also a CString itself, `%S` or `%hs` bytes.
    template <class... Args>
    void Format(LPCWSTR pszFormat, Args... args) {
        FormatArguments(pszFormat, AfxVarArg(args)...);
    }
    /// Adds to the text as Format sets it.
    template <class... Args>
    void AppendFormat(LPCWSTR pszFormat, Args... args) {
        CString added;
        added.FormatArguments(pszFormat, AfxVarArg(args)...);
        *this += added;
    }
    void FormatV(LPCWSTR pszFormat, va_list args);
    void AppendFormatV(LPCWSTR pszFormat, va_list args);

    /// Parts of the text; counts beyond it are cut, negative ones are 0.
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString Mid(int iFirst) const;
    CString Mid(int iFirst, int nCount) const;
    /// The leading characters that are, or are not, in `pszCharSet`.
    CString SpanIncluding(LPCWSTR pszCharSet) const;
    CString SpanExcluding(LPCWSTR pszCharSet) const;
    /// The next piece between characters of `pszTokens`, beginning at `iStart`, which moves behind it; empty
    /// with `iStart` -1 when there is none.
    CString Tokenize(LPCWSTR pszTokens, int& iStart) const;

    /// 0-based index of the first match at or behind `iStart`, -1 for none.
    int Find(LPCWSTR pszSub, int iStart = 0) const noexcept;
    int Find(wchar_t ch, int iStart = 0) const noexcept;
    int ReverseFind(wchar_t ch) const noexcept;
    int FindOneOf(LPCWSTR pszCharSet) const noexcept;

    CString& MakeUpper();
    CString& MakeLower();
    CString& MakeReverse();
    /// Take off white space, one character or any of several characters, at both ends or one.
    CString& Trim() { return TrimRight().TrimLeft(); }
    CString& Trim(wchar_t chTarget) { return TrimRight(chTarget).TrimLeft(chTarget); }
    CString& Trim(LPCWSTR pszTargets) { return TrimRight(pszTargets).TrimLeft(pszTargets); }
    CString& TrimLeft();
    CString& TrimLeft(wchar_t chTarget);
    CString& TrimLeft(LPCWSTR pszTargets);
    CString& TrimRight();
    CString& TrimRight(wchar_t chTarget);
    CString& TrimRight(LPCWSTR pszTargets);

    /// Replaces every match and returns how many there were.
    int Replace(wchar_t chOld, wchar_t chNew);
    int Replace(LPCWSTR pszOld, LPCWSTR pszNew);
    /// Takes out every `ch` and returns how many there were.
    int Remove(wchar_t ch);
    /// Puts text in front of the index (behind the end: at the end) and returns the new length.
    int Insert(int iIndex, wchar_t ch);
    int Insert(int iIndex, LPCWSTR psz);
    /// Takes out `nCount` characters from the index and returns the new length.
    int Delete(int iIndex, int nCount = 1);

    friend bool operator==(const CString& a, const CString& b) noexcept {
        return a.m_pszData == b.m_pszData || a.Compare(b.m_pszData) == 0;
    }
    friend bool operator==(const CString& a, LPCWSTR b) noexcept { return a.Compare(b) == 0; }
    friend std::weak_ordering operator<=>(const CString& a, const CString& b) noexcept {
        return a.Compare(b.m_pszData) <=> 0;
    }
    friend std::weak_ordering operator<=>(const CString& a, LPCWSTR b) noexcept { return a.Compare(b) <=> 0; }

private:
    struct NilString {
        CStringData data;
        wchar_t terminator;
    };
    static NilString s_nil;

    wchar_t* m_pszData;

    static wchar_t* Nil() noexcept { return s_nil.data.data(); }
    static CStringData* Data(wchar_t* text) noexcept { return reinterpret_cast<CStringData*>(text) - 1; }
    // The shared empty text is never counted, so that threads do not fight over its cache line.
    static wchar_t* Share(wchar_t* text) noexcept {
        if (text != Nil())
            Data(text)->nRefs.fetch_add(1, std::memory_order_relaxed);
        return text;
    }
    static void Drop(wchar_t* text) noexcept {
        if (text != Nil() && Data(text)->nRefs.fetch_sub(1, std::memory_order_acq_rel) == 1)
            Free(text);
    }
    static wchar_t* Allocate(ptrdiff_t capacity);
    static void Free(wchar_t* text) noexcept;
    [[noreturn]] static void ThrowBadIndex();

    bool IsOwn() const noexcept {
        return m_pszData != Nil() && Data(m_pszData)->nRefs.load(std::memory_order_acquire) == 1;
    }
    void SetLength(int length) noexcept {
        Data(m_pszData)->nDataLength = length;
        m_pszData[length] = 0;
    }
    LPWSTR PrepareWrite(ptrdiff_t capacity);
    bool LoadNumbered(const void* text);
    void Convert(const char* pch, int nLength);
    void FormatArguments(LPCWSTR pszFormat, ...);
};

/// The same type by its explicit name: the library is built for Unicode only.
using CStringW = CString;

AFX_API_EXPORT CString AFXAPI operator+(const CString& a, const CString& b);
AFX_API_EXPORT CString AFXAPI operator+(const CString& a, LPCWSTR b);
AFX_API_EXPORT CString AFXAPI operator+(LPCWSTR a, const CString& b);
AFX_API_EXPORT CString AFXAPI operator+(const CString& a, LPCSTR b);
AFX_API_EXPORT CString AFXAPI operator+(LPCSTR a, const CString& b);
AFX_API_EXPORT CString AFXAPI operator+(const CString& a, wchar_t b);
AFX_API_EXPORT CString AFXAPI operator+(wchar_t a, const CString& b);
