// Meters: the level chart and the level button.
#pragma once

#include "studio/controls/Control.h"

namespace Studio {

/// Meters with peak hold on a scale in dB: one for "in3" or "out2", all sixteen for "in" or "out".
class LevelChart : public ChartControl {
public:
    LevelChart() : ChartControl(Lumo::DS_CHARTLEVEL) {}

    LPCWSTR DefaultBinding() const override { return L"in"; }
    bool IsBound() override { return ValueOf(L".level") >= 0 || ValueOf(L"1.level") >= 0; }
    void Connect(Device* device) override;
    /// Levels move all the time: only the pixels that changed are repainted.
    bool TakeChange(std::vector<CRect>& parts) override;
    void Draw(Gdiplus::Graphics* g) override;

protected:
    void Render(Picture& picture) override;
    void Watch(std::vector<int>&) override {}

private:
    struct Meter {
        int level;
        int peak;
        int left, right;
        int drawnLevel, drawnPeak;  // rows
    };
    void Arrange();
    int RowOf(double decibels) const;
    void Follow(Meter& meter, std::vector<CRect>& changed);
    void DrawMeter(Gdiplus::Graphics& g, const Gdiplus::PointF& corner, const CRect& clip,
                   const Meter& meter);

    std::vector<Meter> m_meters;
    CSize m_arrangedFor;
    CString m_arrangedBinding;
    int m_top = 0, m_bottom = 0;
    std::unique_ptr<Picture> m_lit;
};

/// Name, gain and level of a channel in a button: a click mutes it, a drag up or down changes its gain.
class LevelButton : public ButtonControl {
public:
    LevelButton() : ButtonControl(Lumo::DS_BUTTONLEVEL) {}

    LPCWSTR DefaultBinding() const override { return L"in1"; }
    bool IsBound() override { return ValueOf(L".gain") >= 0 && ValueOf(L".mute") >= 0; }
    /// The level moves all the time: only its bar is repainted.
    bool TakeChange(std::vector<CRect>& parts) override;
    void DrawNormal(Gdiplus::Graphics* g) override { DrawWithLevel(*g); }
    void DrawDown(Gdiplus::Graphics* g) override { DrawWithLevel(*g); }
    void DrawOver(Gdiplus::Graphics* g) override { DrawWithLevel(*g); }
    void OnDragEnter(CWnd* window, UINT flags, const CPoint& point) override;
    void OnDrag(CWnd* window, UINT flags, const CPoint& point) override;

protected:
    void Render(Picture& picture) override;
    void Watch(std::vector<int>& values) override;
    void Click() override;

private:
    CRect Bar();
    int LevelColumn();
    void DrawWithLevel(Gdiplus::Graphics& g);

    int m_drawnLevel = 0;  // pixels of the bar
    std::unique_ptr<Picture> m_lit;
    double m_gainAtPress = 0.0;
};

}  // namespace Studio
