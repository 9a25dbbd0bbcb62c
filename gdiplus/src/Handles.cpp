#include "gdiplus/Handles.h"

#include <deque>
#include <mutex>

namespace flat {

namespace {

struct Slot {
    Object* object;
    Kind kind;
};

// Slots stand in one block of addresses that is never given back, so that any pointer can be compared with
// it. Free ones wait their turn in a queue: a dead handle stays recognisable for long.
class SlotTable {
public:
    SlotTable() {
        m_slots = static_cast<Slot*>(VirtualAlloc(nullptr, kMost * sizeof(Slot), MEM_RESERVE, PAGE_NOACCESS));
    }

    Slot* New(std::unique_ptr<Object> object, Kind kind) {
        const std::lock_guard lock(m_mutex);
        Slot* slot;
        if (m_free.size() > kLeastFree || (m_used == kMost && !m_free.empty())) {
            slot = m_free.front();
            m_free.pop_front();
        } else {
            if (!m_slots || (m_used == m_committed && !Commit()))
                throw std::bad_alloc();
            slot = &m_slots[m_used++];
        }
        slot->object = object.release();
        slot->kind = kind;
        return slot;
    }

    Slot* Find(const void* handle, Kind first, Kind last) const {
        const uintptr_t offset = reinterpret_cast<uintptr_t>(handle) - reinterpret_cast<uintptr_t>(m_slots);
        if (!m_slots || offset % sizeof(Slot) != 0 || offset / sizeof(Slot) >= m_used)
            return nullptr;
        Slot* const slot = &m_slots[offset / sizeof(Slot)];
        return slot->kind != Kind::None && slot->kind >= first && slot->kind <= last ? slot : nullptr;
    }

    std::unique_ptr<Object> Take(const void* handle, Kind first, Kind last) {
        const std::lock_guard lock(m_mutex);
        Slot* const slot = Find(handle, first, last);
        if (!slot)
            return nullptr;
        m_free.push_back(slot);
        slot->kind = Kind::None;
        return std::unique_ptr<Object>(std::exchange(slot->object, nullptr));
    }

private:
    static constexpr size_t kMost = size_t{1} << 22, kStep = 4096, kLeastFree = 1024;

    bool Commit() {
        if (m_committed == kMost ||
            !VirtualAlloc(m_slots + m_committed, kStep * sizeof(Slot), MEM_COMMIT, PAGE_READWRITE))
            return false;
        m_committed += kStep;
        return true;
    }

    std::mutex m_mutex;
    Slot* m_slots;
    size_t m_used = 0, m_committed = 0;
    std::deque<Slot*> m_free;
};

SlotTable& Table() {
    static SlotTable& table = *new SlotTable;  // outlives everything that may still be called at the end
    return table;
}

}  // namespace

void* NewHandle(std::unique_ptr<Object> object, Kind kind) {
    Require(IsStarted(), GdiplusNotInitialized);
    return Table().New(std::move(object), kind);
}

Object* FindObject(const void* handle, Kind first, Kind last) {
    const Slot* const slot = Table().Find(handle, first, last);
    return slot ? slot->object : nullptr;
}

std::unique_ptr<Object> TakeObject(const void* handle, Kind first, Kind last) {
    return Table().Take(handle, first, last);
}

}  // namespace flat
