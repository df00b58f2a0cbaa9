// The colours of the desktop.
#pragma once

#include "platform/win/String.h"

namespace Tessaly {

/// "light" or "dark"; any other text follows the system. Works at any time.
void ApplyTheme(const CString& theme);

/// Whether texts are lighter than what they stand on.
bool IsDark();

} // namespace Tessaly
