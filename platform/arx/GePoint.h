// Positions and boxes in drawing units.
#pragma once

#include <algorithm>
#include <limits>

struct AcGePoint3d {
    double x = 0;
    double y = 0;
    double z = std::numeric_limits<double>::quiet_NaN(); ///< NaN: unknown height
};

struct AcGeExtents2d {
    double minX = std::numeric_limits<double>::infinity();
    double minY = std::numeric_limits<double>::infinity();
    double maxX = -std::numeric_limits<double>::infinity();
    double maxY = -std::numeric_limits<double>::infinity();

    bool isEmpty() const { return minX > maxX; }
    void add(const AcGePoint3d& point) {
        minX = std::min(minX, point.x);
        minY = std::min(minY, point.y);
        maxX = std::max(maxX, point.x);
        maxY = std::max(maxY, point.y);
    }
};
