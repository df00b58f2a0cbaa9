// Configurations of a family that are kept with a system of a drawing.
#pragma once

#include "siblings/giscore/repository/RepositoryStore.h"
#include "siblings/giscore/systems/GisSystem.h"

namespace Orvane {

/// Records of the system's dictionary: "ITEM.<tag>.<guid>" holds an item,
/// "ITEM.<tag>.DEFAULT.<entity type>" the GUID of the default one. So they are saved, undone
/// and deleted with the system. Holds nothing of its own; must not outlive the system.
class GISCORE_API CRepositoryRecords final : public CRepositoryStore {
public:
    CRepositoryRecords(const wchar_t* tag, System::CGisSystem& system);

    System::CGisSystem* GetSystem() const override { return &m_system; }
    CString GetDefault(enmEntityType type) const override;

private:
    std::shared_ptr<const Entries> GetEntries(std::vector<CString>& problems) const override;
    std::optional<CString> TextOf(const CString& guid) const override;
    CString Write(const CRepositoryItem& item) override;
    CString Erase(const CRepositoryItem& item) override;
    CString WriteDefault(const CRepositoryItem& item) override;
    CString ProblemKey() const override {
        return L"drawing/" + m_system.GetGuid() + L"/" + GetTag();
    }

    CString DefaultRecord(enmEntityType type) const;

    System::CGisSystem& m_system;
    CString m_strPrefix;
};

} // namespace Orvane
