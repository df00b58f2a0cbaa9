#include "host/Session.h"

#include <exception>

#include "host/DrawingCommands.h"
#include "host/HostCommands.h"
#include "host/storage/Import.h"
#include "host/storage/OpenAndSave.h"
#include "platform/arx/Activity.h"
#include "platform/arx/ApDocManager.h"
#include "platform/arx/EdCommandStack.h"
#include "platform/arx/EdEditor.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/HostOptions.h"
#include "platform/arx/HostReactor.h"
#include "platform/arx/RxDynamicLinker.h"
#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"

namespace Tessaly {

namespace {

/// Loaded at the start, in this order: the application module makes the workspace begin.
constexpr const wchar_t* kStartModules[] = {L"ORVZWorkspaceCore.arx", L"ORVZApplication.arx"};
constexpr const wchar_t* kPrompt = L"> ";

/// Runs something of a module's. What it throws ends here: the reason goes to the user,
/// and the command line goes on. False if it threw.
template <class Call>
bool Guarded(const wchar_t* what, Call call) {
    CString reason;
    // What somebody else has caught meanwhile is not this call's business.
    TakeInterruptedActivity();
    try {
        call();
        return true;
    } catch (const std::exception& error) {
        reason = Utf8ToWide(error.what());
    } catch (const InputEnded&) {
        reason = L"it goes on asking although the input has ended";
    } catch (...) {
        reason = L"an exception without a text";
    }
    const CString activity = TakeInterruptedActivity();
    acutPrintf(L"\n%s failed: %s\n", activity.IsEmpty() ? what : activity.GetString(), reason);
    return false;
}

} // namespace

Session::Session(ILinePort& port)
    : m_port(port), m_pStorage(MakeGeoPackageStorage()), m_pImporter(MakeImporter()) {
    acDocManagerPtr()->setStorage(m_pStorage.get());
    acdbSetImporter(m_pImporter.get());
}

Session::~Session() {
    acdbSetImporter(nullptr);
    acDocManagerPtr()->setStorage(nullptr);
}

bool Session::Start(const CString& drawing) {
    RegisterHostCommands();
    acedEditor();
    bool isOpen = drawing.IsEmpty();
    if (!isOpen) {
        Guarded(drawing, [&] { isOpen = OpenDrawing(drawing); });
    }
    if (!acDocManagerPtr()->curDocument()) {
        acDocManagerPtr()->newDocument();
    }
    for (const wchar_t* module : kStartModules) {
        const CString path = GetHostOption(kHostOptionInstall) + module;
        Guarded(module, [&] {
            if (!acrxDynamicLinker()->loadModule(path)) {
                acutPrintf(L"Not loaded: %s\n", LastErrorText());
            }
        });
    }
    // Once more, for the reactors that the modules have brought.
    AcApDocument* const pDoc = acDocManagerPtr()->curDocument();
    Guarded(pDoc ? pDoc->fileName() : L"", [&] { acDocManagerPtr()->setCurDocument(pDoc); });
    return isOpen;
}

void Session::End() {
    if (!HasQuit()) {
        NameUnsavedDrawings();
        Guarded(L"QUIT", [] { acedAskToClose(); });
    }
}

int Session::RunScript(const wchar_t* path) {
    const auto lines = FileLines(path);
    if (!lines) {
        acutPrintf(L"%s: %s\n", path, LastErrorText());
        return kExitBadUsage;
    }
    return RunLines(*lines, Mode::StopAtFailure);
}

int Session::RunPrompt(IInputLines& input) {
    RunLines(input, Mode::GoOn);
    return kExitDone;
}

int Session::RunLines(IInputLines& input, Mode mode) {
    m_port.SetInput(&input);
    int status = kExitDone;
    while (!HasQuit() && (status == kExitDone || mode == Mode::GoOn)) {
        m_port.DropEscapes();
        std::optional<CString> line = m_port.NextLine(kPrompt);
        if (!line) {
            break;
        }
        line->Trim();
        const bool isComment = line->IsEmpty() || line->GetAt(0) == L';' || line->GetAt(0) == L'#';
        const int number = input.LineNumber();
        if (!isComment && !RunCommand(*line)) {
            status = kExitCommandFailed;
            if (mode == Mode::StopAtFailure) {
                acutPrintf(L"%s:%d: stopped at \"%s\"\n", input.Name(), number, *line);
            }
        }
    }
    m_port.SetInput(nullptr);
    return status;
}

bool Session::RunCommand(const CString& name) {
    CommandOutcome outcome = CommandOutcome::Failed;
    const bool ran = Guarded(name, [&] { outcome = acedRegCmds()->run(name); });
    if (ran && outcome == CommandOutcome::Unknown) {
        acutPrintf(L"Unknown command \"%s\". HELP lists the commands.\n", name);
    }
    return ran && outcome == CommandOutcome::Done;
}

} // namespace Tessaly
