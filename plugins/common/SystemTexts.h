// What systems are called.
#pragma once

#include "siblings/giscore/systems/GisSystem.h"

namespace Orvane::Plugins {

/// "Water supply": what a system is for, or what it consists of where its topology has no
/// functions. Empty if the configuration does not know.
CString FunctionName(const System::CGisSystem& system);

} // namespace Orvane::Plugins
