#include "host/desktop/CommandSearch.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace Tessaly {

namespace {

// Scores of a matching word; 0 means no match.
constexpr int kWholeName = 1000;
constexpr int kNameBegin = 600;
constexpr int kWordOfName = 400;
constexpr int kInsideName = 300;
constexpr int kWordOfDescription = 200;
constexpr int kInsideDescription = 100;
constexpr int kLettersOfName = 50;

std::wstring Lower(const CString& text) {
    return CString(text).MakeLower().Str();
}

std::wstring SearchedName(const CString& name) {
    std::wstring words = Lower(name);
    std::replace(words.begin(), words.end(), L'_', L' ');
    return words;
}

bool BeginsWordAt(const std::wstring& text, std::size_t at) {
    return at == 0 || text[at - 1] == L' ' || text[at - 1] == L'-';
}

/// The score of the best match in the text.
int ScorePlaces(const std::wstring& text, const std::wstring& word, int atWord, int inside) {
    std::size_t at = text.find(word);
    const int otherwise = at == std::wstring::npos ? 0 : inside;
    for (; at != std::wstring::npos; at = text.find(word, at + 1)) {
        if (BeginsWordAt(text, at)) {
            return atWord;
        }
    }
    return otherwise;
}

bool HasLettersInOrder(const std::wstring& text, const std::wstring& word) {
    std::size_t at = 0;
    for (const wchar_t letter : word) {
        at = text.find(letter, at);
        if (at == std::wstring::npos) {
            return false;
        }
        ++at;
    }
    return true;
}

std::vector<std::wstring> Words(const CString& query) {
    std::vector<std::wstring> words;
    std::wstring word;
    for (const wchar_t letter : Lower(query) + L' ') {
        if (letter != L' ' && letter != L'_' && letter != L'\t') {
            word += letter;
        } else if (!word.empty()) {
            words.push_back(std::exchange(word, {}));
        }
    }
    return words;
}

} // namespace

CommandSearch::CommandSearch(std::vector<CommandEntry> entries) : m_entries(std::move(entries)) {
    for (const CommandEntry& entry : m_entries) {
        m_texts.push_back({SearchedName(entry.name), Lower(entry.description)});
    }
    // Sorted once here, so that searching needs no string comparisons.
    std::vector<std::size_t> order(m_texts.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(), [this](std::size_t left, std::size_t right) {
        return m_texts[left].name < m_texts[right].name;
    });
    for (std::size_t place = 0; place < order.size(); ++place) {
        m_texts[order[place]].place = place;
    }
}

int CommandSearch::ScoreWord(const Text& text, const std::wstring& word) {
    if (text.name == word) {
        return kWholeName;
    }
    if (text.name.starts_with(word)) {
        return kNameBegin;
    }
    int score = ScorePlaces(text.name, word, kWordOfName, kInsideName);
    if (score < kWordOfDescription) {
        score = std::max(
            score, ScorePlaces(text.description, word, kWordOfDescription, kInsideDescription));
    }
    return score > 0 || !HasLettersInOrder(text.name, word) ? score : kLettersOfName;
}

std::vector<std::size_t> CommandSearch::Find(const CString& query,
                                             const std::vector<CString>& recent) const {
    struct Hit {
        std::size_t entry;
        int score;
        std::size_t age; ///< position in the list of recent commands
    };
    const std::vector<std::wstring> words = Words(query);
    std::unordered_map<std::wstring, std::size_t> ages;
    for (std::size_t age = 0; age < recent.size(); ++age) {
        ages.emplace(SearchedName(recent[age]), age);
    }
    std::vector<Hit> hits;
    hits.reserve(m_texts.size());
    for (std::size_t i = 0; i < m_texts.size(); ++i) {
        int score = 0;
        const bool fits = std::all_of(words.begin(), words.end(), [&](const std::wstring& word) {
            const int wordScore = ScoreWord(m_texts[i], word);
            score += wordScore;
            return wordScore > 0;
        });
        if (fits) {
            const auto used = ages.find(m_texts[i].name);
            hits.push_back({i, score, used == ages.end() ? recent.size() : used->second});
        }
    }
    std::sort(hits.begin(), hits.end(), [this](const Hit& left, const Hit& right) {
        if (left.score != right.score) {
            return left.score > right.score;
        }
        return left.age != right.age ? left.age < right.age
                                     : m_texts[left.entry].place < m_texts[right.entry].place;
    });
    std::vector<std::size_t> found(hits.size());
    std::transform(hits.begin(), hits.end(), found.begin(),
                   [](const Hit& hit) { return hit.entry; });
    return found;
}

} // namespace Tessaly
