#include "siblings/giscore/utility/Utility.h"

namespace Orvane::Utility {

void CUtility::SplitString(const wchar_t* text, const wchar_t* separators, CStringArray& pieces) {
    // A copy: `text` may point into the result.
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

} // namespace Orvane::Utility
