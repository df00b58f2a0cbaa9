// Events of the GIS core about systems, configurations and settings.
#pragma once

namespace Orvane::System {

class CGisSystem;
class CGisSystems;

/// Override the events of interest. Observers are not owned. The texts of the configuration
/// events are the repository's tag and the item's GUID.
class ISystemEvents {
public:
    virtual void OnSystemChanged(CGisSystem*) {}
    /// Null: no system is active any longer.
    virtual void OnSystemBecomeActive(CGisSystem*) {}
    virtual void OnSystemBecomeInactive(CGisSystem*) {}
    virtual void OnSystemBecomeHidden(CGisSystem*) {}
    virtual void OnSystemBecomeShown(CGisSystem*) {}
    virtual void OnBeforeSystemDelete(CGisSystem*) {}
    virtual void OnAfterSystemDelete() {}
    virtual void OnNewSystemCreated(CGisSystem*) {}
    virtual void OnNewConfigDefinitionAdded(CGisSystem*, const wchar_t* /*tag*/,
                                            const wchar_t* /*guid*/) {}
    virtual void OnTemporaryDataRefreshed() {}
    virtual void OnBeforeConfigDefinitionDeleted(CGisSystem*, const wchar_t* /*tag*/,
                                                 const wchar_t* /*guid*/) {}
    virtual void OnConfigDefinitionChanged(CGisSystem*, const wchar_t* /*tag*/,
                                           const wchar_t* /*guid*/) {}
    virtual void OnConfigBecomeDefault(CGisSystem*, const wchar_t* /*tag*/,
                                       const wchar_t* /*guid*/) {}
    virtual void OnAfterGeneralSettingsChanged() {}

    /// Sent between the two events of a deletion: observers that store data of the system, such
    /// as its entities, drop it now.
    virtual void OnDropSystemContent(CGisSystem*) {}
    /// Sent before a drawing is saved: observers that keep data of its systems outside the
    /// drawing write it back now.
    virtual void OnSaveSystemContent(CGisSystems*) {}

protected:
    ~ISystemEvents() = default;
};

} // namespace Orvane::System
