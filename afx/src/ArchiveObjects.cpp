// How objects lie in an archive. Classes and objects are numbered together from 1 in the order in which they
// first occur, and 0 is no object. A new object is the mark of its class, then what its Serialize stores. A
// class's first mark is FFFF, schema, length and characters of its name; later ones are its number with the
// highest bit set. An object that is there already is its number. Numbers take two bytes, from 7FFF on the
// bytes FF 7F and then four.
#include <afx.h>

#include "HandleMap.h"

#include <cstring>
#include <cwchar>
#include <memory>
#include <unordered_map>
#include <utility>
#include <vector>

namespace {

constexpr WORD kNewClass = 0xFFFF;
constexpr WORD kClassBit = 0x8000;
constexpr DWORD kLongClassBit = 0x80000000;
constexpr WORD kLongNumber = 0x7FFF;
constexpr size_t kMostEntries = 0x3FFFFFFE;
constexpr WORD kLongestName = 63;
constexpr int kDeepest = 1000;  // what a thread's stack surely holds

SRWLOCK classesLock = SRWLOCK_INIT;
AFX_CLASSINIT* newestClass = nullptr;

}  // namespace

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) : m_pClass(pNewClass) {
    ExclusiveLock lock(classesLock);
    m_pNext = newestClass;
    newestClass = this;
}

AFX_CLASSINIT::~AFX_CLASSINIT() {
    ExclusiveLock lock(classesLock);
    AFX_CLASSINIT** place = &newestClass;
    while (*place && *place != this)
        place = &(*place)->m_pNext;
    if (*place)
        *place = m_pNext;
}

CRuntimeClass* PASCAL CRuntimeClass::FromName(LPCSTR lpszClassName) {
    SharedLock lock(classesLock);
    for (AFX_CLASSINIT* known = newestClass; known; known = known->m_pNext) {
        if (std::strcmp(known->m_pClass->m_lpszClassName, lpszClassName) == 0)
            return known->m_pClass;
    }
    return nullptr;
}

void CRuntimeClass::Store(CArchive& ar) const {
    const auto length = static_cast<WORD>(std::strlen(m_lpszClassName));
    if (length > kLongestName)
        AfxThrowNotSupportedException();
    ar << LOWORD(m_wSchema) << length;
    ar.Write(m_lpszClassName, length);
}

CRuntimeClass* PASCAL CRuntimeClass::Load(CArchive& ar, UINT* pwSchemaNum) {
    WORD schema, length;
    ar >> schema >> length;
    *pwSchemaNum = schema;
    char name[kLongestName + 1] = {};
    if (length > kLongestName)
        return nullptr;
    if (ar.Read(name, length) != length)
        AfxThrowArchiveException(CArchiveException::endOfFile, ar.m_strFileName);
    return FromName(name);
}

/// What was stored or loaded so far.
struct CArchive::ObjectTable {
    struct Entry {
        const CRuntimeClass* type = nullptr;  // of a class
        UINT schema = 0;
        CObject* object = nullptr;  // of an object
        bool isShared = false;      // given out by its number
    };

    std::unordered_map<const void*, DWORD> stored;
    std::vector<Entry> loaded{Entry()};
    int depth = 0;
};

/// Around the Serialize of one object.
class CArchive::ObjectScope {
public:
    ObjectScope(CArchive& ar, UINT schema) : m_archive(ar), m_schema(ar.m_nObjectSchema) {
        if (ar.m_pObjects->depth == kDeepest)
            ar.Throw(CArchiveException::genericException);
        ++ar.m_pObjects->depth;
        ar.m_nObjectSchema = schema;
    }
    ~ObjectScope() {
        --m_archive.m_pObjects->depth;
        m_archive.m_nObjectSchema = m_schema;
    }
    ObjectScope(const ObjectScope&) = delete;
    ObjectScope& operator=(const ObjectScope&) = delete;

private:
    CArchive& m_archive;
    UINT m_schema;
};

void CArchive::Throw(int cause) const {
    AfxThrowArchiveException(cause, m_strFileName);
}

CArchive::ObjectTable& CArchive::Objects() {
    if (!m_pObjects)
        m_pObjects = new ObjectTable;
    if (m_pObjects->loaded.size() + m_pObjects->stored.size() > kMostEntries)
        Throw(CArchiveException::badIndex);
    return *m_pObjects;
}

void CArchive::ForgetObjects() {
    delete m_pObjects;
    m_pObjects = nullptr;
}

UINT CArchive::GetObjectSchema() {
    return std::exchange(m_nObjectSchema, static_cast<UINT>(-1));
}

namespace {

void WriteNumber(CArchive& ar, DWORD number, bool isClass) {
    if (number < kLongNumber)
        ar << WORD(number | (isClass ? kClassBit : 0));
    else
        ar << kLongNumber << (number | (isClass ? kLongClassBit : 0));
}

/// A number with kLongClassBit for a class, however it was stored.
DWORD ReadNumber(CArchive& ar, WORD mark) {
    DWORD number = (mark & kLongNumber) | (mark & kClassBit ? kLongClassBit : 0);
    if (mark == kLongNumber)
        ar >> number;
    return number;
}

}  // namespace

