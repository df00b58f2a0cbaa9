#include "siblings/giscore/configuration/ModuleConfiguration.h"

#include <algorithm>

#include "platform/arx/DbUndo.h"
#include "platform/arx/EdPrompt.h"
#include "platform/arx/HostOptions.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "platform/win/MessageCatalogue.h"
#include "siblings/giscore/configuration/GeneralSettings.h"
#include "siblings/giscore/configuration/GeneralSettingsDialog.h"
#include "siblings/giscore/icons/IconStore.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/notification/NotificationFramework.h"
#include "siblings/giscore/repository/RepositoryManager.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "siblings/giscore/utility/GisTexts.h"
#include "siblings/giscore/utility/SupportFile.h"
#include "siblings/giscore/utility/WholeNumber.h"

namespace Orvane {

namespace {

constexpr const wchar_t* kGeneral = L"General";
constexpr const wchar_t* kSettingsFile = L"Settings.ini";
constexpr int kMsgNotWritten = 900347; // with the reason
constexpr const wchar_t* kPrecisionKey = L"NODE_INDEX_PRECISION";
constexpr int kDefaultPrecision = 3;

/// General settings that accept whole numbers only.
constexpr const wchar_t* kNumberKeys[] = {L"AUTOSAVE_INTERVAL", L"RUN_AFTER_DROP", L"PT_MARK_COLOR",
                                          kPrecisionKey, kUndoMemoryKey};

} // namespace

CModuleConfiguration* CModuleConfiguration::Instance() {
    static auto* const instance = new CModuleConfiguration;
    return instance;
}

CModuleConfiguration::CModuleConfiguration() : m_pIcons(std::make_unique<CIconStore>()) {
    SetIconSource(m_pIcons.get());
    ReadSettings();
    const CString topologies = GetPath(L"support") + L"TopologyConfiguration.ini";
    m_pTopologies =
        std::make_unique<CTopologyConfiguration>(topologies, [this](int id) { return GetMsg(id); });
    SetProblems(L"TopologyConfiguration.ini", m_pTopologies->GetProblems());
}

void CModuleConfiguration::ReadSettings() {
    const CString path = GetPath(L"support") + kSettingsFile;
    std::vector<CString> problems = LoadSupportFile(m_settings, path);
    const IniFile::Section* const pGeneral = m_settings.FindSection(kGeneral);
    for (const wchar_t* key : kNumberKeys) {
        const IniFile::Entry* const pEntry = pGeneral ? pGeneral->Find(key) : nullptr;
        if (pEntry && !WholeNumber(pEntry->value.View())) {
            problems.push_back(
                MessageText(GisMsg::NotAWholeNumber, path, pEntry->line, pEntry->value));
        }
    }
    SetProblems(kSettingsFile, std::move(problems));
    ChooseLanguage();
    LimitUndoMemory();
}

void CModuleConfiguration::LimitUndoMemory() const {
    constexpr std::size_t kMegabyte = std::size_t{1} << 20;
    int megabytes = kUsualUndoMemory;
    GetGSValueInt(kUndoMemoryKey, megabytes);
    AcDbUndo::setMemoryLimit(static_cast<std::size_t>(std::clamp(megabytes, 0, kMostUndoMemory)) *
                             kMegabyte);
}

void CModuleConfiguration::ChooseLanguage() {
    CString language;
    GetGSValueText(L"language", language);
    SetProblems(L"messages", UseLanguage(GetPath(L"install") + L"share/messages/", language));
}

CString CModuleConfiguration::GetMsg(int id) const {
    return MessageText(id);
}

CString CModuleConfiguration::GetPath(const wchar_t* key) const {
    const CString name = key;
    for (const wchar_t* option : {kHostOptionInstall, kHostOptionSupport}) {
        if (name.CompareNoCase(option) == 0) {
            return WithSeparator(GetHostOption(option));
        }
    }
    return {};
}

CString CModuleConfiguration::IconFolder() const {
    return GetPath(L"install") + L"share/icons/";
}

HICON CModuleConfiguration::GetIcon(const wchar_t* name) {
    return m_pIcons->Get(IconFolder(), name);
}

HICON CModuleConfiguration::LoadImageW(const wchar_t* name, CSize size) {
    return m_pIcons->Load(IconFolder(), name, size);
}

int CModuleConfiguration::GetGSValueInt(const wchar_t* key, int& value) const {
    CString text;
    if (!GetGSValueText(key, text)) {
        return 0;
    }
    const std::optional<int> number = WholeNumber(text.View());
    value = number.value_or(value);
    return number.has_value();
}

int CModuleConfiguration::GetGSValueText(const wchar_t* key, CString& value) const {
    const CString* const pText = m_settings.Find(kGeneral, key);
    if (pText) {
        value = *pText;
    }
    return pText != nullptr;
}

void CModuleConfiguration::ReloadGeneralSettings() {
    ReadSettings();
    CRepositoryManager::Instance()->LookForChanges(); // the net repository may be another one
    System::CGisEvents::Instance()->Raise(&System::ISystemEvents::OnAfterGeneralSettingsChanged);
}

void CModuleConfiguration::ShowGSDialog(const wchar_t* /*dialogId*/) {
    GeneralSettings settings;
    for (const GeneralSetting& setting : GeneralSettingList()) {
        CString& value = settings[CString(setting.key)];
        value = setting.usual;
        GetGSValueText(setting.key, value);
    }
    const GeneralSettings before = settings;
    CGeneralSettingsDialog dialog(settings);
    if (dialog.DoModal() != IDOK || settings == before) {
        return;
    }
    if (WriteGeneralSettings(GetPath(L"support") + kSettingsFile, before, settings)) {
        ReloadGeneralSettings();
    } else {
        acedAlert(FormatText(GetMsg(kMsgNotWritten).View(), LastErrorText()).c_str());
    }
}

int CModuleConfiguration::GetNodeIndexCoorPrecision() const {
    int precision = kDefaultPrecision;
    GetGSValueInt(kPrecisionKey, precision);
    return std::clamp(precision, 0, 9);
}

const CTopologyConfiguration* CModuleConfiguration::GetTopologyConfiguration() const {
    return m_pTopologies.get();
}

const CTopology* CModuleConfiguration::GetTopology(enmTopologyType type) const {
    return m_pTopologies->GetTopologyByTopologyType(type);
}

int CModuleConfiguration::DoesETbelongTT(enmEntityType entityType,
                                         enmTopologyType topologyType) const {
    const CTopology* const pTopology = GetTopology(topologyType);
    return entityType == EntityNone || (pTopology && pTopology->GetEntityType(entityType));
}

std::vector<CString> CModuleConfiguration::GetProblems() const {
    std::vector<CString> all;
    for (const auto& [file, problems] : m_problems) {
        all.insert(all.end(), problems.begin(), problems.end());
    }
    return all;
}

void CModuleConfiguration::SetProblems(const wchar_t* file, std::vector<CString> problems) {
    std::vector<CString>& known = m_problems[CString(file)];
    if (known != problems) {
        known = std::move(problems);
        Notification::CNotificationFramework::Instance()
            ->GetPublisher(L"PROBLEMS_CHANGED")
            ->Notify(nullptr, nullptr);
    }
}

} // namespace Orvane
