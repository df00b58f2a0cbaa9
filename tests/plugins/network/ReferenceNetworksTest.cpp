// Networks whose faults are known: generated ones, and real ones where their folder is present.
#include <gtest/gtest.h>

#include <filesystem>

#include "platform/win/CodePage.h"
#include "plugins/network/InpReader.h"
#include "plugins/network/NetworkCheck.h"
#include "plugins/network/NetworkStatistics.h"
#include "tests/support/NetworkFiles.h"

using namespace Orvane::Network;

namespace {

struct Reference {
    const char* file;
    std::size_t nodes;
    std::size_t sections;
    std::size_t vertices;
    std::size_t polygons;
    std::size_t labels;
    std::size_t components;
    std::array<std::size_t, kFindingKindCount> findings; ///< in the order of FindingKind
};

std::ostream& operator<<(std::ostream& out, const Reference& reference) {
    return out << reference.file;
}

constexpr Reference kGenerated[] = {
    {"generated-water.inp", 341, 330, 10, 0, 3, 31, {5, 5, 5, 5, 5, 5}},
    {"generated-sewer.inp", 351, 330, 8, 135, 0, 31, {5, 5, 5, 5, 5, 5}},
};

constexpr Reference kReal[] = {
    {"Net3.inp", 97, 119, 0, 0, 2, 1, {0, 0, 0, 0, 0, 1}},
    {"Net6.inp", 3356, 3892, 0, 0, 0, 1, {0, 0, 0, 0, 62, 494}},
    {"ky10.inp", 935, 1061, 7796, 0, 0, 1, {0, 18, 18, 0, 2, 1}},
    {"model_state_plane.inp", 45, 44, 4, 2, 0, 1, {0, 0, 0, 0, 0, 0}},
    {"test_inlet_drains.inp", 20, 23, 39, 7, 8, 2, {0, 0, 0, 0, 2, 0}},
};

InpResult ReadFile(const std::filesystem::path& path) {
    return ReadInpFile(Utf8ToWide(path.string()).c_str());
}

class ReferenceNetworks : public testing::TestWithParam<Reference> {
protected:
    NetworkFiles m_networks;
};

const std::vector<Reference>& References() {
    static const std::vector<Reference> references = [] {
        std::vector<Reference> all(std::begin(kGenerated), std::end(kGenerated));
        if (NetworkFiles::HasReal()) {
            all.insert(all.end(), std::begin(kReal), std::end(kReal));
        }
        return all;
    }();
    return references;
}

} // namespace

TEST_P(ReferenceNetworks, HaveTheirKnownFigures) {
    const Reference& reference = GetParam();
    const InpResult result = ReadFile(m_networks.Path(reference.file));
    EXPECT_EQ(ProblemTexts(result, Severity::Error), std::vector<std::string>{});
    const auto missing = static_cast<std::size_t>(FindingKind::MissingNode);
    EXPECT_EQ(ProblemTexts(result, Severity::Warning).size(), reference.findings[missing]);
    const NetworkStatistics statistics = ComputeStatistics(GeometryOf(result.model));
    EXPECT_EQ(statistics.nodeCount, reference.nodes);
    EXPECT_EQ(statistics.sectionCount, reference.sections);
    EXPECT_EQ(statistics.innerVertexCount, reference.vertices);
    EXPECT_EQ(statistics.componentCount, reference.components);
    EXPECT_EQ(result.model.polygons.size(), reference.polygons);
    EXPECT_EQ(result.model.labels.size(), reference.labels);
    EXPECT_EQ(CheckNetwork(GeometryOf(result.model)).counts, reference.findings);
}

INSTANTIATE_TEST_SUITE_P(Files, ReferenceNetworks, testing::ValuesIn(References()),
                         [](const testing::TestParamInfo<Reference>& reference) {
                             const std::string file = reference.param.file;
                             std::string name = file.substr(0, file.find('.'));
                             std::replace(name.begin(), name.end(), '-', '_');
                             return name;
                         });

TEST(SampleNetworks, AreReadAndHaveNoFindings) {
    for (const char* file : {"town-water.inp", "town-sewer.inp"}) {
        const InpResult result =
            ReadFile(std::filesystem::path(TESSALY_SOURCE_DIR) / "share/sample" / file);
        EXPECT_EQ(ProblemTexts(result, Severity::Error), std::vector<std::string>{}) << file;
        EXPECT_EQ(ProblemTexts(result, Severity::Warning), std::vector<std::string>{}) << file;
        const NetworkGeometry geometry = GeometryOf(result.model);
        EXPECT_EQ(geometry.SectionCount(), 400U) << file;
        EXPECT_EQ(ComputeStatistics(geometry).componentCount, 1U) << file;
        EXPECT_TRUE(CheckNetwork(geometry).findings.empty()) << file;
    }
}
