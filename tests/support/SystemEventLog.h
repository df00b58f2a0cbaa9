// Records the events of systems.
#pragma once

#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "tests/support/EventLog.h"

/// Registered during its lifetime.
class SystemEventLog final : public Orvane::System::ISystemEvents, public EventLog {
    using CGisSystem = Orvane::System::CGisSystem;

public:
    SystemEventLog() { Orvane::System::CGisEvents::Instance()->Register(this); }
    ~SystemEventLog() { Orvane::System::CGisEvents::Instance()->Unregister(this); }
    SystemEventLog(const SystemEventLog&) = delete;
    SystemEventLog& operator=(const SystemEventLog&) = delete;

    void OnSystemChanged(CGisSystem* p) override { Note("changed", p); }
    void OnSystemBecomeActive(CGisSystem* p) override { Note("active", p, Active()); }
    void OnSystemBecomeInactive(CGisSystem* p) override { Note("inactive", p, Active()); }
    void OnSystemBecomeHidden(CGisSystem* p) override { Note("hidden", p); }
    void OnSystemBecomeShown(CGisSystem* p) override { Note("shown", p); }
    void OnBeforeSystemDelete(CGisSystem* p) override { Note("gone", p, Active()); }
    void OnAfterSystemDelete() override { Note("after"); }
    void OnNewSystemCreated(CGisSystem* p) override { Note("new", p); }
    void OnDropSystemContent(CGisSystem* p) override { Note("drop", p, Active()); }

private:
    /// The active system of the current drawing.
    static const CGisSystem* Active() {
        return Orvane::System::CSystemManager::Instance()->GetActiveSystem();
    }
};
