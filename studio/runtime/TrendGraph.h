// A graph of values over time.
#pragma once

#include "studio/controls/Picture.h"
#include "studio/device/Device.h"
#include "studio/document/ObjectExtras.h"

#include <deque>

namespace Studio {

/// Samples the values of a trend's lines and draws them. A trend without lines shows the object's own value.
class TrendGraph {
public:
    TrendGraph(const ObjectExtras& extras, const Device& device);

    /// Takes a sample when one is due; true when it did.
    bool Sample(double time);
    /// Draws the graph into a rectangle of world units.
    void Draw(Gdiplus::Graphics& g, const Gdiplus::RectF& bounds);

private:
    struct Line {
        int value;
        float width;
        DWORD color;
        std::deque<float> samples;  // the newest last
    };
    // The plot in a picture.
    struct Field {
        float left, top, right, bottom;
        bool labels;
    };
    static Field Layout(const Picture& picture);
    void RenderGround(Picture& picture) const;
    void RenderLine(Picture& picture, const Line& line) const;

    const CPrefTrend& m_trend;
    const Device& m_device;
    std::vector<Line> m_lines;
    double m_interval;
    double m_next = 0.0;
    bool m_stale = true;
    std::unique_ptr<Picture> m_ground;
    std::unique_ptr<Picture> m_picture;
};

}  // namespace Studio
