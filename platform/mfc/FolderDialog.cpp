#include "platform/mfc/FolderDialog.h"

#include <QApplication>
#include <QFileDialog>

#include "platform/arx/EdPrompt.h"
#include "platform/mfc/WinApp.h"
#include "platform/mfc/toolkit/Convert.h"

std::optional<CString> AfxChooseFolder(const CString& title, const CString& start) {
    if (!AfxIsDesktopMode()) {
        return acedAskText(title, start);
    }
    AfxStartToolkit();
    const QString folder = QFileDialog::getExistingDirectory(
        QApplication::activeWindow(), ToQString(title.View()), ToQString(start.View()));
    return folder.isEmpty() ? std::nullopt : std::optional(CString(folder.toStdWString().c_str()));
}
