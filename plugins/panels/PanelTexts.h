// Message ids of the panels and their dialogs.
#pragma once

#include "plugins/common/Texts.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane::Panels {

using Plugins::Msg;
using Plugins::Text;

} // namespace Orvane::Panels
