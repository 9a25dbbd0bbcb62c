// A counted COM interface.
#pragma once

#include <objbase.h>

template <class Interface>
class ComPtr {
public:
    ComPtr() = default;
    ~ComPtr() { Reset(); }
    ComPtr(const ComPtr&) = delete;
    ComPtr& operator=(const ComPtr&) = delete;

    void Reset() {
        if (m_pointer)
            m_pointer->Release();
        m_pointer = nullptr;
    }
    Interface* Get() const { return m_pointer; }
    Interface* operator->() const { return m_pointer; }
    explicit operator bool() const { return m_pointer != nullptr; }
    /// Where a function puts the interface it returns.
    Interface** Out() {
        Reset();
        return &m_pointer;
    }
    void** OutVoid() { return reinterpret_cast<void**>(Out()); }

private:
    Interface* m_pointer = nullptr;
};

/// COM on this thread, for as long as the object lives.
class ComScope {
public:
    ComScope() : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE)) {}
    ~ComScope() {
        if (IsReady())
            ::CoUninitialize();
    }
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;
    bool IsReady() const { return SUCCEEDED(m_result); }

private:
    HRESULT m_result;
};
