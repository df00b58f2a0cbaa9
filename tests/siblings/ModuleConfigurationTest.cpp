#include "siblings/giscore/configuration/ModuleConfiguration.h"

#include <gtest/gtest.h>
#include <map>

#include "siblings/giscore/icons/Icon.h"
#include "siblings/giscore/notification/GisEvents.h"
#include "siblings/giscore/topology/TopologyConfiguration.h"
#include "tests/support/TestHost.h"

using namespace Orvane;

namespace {

CModuleConfiguration& Configuration() {
    return *CModuleConfiguration::Instance();
}

/// The text between `begin` and `end`, searched from `at`, which is moved past it; empty if there
/// is no more.
std::string Between(const std::string& text, std::size_t& at, const std::string& begin,
                    const std::string& end) {
    const std::size_t from = text.find(begin, at);
    if (from == std::string::npos) {
        return {};
    }
    at = text.find(end, from + begin.size());
    return text.substr(from + begin.size(), at - from - begin.size());
}

/// Texts of a message file by id.
std::map<int, std::string> Messages(const std::string& language) {
    std::ifstream file(TESSALY_SOURCE_DIR "/share/messages/tessaly_" + language + ".ts");
    const std::string text(std::istreambuf_iterator<char>(file), {});
    std::map<int, std::string> messages;
    std::size_t at = 0;
    for (std::string id; !(id = Between(text, at, "<message id=\"", "\"")).empty();) {
        messages[std::stoi(id)] = Between(text, at, "<translation>", "</translation>");
    }
    return messages;
}

/// The conversion letters of all placeholders, in order.
std::string Placeholders(const std::string& text) {
    std::string all;
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] == '%') {
            all += text[i + 1];
        }
    }
    return all;
}

} // namespace

TEST(Messages, AreEnglishWithoutASetting) {
    const TestHost host;
    EXPECT_EQ(Configuration().GetMsg(900001).Str(), L"Network");
    EXPECT_EQ(Configuration().GetMsg(-5).Str(), L"#-5");
    EXPECT_EQ(Configuration().GetMsg(123456789).Str(), L"#123456789");
    EXPECT_TRUE(Configuration().GetProblems().empty());
}

TEST(Messages, FollowTheLanguage) {
    const TestHost host;
    host.Support().Write("Settings.ini", "[General]\nlanguage=de\n");
    EXPECT_EQ(Configuration().GetMsg(900244).Str(), L"Fernwärme");
    EXPECT_EQ(Configuration().GetMsg(0).Str(), L"DE");
    host.Support().Write("Settings.ini", "[General]\nlanguage=en\n");
    Configuration().ReloadGeneralSettings();
    EXPECT_EQ(Configuration().GetMsg(900244).Str(), L"District heating");
}

TEST(Messages, FallBackToEnglishOneByOne) {
    // An installation whose German file is empty: English texts under its name.
    const TestHost host;
    const TempFolder install;
    std::filesystem::create_directories(install / "share/messages");
    std::filesystem::copy(TESSALY_STAGE_DIR "/share/messages/tessaly_en.qm",
                          install / "share/messages/tessaly_en.qm");
    install.Write("share/messages/tessaly_de.qm", "");
    SetHostOption(kHostOptionInstall, install.Wide(""));
    host.Support().Write("Settings.ini", "[General]\nlanguage=de\n");
    EXPECT_EQ(Configuration().GetMsg(900244).Str(), L"District heating");
    ASSERT_EQ(Configuration().GetProblems().size(), 1U);
    EXPECT_NE(Configuration().GetProblems()[0].Find(L"tessaly_de.qm"), -1);
}

TEST(Messages, ALanguageThatIsNoNameIsNotLookedFor) {
    const TestHost host;
    host.Support().Write("Settings.ini", "[General]\nlanguage=../../etc\n");
    EXPECT_EQ(Configuration().GetMsg(0).Str(), L"EN");
    EXPECT_TRUE(Configuration().GetProblems().empty());
}

TEST(Messages, BothLanguagesHaveTheSameIdsAndPlaceholders) {
    const auto english = Messages("en");
    const auto german = Messages("de");
    EXPECT_GT(english.size(), 100U);
    EXPECT_EQ(english.size(), german.size());
    for (const auto& [id, text] : english) {
        ASSERT_TRUE(german.contains(id)) << id;
        EXPECT_FALSE(text.empty()) << id;
        EXPECT_FALSE(german.at(id).empty()) << id;
        EXPECT_EQ(Placeholders(german.at(id)), Placeholders(text)) << id;
    }
}

TEST(Paths, EndInASeparatorForEachSpellingOfTheKey) {
    const TestHost host;
    SetHostOption(kHostOptionInstall, L"/opt/x");
    for (const wchar_t* key : {L"install", L"INSTALL", L"Install"}) {
        EXPECT_EQ(Configuration().GetPath(key).Str(), L"/opt/x/");
    }
    EXPECT_EQ(Configuration().GetPath(L"support"), host.Support().Wide(""));
    EXPECT_EQ(Configuration().GetPath(L"trace").Str(), L"");
    EXPECT_EQ(Configuration().GetPath(L"").Str(), L"");
}

