// Problems reported for faulty files.
#include "plugins/network/InpReader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace Orvane::Network;

namespace {

using Texts = std::vector<std::string>;

/// A small network of nine lines; the cases append their faults.
const std::string kSound = "[JUNCTIONS]\n"
                           "A 10\n"
                           "B 20\n"
                           "[COORDINATES]\n"
                           "A 0 0\n"
                           "B 3 4\n"
                           "[PIPES]\n"
                           "P A B 5 100\n"
                           "\n";

struct Case {
    std::string text;
    Texts problems;
};

InpResult Read(const std::string& text) {
    return ReadInp(text, "net.inp");
}

void ExpectErrors(const std::string& text, const Texts& problems) {
    const InpResult result = Read(text);
    EXPECT_EQ(ProblemTexts(result, Severity::Error), problems) << text.substr(0, 300);
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(result.model.nodes.size(), 0U);
    EXPECT_EQ(result.model.sections.size(), 0U);
}

void ExpectWarnings(const std::string& text, const Texts& problems) {
    const InpResult result = Read(text);
    EXPECT_EQ(ProblemTexts(result, Severity::Warning), problems) << text;
    EXPECT_EQ(ProblemTexts(result, Severity::Error), Texts{}) << text;
    EXPECT_TRUE(result.ok);
}

} // namespace

TEST(InpReaderProblems, FilesThatAreNoNetwork) {
    const Case cases[] = {
        {"", {"net.inp:1: the file is empty"}},
        {" \r\n\t\n", {"net.inp:1: the file is empty"}},
        {"\xFF\xFE[\0J", {"net.inp:1: the file is in UTF-16; save it as UTF-8"}},
        {"<?xml version=\"1.0\"?>\n<a/>\n",
         {"net.inp:1: not a network file: it has no section [JUNCTIONS] or other section "
          "with nodes"}},
        {"[OPTIONS]\nUnits LPS\n",
         {"net.inp:1: not a network file: it has no section [JUNCTIONS] or other section "
          "with nodes"}},
        {std::string("\x7F") + "ELF\n" + std::string("a\0b", 3) + "\n",
         {"net.inp:2: the line contains a zero byte, so this is not a text file"}},
        {"[JUNCTIONS]\n[COORDINATES]\n", {"net.inp:1: the file has no nodes"}},
        {"[JUNCTIONS]\nA 10\nB 20\n", {"net.inp:1: no node has coordinates"}},
        {"[JUNCTIONS]\nA 10\n\n[COORDINATES]\n;Node X Y\n", {"net.inp:4: no node has coordinates"}},
    };
    for (const Case& each : cases) {
        ExpectErrors(each.text, each.problems);
    }
}

TEST(InpReaderProblems, WrongNumbersAreNamed) {
    const Case cases[] = {
        {"[JUNCTIONS]\nC 12x\n", {"net.inp:11: elevation \"12x\" is not a number"}},
        {"[RESERVOIRS]\nC high\n", {"net.inp:11: head \"high\" is not a number"}},
        {"[COORDINATES]\nA nan 1\n", {"net.inp:11: x coordinate \"nan\" is not a number"}},
        {"[COORDINATES]\nA 1 -inf\n", {"net.inp:11: y coordinate \"-inf\" is not a number"}},
        {"[COORDINATES]\nA 1e400 1\n", {"net.inp:11: x coordinate \"1e400\" is not a number"}},
        {"[COORDINATES]\nA 1.5e15 -2e15\n",
         {"net.inp:11: x coordinate \"1.5e15\" is larger than 1e15",
          "net.inp:11: y coordinate \"-2e15\" is larger than 1e15"}},
        {"[COORDINATES]\nA 3,5 1\n", {"net.inp:11: x coordinate \"3,5\" is not a number"}},
        {"[COORDINATES]\nA \"\" 1\n", {"net.inp:11: x coordinate \"\" is not a number"}},
        {"[PIPES]\nQ A B x 100\n", {"net.inp:11: length \"x\" is not a number"}},
        {"[PIPES]\nQ A B 5 10mm\n", {"net.inp:11: diameter \"10mm\" is not a number"}},
        {"[VALVES]\nQ A B wide PRV\n", {"net.inp:11: diameter \"wide\" is not a number"}},
        {"[CONDUITS]\nQ A B 5%\n", {"net.inp:11: length \"5%\" is not a number"}},
        {"[XSECTIONS]\nP CIRCULAR -\n", {"net.inp:11: diameter \"-\" is not a number"}},
        {"[VERTICES]\nP 1 1..2\n", {"net.inp:11: y coordinate \"1..2\" is not a number"}},
        {"[POLYGONS]\nS 0x10 1\n", {"net.inp:11: x coordinate \"0x10\" is not a number"}},
        {"[LABELS]\nhere 1 \"A\"\n", {"net.inp:11: x coordinate \"here\" is not a number"}},
        {"[JUNCTIONS]\nC " + std::string(90, '7') + "\n",
         {"net.inp:11: elevation \"" + std::string(60, '7') + "...\" is larger than 1e15"}},
    };
    for (const Case& each : cases) {
        ExpectErrors(kSound + each.text, each.problems);
    }
}

