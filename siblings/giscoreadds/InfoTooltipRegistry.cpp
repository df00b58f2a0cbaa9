#include "siblings/giscoreadds/InfoTooltipRegistry.h"

#include "siblings/giscoreadds/IInfoTooltip.h"

namespace Orvane::Utility {

CInfoTooltipRegistry* CInfoTooltipRegistry::Instance() {
    static auto* const instance = new CInfoTooltipRegistry;
    return instance;
}

void CInfoTooltipRegistry::RegisterInfoTooltip(boost::shared_ptr<IInfoTooltip> tooltip) {
    if (tooltip) {
        m_tooltips.push_back(tooltip);
    }
}

} // namespace Orvane::Utility
