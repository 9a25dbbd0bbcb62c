// Archive bytes written down by hand, and records stored to and loaded from such bytes.
#pragma once

#include <cstring>
#include <string>
#include <vector>

#include <afxwin.h>
#include <afxadv.h>
#include <gtest/gtest.h>

class Bytes {
public:
    Bytes& I(int value) { return Raw(&value, sizeof value); }
    Bytes& U(DWORD value) { return Raw(&value, sizeof value); }
    Bytes& F(float value) { return Raw(&value, sizeof value); }
    Bytes& W(WORD value) { return Raw(&value, sizeof value); }
    /// A text of fewer than 255 characters.
    Bytes& S(const std::wstring& text = {}) {
        m_bytes.insert(m_bytes.end(), {0xFF, 0xFE, 0xFF, static_cast<BYTE>(text.size())});
        return Raw(text.data(), text.size() * sizeof(wchar_t));
    }
    Bytes& Is(std::initializer_list<int> values) {
        for (int value : values)
            I(value);
        return *this;
    }
    Bytes& Us(std::initializer_list<DWORD> values) {
        for (DWORD value : values)
            U(value);
        return *this;
    }
    Bytes& Fs(std::initializer_list<float> values) {
        for (float value : values)
            F(value);
        return *this;
    }
    Bytes& Add(const Bytes& other) { return Raw(other.m_bytes.data(), other.m_bytes.size()); }
    Bytes& Raw(const void* data, size_t size) {
        const BYTE* first = static_cast<const BYTE*>(data);
        m_bytes.insert(m_bytes.end(), first, first + size);
        return *this;
    }
    const std::vector<BYTE>& Get() const { return m_bytes; }
    bool operator==(const Bytes& other) const { return m_bytes == other.m_bytes; }

private:
    std::vector<BYTE> m_bytes;
};

/// Prints where two archives differ instead of all their bytes.
inline ::testing::AssertionResult SameBytes(const Bytes& got, const Bytes& want) {
    const std::vector<BYTE>&a = got.Get(), &b = want.Get();
    size_t i = 0;
    while (i < a.size() && i < b.size() && a[i] == b[i])
        ++i;
    if (i == a.size() && i == b.size())
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << a.size() << " bytes, wanted " << b.size() << "; differ at " << i;
}

template <class Record>
Bytes Stored(Record& record) {
    CSharedFile file;
    CArchive ar(&file, CArchive::store);
    record.Serialize(ar);
    ar.Close();
    std::vector<BYTE> data(static_cast<size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(data.data(), static_cast<UINT>(data.size()));
    return Bytes().Raw(data.data(), data.size());
}

/// Loads a record and gives the number of bytes that it left unread.
template <class Record>
size_t Load(Record& record, const Bytes& bytes) {
    CSharedFile file;
    file.Write(bytes.Get().data(), static_cast<UINT>(bytes.Get().size()));
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    record.Serialize(ar);
    size_t left = 0;
    BYTE byte;
    while (ar.Read(&byte, 1) == 1)
        ++left;
    ar.Close();
    return left;
}

/// The cause of the archive exception that loading raises, -1 when it raises none.
template <class Record>
int LoadFailure(Record& record, const Bytes& bytes) {
    try {
        Load(record, bytes);
    } catch (CArchiveException* exception) {
        const int cause = exception->m_cause;
        exception->Delete();
        return cause;
    }
    return -1;
}

/// What a record of the coordinate record writes first.
inline Bytes FormatBase() {
    return Bytes().I(1).S().I(1);
}

/// The data that every object writes first: a new object of a kind and name at a position.
inline Bytes ObjectBase(int kind, const std::wstring& name, float x, float y, float width, float height) {
    Bytes b;
    b.I(kind).S(name).I(1).S(L"Coordinate");
    b.Add(FormatBase()).S(L"Text").F(22).S(L"Arial").Us({0x80FFFFFF, 0xFF000000, 0xFF000000}).Is({2, 0, 4});
    b.Add(FormatBase()).I(1).U(0x800000FF).Fs({128, 128}).U(0x80FFFF00).Is({0, 1}).S().I(53);
    b.Us({0x80FF6767, 0x80000000});
    b.Add(FormatBase()).I(1).U(0x800000FF).Fs({128, 128}).U(0x80FFFF00).Is({0, 1});
    b.Add(FormatBase()).F(2).Is({0, 2, 2, 18, 18}).Fs({1, 2, 1, 2}).Is({0, 1, 3});
    b.Fs({0, 0}).I(1).Fs({10, 10}).I(1);
    b.Add(FormatBase()).U(0x80202020).Fs({128, 1, 45, 0, 0, 10, 10});
    b.Add(FormatBase()).Fs({width, height, 1, 1, 45}).I(0);
    b.Add(FormatBase()).Fs({x, y}).Is({0, 0});
    b.Add(FormatBase()).Is({0, 0, 0}).Fs({0, 0, 0, 0}).I(1).F(0);
    return b;
}
