#include "platform/arx/DbClass.h"

AcRxClass* acdbRegisterClass(const wchar_t* name, const AcRxClass* pParent) {
    AcRxClass* const pClass = newAcRxClass(name, pParent->name());
    acrxBuildClassHierarchy();
    // The name is taken: a module registered it first, so use that class.
    return pClass ? pClass : static_cast<AcRxClass*>(acrxClassDictionary()->at(name));
}
