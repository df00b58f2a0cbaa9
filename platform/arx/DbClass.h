// Registration of the database's own runtime classes.
#pragma once

#include "platform/arx/RxObject.h"

/// Registers a class and links it to its parent, which is registered already. To be called
/// once for each class, from its desc().
AcRxClass* acdbRegisterClass(const wchar_t* name, const AcRxClass* pParent);
