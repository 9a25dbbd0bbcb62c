#include <afx.h>

CObject* CRuntimeClass::CreateObject() const {
    if (!m_pfnCreateObject)
        return nullptr;
    try {
        return m_pfnCreateObject();
    } catch (const std::bad_alloc&) {
        return nullptr;
    } catch (CMemoryException* e) {
        e->Delete();
        return nullptr;
    }
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const {
    const CRuntimeClass* walked = this;
    while (walked && walked != pBaseClass)
        walked = walked->m_pfnGetBaseClass ? walked->m_pfnGetBaseClass() : nullptr;
    return walked != nullptr;
}

const CRuntimeClass CObject::classCObject = {"CObject", int(sizeof(CObject)), 0xFFFF, nullptr, nullptr};

CObject::~CObject() = default;

CRuntimeClass* PASCAL CObject::_GetBaseClass() {
    return nullptr;
}

CRuntimeClass* PASCAL CObject::GetThisClass() {
    return _RUNTIME_CLASS(CObject);
}

CRuntimeClass* CObject::GetRuntimeClass() const {
    return _RUNTIME_CLASS(CObject);
}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const {
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

void CObject::Serialize(CArchive&) {}

CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject) {
    return pObject && pObject->IsKindOf(pClass) ? pObject : nullptr;
}
