// Reads water and sewer networks from the text files of EPANET and SWMM (".inp").
//
// Reading either succeeds, possibly with warnings, or yields no network and at least one error. It
// takes linear time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "plugins/network/NetworkModel.h"

namespace Orvane::Network {

enum class Severity : std::uint8_t { Warning, Error };

/// A problem found in a file.
struct InpProblem {
    Severity severity = Severity::Warning;
    std::uint32_t line = 0; ///< from 1; 0 if the file could not be read at all
    std::string reason;     ///< UTF-8
};

enum class InpFormat : std::uint8_t { Epanet, Swmm };

struct InpResult {
    bool ok = false; ///< false: there are errors and the model is empty
    InpFormat format = InpFormat::Epanet;
    NetworkModel model;
    std::string file;                 ///< the name passed by the caller, UTF-8
    std::string title;                ///< the lines of the title section, separated by newlines
    std::vector<InpProblem> problems; ///< by line; at most kMostProblems of each severity
    std::size_t warningCount = 0;     ///< including those not listed
    std::size_t errorCount = 0;

    static constexpr std::size_t kMostProblems = 100;
};

/// Characters. A longer line suggests that the file is not a network file.
inline constexpr std::size_t kLongestLine = 65536;
/// Upper limit for the magnitude of coordinates and other numbers.
inline constexpr double kLargestNumber = 1e15;

/// Bytes that are not valid UTF-8 are read in the ANSI code page.
/// \param progress called with 0 to 100; if it returns false, reading stops with an error
InpResult ReadInp(std::string_view bytes, std::string_view fileName,
                  const std::function<bool(int percent)>& progress = {});
InpResult ReadInpFile(const wchar_t* path, const std::function<bool(int percent)>& progress = {});

/// "file:line: reason", or "file: reason" without a line number.
std::string ProblemText(const InpResult& result, const InpProblem& problem);
/// One text per problem of this severity. If not all of them are listed, the last text is "... and
/// 23 more".
std::vector<std::string> ProblemTexts(const InpResult& result, Severity severity);

} // namespace Orvane::Network
