// Configurations of a family that are kept with a system of a drawing.
#pragma once

#include "siblings/giscore/repository/RepositoryStore.h"
#include "siblings/giscore/systems/GisSystem.h"

namespace Orvane {

/// Records of the system's dictionary: "ITEM.<tag>.<guid>" holds an item,
/// "ITEM.<tag>.DEFAULT.<entity type>" the GUID of the default one. So they are saved, undone
/// and deleted with the system. Must not outlive the system. A record is read again only if it
/// has changed since somebody looked at it last.
class GISCORE_API CRepositoryRecords final : public CRepositoryStore {
public:
    CRepositoryRecords(const wchar_t* tag, System::CGisSystem& system);

    System::CGisSystem* GetSystem() const override { return &m_system; }
    CString GetDefault(enmEntityType type) const override;

private:
    std::shared_ptr<const Entries> GetEntries(std::vector<CString>& problems) const override;
    std::optional<CString> TextOf(const CString& guid) const override;
    CString Write(const CRepositoryItem& item, bool isNew) override;
    CString Erase(const CRepositoryItem& item) override;
    CString WriteDefault(const CRepositoryItem& item) override;
    CString ProblemKey() const override {
        return L"drawing/" + m_system.GetGuid() + L"/" + GetTag();
    }

    Entry KnownEntry(const Entries* pBefore, const CString& source, const CString& guid,
                     const CString& text) const;
    CString DefaultRecord(enmEntityType type) const;

    System::CGisSystem& m_system;
    CString m_strPrefix;
};

} // namespace Orvane
