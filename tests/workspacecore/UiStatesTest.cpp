#include <boost/make_shared.hpp>
#include <chrono>
#include <csignal>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/arx/ApDocManager.h"
#include "platform/arx/DbUndo.h"
#include "platform/mfc/WinApp.h"
#include "siblings/cadwrapper/DictionaryPtr.h"
#include "siblings/logging/LogEngine.h"
#include "tests/support/Rows.h"
#include "tests/support/TestHost.h"
#include "workspacecore/dialogs/UiStates.h"
#include "workspacecore/dialogs/UiStatesFile.h"

namespace Orvane::Workspace {
namespace {

using Data::CDataBox;

boost::shared_ptr<CStateAttribute> Attribute(const wchar_t* id, const CDataBox& value) {
    return boost::make_shared<CStateAttribute>(id, value);
}

boost::shared_ptr<CDialogState> Dialog(const wchar_t* id, int left = 0) {
    auto state = boost::make_shared<CDialogState>();
    state->SetId(id);
    state->SetLeft(left);
    return state;
}

CUiStates OneDialog(const wchar_t* id) {
    CUiStates states;
    states.AddDialogState(Dialog(id));
    return states;
}

/// Ids and left edges of the dialogs, with ids, types and values of their attributes.
std::string Content(const CUiStates& states) {
    std::wstring text;
    for (const auto& dialog : *states.GetDialogStateVector()) {
        text += FormatText(L"%s@%d(", dialog->GetId(), dialog->GetLeft());
        for (const auto& attribute : *dialog->GetStateAttributeVector()) {
            text += FormatText(L"%s:%d=%s,", attribute->GetId(), attribute->GetType(),
                               attribute->GetValue());
        }
        text += L")";
    }
    return WideToUtf8(text);
}

constexpr const char* kTwoDialogs =
    R"(<uiStates><dialogState id="a" top="1" left="-2" width="3" height="4" resizable="1" )"
    R"(docked="0" side="0" ><stateAttribute id="k" type="5005" value="x=3Dy" >)"
    R"(</stateAttribute></dialogState><dialogState id="b" top="0" left="0" width="0" height="0" )"
    R"(resizable="0" docked="0" side="0" ></dialogState></uiStates>)";

class UiStatesFileTest : public testing::Test {
protected:
    int Load(CUiStates& states) const { return states.Load(m_folder.Wide("s.xml")); }
    /// The record of one dialog after loading a file with this content.
    std::string AfterLoading(const std::string& bytes) const {
        m_folder.Write("s.xml", bytes);
        CUiStates states = OneDialog(L"old");
        const int result = Load(states);
        return std::to_string(result) + " " + Content(states);
    }
    std::size_t Files() const {
        const std::filesystem::directory_iterator files(m_folder / "");
        return static_cast<std::size_t>(std::distance(begin(files), end(files)));
    }

