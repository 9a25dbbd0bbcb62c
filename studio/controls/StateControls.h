// The states of the other equalisers and the crossover, and the button of one band.
#pragma once

#include "studio/controls/Control.h"
#include "studio/controls/Plot.h"

namespace Studio {

/// One band of a parametric equaliser ("out1.peq.3"): its shape, frequency and gain; a click turns it on and
/// off.
class BandButton : public ButtonControl {
public:
    BandButton() : ButtonControl(Lumo::DS_BUTTONBAND) {}

    LPCWSTR DefaultBinding() const override { return L"out1.peq.1"; }
    bool IsBound() override { return ValueOf(L".freq") >= 0; }

protected:
    void Render(Picture& picture) override;
    void Watch(std::vector<int>& values) override;
    void Click() override;

private:
    int Number();
};

/// The three ways of a crossover ("out1.xover") with their responses; the two edges are dragged sideways, the
/// gain of a way up and down, a double click makes the edges steeper and the wheel changes their kind.
class CrossoverState : public ChartControl {
public:
    CrossoverState() : ChartControl(Lumo::DS_STATECROSSOVER) {}

    LPCWSTR DefaultBinding() const override { return L"out1.xover"; }
    bool IsBound() override { return ValueOf(L".lowfreq") >= 0; }
    void OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonDblClk(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseWheel(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnDragEnter(CWnd* window, UINT flags, const CPoint& point) override;
    void OnDrag(CWnd* window, UINT flags, const CPoint& point) override;
    void Leave() override;

protected:
    void Render(Picture& picture) override;
    void Watch(std::vector<int>& values) override { WatchAll(values, Binding() + L"."); }

private:
    /// What the pointer can take: nothing, an edge, the gain of a way.
    enum Part { kNone, kLowEdge, kHighEdge, kLow, kMid, kHigh };
    Plot Field();
    Part PartAt(CPoint point);
    /// The filters of a way without its gain.
    std::vector<Lumo::Filter::Section> Filters(Part way);
    CString EdgeNote();
    void SetHot(Part part);

    Part m_grabbed = kNone;
    Part m_hot = kNone;
    double m_gainAtPress = 0.0;
};

/// The 31 bands of a graphic equaliser ("out1.geq"): pressing and dragging sets them.
class GeqState : public ChartControl {
public:
    GeqState() : ChartControl(Lumo::DS_STATEGEQ) {}

    LPCWSTR DefaultBinding() const override { return L"out1.geq"; }
    bool IsBound() override { return ValueOf(L".1") >= 0; }
    void OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonDblClk(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnDrag(CWnd* window, UINT flags, const CPoint& point) override;
    void Leave() override { SetHot(0); }

protected:
    void Render(Picture& picture) override;
    void Watch(std::vector<int>& values) override { WatchAll(values, Binding() + L"."); }

private:
    Plot Field();
    int BandAt(CPoint point);
    void SetHot(int band);
    void Apply(CPoint point);

    int m_hot = 0;
    CPoint m_last;
};

/// The bands of a parametric equaliser as a table ("out1.peq"): a click turns a band on and off, the wheel
/// changes what it stands over.
class PeqState : public ChartControl {
public:
    PeqState() : ChartControl(Lumo::DS_STATEPEQ) {}

    LPCWSTR DefaultBinding() const override { return L"out1.peq"; }
    bool IsBound() override { return ValueOf(L".1.freq") >= 0; }
    void OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseWheel(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void Leave() override { SetHot(0); }

protected:
    void Render(Picture& picture) override;
    void Watch(std::vector<int>& values) override { WatchAll(values, Binding() + L"."); }

private:
    bool IsSmall();
    void RenderLamps(Picture& picture);
    int RowAt(CPoint point);
    void SetHot(int row);

    int m_hot = 0;
};

}  // namespace Studio
