#include "plugins/network/NetworkCrossings.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "plugins/network/NetworkOrientation.h"
#include "siblings/giscoreadds/SpatialIndex.h"

namespace Orvane::Network {

namespace {

using Selection::Box;
using Selection::BoxEntry;
using Selection::CSpatialIndex;

constexpr std::uint32_t kNobody = 0xFFFFFFFF;

/// The drawn lines of all sections in one array, without consecutive duplicate points. A segment is
/// identified by the number of its first point.
struct DrawnLines {
    std::vector<Point> points;
    std::vector<std::uint32_t> owners; ///< the section of each point

    bool IsSegment(std::size_t point) const {
        return point + 1 < points.size() && owners[point] == owners[point + 1];
    }
    /// Whether the line continues on both sides of a point.
    bool IsInner(std::size_t point) const {
        return point > 0 && owners[point - 1] == owners[point] && IsSegment(point);
    }
};

DrawnLines DrawLines(const NetworkGeometry& geometry) {
    DrawnLines lines;
    const std::size_t expected = geometry.vertices.size() + 2 * geometry.SectionCount();
    lines.points.reserve(expected);
    lines.owners.reserve(expected);
    for (std::size_t section = 0; section < geometry.SectionCount(); ++section) {
        const auto owner = static_cast<std::uint32_t>(section);
        ForEachLinePoint(geometry, section, [&](const Point& point) {
            if (lines.owners.empty() || lines.owners.back() != owner ||
                lines.points.back() != point) {
                lines.points.push_back(point);
                lines.owners.push_back(owner);
            }
        });
    }
    return lines;
}

Box BoxOf(const Point& a, const Point& b) {
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

/// Splits long diagonal segments into pieces for the search, since the bounding box of such a
/// segment would intersect half of the network.
class SegmentPieces {
public:
    explicit SegmentPieces(const DrawnLines& lines) : m_lines(lines) { ChooseSize(); }

    /// Calls take(box) for boxes that together cover the segment.
    template <class Take>
    void ForEachBox(std::size_t segment, Take&& take) const {
        const Point& a = m_lines.points[segment];
        const Point& b = m_lines.points[segment + 1];
        const std::size_t count = CountOf(segment);
        if (count == 1) {
            take(BoxOf(a, b));
            return;
        }
        for (std::size_t i = 0; i < count; ++i) {
            const Box piece = BoxOf(Between(a, b, i, count), Between(a, b, i + 1, count));
            take(Padded(piece, BoxOf(a, b)));
        }
    }

    std::size_t Total() const {
        std::size_t total = 0;
        for (std::size_t i = 0; i < m_lines.points.size(); ++i) {
            total += m_lines.IsSegment(i) ? CountOf(i) : 0;
        }
        return total;
    }

private:
    /// Limit of pieces per segment; more would cost more in the tree than they save.
    static constexpr double kMostPieces = 256;

    static Point Between(const Point& a, const Point& b, std::size_t i, std::size_t count) {
        const double part = static_cast<double>(i) / static_cast<double>(count);
        return {a.x + (b.x - a.x) * part, a.y + (b.y - a.y) * part};
    }

    /// Intermediate points are rounded and may lie slightly off the segment; the error depends on
    /// the segment's coordinates, not on the piece's.
    static Box Padded(const Box& box, const Box& segment) {
        constexpr double kPart = 8 * std::numeric_limits<double>::epsilon();
        const double x = kPart * std::max(std::abs(segment.minX), std::abs(segment.maxX));
        const double y = kPart * std::max(std::abs(segment.minY), std::abs(segment.maxY));
        return {box.minX - x, box.minY - y, box.maxX + x, box.maxY + y};
    }

    /// Starts with pieces four times as long as segments would be if they filled the network's
    /// extents evenly, and doubles that until there are at most two pieces per segment.
    void ChooseSize() {
        std::size_t segments = 0;
        Box all{0, 0, 0, 0};
        for (std::size_t i = 0; i < m_lines.points.size(); ++i) {
            const Point& point = m_lines.points[i];
            all = segments == 0 ? BoxOf(point, point)
                                : Box{std::min(all.minX, point.x), std::min(all.minY, point.y),
                                      std::max(all.maxX, point.x), std::max(all.maxY, point.y)};
            ++segments;
        }
        if (segments == 0) {
            return;
        }
        const double perSide = std::sqrt(static_cast<double>(segments));
        m_size = 4 * std::max(all.maxX - all.minX, all.maxY - all.minY) / perSide;
        while (m_size > 0 && Total() > 2 * segments) {
            m_size *= 2;
        }
    }

    std::size_t CountOf(std::size_t segment) const {
        const Point& a = m_lines.points[segment];
        const Point& b = m_lines.points[segment + 1];
        const double aslant = std::min(std::abs(a.x - b.x), std::abs(a.y - b.y));
        if (!(m_size > 0) || aslant <= m_size) {
            return 1;
        }
        return static_cast<std::size_t>(std::min(std::ceil(aslant / m_size), kMostPieces));
    }

    const DrawnLines& m_lines;
    double m_size = 0; ///< drawing units; 0 leaves all segments whole
};

/// A point of a line with its neighbours, both different from it.
struct Passage {
    Point before;
    Point at;
    Point behind;
};

/// How a line passes a point on one of its segments; nothing if it ends there.
std::optional<Passage> PassageAt(const DrawnLines& lines, std::size_t segment, const Point& at) {
    std::size_t before = segment;
    std::size_t behind = segment + 1;
    if (lines.points[segment] == at) {
        if (!lines.IsInner(segment)) {
            return std::nullopt;
        }
        --before;
    } else if (lines.points[segment + 1] == at) {
        if (!lines.IsInner(segment + 1)) {
            return std::nullopt;
        }
        ++behind;
    }
    return Passage{lines.points[before], at, lines.points[behind]};
}

/// 1 for a point to the left of a line, -1 to its right, 0 on the line.
int SideOf(const Passage& line, const Point& point) {
    const int turn = Orientation(line.before, line.at, line.behind);
    const int first = Orientation(line.before, line.at, point);
    const int second = Orientation(line.at, line.behind, point);
    if (turn > 0) {
        return first > 0 && second > 0 ? 1 : (first < 0 || second < 0 ? -1 : 0);
    }
    if (turn < 0) {
        return first < 0 && second < 0 ? -1 : (first > 0 || second > 0 ? 1 : 0);
    }
    return first;
}

/// A line that doubles back on itself has no sides.
bool TurnsBack(const Passage& line) {
    if (Orientation(line.before, line.at, line.behind) != 0) {
        return false;
    }
    const auto sameWay = [](double at, double a, double b) {
        return (a > at && b > at) || (a < at && b < at);
    };
    return sameWay(line.at.x, line.before.x, line.behind.x) ||
           sameWay(line.at.y, line.before.y, line.behind.y);
}

bool PassThrough(const Passage& a, const Passage& b) {
    return !TurnsBack(a) && !TurnsBack(b) && SideOf(a, b.before) * SideOf(a, b.behind) < 0;
}

bool IsOn(const Box& box, const Point& point) {
    return box.minX <= point.x && point.x <= box.maxX && box.minY <= point.y && point.y <= box.maxY;
}

/// The crossing point of two segments known to cross. Rounded, but never outside either segment.
Point CrossingPlace(const Point& a, const Point& b, const Point& c, const Point& d) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double above = (c.x - a.x) * (d.y - c.y) - (c.y - a.y) * (d.x - c.x);
    const double below = dx * (d.y - c.y) - dy * (d.x - c.x);
    const double part = below == 0 ? 0.5 : std::clamp(above / below, 0.0, 1.0);
    return {a.x + part * dx, a.y + part * dy};
}

/// Where the lines cross inside or at the ends of two of their segments.
std::optional<Point> CrossingOf(const DrawnLines& lines, std::size_t s, std::size_t t) {
    const Point& a = lines.points[s];
    const Point& b = lines.points[s + 1];
    const Point& c = lines.points[t];
    const Point& d = lines.points[t + 1];
    const int ofC = Orientation(a, b, c);
    const int ofD = Orientation(a, b, d);
    if (ofC * ofD > 0) {
        return std::nullopt;
    }
    const int ofA = Orientation(c, d, a);
    const int ofB = Orientation(c, d, b);
    if (ofC * ofD < 0 && ofA * ofB < 0) {
        return CrossingPlace(a, b, c, d);
    }
    const auto crossesAt = [&](const Point& point) {
        const auto first = PassageAt(lines, s, point);
        const auto second = first ? PassageAt(lines, t, point) : std::nullopt;
        return second && PassThrough(*first, *second);
    };
    const std::pair<const Point&, bool> touches[] = {{a, ofA == 0 && IsOn(BoxOf(c, d), a)},
                                                     {b, ofB == 0 && IsOn(BoxOf(c, d), b)},
                                                     {c, ofC == 0 && IsOn(BoxOf(a, b), c)},
                                                     {d, ofD == 0 && IsOn(BoxOf(a, b), d)}};
    for (const auto& [point, isTouched] : touches) {
        if (isTouched && crossesAt(point)) {
            return point;
        }
    }
    return std::nullopt;
}

CSpatialIndex IndexSegments(const DrawnLines& lines, const SegmentPieces& pieces) {
    std::vector<BoxEntry> entries;
    entries.reserve(pieces.Total());
    for (std::size_t i = 0; i < lines.points.size(); ++i) {
        if (lines.IsSegment(i)) {
            pieces.ForEachBox(i, [&](const Box& box) {
                entries.push_back({box, static_cast<std::uint32_t>(i)});
            });
        }
    }
    return CSpatialIndex(entries);
}

/// Visits the sections in order and compares each with the earlier ones.
class CrossingSearch {
public:
    explicit CrossingSearch(const NetworkGeometry& geometry)
        : m_lines(DrawLines(geometry)), m_pieces(m_lines),
          m_index(IndexSegments(m_lines, m_pieces)), m_crossedBy(geometry.SectionCount(), kNobody) {
    }