    TempFolder m_folder;
};

} // namespace

TEST(UiStates, WritesTheFixedForm) {
    CUiStates states;
    EXPECT_EQ(states.GetXML(), L"<uiStates></uiStates>");
    EXPECT_EQ(states.ParseXML(states.GetXML()), 1);
    ASSERT_EQ(states.ParseXML(Utf8ToWide(kTwoDialogs).c_str()), 1);
    EXPECT_EQ(states.GetXML(), Utf8ToWide(kTwoDialogs).c_str());
    const CDialogState& dialog = *states.GetDialogStateById(L"a");
    EXPECT_EQ(dialog.GetTop(), 1);
    EXPECT_EQ(dialog.GetLeft(), -2);
    EXPECT_EQ(dialog.GetWidth(), 3);
    EXPECT_EQ(dialog.GetHeight(), 4);
    EXPECT_EQ(dialog.GetResizable(), 1);
    EXPECT_EQ(dialog.GetStateAttributeById(L"k")->GetValue(), L"x=y");
    EXPECT_EQ(dialog.GetStateAttributeById(L"K"), nullptr);
    EXPECT_EQ(dialog.GetStateAttributeById(nullptr), nullptr);
}

TEST(UiStates, ValuesComeBackThroughTheText) {
    const Rows<CDataBox, int, const wchar_t*> cases = {
        {L"a = b;c", 5005, L"a = b;c"},
        {L"Stra\u00DFe \u20AC <'\">&", 5005, L"Stra\u00DFe \u20AC <'\">&"},
        // Entity references are decoded on reading, whoever wrote them.
        {L"a&amp;b", 5005, L"a&b"},
        {L"\u4E2D\u00E4", 5005, L"?\u00E4"},
        {std::numeric_limits<int>::min(), 5003, L"-2147483648"},
        {std::numeric_limits<long>::max(), 5010, L"9223372036854775807"},
        {0.1, 5001, L"0.1"},
        {CDataBox(), 0, L""},
        {CString(L'x', 5'000'000), 5005, nullptr},
    };
    for (const auto& [value, type, text] : cases) {
        CUiStates states = OneDialog(L"d");
        (*states.GetDialogStateVector())[0]->AddStateAttribute(Attribute(L"k \u00E8", value));
        CUiStates again;
        ASSERT_EQ(again.ParseXML(states.GetXML()), 1);
        const auto attribute = again.GetDialogStateById(L"d")->GetStateAttributeById(L"k \u00E8");
        ASSERT_NE(attribute, nullptr) << type;
        EXPECT_EQ(attribute->GetType(), type);
        const CString expected = text ? CString(text) : static_cast<CString>(value);
        EXPECT_TRUE(attribute->GetValue() == expected) << WideToUtf8(expected.Left(40).View());
    }
}

TEST(UiStates, TheTypeDecidesWhatAValueIs) {
    const Rows<int, int, const wchar_t*, const wchar_t*, int> cases = {
        {5001, 5001, L" 1.50m", L"1.5", 0},
        {5001, 5001, L"", L"0", 0},
        {5003, 5003, L"12.9", L"12", 0},
        {5003, 5003, L"99999999999", L"2147483647", 0},
        {5005, 5005, L"a;b", L"a;b", 0},
        {5010, 5010, L"99999999999", L"99999999999", 0},
        {5023, 5023, L"a;;b;", L"a;;b;", 4},
        {5023, 5023, L"", L"", 0},
        {0, 0, L"1", L"", 0},
        {5002, 0, L"1", L"", 0},
        {-5003, 0, L"1", L"", 0},
    };
    for (const auto& [type, boxType, value, boxText, pieces] : cases) {
        const CDataBox box = CStateAttribute(L"k", type, value).GetDataBox();
        const std::string name = std::to_string(type) + WideToUtf8(value);
        EXPECT_EQ(box.GetDataType(), boxType) << name;
        EXPECT_EQ(static_cast<CString>(box), boxText) << name;
        EXPECT_EQ(box.GetStringArray().GetCount(), pieces) << name;
    }
}

TEST(UiStates, OfTwoWithOneIdTheFirstIsFound) {
    CUiStates states;
    const auto first = Dialog(L"d", 1);
    const auto second = Dialog(L"d", 2);
    first->AddStateAttribute(Attribute(L"k", 1));
    first->AddStateAttribute(Attribute(L"k", 2));
    states.AddDialogState(first);
    states.AddDialogState(second);
    CUiStates again;
    ASSERT_EQ(again.ParseXML(states.GetXML()), 1);
    EXPECT_EQ(Content(again), "d@1(k:5003=1,k:5003=2,)d@2()");
    EXPECT_EQ(again.GetDialogStateById(L"d")->GetLeft(), 1);
    EXPECT_EQ(first->GetStateAttributeById(L"k")->GetValue(), L"1");

    // The id is removed from the look-up, whichever of the two is removed.
    states.RemoveDialogState((*states.GetDialogStateVector())[1]);
    EXPECT_EQ(Content(states), "d@1(k:5003=1,k:5003=2,)");
    EXPECT_EQ(states.GetDialogStateById(L"d"), nullptr);
    first->RemoveStateAttribute((*first->GetStateAttributeVector())[0]);
    EXPECT_EQ(Content(states), "d@1(k:5003=2,)");
    EXPECT_EQ(first->GetStateAttributeById(L"k"), nullptr);
    states.RemoveDialogState(second);
    EXPECT_EQ(states.GetDialogStateVector()->size(), 1U);
    states.Clear();
    EXPECT_EQ(states.GetXML(), L"<uiStates></uiStates>");
}

TEST(UiStates, DeepCopiesAreSeparateAtTheirOwnLevelOnly) {
    CUiStates states = OneDialog(L"d");
    const auto dialog = states.GetDialogStateById(L"d");
    dialog->AddStateAttribute(Attribute(L"k", 1));
    CUiStates deep;
    states.MakeDeepCopy(deep);
    CDialogState deepDialog;
    deepDialog.AddStateAttribute(Attribute(L"old", 1));
    dialog->MakeDeepCopy(deepDialog);
    dialog->GetStateAttributeById(L"k")->SetValue(L"2");
    EXPECT_EQ(Content(deep), "d@0(k:5003=2,)");
    EXPECT_EQ(deepDialog.GetXML().Find(L"old"), -1);
    EXPECT_EQ(deepDialog.GetStateAttributeById(L"k")->GetValue(), L"1");
}

TEST(UiStates, BadTextsGiveWhatCanBeRead) {
    const Rows<const char*, const wchar_t*, int, const char*> cases = {
        {"nothing given", L"<uiStates><dialogState><stateAttribute/></dialogState></uiStates>", 1,
         "@0(:0=,)"},
        {"out of range",
         L"<uiStates><dialogState left='9999999999'><stateAttribute id='k' type='-9999999999'/>"
         L"</dialogState></uiStates>",
         1, "@2147483647(k:-2147483648=,)"},
        {"no numbers", L"<uiStates><dialogState left='x1'/><dialogState left=' 7px'/></uiStates>",
         1, "@0()@7()"},
        {"elements in between",
         L"<uiStates><stateAttribute id='z'/><x><dialogState id='y'/></x><dialogState id='a'>"
         L"<x/><stateAttribute id='k'/><dialogState id='b'/></dialogState></uiStates>",
         1, "a@0(k:0=,)"},
        {"entity in a number", L"<uiStates><dialogState left='&#49;2'/></uiStates>", 1, "@12()"},
        {"dialog not ended", L"<uiStates><dialogState id='a'><stateAttribute id='k'/></uiStates>",
         1, "a@0()"},
    };
    for (const auto& [name, text, result, content] : cases) {
        CUiStates states = OneDialog(L"old");
        EXPECT_EQ(states.ParseXML(text), result) << name;
        EXPECT_EQ(Content(states), content) << name;
        EXPECT_EQ(states.GetDialogStateById(L"old"), nullptr) << name;
    }
}

TEST_F(UiStatesFileTest, CutAnywhereItIsNotTakenAndKept) {
    const std::string whole = kTwoDialogs;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string cut = whole.substr(0, length);
        EXPECT_EQ(AfterLoading(cut), "0 old@0()") << length;
        EXPECT_FALSE(m_folder.Has("s.xml"));
        EXPECT_EQ(m_folder.Read("s.xml.damaged-1"), cut);
        std::filesystem::remove(m_folder / "s.xml.damaged-1");
    }
    EXPECT_EQ(AfterLoading(whole), "1 a@-2(k:5005=x=y,)b@0()");
    EXPECT_EQ(Files(), 1U);
}

