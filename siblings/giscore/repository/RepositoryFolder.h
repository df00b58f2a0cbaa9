// Configurations of a family as files of a folder.
#pragma once

#include "platform/win/FileStamp.h"
#include "siblings/giscore/repository/RepositoryStore.h"

namespace Orvane {

/// What is to be thought of a folder that is not there.
enum class MissingFolder {
    IsMade,     ///< it holds nothing, and is made when something is added
    IsAProblem, ///< somebody else provides it, and nothing can be added without
};

/// <folder>/<tag>/<guid>.xml, UTF-8. The files are read once; Reload reads those that have
/// changed since. Several programs may work with one folder: what another one has changed is
/// not overwritten, and files that may not be written to are not replaced.
class GISCORE_API CRepositoryFolder final : public CRepositoryStore {
public:
    /// \param folder of all families
    /// \param problemKey the name under which problems are noted
    /// \param missing if that one is not there; the one of the family is always made
    CRepositoryFolder(const wchar_t* tag, const CString& folder, CString problemKey,
                      MissingFolder missing = MissingFolder::IsMade);

    /// Of all families, as it was handed in.
    const CString& GetRoot() const { return m_strRoot; }
    const CString& GetFolder() const { return m_strFolder; }
    /// \return whether anything is different now
    bool Reload();
    void Renew() override { Reload(); }
    std::optional<RepositoryConflict> FindConflict(const CRepositoryItem& item) const override;

private:
    using Listing = std::vector<std::pair<CString, FileStamp>>;

    std::shared_ptr<const Entries> GetEntries(std::vector<CString>& problems) const override;
    std::optional<CString> TextOf(const CString& guid) const override;
    CString Write(const CRepositoryItem& item, bool isNew) override;
    CString Erase(const CRepositoryItem& item) override;
    CString ProblemKey() const override { return m_strProblemKey; }

    CString PathOf(const CString& guid) const;
    Listing ListFiles(std::vector<CString>& problems) const;
    void ReadFile(const CString& name, const FileStamp& stamp, const Entries& old);
    CString WhyOutOfReach() const;
    CString WhyNotWritable(const CRepositoryItem& item, const CString& path, bool isNew) const;

    CString m_strRoot;
    MissingFolder m_missing;
    CString m_strFolder; ///< of the family, with a separator
    CString m_strProblemKey;
    std::shared_ptr<Entries> m_pEntries; ///< never null
    /// Of each file that has been read, by its path.
    std::map<CString, FileStamp, CStringLess> m_stamps;
    std::vector<CString> m_unreadable;
    Listing m_listing; ///< as it was when the files were looked at last
    /// The entries are what the listing has: there were no problems, and nothing was written since.
    bool m_isLookedAt = false;
};

} // namespace Orvane
