#include "plugins/repository/RepositoryPrompts.h"

#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "platform/win/Number.h"
#include "plugins/repository/RepositoryTexts.h"

namespace Orvane::Repository {

std::optional<CString> AskTextOrNone(const CString& label, const CString& current) {
    const auto answer = acedAskText(label, current);
    return answer && *answer == L"-" ? CString() : answer;
}

std::optional<std::vector<double>> NumbersOf(const CString& text) {
    std::vector<double> numbers;
    std::wstring_view rest = text.View();
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(L' '), rest.size());
        const auto number = TextToReal(WideToUtf8(rest.substr(0, end)));
        if (end > 0 && !number) {
            return std::nullopt;
        }
        if (number) {
            numbers.push_back(*number);
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return numbers;
}

CString NumbersText(const std::vector<double>& numbers) {
    CString text;
    for (const double number : numbers) {
        text += CString(text.IsEmpty() ? L"" : L" ") + RealToText(number).c_str();
    }
    return text;
}

} // namespace Orvane::Repository
