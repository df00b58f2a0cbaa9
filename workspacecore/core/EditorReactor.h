// Follows the host's saves.
#pragma once

#include "platform/arx/EdEditor.h"
#include "workspacecore/Api.h"

/// Made by CWsManager and left in place to the end. Registered with the host's classes
/// under its own name.
// NOLINTNEXTLINE(readability-identifier-naming): the name under which it is registered
class WORKSPACE_API ORVZWorkspaceCore_EditorReactor final : public AcEditorReactor {
public:
    /// \param bAutoInitAndRelease attaches it to the editor at once
    explicit ORVZWorkspaceCore_EditorReactor(bool bAutoInitAndRelease = true);
    ~ORVZWorkspaceCore_EditorReactor() override;

    static AcRxClass* desc();
    AcRxClass* isA() const override { return desc(); }
    static void rxInit();
    static void rxForget();

    /// Puts into the drawing with what it is being saved, then tells the listeners.
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
