#include "siblings/giscore/configuration/GeneralSettings.h"

#include "platform/win/File.h"
#include "platform/win/FolderLock.h"
#include "platform/win/IniFile.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/utility/WholeNumber.h"

namespace Orvane {

namespace {

using Kind = GeneralSetting::Kind;

constexpr int kMsgOutside = 900345; // with label, lowest and highest number
constexpr int kMsgOneLine = 900346; // with label

constexpr GeneralSetting kSettings[] = {
    {L"language", L"en", Kind::Text, 900331},
    {L"AUTOSAVE_INTERVAL", L"0", Kind::Number, 900332, 0, 1440},
    {L"RUN_AFTER_DROP", L"0", Kind::Switch, 900333, 0, 1},
    {L"PT_MARK_COLOR", L"4", Kind::Number, 900334, 1, 255},
    {L"NODE_INDEX_PRECISION", L"3", Kind::Number, 900335, 0, 9},
    {L"NET_REPOSITORY", L"", Kind::Text, 900336},
    {kUndoMemoryKey, L"512", Kind::Number, 960001, 0, kMostUndoMemory},
};

/// Without the mark of the letter that leads to the control, and without its colon.
CString NameOf(const GeneralSetting& setting) {
    CString name = CModuleConfiguration::Instance()->GetMsg(setting.label);
    name.Replace(L"&", L"");
    name.Replace(L":", L"");
    return name;
}

} // namespace

std::span<const GeneralSetting> GeneralSettingList() {
    return kSettings;
}

CString GeneralSettingProblem(const GeneralSetting& setting, const CString& value) {
    const CModuleConfiguration& messages = *CModuleConfiguration::Instance();
    if (setting.kind == Kind::Text) {
        const bool isOneLine = value.View().find_first_of(L"\r\n") == std::wstring_view::npos;
        return isOneLine
                   ? CString()
                   : CString(FormatText(messages.GetMsg(kMsgOneLine).View(), NameOf(setting)));
    }
    const std::optional<int> number = WholeNumber(value.View());
    return number && *number >= setting.low && *number <= setting.high
               ? CString()
               : CString(FormatText(messages.GetMsg(kMsgOutside).View(), NameOf(setting),
                                    setting.low, setting.high));
}

bool WriteGeneralSettings(const CString& path, const GeneralSettings& before,
                          const GeneralSettings& settings) {
    const FolderLock lock(path);
    std::string text;
    if (FileExists(path)) {
        const auto bytes = ReadFileBytes(path);
        if (!bytes) {
            return false;
        }
        text = *bytes;
    }
    for (const auto& [key, value] : settings) {
        const auto old = before.find(key);
        if (old == before.end() || old->second != value) {
            text = WithIniValue(text, L"General", key, value);
        }
    }
    return ReplaceFileBytes(path, text);
}

} // namespace Orvane
