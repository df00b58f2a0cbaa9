// The window of the desktop: drawings in tabs, panes around them, the command line below.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <map>
#include <memory>
#include <optional>

#include "host/Session.h"
#include "host/desktop/LayoutFile.h"
#include "platform/arx/ApDocManager.h"
#include "platform/mfc/Wnd.h"

class QDockWidget;
class QLabel;
class QProgressBar;
class QPushButton;
class QTabWidget;

namespace Tessaly {

class CommandPane;
class CommandPalette;
class DesktopPort;
class DrawingView;
class SystemTheme;

/// Shows what the document manager has, and runs commands one at a time: what is asked for
/// while one runs waits for its end.
class Frame final : public QMainWindow, private AcApDocManagerReactor {
    Q_OBJECT
public:
    Frame();
    ~Frame() override;

    DesktopPort& Port() { return *m_pPort; }
    /// Takes commands from now on. Not owned.
    void SetSession(Session* pSession) { m_pSession = pSession; }
    /// The view of the current drawing; null without one.
    DrawingView* CurrentView() const;
    CommandPane& Pane() { return *m_pPane; }

    /// Places itself and its panes, as far as the screens allow.
    void ApplyLayout(const Layout& layout);
    Layout CurrentLayout() const;
    /// "light" or "dark" until the user chooses, and not kept.
    void SetThemeOfRun(const CString& theme);
    /// Moves all windows to where they can be seen.
    void BringAllWindowsHere();
    /// Panes that float come to lie behind a window that is shown after them.
    void RaiseFloatingPanes();

    /// Runs a command, now or when the running one has ended; one that waits at a prompt is
    /// cancelled for it.
    void Run(const CString& name);
    /// Runs a command whose first prompts are answered already.
    void RunAnswered(const CString& name, const std::vector<CString>& answers);
    /// A command runs, or something waits for the user's answer.
    bool IsRunning() const { return m_nDepth > 0 || !m_prompts.isEmpty(); }
    /// Runs the commands of a file; see Session::RunScript.
    int RunScript(const CString& path);
    /// Answers come from a script.
    bool IsScripted() const;

    // For the port.
    void ShowText(const QString& text);
    void BeginPrompt(const QString& prompt);
    void EndPrompt();
    void RunPostedSoon();
    bool ShowProgress(const QString& what, int percent);
    void EndProgress();

protected:
    void closeEvent(QCloseEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private slots:
    void RunPosted();
    void LeaveLoop();

private:
    void documentBecameCurrent(AcApDocument* pDoc) override;
    void documentToBeDestroyed(AcApDocument* pDoc) override;

    void MakeMenus();
    void MakePanes();
    void MakeStatusBar();
    void MakeThemeMenu(QMenu& menu);
    void OnEntered(const QString& line);
    void OnEscaped();
    void AfterRunning();
    void ShowPalette();
    void UpdateTitles();
    void UpdateCompletions();
    void OnTabChanged(int index);
    void OpenWithDialog();
    void SaveAsWithDialog();
    void ImportWithDialog();
    void FillPaneMenu(QMenu& menu);
    /// Moves the keyboard to the drawing, or to a pane, going round all that are seen.
    void GoToPane(int step);
    /// Keeps it for later runs, too.
    void SetTheme(const CString& theme);
    void FollowTheme();
    void RestWhileWorking();
    void LeaveKeyboardTo(DrawingView& view);

    std::unique_ptr<DesktopPort> m_pPort;
    Session* m_pSession = nullptr;
    CommandPane* m_pPane = nullptr;
    QDockWidget* m_pCommandDock = nullptr;
    QTabWidget* m_pTabs = nullptr;
    QLabel* m_pPosition = nullptr;
    QLabel* m_pWork = nullptr;
    QProgressBar* m_pProgress = nullptr;
    QPushButton* m_pStop = nullptr;
    CommandPalette* m_pPalette = nullptr;
    CWnd m_window; ///< stands for this, for modules
    struct View {
        DrawingView* pView;
        std::unique_ptr<CWnd> pWindow; ///< stands for it
    };
    std::map<AcApDocument*, View> m_views;
    std::vector<CString> m_recent; ///< the command used last first
    CString m_strTheme;
    std::optional<CString> m_themeOfRun;
    std::unique_ptr<SystemTheme> m_pSystemTheme;
    std::vector<QPointer<QWidget>> m_resting; ///< while long work goes on
    QPointer<QWidget> m_focusBefore;          ///< that work
    QStringList m_prompts;                    ///< that are open, the innermost last
    int m_nDepth = 0;                         ///< commands that run, one inside of the other
    bool m_bStopAsked = false;
    bool m_bFollowing = false; ///< the tabs are being made to show what is current
};

} // namespace Tessaly
