#include "studio/editing/ObjectClipboard.h"

#include "studio/document/ObjectArchive.h"
#include "studio/editing/Geometry.h"
#include "studio/editing/History.h"
#include "studio/editing/PageEdits.h"
#include "studio/editing/StudioCanvas.h"
#include "studio/editing/UniqueNames.h"

#include <algorithm>

namespace Studio {

using Gdiplus::PointF;
using Gdiplus::RectF;
using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

constexpr DWORD kMagic = 0x43535354;  // "TSSC"
constexpr DWORD kVersion = 1;
constexpr float kAside = 10.0f;
constexpr size_t kLongestText = 10000;  // letters of a pasted text

UINT ObjectFormat() {
    static const UINT format = ::RegisterClipboardFormat(L"Tessel Studio Objects");
    return format;
}

// The clipboard, opened. Another program may have it; most give it back within a moment.
class OpenedClipboard {
public:
    explicit OpenedClipboard(HWND owner) : m_opened(Open(owner)) {}
    ~OpenedClipboard() {
        if (m_opened)
            ::CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;
    explicit operator bool() const { return m_opened; }

    bool Put(UINT format, const void* data, size_t size) const {
        HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, size);
        if (!memory)
            return false;
        std::copy_n(static_cast<const BYTE*>(data), size, static_cast<BYTE*>(::GlobalLock(memory)));
        ::GlobalUnlock(memory);
        if (::SetClipboardData(format, memory))
            return true;
        ::GlobalFree(memory);
        return false;
    }

    std::vector<BYTE> Get(UINT format) const {
        HGLOBAL memory = ::GetClipboardData(format);
        const auto* data = memory ? static_cast<const BYTE*>(::GlobalLock(memory)) : nullptr;
        if (!data)
            return {};
        std::vector<BYTE> bytes(data, data + ::GlobalSize(memory));
        ::GlobalUnlock(memory);
        return bytes;
    }

private:
    static bool Open(HWND owner) {
        constexpr ULONGLONG kPatience = 100;
        constexpr DWORD kPause = 10;
        const ULONGLONG end = ::GetTickCount64() + kPatience;
        while (!::OpenClipboard(owner)) {
            if (::GetTickCount64() >= end)
                return false;
            ::Sleep(kPause);
        }
        return true;
    }

    const bool m_opened;
};

CString TextOf(const std::vector<BYTE>& bytes) {
    std::vector<WCHAR> letters(std::min(bytes.size() / sizeof(WCHAR), kLongestText));
    std::copy_n(bytes.begin(), letters.size() * sizeof(WCHAR), reinterpret_cast<BYTE*>(letters.data()));
    letters.push_back(0);
    return CString(letters.data());
}

// How far aside the next paste of the same contents goes.
float NextOffset() {
    static DWORD contents = 0;
    static int times = 0;
    const DWORD now = ::GetClipboardSequenceNumber();
    times = contents == now ? times + 1 : 1;
    contents = now;
    return kAside * static_cast<float>(times);
}

std::vector<ObjectPtr> TextBoxes(const CString& text, const RectF& area) {
    std::vector<ObjectPtr> boxes;
    if (CString visible = text; visible.Trim().IsEmpty())
        return boxes;
    constexpr float kWidth = 240.0f;
    constexpr float kHeight = 60.0f;
    const RectF bounds(area.X + (area.Width - kWidth) * 0.5f, area.Y + (area.Height - kHeight) * 0.5f, kWidth,
                       kHeight);
    boxes.push_back(MakeDrawnObject(Lumo::DS_TEXTEDIT, bounds));
    boxes.back()->SetText(text);
    return boxes;
}

RectF VisibleArea(StudioCanvas& page) {
    CRect client;
    page.GetClientRect(client);
    page.ClientToDoc(client);
    return {static_cast<float>(client.left), static_cast<float>(client.top),
            static_cast<float>(client.Width()), static_cast<float>(client.Height())};
}

}  // namespace

