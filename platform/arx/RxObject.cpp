#include "platform/arx/RxObject.h"

#include <memory>
#include <vector>

namespace {

constexpr const wchar_t* kRootClass = L"AcRxObject";
constexpr const wchar_t* kClassClass = L"AcRxClass";

/// The registry owns the classes; both end with the process.
struct ClassRegistry {
    AcRxDictionary dictionary;
    std::vector<std::unique_ptr<AcRxClass>> classes;
};

ClassRegistry& Registry() {
    static ClassRegistry* const registry = [] {
        auto* made = new ClassRegistry;
        for (const wchar_t* name : {kRootClass, kClassClass}) {
            made->classes.push_back(
                std::make_unique<AcRxClass>(name, name == kRootClass ? L"" : kRootClass));
            made->dictionary.atPut(name, made->classes.back().get());
        }
        return made;
    }();
    return *registry;
}

} // namespace

AcRxClass* AcRxObject::desc() {
    return Registry().classes[0].get();
}

bool AcRxObject::isKindOf(const AcRxClass* pClass) const {
    return isA()->isDerivedFrom(pClass);
}

AcRxClass* AcRxClass::desc() {
    return Registry().classes[1].get();
}

bool AcRxClass::isDerivedFrom(const AcRxClass* pClass) const {
    for (const AcRxClass* pOwn = this; pOwn; pOwn = pOwn->myParent()) {
        if (pOwn == pClass) {
            return true;
        }
    }
    return false;
}

AcRxObject* AcRxDictionary::at(const wchar_t* key) const {
    const auto hit = m_objects.find(std::wstring_view(key));
    return hit == m_objects.end() ? nullptr : hit->second;
}

void AcRxDictionary::atPut(const wchar_t* key, AcRxObject* pObject) {
    m_objects[CString(key)] = pObject;
}

void AcRxDictionary::remove(const wchar_t* key) {
    const auto hit = m_objects.find(std::wstring_view(key));
    if (hit != m_objects.end()) {
        m_objects.erase(hit);
    }
}

AcRxDictionary* acrxSysRegistry() {
    static AcRxDictionary* const registry = [] {
        auto* made = new AcRxDictionary;
        made->atPut(L"ClassDictionary", &Registry().dictionary);
        return made;
    }();
    return registry;
}

AcRxDictionary* acrxClassDictionary() {
    return &Registry().dictionary;
}

AcRxClass* newAcRxClass(const wchar_t* name, const wchar_t* parentName) {
    ClassRegistry& registry = Registry();
    if (registry.dictionary.at(name)) {
        return nullptr;
    }
    registry.classes.push_back(std::make_unique<AcRxClass>(name, parentName));
    registry.dictionary.atPut(name, registry.classes.back().get());
    return registry.classes.back().get();
}

void deleteAcRxClass(AcRxClass* pClass) {
    ClassRegistry& registry = Registry();
    for (const auto& other : registry.classes) {
        if (other->m_pParent == pClass) {
            other->m_pParent = nullptr;
        }
    }
    const auto removed = std::erase_if(registry.classes, [&](const auto& entry) {
        if (entry.get() != pClass) {
            return false;
        }
        registry.dictionary.remove(entry->name());
        return true;
    });
    static_cast<void>(removed);
}

bool acrxBuildClassHierarchy() {
    ClassRegistry& registry = Registry();
    bool whole = true;
    for (const auto& entry : registry.classes) {
        if (entry->m_strParentName.IsEmpty()) {
            continue;
        }
        entry->m_pParent = static_cast<AcRxClass*>(registry.dictionary.at(entry->m_strParentName));
        whole = whole && entry->m_pParent;
    }
    return whole;
}
