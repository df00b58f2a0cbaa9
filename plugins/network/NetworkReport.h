// Statistics and findings as lines of text.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "plugins/network/NetworkCheck.h"
#include "plugins/network/NetworkStatistics.h"

namespace Orvane::Network {

/// Lines without line ends, UTF-8.
std::vector<std::string> StatisticsLines(const NetworkStatistics& statistics);

/// The same for polygons; `points` are all their vertices.
std::vector<std::string> PolygonLines(std::size_t count, std::span<const Point> points);

/// "zero-length sections: 18, parallel sections: 2", or that there are no findings.
std::string CheckSummary(const CheckResult& result);

} // namespace Orvane::Network
