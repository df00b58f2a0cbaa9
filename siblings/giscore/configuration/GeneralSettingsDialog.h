// The dialog of the general settings.
#pragma once

#include "platform/mfc/ComboBox.h"
#include "platform/mfc/Dialog.h"
#include "siblings/giscore/configuration/GeneralSettings.h"

namespace Orvane {

/// OK takes the values over only if all of them make sense.
class CGeneralSettingsDialog final : public CDialog {
public:
    /// \param settings with every key of the list; outlives the dialog
    explicit CGeneralSettingsDialog(GeneralSettings& settings);

protected:
    const MessageMap* GetMessageMap() const override;
    bool OnInitDialog() override;
    void OnOK() override;

private:
    void OnColor();
    void OnBrowse();
    void OnHelp();
    void FillLanguages();
    void ShowValues();
    CString ValueOf(const GeneralSetting& setting, UINT id) const;

    GeneralSettings& m_settings;
};

} // namespace Orvane
