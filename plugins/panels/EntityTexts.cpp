#include "plugins/panels/EntityTexts.h"

#include "platform/win/CodePage.h"
#include "platform/win/Number.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "siblings/networkcore/TopologyMultiStorage.h"

namespace Orvane::Panels {

Topology::CTopologyStorage& StorageOf(const Topology::CEntity& entity) {
    auto& storages = *Topology::CTopologyMultiStorage::Instance();
    const System::CGisSystem* const pSystem = entity.GetSystem();
    return pSystem && pSystem->GetTopologyType() == TopologyScheme ? *storages.GetAuxTopology()
                                                                   : *storages.GetTopology();
}

Topology::CEntity FindEntity(AcDbObjectId id) {
    const Topology::CEntity entity(Topology::CTopologyMultiStorage::Instance()->GetTopology(), id);
    return entity ? Topology::CEntity(&StorageOf(entity), id) : Topology::CEntity();
}

CString KindOf(const Topology::CEntity& entity) {
    return CModuleConfiguration::Instance()->GetTopologyConfiguration()->GetEntityTypeName(
        entity.GetEntityType(), entity.GetSystem());
}

CString SystemNameOf(const Topology::CEntity& entity) {
    const System::CGisSystem* const pSystem = entity.GetSystem();
    return pSystem ? pSystem->GetSystemName() : CString();
}

CString TextOf(const AcDbValue& value) {
    switch (value.kind()) {
    case AcDbValue::Kind::Real:
        return CString(RealToText(*value.asReal()));
    case AcDbValue::Kind::Integer:
        return CString(std::to_wstring(*value.asInteger()));
    case AcDbValue::Kind::Text:
        return Utf8ToWide(value.asText());
    default:
        return {};
    }
}

CString MeasureText(double value) {
    return FormatText(L"%.2f", value);
}

} // namespace Orvane::Panels
