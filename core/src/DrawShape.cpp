#include "core/DrawShape.h"

#include <iterator>

namespace Lumo {

const CString& GetDrawShapeName(DrawShape shape) {
    static const CString names[] = {
        L"Unknown",    L"Line",        L"PolyLine",       L"Rectangle",  L"Ellipse",     L"Arc",
        L"Curve",      L"Bezier",      L"Chord",          L"Pie",        L"Arrow",       L"Triangle",
        L"Slider",     L"TextEdit",    L"Symbol",         L"Group",      L"Select",      L"Button",
        L"List",       L"Ole",         L"ChartPEQ",       L"ButtonBand", L"ChartDevice", L"ButtonDevice",
        L"ChartLevel", L"ButtonLevel", L"StateCrossover", L"StateGeq",   L"StatePeq"};
    static_assert(std::size(names) == kDrawShapeCount);
    const bool known = shape >= 0 && shape < kDrawShapeCount;
    return names[known ? shape : DS_UNKNOWN];
}

}  // namespace Lumo
