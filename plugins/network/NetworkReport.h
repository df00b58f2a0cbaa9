// Figures and findings as lines that people read.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "plugins/network/NetworkCheck.h"
#include "plugins/network/NetworkStatistics.h"

namespace Orvane::Network {

/// Lines without line ends, UTF-8.
std::vector<std::string> StatisticsLines(const NetworkStatistics& statistics);

/// The same for polygons, of which all corners are given.
std::vector<std::string> PolygonLines(std::size_t count, std::span<const Point> points);

/// "zero-length sections: 18, parallel sections: 2", or that there is nothing to report.
std::string CheckSummary(const CheckResult& result);

} // namespace Orvane::Network
