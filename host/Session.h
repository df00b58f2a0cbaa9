// One run of the host: its modules, its drawings, and its command line.
#pragma once

#include <memory>

#include "host/LinePort.h"
#include "host/Options.h"
#include "platform/arx/DbImport.h"
#include "platform/arx/DbStorage.h"

namespace Tessaly {

/// Exit statuses of the program.
inline constexpr int kExitDone = 0;
inline constexpr int kExitCommandFailed = 1;
inline constexpr int kExitBadUsage = 2;

class Session {
public:
    /// Gives the platform its storage of drawings and its importer.
    explicit Session(ILinePort& port);
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Registers the host's commands, opens a drawing and loads the modules of the family. A
    /// module that cannot be loaded is reported, and the host goes on.
    /// \param drawing empty for a new one, which is also there if this cannot be opened: false
    bool Start(const CString& drawing);

    /// Obeys a file of commands up to its end or its first failure.
    int RunScript(const wchar_t* path);
    /// Obeys the user until they leave or the input ends.
    int RunPrompt(IInputLines& input);
    /// Runs one command by name. False, with the reason printed, if it was not carried out;
    /// what a module throws ends here.
    bool RunCommand(const CString& name);
    /// Names the drawings with unsaved changes and tells the modules that the host ends,
    /// unless the user's QUIT has seen to both. There is no input left to ask for, so nobody
    /// can veto any more.
    void End();

private:
    /// What a failing command does to the lines behind it.
    enum class Mode { StopAtFailure, GoOn };

    int RunLines(IInputLines& input, Mode mode);

    ILinePort& m_port;
    std::unique_ptr<IDbStorage> m_pStorage;
    std::unique_ptr<IDbImporter> m_pImporter;
};

} // namespace Tessaly