TEST(GeneralSettings, ANumberIsTakenWholeOrNotAtAll) {
    const TestHost host;
    host.Support().Write("Settings.ini",
                         "[General]\nA=12\nB=-3\nC=12x\nD=\nE=99999999999\nF= 7 \nG=0x10\n"
                         "[Other]\nH=1\n");
    const std::pair<const wchar_t*, std::optional<int>> cases[] = {
        {L"A", 12}, {L"a", 12}, {L"B", -3}, {L"C", {}}, {L"D", {}},
        {L"E", {}}, {L"F", 7},  {L"G", {}}, {L"H", {}}, {L"missing", {}},
    };
    for (const auto& [key, expected] : cases) {
        int value = 4711;
        EXPECT_EQ(Configuration().GetGSValueInt(key, value), expected.has_value() ? 1 : 0);
        EXPECT_EQ(value, expected.value_or(4711));
    }
}

TEST(GeneralSettings, AKnownNumberThatIsNoneIsAProblem) {
    const TestHost host;
    host.Support().Write("Settings.ini", "[General]\nlanguage=en\nAUTOSAVE_INTERVAL=often\n?\n");
    const std::vector<CString> problems = Configuration().GetProblems();
    ASSERT_EQ(problems.size(), 2U);
    EXPECT_NE(problems[0].Find(L"Settings.ini:4: "), -1);
    EXPECT_NE(problems[1].Find(L"Settings.ini:3: \"often\" is not a whole number"), -1);
}

TEST(GeneralSettings, AReloadTellsTheObserversOnceTheNewValuesAreThere) {
    struct Observer final : System::ISystemEvents {
        void OnAfterGeneralSettingsChanged() override {
            seen.push_back(Configuration().GetNodeIndexCoorPrecision());
        }
        std::vector<int> seen;
    };
    const TestHost host;
    EXPECT_EQ(Configuration().GetNodeIndexCoorPrecision(), 3);
    Observer observer;
    System::CGisEvents::Instance()->Register(&observer);
    for (const char* precision : {"5", "99", "-1", "x"}) {
        host.Support().Write("Settings.ini",
                             std::string("[General]\nNODE_INDEX_PRECISION=") + precision);
        Configuration().ReloadGeneralSettings();
    }
    System::CGisEvents::Instance()->Unregister(&observer);
    EXPECT_EQ(observer.seen, (std::vector<int>{5, 9, 0, 3}));
}

TEST(Icons, AreFoundByNameAndKeptOnceFound) {
    const TestHost host;
    const TempFolder install;
    std::filesystem::create_directories(install / "share/icons");
    SetHostOption(kHostOptionInstall, install.Wide(""));
    EXPECT_EQ(Configuration().GetIcon(L"IDI_NODE"), nullptr);
    install.Write("share/icons/IDI_NODE.svg", "<svg/>");
    install.Write("share/outside.svg", "<svg/>");
    const HICON icon = Configuration().GetIcon(L"IDI_NODE"); // a missing icon is looked for again
    ASSERT_NE(icon, nullptr);
    EXPECT_EQ(static_cast<CIcon*>(icon)->m_strPath, install.Wide("share/icons/IDI_NODE.svg"));
    EXPECT_EQ(Configuration().GetIcon(L"IDI_NODE"), icon);
    EXPECT_EQ(Configuration().GetIcon(L"../outside"), nullptr);
    EXPECT_EQ(Configuration().GetIcon(L"..\\outside"), nullptr);
    EXPECT_EQ(Configuration().GetIcon(L""), nullptr);
}

TEST(Topologies, EntityTypesBelongToTopologies) {
    const TestHost host;
    const std::pair<enmEntityType, enmTopologyType> belonging[] = {
        {EntityNode, TopologyLine},       {EntitySection, TopologyLine},
        {EntityPolygon, TopologyPolygon}, {EntityPolygonNode, TopologyPolygon},
        {EntityNode, TopologyPoint},      {EntityNode, TopologyScheme},
        {EntitySection, TopologyScheme},
    };
    int count = 0;
    for (const enmTopologyType topology :
         {TopologyNone, TopologyLine, TopologyPolygon, TopologyPoint, TopologyScheme}) {
        for (const enmEntityType entity :
             {EntityNode, EntitySection, EntityPolygon, EntityPolygonNode}) {
            count += Configuration().DoesETbelongTT(entity, topology);
        }
        EXPECT_TRUE(Configuration().DoesETbelongTT(EntityNone, topology)) << "belongs everywhere";
    }
    for (const auto& [entity, topology] : belonging) {
        EXPECT_TRUE(Configuration().DoesETbelongTT(entity, topology)) << entity << ' ' << topology;
    }
    EXPECT_EQ(count, static_cast<int>(std::size(belonging)));
    EXPECT_EQ(Configuration().GetTopology(TopologyNone), nullptr);
}

TEST(SupportFiles, TheDeliveredOnesAreWithoutFault) {
    const TestHost host;
    std::filesystem::copy(TESSALY_SOURCE_DIR "/share/support", host.Support() / "");
    for (const CString& problem : Configuration().GetProblems()) {
        ADD_FAILURE() << WideToUtf8(problem.View());
    }
    int interval = -1;
    EXPECT_EQ(Configuration().GetGSValueInt(L"AUTOSAVE_INTERVAL", interval), 1);
}
