// The drawing view compared with QGraphicsView showing the same entities: first picture, frames of
// the whole drawing and of a part, picking, memory. Prints ratios, which are comparable between
// machines.
//
//     BenchView [sections] [sections of the peer, if fewer]

#include <QApplication>
#include <QGraphicsLineItem>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QScrollBar>
#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <memory>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "host/desktop/view/DrawingView.h"
#include "platform/arx/DbDatabase.h"

namespace {

using Clock = std::chrono::steady_clock;
using Tessaly::DrawingView;

constexpr QSize kWindow(1600, 1000);
constexpr double kSpacing = 40;
// Like coordinates of a national grid.
constexpr double kEast = 2600000;
constexpr double kNorth = 1200000;
constexpr int kFrames = 41;
constexpr int kPeerFrames = 5;
constexpr int kPicks = 1000;

double UsedBytes() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd);
}

template <class Run>
double Milliseconds(Run run) {
    const auto start = Clock::now();
    run();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

/// Streets of a town: a grid with displaced crossings and a section along each side.
void FillTown(AcDbDatabase& database, std::size_t sections) {
    const auto side = static_cast<std::size_t>(std::sqrt(static_cast<double>(sections) / 2)) + 1;
    std::mt19937 random(7);
    std::uniform_real_distribution<double> shake(-12, 12);
    std::vector<AcGePoint3d> crossings;
    for (std::size_t i = 0; i < side * side; ++i) {
        crossings.push_back({kEast + static_cast<double>(i % side) * kSpacing + shake(random),
                             kNorth + static_cast<double>(i / side) * kSpacing + shake(random)});
    }
    database.beginLoading(static_cast<std::uint32_t>(sections + 8));
    const AcDbObjectId layers[] = {AcDbObjectId(1), AcDbObjectId(2), AcDbObjectId(3)};
    const wchar_t* const names[] = {L"0", L"WATER", L"SEWER"};
    for (int i = 0; i < 3; ++i) {
        auto layer = std::make_unique<AcDbLayerTableRecord>(names[i]);
        layer->setColorIndex(i * 2 + 3);
        database.load(layers[i], std::move(layer));
    }
    database.load(AcDbObjectId(4), std::make_unique<AcDbBlockTableRecord>(kModelSpace));
    std::uint32_t id = 5;
    const auto add = [&](std::size_t from, std::size_t to) {
        if (id < sections + 5) {
            const AcGePoint3d ends[] = {crossings[from], crossings[to]};
            auto line = std::make_unique<AcDbPolyline>(ends);
            line->setLayer(layers[id % 3]);
            database.load(AcDbObjectId(id++), std::move(line), AcDbObjectId(4));
        }
    };
    for (std::size_t i = 0; i + side < crossings.size(); ++i) {
        if (i % side + 1 < side) {
            add(i, i + 1);
        }
        add(i, i + side);
    }
    database.endLoading();
}

/// The whole drawing; some ten thousand visible sections of a million; some hundred.
constexpr std::array<double, 3> kMagnified = {1, 8, 60};

struct Results {
    double first = 0; ///< ms from the database in memory to the first picture
    /// ms per frame moved by some pixels, and per slightly zoomed frame
    std::array<double, kMagnified.size()> moved{};
    std::array<double, kMagnified.size()> zoomed{};
    double pick = 0;  ///< ms
    double bytes = 0; ///< without the pixels that every window has
};

/// Memory of an empty window.
double BytesOfWindow() {
    const double before = UsedBytes();
    QWidget window;
    window.resize(kWindow);
    window.show();
    QApplication::processEvents();
    return UsedBytes() - before;
}

void NameWhatIsInSight(AcDbDatabase& database, const DrawingView& view) {
    for (const AcDbObjectId id :
         Tessaly::PickInBox(view.Scene(), view.Transform().Visible(), Tessaly::BoxPick::Any)) {
        AcDbEntity* pEntity = nullptr;
        if (acdbOpenObject(pEntity, id, AcDb::kForWrite, false, &database) == Acad::eOk) {
            const std::string name = "S" + std::to_string(id.number());
            pEntity->setAttribute(AcDbIntern("NAME"), std::string_view(name));
            pEntity->close();
        }
    }
}

/// Until everything is drawn; incomplete frames do not count.
double TimeWholeFrame(DrawingView& view) {
    return Milliseconds([&] {
        view.repaint();
        while (!view.IsPictureWhole()) {
            view.repaint();
        }
    });
}

double MedianOfMoves(DrawingView& view) {
    std::vector<double> times;
    for (int i = 0; i < kFrames; ++i) {
        view.PanBy(i % 2 ? 0.008 : -0.008, i % 2 ? -0.008 : 0.008);
        times.push_back(TimeWholeFrame(view));
    }
    return Median(times);
}

double MedianOfZooms(DrawingView& view) {
    std::vector<double> times;
    for (int i = 0; i < kFrames; ++i) {
        view.ZoomBy(i % 2 ? 1.05 : 1 / 1.05);
        times.push_back(TimeWholeFrame(view));
    }
    return Median(times);
}

std::vector<Tessaly::PixelPoint> PickPlaces() {
    std::mt19937 random(11);
    std::uniform_real_distribution<double> part(0, 1);
    std::vector<Tessaly::PixelPoint> places;
    for (int i = 0; i < kPicks; ++i) {
        places.push_back({part(random) * kWindow.width(), part(random) * kWindow.height()});
    }
    return places;
}

Results MeasureView(AcDbDatabase& database) {
    Results results;
    const double window = BytesOfWindow();
    const double before = UsedBytes();
    DrawingView view;
    view.resize(kWindow);
    view.show();
    QApplication::processEvents();
    results.first = Milliseconds([&] {
        view.SetDatabase(&database);
        TimeWholeFrame(view);
    });
    results.bytes = UsedBytes() - before - window;
    std::printf("  scene alone: %.1f bytes per section\n",
                static_cast<double>(view.Scene().Bytes()) /
                    static_cast<double>(database.entityCount()));
    std::size_t hits = 0;
    const auto pick = [&] {
        for (const auto& place : PickPlaces()) {
            hits += !view.EntityAt(QPointF(place.x, place.y)).isNull();
        }
    };
    results.pick = Milliseconds(pick) / kPicks;
    double magnified = 1;
    for (std::size_t i = 0; i < kMagnified.size(); ++i) {
        view.ZoomBy(kMagnified[i] / std::exchange(magnified, kMagnified[i]));
        TimeWholeFrame(view);
        results.moved[i] = MedianOfMoves(view);
        results.zoomed[i] = MedianOfZooms(view);
    }
    view.ZoomBy(1.6); // few enough for names
    NameWhatIsInSight(database, view);
    TimeWholeFrame(view);
    std::printf("  zoomed frame with names: %.3f ms\n", MedianOfZooms(view));
    std::printf("  picks that hit: %zu of %d\n", hits, kPicks);
    return results;
}

double MedianOfMoves(QGraphicsView& view) {
    std::vector<double> times;
    for (int i = 0; i < kPeerFrames; ++i) {
        times.push_back(Milliseconds([&] {
            const int step = i % 2 ? 8 : -8;
            view.horizontalScrollBar()->setValue(view.horizontalScrollBar()->value() + step);
            view.verticalScrollBar()->setValue(view.verticalScrollBar()->value() + step);
            QApplication::processEvents();
        }));
    }
    return Median(times);
}

double MedianOfZooms(QGraphicsView& view) {
    std::vector<double> times;
    for (int i = 0; i < kPeerFrames; ++i) {
        times.push_back(Milliseconds([&] {
            const double factor = i % 2 ? 1.05 : 1 / 1.05;
            view.scale(factor, factor);
            view.viewport()->repaint();
        }));
    }
    return Median(times);
}

Results MeasurePeer(const AcDbDatabase& database) {
    Results results;
    const double window = BytesOfWindow();
    const double before = UsedBytes();
    QGraphicsScene scene;
    QGraphicsView view;
    view.resize(kWindow);
    view.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view.show();
    QApplication::processEvents();
    results.first = Milliseconds([&] {
        database.forEachEntity([&](const AcDbEntity& entity) {
            const auto vertices = static_cast<const AcDbPolyline&>(entity).vertices();
            auto* const pItem =
                new QGraphicsLineItem(vertices[0].x, -vertices[0].y, vertices[1].x, -vertices[1].y);
            pItem->setPen(QPen(Qt::green, 0));
            scene.addItem(pItem);
        });
        const QRectF box = scene.itemsBoundingRect();
        scene.setSceneRect(box.adjusted(-box.width(), -box.height(), box.width(), box.height()));
        view.setScene(&scene);
        view.fitInView(box, Qt::KeepAspectRatio);
        view.viewport()->repaint();
    });
    results.bytes = UsedBytes() - before - window;
    QApplication::processEvents();
    std::vector<Tessaly::PixelPoint> places = PickPlaces();
    places.resize(20);
    const auto pick = [&] {
        for (const auto& place : places) {
            view.items(QRect(static_cast<int>(place.x) - 5, static_cast<int>(place.y) - 5, 11, 11));
        }
    };
    results.pick = Milliseconds(pick) / static_cast<double>(places.size());
    double magnified = 1;
    for (std::size_t i = 0; i < kMagnified.size(); ++i) {
        const double factor = kMagnified[i] / std::exchange(magnified, kMagnified[i]);
        view.scale(factor, factor);
        view.viewport()->repaint();
        results.moved[i] = MedianOfMoves(view);
        results.zoomed[i] = MedianOfZooms(view);
    }
    return results;
}

void Print(const char* what, double ours, double peer, const char* unit) {
    std::printf("  %-34s %10.3f %12.3f  %-6s %8.1f\n", what, ours, peer, unit,
                ours > 0 ? peer / ours : 0);
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const std::size_t sections =
        argc > 1 ? static_cast<std::size_t>(std::max(1, std::atoi(argv[1]))) : 1000000;
    const std::size_t peerSections =
        argc > 2 ? static_cast<std::size_t>(std::max(1, std::atoi(argv[2]))) : sections;
    Results ours;
    Results peer;
    {
        AcDbDatabase database;
        FillTown(database, sections);
        std::printf("%zu sections, %d x %d pixels\n", database.entityCount(), kWindow.width(),
                    kWindow.height());
        ours = MeasureView(database);
        ours.bytes /= static_cast<double>(database.entityCount());
    }
    AcDbDatabase database;
    FillTown(database, peerSections);
    std::printf("  peer: QGraphicsView with %zu sections\n", database.entityCount());
    if (peerSections != sections) {
        std::printf("  the drawings differ: the ratios are meaningless\n");
    }
    peer = MeasurePeer(database);
    peer.bytes /= static_cast<double>(database.entityCount());
    std::printf("  %-34s %10s %12s  %-6s %8s\n", "", "view", "peer", "", "ratio");
    Print("first picture", ours.first, peer.first, "ms");
    for (std::size_t i = 0; i < kMagnified.size(); ++i) {
        const std::string what = "frame, magnified by " + std::to_string(int(kMagnified[i]));
        Print((what + ", moved").c_str(), ours.moved[i], peer.moved[i], "ms");
        Print((what + ", zoomed").c_str(), ours.zoomed[i], peer.zoomed[i], "ms");
    }
    Print("pick", ours.pick, peer.pick, "ms");
    Print("memory of the view per section", ours.bytes, peer.bytes, "bytes");
    return 0;
}
