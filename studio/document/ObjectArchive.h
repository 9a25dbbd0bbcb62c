// One object in an archive, with everything that the library's own record leaves out.
#pragma once

#include "studio/app/Texts.h"
#include "studio/editing/ObjectFactory.h"

namespace Studio {

/// Thrown when a file cannot be what it claims to be, or an object cannot be stored; says why.
struct FileFault {
    Text reason;
};

/// Version of what `StoreObject` writes: 1 had no binding and behaviours.
inline constexpr DWORD kArchiveVersion = 2;

/// Writes class, the library's record, removed mark, the values that the record does not keep (text alignment
/// and unit, pen alignment, rectangle mode, most points, points), the extras, the children of a group and the
/// contents of an embedded item.
/// Raises the archive's exceptions and `FileFault`.
void StoreObject(CArchive& ar, Lumo::CUIObject& object);

/// Reads an object that was written in a version from 1 to `kArchiveVersion` into a new one. Takes no more
/// memory than the bytes that are there justify. Raises the archive's exceptions and `FileFault`.
ObjectPtr LoadObject(CArchive& ar, DWORD version = kArchiveVersion);

/// Gives an object, and the children of a group, the state that `StoreObject` wrote of this very object: for
/// undo, where objects stay themselves. Raises the archive's exceptions and `FileFault`.
void RestoreObject(CArchive& ar, Lumo::CUIObject& object);

}  // namespace Studio
