#include "siblings/giscore/GisSystems.h"

namespace Orvane::System {

namespace {

template <class Test>
CGisSystem* FindIf(const std::vector<std::unique_ptr<CGisSystem>>& systems, Test test) {
    for (const auto& system : systems) {
        if (test(*system)) {
            return system.get();
        }
    }
    return nullptr;
}

} // namespace

std::vector<CGisSystem*> CGisSystems::GetSystemList() const {
    std::vector<CGisSystem*> list;
    list.reserve(m_systems.size());
    for (const auto& system : m_systems) {
        list.push_back(system.get());
    }
    return list;
}

CGisSystem* CGisSystems::GetSystemById(int id) const {
    return FindIf(m_systems, [id](const CGisSystem& system) { return system.GetSystemId() == id; });
}

CGisSystem* CGisSystems::GetSystemByGuid(const wchar_t* guid) const {
    return FindIf(m_systems, [guid](const CGisSystem& system) {
        return system.GetGuid().CompareNoCase(guid) == 0;
    });
}

CGisSystem* CGisSystems::GetSystemByName(const wchar_t* name) const {
    return FindIf(m_systems, [name](const CGisSystem& system) {
        return system.GetSystemName().CompareNoCase(name) == 0;
    });
}

} // namespace Orvane::System
