// Reacts to the host's saves.
#pragma once

#include "platform/arx/EdEditor.h"
#include "workspacecore/Api.h"

/// Created by CWsManager and never removed. Registered as a runtime class under its own name.
// NOLINTNEXTLINE(readability-identifier-naming): the name under which it is registered
class WORKSPACE_API ORVZWorkspaceCore_EditorReactor final : public AcEditorReactor {
public:
    /// \param bAutoInitAndRelease attach to the editor at once
    explicit ORVZWorkspaceCore_EditorReactor(bool bAutoInitAndRelease = true);
    ~ORVZWorkspaceCore_EditorReactor() override;

    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    static void rxInit();
    static void rxForget();

    /// Records the program versions in the drawing, then notifies the listeners.
    void beginSave(AcDbDatabase* pDb, const wchar_t* lpszFileName) override;
    void saveComplete(AcDbDatabase* pDb, const wchar_t* lpszFileName) override;

    virtual void Attach();
    virtual void Detach();
    /// The editor; null if there is none.
    virtual AcEditor* Subject() const;
    virtual bool IsAttached() const { return m_bAutoInitAndRelease; }

private:
    bool m_bAutoInitAndRelease;
    static AcRxClass* s_pDesc;
};
