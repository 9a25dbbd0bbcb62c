// Commands on the objects of a page. Each acts on exactly the selected objects, where the library's own
// command acts on the first object of the page, on one object only, or on rectangles instead of points.
#pragma once

#include "core/UIDocument.h"

namespace Studio {

class StudioCanvas;

/// Takes objects off the page and destroys them.
void DestroyObjects(StudioCanvas& page, const Lumo::CUIObjectDeque& objects);

/// Selects every visible object of the page.
void SelectAll(StudioCanvas& page);

/// Destroys the selected objects.
void DeleteSelection(StudioCanvas& page);

/// Moves the selection by whole page units.
void NudgeSelection(StudioCanvas& page, int dx, int dy);

/// Where a stacking command moves the selection.
enum class Stacking { kForward, kBackward, kFront, kBack };

/// Restacks the selected objects, which keep their order among themselves.
void RestackSelection(StudioCanvas& page, Stacking where);

/// What an alignment brings into line with the object selected last.
enum class Alignment { kLeft, kRight, kTop, kBottom, kCentres, kMiddles, kBoth };

/// Aligns the selected objects to the one selected last.
void AlignSelection(StudioCanvas& page, Alignment how);

/// Turns the selection by a quarter about its own middle.
void RotateSelection(StudioCanvas& page, bool clockwise);

/// Whether the selection can be grouped: two objects or more.
bool CanGroup(const StudioCanvas& page);
/// Makes the selected objects one group, which is selected afterwards.
void GroupSelection(StudioCanvas& page);

/// Whether a group is selected.
bool CanUngroup(const StudioCanvas& page);
/// Dissolves the selected groups; their children are selected afterwards.
void UngroupSelection(StudioCanvas& page);

}  // namespace Studio
