// Lines, columns and problems of network files.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "plugins/network/InpReader.h"
#include "plugins/network/InpReaderTables.h"

namespace Orvane::Network {

/// Collects problems: counts all and keeps the first ones of each severity.
class InpProblems {
public:
    void Warn(std::uint32_t line, std::string reason);
    void Fail(std::uint32_t line, std::string reason);
    bool HasErrors() const { return m_errorCount > 0; }
    /// Moves the problems into the result, ordered by line.
    void MoveTo(InpResult& result);

private:
    std::vector<InpProblem> m_warnings;
    std::vector<InpProblem> m_errors;
    std::size_t m_warningCount = 0;
    std::size_t m_errorCount = 0;
};

/// A section of the file: the lines from a heading up to the next one.
struct InpFileSection {
    const InpSectionRule* rule = nullptr; ///< never null
    std::uint32_t headingLine = 0;
    std::string_view body;
};

/// The sections of a file in file order, up to the end marker. The views point into `bytes`. Lines
/// that are too long or not text are errors.
std::vector<InpFileSection> SplitInp(std::string_view bytes, InpProblems& problems);

/// Removes the first line from a text and returns it without its line end.
std::string_view TakeLine(std::string_view& text);

/// Splits a line into columns, separated by spaces or enclosed in double quotes, which are removed.
/// A semicolon outside quotes ends the line.
void SplitColumns(std::string_view line, std::vector<std::string_view>& columns);

/// Calls take(line number, columns) for each line of a section that has columns.
template <class Take>
void ForEachRow(const InpFileSection& section, Take&& take) {
    std::vector<std::string_view> columns;
    std::string_view rest = section.body;
    for (std::uint32_t line = section.headingLine + 1; !rest.empty(); ++line) {
        SplitColumns(TakeLine(rest), columns);
        if (!columns.empty()) {
            take(line, columns);
        }
    }
}

bool IsUtf8(std::string_view bytes);
/// The number of characters in a UTF-8 text; approximate if the bytes are not valid UTF-8.
std::size_t CountCharacters(std::string_view bytes);
/// The text in double quotes, shortened to fit a message.
std::string Quoted(std::string_view text);

} // namespace Orvane::Network
