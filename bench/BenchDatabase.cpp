// Cost of a drawing's database compared with plain structures in a vector: bytes per entity and the
// time to fill it, to iterate over it and to record a bulk creation for undo. Prints ratios, which
// are comparable between machines.
//
//     BenchDatabase [entities]

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>

#include "platform/arx/DbDatabase.h"
#include "platform/arx/DbUndo.h"

namespace {

using Clock = std::chrono::steady_clock;

std::size_t UsedBytes() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

struct Cost {
    double milliseconds = 0;
    double bytes = 0;
};

template <class Run>
Cost Measure(Run run) {
    const std::size_t before = UsedBytes();
    const auto start = Clock::now();
    run();
    const std::chrono::duration<double, std::milli> time = Clock::now() - start;
    return {time.count(), static_cast<double>(UsedBytes()) - static_cast<double>(before)};
}

constexpr std::size_t kAttributes = 5;

std::array<AcDbNameId, kAttributes> Names() {
    return {AcDbIntern("name"), AcDbIntern("diameter"), AcDbIntern("material"),
            AcDbIntern("invert_from"), AcDbIntern("invert_to")};
}

/// The smallest structure for the same data: no ids, names or owner.
struct PlainSection {
    std::array<AcGePoint3d, 2> points;
    std::array<char, 8> name;
    std::int64_t diameter;
    std::array<char, 8> material;
    double invertFrom;
    double invertTo;
};

std::array<AcGePoint3d, 2> PointsOf(std::size_t i) {
    const auto x = static_cast<double>(i);
    return {AcGePoint3d{x, x, 1}, AcGePoint3d{x + 1, x, 2}};
}

std::unique_ptr<AcDbPolyline> MakeSection(std::size_t i,
                                          const std::array<AcDbNameId, kAttributes>& names) {
    auto line = std::make_unique<AcDbPolyline>(PointsOf(i));
    std::array<char, 16> name{};
    std::snprintf(name.data(), name.size(), "S%06zu", i % 1000000);
    line->reserveAttributes(kAttributes);
    line->setAttribute(names[0], name.data());
    line->setAttribute(names[1], 300);
    line->setAttribute(names[2], "concrete");
    line->setAttribute(names[3], 101.5);
    line->setAttribute(names[4], 101.25);
    return line;
}

Cost FillPlain(std::vector<PlainSection>& sections, std::size_t count) {
    return Measure([&] {
        sections.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            PlainSection section{PointsOf(i), {}, 300, {}, 101.5, 101.25};
            std::snprintf(section.name.data(), section.name.size(), "S%06zu", i % 1000000);
            std::copy_n("concrete", section.material.size(), section.material.data());
            sections.push_back(section);
        }
    });
}

Cost Load(AcDbDatabase& database, std::size_t count) {
    const auto names = Names();
    return Measure([&] {
        database.beginLoading(static_cast<std::uint32_t>(count + 3));
        database.load(AcDbObjectId(1), std::make_unique<AcDbLayerTableRecord>(L"0"));
        database.load(AcDbObjectId(2), std::make_unique<AcDbBlockTableRecord>(kModelSpace));
        for (std::size_t i = 0; i < count; ++i) {
            auto line = MakeSection(i, names);
            line->setLayer(AcDbObjectId(1));
            database.load(AcDbObjectId(static_cast<std::uint32_t>(i + 3)), std::move(line),
                          AcDbObjectId(2));
        }
        database.endLoading();
    });
}

/// Sums up a value of every entity, so the loop cannot be optimised away.
double TimeVisit(const AcDbDatabase& database, double& sum) {
    return Measure([&] {
               database.forEachEntity(
                   [&](const AcDbEntity& entity) { sum += entity.extents().minX; });
           })
        .milliseconds;
}

double TimeVisit(const std::vector<PlainSection>& sections, double& sum) {
    return Measure([&] {
               for (const PlainSection& section : sections) {
                   sum += std::min(section.points[0].x, section.points[1].x);
               }
           })
        .milliseconds;
}

/// Memory used by the history of a bulk creation: the difference with and without recording.
double HistoryBytes(std::size_t count) {
    const auto added = [count](bool record) {
        AcDbDatabase database;
        database.disableUndoRecording(!record);
        return Measure([&] {
                   database.undo().beginGroup(L"bulk");
                   for (std::size_t i = 0; i < count; ++i) {
                       database.appendEntity(std::make_unique<AcDbPoint>());
                   }
                   database.undo().endGroup();
               })
            .bytes;
    };
    return added(true) - added(false);
}

} // namespace

int main(int argc, char** argv) {
    const std::size_t count = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 200'000;
    const auto number = static_cast<double>(count);
    double sum = 0;

    std::vector<PlainSection> plain;
    const Cost plainFill = FillPlain(plain, count);
    AcDbDatabase database;
    const Cost fill = Load(database, count);
    std::printf("%zu sections of two points and five attributes\n", count);
    std::printf("bytes per entity  %7.1f, %5.1f times the plain %.1f\n", fill.bytes / number,
                fill.bytes / plainFill.bytes, plainFill.bytes / number);
    std::printf("load              %7.1f ms, %5.1f times the plain %.1f ms\n", fill.milliseconds,
                fill.milliseconds / plainFill.milliseconds, plainFill.milliseconds);
    const double plainVisit = TimeVisit(plain, sum);
    const double visit = TimeVisit(database, sum);
    std::printf("extents of all    %7.1f ms, %5.1f times the plain %.1f ms\n", visit,
                visit / plainVisit, plainVisit);
    std::printf("undo history of their creation: %.0f bytes\n", HistoryBytes(count));
    return sum == 0 ? 1 : 0;
}
