#include "workspacecore/resources/Icons.h"

#include <algorithm>
#include <gtest/gtest.h>

#include "platform/mfc/IIconSource.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"

namespace Orvane::Workspace {
namespace {

TEST(ModuleIcons, AreKnownByTheirNumbers) {
    const TestHost host;
    const Rows<UINT, CSize, CSize> cases = {
        {108, {16, 16}, {16, 16}}, {109, {32, 32}, {32, 32}}, {111, {13, 11}, {13, 11}},
        {112, {13, 11}, {13, 11}}, {113, {13, 11}, {13, 11}}, {114, {13, 11}, {13, 11}},
        {110, {16, 16}, {}},       {0, {16, 16}, {}},
    };
    std::vector<HICON> seen;
    for (const auto& [number, size, shown] : cases) {
        const CImage image = ModuleImage(number, size);
        EXPECT_EQ(image.Size(), shown) << number;
        const HICON icon = ModuleIcon(number);
        EXPECT_EQ(icon != nullptr, !image.IsNull()) << number;
        EXPECT_TRUE(!icon || std::find(seen.begin(), seen.end(), icon) == seen.end())
            << number << " looks like another";
        seen.push_back(icon);
    }
}

} // namespace
} // namespace Orvane::Workspace
