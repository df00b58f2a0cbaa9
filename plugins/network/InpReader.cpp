#include "plugins/network/InpReader.h"

#include <algorithm>
#include <array>

#include "platform/win/CodePage.h"
#include "platform/win/ErrorText.h"
#include "platform/win/File.h"
#include "plugins/network/InpReaderEntities.h"

namespace Orvane::Network {

using Plugins::Msg;
using Plugins::TextUtf8;

namespace {

using FileSections = std::vector<InpFileSection>;

/// Line and point numbers are 32 bit.
constexpr std::size_t kLargestFile = 0xFFFFFFF0;

std::string AnsiToUtf8(std::string_view bytes) {
    std::array<std::string, 256> characters;
    for (std::size_t byte = 0; byte < characters.size(); ++byte) {
        const wchar_t character = AnsiToWide(static_cast<unsigned char>(byte));
        characters[byte] = WideToUtf8({&character, 1});
    }
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 16);
    for (const char byte : bytes) {
        text += characters[static_cast<unsigned char>(byte)];
    }
    return text;
}

bool IsBlankText(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

/// Why this cannot be a network file, judged by its first bytes; nothing if it may be one.
std::optional<Msg> FaultOfWhole(std::string_view bytes) {
    if (IsBlankText(bytes)) {
        return Msg::FileIsEmpty;
    }
    if (bytes.size() > kLargestFile) {
        return Msg::FileIsTooLarge;
    }
    if (bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF")) {
        return Msg::FileIsUtf16;
    }
    return {};
}

InpFormat FormatOf(const FileSections& sections) {
    return std::ranges::any_of(
               sections, IsSwmmSection, [](const InpFileSection& s) -> auto& { return *s.rule; })
               ? InpFormat::Swmm
               : InpFormat::Epanet;
}

std::string TitleOf(const FileSections& sections) {
    std::string title;
    for (const InpFileSection& section : sections) {
        std::string_view rest = section.rule->role == InpRole::Title ? section.body : "";
        while (!rest.empty()) {
            const std::string_view line = TakeLine(rest);
            if (!IsBlankText(line) && line[0] != ';') {
                title.append(title.empty() ? "" : "\n").append(line);
            }
        }
    }
    return title;
}

/// Runs the parts of the reader in dependency order, which need not be the file's order: nodes,
/// positions, sections, then what belongs to those.
class ModelReader {
public:
    ModelReader(const FileSections& file, InpContext& context, NetworkModel& model)
        : m_file(file), m_context(context), m_model(model), m_nodes(context, model.nodes),
          m_sections(context, model.sections, m_nodes),
          m_polygons(context, model.polygons, m_nodes) {}

    /// False if the caller stopped it.
    bool Run(const std::function<bool(int)>& progress) {
        const auto goesOn = [&](int percent) { return !progress || progress(percent); };
        if (!goesOn(10)) {
            return false;
        }
        ReadNodes();
        if (!goesOn(50)) {
            return false;
        }
        ReadLines();
        if (!goesOn(90)) {
            return false;
        }
        ReadAreas();
        ForEach(InpRole::Labels, [this](const InpFileSection& section) {
            ReadInpLabels(m_context, section, m_model.labels);
        });
        return true;
    }

private:
    template <class Read>
    void ForEach(InpRole role, Read&& read) {
        for (const InpFileSection& section : m_file) {
            if (section.rule->role == role) {
                read(section);
            }
        }
    }

    void ReadNodes() {
        ForEach(InpRole::Nodes, [this](const auto& section) { m_nodes.ReadNodes(section); });
        std::uint32_t line = m_file.back().headingLine;
        ForEach(InpRole::Coordinates, [&](const auto& section) {
            m_nodes.ReadCoordinates(section);
            line = section.headingLine;
        });
        if (m_context.problems.HasErrors()) {
            return; // already reported: nodes may lack positions because of an earlier error
        }
        if (m_model.nodes.size() == 0) {
            m_context.problems.Fail(1, TextUtf8(Msg::FileWithoutNodes));
        } else {
            m_nodes.DropUnplaced(line);
        }
    }

    void ReadLines() {
        ForEach(InpRole::Sections, [this](const auto& s) { m_sections.ReadSections(s); });
        ForEach(InpRole::CrossSections, [this](const auto& s) { m_sections.ReadCrossSections(s); });
        ForEach(InpRole::Vertices, [this](const auto& s) { m_sections.ReadVertices(s); });
        ForEach(InpRole::Tags, [this](const auto& section) {
            ReadInpTags(m_context, section, m_nodes, m_sections, m_model);
        });
        m_model.nodes.attributes.Seal();
        m_sections.Finish();
    }

    void ReadAreas() {
        ForEach(InpRole::Subcatchments, [this](const auto& s) { m_polygons.ReadSubcatchments(s); });
        ForEach(InpRole::Polygons, [this](const auto& s) { m_polygons.ReadRings(s); });
        m_polygons.Finish();
    }

    const FileSections& m_file;
    InpContext& m_context;
    NetworkModel& m_model;
    InpNodes m_nodes;
    InpSections m_sections;
    InpPolygons m_polygons;
};

bool HasNetwork(const FileSections& sections) {
    return std::ranges::any_of(sections, [](const InpFileSection& section) {
        return section.rule->role == InpRole::Nodes || section.rule->role == InpRole::Coordinates;
    });
}

void ReadUtf8(std::string_view text, InpContext& context, InpResult& result,
              const std::function<bool(int)>& progress) {
    const FileSections sections = SplitInp(text, context.problems);
    if (context.problems.HasErrors()) {
        return; // the columns of such a file have no meaning
    }
    if (!HasNetwork(sections)) {
        context.problems.Fail(1, TextUtf8(Msg::NotANetworkFile));
        return;
    }
    context.format = FormatOf(sections);
    result.format = context.format;
    result.title = TitleOf(sections);
    if (!ModelReader(sections, context, result.model).Run(progress)) {
        context.problems.Fail(0, TextUtf8(Msg::ReadingStopped));
    }
}

void Finish(InpContext& context, InpResult& result) {
    context.problems.MoveTo(result);
    result.ok = result.errorCount == 0;
    if (!result.ok) {
        result.model = NetworkModel();
    }
}

} // namespace

InpResult ReadInp(std::string_view bytes, std::string_view fileName,
                  const std::function<bool(int percent)>& progress) {
    InpResult result;
    result.file = fileName;
    InpContext context;
    if (const std::optional<Msg> fault = FaultOfWhole(bytes)) {
        context.problems.Fail(1, TextUtf8(*fault));
    } else if (IsUtf8(bytes)) {
        ReadUtf8(bytes, context, result, progress);
    } else {
        ReadUtf8(AnsiToUtf8(bytes), context, result, progress);
    }
    Finish(context, result);
    return result;
}

InpResult ReadInpFile(const wchar_t* path, const std::function<bool(int percent)>& progress) {
    const std::string name = WideToUtf8(path ? path : L"");
    if (const auto bytes = ReadFileBytes(path)) {
        return ReadInp(*bytes, name, progress);
    }
    InpResult result;
    result.file = name;
    InpContext context;
    context.problems.Fail(0, TextUtf8(Msg::CannotReadFile, LastErrorText()));
    Finish(context, result);
    return result;
}

std::string ProblemText(const InpResult& result, const InpProblem& problem) {
    const std::string line = problem.line == 0 ? "" : std::to_string(problem.line) + ":";
    return result.file + ":" + line + " " + problem.reason;
}

std::vector<std::string> ProblemTexts(const InpResult& result, Severity severity) {
    std::vector<std::string> texts;
    for (const InpProblem& problem : result.problems) {
        if (problem.severity == severity) {
            texts.push_back(ProblemText(result, problem));
        }
    }
    const std::size_t all = severity == Severity::Error ? result.errorCount : result.warningCount;
    if (all > texts.size()) {
        texts.push_back(TextUtf8(Msg::MoreProblems, all - texts.size()));
    }
    return texts;
}

} // namespace Orvane::Network
