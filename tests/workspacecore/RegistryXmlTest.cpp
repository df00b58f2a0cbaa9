// What all lists with a text of their own have in common: what can be read of any text, that
// what is written is read again, files, and copies.
#include <boost/make_shared.hpp>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "workspacecore/commands/WsCommandRegistry.h"
#include "workspacecore/dialogs/UiStates.h"
#include "workspacecore/plugins/WsModuleRegistry.h"
#include "workspacecore/tree/WsTreeItemDefinitionList.h"

namespace Orvane::Workspace {
namespace {

struct Commands {
    using List = CWsCommandRegistry;
    static constexpr const wchar_t* kNames[] = {L"wsCommandRegistry", L"wsCommand", L"id"};
    static constexpr bool kKeepsTwins = false;
    static constexpr bool kReadsIllFormedFiles = false;
    static auto& Records(List& list) { return *list.GetWsCommandVector(); }
    static void Add(List& list, const auto& record) { list.AddWsCommand(record); }
    static void SetName(CWsCommand& record, const wchar_t* name) { record.SetId(name); }
    static CString Name(const CWsCommand& record) { return record.GetId(); }
};

struct Modules {
    using List = CWsModuleRegistry;
    static constexpr const wchar_t* kNames[] = {L"moduleRegistry", L"module", L"fileName"};
    static constexpr bool kKeepsTwins = true;
    static constexpr bool kReadsIllFormedFiles = true;
    static auto& Records(List& list) { return *list.GetWsModuleVector(); }
    static void Add(List& list, const auto& record) { list.AddWsModule(record); }
    static void SetName(CWsModule& record, const wchar_t* name) { record.SetFileName(name); }
    static CString Name(const CWsModule& record) { return record.GetFileName(); }
};

struct TreeItems {
    using List = CWsTreeItemDefinitionList;
    static constexpr const wchar_t* kNames[] = {L"wsTreeItemDefinitionList",
                                                L"wsTreeItemDefinition", L"id"};
    static constexpr bool kKeepsTwins = true;
    static constexpr bool kReadsIllFormedFiles = false;
    static auto& Records(List& list) { return *list.GetWsTreeItemDefinitionVector(); }
    static void Add(List& list, const auto& record) { list.AddWsTreeItemDefinition(record); }
    static void SetName(CWsTreeItemDefinition& record, const wchar_t* name) { record.SetId(name); }
    static CString Name(const CWsTreeItemDefinition& record) { return record.GetId(); }
};

struct DialogStates {
    using List = CUiStates;
    static constexpr const wchar_t* kNames[] = {L"uiStates", L"dialogState", L"id"};
    static constexpr bool kKeepsTwins = true;
    static constexpr bool kReadsIllFormedFiles = false;
    static auto& Records(List& list) { return *list.GetDialogStateVector(); }
    static void Add(List& list, const auto& record) { list.AddDialogState(record); }
    static void SetName(CDialogState& record, const wchar_t* name) { record.SetId(name); }
    static CString Name(const CDialogState& record) { return record.GetId(); }
};

template <class Kind>
class RegistryXml : public testing::Test {
protected:
    using List = typename Kind::List;

    static List Of(std::initializer_list<const wchar_t*> names) {
        List list;
        for (const wchar_t* name : names) {
            typename std::remove_cvref_t<decltype(Kind::Records(list)[0])> record(
                new typename std::remove_cvref_t<decltype(*Kind::Records(list)[0])>);
            Kind::SetName(*record, name);
            Kind::Add(list, record);
        }
        return list;
    }
    static std::string Names(List& list) {
        std::string names;
        for (const auto& record : Kind::Records(list)) {
            names += WideToUtf8(Kind::Name(*record).View()) + " ";
        }
        return names;
    }
    /// With the list's own names for "@" (root), "~" (element) and "$" (attribute).
    static CString Text(const wchar_t* pattern) {
        CString text(pattern);
        text.Replace(L"@", Kind::kNames[0]);
        text.Replace(L"~", Kind::kNames[1]);
        text.Replace(L"$", Kind::kNames[2]);
        return text;
    }

