// Configurations of a family as files of a folder.
#pragma once

#include "siblings/giscore/repository/RepositoryStore.h"

namespace Orvane {

/// What is to be thought of a folder that is not there.
enum class MissingFolder {
    IsMade,     ///< it holds nothing, and is made when something is added
    IsAProblem, ///< somebody else provides it, and nothing can be added without
};

/// <folder>/<tag>/<guid>.xml, UTF-8. The files are read once, and again by Reload.
class GISCORE_API CRepositoryFolder final : public CRepositoryStore {
public:
    /// \param folder of all families
    /// \param problemKey the name under which problems are noted
    /// \param missing if that one is not there; the one of the family is always made
    CRepositoryFolder(const wchar_t* tag, const CString& folder, CString problemKey,
                      MissingFolder missing = MissingFolder::IsMade);

    const CString& GetFolder() const { return m_strFolder; }
    void Reload();

private:
    std::vector<Entry> Entries(std::vector<CString>& problems) const override;
    std::optional<CString> TextOf(const CString& guid) const override;
    CString Write(const CRepositoryItem& item) override;
    CString Erase(const CRepositoryItem& item) override;
    CString ProblemKey() const override { return m_strProblemKey; }

    CString PathOf(const CString& guid) const;
    void ReadFile(const CString& name);
    bool LacksRoot() const;

    CString m_strRoot;
    MissingFolder m_missing;
    CString m_strFolder; ///< of the family, with a separator
    CString m_strProblemKey;
    std::vector<Entry> m_entries;
    std::vector<CString> m_unreadable;
};

} // namespace Orvane