TEST_F(UiStatesFileTest, ADamagedOneIsReportedAndNoneIsLost) {
    CLogEngine::SetLogging(1, m_folder.Native("trace.log"));
    EXPECT_EQ(AfterLoading("<uiStates><a></uiStates>"), "0 old@0()");
    // Well formed, but not ours: the record is cleared, and a copy of the file is kept.
    EXPECT_EQ(AfterLoading("<other/>"), "0 ");
    EXPECT_EQ(m_folder.Read("s.xml.damaged-1"), "<uiStates><a></uiStates>");
    EXPECT_EQ(m_folder.Read("s.xml.damaged-2"), "<other/>");
    const std::string trace = m_folder.Read("trace.log");
    EXPECT_NE(trace.find("End tag 'uiStates'"), std::string::npos) << trace;
    EXPECT_NE(trace.find("s.xml.damaged-2"), std::string::npos) << trace;

    CUiStates states;
    EXPECT_EQ(Load(states), 0);
    EXPECT_EQ(m_folder.Read("trace.log"), trace) << "a first start is no damage";
    std::filesystem::create_directory(m_folder / "s.xml");
    EXPECT_EQ(Load(states), 0);
    EXPECT_EQ(states.Save(m_folder.Wide("s.xml")), 0);
    EXPECT_TRUE(std::filesystem::is_directory(m_folder / "s.xml"));
}

