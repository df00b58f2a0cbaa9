// The colours of the desktop.
#pragma once

#include "host/desktop/SystemTheme.h"
#include "platform/win/String.h"

namespace Tessaly {

/// "light" or "dark"; any other text follows the system, or the palette that it has given the
/// toolkit where it does not say. Works at any time.
void ApplyTheme(const CString& theme, SystemTheme::Scheme system = SystemTheme::Scheme::Unknown);

/// Whether texts are lighter than what they stand on.
bool IsDark();

} // namespace Tessaly
