// One run of the host: its storage, its modules, and its first drawing.
#pragma once

#include <memory>

#include "host/UndoNotice.h"
#include "platform/arx/DbImport.h"
#include "platform/arx/DbStorage.h"
#include "platform/win/String.h"

namespace Tessaly {

class Session {
public:
    /// Gives the platform its storage of drawings and its importer.
    Session();
    ~Session();
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    /// Registers the host's commands, opens a drawing and loads the modules of the family. A
    /// module that cannot be loaded is reported, and the host goes on.
    /// \param drawing empty for a new one, which is also there if this cannot be opened: false
    bool Start(const CString& drawing);

    /// Names the drawings with unsaved changes and tells the modules that the host ends,
    /// unless the user's QUIT has seen to both. There is no input left to ask for, so nobody
    /// can veto any more.
    void End();

private:
    std::unique_ptr<IDbStorage> m_pStorage;
    std::unique_ptr<IDbImporter> m_pImporter;
    UndoNotice m_undoNotice;
};

} // namespace Tessaly
