#include "plugins/network/InpReaderText.h"

#include "plugins/common/Texts.h"
#include <algorithm>
#include <iterator>
#include <utility>

namespace Orvane::Network {

using Plugins::Msg;
using Plugins::TextUtf8;

namespace {

bool IsBlank(char c) {
    return static_cast<unsigned char>(c) <= ' ';
}

bool IsContinuation(char c) {
    return (static_cast<unsigned char>(c) & 0xC0U) == 0x80;
}

std::string_view TrimLeft(std::string_view text) {
    const auto* first = std::find_if_not(text.begin(), text.end(), IsBlank);
    return text.substr(static_cast<std::size_t>(first - text.begin()));
}

void Keep(std::vector<InpProblem>& list, std::size_t& count, InpProblem problem) {
    if (++count <= InpResult::kMostProblems) {
        list.push_back(std::move(problem));
    }
}

/// Makes one pass over the lines of a file, recording headings and unusable lines.
class Splitter {
public:
    Splitter(std::string_view bytes, InpProblems& problems) : m_rest(bytes), m_problems(problems) {
        if (m_rest.starts_with("\xEF\xBB\xBF")) {
            m_rest.remove_prefix(3);
        }
    }

    std::vector<InpFileSection> Run() {
        while (!m_rest.empty() && !m_isAtEnd) {
            const char* begin = m_rest.data();
            const std::string_view line = TakeLine(m_rest);
            ++m_line;
            if (IsUsable(line)) {
                TakeContent(TrimLeft(line), begin);
            }
        }
        Close(m_rest.data());
        return std::move(m_sections);
    }

private:
    bool IsUsable(std::string_view line) {
        if (line.size() > kLongestLine && CountCharacters(line) > kLongestLine) {
            m_problems.Fail(m_line,
                            TextUtf8(Msg::LineTooLong, CountCharacters(line), kLongestLine));
            return false;
        }
        if (line.find('\0') != std::string_view::npos) {
            m_problems.Fail(m_line, TextUtf8(Msg::ZeroByte));
            return false;
        }
        return true;
    }

    void TakeContent(std::string_view line, const char* begin) {
        if (line.starts_with('[')) {
            Close(begin);
            Open(line);
        } else if (m_sections.empty() && !m_isSkipping && !line.empty() && line[0] != ';' &&
                   !m_isTextBeforeTold) {
            m_isTextBeforeTold = true;
            m_problems.Warn(m_line, TextUtf8(Msg::TextBeforeSection));
        }
    }

    void Open(std::string_view line) {
        const std::size_t end = line.find(']');
        m_isSkipping = true;
        if (end == std::string_view::npos) {
            m_problems.Fail(m_line, TextUtf8(Msg::HeadingIsCut, Quoted(line)));
            return;
        }
        const std::string_view heading = line.substr(1, end - 1);
        const InpSectionRule* rule = FindInpSection(heading);
        if (!rule) {
            m_problems.Warn(m_line, TextUtf8(Msg::UnknownHeading, Quoted(heading)));
            return;
        }
        m_isSkipping = false;
        m_isAtEnd = rule->role == InpRole::End;
        m_sections.push_back({rule, m_line, m_rest});
        m_isOpen = true;
    }

    /// The body of the open section ends here.
    void Close(const char* end) {
        if (std::exchange(m_isOpen, false)) {
            std::string_view& body = m_sections.back().body;
            body = body.substr(0, static_cast<std::size_t>(end - body.data()));
        }
    }

    std::string_view m_rest;
    InpProblems& m_problems;
    std::vector<InpFileSection> m_sections;
    std::uint32_t m_line = 0;
    bool m_isOpen = false;
    bool m_isSkipping = false; ///< inside an unknown section
    bool m_isAtEnd = false;
    bool m_isTextBeforeTold = false;
};

/// The length of the UTF-8 sequence at the start of a text; 0 if it is malformed.
std::size_t SequenceLength(std::string_view text) {
    const auto first = static_cast<unsigned char>(text[0]);
    const auto second = text.size() > 1 ? static_cast<unsigned char>(text[1]) : 0U;
    std::size_t length = 0;
    if (first < 0x80) {
        length = 1;
    } else if (first >= 0xC2 && first < 0xE0) {
        length = 2;
    } else if (first >= 0xE0 && first < 0xF0) {
        // Rejects overlong forms and UTF-16 surrogates.
        const bool isAllowed =
            (first != 0xE0 || second >= 0xA0) && (first != 0xED || second < 0xA0);
        length = isAllowed ? 3 : 0;
    } else if (first >= 0xF0 && first < 0xF5) {
        const bool isAllowed =
            (first != 0xF0 || second >= 0x90) && (first != 0xF4 || second < 0x90);
        length = isAllowed ? 4 : 0;
    }
    const bool isWhole = length > 0 && length <= text.size();
    return isWhole && std::all_of(text.begin() + 1, text.begin() + length, IsContinuation) ? length
                                                                                           : 0;
}

} // namespace

void InpProblems::Warn(std::uint32_t line, std::string reason) {
    Keep(m_warnings, m_warningCount, {Severity::Warning, line, std::move(reason)});
}

void InpProblems::Fail(std::uint32_t line, std::string reason) {
    Keep(m_errors, m_errorCount, {Severity::Error, line, std::move(reason)});
}

void InpProblems::MoveTo(InpResult& result) {
    result.warningCount = m_warningCount;
    result.errorCount = m_errorCount;
    result.problems = std::move(m_errors);
    std::ranges::move(m_warnings, std::back_inserter(result.problems));
    std::ranges::stable_sort(result.problems, {}, &InpProblem::line);
}

std::vector<InpFileSection> SplitInp(std::string_view bytes, InpProblems& problems) {
    return Splitter(bytes, problems).Run();
}

std::string_view TakeLine(std::string_view& text) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) {
        line.remove_suffix(1);
    }
    return line;
}

void SplitColumns(std::string_view line, std::vector<std::string_view>& columns) {
    columns.clear();
    for (line = TrimLeft(line); !line.empty() && line[0] != ';'; line = TrimLeft(line)) {
        const std::size_t quote = line[0] == '"' ? line.find('"', 1) : std::string_view::npos;
        if (quote != std::string_view::npos) {
            columns.push_back(line.substr(1, quote - 1));
            line.remove_prefix(quote + 1);
            continue;
        }
        const auto* end =
            std::find_if(line.begin(), line.end(), [](char c) { return IsBlank(c) || c == ';'; });
        const auto length = static_cast<std::size_t>(end - line.begin());
        columns.push_back(line.substr(0, length));
        line.remove_prefix(length);
    }
}

bool IsUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = SequenceLength(bytes);
        if (length == 0) {
            return false;
        }
        bytes.remove_prefix(length);
    }
    return true;
}

std::size_t CountCharacters(std::string_view bytes) {
    return bytes.size() - static_cast<std::size_t>(std::ranges::count_if(bytes, IsContinuation));
}

std::string Quoted(std::string_view text) {
    constexpr std::size_t kMost = 60;
    std::string quoted = "\"";
    if (text.size() <= kMost) {
        return quoted.append(text).append("\"");
    }
    std::size_t end = kMost;
    while (end > 0 && IsContinuation(text[end])) {
        --end; // do not split a UTF-8 sequence
    }
    return quoted.append(text.substr(0, end)).append("...\"");
}

} // namespace Orvane::Network
