// The file of the dialogs' states, which several programs may have open.
#pragma once

#include "platform/mfc/DelayedCall.h"
#include "workspacecore/dialogs/UiStates.h"

namespace Orvane::Workspace {

/// Takes over what another program wrote since both records were like `base`: places and
/// values that only the other one changed, added or removed. Where both did, ours stays.
/// Of several dialogs, or values, of one id the first counts.
WORKSPACE_API void MergeUiStates(CUiStates& ours, const CUiStates& base, const CUiStates& theirs);

/// The live record and its file. Main thread only.
class WORKSPACE_API UiStatesFile {
public:
    /// Reads the file.
    explicit UiStatesFile(const CString& path);
    UiStatesFile(const UiStatesFile&) = delete;
    UiStatesFile& operator=(const UiStatesFile&) = delete;

    const boost::shared_ptr<CUiStates>& States() const { return m_states; }
    /// Merges with what others wrote, and writes unless the file is like that already.
    void Save();
    /// Something may have changed: saves within a second.
    void SaveSoon() { m_saving.Ask(); }

private:
    void Remember();

    CString m_path;
    boost::shared_ptr<CUiStates> m_states;
    CUiStates m_base; ///< the record as the file last had it
    std::string m_text;
    DelayedCall m_saving;
};

} // namespace Orvane::Workspace
