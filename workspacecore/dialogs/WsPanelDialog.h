// Base class of plug-in dialogs in the main panel.
#pragma once

#include "platform/mfc/AdUiBaseDialog.h"
#include "siblings/giscore/notification/Subscriber.h"
#include "workspacecore/Api.h"
#include "workspacecore/events/IWsListener.h"

namespace Orvane::Workspace {

/// A child dialog with an id. Unlike CWsBaseDialog it is not registered anywhere and has to
/// subscribe to publishers and events itself. Owned by the factory that created it.
class WORKSPACE_API CWsPanelDialog : public CAdUiBaseDialog,
                                     public Notification::CSubscriber,
                                     public IWsListener {
public:
    CWsPanelDialog(unsigned int dialogResourceId, const wchar_t* dialogId, CWnd* parent,
                   HINSTANCE resourceInstance);
    ~CWsPanelDialog() override;

    CString GetDialogId() const { return m_dialogId; }

    virtual void OnWorkspaceButtonClicked() {}
    void Update(Notification::CPublisher*, void*, void*) override {}

private:
    CString m_dialogId;
};

} // namespace Orvane::Workspace