TEST(InpReaderProblems, CutLinesAreNamed) {
    const Case cases[] = {
        {"[JUNCTIONS]\nC\n",
         {"net.inp:11: too few columns in [JUNCTIONS]: 1 instead of 2 (name, elevation)"}},
        {"[RESERVOIRS]\nC\n",
         {"net.inp:11: too few columns in [RESERVOIRS]: 1 instead of 2 (name, head)"}},
        {"[PIPES]\nQ A B 10",
         {"net.inp:11: too few columns in [PIPES]: 4 instead of 5 "
          "(name, start node, end node, length, diameter)"}},
        {"[PUMPS]\nQ A\n",
         {"net.inp:11: too few columns in [PUMPS]: 2 instead of 3 (name, start node, end node)"}},
        {"[COORDINATES]\nA 1\n",
         {"net.inp:11: too few columns in [COORDINATES]: 2 instead of 3 (node, x, y)"}},
        {"[VERTICES]\nP ; 1 2\n",
         {"net.inp:11: too few columns in [VERTICES]: 1 instead of 3 (name, x, y)"}},
        {"[LABELS]\n1 2\n",
         {"net.inp:11: too few columns in [LABELS]: 2 instead of 3 (x, y, text)"}},
        {"[VERTI", {"net.inp:10: the section heading \"[VERTI\" is incomplete"}},
    };
    for (const Case& each : cases) {
        ExpectErrors(kSound + each.text, each.problems);
    }
}

TEST(InpReaderProblems, NamesStandOnce) {
    ExpectErrors(kSound + "[TANKS]\nB 5\n",
                 {"net.inp:11: node \"B\" is already defined in line 3"});
    ExpectErrors(kSound + "[VALVES]\nP A B 5\n",
                 {"net.inp:11: section \"P\" is already defined in line 8"});
}

TEST(InpReaderProblems, LongLinesAreRefusedWithTheirLength) {
    const std::string longest(kLongestLine - 2, 'x');
    EXPECT_TRUE(Read(kSound + "; " + longest + "\n").ok);
    ExpectErrors(kSound + ";; " + longest + "\r\n",
                 {"net.inp:10: the line has 65537 characters; the limit is 65536"});
    ExpectErrors(kSound + std::string(10'000'000, 'x') + "\n" + kSound,
                 {"net.inp:10: the line has 10000000 characters; the limit is 65536"});
}

TEST(InpReaderProblems, LengthOfALineCountsCharactersNotBytes) {
    std::string comment = kSound + ";";
    for (std::size_t i = 1; i < kLongestLine; ++i) {
        comment += "\xC3\xBC";
    }
    EXPECT_TRUE(Read(comment).ok);
    ExpectErrors(comment + "\xC3\xBC",
                 {"net.inp:10: the line has 65537 characters; the limit is 65536"});
}

TEST(InpReaderProblems, MissingNodesAreKeptByName) {
    const std::string text = kSound + "[PIPES]\nQ A GONE 1 1\nR \"no such\" AWAY 1 1\n";
    ExpectWarnings(text, {"net.inp:11: section \"Q\" refers to the missing node \"GONE\"",
                          "net.inp:12: section \"R\" refers to the missing node \"no such\"",
                          "net.inp:12: section \"R\" refers to the missing node \"AWAY\""});
    const SectionTable sections = Read(text).model.sections;
    EXPECT_EQ(sections.startNodes, (std::vector<std::int32_t>{0, 0, kMissingNode}));
    EXPECT_EQ(sections.endNodes, (std::vector<std::int32_t>{1, kMissingNode, kMissingNode}));
    EXPECT_EQ(sections.MissingStart(1), "");
    EXPECT_EQ(sections.MissingEnd(1), "GONE");
    EXPECT_EQ(sections.MissingStart(2), "no such");
    EXPECT_EQ(sections.MissingEnd(2), "AWAY");
    EXPECT_FALSE(sections.IsComplete(1));
}

