#include <CSWrapper.h>

CCSWrapper::CCSWrapper() {
    ::InitializeCriticalSection(&m_section);
}

CCSWrapper::CCSWrapper(const CCSWrapper&) : CCSWrapper() {}

CCSWrapper& CCSWrapper::operator=(const CCSWrapper&) {
    return *this;
}

CCSWrapper::~CCSWrapper() {
    ::DeleteCriticalSection(&m_section);
}

void CCSWrapper::Lock() {
    ::EnterCriticalSection(&m_section);
}

BOOL CCSWrapper::TryLock() {
    return ::TryEnterCriticalSection(&m_section);
}

void CCSWrapper::Unlock() {
    ::LeaveCriticalSection(&m_section);
}
