// Display names of systems.
#pragma once

#include "siblings/giscore/systems/GisSystem.h"

namespace Orvane::Plugins {

/// The system's function, such as "Water supply", or the topology's name if the topology has no
/// functions. Empty if the configuration does not know it.
CString FunctionName(const System::CGisSystem& system);

} // namespace Orvane::Plugins
