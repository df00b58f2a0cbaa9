// Texts of the panels and their dialogs, by their numbers in the message catalogue.
#pragma once

#include "plugins/common/Texts.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane::Panels {

using Plugins::Msg;
using Plugins::Text;

} // namespace Orvane::Panels
