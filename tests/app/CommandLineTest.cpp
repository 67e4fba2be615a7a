// The designer's command line: finding options and cutting their values.
#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace flowloom {
namespace {

std::vector<std::string> Parse(const std::string& line) {
    CommandLineArguments arguments;
    arguments.Parse(line);
    return {arguments.Value(ArgXmlFile), arguments.Value(ArgProcess), arguments.Value(ArgActiveObject),
            arguments.Value(ArgFields)};
}

using Values = std::vector<std::string>;

TEST(CommandLine, NoArgumentsGiveFourEmptyValues) {
    EXPECT_EQ(Parse(""), (Values{"", "", "", ""}));
    CommandLineArguments unparsed;
    EXPECT_EQ(unparsed.Value(0), "");
    EXPECT_EQ(unparsed.Value(99), "");
}

TEST(CommandLine, OptionWithoutValueIsTheEmptyWord) {
    EXPECT_EQ(Parse("-xmlfile")[0], "{empty}");
    EXPECT_EQ(Parse("-xmlfile -process p")[0], "{empty}");
}

TEST(CommandLine, NamesIgnoreCaseAndBothPrefixesWork) {
    EXPECT_EQ(Parse("/PROCESS x")[1], "x");
    EXPECT_EQ(Parse("-ActiveObject Form;Orders -FIELDS A;B"), (Values{"", "", "Form;Orders", "A;B"}));
}

TEST(CommandLine, QuotedValuesWithBlanksLoseTheirQuotes) {
    EXPECT_EQ(Parse(R"(-xmlfile "C:\My Files\a.xml" -process "Letter one")"),
              (Values{R"(C:\My Files\a.xml)", "Letter one", "", ""}));
}

TEST(CommandLine, NoSeparatorIsNeededBetweenNameAndValue) {
    EXPECT_EQ(Parse(R"(-xmlfileC:\a.xml)")[0], R"(C:\a.xml)");
    EXPECT_EQ(Parse(R"(-xmlfile C:\a.xml)")[0], R"(C:\a.xml)");
}

TEST(CommandLine, FirstPrefixInsideQuotesAndSecondMissingMeansNoCut) {
    EXPECT_EQ(Parse(R"(-xmlfile "C:\a -b.xml" -process x)")[0], R"(C:\a -b.xml" -process x)");
}

TEST(CommandLine, LastPrefixInsideQuotesStillCuts) {
    EXPECT_EQ(Parse(R"(-xmlfile "C:\a /b.xml")")[0], R"(C:\a)");
}

TEST(CommandLine, TwoQuotesAloneStayAsTheyAre) {
    EXPECT_EQ(Parse(R"(-process "")")[1], R"("")");
}

TEST(CommandLine, PlainSubstringSearchFindsOptionsInsideWords) {
    // Nothing checks that a hit begins a word: the first occurrence counts.
    EXPECT_EQ(Parse("x-processy")[1], "y");
    EXPECT_EQ(Parse("-unknown 5 -process p")[1], "p");
}

TEST(CommandLine, GetCommandLineArgumentsHandsBackTheRawLine) {
    SetRawCommandLine("-process Letter");
    std::string line;
    GetCommandLineArguments(line);
    EXPECT_EQ(line, "-process Letter");
    EXPECT_EQ(gCommandLineArguments().Value(ArgProcess), "Letter");
    SetRawCommandLine({});
}

TEST(RawCommandLine, OptionWordsStayBareEverythingElseIsQuoted) {
    EXPECT_EQ(RawCommandLineFromArgs({"-xmlfile", "/home/ann/my file.xml", "/PROCESS", "Letter one"}),
              R"(-xmlfile "/home/ann/my file.xml" /PROCESS "Letter one")");
}

TEST(RawCommandLine, PathsStartingWithSlashSurviveTheParser) {
    EXPECT_EQ(Parse(RawCommandLineFromArgs({"-xmlfile", "/home/ann/my files/p.xml", "-process", "Letter -one"})),
              (Values{"/home/ann/my files/p.xml", "Letter -one", "", ""}));
    // A blank followed by "/" inside a value is a cut all the same: "/" is the last prefix tried.
    // What is left keeps its opening quote: only a quote before another character is stripped.
    EXPECT_EQ(Parse(RawCommandLineFromArgs({"-process", "a /b"}))[1], "\"a");
    EXPECT_EQ(Parse(RawCommandLineFromArgs({"/xmlfile", "/data/x.xml", "/process", "P"})),
              (Values{"/data/x.xml", "P", "", ""}));
}

}  // namespace
}  // namespace flowloom
