// Searches commands by typed words.
#pragma once

#include <string>
#include <vector>

#include "host/HostCommands.h"

namespace Tessaly {

using CommandEntry = ListedCommand;

/// Fast enough to search ten thousand commands per keystroke within a frame: entries are prepared
/// once.
class CommandSearch {
public:
    explicit CommandSearch(std::vector<CommandEntry> entries);

    const std::vector<CommandEntry>& Entries() const { return m_entries; }

    /// Indexes of the matching entries, best match first. Every word of the query must match the
    /// name or the description, in any order and case: a whole word, the start of a word, a part of
    /// one or, in the name, letters in order ("nwi" finds NETWORK_IMPORT). Without words all
    /// entries match. Equally good matches are ordered by last use, then alphabetically.
    /// \param recent names of commands, the most recent first
    std::vector<std::size_t> Find(const CString& query, const std::vector<CString>& recent) const;

private:
    struct Text {
        std::wstring name;        ///< in lower case, with a space for "_"
        std::wstring description; ///< in lower case
        std::size_t place = 0;    ///< in alphabetical order
    };
    static int ScoreWord(const Text& text, const std::wstring& word);

    std::vector<CommandEntry> m_entries;
    std::vector<Text> m_texts;
};

} // namespace Tessaly
