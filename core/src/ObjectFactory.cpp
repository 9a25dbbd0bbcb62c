#include "core/internal/ObjectFactory.h"

#include "appearance/UIObjectRectangle.h"
#include "behaviour/UIObjectList.h"
#include "behaviour/UIObjectTextEdit.h"

namespace Lumo {

CUIObject* MakeAreaObject(DrawShape kind, const Gdiplus::RectF& rect) {
    switch (kind) {
        case DS_RECTANGLE:
            return new CUIObjectRectangle(rect, kind);
        case DS_ELLIPSE:
            return new CUIObjectEllipse(rect, kind);
        case DS_TEXTEDIT:
            return new CUIObjectTextEdit(rect, kind);
        case DS_SYMBOL:
            return new CUIObjectSymbol(rect, kind);
        case DS_LIST:
            return new CUIObjectList(rect, kind);
        default:
            return nullptr;
    }
}

}  // namespace Lumo
