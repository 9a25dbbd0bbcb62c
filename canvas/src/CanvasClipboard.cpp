// Copying, cutting, deleting and pasting the selection.
#include "canvas/UICanvas.h"

#include "core/UIDocument.h"
#include "core/UIObject.h"

#include <afxadv.h>
#include <afxole.h>

#include <Loggable.h>

#include <exception>
#include <memory>

namespace Lumo {

CLIPFORMAT CUICanvas::m_cfObject = static_cast<CLIPFORMAT>(::RegisterClipboardFormat(L"Tessel GUI Object "));

namespace {

// The clipboard needs OLE on this thread. A host that has started it is left alone; for one that has not, the
// class library starts it, and ends it with the thread so that what was copied stays on the clipboard.
void EnsureOle() {
    const HRESULT state = ::OleInitialize(nullptr);
    if (SUCCEEDED(state))
        ::OleUninitialize();
    if (state == S_OK)
        AfxOleInit();
}

struct FreeBlock {
    void operator()(HGLOBAL block) const { ::GlobalFree(block); }
};
using Block = std::unique_ptr<void, FreeBlock>;

// The records of the objects one after the other, without count or header, in moveable memory of just their
// size.
Block ArchiveObjects(const CUIObjectDeque& objects) {
    CSharedFile file(GMEM_MOVEABLE, 4096);
    // An exception must not make the archive flush while it is unwound.
    CArchive archive(&file, CArchive::store | CArchive::bNoFlushOnDelete, 4096);
    for (CUIObject* object : objects)
        object->Serialize(archive);
    archive.Close();
    if (file.GetLength() == 0) {
        // The clipboard takes no empty block; a byte is too short for any record.
        return Block(::GlobalAlloc(GMEM_MOVEABLE | GMEM_ZEROINIT, 1));
    }
    const auto size = static_cast<SIZE_T>(file.GetLength());
    HGLOBAL block = file.Detach();
    HGLOBAL trimmed = ::GlobalReAlloc(block, size, GMEM_MOVEABLE);
    return Block(trimmed != nullptr ? trimmed : block);
}

Block TextBlock(const CString& text) {
    const SIZE_T size = (static_cast<SIZE_T>(text.GetLength()) + 1) * sizeof(WCHAR);
    Block block(::GlobalAlloc(GMEM_MOVEABLE, size));
    if (block == nullptr)
        AfxThrowMemoryException();
    ::CopyMemory(::GlobalLock(block.get()), text.GetString(), size);
    ::GlobalUnlock(block.get());
    return block;
}

// The block is the data source's once it has taken it.
void Cache(COleDataSource& source, CLIPFORMAT format, Block block) {
    source.CacheGlobalData(format, block.get());
    static_cast<void>(block.release());
}

// What the log calls an exception without a run-time class.
constexpr char kNoClass[] = "CException";

void LogCopyException(LPCSTR type, LPCWSTR text) {
    CLoggable::AddLogLine(5, 0, L"[예외] Unknown %s exception in OnEditObjectCopy - %s",
                          CString(type).GetString(), text);
}

}  // namespace

void CUICanvas::CopySelection() {
    EnsureOle();
    auto source = std::make_unique<COleDataSource>();
    Cache(*source, m_cfObject, ArchiveObjects(m_selection));
    if (m_selection.size() == 1)
        Cache(*source, CF_UNICODETEXT, TextBlock(m_selection.front()->GetText()));
    source->SetClipboard();
    static_cast<void>(source.release());  // the clipboard's from here on
}

void CUICanvas::OnEditObjectCopy() {
    try {
        CopySelection();
    } catch (CException* exception) {
        WCHAR text[260] = L"";
        exception->GetErrorMessage(text, _countof(text));
        const CRuntimeClass* type = exception->GetRuntimeClass();
        LogCopyException(type != nullptr ? type->m_lpszClassName : kNoClass, text);
        exception->Delete();
    } catch (const std::exception& exception) {
        LogCopyException(kNoClass, CString(exception.what()));
    } catch (...) {
        LogCopyException(kNoClass, L"");
    }
}

void CUICanvas::OnEditObjectCut() {
    // Kept: what could not be copied goes all the same.
    OnEditObjectCopy();
    OnEditObjectDelete();
}

void CUICanvas::OnEditObjectDelete() {
    if (m_pDocument == nullptr)
        return;
    // Kept: each call hides the first object of the page, whatever object is passed.
    const CUIObjectDeque selected = m_selection;
    for (CUIObject* object : selected)
        m_pDocument->RemoveObject(object, 0);
    m_pDocument->UpdateAllCanvas(nullptr, 3, &m_selection);
}

void CUICanvas::OnEditObjectPaste() {
    EnsureOle();
    COleDataObject clipboard;
    {
        CWaitCursor wait;
        clipboard.AttachClipboard();
        UpdateCanvas(nullptr, 2, nullptr);
        m_selection.clear();
        if (m_pDocument != nullptr) {
            // Kept: what a paste adds are the objects still selected, and there are none.
            if (clipboard.IsDataAvailable(m_cfObject)) {
                for (CUIObject* object : m_selection)
                    m_pDocument->AppendObject(object, nullptr);
            }
            m_pDocument->SetModifiedFlag(1);
            m_pDocument->UpdateAllCanvas(nullptr, 2, &m_selection);
        }
    }
    OnEditObjectCopy();
    clipboard.Release();
}

}  // namespace Lumo
