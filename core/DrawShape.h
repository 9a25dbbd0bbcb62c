// The shape kinds of drawable objects and their display names.
#pragma once

#include "core/Platform.h"

namespace Lumo {

/// Kind of a drawable object. The values are written to archives; each one from 0 to 28 is the index of
/// its display name. The 0xFF.. values stand for tools and never for an object's archived kind.
enum DrawShape : int {
    DS_UNKNOWN = 0,             ///< not set
    DS_LINE = 1,                ///< `CUIObjectLine`
    DS_POLYLINE = 2,            ///< `CUIObjectPolyLine`
    DS_RECTANGLE = 3,           ///< `CUIObjectRectangle`
    DS_ELLIPSE = 4,             ///< `CUIObjectEllipse`; also what a new button has
    DS_ARC = 5,                 ///< no class of the library
    DS_CURVE = 6,               ///< the same
    DS_BEZIER = 7,              ///< the same
    DS_CHORD = 8,               ///< the same
    DS_PIE = 9,                 ///< the same
    DS_ARROW = 10,              ///< the same
    DS_TRIANGLE = 11,           ///< the same
    DS_SLIDER = 12,             ///< the same
    DS_TEXTEDIT = 13,           ///< `CUIObjectTextEdit`
    DS_SYMBOL = 14,             ///< `CUIObjectSymbol`
    DS_GROUP = 15,              ///< for a host's groups
    DS_SELECT = 16,             ///< the select tool, no object
    DS_BUTTON = 17,             ///< for a host's buttons
    DS_LIST = 18,               ///< `CUIObjectList`
    DS_OLE = 19,                ///< `CUIObjectOle`
    DS_CHARTPEQ = 20,           ///< for a host: chart of a parametric equaliser
    DS_BUTTONBAND = 21,         ///< for a host: buttons of a band
    DS_CHARTDEVICE = 22,        ///< for a host: chart of a device
    DS_BUTTONDEVICE = 23,       ///< for a host: buttons of a device
    DS_CHARTLEVEL = 24,         ///< for a host: chart of levels
    DS_BUTTONLEVEL = 25,        ///< for a host: buttons of a level
    DS_STATECROSSOVER = 26,     ///< for a host: state of a crossover
    DS_STATEGEQ = 27,           ///< for a host: state of a graphic equaliser
    DS_STATEPEQ = 28,           ///< for a host: state of a parametric equaliser
    DS_TOOL_TEXT = 0xFF01,      ///< the text tool
    DS_TOOL_PROPERTY = 0xFF03,  ///< the property tool, which only a host can register
};

/// Number of kinds that have a display name of their own.
inline constexpr int kDrawShapeCount = 29;

/// Display name of a kind ("Rectangle"); "Unknown" for every value outside 0 to 28. The string is a shared
/// constant: copies of it cost no memory.
TESSEL_API const CString& GetDrawShapeName(DrawShape shape);

}  // namespace Lumo
