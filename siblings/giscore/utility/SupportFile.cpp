#include "siblings/giscore/utility/SupportFile.h"

#include "platform/win/ErrorText.h"
#include "platform/win/File.h"

namespace Orvane {

std::vector<CString> LoadSupportFile(IniFile& file, const CString& path) {
    if (file.Load(path)) {
        return file.GetProblems();
    }
    const CString reason = LastErrorText();
    file = IniFile();
    return FileExists(path) ? std::vector<CString>{path + L": " + reason} : std::vector<CString>();
}

} // namespace Orvane
