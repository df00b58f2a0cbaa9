#include "plugins/network/ImportedSystems.h"

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/SystemManager.h"

namespace Orvane::Network {

namespace {

// Messages.
constexpr int kPolygonsName = 900120;
constexpr int kNameTaken = 900302;

} // namespace

SystemsInMaking::~SystemsInMaking() {
    for (System::CGisSystem* pSystem : {m_systems.pPolygons, m_systems.pNetwork}) {
        if (pSystem && !m_bKept) {
            try {
                System::CSystemManager::Instance()->DeleteSystem(pSystem);
            } catch (...) {
                // Something has gone wrong already, and that is what the user will read.
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
    // Before anything is made: nobody is to hear of systems that go again at once.
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
