// A window, and the base of all dialogs and controls.
#pragma once

#include "platform/mfc/Gdi.h"
#include "platform/mfc/MessageMap.h"
#include "platform/mfc/Styles.h"
#include "platform/win/String.h"

class CDataExchange;
class WindowCore;

/// The object and its window on the screen have separate lifetimes; the window exists from Create
/// to DestroyWindow. Operations on an object without a window do nothing and return 0, an empty
/// text or null. Destroying the object destroys its window; destroying the window keeps the object,
/// so that it can be created again. A window is destroyed with its parent.
///
/// The object may be destroyed in any of its own handlers.
class PLATFORM_API CWnd : public CCmdTarget {
public:
    CWnd();
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    /// Creates a window without content. A child (WS_CHILD) is positioned in the client area of its
    /// parent, any other window on the screen.
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id = 0);
    /// Sends WM_DESTROY to the window and its descendants, outer ones first, removes them from the
    /// screen and calls PostNcDestroy, inner ones first.
    virtual bool DestroyWindow();
    /// Attaches the object to a control created from a template; see DDX_Control.
    bool SubclassDlgItem(UINT id, CWnd* pParent);

    HWND GetSafeHwnd() const;
    /// The object of a window; null if the window was destroyed.
    static CWnd* FromHandle(HWND hWnd);

    void SetWindowText(const wchar_t* text);
    CString GetWindowText() const;
    void SetFont(const CFont* pFont);

    CRect GetWindowRect() const; ///< in screen coordinates
    CRect GetClientRect() const; ///< its top left corner is (0, 0)
    CPoint ScreenToClient(CPoint point) const;
    CRect ScreenToClient(const CRect& rect) const;
    CPoint ClientToScreen(CPoint point) const;

    /// Moves, sizes and restacks the window. WM_WINDOWPOSCHANGING is sent first, and its handler
    /// may change all values. The window is placed directly below a sibling, or at the top if that
    /// is null.
    bool SetWindowPos(const CWnd* pInsertAfter, int x, int y, int cx, int cy, UINT flags);
    void MoveWindow(const CRect& rect);
    bool GetWindowPlacement(WINDOWPLACEMENT* pPlacement) const;
    bool SetWindowPlacement(const WINDOWPLACEMENT* pPlacement);
    void BringWindowToTop();
    /// Minimises the window.
    void CloseWindow();

    /// \return whether the window was visible before
    bool ShowWindow(int command);
    bool IsWindowVisible() const;
    /// \return whether the window was disabled before
    bool EnableWindow(bool enable = true);
    bool IsWindowEnabled() const;
    void SetFocus();
    /// The focused window, or its nearest ancestor that has an object.
    static CWnd* GetFocus();
    /// Sends all mouse messages to this window until ReleaseCapture.
    void SetCapture();
    static void ReleaseCapture();

    CWnd* GetParent() const;
    /// Changes the parent, which is the window this one is destroyed with; a child also moves into
    /// it. Null removes the parent. Does nothing if the window would become its own ancestor.
    void SetParent(CWnd* pParent);
    CWnd* GetDlgItem(UINT id) const;
    UINT GetDlgCtrlID() const;
    UINT GetStyle() const;

    /// Calls the handler now. Returns 0 if the window no longer exists.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// Calls the handler once the current ones have returned; dropped if the window is destroyed
    /// first.
    bool PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// Sends WM_TIMER with the id periodically. An id that is in use restarts its timer.
    DWORD_PTR SetTimer(DWORD_PTR id, UINT milliseconds);
    bool KillTimer(DWORD_PTR id);

    void Invalidate(bool erase = true);
    void UpdateWindow();
    void DragAcceptFiles(bool accept = true);

    int MessageBox(const wchar_t* text, const wchar_t* caption, UINT type);
    /// Transfers values between controls and members through DoDataExchange: to the members if
    /// `save` is true. False if a value is invalid.
    bool UpdateData(bool save = true);

    /// Sees key and mouse messages before the window they are for, called from that window up to
    /// its top-level window. Returning true stops the message.
    virtual bool PreTranslateMessage(MSG* pMsg);

protected:
    friend class CDialog;
    friend class WindowCore;

    const MessageMap* GetMessageMap() const override;
    virtual void DoDataExchange(CDataExchange* pExchange);
    /// Called when the object no longer has a window; the object may delete itself here.
    virtual void PostNcDestroy() {}
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Each returns true if the message was handled.
    virtual bool OnCommand(WPARAM wParam, LPARAM lParam);
    virtual bool OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);

    /// Performs the default action for the current message. May be called anywhere in a handler,
    /// and acts only once.
    LRESULT Default();

    // The base handlers; all of them call Default.
    void OnSize(UINT type, int cx, int cy);
    void OnClose();
    void OnDestroy();
    void OnPaint();
    void OnTimer(DWORD_PTR id);
    void OnWindowPosChanging(WINDOWPOS* pPlace);
    void OnMouseMove(UINT flags, CPoint point);
    void OnLButtonUp(UINT flags, CPoint point);
    void OnRButtonUp(UINT flags, CPoint point);
    void OnDropFiles(HDROP files);
    HBRUSH OnCtlColor(CDC* pDC, CWnd* pControl, UINT type);

    bool CreateControl(enmControlKind kind, UINT style, const CRect& rect, CWnd* pParent, UINT id);

public:
    /// For the platform's own sources; null without a window.
    WindowCore* Core() const { return m_pCore; }

private:
    WindowCore* m_pCore = nullptr;
};

/// True if the window of the handle exists.
PLATFORM_API bool IsWindow(HWND hWnd);
/// Call from PreTranslateMessage to dispatch the current message to its window at once.
PLATFORM_API void DispatchMessage(const MSG* pMsg);
/// Screen position of the cursor when the current message was generated.
PLATFORM_API CPoint GetMessagePos();
/// State of VK_SHIFT or VK_CONTROL at the current message; negative while pressed.
PLATFORM_API short GetKeyState(int virtualKey);
PLATFORM_API int GetDropFileCount(HDROP files);
PLATFORM_API CString GetDropFile(HDROP files, int index);
