// An extension DLL of the host, with an object class that it exports as such DLLs do.
#include "AllHeaders.h"

#include <Loggable.h>

class AFX_EXT_CLASS HostGauge : public Lumo::CUIObjectRectangle {
public:
    using CUIObjectRectangle::CUIObjectRectangle;
    void Draw(Gdiplus::Graphics* g) override;
};

void HostGauge::Draw(Gdiplus::Graphics* g) {
    CLoggable::AddLogLine(5, 0, L"%s", Lumo::GetDrawShapeName(Lumo::DS_RECTANGLE).GetString());
    CUIObjectRectangle::Draw(g);
}
