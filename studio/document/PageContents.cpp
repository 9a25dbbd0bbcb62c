#include "studio/document/PageContents.h"

#include "studio/document/PageFile.h"

#include <algorithm>
#include <iterator>
#include <new>

namespace Studio {

namespace {

// A page is a window; a small file must not ask for very many of them.
constexpr DWORD kMaxPages = 1000;
constexpr DWORD kEndMark = 0x21444E45;  // "END!"

void Require(bool sound) {
    if (!sound)
        throw FileFault{Text::kFaultContent};
}

Text ReasonOf(const CFileException& e) {
    // The new file beside an old one has a few letters more; some systems report only that it is not there.
    constexpr int kLongestName = 248;
    const CString& path = e.m_strFileName;
    if (e.m_lOsError == ERROR_INVALID_NAME || e.m_lOsError == ERROR_FILENAME_EXCED_RANGE ||
        path.GetLength() - path.ReverseFind(L'\\') - 1 > kLongestName)
        return Text::kFaultName;
    switch (e.m_cause) {
        case CFileException::fileNotFound:
        case CFileException::badPath:
            return Text::kFaultMissing;
        case CFileException::accessDenied:
        case CFileException::sharingViolation:
        case CFileException::lockViolation:
            return Text::kFaultAccess;
        case CFileException::diskFull:
            return Text::kFaultDisk;
        default:
            return Text::kFaultDevice;
    }
}

CString Describe(const CException& e) {
    // The contents end before they should: to the user that is damage, not an archive's affair.
    if (e.IsKindOf(RUNTIME_CLASS(CArchiveException)))
        return GetText(Text::kFaultContent);
    if (e.IsKindOf(RUNTIME_CLASS(CMemoryException)))
        return GetText(Text::kFaultMemory);
    if (const auto* file = dynamic_cast<const CFileException*>(&e))
        return GetText(ReasonOf(*file));
    WCHAR text[512] = L"";
    e.GetErrorMessage(text, static_cast<UINT>(std::size(text)));
    return text;
}

PageContents LoadPage(CArchive& ar, DWORD version) {
    PageContents page;
    DWORD count;
    ar >> page.name >> count;
    for (DWORD i = 0; i < count; ++i)
        page.objects.push_back(LoadObject(ar, version));
    return page;
}

}  // namespace

DocumentContents LoadContents(CArchive& ar, DWORD version) {
    DocumentContents loaded;
    DWORD count, current, mark;
    ar >> count >> current;
    Require(count >= 1 && count <= kMaxPages && current < count);
    for (DWORD i = 0; i < count; ++i)
        loaded.pages.push_back(LoadPage(ar, version));
    loaded.current = current;
    BYTE beyond;
    ar >> mark;
    Require(mark == kEndMark && ar.Read(&beyond, 1) == 0);
    return loaded;
}

DocumentContents LoadContents(const CString& path) {
    DocumentContents loaded;
    ReadPageFile(path, [&](CArchive& ar, DWORD version) { loaded = LoadContents(ar, version); });
    return loaded;
}

void WriteContents(const DocumentContents& contents, const CString& path) {
    WritePageFile(path, [&](CArchive& ar) {
        StoreHead(ar, contents.pages.size(), contents.current);
        for (const PageContents& page : contents.pages)
            StorePage(ar, page.name, ListOf(page));
        StoreEnd(ar);
    });
}

PageContents::~PageContents() {
    Lumo::CUIObjectDeque doomed;
    for (ObjectPtr& object : objects)
        doomed.push_back(object.release());
    ReleaseObjects(doomed);
}

Lumo::CUIObjectDeque ListOf(const PageContents& page) {
    Lumo::CUIObjectDeque list;
    for (const ObjectPtr& object : page.objects)
        list.push_back(object.get());
    return list;
}

void StorePage(CArchive& ar, const CString& name, const Lumo::CUIObjectDeque& objects) {
    ar << name;
    ar << static_cast<DWORD>(objects.size() - std::count(objects.begin(), objects.end(), nullptr));
    for (Lumo::CUIObject* object : objects) {
        if (object)
            StoreObject(ar, *object);
    }
}

void StoreHead(CArchive& ar, size_t count, size_t current) {
    ar << static_cast<DWORD>(count) << static_cast<DWORD>(current);
}

void StoreEnd(CArchive& ar) {
    ar << kEndMark;
}

std::vector<ObjectPtr> CopyObjects(const Lumo::CUIObjectDeque& objects) {
    CMemFile file(64 * 1024);
    {
        CArchive ar(&file, CArchive::store);
        StorePage(ar, L"", objects);
        ar.Close();
    }
    file.SeekToBegin();
    CArchive ar(&file, CArchive::load);
    return LoadPage(ar, kArchiveVersion).objects;
}

bool AttemptFile(const std::function<void()>& action, CString& reason) {
    try {
        action();
        reason.Empty();
        return true;
    } catch (const FileFault& fault) {
        reason = GetText(fault.reason);
    } catch (const std::bad_alloc&) {
        reason = GetText(Text::kFaultMemory);
    } catch (CException* e) {
        reason = Describe(*e);
        e->Delete();
    }
    return false;
}

}  // namespace Studio
