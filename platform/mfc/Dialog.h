// Windows that are built from a template.
#pragma once

#include "platform/mfc/DialogTemplate.h"
#include "platform/mfc/Wnd.h"

/// A dialog. Modal: DoModal creates the window, runs it and destroys it. Modeless: Create
/// makes the window, which stays until DestroyWindow.
///
/// Enter presses the button that has the focus, or else the default button; Escape means
/// IDCANCEL, and so does the close box.
class PLATFORM_API CDialog : public CWnd {
public:
    /// \param module whose template of the id it is; null: the module that is current when
    /// the window is created
    explicit CDialog(UINT templateId = 0, CWnd* pParent = nullptr, HINSTANCE module = nullptr);
    ~CDialog() override;

    /// \param templateId 0: the one of the constructor
    /// \return false if there is no such template, or a window already
    bool Create(UINT templateId = 0, CWnd* pParent = nullptr);
    /// Without a desktop it prints title, texts and rows at the host and answers IDOK.
    /// \return what EndDialog was called with; -1 if there is no template
    virtual int DoModal();
    /// Ends DoModal; a modeless dialog is hidden.
    void EndDialog(int result);

    /// Dialog units of this dialog as pixels.
    CRect MapDialogRect(const CRect& rect) const;

    bool PreTranslateMessage(MSG* pMsg) override;

protected:
    const MessageMap* GetMessageMap() const override;
    /// The controls are there. The base moves values into them.
    /// \return whether the first control shall have the focus
    virtual bool OnInitDialog();
    virtual void OnOK();
    virtual void OnCancel();
    bool OnCommand(WPARAM wParam, LPARAM lParam) override;
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

    /// While a modal dialog gives way to the drawing.
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
    QEventLoopOwner* m_pLoop = nullptr; ///< of DoModal, while it runs
};
