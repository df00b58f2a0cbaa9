// Message ids for configurations.
#pragma once

#include "plugins/common/Texts.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane::Repository {

using Plugins::Msg;
using Plugins::Text;

} // namespace Orvane::Repository
