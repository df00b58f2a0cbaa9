#include "host/Prompts.h"

#include <algorithm>

namespace Tessaly {

namespace {

constexpr std::size_t kMostWarnings = 20;

} // namespace

std::optional<CString> AskText(Msg label) {
    std::optional<CString> answer = acedAskText(Text(label));
    return answer && answer->IsEmpty() ? std::nullopt : answer;
}

void PrintWarnings(const std::vector<CString>& warnings) {
    const std::size_t count = std::min(warnings.size(), kMostWarnings);
    for (std::size_t i = 0; i < count; ++i) {
        acutPrintf(L"%s\n", warnings[i]);
    }
    if (count < warnings.size()) {
        PrintText(Msg::MoreWarnings, static_cast<int>(warnings.size() - count));
    }
}

bool Refuse(const CString& reason, Msg consequence) {
    if (!reason.IsEmpty()) {
        acutPrintf(L"%s\n", reason);
    }
    return Refuse(consequence);
}

bool Refuse(Msg consequence) {
    PrintText(consequence);
    return false;
}

AcApDocument* CurrentDrawing() {
    AcApDocument* const pDoc = acDocManagerPtr()->curDocument();
    if (!pDoc) {
        PrintText(Msg::NoDrawing);
    }
    return pDoc;
}

} // namespace Tessaly
