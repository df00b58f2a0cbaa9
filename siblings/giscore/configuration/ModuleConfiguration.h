// Services used by all modules: texts, folders, icons, general settings, topologies.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "platform/win/IniFile.h"
#include "platform/win/Rect.h"
#include "siblings/giscore/Api.h"
#include "siblings/giscore/topology/GisTypes.h"

namespace Orvane {

class CIconStore;
class CTopology;
class CTopologyConfiguration;

/// Main thread only. The first call of Instance reads the files of the folder "support", so the
/// host options must be set before.
class GISCORE_API CModuleConfiguration {
public:
    /// Lives to the end of the process.
    static CModuleConfiguration* Instance();

    /// The text of a message in the user's language, or in English as a fallback; "#ID" for an
    /// unknown id.
    CString GetMsg(int id) const;

    /// Path of "support" (the user's files) or "install" (the modules), ending in a separator.
    /// The key is case-insensitive; other keys give an empty text.
    CString GetPath(const wchar_t* key) const;

    /// An icon by name; null if there is none, in which case the next call looks again. The
    /// handle (Icon.h) stays valid and is the same each time. To get its pixels, use ImageOfIcon
    /// or the controls that take an icon.
    HICON GetIcon(const wchar_t* name);
    /// A separate copy in the given size, owned by the caller (DestroyIcon).
    HICON LoadImageW(const wchar_t* name, CSize size);

    /// Reads a numeric general setting. Returns 1 on success; returns 0 and leaves `value`
    /// untouched if the setting is missing or not a number.
    int GetGSValueInt(const wchar_t* key, int& value) const;
    /// The same for a text setting.
    int GetGSValueText(const wchar_t* key, CString& value) const;
    /// Reloads the settings file, including the language, and notifies the observers of the GIS
    /// core. Topology names keep their language until the next start.
    void ReloadGeneralSettings();
    /// Shows the general settings dialog and reloads the settings if the user changed any.
    /// \param dialogId the calling dialog; may be empty
    void ShowGSDialog(const wchar_t* dialogId);
    /// Decimal places to which node coordinates are compared; 0 to 9.
    int GetNodeIndexCoorPrecision() const;

    /// Never null.
    const CTopologyConfiguration* GetTopologyConfiguration() const;
    /// Null if the configuration has no such topology.
    const CTopology* GetTopology(enmTopologyType type) const;
    /// Non-zero if systems of a topology hold entities of a kind. Always non-zero for EntityNone:
    /// items for no particular kind of entity fit every topology.
    int DoesETbelongTT(enmEntityType entityType, enmTopologyType topologyType) const;

    /// Set once the workspace has started.
    void SetApplicationIsLoaded(int loaded) { m_bApplicationIsLoaded = loaded; }
    int GetApplicationIsLoaded() const { return m_bApplicationIsLoaded; }

    /// Problems found when the files of the folder "support" were last read, as "file:line:
    /// reason", grouped by file.
    std::vector<CString> GetProblems() const;
    /// Replaces the problems of one file; modules that read their own support files report here.
    /// Notifies the publisher "PROBLEMS_CHANGED" if they differ from before.
    void SetProblems(const wchar_t* file, std::vector<CString> problems);

private:
    CModuleConfiguration();
    void ReadSettings();
    void ChooseLanguage();
    void LimitUndoMemory() const;
    CString IconFolder() const;

    IniFile m_settings;
    std::unique_ptr<CTopologyConfiguration> m_pTopologies;
    std::unique_ptr<CIconStore> m_pIcons;
    std::map<CString, std::vector<CString>, CStringLess> m_problems;
    int m_bApplicationIsLoaded = 0;
};

} // namespace Orvane
