// What all modules ask for: texts, folders, icons, general settings, topologies.
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

/// Main thread only. The first call of Instance reads the files of the folder "support";
/// the host options must be set by then.
class GISCORE_API CModuleConfiguration {
public:
    /// Lives to the end of the process.
    static CModuleConfiguration* Instance();

    /// The text of a message in the user's language, else in English; "#ID" for an
    /// unknown id.
    CString GetMsg(int id) const;

    /// A folder with a separator at its end: "support" (the user's files) or "install"
    /// (the modules), in any case of letters. Empty for other keys.
    CString GetPath(const wchar_t* key) const;

    /// An icon by name; null if there is none. The handle (Icon.h) stays valid and is the
    /// same each time. A missing icon is looked for again at the next call. Its pixels:
    /// ImageOfIcon, or the controls that take an icon.
    HICON GetIcon(const wchar_t* name);
    /// An icon of the caller's own with a size of its own; DestroyIcon ends it.
    HICON LoadImageW(const wchar_t* name, CSize size);

    /// Reads the number of a general setting. Returns 1 if it is there and is a number;
    /// otherwise 0, and `value` is untouched.
    int GetGSValueInt(const wchar_t* key, int& value) const;
    /// The same for a text.
    int GetGSValueText(const wchar_t* key, CString& value) const;
    /// Reads the settings file again, the language included, and tells the observers of
    /// the GIS core. Names of topologies keep their language until the next start.
    void ReloadGeneralSettings();
    /// Shows the general settings in a dialog and reads them again if the user changed any.
    /// \param dialogId the dialog from which the user came; may be empty
    void ShowGSDialog(const wchar_t* dialogId);
    /// Decimal places by which coordinates of nodes count as equal; 0 to 9.
    int GetNodeIndexCoorPrecision() const;

    /// Never null.
    const CTopologyConfiguration* GetTopologyConfiguration() const;
    /// Null if the configuration has no such topology.
    const CTopology* GetTopology(enmTopologyType type) const;
    /// Non-zero if systems of a topology hold entities of a kind; always for EntityNone:
    /// what serves no kind of entity belongs everywhere.
    int DoesETbelongTT(enmEntityType entityType, enmTopologyType topologyType) const;

    /// Set once the workspace has come up.
    void SetApplicationIsLoaded(int loaded) { m_bApplicationIsLoaded = loaded; }
    int GetApplicationIsLoaded() const { return m_bApplicationIsLoaded; }

    /// What was wrong with the files of the folder "support" when they were last read:
    /// "file:line: reason", file by file.
    std::vector<CString> GetProblems() const;
    /// Takes the problems of one file in place of those it had before; modules that read
    /// support files of their own report here. If they are others than before, the publisher
    /// "PROBLEMS_CHANGED" tells.
    void SetProblems(const wchar_t* file, std::vector<CString> problems);

private:
    CModuleConfiguration();
    void ReadSettings();
    void ChooseLanguage();
    CString IconFolder() const;

    IniFile m_settings;
    std::unique_ptr<CTopologyConfiguration> m_pTopologies;
    std::unique_ptr<CIconStore> m_pIcons;
    std::map<CString, std::vector<CString>, CStringLess> m_problems;
    int m_bApplicationIsLoaded = 0;
};

} // namespace Orvane
