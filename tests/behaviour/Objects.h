// Objects that record what happens to them.
#pragma once

#include <memory>
#include <ostream>

#include <gtest/gtest.h>

#include "behaviour/UIObjectList.h"

inline bool Same(const Gdiplus::RectF& rect, float x, float y, float width, float height) {
    return rect.X == x && rect.Y == y && rect.Width == width && rect.Height == height;
}

namespace Gdiplus {
inline void PrintTo(const RectF& rect, std::ostream* out) {
    *out << "(" << rect.X << ", " << rect.Y << ", " << rect.Width << ", " << rect.Height << ")";
}
}  // namespace Gdiplus

/// Counts the living ones and remembers where it was drawn.
class Probe : public Lumo::CUIObject {
public:
    explicit Probe(const Gdiplus::RectF& rect) : CUIObject(rect, Lumo::DS_RECTANGLE) { ++s_living; }
    Probe(const Probe&) = delete;
    Probe& operator=(const Probe&) = delete;
    ~Probe() override { --s_living; }
    void Draw(Gdiplus::Graphics*) override { m_drawn = GetPosition(); }

    Gdiplus::RectF m_drawn;
    static inline int s_living = 0;
};

/// A group that counts the living ones. `Release` leaves it alive, whoever made it deletes it.
class ProbeGroup : public Lumo::CUIObjectList {
public:
    explicit ProbeGroup(const Gdiplus::RectF& rect) : CUIObjectList(rect, Lumo::DS_LIST) { ++s_living; }
    ProbeGroup(const ProbeGroup& source) : CUIObjectList(source) { ++s_living; }
    ~ProbeGroup() override { --s_living; }

    static inline int s_living = 0;
};

/// Releases a group and deletes its shell, as a document does.
struct GroupDeleter {
    void operator()(Lumo::CUIObjectList* group) const {
        group->Release();
        delete group;
    }
};
using GroupOwner = std::unique_ptr<Lumo::CUIObjectList, GroupDeleter>;
