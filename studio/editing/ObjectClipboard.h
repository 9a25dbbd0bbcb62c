// Copies of objects as bytes, and the system's clipboard that carries them between pages and programs.
#pragma once

#include "core/UIDocument.h"
#include "studio/app/Texts.h"
#include "studio/editing/ObjectFactory.h"

#include <span>
#include <vector>

namespace Studio {

class StudioCanvas;

/// Objects in drawing order with all that a file keeps of them, behind a header that tells what it is. Empty
/// when an object cannot be stored.
std::vector<BYTE> PackObjects(const Lumo::CUIObjectDeque& objects);

/// New objects from packed ones. Empty when the bytes are anything else, damaged ones included; bytes behind
/// the end do not matter.
std::vector<ObjectPtr> UnpackObjects(std::span<const BYTE> bytes);

/// Puts the selected objects on the clipboard; of a single object its caption also, as text. False when
/// nothing is selected or the clipboard cannot be had.
bool CopySelection(StudioCanvas& page);

/// Copies the selected objects and takes them off the page. False, and they stay, when they cannot be copied.
bool CutSelection(StudioCanvas& page);

/// Whether the clipboard offers something that can be pasted.
bool CanPaste();

/// Puts what the clipboard holds on the page and selects it: copied objects a little aside from where they
/// were, and further aside every time; or a text as a text box. Nothing happens when the clipboard holds
/// neither. False when the clipboard cannot be had.
bool PasteObjects(StudioCanvas& page);

/// Copies the selected objects on their page, a little aside, past the clipboard.
void DuplicateSelection(StudioCanvas& page);

/// Puts new objects on the page as one step, each shifted by `offset`, named and selected.
void InsertObjects(StudioCanvas& page, std::vector<ObjectPtr> objects, const Gdiplus::PointF& offset,
                   Text name);

}  // namespace Studio
