// The matrix of crossings, and the button of one channel.
#pragma once

#include "studio/controls/Control.h"

namespace Studio {

/// The crossings of all inputs (rows) and outputs (columns): a click turns one on and off, a drag up or down
/// changes its gain.
class DeviceChart : public ChartControl {
public:
    DeviceChart() : ChartControl(Lumo::DS_CHARTDEVICE) {}

    LPCWSTR DefaultBinding() const override { return L"xp"; }
    bool IsBound() override { return true; }
    void OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnMouseMove(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnDragEnter(CWnd* window, UINT flags, const CPoint& point) override;
    void OnDrag(CWnd* window, UINT flags, const CPoint& point) override;
    void Leave() override;

    /// Middle of a crossing's cell (from 1), in pixels from the chart's corner.
    CPoint CellOf(int input, int output);

protected:
    void Render(Picture& picture) override;
    void Watch(std::vector<int>& values) override;

private:
    struct Cell {
        int input = 0;
        int output = 0;
        bool operator==(const Cell&) const = default;
    };
    struct Field {
        float left, top, cell;
        bool labels;
    };
    Field Layout();
    Cell CellAt(CPoint point);
    CString NameOf(Cell cell, LPCWSTR what) const;
    void SetHot(Cell cell);
    void RenderLabels(Picture& picture, const Field& field);
    void RenderCell(Picture& picture, const Field& field, Cell cell);

    Cell m_hot;
    Cell m_grabbed;
    bool m_dragging = false;
    double m_gainAtPress = 0.0;
};

/// A switch: the mute of a channel ("in3", "out2"), or any switch of the device ("master.mute", "xp.1.2.on").
/// The button style chooses how it works: 0 toggles, 1 is on while it is held, 2 turns on alone in its radio
/// group.
class DeviceButton : public ButtonControl {
public:
    enum Style : DWORD { kToggle, kMomentary, kRadio };

    DeviceButton() : ButtonControl(Lumo::DS_BUTTONDEVICE) {}

    LPCWSTR DefaultBinding() const override { return L"in1"; }
    bool IsBound() override { return SwitchValue() >= 0; }
    void OnLButtonDown(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void OnLButtonUp(CWnd* window, UINT message, UINT flags, LPARAM packed) override;
    void Leave() override;

    /// Number of the switch, -1 when the binding names none.
    int SwitchValue();

protected:
    void Render(Picture& picture) override;
    void Watch(std::vector<int>& values) override;
    void Click() override;

private:
    void TurnGroupOff();
};

}  // namespace Studio
