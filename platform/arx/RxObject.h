// Runtime classes and the dictionaries in which they and other process-wide objects
// are found by name.
#pragma once

#include <map>

#include "platform/Api.h"
#include "platform/win/String.h"

class AcRxClass;

/// Base of everything that can tell its class at run time. An object of a derived class
/// that declares no class of its own answers with its nearest declared base.
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

/// One runtime class. Made by newAcRxClass and owned by the class dictionary.
class PLATFORM_API AcRxClass final : public AcRxObject {
public:
    AcRxClass(const wchar_t* name, const wchar_t* parentName)
        : m_strName(name), m_strParentName(parentName) {}

    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }

    const CString& name() const { return m_strName; }
    /// Null for the root, and for a class whose parent is not (yet) registered.
    AcRxClass* myParent() const { return m_pParent; }
    /// True for the class itself as well.
    bool isDerivedFrom(const AcRxClass* pClass) const;

private:
    friend bool acrxBuildClassHierarchy();
    friend void deleteAcRxClass(AcRxClass*);
    CString m_strName;
    CString m_strParentName;
    AcRxClass* m_pParent = nullptr;
};

/// Objects by name. Not owned.
class PLATFORM_API AcRxDictionary final : public AcRxObject {
public:
    /// Null if there is none of the name.
    AcRxObject* at(const wchar_t* key) const;
    /// Puts an object under a name in place of what stood there.
    void atPut(const wchar_t* key, AcRxObject* pObject);
    void remove(const wchar_t* key);

private:
    std::map<CString, AcRxObject*, CStringLess> m_objects;
};

/// The root of names: "ClassDictionary", "AcEditor", "ACAD_REGISTERED_COMMANDS".
PLATFORM_API AcRxDictionary* acrxSysRegistry();
PLATFORM_API AcRxDictionary* acrxClassDictionary();

/// Registers a class. A name that is taken already is left alone and gives null.
PLATFORM_API AcRxClass* newAcRxClass(const wchar_t* name, const wchar_t* parentName);
/// Takes a class out of the registry and destroys it; null is ignored.
PLATFORM_API void deleteAcRxClass(AcRxClass* pClass);
/// Links every registered class to its parent by name. False if a parent is missing.
PLATFORM_API bool acrxBuildClassHierarchy();
