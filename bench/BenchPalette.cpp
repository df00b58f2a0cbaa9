// Each keystroke in the command palette with ten thousand commands, compared with a search for the
// same letters in plain texts, the minimum for any such search.
#include <algorithm>
#include <chrono>
#include <iostream>

#include "host/desktop/CommandSearch.h"
#include "platform/win/CodePage.h"

namespace {

constexpr int kCommands = 10'000;

double Milliseconds(auto&& work) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin)
        .count();
}

} // namespace

int main() {
    std::vector<Tessaly::CommandEntry> entries;
    const wchar_t* const words[] = {L"NETWORK", L"IMPORT",  L"SYSTEM",
                                    L"NODE",    L"SECTION", L"THEME"};
    for (int i = 0; i < kCommands; ++i) {
        CString name;
        name.Format(L"%s_%s_%d", words[i % 6], words[i / 6 % 6], i);
        entries.push_back({name, L"does something with the " + CString(words[i / 36 % 6]), {}});
    }
    const Tessaly::CommandSearch search(entries);
    const std::wstring query = L"section network 77";
    double worst = 0;
    double worstPeer = 0;
    for (std::size_t length = 0; length <= query.size(); ++length) {
        const CString typed(query.substr(0, length));
        std::size_t found = 0;
        worst = std::max(worst, Milliseconds([&] { found = search.Find(typed, {}).size(); }));
        std::size_t plain = 0;
        worstPeer = std::max(worstPeer, Milliseconds([&] {
                                 for (const auto& entry : entries) {
                                     CString text = entry.name + L" " + entry.description;
                                     plain += text.MakeLower().Find(typed.View()) >= 0;
                                 }
                             }));
        std::cout << "\"" << WideToUtf8(typed.View()) << "\": " << found << " found\n";
    }
    std::cout << "slowest keystroke with " << kCommands << " commands: " << worst
              << " ms, a plain search of one text: " << worstPeer << " ms\n";
    return 0;
}
