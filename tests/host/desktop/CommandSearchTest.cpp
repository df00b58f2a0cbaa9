#include "host/desktop/CommandSearch.h"

#include <gtest/gtest.h>

#include "platform/win/CodePage.h"

namespace Tessaly {
namespace {

const std::vector<CommandEntry> kCommands = {
    {L"NETWORK_CHECK", L"Lists what is wrong with networks", {}},
    {L"NETWORK_IMPORT", L"Brings in a network from a file", {}},
    {L"IMPORT", L"brings a file of another program into the drawing", {}},
    {L"OPEN", L"opens a drawing", {}},
    {L"SAVE", L"writes the drawing into its file", {}},
    {L"SAVEAS", L"writes the drawing into another file", {}},
    {L"Größe", L"Ändert die Größe", {}},
};

std::string Find(const wchar_t* query, const std::vector<CString>& recent = {}) {
    const CommandSearch search(kCommands);
    std::string names;
    for (const std::size_t place : search.Find(query, recent)) {
        names += WideToUtf8(kCommands[place].name.View()) + " ";
    }
    return names;
}

TEST(CommandSearch, FindsByAnyPartInAnyOrder) {
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"save", "SAVE SAVEAS "},
        {L"import network", "NETWORK_IMPORT "},
        {L"  NETWORK   import ", "NETWORK_IMPORT "},
        {L"network_import", "NETWORK_IMPORT "},
        {L"import", "IMPORT NETWORK_IMPORT "},
        {L"nwi", "NETWORK_IMPORT "},
        {L"wrong", "NETWORK_CHECK "},
        {L"writes another", "SAVEAS "},
        {L"größ", "Größe "},
        {L"änd", "Größe "},
        {L"xyz", ""},
        {L"save xyz", ""},
    };
    for (const auto& [query, expected] : cases) {
        EXPECT_EQ(Find(query), expected) << WideToUtf8(query);
    }
}

TEST(CommandSearch, RecentOnesComeFirstAmongEquals) {
    EXPECT_EQ(Find(L"").find("Größe IMPORT NETWORK_CHECK "), 0U);
    EXPECT_EQ(Find(L"", {L"save", L"gone", L"OPEN"}).find("SAVE OPEN Größe IMPORT "), 0U);
    EXPECT_EQ(Find(L"network", {L"NETWORK_IMPORT"}), "NETWORK_IMPORT NETWORK_CHECK ");
    EXPECT_EQ(Find(L"save", {L"SAVEAS"}), "SAVE SAVEAS ") << "the whole name ranks higher";
}

} // namespace
} // namespace Tessaly
