#include "plugins/repository/RepositoryPrompts.h"

#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "platform/win/Number.h"
#include "plugins/repository/RepositoryTexts.h"

namespace Orvane::Repository {

std::optional<CString> AskText(const CString& label, const CString& current) {
    const CString prompt = label + (current.IsEmpty() ? L"" : L" <" + current + L">") + L": ";
    CString answer;
    if (acedGetString(kGetStringAllowBlanks, prompt, answer) != RTNORM) {
        return std::nullopt;
    }
    answer.Trim();
    return answer.IsEmpty() ? current : answer;
}

std::optional<CString> AskTextOrNone(const CString& label, const CString& current) {
    const auto answer = AskText(label, current);
    return answer && *answer == L"-" ? CString() : answer;
}

std::optional<std::size_t> AskChoice(const CString& label, const std::vector<Choice>& choices,
                                     std::size_t current) {
    CString list;
    for (const Choice& choice : choices) {
        list += (list.IsEmpty() ? L"" : L"/") + choice.shown;
    }
    const auto answer = AskText(label + L" [" + list + L"]", choices[current].shown);
    for (std::size_t i = 0; answer && i < choices.size(); ++i) {
        if (answer->CompareNoCase(choices[i].shown) == 0 ||
            answer->CompareNoCase(choices[i].word) == 0) {
            return i;
        }
    }
    if (answer) {
        Refuse(Text(Msg::NoChoice, *answer, list));
    }
    return std::nullopt;
}

bool AskYes(const CString& label) {
    return AskChoice(label, {{L"yes", Text(Msg::Yes)}, {L"no", Text(Msg::No)}}, 1) == 0U;
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
