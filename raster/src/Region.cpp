#include "raster/Region.h"

namespace raster {

namespace {

bool Keeps(Combine how, bool first, bool second) {
    switch (how) {
        case Combine::Replace:
            return second;
        case Combine::Intersect:
            return first && second;
        case Combine::Union:
            return first || second;
        case Combine::Xor:
            return first != second;
        case Combine::Exclude:
            return first && !second;
        case Combine::Complement:
            return second && !first;
    }
    return false;
}

// Walks the edges of both rows together.
void Merge(std::span<const Region::Span> first, std::span<const Region::Span> second, Combine how,
           std::vector<Region::Span>& out) {
    out.clear();
    const auto edge = [](std::span<const Region::Span> spans, size_t at) {
        if (at >= 2 * spans.size())
            return kFarthestPixel;
        return at % 2 == 0 ? spans[at / 2].left : spans[at / 2].right;
    };
    size_t a = 0, b = 0;
    bool inside = false;
    while (a < 2 * first.size() || b < 2 * second.size()) {
        const int x = std::min(edge(first, a), edge(second, b));
        if (a < 2 * first.size() && edge(first, a) == x)
            ++a;
        if (b < 2 * second.size() && edge(second, b) == x)
            ++b;
        const bool now = Keeps(how, a % 2 != 0, b % 2 != 0);
        if (now && !inside)
            out.push_back({x, x});
        if (inside)
            out.back().right = x;
        inside = now;
    }
}

}  // namespace

Region::Region(const IntRect& rect) {
    const IntRect kept = Intersect(rect, {-kFarthestPixel, -kFarthestPixel, kFarthestPixel, kFarthestPixel});
    const Span span{kept.left, kept.right};
    if (!kept.Empty())
        Append(kept.top, kept.bottom, {&span, 1});
}

Region Region::Everything() {
    return Region({-kFarthestPixel, -kFarthestPixel, kFarthestPixel, kFarthestPixel});
}

std::vector<Region::Band>::const_iterator Region::Find(int y) const {
    return std::upper_bound(m_bands.begin(), m_bands.end(), y,
                            [](int value, const Band& band) { return value < band.bottom; });
}

std::span<const Region::Span> Region::Row(int y) const {
    const auto band = Find(y);
    return band == m_bands.end() || band->top > y ? std::span<const Span>() : Of(*band);
}

bool Region::Contains(int x, int y) const {
    const std::span<const Span> row = Row(y);
    return std::any_of(row.begin(), row.end(),
                       [x](const Span& span) { return x >= span.left && x < span.right; });
}

bool Region::Touches(const IntRect& rect) const {
    if (rect.Empty())
        return false;
    for (auto band = Find(rect.top); band != m_bands.end() && band->top < rect.bottom; ++band) {
        for (const Span& span : Of(*band)) {
            if (span.left < rect.right && span.right > rect.left)
                return true;
        }
    }
    return false;
}

std::vector<IntRect> Region::Rectangles() const {
    std::vector<IntRect> rectangles;
    rectangles.reserve(m_spans.size());
    for (const Band& band : m_bands) {
        for (const Span& span : Of(band))
            rectangles.push_back({span.left, band.top, span.right, band.bottom});
    }
    return rectangles;
}

void Region::Append(int top, int bottom, std::span<const Span> spans) {
    const size_t first = m_spans.size();
    for (const Span& span : spans) {
        if (span.left >= span.right)
            continue;
        if (m_spans.size() > first && m_spans.back().right >= span.left)
            m_spans.back().right = span.right;
        else
            m_spans.push_back(span);
    }
    if (m_spans.size() == first)
        return;
    const bool wasEmpty = m_bands.empty();
    const std::span<const Span> added = std::span(m_spans).subspan(first);
    const IntRect box{added.front().left, top, added.back().right, bottom};
    m_bounds = wasEmpty ? box
                        : IntRect{std::min(m_bounds.left, box.left), m_bounds.top,
                                  std::max(m_bounds.right, box.right), bottom};
    // A band that goes on as the one above does is one with it.
    if (!wasEmpty && m_bands.back().bottom == top) {
        const std::span<const Span> above = Of(m_bands.back());
        if (std::equal(above.begin(), above.end(), added.begin(), added.end())) {
            m_bands.back().bottom = bottom;
            m_spans.resize(first);
            return;
        }
    }
    m_bands.push_back({top, bottom, first, m_spans.size() - first});
}

void Region::Apply(const Region& other, Combine how) {
    if (how == Combine::Replace) {
        *this = other;
        return;
    }
    if (how == Combine::Intersect && IsRectangle() && other.IsRectangle()) {
        *this = Region(Intersect(m_bounds, other.m_bounds));
        return;
    }
    Region result;
    std::vector<Span> merged;
    size_t a = 0, b = 0;
    int y = -kFarthestPixel;
    while (a < m_bands.size() || b < other.m_bands.size()) {
        // Down to where either begins or ends.
        const auto part = [&](const std::vector<Band>& bands, size_t at, int& bottom) {
            if (at >= bands.size())
                return false;
            const bool within = bands[at].top <= y;
            bottom = std::min(bottom, within ? bands[at].bottom : bands[at].top);
            return within;
        };
        int bottom = kFarthestPixel;
        const bool inFirst = part(m_bands, a, bottom);
        const bool inSecond = part(other.m_bands, b, bottom);
        Merge(inFirst ? Of(m_bands[a]) : std::span<const Span>(),
              inSecond ? other.Of(other.m_bands[b]) : std::span<const Span>(), how, merged);
        if (y < bottom)
            result.Append(y, bottom, merged);
        y = bottom;
        if (a < m_bands.size() && m_bands[a].bottom <= y)
            ++a;
        if (b < other.m_bands.size() && other.m_bands[b].bottom <= y)
            ++b;
    }
    *this = std::move(result);
}

void Region::Move(int dx, int dy) {
    const auto shift = [](int value, int by) {
        return static_cast<int>(
            std::clamp<long long>(static_cast<long long>(value) + by, -kFarthestPixel, kFarthestPixel));
    };
    Region moved;
    std::vector<Span> row;
    for (const Band& band : m_bands) {
        row.assign(Of(band).begin(), Of(band).end());
        for (Span& span : row)
            span = {shift(span.left, dx), shift(span.right, dx)};
        const int top = shift(band.top, dy), bottom = shift(band.bottom, dy);
        if (top < bottom)
            moved.Append(top, bottom, row);
    }
    *this = std::move(moved);
}

bool operator==(const Region& a, const Region& b) {
    return std::equal(a.m_bands.begin(), a.m_bands.end(), b.m_bands.begin(), b.m_bands.end(),
                      [&](const Region::Band& x, const Region::Band& y) {
                          const std::span<const Region::Span> p = a.Of(x), q = b.Of(y);
                          return x.top == y.top && x.bottom == y.bottom &&
                                 std::equal(p.begin(), p.end(), q.begin(), q.end());
                      });
}

}  // namespace raster
