#include "workspacecore/trace/DamagedFile.h"

#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "workspacecore/trace/Trace.h"

namespace Orvane::Workspace {

std::optional<CString> KeepDamagedFile(const wchar_t* path, const CString& reason) {
    std::optional<CString> aside = SetFileAside(path, L".damaged-");
    if (aside) {
        WS_TRACE_FORMAT(L"Damaged: %s (%s), kept as %s", path, reason, *aside);
    } else {
        WS_TRACE_FORMAT(L"Damaged: %s (%s), not kept: %s", path, reason, LastErrorText());
    }
    return aside;
}

} // namespace Orvane::Workspace
