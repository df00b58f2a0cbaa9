// Windows created from a template.
#pragma once

#include "platform/mfc/DialogTemplate.h"
#include "platform/mfc/Wnd.h"

/// A dialog. Modal: DoModal creates the window, runs it and destroys it. Modeless: Create creates
/// the window, which exists until DestroyWindow.
///
/// Enter presses the focused button, or else the default button; Escape and the close box act as
/// IDCANCEL.
class PLATFORM_API CDialog : public CWnd {
public:
    /// \param module the module that provides the template; null: the module that is current when
    /// the window is created
    explicit CDialog(UINT templateId = 0, CWnd* pParent = nullptr, HINSTANCE module = nullptr);
    ~CDialog() override;

    /// \param templateId 0: the constructor's
    /// \return false if the template does not exist or there already is a window
    bool Create(UINT templateId = 0, CWnd* pParent = nullptr);
    /// Without a desktop, prints title, texts and rows at the host and returns IDOK.
    /// \return the argument of EndDialog; -1 if the template does not exist
    virtual int DoModal();
    /// Ends DoModal; hides a modeless dialog.
    void EndDialog(int result);

    /// Converts dialog units of this dialog to pixels.
    CRect MapDialogRect(const CRect& rect) const;

    bool PreTranslateMessage(MSG* pMsg) override;

protected:
    const MessageMap* GetMessageMap() const override;
    /// Called once the controls exist. The base implementation transfers values to them.
    /// \return true to focus the first control
    virtual bool OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// Hides a modal dialog while the user works in the drawing.
    void SetModalWindowHidden(bool hidden);

private:
    bool CreateFrom(const DialogTemplate& dialog, CWnd* pParent, bool show);
    void CreateItem(const DialogItem& item);
    const DialogTemplate* Template(UINT templateId) const;
    void PrintContent() const;
    UINT DefaultButton() const;

    UINT m_templateId;
    HINSTANCE m_module;
    CWnd* m_pParentAtFirst;
    CSize m_base;
    int m_result = 0;
    bool m_ended = false;
    class QEventLoopOwner;
    QEventLoopOwner* m_pLoop = nullptr; ///< event loop of DoModal while it runs
};