TEST(InpReaderProblems, NodesWithoutCoordinatesAreLeftOut) {
    const std::string text = "[JUNCTIONS]\nA 1 0.5\nB 2 0.6\nC 3 0.7\n[PIPES]\nP B C 1 1\n"
                             "[COORDINATES]\nC 1 1\nA 0 0\n";
    ExpectWarnings(text, {"net.inp:3: node \"B\" has no coordinates and was left out",
                          "net.inp:6: section \"P\" refers to the missing node \"B\""});
    const NetworkModel model = Read(text).model;
    EXPECT_EQ(model.nodes.names[1], "C");
    EXPECT_EQ(model.nodes.elevations, (std::vector<double>{1, 3}));
    EXPECT_EQ(model.nodes.attributes.Find(1, "Demand")->number, 0.7);
    EXPECT_EQ(model.sections.endNodes, (std::vector<std::int32_t>{1}));
}

TEST(InpReaderProblems, ThingsThatBelongToNothingAreWarnings) {
    const Case cases[] = {
        {"[COORDINATES]\nX 1 1\n", {"net.inp:11: coordinates for the unknown node \"X\""}},
        {"[COORDINATES]\nA 1 1\n",
         {"net.inp:11: node \"A\" already has coordinates; these replace them"}},
        {"[VERTICES]\nX 1 1\n", {"net.inp:11: vertex for the unknown section \"X\""}},
        {"[XSECTIONS]\nX CIRCULAR 1\n",
         {"net.inp:11: cross section for the unknown section \"X\""}},
        {"[TAGS]\nNODE X t\nLINK Y t\nSUBCATCH Z t\n",
         {"net.inp:11: tag for the unknown node \"X\"",
          "net.inp:12: tag for the unknown section \"Y\""}},
        {"[POLYGONS]\nS 0 0\nS 1 0\nS 1 1\n",
         {"net.inp:11: polygon for the unknown subcatchment \"S\""}},
        {"[SUBCATCHMENTS]\nS\n[POLYGONS]\nS 0 0\nS 1 0\n",
         {"net.inp:13: polygon \"S\" has only 2 points and was left out"}},
        {"[SUBCATCHMENTS]\nS\n[POLYGONS]\nS 0 0\nS 1 0\nS 0 0\n",
         {"net.inp:13: polygon \"S\" has only 2 points and was left out"}},
        {"[PIPES]\nQ A B -5 100\n", {"net.inp:11: length \"-5\" is negative"}},
        {"[GARDENS]\nA rose\n[CURVES]\nC 1 1\n",
         {"net.inp:10: the unknown section \"GARDENS\" is ignored"}},
    };
    for (const Case& each : cases) {
        ExpectWarnings(kSound + each.text, each.problems);
    }
    ExpectWarnings("some words\nmore\n" + kSound,
                   {"net.inp:1: text before the first section is ignored"});
}

TEST(InpReaderProblems, PolygonsOfUnknownOwnersAreKept) {
    EXPECT_EQ(Read(kSound + "[POLYGONS]\nS 0 0\nS 1 0\nS 1 1\n").model.polygons.size(), 1U);
}

TEST(InpReaderProblems, AllAreCountedAndTheFirstOnesListed) {
    std::string text = kSound + "[VERTICES]\n";
    for (int i = 0; i < 250; ++i) {
        text += "X 1 1\n";
    }
    text += "P 1 wrong\n";
    const InpResult result = Read(text);
    const Texts warnings = ProblemTexts(result, Severity::Warning);
    ASSERT_EQ(warnings.size(), InpResult::kMostProblems + 1);
    EXPECT_EQ(warnings.back(), "... and 150 more");
    EXPECT_EQ(result.warningCount, 250U);
    EXPECT_EQ(ProblemTexts(result, Severity::Error),
              Texts{"net.inp:261: y coordinate \"wrong\" is not a number"});
}

TEST(InpReaderProblems, ProblemsComeInTheOrderOfTheirLines) {
    // Coordinates are read before pipes, whatever their order in the file.
    ExpectErrors("[PIPES]\nP A B x 1\n[COORDINATES]\nA y 0\n[JUNCTIONS]\nA z\n",
                 {"net.inp:2: length \"x\" is not a number",
                  "net.inp:4: x coordinate \"y\" is not a number",
                  "net.inp:6: elevation \"z\" is not a number"});
}

TEST(InpReaderProblems, TextsInMessagesAreUtf8) {
    ExpectErrors(kSound + "[JUNCTIONS]\nC gr\xFC\xDF\n",
                 {"net.inp:11: elevation \"gr\xC3\xBC\xC3\x9F\" is not a number"});
}

TEST(InpReaderProblems, FileThatCannotBeRead) {
    const InpResult result = ReadInpFile(L"no/such/net.inp");
    EXPECT_FALSE(result.ok);
    EXPECT_EQ(ProblemTexts(result, Severity::Error),
              Texts{"no/such/net.inp: the file cannot be read: No such file or directory"});
    EXPECT_EQ(ProblemTexts(ReadInpFile(L"/"), Severity::Error),
              Texts{"/: the file cannot be read: Is a directory"});
}