void CArchive::WriteClass(const CRuntimeClass* pClass) {
    if (pClass->m_wSchema == 0xFFFF)
        AfxThrowNotSupportedException();
    auto& stored = Objects().stored;
    if (const auto known = stored.find(pClass); known != stored.end())
        return WriteNumber(*this, known->second, true);
    *this << kNewClass;
    pClass->Store(*this);
    stored.emplace(pClass, DWORD(stored.size() + 1));
}

void CArchive::WriteObject(const CObject* pOb) {
    if (!IsStoring())
        ThrowReadOnly();
    if (!pOb)
        return WriteNumber(*this, 0, false);
    auto& stored = Objects().stored;
    if (const auto known = stored.find(pOb); known != stored.end())
        return WriteNumber(*this, known->second, false);
    ObjectScope scope(*this, m_nObjectSchema);
    WriteClass(pOb->GetRuntimeClass());
    stored.emplace(pOb, DWORD(stored.size() + 1));
    const_cast<CObject*>(pOb)->Serialize(*this);
}

/// The class of a new object with its schema; null with the number of one that is there.
const CRuntimeClass* CArchive::ReadClass(const CRuntimeClass* pClass, UINT& schema, DWORD& number) {
    WORD mark;
    *this >> mark;
    auto& loaded = Objects().loaded;
    const CRuntimeClass* type;
    if (mark == kNewClass) {
        type = CRuntimeClass::Load(*this, &schema);
        if (!type)
            Throw(CArchiveException::badClass);
        const bool loadsOthers = (type->m_wSchema & VERSIONABLE_SCHEMA) != 0;
        if (!loadsOthers && type->m_wSchema != schema)
            Throw(CArchiveException::badSchema);
        loaded.push_back({type, schema});
    } else {
        number = ReadNumber(*this, mark);
        if (!(number & kLongClassBit))
            return nullptr;
        number &= ~kLongClassBit;
        if (number >= loaded.size() || !loaded[number].type)
            Throw(CArchiveException::badIndex);
        type = loaded[number].type;
        schema = loaded[number].schema;
    }
    if (pClass && !type->IsDerivedFrom(pClass))
        Throw(CArchiveException::badClass);
    return type;
}

CObject* CArchive::LoadNew(const CRuntimeClass* pClass, UINT schema) {
    ObjectScope scope(*this, schema);
    std::unique_ptr<CObject> object(pClass->CreateObject());
    if (!object)
        AfxThrowMemoryException();
    const size_t number = m_pObjects->loaded.size();
    m_pObjects->loaded.push_back({nullptr, 0, object.get()});
    try {
        object->Serialize(*this);
    } catch (...) {
        if (m_pObjects->loaded[number].isShared)
            static_cast<void>(object.release());
        m_pObjects->loaded.resize(number);  // what it had loaded goes with it
        throw;
    }
    return object.release();
}

CObject* CArchive::ReadObject(const CRuntimeClass* pClass) {
    if (!IsLoading())
        ThrowWriteOnly();
    if (pClass && pClass->m_wSchema == 0xFFFF)
        AfxThrowNotSupportedException();
    UINT schema = 0;
    DWORD number = 0;
    if (const CRuntimeClass* type = ReadClass(pClass, schema, number))
        return LoadNew(type, schema);
    if (number == 0)
        return nullptr;
    auto& loaded = m_pObjects->loaded;
    if (number >= loaded.size() || !loaded[number].object)
        Throw(CArchiveException::badIndex);
    ObjectTable::Entry& entry = loaded[number];
    if (pClass && !entry.object->IsKindOf(pClass))
        Throw(CArchiveException::badClass);
    entry.isShared = true;
    return entry.object;
}

void CArchive::WriteString(LPCWSTR lpsz) {
    Write(lpsz, static_cast<UINT>(std::wcslen(lpsz) * sizeof(wchar_t)));
}

BOOL CArchive::ReadString(CString& rString) {
    rString.Empty();
    wchar_t ch;
    while (Read(&ch, sizeof(ch)) == sizeof(ch)) {
        if (ch == L'\n') {
            if (rString.Right(1) == L"\r")
                rString.Truncate(rString.GetLength() - 1);
            return TRUE;
        }
        rString.AppendChar(ch);
    }
    return !rString.IsEmpty();
}

LPWSTR CArchive::ReadString(LPWSTR lpsz, UINT nMax) {
    UINT length = 0;
    bool ended = false;
    while (length + 1 < nMax && !ended) {
        wchar_t ch;
        if (Read(&ch, sizeof(ch)) != sizeof(ch)) {
            lpsz[length] = 0;
            return length ? lpsz : nullptr;
        }
        ended = ch == L'\n';
        if (!ended)
            lpsz[length++] = ch;
    }
    if (ended && length && lpsz[length - 1] == L'\r')
        --length;
    if (nMax)
        lpsz[length] = 0;
    return lpsz;
}