std::vector<BYTE> PackObjects(const CUIObjectDeque& objects) {
    CMemFile file;
    CArchive ar(&file, CArchive::store);
    try {
        ar << kMagic << kVersion << static_cast<DWORD>(objects.size());
        for (CUIObject* object : objects)
            StoreObject(ar, *object);
    } catch (const FileFault&) {
        ar.Abort();
        return {};
    }
    ar.Close();
    std::vector<BYTE> bytes(static_cast<size_t>(file.GetLength()));
    file.SeekToBegin();
    file.Read(bytes.data(), static_cast<UINT>(bytes.size()));
    return bytes;
}

std::vector<ObjectPtr> UnpackObjects(std::span<const BYTE> bytes) {
    CMemFile file(const_cast<BYTE*>(bytes.data()), static_cast<UINT>(bytes.size()));
    CArchive ar(&file, CArchive::load);
    std::vector<ObjectPtr> objects;
    try {
        DWORD magic, version, count;
        ar >> magic >> version >> count;
        if (magic != kMagic || version != kVersion)
            return {};
        for (DWORD i = 0; i < count; ++i)
            objects.push_back(LoadObject(ar));
        return objects;
    } catch (const FileFault&) {
    } catch (CException* e) {
        e->Delete();
    }
    return {};
}

bool CopySelection(StudioCanvas& page) {
    const CUIObjectDeque objects = SelectionInOrder(page);
    const std::vector<BYTE> bytes = PackObjects(objects);
    if (objects.empty() || bytes.empty())
        return false;
    const OpenedClipboard clipboard(page.m_hWnd);
    if (!clipboard || !::EmptyClipboard())
        return false;
    if (objects.size() == 1) {
        const CString text = objects.front()->GetText();
        if (!text.IsEmpty())
            clipboard.Put(CF_UNICODETEXT, text.GetString(), (text.GetLength() + 1) * sizeof(WCHAR));
    }
    return clipboard.Put(ObjectFormat(), bytes.data(), bytes.size());
}

bool CutSelection(StudioCanvas& page) {
    if (!CopySelection(page))
        return false;
    RemoveObjects(page, CUIObjectDeque(page.m_selection), Text::kStepCut);
    return true;
}

bool CanPaste() {
    return ::IsClipboardFormatAvailable(ObjectFormat()) || ::IsClipboardFormatAvailable(CF_UNICODETEXT);
}

bool PasteObjects(StudioCanvas& page) {
    std::vector<ObjectPtr> objects;
    CString text;
    {
        const OpenedClipboard clipboard(page.m_hWnd);
        if (!clipboard)
            return false;
        if (::IsClipboardFormatAvailable(ObjectFormat()))
            objects = UnpackObjects(clipboard.Get(ObjectFormat()));
        else if (::IsClipboardFormatAvailable(CF_UNICODETEXT))
            text = TextOf(clipboard.Get(CF_UNICODETEXT));
    }
    if (objects.empty())
        objects = TextBoxes(text, VisibleArea(page));
    const float aside = NextOffset();
    InsertObjects(page, std::move(objects), PointF(aside, aside), Text::kStepPaste);
    return true;
}

void DuplicateSelection(StudioCanvas& page) {
    InsertObjects(page, UnpackObjects(PackObjects(SelectionInOrder(page))), PointF(kAside, kAside),
                  Text::kStepDuplicate);
}

void InsertObjects(StudioCanvas& page, std::vector<ObjectPtr> objects, const PointF& offset, Text name) {
    if (objects.empty() || !page.Objects())
        return;
    EditScope edit(page, name);
    edit.TouchList(page);
    UniqueNames names(page);
    CUIObjectDeque inserted;
    for (ObjectPtr& object : objects) {
        names.Adopt(*object);
        ShiftObject(*object, offset);
        page.Adopt(*object);
        inserted.push_back(object.get());
        page.Objects()->push_back(object.release());
    }
    page.SelectOnly(inserted);
}

}  // namespace Studio
