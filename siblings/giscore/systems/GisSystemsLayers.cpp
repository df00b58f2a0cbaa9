// Layers of systems: created if missing, shown and hidden with their system.
#include <algorithm>

#include "platform/arx/DbUndoScopes.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/systems/GisSystems.h"

namespace Orvane::System {

namespace {

void SwitchLayer(AcDbDatabase& database, AcDbObjectId id, bool off) {
    AcDbLayerTableRecord* pLayer = nullptr;
    if (acdbOpenObject(pLayer, id, AcDb::kForWrite, false, &database) == Acad::eOk) {
        if (pLayer->isOff() != off) {
            pLayer->setIsOff(off);
        }
        pLayer->close();
    }
}

AcDbObjectId MakeLayer(AcDbDatabase& database, const CString& name, int colorIndex) {
    const AcDbObjectId id = database.layer(name);
    AcDbLayerTableRecord* pLayer = nullptr;
    if (acdbOpenObject(pLayer, id, AcDb::kForWrite, false, &database) == Acad::eOk) {
        pLayer->setColorIndex(colorIndex);
        pLayer->setIsOff(false);
        pLayer->close();
    }
    return id;
}

/// An unused layer name: entities on an existing layer of that name are not the system's.
CString FreeLayerName(const AcDbDatabase& database, const CString& wanted) {
    CString name = wanted;
    for (int number = 2; !database.findLayer(name).isNull(); ++number) {
        name.Format(L"%s %d", wanted, number);
    }
    return name;
}

} // namespace

void CGisSystems::SetVisibility(CGisSystem& system, int visible) {
    if (system.m_bVisible == visible) {
        return;
    }
    {
        const AcDbUndoGroup group(*m_pDatabase, system.m_strName);
        system.m_bVisible = visible;
        Store(system);
        for (const CGisSystemLayer& layer : system.m_layers) {
            SwitchLayer(*m_pDatabase, layer.GetLayerId(), !visible);
        }
    }
    CGisEvents::Instance()->Raise(visible ? &ISystemEvents::OnSystemBecomeShown
                                          : &ISystemEvents::OnSystemBecomeHidden,
                                  &system);
}

int CGisSystems::CreateMissingLayers() {
    int made = 0;
    for (CGisSystem* const pSystem : GetSystemList()) {
        const int madeHere = CreateMissingLayers(*pSystem);
        made += madeHere;
        if (madeHere > 0) {
            CGisEvents::Instance()->Raise(&ISystemEvents::OnSystemChanged, pSystem);
        }
    }
    return made;
}

int CGisSystems::CreateMissingLayers(CGisSystem& system) {
    int made = 0;
    const AcDbUndoGroup group(*m_pDatabase, system.m_strName);
    for (const LayerDesign* const pDesign :
         LayerDesignsOf(system.m_enmTopologyType, system.m_nFunction)) {
        const CGisSystemLayer* const pKnown = system.GetLayerByReference(pDesign->reference);
        if (pKnown && !pKnown->GetLayerId().isNull()) {
            continue;
        }
        ++made;
        const CString name =
            pKnown
                ? pKnown->GetLayerName()
                : FreeLayerName(*m_pDatabase, system.m_strName + L" " + MessageText(pDesign->word));
        SwitchLayer(*m_pDatabase, MakeLayer(*m_pDatabase, name, pDesign->colorIndex),
                    !system.m_bVisible);
        if (!pKnown) {
            system.m_layers.emplace_back(*m_pDatabase, pDesign->reference, name);
        }
    }
    if (made > 0) {
        // In the order in which the drawing returns them.
        std::sort(system.m_layers.begin(), system.m_layers.end(),
                  [](const CGisSystemLayer& left, const CGisSystemLayer& right) {
                      return left.GetReference() < right.GetReference();
                  });
        Store(system);
    }
    return made;
}

} // namespace Orvane::System
