// The info tools registered by plug-ins.
#pragma once

#include <boost/shared_ptr.hpp>
#include <vector>

#include "siblings/giscoreadds/Api.h"

namespace Orvane::Utility {

class IInfoTooltip;

/// Main thread only.
class GISCOREADDS_API CInfoTooltipRegistry {
public:
    /// Lives to the end of the process.
    static CInfoTooltipRegistry* Instance();

    /// Null is ignored.
    void RegisterInfoTooltip(boost::shared_ptr<IInfoTooltip> tooltip);
    /// In the order of registration.
    const std::vector<boost::shared_ptr<IInfoTooltip>>& GetInfoTTs() const { return m_tooltips; }

private:
    CInfoTooltipRegistry() = default;

    std::vector<boost::shared_ptr<IInfoTooltip>> m_tooltips;
};

} // namespace Orvane::Utility
