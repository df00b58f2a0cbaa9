// Maps dialogs to help pages.
#include "platform/mfc/WinApp.h"
#include "platform/win/File.h"
#include "platform/win/MessageCatalogue.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/utility/Utility.h"

namespace Orvane::Utility {

void CUtility::ShowHelp(const wchar_t* dialogId) {
    const CString folder = CModuleConfiguration::Instance()->GetPath(L"install") + L"help/";
    for (const CString& page : {CString(dialogId), CString(L"index")}) {
        for (const CString& name : {page + L"_" + Language(), page}) {
            const CString path = folder + name + L".htm";
            if (!page.IsEmpty() && FileNameOf(page) == page && FileExists(path)) {
                AfxOpenAddress(L"file://" + path);
                return;
            }
        }
    }
}

} // namespace Orvane::Utility
