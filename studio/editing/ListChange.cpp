#include "studio/editing/ListChange.h"

#include <algorithm>
#include <unordered_map>

namespace Studio {

using Lumo::CUIObject;
using Lumo::CUIObjectDeque;

namespace {

constexpr size_t kNone = static_cast<size_t>(-1);

// For every position from the new list its place in the old one, kNone for an object that was not there.
std::vector<size_t> OldPlaces(const CUIObjectDeque& before, const CUIObjectDeque& after, size_t head,
                              size_t tail) {
    std::unordered_map<CUIObject*, size_t> places;
    for (size_t i = head; i < before.size() - tail; ++i)
        places.emplace(before[i], i);
    std::vector<size_t> old;
    for (size_t i = head; i < after.size() - tail; ++i) {
        const auto place = places.find(after[i]);
        old.push_back(place == places.end() ? kNone : place->second);
    }
    return old;
}

// Marks the entries of a longest ascending subsequence: the objects that can stay where they are.
std::vector<bool> LongestAscending(const std::vector<size_t>& values) {
    std::vector<size_t> ends, previous(values.size(), kNone);  // indices into values
    for (size_t i = 0; i < values.size(); ++i) {
        if (values[i] == kNone)
            continue;
        const auto slot = std::lower_bound(ends.begin(), ends.end(), values[i],
                                           [&](size_t end, size_t value) { return values[end] < value; });
        if (slot != ends.begin())
            previous[i] = *std::prev(slot);
        if (slot == ends.end())
            ends.push_back(i);
        else
            *slot = i;
    }
    std::vector<bool> chosen(values.size(), false);
    for (size_t i = ends.empty() ? kNone : ends.back(); i != kNone; i = previous[i])
        chosen[i] = true;
    return chosen;
}

size_t CommonHead(const CUIObjectDeque& a, const CUIObjectDeque& b) {
    return static_cast<size_t>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
}

size_t CommonTail(const CUIObjectDeque& a, const CUIObjectDeque& b, size_t head) {
    const auto most = static_cast<std::ptrdiff_t>(std::min(a.size(), b.size()) - head);
    return static_cast<size_t>(std::mismatch(a.rbegin(), a.rbegin() + most, b.rbegin()).first - a.rbegin());
}

}  // namespace

ListChange CompareLists(const CUIObjectDeque& before, const CUIObjectDeque& after) {
    const size_t head = CommonHead(before, after);
    const size_t tail = CommonTail(before, after, head);
    const std::vector<size_t> old = OldPlaces(before, after, head, tail);
    const std::vector<bool> stays = LongestAscending(old);
    std::vector<bool> kept(before.size() - head - tail, false);
    ListChange change;
    for (size_t i = 0; i < old.size(); ++i) {
        if (stays[i])
            kept[old[i] - head] = true;
        else
            change.inserted.push_back({head + i, after[head + i]});
    }
    for (size_t i = 0; i < kept.size(); ++i) {
        if (!kept[i])
            change.removed.push_back({head + i, before[head + i]});
    }
    return change;
}

void ApplyChange(CUIObjectDeque& list, const ListChange& change, bool forward) {
    const auto& leaving = forward ? change.removed : change.inserted;
    const auto& coming = forward ? change.inserted : change.removed;
    CUIObjectDeque result;
    size_t next = 0;
    const auto takeComing = [&] {
        for (; next < coming.size() && coming[next].index == result.size(); ++next)
            result.push_back(coming[next].object);
    };
    size_t gone = 0;
    for (size_t i = 0; i < list.size(); ++i) {
        if (gone < leaving.size() && leaving[gone].index == i) {
            ++gone;
            continue;
        }
        takeComing();
        result.push_back(list[i]);
    }
    takeComing();
    list.swap(result);
}

}  // namespace Studio
