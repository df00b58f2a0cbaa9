#include "siblings/giscore/systems/GisSystem.h"

#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/systems/GisSystems.h"

namespace Orvane::System {

namespace {

ISystemStatistics* s_pStatistics = nullptr;

} // namespace

void SetSystemStatistics(ISystemStatistics* pStatistics) {
    s_pStatistics = pStatistics;
}

int CGisSystem::GetActive() const {
    return m_owner.GetActiveSystem() == this;
}

AcDbDatabase* CGisSystem::GetDatabase() const {
    return m_owner.GetDatabase();
}

const CGisSystemLayer* CGisSystem::GetLayerByReference(const wchar_t* reference) const {
    for (const CGisSystemLayer& layer : m_layers) {
        if (layer.GetReference() == reference) {
            return &layer;
        }
    }
    return nullptr;
}

AcDbObjectId CGisSystem::GetLayerFor(enmEntityType type) const {
    const CGisSystemLayer* const pLayer =
        GetLayerByReference(LayerReferenceOf(m_enmTopologyType, m_nFunction, type));
    if (pLayer) {
        return pLayer->GetLayerId();
    }
    return m_layers.empty() ? AcDbObjectId() : m_layers.front().GetLayerId();
}

void CGisSystem::SetCoordinateSystem(const wchar_t* text) {
    if (m_strCoordinateSystem != text) {
        m_strCoordinateSystem = text;
        m_owner.Store(*this);
        CGisEvents::Instance()->Raise(&ISystemEvents::OnSystemChanged, this);
    }
}

int CGisSystem::GetStatisticValue_int(enmStatistic statistic, int& value) const {
    double number = 0;
    const int found = GetStatisticValue_dbl(statistic, number);
    value = found ? static_cast<int>(number) : value;
    return found;
}

int CGisSystem::GetStatisticValue_dbl(enmStatistic statistic, double& value) const {
    const auto number =
        s_pStatistics ? s_pStatistics->GetStatistic(*this, statistic) : std::optional<double>();
    value = number.value_or(value);
    return number.has_value();
}

} // namespace Orvane::System
