#include "plugins/network/ImportCommand.h"

#include <memory>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/EdProgress.h"
#include "platform/arx/EdPrompt.h"
#include "platform/win/CodePage.h"
#include "platform/win/File.h"
#include "platform/win/Number.h"
#include "plugins/common/Prompts.h"
#include "plugins/network/NetworkDrawing.h"
#include "plugins/network/NetworkFormats.h"
#include "plugins/network/NetworkLayers.h"
#include "siblings/giscore/configuration/ModuleConfiguration.h"
#include "siblings/giscore/systems/GisSystem.h"
#include "siblings/giscore/systems/SystemManager.h"
#include "siblings/giscore/topology/Topology.h"

namespace Orvane::Network {

using Plugins::Ask;
using Plugins::PrintLine;
using Plugins::Refuse;

namespace {

void PrintImported(const CString& name, std::size_t nodes, std::size_t sections,
                   const ImportedSystems& imported, std::size_t polygons) {
    if (imported.pNetwork) {
        acutPrintf(L"%s: %u nodes, %u sections", name, nodes, sections);
    }
    if (imported.pPolygons) {
        acutPrintf(L"%s%s: %u polygons", imported.pNetwork ? L"; " : L"",
                   imported.pPolygons->GetSystemName(), polygons);
    }
    acutPrintf(L".\n");
}

bool ImportNetworkFile(const NetworkFormat& format, const CString& file, const CString& name) {
    ImportProgress progress(acedProgress(L"Importing " + FileNameOf(file)));
    const NetworkFile read = format.read(file, progress.Reading());
    for (const std::string& warning : read.warnings) {
        PrintLine(warning);
    }
    if (!read.ok) {
        for (const std::string& error : read.errors) {
            PrintLine(error);
        }
        return Refuse(L"Nothing was imported.");
    }
    ImportedSystems imported;
    const CString reason = AddToDrawing(read.model, read.function, name, imported, progress);
    if (!reason.IsEmpty()) {
        return Refuse(reason + L" Nothing was imported.");
    }
    PrintImported(name, read.model.nodes.size(), read.model.sections.size(), imported,
                  read.model.polygons.size());
    return true;
}

/// Asks what the network is for; nothing if the answer is no function of networks.
std::optional<int> AskFunction() {
    const CTopology* const pLines = CModuleConfiguration::Instance()->GetTopology(TopologyLine);
    if (!pLines || !pLines->GetHasFunctions()) {
        return 0;
    }
    const std::vector<CTopologyFunction>& functions = pLines->GetTopologyFunctionVector();
    CString prompt = L"Kind of network [";
    for (const CTopologyFunction& function : functions) {
        prompt.AppendFormat(L"%s%d %s", &function == &functions.front() ? L"" : L"/",
                            function.GetId(), function.GetName());
    }
    prompt.AppendFormat(L"] <%d>: ", functions.front().GetId());
    const CString answer = Ask(prompt);
    for (const CTopologyFunction& function : functions) {
        CString number;
        number.Format(L"%d", function.GetId());
        if (answer == number || answer.CompareNoCase(function.GetName()) == 0) {
            return function.GetId();
        }
    }
    return answer.IsEmpty() ? std::optional(functions.front().GetId()) : std::nullopt;
}

/// Asks how near ends have to be to meet; nothing if the answer is no distance.
std::optional<double> AskTolerance(double usual) {
    CString prompt;
    prompt.Format(L"Ends up to this distance apart meet in one node <%s>: ", RealToText(usual));
    const CString answer = Ask(prompt);
    const auto distance =
        answer.IsEmpty() ? std::optional(usual) : TextToReal(WideToUtf8(answer.View()));
    return distance && *distance >= 0 ? distance : std::nullopt;
}

/// Anything that the host can read: points and lines become a network, areas polygons.
bool ImportLayers(const CString& file, const CString& name) {
    auto progress = std::make_unique<ImportProgress>(acedProgress(L"Reading " + FileNameOf(file)));
    const AcDbImportResult read = acdbImporter()->Import(file, progress->Reading());
    for (const CString& warning : read.warnings) {
        acutPrintf(L"%s\n", warning);
    }
    progress.reset(); // the user is asked now
    if (!read.ok()) {
        return Refuse(read.reason + L"\nNothing was imported.");
    }
    const LayerContents contents(read);
    const bool hasNetwork = !contents.points.empty() || !contents.lines.empty();
    if (!hasNetwork && contents.polygons.empty()) {
        return Refuse(file + L": there are no points, lines or areas in it. Nothing was imported.");
    }
    const std::optional<int> function = hasNetwork ? AskFunction() : 0;
    if (!function) {
        return Refuse(L"There is no such kind of network. Nothing was imported.");
    }
    const std::optional<double> tolerance =
        contents.lines.empty() ? 0.0 : AskTolerance(UsualTolerance(contents.places, contents.ends));
    if (!tolerance) {
        return Refuse(L"This is no distance. Nothing was imported.");
    }
    const bool isFirst = acdbHostApplicationServices()->workingDatabase()->entityCount() == 0;
    progress = std::make_unique<ImportProgress>(acedProgress(L"Adding " + name));
    ImportedSystems imported;
    LayerCounts counts;
    const CString reason =
        AddToDrawing(contents, *tolerance, *function, name, imported, counts, *progress);
    progress.reset();
    if (!reason.IsEmpty()) {
        return Refuse(reason + L" Nothing was imported.");
    }
    for (const CString& warning : TakeCoordinateSystem(read, isFirst)) {
        acutPrintf(L"%s\n", warning);
    }
    PrintImported(name, counts.nodes, counts.sections, imported, counts.polygons);
    if (counts.foundNodes > 0) {
        acutPrintf(L"%u of the nodes were made where lines end.\n", counts.foundNodes);
    }
    return true;
}

} // namespace

bool ImportNetwork() {
    const CString file = Ask(L"Network file: ");
    if (file.IsEmpty()) {
        return Refuse(L"No file: nothing was imported.");
    }
    if (!FileExists(file)) {
        return Refuse(file + L": there is no such file. Nothing was imported.");
    }
    const CString name = Ask(L"Name of the system: ");
    if (name.IsEmpty()) {
        return Refuse(L"No name: nothing was imported.");
    }
    if (const auto* const pOther = System::CSystemManager::Instance()->GetSystemByName(name)) {
        return Refuse(FormatText(L"The drawing has a system \"%s\" already. Nothing was imported.",
                                 pOther->GetSystemName()));
    }
    const NetworkFormat* const pFormat = NetworkFormatOf(file);
    if (!pFormat && acdbImporter()) {
        return ImportLayers(file, name);
    }
    return ImportNetworkFile(pFormat ? *pFormat : DefaultNetworkFormat(), file, name);
}

} // namespace Orvane::Network
