#include "siblings/giscore/configuration/GeneralSettingsDialog.h"

#include <algorithm>

#include "platform/arx/EdPrompt.h"
#include "platform/mfc/Button.h"
#include "platform/mfc/ColorDialog.h"
#include "platform/mfc/Edit.h"
#include "platform/mfc/FolderDialog.h"
#include "platform/win/File.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/data/DataBox.h"
#include "siblings/giscore/utility/Utility.h"

namespace Orvane {

namespace {

using Kind = GeneralSetting::Kind;
using enum enmControlKind;

constexpr UINT kTemplate = 6650;
constexpr UINT kColor = 150;
constexpr UINT kHelp = 151;
constexpr UINT kBrowse = 152;
/// The label and the control of each setting, in the order of the list.
constexpr UINT kFirstLabel = 200;
constexpr UINT kFirstControl = 100;
constexpr UINT kLanguage = kFirstControl;
constexpr UINT kMarkColor = kFirstControl + 3;
constexpr UINT kNetFolder = kFirstControl + 5;

constexpr int kMsgTitle = 381;
constexpr int kMsgOk = 235;
constexpr int kMsgHelp = 50156;
constexpr int kMsgCancel = 900340;
constexpr int kMsgChoose = 900341;
constexpr int kMsgBrowse = 962004;
constexpr int kMsgNetFolder = 962005;

constexpr DialogItem kItems[] = {
    {Static, kFirstLabel, 7, 10, 130, 8},
    {ComboBox, kFirstControl, 140, 7, 90, 80},
    {Static, kFirstLabel + 1, 7, 28, 130, 8},
    {Edit, kFirstControl + 1, 140, 25, 50, 14},
    {Static, kFirstLabel + 3, 7, 46, 130, 8},
    {Edit, kFirstControl + 3, 140, 43, 50, 14},
    {Button, kColor, 194, 43, 36, 14},
    {Static, kFirstLabel + 4, 7, 64, 130, 8},
    {Edit, kFirstControl + 4, 140, 61, 50, 14},
    {Static, kFirstLabel + 5, 7, 82, 223, 8},
    {Edit, kNetFolder, 7, 92, 158, 14},
    {Button, kBrowse, 169, 92, 61, 14},
    {Static, kFirstLabel + 6, 7, 115, 130, 8},
    {Edit, kFirstControl + 6, 140, 112, 50, 14},
    {Button, kFirstControl + 2, 7, 131, 223, 12, L"", BS_AUTOCHECKBOX},
    {Button, IDOK, 58, 153, 55, 14, L"", BS_DEFPUSHBUTTON},
    {Button, IDCANCEL, 117, 153, 55, 14},
    {Button, kHelp, 176, 153, 54, 14},
};

constexpr DialogTemplate kTemplates[] = {
    {kTemplate, 237, 174, L"", WS_POPUP | WS_CAPTION | WS_SYSMENU, kItems},
};

CString Msg(int id) {
    return CModuleConfiguration::Instance()->GetMsg(id);
}

/// Calls for each setting with the number of its control.
template <class Call>
void ForEachSetting(Call call) {
    UINT id = kFirstControl;
    for (const GeneralSetting& setting : GeneralSettingList()) {
        call(setting, id++);
    }
}

} // namespace

CGeneralSettingsDialog::CGeneralSettingsDialog(GeneralSettings& settings)
    : CDialog(kTemplate), m_settings(settings) {
    [[maybe_unused]] static const bool added = [] {
        AddDialogTemplates(nullptr, kTemplates);
        return true;
    }();
}

const MessageMap* CGeneralSettingsDialog::GetMessageMap() const {
    static constexpr MessageEntry kEntries[] = {
        MapCommand<&CGeneralSettingsDialog::OnColor>(kColor),
        MapCommand<&CGeneralSettingsDialog::OnBrowse>(kBrowse),
        MapCommand<&CGeneralSettingsDialog::OnHelp>(kHelp),
    };
    static const MessageMap kMap{CDialog::GetMessageMap(), kEntries};
    return &kMap;
}

bool CGeneralSettingsDialog::OnInitDialog() {
    CDialog::OnInitDialog();
    SetWindowText(Msg(kMsgTitle));
    GetDlgItem(IDOK)->SetWindowText(Msg(kMsgOk));
    GetDlgItem(IDCANCEL)->SetWindowText(Msg(kMsgCancel));
    GetDlgItem(kHelp)->SetWindowText(Msg(kMsgHelp));
    GetDlgItem(kColor)->SetWindowText(Msg(kMsgChoose));
    GetDlgItem(kBrowse)->SetWindowText(Msg(kMsgBrowse));
    FillLanguages();
    ShowValues();
    return true;
}

/// Those for which there are messages.
void CGeneralSettingsDialog::FillLanguages() {
    constexpr std::wstring_view kBefore = L"tessaly_";
    constexpr std::wstring_view kBehind = L".qm";
    auto& languages = dynamic_cast<CComboBox&>(*GetDlgItem(kLanguage));
    auto names =
        ListFileNames(CModuleConfiguration::Instance()->GetPath(L"install") + L"share/messages/")
            .value_or(std::vector<CString>());
    std::sort(names.begin(), names.end(), CStringLess());
    for (const CString& name : names) {
        std::wstring_view language = name.View();
        if (language.starts_with(kBefore) && language.ends_with(kBehind)) {
            language.remove_prefix(kBefore.size());
            language.remove_suffix(kBehind.size());
            languages.AddString(CString(language));
        }
    }
}

void CGeneralSettingsDialog::ShowValues() {
    ForEachSetting([this](const GeneralSetting& setting, UINT id) {
        const CString& value = m_settings[CString(setting.key)];
        CWnd& control = *GetDlgItem(id);
        if (id == kLanguage) {
            auto& languages = dynamic_cast<CComboBox&>(control);
            const int entry = languages.FindStringExact(-1, value);
            languages.SetCurSel(entry != CB_ERR ? entry : languages.AddString(value));
        } else if (setting.kind == Kind::Switch) {
            dynamic_cast<CButton&>(control).SetCheck(value == L"1");
            control.SetWindowText(Msg(setting.label));
            return;
        } else {
            control.SetWindowText(value);
        }
        GetDlgItem(id - kFirstControl + kFirstLabel)->SetWindowText(Msg(setting.label));
    });
}

CString CGeneralSettingsDialog::ValueOf(const GeneralSetting& setting, UINT id) const {
    const CWnd& control = *GetDlgItem(id);
    if (id == kLanguage) {
        const auto& languages = dynamic_cast<const CComboBox&>(control);
        return languages.GetLBText(languages.GetCurSel());
    }
    return setting.kind == Kind::Switch
               ? CString(dynamic_cast<const CButton&>(control).GetCheck() ? L"1" : L"0")
               : control.GetWindowText().Trim();
}

void CGeneralSettingsDialog::OnOK() {
    GeneralSettings settings;
    CString problem;
    ForEachSetting([&](const GeneralSetting& setting, UINT id) {
        const CString value = ValueOf(setting, id);
        settings[CString(setting.key)] = value;
        // A value that stood in the file is not this dialog's to judge.
        const bool isNew = value != m_settings[CString(setting.key)];
        if (problem.IsEmpty() && isNew) {
            problem = GeneralSettingProblem(setting, value);
            if (!problem.IsEmpty()) {
                GetDlgItem(id)->SetFocus();
            }
        }
    });
    if (!problem.IsEmpty()) {
        acedAlert(problem);
        return;
    }
    m_settings = settings;
    CDialog::OnOK();
}

void CGeneralSettingsDialog::OnColor() {
    CWnd& field = *GetDlgItem(kMarkColor);
    int color = Data::CDataBox(field.GetWindowText());
    if (acedSetColorDialog(color, false, color)) {
        field.SetWindowText(std::to_wstring(color).c_str());
    }
}

void CGeneralSettingsDialog::OnBrowse() {
    CWnd& field = *GetDlgItem(kNetFolder);
    if (const auto folder = AfxChooseFolder(Msg(kMsgNetFolder), field.GetWindowText())) {
        field.SetWindowText(*folder);
    }
}

void CGeneralSettingsDialog::OnHelp() {
    Utility::CUtility::ShowHelp(L"general_settings");
}

} // namespace Orvane
