// The colours of the desktop.
#pragma once

#include "host/desktop/SystemTheme.h"
#include "platform/win/String.h"

namespace Tessaly {

/// "light" or "dark"; any other text follows the system's setting or, if that is unknown, the
/// palette that the toolkit got from the system. Can be called at any time.
void ApplyTheme(const CString& theme, SystemTheme::Scheme system = SystemTheme::Scheme::Unknown);

/// Whether text is lighter than its background.
bool IsDark();

} // namespace Tessaly
