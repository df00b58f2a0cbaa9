// Reads water and sewer networks from the text files of EPANET and SWMM (".inp").
//
// Reading either succeeds, perhaps with warnings, or gives no network at all and at
// least one error. The time grows with the length of the file.
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

/// Something in a file that is not as it should be.
struct InpProblem {
    Severity severity = Severity::Warning;
    std::uint32_t line = 0; ///< counted from 1; 0 if the file could not be read at all
    std::string reason;     ///< UTF-8
};

enum class InpFormat : std::uint8_t { Epanet, Swmm };

struct InpResult {
    bool ok = false; ///< false: there is an error and the model is empty
    InpFormat format = InpFormat::Epanet;
    NetworkModel model;
    std::string file;                 ///< as it was named by the caller, UTF-8
    std::string title;                ///< the lines of the title section, separated by line ends
    std::vector<InpProblem> problems; ///< by line; not more than kMostProblems of each severity
    std::size_t warningCount = 0;     ///< all of them, listed or not
    std::size_t errorCount = 0;

    static constexpr std::size_t kMostProblems = 100;
};

/// A longer line is taken as a sign that the file is no network file. Characters.
inline constexpr std::size_t kLongestLine = 65536;
/// Coordinates and other numbers of a network are not farther from 0 than this.
inline constexpr double kLargestNumber = 1e15;

/// Bytes that are no UTF-8 are taken as text of the ANSI code page.
/// \param progress told from 0 to 100; once it answers false, reading ends with an error
InpResult ReadInp(std::string_view bytes, std::string_view fileName,
                  const std::function<bool(int percent)>& progress = {});
InpResult ReadInpFile(const wchar_t* path, const std::function<bool(int percent)>& progress = {});

/// "file:line: reason", or "file: reason" where there is no line.
std::string ProblemText(const InpResult& result, const InpProblem& problem);
/// One text a problem, errors or warnings apart, with a last one "... and 23 more" if
/// not all of them are listed.
std::vector<std::string> ProblemTexts(const InpResult& result, Severity severity);

} // namespace Orvane::Network
