// Records the events of workspace listeners.
#pragma once

#include "siblings/giscore/systems/GisSystem.h"
#include "tests/support/EventLog.h"
#include "workspacecore/events/IWsListener.h"

/// Records every event, prefixed with its own name, in a log that several listeners may share.
class ListenerLog final : public Orvane::Workspace::IWsListener {
    using CGisSystem = Orvane::System::CGisSystem;

public:
    explicit ListenerLog(EventLog& log, std::string name = "")
        : m_log(log), m_name(std::move(name)) {}

    int OnBeforeAcadWillClose() override {
        Note("BeforeClose");
        return m_nVeto;
    }
    void OnBeginSaveAcadDocument(AcDbDatabase*, const wchar_t* t) override { Note("BeginSave", t); }
    void OnSaveCompletedAcadDocument(AcDbDatabase*, const wchar_t* t) override { Note("Saved", t); }
    void OnAcadDocumentBecomeCurrent(AcApDocument* p) override { Note("Current", p); }
    void OnAcadDocumentToBeDeactivated(AcApDocument* p) override { Note("ToBeDeactivated", p); }
    void OnAcadDocumentToBeDestroyed(AcApDocument* p) override { Note("ToBeDestroyed", p); }
    void OnAcadDocumentDestroyed(const wchar_t* t) override { Note("Destroyed", t); }
    void OnSystemChanged(CGisSystem* p) override { Note("Changed", p); }
    void OnSystemBecomeActive(CGisSystem* p) override { Note("Active", p); }
    void OnSystemBecomeInactive(CGisSystem* p) override { Note("Inactive", p); }
    void OnSystemBecomeHidden(CGisSystem* p) override { Note("Hidden", p); }
    void OnSystemBecomeShown(CGisSystem* p) override { Note("Shown", p); }
    void OnBeforeSystemDelete(CGisSystem* p) override { Note("BeforeDelete", p); }
    void OnAfterSystemDelete() override { Note("AfterDelete"); }
    void OnNewSystemCreated(CGisSystem* p) override { Note("Created", p); }
    void OnNewConfigDefinitionAdded(CGisSystem* p, const wchar_t* t, const wchar_t* g) override {
        Note("DefinitionAdded", p, t, g);
    }
    void OnTemporaryDataRefreshed() override { Note("TemporaryData"); }
    void OnBeforeConfigDefinitionDeleted(CGisSystem* p, const wchar_t* t,
                                         const wchar_t* g) override {
        Note("DefinitionToGo", p, t, g);
    }
    void OnConfigDefinitionChanged(CGisSystem* p, const wchar_t* t, const wchar_t* g) override {
        Note("DefinitionChanged", p, t, g);
    }
    void OnConfigBecomeDefault(CGisSystem* p, const wchar_t* t, const wchar_t* g) override {
        Note("Default", p, t, g);
    }
    void OnBeforeCommandActivated(const wchar_t* t) override { Note("BeforeCommand", t); }
    void OnAfterCommandCompleted(const wchar_t* t) override { Note("AfterCommand", t); }
    void OnAfterGeneralSettingsChanged() override { Note("Settings"); }

    int m_nVeto = 0;

private:
    template <class... Arguments>
    void Note(const char* event, const Arguments&... arguments) {
        m_log.Note(m_name + event, arguments...);
    }

    EventLog& m_log;
    std::string m_name;
};
