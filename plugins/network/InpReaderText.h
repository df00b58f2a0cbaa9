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

/// Gathers problems: all are counted, the first ones of each severity are kept.
class InpProblems {
public:
    void Warn(std::uint32_t line, std::string reason);
    void Fail(std::uint32_t line, std::string reason);
    bool HasErrors() const { return m_errorCount > 0; }
    /// Hands the problems over, in the order of their lines.
    void MoveTo(InpResult& result);

private:
    std::vector<InpProblem> m_warnings;
    std::vector<InpProblem> m_errors;
    std::size_t m_warningCount = 0;
    std::size_t m_errorCount = 0;
};

/// A section of the file: the lines behind a heading up to the next one.
struct InpFileSection {
    const InpSectionRule* rule = nullptr; ///< never null
    std::uint32_t headingLine = 0;
    std::string_view body;
};

/// The sections of a file in their order, up to its end mark. The views are into `bytes`.
/// A line that is too long or no text is an error.
std::vector<InpFileSection> SplitInp(std::string_view bytes, InpProblems& problems);

/// The first line of a text, without its line end; the text is left with the other lines.
std::string_view TakeLine(std::string_view& text);

/// The columns of a line: parts between blanks, or in quotation marks (which are taken
/// off). A semicolon outside of quotation marks ends the line.
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
/// How many characters a text of the file has; close enough for bytes that are no UTF-8.
std::size_t CountCharacters(std::string_view bytes);
/// The text in quotation marks, cut to a length that fits a message.
std::string Quoted(std::string_view text);

} // namespace Orvane::Network
