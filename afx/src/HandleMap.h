// Which object belongs to a handle of the system.
#pragma once

#include <afxwin.h>

#include <unordered_map>

/// Holds a slim lock for as long as it lives.
class SharedLock {
public:
    explicit SharedLock(SRWLOCK& lock) : m_lock(lock) { ::AcquireSRWLockShared(&m_lock); }
    ~SharedLock() { ::ReleaseSRWLockShared(&m_lock); }
    SharedLock(const SharedLock&) = delete;
    SharedLock& operator=(const SharedLock&) = delete;

private:
    SRWLOCK& m_lock;
};

class ExclusiveLock {
public:
    explicit ExclusiveLock(SRWLOCK& lock) : m_lock(lock) { ::AcquireSRWLockExclusive(&m_lock); }
    ~ExclusiveLock() { ::ReleaseSRWLockExclusive(&m_lock); }
    ExclusiveLock(const ExclusiveLock&) = delete;
    ExclusiveLock& operator=(const ExclusiveLock&) = delete;

private:
    SRWLOCK& m_lock;
};

/// The objects that own a handle, for the whole process.
template <class Object>
class PermanentMap {
public:
    /// The owner of a handle, or null.
    Object* Find(void* handle) {
        SharedLock lock(m_lock);
        auto found = m_objects.find(handle);
        return found == m_objects.end() ? nullptr : found->second;
    }
    void Set(void* handle, Object* object) {
        ExclusiveLock lock(m_lock);
        m_objects[handle] = object;
    }
    /// Forgets the handle when it is entered for that object.
    void Remove(void* handle, Object* object) {
        ExclusiveLock lock(m_lock);
        auto found = m_objects.find(handle);
        if (found != m_objects.end() && found->second == object)
            m_objects.erase(found);
    }

private:
    SRWLOCK m_lock = SRWLOCK_INIT;
    std::unordered_map<void*, Object*> m_objects;
};

inline void SetHandle(CWnd& object, void* handle) {
    object.m_hWnd = static_cast<HWND>(handle);
}
inline void SetHandle(CMenu& object, void* handle) {
    object.m_hMenu = static_cast<HMENU>(handle);
}
inline void SetHandle(CGdiObject& object, void* handle) {
    object.m_hObject = handle;
}
inline void SetHandle(CDC& object, void* handle) {
    object.m_hDC = object.m_hAttribDC = static_cast<HDC>(handle);
}

/// Objects made for one thread around handles that no object owns; they end at idle time.
template <class Object>
class TemporaryMap {
public:
    TemporaryMap() = default;
    TemporaryMap(const TemporaryMap&) = delete;
    TemporaryMap& operator=(const TemporaryMap&) = delete;
    ~TemporaryMap() { Clear(); }

    /// The object for a handle, made by `make` when there is none yet.
    template <class Make>
    Object* Get(void* handle, Make make) {
        Object*& object = m_objects[handle];
        if (!object)
            object = make();
        SetHandle(*object, handle);
        return object;
    }
    void Clear() {
        auto objects = std::move(m_objects);
        m_objects.clear();
        for (auto& [handle, object] : objects) {
            if (!object)
                continue;
            SetHandle(*object, nullptr);
            delete object;
        }
    }

private:
    std::unordered_map<void*, Object*> m_objects;
};
