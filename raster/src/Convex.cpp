#include "raster/Rasterizer.h"

#include "Cover.h"

namespace raster {

namespace {

// How often a chain turns back in one coordinate.
class Reversals {
public:
    void Add(int direction) {
        if (direction == 0)
            return;
        if (m_last == 0)
            m_first = direction;
        else if (direction != m_last)
            ++m_count;
        m_last = direction;
    }
    int Count() const { return m_count + (m_first != m_last ? 1 : 0); }

private:
    int m_first = 0, m_last = 0, m_count = 0;
};

}  // namespace

bool IsConvex(std::span<const Chains::Vertex> chain) {
    const auto sign = [](double value, double least) { return value > least ? 1 : value < -least ? -1 : 0; };
    const size_t count = chain.size();
    Point before = chain[0].at - chain[count - 1].at;
    int turn = 0;
    Reversals across, down;
    for (size_t i = 0; i < count; ++i) {
        const Point after = chain[i + 1 < count ? i + 1 : 0].at - chain[i].at;
        // What rounding to the grid may turn the other way is straight.
        const double straight =
            (std::abs(before.x) + std::abs(before.y) + std::abs(after.x) + std::abs(after.y)) / kUnit;
        const int turned = sign(Cross(before, after), straight);
        if (turned * turn < 0 || (turned == 0 && Dot(before, after) < 0))
            return false;
        if (turned != 0)
            turn = turned;
        across.Add(sign(after.x, 0));
        down.Add(sign(after.y, 0));
        before = after;
    }
    return across.Count() <= 2 && down.Count() <= 2;
}

}  // namespace raster
