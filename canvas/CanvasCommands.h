// Identifiers of the canvas's popup menu for the host to route. The canvas routes none of them itself.
#pragma once

namespace Lumo {

/// Command identifiers; the comment names the operation of `CUICanvas` or `CUIDocument` that fits.
enum CanvasCommand : unsigned int {
    ID_TOOL_SELECT = 6401,     ///< current drawing shape `DS_SELECT`
    ID_TOOL_LINE = 6402,       ///< current drawing shape `DS_LINE`
    ID_TOOL_POLYLINE = 6403,   ///< current drawing shape `DS_POLYLINE`
    ID_TOOL_RECTANGLE = 6404,  ///< current drawing shape `DS_RECTANGLE`
    ID_TOOL_ELLIPSE = 6405,    ///< current drawing shape `DS_ELLIPSE`

    ID_POSITION_BACKWARD = 6501,  ///< `OnToolsPositionBackward`
    ID_POSITION_FORWARD = 6502,   ///< `OnToolsPositionForward`
    ID_POSITION_FRONT = 6503,     ///< `OnToolsPositionFront`
    ID_POSITION_BACK = 6504,      ///< `OnToolsPositionBack`
    ID_ROTATE_LEFT = 6505,        ///< `OnToolsRotateLeft`
    ID_ROTATE_RIGHT = 6506,       ///< `OnToolsRotateRight`
    ID_GROUP_MAKE = 6507,         ///< `OnToolsMakeGroup`
    ID_GROUP_UNMAKE = 6508,       ///< `OnToolsMakeUngroup`, for a group in front of the selection
    ID_ALIGN_LEFT = 6509,         ///< `OnToolsAlignLeft`
    ID_ALIGN_RIGHT = 6510,        ///< `OnToolsAlignRight`
    ID_ALIGN_TOP = 6511,          ///< `OnToolsAlignTop`
    ID_ALIGN_BOTTOM = 6512,       ///< `OnToolsAlignBottom`
    ID_ALIGN_VCENTER = 6513,      ///< `OnToolsAlignVCenter`
    ID_ALIGN_HCENTER = 6514,      ///< `OnToolsAlignHCenter`
    ID_ALIGN_CENTER = 6515,       ///< `OnToolsAlignCenter`
    ID_MODE_DRAW = 6516,          ///< `OnModeDraw`
    ID_MODE_POLY = 6517,          ///< `OnModePoly`
    ID_MODE_PROPERTY = 6518,      ///< `OnModeProperty`
    ID_MODE_RUNNING = 6519,       ///< `OnModeRunning`
    ID_OBJECT_COPY = 6520,        ///< `OnEditObjectCopy`
    ID_OBJECT_CUT = 6521,         ///< `OnEditObjectCut`
    ID_OBJECT_DELETE = 6522,      ///< `OnEditObjectDelete`
    ID_OBJECT_PASTE = 6523,       ///< `OnEditObjectPaste`
    ID_OBJECT_UNDO = 6524,        ///< the host's
    ID_OBJECT_REDO = 6525,        ///< the host's
    ID_DOCUMENT_LOAD = 6526,      ///< `CUIDocument::LoadDocument`
    ID_DOCUMENT_SAVE = 6527,      ///< `CUIDocument::SaveDocument`
    ID_OBJECT_PROPERTIES = 6528,  ///< the host's
};

}  // namespace Lumo
