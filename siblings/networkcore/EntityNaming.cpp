#include "siblings/networkcore/EntityNaming.h"

#include <limits>

#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/utility/SupportFile.h"
#include "siblings/networkcore/EntityLists.h"

namespace Orvane::Topology {

namespace {
constexpr const wchar_t* kNameRulesFile = L"NameRules.ini";
}

void CTopologyStorage::RefreshNameRules() {
    CModuleConfiguration* const pConfiguration = CModuleConfiguration::Instance();
    const CString path = pConfiguration->GetPath(L"support") + kNameRulesFile;
    IniFile file;
    std::vector<CString> problems = LoadSupportFile(file, path);
    m_pNaming->rules = NameRules(file, path, problems);
    m_pNaming->rulesAreRead = true;
    pConfiguration->SetProblems(kNameRulesFile, std::move(problems));
}

void CTopologyStorage::LoadCountersFromSystem(const System::CGisSystem* pSystem) {
    // Ids are unique within one drawing only.
    const bool isOwn = pSystem && pSystem->GetDatabase() == m_pDatabase;
    m_pNaming->loadedSystem = isOwn ? pSystem->GetSystemId() : 0;
    m_pNaming->counters = isOwn ? pSystem->GetCounters() : System::CGisSystem::Counters();
}

void CTopologyStorage::SaveCountersToSystem(System::CGisSystem* pSystem) {
    if (pSystem && pSystem->GetDatabase() == m_pDatabase &&
        pSystem->GetSystemId() == m_pNaming->loadedSystem) {
        pSystem->SetCounters(m_pNaming->counters);
    }
}

std::string CTopologyStorage::NameFor(System::CGisSystem& system, enmEntityType type,
                                      std::string_view stated) {
    if (!stated.empty()) {
        return std::string(stated);
    }
    if (!m_pNaming->rulesAreRead) {
        RefreshNameRules();
    }
    const NamePattern& pattern =
        m_pNaming->rules.Find(system.GetTopologyType(), system.GetSystemFunction(), type);
    const int systemId = system.GetSystemId();
    int& counter = m_pNaming->loadedSystem == systemId
                       ? m_pNaming->counters[CString(NameRules::WordOf(type))]
                       : system.Counter(NameRules::WordOf(type));
    EntityList& list = Current().Of(type);
    std::string name;
    do {
        // Wraps around to 1 on overflow; a counter read from a file may hold anything.
        counter = counter < 0 || counter == std::numeric_limits<int>::max() ? 1 : counter + 1;
        name = pattern.Name(counter);
    } while (list.byName.Find(list, systemId, name));
    return name;
}

} // namespace Orvane::Topology
