// Finding commands by what somebody types of them.
#pragma once

#include <string>
#include <vector>

#include "host/HostCommands.h"

namespace Tessaly {

using CommandEntry = ListedCommand;

/// Answers each keystroke among ten thousand commands within a frame: what has to be prepared
/// is prepared once.
class CommandSearch {
public:
    explicit CommandSearch(std::vector<CommandEntry> entries);

    const std::vector<CommandEntry>& Entries() const { return m_entries; }

    /// Places of the entries that fit, best first. Every word of the query has to be found in
    /// the name or the description, in any order and case: as a whole, at the begin of a
    /// word, inside of one, or, in the name, as letters in their order ("nwi" finds
    /// NETWORK_IMPORT). Without words all fit. Among equally good ones those used last come
    /// first, then those earlier in the alphabet.
    /// \param recent names of commands, the one used last first
    std::vector<std::size_t> Find(const CString& query, const std::vector<CString>& recent) const;

private:
    struct Text {
        std::wstring name;        ///< in lower case, "_" as a blank
        std::wstring description; ///< in lower case
    };
    static int ScoreWord(const Text& text, const std::wstring& word);

    std::vector<CommandEntry> m_entries;
    std::vector<Text> m_texts;
};

} // namespace Tessaly
