// The main window: drawings in tabs, surrounded by panes, with the command line below.
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

/// Shows the documents of the document manager, and passes orders from menus and keys to the
/// command runner.
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

    /// Restores positions of the window and its panes, as far as the screens allow.
    void ApplyLayout(const Layout& layout);
    Layout CurrentLayout() const;
    /// "light" or "dark" until the user chooses a theme; not saved.
    void SetThemeOfRun(const CString& theme);
    /// Moves all windows to visible positions.
    void BringAllWindowsHere();
    /// Keeps floating panes above a main window shown after them.
    void RaiseFloatingPanes();

    // Prompts and output.
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
    /// Moves the focus to the next visible pane or the drawing, cyclically.
    void GoToPane(int step);
    /// Also saves the theme for later runs.
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
    CWnd m_window; ///< represents this window to modules
    struct View {
        DrawingView* pView;
        std::unique_ptr<CWnd> pWindow; ///< represents the view to modules
    };
    std::map<AcApDocument*, View> m_views;
    CString m_strTheme;
    std::optional<CString> m_themeOfRun;
    std::unique_ptr<SystemTheme> m_pSystemTheme;
    std::vector<QPointer<QWidget>> m_resting; ///< disabled during a long operation
    QPointer<QWidget> m_focusBefore;          ///< focus before the long operation
    QStringList m_prompts;                    ///< open prompts, the innermost last
    bool m_bStopAsked = false;
    bool m_bFollowing = false; ///< tabs are being synchronised with the documents
};

} // namespace Tessaly
