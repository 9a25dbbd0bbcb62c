// CSharedFile, a file in global memory, as the clipboard takes it.
#pragma once

#include <afx.h>

/// A file in a global memory block.
class AFX_CLASS_EXPORT CSharedFile : public CMemFile {
    DECLARE_DYNAMIC(CSharedFile)

    /// An empty file. `nAllocFlags` are GlobalAlloc's; the block grows by multiples of `nGrowBytes` bytes and
    /// what lies beyond the file's end is zero.
    explicit CSharedFile(UINT nAllocFlags = GMEM_MOVEABLE, UINT nGrowBytes = 4096);
    ~CSharedFile() override;

    /// Gives the unlocked block to the caller, who frees it with GlobalFree; the file is empty afterwards.
    /// Null when nothing was ever written.
    HGLOBAL Detach();
    /// Takes a block over as the file's content, positioned at the beginning. FALSE for `bAllowGrow` keeps
    /// its size.
    void SetHandle(HGLOBAL hGlobalMemory, BOOL bAllowGrow = TRUE);

    /// Frees the block when it is the file's own, else only unlocks it.
    void Close() override;

protected:
    BYTE* Alloc(SIZE_T nBytes) override;
    BYTE* Realloc(BYTE* lpMem, SIZE_T nBytes) override;
    void Free(BYTE* lpMem) override;

    UINT m_nAllocFlags;
    HGLOBAL m_hGlobalMemory = nullptr;
};
