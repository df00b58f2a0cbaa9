#include "plugins/repository/SystemEntities.h"

#include <algorithm>

#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "plugins/repository/RepositoryPrompts.h"
#include "plugins/repository/RepositoryTexts.h"
#include "siblings/networkcore/TopologyMultiStorage.h"

namespace Orvane::Repository {

using Topology::CEntity;
using Topology::CTopologyStorage;

CTopologyStorage& StorageOf(const System::CGisSystem& system) {
    auto& storages = *Topology::CTopologyMultiStorage::Instance();
    return system.GetTopologyType() == TopologyScheme
               ? *storages.GetAuxTopology(system.GetDatabase())
               : *storages.GetTopology(system.GetDatabase());
}

std::vector<AcDbObjectId> EntitiesOf(const System::CGisSystem& system, enmEntityType type) {
    const CTopologyStorage& storage = StorageOf(system);
    const int id = system.GetSystemId();
    std::vector<AcDbObjectId> all;
    const auto add = [&](enmEntityType kind, std::vector<AcDbObjectId> ids) {
        if (type == EntityNone || type == kind) {
            all.insert(all.end(), ids.begin(), ids.end());
        }
    };
    add(EntityNode, storage.GetSystemNodes(id));
    add(EntitySection, storage.GetSystemSections(id));
    add(EntityPolygon, storage.GetSystemPolygons(id));
    return all;
}

std::vector<AcDbObjectId> EntitiesOf(const System::CGisSystem& system, enmEntityType type,
                                     const Query::CQueryDefinition* pOnly) {
    if (!pOnly) {
        return EntitiesOf(system, type);
    }
    const enmEntityType queried = pOnly->GetQueriedType();
    if (type != EntityNone && queried != EntityNone && type != queried) {
        return {};
    }
    std::vector<AcDbObjectId> ids = EntitiesOf(system, type == EntityNone ? queried : type);
    const Query::QueryMatcher matcher(*pOnly);
    const CTopologyStorage& storage = StorageOf(system);
    std::erase_if(
        ids, [&](AcDbObjectId id) { return !matcher.Matches(ValuesOf(CEntity(&storage, id))); });
    return ids;
}

Query::ValueOf ValuesOf(const CEntity& entity) {
    return [entity](AcDbNameId name) { return entity.GetAttribute(name); };
}

std::optional<CString> AttributeInUse(const System::CGisSystem& system, enmEntityType type,
                                      const CString& name) {
    std::optional<CString> similar;
    const auto* const pDrawing = system.GetDatabase();
    for (const AcDbObjectId id : EntitiesOf(system, type)) {
        const AcDbAttributes& all =
            static_cast<const AcDbEntity*>(pDrawing->peek(id))->attributes();
        for (std::size_t i = 0; i < all.size(); ++i) {
            const CString known = Utf8ToWide(AcDbNameOf(all.at(i).name));
            if (known == name) {
                return known;
            }
            if (!similar && known.CompareNoCase(name) == 0) {
                similar = known;
            }
        }
    }
    return similar;
}

std::optional<CString> AskAttribute(const CString& label, const CString& current,
                                    const System::CGisSystem* pSystem, enmEntityType type) {
    auto name = acedAskText(label, current);
    if (!name || name->IsEmpty()) {
        return std::nullopt;
    }
    const auto inUse = pSystem ? AttributeInUse(*pSystem, type, *name) : name;
    if (!inUse) {
        acutPrintf(L"%s\n", Text(Msg::UnknownAttribute, pSystem->GetSystemName(), *name));
    }
    return inUse ? inUse : name;
}

} // namespace Orvane::Repository
