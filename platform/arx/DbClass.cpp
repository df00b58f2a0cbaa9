#include "platform/arx/DbClass.h"

AcRxClass* acdbRegisterClass(const wchar_t* name, const AcRxClass* pParent) {
    AcRxClass* const pClass = newAcRxClass(name, pParent->name());
    acrxBuildClassHierarchy();
    // Taken: a module was first. What it registered has to do.
    return pClass ? pClass : static_cast<AcRxClass*>(acrxClassDictionary()->at(name));
}
