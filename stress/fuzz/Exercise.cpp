#include "Exercise.h"

#include "core/UIObjectPoly.h"

using Gdiplus::PointF;

void Exercise(Lumo::CUIObject& object) {
    if (auto* poly = dynamic_cast<Lumo::CUIObjectPoly*>(&object)) {
        for (PointF point : {PointF(5, 5), PointF(50, 20), PointF(20, 60)})
            poly->AddPoint(point);
    }
    Canvas64 canvas;
    object.Draw(&canvas.graphics);
    for (PointF point : {PointF(0, 0), PointF(30, 40), PointF(-1.0e9f, 3.0e38f)}) {
        object.HitTest(point, 0);
        object.HitTest(point, 1);
    }
    Gdiplus::RectF band(0, 0, 40, 40);
    object.HitTest(band);
    for (int handle : {-1, 0, 4, 8, 9, 65536, 0x7FFFFFFF}) {
        object.GetHandleRect(handle);
        object.GetHandleCursor(handle);
    }
    object.MoveTo(0, PointF(3, 4));
    object.MoveTo(8, PointF(-3, 4));
    object.Rotate(30.0f);
    object.Invert(1);
    object.Draw(&canvas.graphics);
}
