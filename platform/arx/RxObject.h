// Runtime classes, and the dictionaries that map names to these and other process-wide objects.
#pragma once

#include <map>

#include "platform/Api.h"
#include "platform/win/String.h"

class AcRxClass;

/// Base of everything with a runtime class. An object whose C++ class declares none reports that of
/// its nearest base that does.
class PLATFORM_API AcRxObject {
public:
    virtual ~AcRxObject() = default;
    static AcRxClass* desc();
    virtual AcRxClass* isA() const { return desc(); }
    bool isKindOf(const AcRxClass* pClass) const;

protected:
    AcRxObject() = default;
    AcRxObject(const AcRxObject&) = default;
    AcRxObject& operator=(const AcRxObject&) = default;
};

/// A runtime class. Created by newAcRxClass and owned by the class dictionary.
class PLATFORM_API AcRxClass final : public AcRxObject {
public:
    AcRxClass(const wchar_t* name, const wchar_t* parentName)
        : m_strName(name), m_strParentName(parentName) {}

    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }

    const CString& name() const { return m_strName; }
    /// Null for the root, and while the parent class is not registered.
    AcRxClass* myParent() const { return m_pParent; }
    /// Also true for the class itself.
    bool isDerivedFrom(const AcRxClass* pClass) const;

private:
    friend bool acrxBuildClassHierarchy();
    friend void deleteAcRxClass(AcRxClass*);
    CString m_strName;
    CString m_strParentName;
    AcRxClass* m_pParent = nullptr;
};

/// Objects by name. Does not own them.
class PLATFORM_API AcRxDictionary final : public AcRxObject {
public:
    /// Null if the key does not exist.
    AcRxObject* at(const wchar_t* key) const;
    /// Stores an object under a key, replacing any previous one.
    void atPut(const wchar_t* key, AcRxObject* pObject);
    void remove(const wchar_t* key);

private:
    std::map<CString, AcRxObject*, CStringLess> m_objects;
};

/// The root dictionary: "ClassDictionary", "AcEditor", "ACAD_REGISTERED_COMMANDS".
PLATFORM_API AcRxDictionary* acrxSysRegistry();
PLATFORM_API AcRxDictionary* acrxClassDictionary();

/// Registers a class. Returns null and changes nothing if the name is taken.
PLATFORM_API AcRxClass* newAcRxClass(const wchar_t* name, const wchar_t* parentName);
/// Unregisters and destroys a class; null is ignored.
PLATFORM_API void deleteAcRxClass(AcRxClass* pClass);
/// Links every registered class to its parent. False if a parent is missing.
PLATFORM_API bool acrxBuildClassHierarchy();
