// The chart of a parametric equaliser.
#pragma once

#include "studio/controls/Control.h"
#include "studio/controls/Plot.h"

namespace Studio {

/// Shows the response of an output's bands ("out1.peq"). In run mode a band is dragged for frequency and
/// gain, the wheel changes its Q, a double click turns it on and off.
class PeqChart : public ChartControl {
public:
    PeqChart() : ChartControl(Lumo::DS_CHARTPEQ) {}

    LPCWSTR DefaultBinding() const override { return L"out1.peq"; }
    bool IsBound() override { return ValueOf(L".1.freq") >= 0; }
    void OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonDblClk(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseWheel(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnDrag(CWnd* window, UINT flags, const CPoint& point) override;
    void Leave() override;

    /// Where the handle of a band (from 1) is, in pixels from the chart's corner.
    CPoint HandleOf(int band);
    /// The band (from 1) that is dragged or under the pointer, 0 when there is none.
    int HotBand() const { return m_grabbed ? m_grabbed : m_hot; }

protected:
    void Render(Picture& picture) override;
    void Watch(std::vector<int>& values) override;

private:
    struct Bands {
        Band band[Device::kPeqBands];
        Lumo::Filter::Section filter[Device::kPeqBands];
        bool on;
    };
    Bands ReadBands();
    Plot Field();
    int BandAt(CPoint point);
    void SetHot(int band);
    void SetBand(int band, LPCWSTR what, double value);
    CString Note(const Bands& bands);

    int m_grabbed = 0;
    int m_hot = 0;
};

}  // namespace Studio
