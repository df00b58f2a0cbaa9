// A window, and the base of all dialogs and controls.
#pragma once

#include "platform/mfc/Gdi.h"
#include "platform/mfc/MessageMap.h"
#include "platform/mfc/Styles.h"
#include "platform/win/String.h"

class CDataExchange;
class WindowCore;

/// A window has two lives: that of this object, and that of what is on the screen, from
/// Create to DestroyWindow. Operations on an object without a window do nothing and answer
/// with 0, an empty text or null. Destroying the object destroys its window; destroying the
/// window leaves the object, so that it can be created again. A window goes with its parent.
///
/// The object may go away in any of its own handlers.
class PLATFORM_API CWnd : public CCmdTarget {
public:
    CWnd();
    ~CWnd() override;
    CWnd(const CWnd&) = delete;
    CWnd& operator=(const CWnd&) = delete;

    /// Creates a window without content of its own. A child (WS_CHILD) has its place in the
    /// client area of its parent, any other on the screen.
    bool Create(UINT style, const CRect& rect, CWnd* pParent, UINT id = 0);
    /// Sends WM_DESTROY to the window and what it holds, outer ones first, takes all of it
    /// off the screen and calls PostNcDestroy, inner ones first.
    virtual bool DestroyWindow();
    /// Takes over a control that a template made; see DDX_Control.
    bool SubclassDlgItem(UINT id, CWnd* pParent);

    HWND GetSafeHwnd() const;
    /// The object of a window; null for a handle whose window has gone.
    static CWnd* FromHandle(HWND hWnd);

    void SetWindowText(const wchar_t* text);
    CString GetWindowText() const;
    void SetFont(const CFont* pFont);

    CRect GetWindowRect() const; ///< on the screen
    CRect GetClientRect() const; ///< its top left corner is 0, 0
    CPoint ScreenToClient(CPoint point) const;
    CRect ScreenToClient(const CRect& rect) const;
    CPoint ClientToScreen(CPoint point) const;

    /// Moves, sizes and restacks. WM_WINDOWPOSCHANGING comes first and may change it all. The
    /// window comes to stand right behind another of the same parent, or in front if that is
    /// null.
    bool SetWindowPos(const CWnd* pInsertAfter, int x, int y, int cx, int cy, UINT flags);
    void MoveWindow(const CRect& rect);
    bool GetWindowPlacement(WINDOWPLACEMENT* pPlacement) const;
    bool SetWindowPlacement(const WINDOWPLACEMENT* pPlacement);
    void BringWindowToTop();
    /// Minimises.
    void CloseWindow();

    /// \return whether the window was visible before
    bool ShowWindow(int command);
    bool IsWindowVisible() const;
    /// \return whether the window was disabled before
    bool EnableWindow(bool enable = true);
    bool IsWindowEnabled() const;
    void SetFocus();
    /// The window with the keyboard focus, or that around it which is known here.
    static CWnd* GetFocus();
    /// Mouse messages come to this window until ReleaseCapture, wherever the cursor is.
    void SetCapture();
    static void ReleaseCapture();

    CWnd* GetParent() const;
    /// From now on the window goes with another one, and a child stands on it. Null takes it
    /// from its parent. Nothing happens for a window that would come to stand on itself.
    void SetParent(CWnd* pParent);
    CWnd* GetDlgItem(UINT id) const;
    UINT GetDlgCtrlID() const;
    UINT GetStyle() const;

    /// Runs the handler now. A window that has gone gives 0.
    LRESULT SendMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// Runs it once the present handlers have returned; dropped if the window goes first.
    bool PostMessage(UINT message, WPARAM wParam = 0, LPARAM lParam = 0);
    /// Sends WM_TIMER with the id again and again. The same id starts anew.
    DWORD_PTR SetTimer(DWORD_PTR id, UINT milliseconds);
    bool KillTimer(DWORD_PTR id);

    void Invalidate(bool erase = true);
    void UpdateWindow();
    void DragAcceptFiles(bool accept = true);

    int MessageBox(const wchar_t* text, const wchar_t* caption, UINT type);
    /// Moves values between controls and members through DoDataExchange, into the members if
    /// `save` is true. False if a value could not be taken.
    bool UpdateData(bool save = true);

    /// Sees keys and mouse buttons before the window that they are aimed at, from that window
    /// up to its top-level window. True keeps the message from going on.
    virtual bool PreTranslateMessage(MSG* pMsg);

protected:
    friend class CDialog;
    friend class WindowCore;

    const MessageMap* GetMessageMap() const override;
    virtual void DoDataExchange(CDataExchange* pExchange);
    /// The object has lost its window; it may delete itself here.
    virtual void PostNcDestroy() {}
    virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    virtual LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam);
    /// Each is true if a handler took it.
    virtual bool OnCommand(WPARAM wParam, LPARAM lParam);
    virtual bool OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* pResult);

    /// What would happen to the message in hand without a handler. It can be called at any
    /// point of a handler, and does its work once.
    LRESULT Default();

    // The base handlers: all of them call Default.
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

/// Whether the handle is that of a living window.
PLATFORM_API bool IsWindow(HWND hWnd);
/// From PreTranslateMessage: brings the message in hand to its window at once.
PLATFORM_API void DispatchMessage(const MSG* pMsg);
/// The place of the cursor on the screen when the message in hand came about.
PLATFORM_API CPoint GetMessagePos();
/// The state of VK_SHIFT or VK_CONTROL at the message in hand; below 0 while held.
PLATFORM_API short GetKeyState(int virtualKey);
PLATFORM_API int GetDropFileCount(HDROP files);
PLATFORM_API CString GetDropFile(HDROP files, int index);
