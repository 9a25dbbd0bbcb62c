// The shape kinds of drawable objects and their display names.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Kind of a drawable object. The values are written to archives; each one from 0 to 28 is the index of
/// its display name. The 0xFF.. values stand for tools and never for an object's archived kind.
enum DrawShape : int {
    DS_UNKNOWN = 0,
    DS_LINE = 1,
    DS_POLYLINE = 2,
    DS_RECTANGLE = 3,
    DS_ELLIPSE = 4,
    DS_ARC = 5,
    DS_CURVE = 6,
    DS_BEZIER = 7,
    DS_CHORD = 8,
    DS_PIE = 9,
    DS_ARROW = 10,
    DS_TRIANGLE = 11,
    DS_SLIDER = 12,
    DS_TEXTEDIT = 13,
    DS_SYMBOL = 14,
    DS_GROUP = 15,
    DS_SELECT = 16,
    DS_BUTTON = 17,
    DS_LIST = 18,
    DS_OLE = 19,
    DS_CHARTPEQ = 20,
    DS_BUTTONBAND = 21,
    DS_CHARTDEVICE = 22,
    DS_BUTTONDEVICE = 23,
    DS_CHARTLEVEL = 24,
    DS_BUTTONLEVEL = 25,
    DS_STATECROSSOVER = 26,
    DS_STATEGEQ = 27,
    DS_STATEPEQ = 28,
    DS_TOOL_TEXT = 0xFF01,
    DS_TOOL_PROPERTY = 0xFF03,
};

/// Number of kinds that have a display name of their own.
inline constexpr int kDrawShapeCount = 29;

/// Display name of a kind ("Rectangle"); "Unknown" for every value outside 0 to 28. The string is a shared
/// constant: copies of it cost no memory.
AFX_EXT_API const CString& GetDrawShapeName(DrawShape shape);

}  // namespace Lumo
