// The window of the desktop: drawings in tabs, panes around them, the command line below.
#pragma once

#include <QMainWindow>
#include <QPointer>
#include <map>
#include <memory>
#include <optional>

#include "host/desktop/LayoutFile.h"
#include "host/desktop/PromptWindow.h"
#include "platform/arx/ApDocManager.h"
#include "platform/arx/CommandRunner.h"
#include "platform/mfc/Wnd.h"

class QDockWidget;
class QLabel;
class QProgressBar;
class QPushButton;
class QTabWidget;

namespace Tessaly {

class CommandPane;
class CommandPalette;
class DrawingView;
class SystemTheme;

/// Shows what the document manager has, and gives the command runner what menus and keys ask
/// for.
class Frame final : public QMainWindow,
                    public IPromptWindow,
                    private AcApDocManagerReactor,
                    private ICommandWatcher {
    Q_OBJECT
public:
    Frame();
    ~Frame() override;

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

    // What the user is asked, and told.
    void ShowText(const QString& text) override;
    void BeginPrompt(const QString& prompt, bool takesText) override;
    void SetColors(const CommandLineLook& messages, const CommandLineLook& prompt) override;
    void EndPrompt() override;
    bool ShowProgress(const QString& what, int percent) override;
    void EndProgress() override;

protected:
    void closeEvent(QCloseEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void keyPressEvent(QKeyEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private slots:
    void LeaveLoop();

private:
    void documentBecameCurrent(AcApDocument* pDoc) override;
    void documentToBeDestroyed(AcApDocument* pDoc) override;
    void CommandEnded(const CommandOrder& order, bool hasThrown) override;

    void MakeMenus();
    void MakePanes();
    void MakeStatusBar();
    void MakeThemeMenu(QMenu& menu);
    void OnEntered(const QString& line);
    void OnEscaped();
    void OpenHelp();
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
    CString m_strTheme;
    std::optional<CString> m_themeOfRun;
    std::unique_ptr<SystemTheme> m_pSystemTheme;
    std::vector<QPointer<QWidget>> m_resting; ///< while long work goes on
    QPointer<QWidget> m_focusBefore;          ///< that work
    QStringList m_prompts;                    ///< that are open, the innermost last
    bool m_bStopAsked = false;
    bool m_bFollowing = false; ///< the tabs are being made to show what is current
};

} // namespace Tessaly
