// The base of a host's chart objects.
#pragma once

#include "behaviour/UIObjectList.h"

namespace Lumo {

/// The base class of the host's charts: a symbol that draws nothing and handles no event by itself.
class TESSEL_API CUIObjectChartBase : public CUIObjectSymbol {
public:
    /// A chart on `rect` (page units) of the given kind; the shape name is "ChartBase".
    CUIObjectChartBase(const Gdiplus::RectF& rect, DrawShape kind);
    /// Copies every field.
    CUIObjectChartBase(const CUIObjectChartBase& source) = default;
    CUIObjectChartBase& operator=(const CUIObjectChartBase& source) = default;

    /// Does nothing: the geometry stays as constructed.
    void Init(DrawShape kind, Gdiplus::RectF& rect) override;
    /// Does nothing.
    void RelayEvent(CUICanvas* canvas, unsigned int message, unsigned int wParam, long lParam) override;
    /// The group's, unchanged.
    void Serialize(CArchive& ar) override;
    /// Draws nothing, the children neither.
    void Draw(Gdiplus::Graphics* g) override;
    /// The group's, unchanged.
    void Release() override;
    ~CUIObjectChartBase() override;

protected:
    /// Kind 14, name "ChartBase".
    CUIObjectChartBase();
};

}  // namespace Lumo
