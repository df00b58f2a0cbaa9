// What the GIS core tells of systems, configurations and settings.
#pragma once

namespace Orvane::System {

class CGisSystem;
class CGisSystems;

/// Derived by who wants to hear; override what is of interest. Not owned. The meaning of
/// the texts of the configuration events: tag of the repository, GUID of the definition.
class ISystemEvents {
public:
    virtual void OnSystemChanged(CGisSystem*) {}
    /// Null: no system is active any more.
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

    /// Between the two events of a deletion: who keeps something of the system, such as
    /// its entities, drops it now.
    virtual void OnDropSystemContent(CGisSystem*) {}
    /// A drawing is about to be saved: who keeps something of its systems apart from the
    /// drawing gives it back now.
    virtual void OnSaveSystemContent(CGisSystems*) {}

protected:
    ~ISystemEvents() = default;
};

} // namespace Orvane::System