    void Run(const TakeCrossing& take) {
        for (std::size_t i = 0; i < m_lines.points.size(); ++i) {
            if (m_lines.IsSegment(i)) {
                SearchSegment(i);
            } else {
                Report(m_lines.owners[i], take); // the last point of its line
            }
        }
    }

private:
    void SearchSegment(std::size_t segment) {
        const std::uint32_t section = m_lines.owners[segment];
        m_pieces.ForEachBox(segment, [&](const Box& box) {
            m_index.Query(box, [&](std::uint32_t other) {
                const std::uint32_t earlier = m_lines.owners[other];
                if (earlier >= section || m_crossedBy[earlier] == section) {
                    return;
                }
                if (const auto place = CrossingOf(m_lines, segment, other)) {
                    m_crossedBy[earlier] = section;
                    m_found.emplace_back(earlier, *place);
                }
            });
        });
    }

    void Report(std::uint32_t section, const TakeCrossing& take) {
        std::ranges::sort(m_found, {}, &Found::first);
        for (const auto& [earlier, place] : m_found) {
            take(section, earlier, place);
        }
        m_found.clear();
    }

    using Found = std::pair<std::uint32_t, Point>;

    DrawnLines m_lines;
    SegmentPieces m_pieces;
    CSpatialIndex m_index;
    std::vector<std::uint32_t> m_crossedBy; ///< by section: the last section found to cross it
    std::vector<Found> m_found;             ///< for the current section
};

} // namespace

void ForEachCrossing(const NetworkGeometry& geometry, const TakeCrossing& take) {
    CrossingSearch(geometry).Run(take);
}

} // namespace Orvane::Network