TEST_F(UiStatesFileTest, AFullDiskLeavesTheOldOne) {
    ASSERT_EQ(OneDialog(L"before").Save(m_folder.Wide("s.xml")), 1);
    CUiStates states = OneDialog(L"after");
    states.GetDialogStateById(L"after")->AddStateAttribute(Attribute(L"k", CString(L'x', 100'000)));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit little{50'000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &little);
    EXPECT_EQ(states.Save(m_folder.Wide("s.xml")), 0);
    setrlimit(RLIMIT_FSIZE, &before);
    CUiStates read;
    EXPECT_EQ(Load(read), 1);
    EXPECT_EQ(Content(read), "before@0()");
    EXPECT_EQ(Files(), 1U) << "a draft was left behind";
    EXPECT_EQ(states.Save(m_folder.Wide("no/such/folder.xml")), 0);
}

TEST(UiStates, WhatTwoProgramsChangedIsMerged) {
    const auto xml = [](const char* places) {
        // "A5x7" is a dialog A at 5 with the value x of 7.
        std::wstring text = L"<uiStates>";
        std::istringstream in(places);
        for (std::string word; in >> word;) {
            const auto state = Dialog(std::wstring(1, word[0]).c_str(), word[1] - '0');
            for (std::size_t j = 2; j + 1 < word.size(); j += 2) {
                state->AddStateAttribute(
                    Attribute(std::wstring(1, word[j]).c_str(), CDataBox(word[j + 1] - '0')));
            }
            text += state->GetXML().View();
        }
        return text + L"</uiStates>";
    };
    struct Case {
        const char* base;
        const char* ours;
        const char* theirs;
        const char* merged;
    };
    const Case cases[] = {
        {"A1 B1", "A2 B1", "A1 B3", "A2 B3"},     // different dialogs
        {"A1x1y1", "A2x1y1", "A1x5y1", "A2x5y1"}, // place here, value there
        {"A1x1y1", "A1x2y1", "A1x3y4", "A1x2y4"}, // both: ours
        {"A1", "A1 B2", "A1 C3", "A1 B2 C3"},     // added by both
        {"A1", "A1 B2x1", "A1 B3y2", "A1 B2x1y2"},
        {"A1x1", "A1x1", "A1x1z9", "A1x1z9"},
        {"A1x1y1", "A1y1", "A1x1", "A1"},     // taken away
        {"A1 B1 C1", "A1 C1", "A1 B2", "A1"}, // ours is gone, theirs too
        {"A1 B1", "A1 B2", "A1", "A1 B2"},    // changed here, gone there
        {"A1", "", "A1", ""},                 // cleared
        {"", "A1", "", "A1"},
    };
    for (const Case& test : cases) {
        CUiStates base;
        CUiStates ours;
        CUiStates theirs;
        base.ParseXML(xml(test.base).c_str());
        ours.ParseXML(xml(test.ours).c_str());
        theirs.ParseXML(xml(test.theirs).c_str());
        MergeUiStates(ours, base, theirs);
        EXPECT_EQ(ours.GetXML(), CString(xml(test.merged))) << test.merged;
    }
}

TEST_F(UiStatesFileTest, TwoProgramsAreMergedAndAChangeIsWrittenByItself) {
    m_folder.Write("s.xml", "");
    const CString path = m_folder.Wide("s.xml");
    UiStatesFile ours(path);
    UiStatesFile theirs(path);
    ours.States()->NeedDialogState(L"ours")->SetLeft(1);
    theirs.States()->NeedDialogState(L"theirs")->SetLeft(2);
    ours.Save();
    theirs.Save();
    const std::string both = m_folder.Read("s.xml");
    EXPECT_NE(both.find("\"ours\" top=\"0\" left=\"1\""), std::string::npos);
    EXPECT_NE(both.find("\"theirs\" top=\"0\" left=\"2\""), std::string::npos);
    ours.Save();
    EXPECT_EQ(m_folder.Read("s.xml"), both) << "nothing new";

    AfxStartToolkit();
    ours.States()->NeedDialogState(L"ours")->SetLeft(7);
    ours.SaveSoon();
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
    while (m_folder.Read("s.xml") == both && std::chrono::steady_clock::now() < end) {
        AfxPumpMessages();
    }
    EXPECT_NE(m_folder.Read("s.xml").find("left=\"7\""), std::string::npos);
    EXPECT_NE(m_folder.Read("s.xml").find("left=\"2\""), std::string::npos);
}

TEST(UiStatesInDrawing, AreNoStepOfItsHistory) {
    AcApDocument* const pDoc = acDocManagerPtr()->newDocument(L"a.dwg");
    CUiStates states = OneDialog(L"old");
    EXPECT_EQ(states.LoadFromDictionary(), 1) << "a drawing without the record";
    EXPECT_EQ(Content(states), "old@0()");

    pDoc->database()->appendEntity(std::make_unique<AcDbPoint>());
    ASSERT_EQ(OneDialog(L"kept").SaveToDictionary(), 1);
    EXPECT_TRUE(pDoc->database()->isModified());
    EXPECT_FALSE(pDoc->isLocked());
    EXPECT_FALSE(pDoc->database()->isUndoRecordingDisabled());
    EXPECT_TRUE(pDoc->database()->undo().undo());
    EXPECT_EQ(pDoc->database()->entityCount(), 0U);
    EXPECT_EQ(states.LoadFromDictionary(), 1);
    EXPECT_EQ(Content(states), "kept@0()");

    CORVCDictionaryPtr dictionary(AcDb::kForWrite);
    for (const wchar_t* text : {L"", L"<other/>"}) {
        dictionary.dctWriteBigString(L"ORVZ_UISTATE", L"UIRECORD", text);
        CUiStates read = OneDialog(L"old");
        const int result = read.LoadFromDictionary();
        EXPECT_EQ(std::to_string(result) + Content(read), *text ? "0" : "1old@0()");
    }
    acDocManagerPtr()->closeDocument(pDoc);
    EXPECT_EQ(states.SaveToDictionary(), 0);
    EXPECT_EQ(states.LoadFromDictionary(), 1);
}

} // namespace Orvane::Workspace
