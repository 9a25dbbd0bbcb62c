// CObject, the common base class, and its run-time class information.
#pragma once

#include <afxver_.h>

#include <windows.h>

class CArchive;
class CObject;

/// What is known about a class at run time. One constant object per class, made by the IMPLEMENT_ macros.
struct AFX_CLASS_EXPORT CRuntimeClass {
    LPCSTR m_lpszClassName;                       ///< the class's name as written in the source
    int m_nObjectSize;                            ///< bytes one object takes
    UINT m_wSchema;                               ///< 0xFFFF for classes that are not serialised by name
    CObject*(PASCAL* m_pfnCreateObject)();        ///< null unless the class can be created by name
    CRuntimeClass*(PASCAL* m_pfnGetBaseClass)();  ///< null for CObject

    /// The class with that name among those with IMPLEMENT_SERIAL in the modules that are loaded, or null.
    static CRuntimeClass* PASCAL FromName(LPCSTR lpszClassName);
    /// Writes schema and name into an archive.
    void Store(CArchive& ar) const;
    /// Reads what Store wrote: the class, null when there is none of that name, and the schema that was
    /// stored.
    static CRuntimeClass* PASCAL Load(CArchive& ar, UINT* pwSchemaNum);

    /// A new default object, owned by the caller; null when the class cannot be created this way or memory
    /// is short.
    CObject* CreateObject() const;

    /// TRUE when this class is `pBaseClass` or has it among its bases.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

/// Base of the class library's classes: not copyable, knows its class.
class AFX_CLASS_EXPORT CObject {
public:
    /// Information about the object's own class; never null, not to be deleted.
    virtual CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject();

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    /// TRUE when the object is of the class `pClass` or of one derived from it.
    BOOL IsKindOf(const CRuntimeClass* pClass) const;

    /// TRUE when the class has IMPLEMENT_SERIAL, so that CArchive can store pointers to its objects.
    BOOL IsSerializable() const { return GetRuntimeClass()->m_wSchema != 0xFFFF; }

    /// Reads or writes the object. The base does nothing.
    virtual void Serialize(CArchive& ar);

    static const CRuntimeClass classCObject;
    static CRuntimeClass* PASCAL _GetBaseClass();
    static CRuntimeClass* PASCAL GetThisClass();

protected:
    CObject() = default;
};

/// Added to the schema of IMPLEMENT_SERIAL by a class that also loads what other schemas stored; see
/// CArchive::GetObjectSchema.
#define VERSIONABLE_SCHEMA 0x80000000U

/// Makes a class known by its name for as long as the object lives; IMPLEMENT_SERIAL defines one.
struct AFX_CLASS_EXPORT AFX_CLASSINIT {
    explicit AFX_CLASSINIT(CRuntimeClass* pNewClass);
    ~AFX_CLASSINIT();
    AFX_CLASSINIT(const AFX_CLASSINIT&) = delete;
    AFX_CLASSINIT& operator=(const AFX_CLASSINIT&) = delete;

    CRuntimeClass* const m_pClass;
    AFX_CLASSINIT* m_pNext;
};

#define _RUNTIME_CLASS(class_name) (const_cast<CRuntimeClass*>(&class_name::class##class_name))
#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

/// Inside a class: declares its run-time class information. Leaves the access at public, then protected.
#define DECLARE_DYNAMIC(class_name)               \
protected:                                        \
    static CRuntimeClass* PASCAL _GetBaseClass(); \
                                                  \
public:                                           \
    static const CRuntimeClass class##class_name; \
    static CRuntimeClass* PASCAL GetThisClass();  \
    CRuntimeClass* GetRuntimeClass() const override;

#define DECLARE_DYNCREATE(class_name) \
    DECLARE_DYNAMIC(class_name)       \
    static CObject* PASCAL CreateObject();

// NOLINTBEGIN(bugprone-macro-parentheses): the arguments are names of classes
#define DECLARE_SERIAL(class_name) \
    DECLARE_DYNCREATE(class_name)  \
    friend CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb);

// The base is asked for by a function, not by an address: the address of data in another DLL is no constant.
#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, pfnNew)                            \
    CRuntimeClass* PASCAL class_name::_GetBaseClass() {                                                 \
        return RUNTIME_CLASS(base_class_name);                                                          \
    }                                                                                                   \
    const CRuntimeClass class_name::class##class_name = {#class_name, int(sizeof(class_name)), wSchema, \
                                                         pfnNew, &class_name::_GetBaseClass};           \
    CRuntimeClass* PASCAL class_name::GetThisClass() {                                                  \
        return _RUNTIME_CLASS(class_name);                                                              \
    }                                                                                                   \
    CRuntimeClass* class_name::GetRuntimeClass() const {                                                \
        return _RUNTIME_CLASS(class_name);                                                              \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name) \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name) \
    CObject* PASCAL class_name::CreateObject() {         \
        return new class_name;                           \
    }                                                    \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

/// `wSchema` is the version of what the class's Serialize stores, 0 to 0xFFFE.
#define IMPLEMENT_SERIAL(class_name, base_class_name, wSchema)                              \
    CObject* PASCAL class_name::CreateObject() {                                            \
        return new class_name;                                                              \
    }                                                                                       \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, wSchema, &class_name::CreateObject) \
    static const AFX_CLASSINIT classInit##class_name(RUNTIME_CLASS(class_name));            \
    CArchive& AFXAPI operator>>(CArchive& ar, class_name*& pOb) {                           \
        pOb = static_cast<class_name*>(ar.ReadObject(RUNTIME_CLASS(class_name)));           \
        return ar;                                                                          \
    }

/// `object` as a `class_name*` when it is of that class, else null.
#define DYNAMIC_DOWNCAST(class_name, object) \
    (static_cast<class_name*>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
// NOLINTEND(bugprone-macro-parentheses)

/// `pObject` when it is of the class `pClass`, else null; null stays null.
AFX_API_EXPORT CObject* AFXAPI AfxDynamicDownCast(CRuntimeClass* pClass, CObject* pObject);
