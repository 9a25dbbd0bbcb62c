// Objects that record what happens to them.
#pragma once

#include <memory>

#include "behaviour/UIObjectList.h"
#include "support/Geometry.h"

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
