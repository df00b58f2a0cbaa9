// Registration of the database's own runtime classes.
#pragma once

#include "platform/arx/RxObject.h"

/// Registers a class and links it to its parent, which must already be registered. Call once for
/// each class, from its desc().
AcRxClass* acdbRegisterClass(const wchar_t* name, const AcRxClass* pParent);
