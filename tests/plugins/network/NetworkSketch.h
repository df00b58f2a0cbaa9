// Builds small networks for tests.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "plugins/common/NetworkGeometry.h"

/// A network that owns its arrays. Nodes are named N0, N1, ...; sections S0, S1, ...
class NetworkSketch : public Orvane::Network::INetworkNames {
public:
    using Point = Orvane::Network::Point;

    NetworkSketch() = default;
    NetworkSketch(std::initializer_list<Point> places) : nodes(places) {}

    NetworkSketch& Section(int start, int end, const std::vector<Point>& inner = {}) {
        starts.push_back(start);
        ends.push_back(end);
        vertices.insert(vertices.end(), inner.begin(), inner.end());
        offsets.push_back(static_cast<std::uint32_t>(vertices.size()));
        return *this;
    }
    /// A section with two new nodes.
    NetworkSketch& Line(const std::vector<Point>& points) {
        const int start = static_cast<int>(nodes.size());
        nodes.push_back(points.front());
        nodes.push_back(points.back());
        return Section(start, start + 1, {points.begin() + 1, points.end() - 1});
    }

    Orvane::Network::NetworkGeometry Geometry() const {
        Orvane::Network::NetworkGeometry geometry;
        geometry.nodes = nodes;
        geometry.startNodes = starts;
        geometry.endNodes = ends;
        geometry.vertexOffsets = offsets;
        geometry.vertices = vertices;
        return geometry;
    }

    std::string NodeName(std::size_t node) const override { return "N" + std::to_string(node); }
    std::string SectionName(std::size_t section) const override {
        return "S" + std::to_string(section);
    }
    std::string MissingStart(std::size_t section) const override {
        return starts[section] == Orvane::Network::kMissingNode ? "X" : "";
    }
    std::string MissingEnd(std::size_t section) const override {
        return ends[section] == Orvane::Network::kMissingNode ? "Y" : "";
    }

    std::vector<Point> nodes;
    std::vector<std::int32_t> starts;
    std::vector<std::int32_t> ends;
    std::vector<std::uint32_t> offsets{0};
    std::vector<Point> vertices;
};

/// Numbers between 0 and a limit, the same in every run.
class Dice {
public:
    explicit Dice(std::uint64_t seed) : m_state(seed * 77 + 1) {}
    int Throw(int limit) {
        m_state = m_state * 6364136223846793005 + 1442695040888963407;
        return static_cast<int>((m_state >> 33) % static_cast<std::uint64_t>(limit));
    }

private:
    std::uint64_t m_state;
};
