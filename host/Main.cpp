#include <clocale>

#include "host/CommandLines.h"
#include "host/ExitStatus.h"
#include "host/Folders.h"
#include "host/Options.h"
#include "host/SaveConflict.h"
#include "host/Session.h"
#include "host/Texts.h"
#include "host/console/ConsolePort.h"
#include "host/desktop/Desktop.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/HostOptions.h"
#include "platform/mfc/WinApp.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"

namespace {

using Tessaly::Msg;
using Tessaly::PrintText;
using Tessaly::Text;

/// Relative paths are the caller's, as everywhere on a command line.
CString FolderOr(const CString& given, const CString& fallback) {
    return given.IsEmpty() ? fallback : WithSeparator(given);
}

/// Before anything is printed: the language is one of the user's settings.
void FindFolders(const Tessaly::Options& options) {
    const CString install = FolderOr(options.install, Tessaly::ProgramFolder());
    const CString support = FolderOr(options.support, Tessaly::UserSupportFolder());
    SetHostOption(kHostOptionInstall, install);
    SetHostOption(kHostOptionSupport, support);
    UseLanguageOf(support + L"Settings.ini", install + L"share/messages/");
}

bool SetUpFolders(const Tessaly::Options& options) {
    const CString install = GetHostOption(kHostOptionInstall);
    const CString support = GetHostOption(kHostOptionSupport);
    SetHostOption(kHostOptionTrace, options.trace);
    if (!options.trace.IsEmpty() && !OpenFile(options.trace, "ab")) {
        acutPrintf(L"%s: %s\n", options.trace, LastErrorText());
        return false;
    }
    if (!Tessaly::FillSupportFolder(install + L"share/support/", support)) {
        PrintText(Msg::NoSettingsFolder, LastErrorText());
        return false;
    }
    return true;
}

bool WantsDesktop(const Tessaly::Options& options) {
    return !options.console && !options.script;
}

/// Starts the toolkit for a desktop that can be seen, or for a picture of one.
bool HasDesktop(const Tessaly::Options& options) {
    if (options.snapshot) {
        AfxStartToolkit();
        return true;
    }
    AfxSetDesktopMode(true);
    if (AfxHasDisplay()) {
        AfxStartToolkit();
    }
    if (AfxHasDisplay()) {
        return true;
    }
    AfxSetDesktopMode(false);
    PrintText(Msg::NoDisplay);
    return false;
}

int Run(const Tessaly::Options& options, Tessaly::ConsolePort& port) {
    Tessaly::Session session;
    Tessaly::CommandLines lines(port);
    const bool isOpen = session.Start(options.drawing);
    int status = Tessaly::kExitDone;
    if (options.script) {
        // A script that was written for the drawing would work on an empty one.
        status = isOpen ? lines.RunScript(*options.script) : Tessaly::kExitCommandFailed;
    } else {
        if (options.first) {
            lines.RunScript(*options.first);
        }
        acutPrintf(L"\n%s\n", Text(Msg::Welcome));
        const auto input = Tessaly::StreamLines(stdin);
        lines.RunPrompt(*input);
    }
    session.End();
    return status;
}

} // namespace

int main(int argc, char** argv) {
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
    Tessaly::ConsolePort port(stdout);
    SetHostPort(&port);

    const Tessaly::OptionsResult result = Tessaly::ReadOptions({argv + 1, argv + argc});
    const Tessaly::Options& options = result.options;
    FindFolders(options);
    if (result.problem) {
        acutPrintf(L"%s\n%s", result.Error(), Text(Msg::Usage));
        return Tessaly::kExitBadUsage;
    }
    if (options.help) {
        acutPrint(Text(Msg::Usage).View());
        return Tessaly::kExitDone;
    }
    int status = Tessaly::kExitBadUsage;
    if (SetUpFolders(options)) {
        const bool isConsole = !WantsDesktop(options) || !HasDesktop(options);
        if (options.readOnly || (!isConsole && !options.snapshot)) {
            Tessaly::SetSharedOpening(options.readOnly ? Tessaly::SharedOpening::ReadOnly
                                                       : Tessaly::SharedOpening::Ask);
        }
        status = isConsole ? Run(options, port) : Tessaly::RunDesktop(options);
    }
    AfxStopToolkit();
    SetHostPort(nullptr);
    return status;
}
