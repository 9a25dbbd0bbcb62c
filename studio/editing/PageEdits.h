// Commands on the objects of a page. Each acts on exactly the selected objects, where the library's own
// command acts on the first object of the page, on one object only, or on rectangles instead of points.
#pragma once

#include "core/UIDocument.h"
#include "studio/app/Texts.h"

namespace Studio {

class StudioCanvas;

/// The selected objects in drawing order.
Lumo::CUIObjectDeque SelectionInOrder(const StudioCanvas& page);

/// Takes objects off the page as a step of that name; the step keeps them.
void RemoveObjects(StudioCanvas& page, const Lumo::CUIObjectDeque& objects, Text name);

/// Selects every visible object of the page.
void SelectAll(StudioCanvas& page);

/// Takes the selected objects off the page.
void DeleteSelection(StudioCanvas& page);

/// Moves the selection by whole page units; a burst of the same moves is one step.
void NudgeSelection(StudioCanvas& page, int dx, int dy);

/// Where a stacking command moves the selection.
enum class Stacking { kForward, kBackward, kFront, kBack };

/// Restacks the selected objects, which keep their order among themselves.
void RestackSelection(StudioCanvas& page, Stacking where);

/// What an alignment brings into line with the object selected last.
enum class Alignment { kLeft, kRight, kTop, kBottom, kCentres, kMiddles, kBoth };

/// Aligns the selected objects to the one selected last.
void AlignSelection(StudioCanvas& page, Alignment how);

/// Moves the selected objects, three or more, so that the gaps between them are equal; the outermost two
/// stay.
void DistributeSelection(StudioCanvas& page, bool horizontally);

/// Mirrors the selection about its own middle: left and right (`horizontally`), or top and bottom.
void FlipSelection(StudioCanvas& page, bool horizontally);

/// Turns the selection by a quarter about its own middle.
void RotateSelection(StudioCanvas& page, bool clockwise);

/// Whether the selection can be grouped: two objects or more, and not nested too deeply.
bool CanGroup(const StudioCanvas& page);
/// Makes the selected objects one group, which is selected afterwards.
void GroupSelection(StudioCanvas& page);

/// Whether a group is selected.
bool CanUngroup(const StudioCanvas& page);
/// Dissolves the selected groups; their children are selected afterwards.
void UngroupSelection(StudioCanvas& page);

}  // namespace Studio
