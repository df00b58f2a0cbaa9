#include "plugins/network/ImportedSystems.h"

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/SystemManager.h"

namespace Orvane::Network {

namespace {

// Message ids.
constexpr int kPolygonsName = 900120;
constexpr int kNameTaken = 900302;

} // namespace

SystemsInMaking::~SystemsInMaking() {
    for (System::CGisSystem* pSystem : {m_systems.pPolygons, m_systems.pNetwork}) {
        if (pSystem && !m_bKept) {
            try {
                System::CSystemManager::Instance()->DeleteSystem(pSystem);
            } catch (...) {
                // The import has already failed; that error is the one to report.
            }
        }
    }
}

CString SystemsInMaking::Make(const CString& name, int function, bool hasNetwork,
                              bool hasPolygons) {
    System::CSystemManager& systems = *System::CSystemManager::Instance();
    const CModuleConfiguration& messages = *CModuleConfiguration::Instance();
    const CString polygonName =
        hasNetwork ? FormatText(messages.GetMsg(kPolygonsName).View(), name) : name;
    // Checked first, so listeners are not notified of a system that is deleted again at once.
    if (hasPolygons && systems.GetSystemByName(polygonName)) {
        return FormatText(messages.GetMsg(kNameTaken).View(), polygonName);
    }
    CString reason;
    if (hasNetwork) {
        m_systems.pNetwork = systems.CreateSystem(name, TopologyLine, function, &reason);
    }
    if (hasPolygons && reason.IsEmpty()) {
        m_systems.pPolygons = systems.CreateSystem(polygonName, TopologyPolygon, 0, &reason);
    }
    return reason;
}

} // namespace Orvane::Network
