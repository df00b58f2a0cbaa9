#include "siblings/giscore/utility/Utility.h"

#include "platform/mfc/WinApp.h"
#include "platform/win/File.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"

namespace Orvane::Utility {

void CUtility::SplitString(const wchar_t* text, const wchar_t* separators, CStringArray& pieces) {
    // Apart from the result, which may hold the text.
    const CString whole = text;
    pieces.RemoveAll();
    std::wstring_view rest = whole.View();
    while (!whole.IsEmpty()) {
        const std::size_t end = rest.find_first_of(separators);
        pieces.Add(CString(rest.substr(0, end)));
        if (end == std::wstring_view::npos) {
            break;
        }
        rest.remove_prefix(end + 1);
    }
}

void CUtility::ShowHelp(const wchar_t* dialogId) {
    const CString folder = CModuleConfiguration::Instance()->GetPath(L"install") + L"help/";
    for (const CString& page : {CString(dialogId), CString(L"index")}) {
        const CString path = folder + page + L".htm";
        if (!page.IsEmpty() && FileNameOf(page) == page && FileExists(path)) {
            AfxOpenAddress(L"file://" + path);
            return;
        }
    }
}

} // namespace Orvane::Utility
