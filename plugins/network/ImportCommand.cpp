#include "plugins/network/ImportCommand.h"

#include <memory>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/EdProgress.h"
#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "platform/win/File.h"
#include "platform/win/Number.h"
#include "plugins/common/Prompts.h"
#include "plugins/common/Texts.h"
#include "plugins/network/NetworkDrawing.h"
#include "plugins/network/NetworkFormats.h"
#include "plugins/network/NetworkLayers.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/giscore/topology/Topology.h"

namespace Orvane::Network {

using Plugins::Msg;
using Plugins::PrintLine;
using Plugins::Refuse;
using Plugins::Text;

namespace {

void PrintImported(const CString& name, std::size_t nodes, std::size_t sections,
                   const ImportedSystems& imported, std::size_t polygons) {
    CString line;
    if (imported.pNetwork) {
        line = Text(Msg::ImportedNetwork, name, nodes, sections);
    }
    if (imported.pPolygons) {
        line += line.IsEmpty() ? L"" : L"; ";
        line += Text(Msg::ImportedPolygons, imported.pPolygons->GetSystemName(), polygons);
    }
    acutPrintf(L"%s.\n", line);
}

/// Prints the reason and that nothing was imported. Always returns false.
bool RefuseImport(const CString& reason) {
    const CString nothing = Text(Msg::NothingImported);
    return Refuse(reason.IsEmpty() ? nothing : reason + L" " + nothing);
}

bool ImportNetworkFile(const NetworkFormat& format, const CString& file, const CString& name) {
    ImportProgress progress(acedProgress(Text(Msg::Importing, FileNameOf(file))));
    const NetworkFile read = format.read(file, progress.Reading());
    for (const std::string& warning : read.warnings) {
        PrintLine(warning);
    }
    if (!read.ok) {
        for (const std::string& error : read.errors) {
            PrintLine(error);
        }
        return RefuseImport({});
    }
    ImportedSystems imported;
    const CString reason = AddToDrawing(read.model, read.function, name, imported, progress);
    if (!reason.IsEmpty()) {
        return RefuseImport(reason);
    }
    PrintImported(name, read.model.nodes.size(), read.model.sections.size(), imported,
                  read.model.polygons.size());
    return true;
}

/// Asks for the network's function; nothing if the user cancelled.
std::optional<int> AskFunction() {
    const CTopology* const pLines = CModuleConfiguration::Instance()->GetTopology(TopologyLine);
    if (!pLines || !pLines->GetHasFunctions()) {
        return 0;
    }
    const std::vector<CTopologyFunction>& functions = pLines->GetTopologyFunctionVector();
    ChoicePrompt prompt{Text(Msg::KindOfNetwork), {}, 0};
    for (const CTopologyFunction& function : functions) {
        prompt.choices.push_back({FormatText(L"%d", function.GetId()), function.GetName()});
    }
    const auto choice = acedAskChoice(prompt);
    return choice ? std::optional(functions[*choice].GetId()) : std::nullopt;
}

/// Asks for the distance within which line ends are joined. Nothing if the user cancelled, or if
/// the answer is not a distance, which is reported.
std::optional<double> AskTolerance(double usual) {
    const auto answer = acedAskText(Text(Msg::JoinDistance), CString(RealToText(usual)));
    const auto distance = answer ? TextToReal(WideToUtf8(answer->View())) : std::nullopt;
    if (answer && (!distance || *distance < 0)) {
        Refuse(Text(Msg::NoDistance, *answer));
        return std::nullopt;
    }
    return distance;
}

/// Any format the host can read: points and lines become a network, areas become polygons.
bool ImportLayers(const CString& file, const CString& name) {
    auto progress =
        std::make_unique<ImportProgress>(acedProgress(Text(Msg::Reading, FileNameOf(file))));
    const AcDbImportResult read = acdbImporter()->Import(file, progress->Reading());
    for (const CString& warning : read.warnings) {
        acutPrintf(L"%s\n", warning);
    }
    progress.reset(); // closes the progress display before the prompts below
    if (!read.ok()) {
        Refuse(read.reason);
        return RefuseImport({});
    }
    const LayerContents contents(read);
    const bool hasNetwork = !contents.points.empty() || !contents.lines.empty();
    if (!hasNetwork && contents.polygons.empty()) {
        return RefuseImport(Text(Msg::NoFeatures, file));
    }
    const std::optional<int> function = hasNetwork ? AskFunction() : 0;
    if (!function) {
        return RefuseImport({});
    }
    const std::optional<double> tolerance =
        contents.lines.empty() ? 0.0 : AskTolerance(UsualTolerance(contents.places, contents.ends));
    if (!tolerance) {
        return RefuseImport({});
    }
    const bool isFirst = acdbHostApplicationServices()->workingDatabase()->entityCount() == 0;
    progress = std::make_unique<ImportProgress>(acedProgress(Text(Msg::Adding, name)));
    ImportedSystems imported;
    LayerCounts counts;
    const CString reason =
        AddToDrawing(contents, *tolerance, *function, name, imported, counts, *progress);
    progress.reset();
    if (!reason.IsEmpty()) {
        return RefuseImport(reason);
    }
    for (const CString& warning : TakeCoordinateSystem(read, isFirst)) {
        acutPrintf(L"%s\n", warning);
    }
    PrintImported(name, counts.nodes, counts.sections, imported, counts.polygons);
    if (counts.foundNodes > 0) {
        acutPrintf(L"%s\n", Text(Msg::MadeNodes, counts.foundNodes));
    }
    return true;
}

} // namespace

bool ImportNetwork() {
    const CString file = acedAskText(Text(Msg::NetworkFile)).value_or(CString());
    if (file.IsEmpty()) {
        return RefuseImport(Text(Msg::NoFileGiven));
    }
    if (!FileExists(file)) {
        return RefuseImport(Text(Msg::NoSuchFile, file));
    }
    const CString name = acedAskText(Text(Msg::SystemName)).value_or(CString());
    if (name.IsEmpty()) {
        return RefuseImport(Text(Msg::NoNameGiven));
    }
    if (const auto* const pOther = System::CSystemManager::Instance()->GetSystemByName(name)) {
        return RefuseImport(Text(Msg::SystemExists, pOther->GetSystemName()));
    }
    const NetworkFormat* const pFormat = NetworkFormatOf(file);
    if (!pFormat && acdbImporter()) {
        return ImportLayers(file, name);
    }
    return ImportNetworkFile(pFormat ? *pFormat : DefaultNetworkFormat(), file, name);
}

} // namespace Orvane::Network