    TestHost m_host;
};

using Kinds = testing::Types<Commands, Modules, TreeItems, DialogStates>;
TYPED_TEST_SUITE(RegistryXml, Kinds);

TYPED_TEST(RegistryXml, AnyTextGivesWhatCanBeRead) {
    const Rows<const wchar_t*, int, const char*> cases = {
        {L"", 0, ""},
        {L"<other><~ $='A'/></other>", 0, ""},
        {L"<@2><~ $='A'/></@2>", 0, ""},
        {L"<@ ></@>", 1, ""},
        {L" <@ >\n<~ $='A'/>\n</@ >", 1, "A "},
        {L"<@><x/><~ $='A'/><~X $='C'/><x><~ $='D'/></x></@>", 1, "A "},
        {L"<@><~ $='A'/><~ $='A'/><~ $='B'/></@>", 1, TypeParam::kKeepsTwins ? "A A B " : "A B "},
        // An element that is not ended keeps no children.
        {L"<@><~ $='A'></~><~ $='B", 1, ""},
        {L"<@><~ $='A'></~></~></@>", 1, "A "},
        {L"<@><~ $='ab=EF=B'/></@>", 1, "ab "},
        {L"<@><~ $='a&amp;lt;b&#65;'/></@>", 1, "a<bA "},
    };
    for (const auto& [text, result, names] : cases) {
        auto list = this->Of({L"OLD"});
        EXPECT_EQ(list.ParseXML(this->Text(text)), result) << WideToUtf8(text);
        EXPECT_EQ(this->Names(list), names) << WideToUtf8(text);
    }
    auto list = this->Of({L"OLD"});
    EXPECT_EQ(list.ParseXML(nullptr), 0);
    EXPECT_EQ(this->Names(list), "");
}

TYPED_TEST(RegistryXml, FilesComeBackOrLeaveTheListAlone) {
    const TempFolder& folder = this->m_host.Support();
    auto list = this->Of({L"\u20ACa=<b> \"& \u00E8", L"B"});
    ASSERT_EQ(list.Save(folder.Wide("saved.xml")), 1);
    auto read = this->Of({L"OLD"});
    ASSERT_EQ(read.Load(folder.Wide("saved.xml")), 1);
    EXPECT_EQ(this->Names(read), "\u20ACa=<b> \"& \u00E8 B ");
    EXPECT_EQ(read.GetXML(), list.GetXML());
    EXPECT_EQ(list.Save(folder.Wide("no/such/folder.xml")), 0);

    folder.Write("ill.xml", WideToUtf8(this->Text(L"<@><~ $='A'></@>").View()));
    ASSERT_EQ(mkfifo(folder.Native("pipe.xml").c_str(), 0600), 0);
    alarm(30); // a pipe that is opened would wait for its other end
    for (const char* file : {"missing.xml", "", "pipe.xml", "ill.xml"}) {
        const bool isRead = TypeParam::kReadsIllFormedFiles && file == std::string("ill.xml");
        auto old = this->Of({L"OLD"});
        EXPECT_EQ(old.Load(folder.Wide(file)), isRead ? 1 : 0) << file;
        EXPECT_EQ(this->Names(old), isRead ? "A " : "OLD ") << file;
    }
}

TYPED_TEST(RegistryXml, DeepCopiesAreSeparate) {
    auto list = this->Of({L"A", L"B"});
    auto shallow = list;
    auto deep = this->Of({L"OLD"});
    list.MakeDeepCopy(deep);
    TypeParam::SetName(*TypeParam::Records(list)[0], L"RENAMED");
    EXPECT_EQ(this->Names(shallow), "RENAMED B ");
    EXPECT_EQ(this->Names(deep), "A B ");
}

template <class Kind>
using WithoutDrawings = RegistryXml<Kind>;
using KindsWithoutDrawings = testing::Types<Commands, Modules, TreeItems>;
TYPED_TEST_SUITE(WithoutDrawings, KindsWithoutDrawings);

TYPED_TEST(WithoutDrawings, SayThatTheyAreNotKeptInDrawings) {
    auto list = this->Of({L"A"});
    EXPECT_EQ(list.SaveToDictionary(), 0);
    EXPECT_EQ(this->Names(list), "A ");
    EXPECT_EQ(list.LoadFromDictionary(), 0);
    EXPECT_EQ(this->Names(list), "");
    EXPECT_EQ(this->m_host.Alerts(), std::vector<std::wstring>(2, L"Not implemented"));
}

} // namespace
} // namespace Orvane::Workspace
