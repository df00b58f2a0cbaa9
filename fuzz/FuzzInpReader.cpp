// For a network file of any bytes, the reader yields a consistent network or errors, and statistics
// and checks accept every network it yields.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "plugins/network/InpReader.h"
#include "plugins/network/NetworkCheck.h"
#include "plugins/network/NetworkStatistics.h"

using namespace Orvane::Network;

namespace {

void Require(bool condition, const char* what) {
    if (!condition) {
        std::fprintf(stderr, "not kept: %s\n", what);
        std::abort();
    }
}

void CheckProblems(const InpResult& result) {
    Require(result.ok == (result.errorCount == 0), "a network or an error");
    const std::size_t listed = result.problems.size();
    Require(listed <= 2 * InpResult::kMostProblems, "the number of listed problems is limited");
    for (const Severity severity : {Severity::Warning, Severity::Error}) {
        for (const std::string& text : ProblemTexts(result, severity)) {
            Require(text.starts_with("fuzz.inp:") || text.starts_with("... and "), "file named");
        }
    }
}

void CheckAttributes(const AttributeTable& table, std::size_t owners) {
    std::size_t count = 0;
    for (std::uint32_t owner = 0; owner < owners; ++owner) {
        count += table.Of(owner).size();
    }
    Require(count == table.size(), "every attribute belongs to an entity");
}

void CheckTables(const NetworkModel& model) {
    const std::size_t nodes = model.nodes.size();
    const std::size_t sections = model.sections.size();
    Require(model.nodes.names.size() == nodes, "one name per node");
    Require(model.sections.names.size() == sections, "one name per section");
    Require(model.sections.diameters.size() == sections, "one diameter per section");
    Require(model.polygons.rings.size() == model.polygons.size(), "one ring per polygon");
    Require(model.labels.texts.size() == model.labels.size(), "one text per label position");
    for (std::size_t i = 0; i < model.polygons.size(); ++i) {
        Require(model.polygons.rings[i].size() >= 3, "at least three points per polygon");
    }
    for (const Point& position : model.nodes.positions) {
        Require(IsPlace(position), "every node has a position");
    }
    std::size_t missing = 0;
    for (std::size_t i = 0; i < sections; ++i) {
        missing += model.sections.startNodes[i] == kMissingNode;
        missing += model.sections.endNodes[i] == kMissingNode;
    }
    Require(missing == model.sections.missingNames.size(), "one name per missing node");
    CheckAttributes(model.nodes.attributes, nodes);
    CheckAttributes(model.sections.attributes, sections);
    CheckAttributes(model.polygons.attributes, model.polygons.size());
}

void CheckFindings(const NetworkModel& model) {
    const ModelNames names(model);
    const CheckResult result = CheckNetwork(GeometryOf(model));
    std::size_t count = 0;
    for (const std::size_t ofKind : result.counts) {
        count += ofKind;
    }
    Require(count == result.findings.size(), "all findings listed");
    for (const Finding& finding : result.findings) {
        Require(!FindingText(finding, names).empty(), "one text per finding");
        Require(finding.other == kNoEntity || finding.other < finding.entity, "the earlier one");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const InpResult result = ReadInp(bytes, "fuzz.inp");
    CheckProblems(result);
    CheckTables(result.model);
    const NetworkGeometry geometry = GeometryOf(result.model);
    Require(GeometryFault(geometry).empty(), "sound arrays");
    const NetworkStatistics statistics = ComputeStatistics(geometry);
    Require(statistics.componentCount <= statistics.nodeCount, "no more components than nodes");
    CheckFindings(result.model);
    CheckOptions close;
    close.coincidenceTolerance = 2.5;
    CheckNetwork(geometry, close);
    return 0;
}
