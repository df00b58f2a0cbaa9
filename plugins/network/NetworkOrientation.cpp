#include "plugins/network/NetworkOrientation.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace Orvane::Network {

namespace {

/// A sum without rounding error, kept as non-overlapping parts, the greatest last.
class ExactSum {
public:
    void AddProduct(double a, double b) {
        const double product = a * b;
        Add(std::fma(a, b, -product)); // the rounding error of the product
        Add(product);
    }

    /// The greatest part determines the sign.
    int Sign() const {
        for (std::size_t i = m_count; i-- > 0;) {
            if (m_parts[i] != 0) {
                return m_parts[i] > 0 ? 1 : -1;
            }
        }
        return 0;
    }

private:
    /// Carries a number up through the parts; each part keeps the rounding error.
    void Add(double carried) {
        for (std::size_t i = 0; i < m_count; ++i) {
            const double part = m_parts[i];
            const double sum = carried + part;
            const double ofPart = sum - carried;
            m_parts[i] = (carried - (sum - ofPart)) + (part - ofPart);
            carried = sum;
        }
        m_parts[m_count++] = carried;
    }

    std::array<double, 12> m_parts{};
    std::size_t m_count = 0;
};

/// Multiplies the determinant out, because its differences would be rounded.
int ExactOrientation(const Point& a, const Point& b, const Point& c) {
    ExactSum sum;
    sum.AddProduct(a.x, b.y);
    sum.AddProduct(-a.y, b.x);
    sum.AddProduct(b.x, c.y);
    sum.AddProduct(-b.y, c.x);
    sum.AddProduct(c.x, a.y);
    sum.AddProduct(-c.y, a.x);
    return sum.Sign();
}

} // namespace

int Orientation(const Point& a, const Point& b, const Point& c) {
    const double left = (a.x - c.x) * (b.y - c.y);
    const double right = (a.y - c.y) * (b.x - c.x);
    const double determinant = left - right;
    // An upper bound of the rounding error of the five operations above.
    constexpr double kRelativeError = 2 * std::numeric_limits<double>::epsilon();
    if (std::abs(determinant) > kRelativeError * (std::abs(left) + std::abs(right))) {
        return determinant > 0 ? 1 : -1;
    }
    return ExactOrientation(a, b, c);
}

} // namespace Orvane::Network
