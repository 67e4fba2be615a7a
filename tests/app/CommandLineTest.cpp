// The designer's command line: finding options, cutting their values, and
// the raw line rebuilt from the program's arguments.
#include "app/CommandLine.h"

#include <gtest/gtest.h>

namespace flowloom {
namespace {

using Values = std::vector<std::string>;

Values Parse(const std::string& line) {
    CommandLineArguments arguments;
    arguments.Parse(line);
    return {arguments.Value(ArgXmlFile), arguments.Value(ArgProcess), arguments.Value(ArgActiveObject),
            arguments.Value(ArgFields)};
}

TEST(CommandLine, NoArgumentsGiveFourEmptyValues) {
    EXPECT_EQ(Parse(""), (Values{"", "", "", ""}));
    CommandLineArguments parsed;
    parsed.Parse("-process p");
    EXPECT_EQ(parsed.Size(), 4u);
    EXPECT_EQ(parsed.Value(4), "");
    parsed.Parse("");  // a second parse starts afresh
    EXPECT_EQ(parsed.Value(ArgProcess), "");
}

TEST(CommandLine, OptionWithoutValueIsTheEmptyWord) {
    EXPECT_EQ(Parse("-xmlfile")[0], "{empty}");
    EXPECT_EQ(Parse("-xmlfile -process p"), (Values{"{empty}", "p", "", ""}));
    EXPECT_EQ(Parse(R"(-process " ")")[1], "{empty}");
    EXPECT_EQ(Parse(R"(-process "")")[1], R"("")");  // two quotes alone stay
}

TEST(CommandLine, NamesIgnoreCaseAndBothPrefixesWork) {
    EXPECT_EQ(Parse("/PROCESS x")[1], "x");
    EXPECT_EQ(Parse("-ActiveObject Form;Orders /FIELDS A;B"), (Values{"", "", "Form;Orders", "A;B"}));
    // Case folding may change a name's length; the value starts behind the whole match.
    EXPECT_EQ(Parse("-PROCE\xC5\xBF\xC5\xBF x")[1], "x");
}

TEST(CommandLine, QuotedValuesWithBlanksLoseTheirQuotes) {
    EXPECT_EQ(Parse(R"(-xmlfile "C:\My Files\a.xml" -process "Letter one")"),
              (Values{R"(C:\My Files\a.xml)", "Letter one", "", ""}));
}

TEST(CommandLine, CutsInsideQuotesFollowTheOrderOfThePrefixes) {
    // "-" inside quotes and no "/" at all: no cut, the value runs to the end.
    EXPECT_EQ(Parse(R"(-xmlfile "C:\a -b.xml" -process x)")[0], R"(C:\a -b.xml" -process x)");
    // "/" is the last prefix tried: its hit cuts even inside quotes.
    EXPECT_EQ(Parse(R"(-xmlfile "C:\a /b.xml")")[0], R"(C:\a)");
    // "-" inside quotes, "/" outside: the cut is at the "/".
    EXPECT_EQ(Parse(R"(-xmlfile "a -b" /process x)"), (Values{"a -b", "x", "", ""}));
}

TEST(CommandLine, PlainSubstringSearchNeedsNoSeparatorsAndTakesTheFirstHit) {
    EXPECT_EQ(Parse("x-processy")[1], "y");
    EXPECT_EQ(Parse(R"(-xmlfileC:\a.xml)")[0], R"(C:\a.xml)");
    EXPECT_EQ(Parse("-unknown 5 -process p -process q")[1], "p");
}

TEST(CommandLine, GetCommandLineArgumentsFillsTheSharedValues) {
    SetRawCommandLine("-process Letter");
    std::string line;
    GetCommandLineArguments(line);
    EXPECT_EQ(line, "-process Letter");
    EXPECT_EQ(gCommandLineArguments().Value(ArgProcess), "Letter");
    SetRawCommandLine({});
    GetCommandLineArguments(line);
    EXPECT_EQ(gCommandLineArguments().Value(ArgProcess), "");
}

TEST(RawCommandLine, OptionWordsStayBareEverythingElseIsQuoted) {
    EXPECT_TRUE(IsOptionWord("/PROCESS"));
    EXPECT_FALSE(IsOptionWord("-processes"));
    EXPECT_EQ(RawCommandLineFromArgs({"-xmlfile", "/home/ann/my file.xml", "/PROCESS", "Letter one", ""}),
              R"(-xmlfile "/home/ann/my file.xml" /PROCESS "Letter one" "")");
    EXPECT_EQ(RawCommandLineFromArgs({}), "");
}

TEST(RawCommandLine, PathsAndValuesWithBlanksSurviveTheParser) {
    EXPECT_EQ(Parse(RawCommandLineFromArgs({"-xmlfile", "/home/ann/my files/p.xml", "-process", "Letter -one"})),
              (Values{"/home/ann/my files/p.xml", "Letter -one", "", ""}));
    EXPECT_EQ(Parse(RawCommandLineFromArgs({"/xmlfile", "/data/x.xml", "/activeobject", "Table;Orders"})),
              (Values{"/data/x.xml", "", "Table;Orders", ""}));
    EXPECT_EQ(Parse(RawCommandLineFromArgs({"-xmlfile"}))[0], "{empty}");
    // A blank and "/" inside a value cut it all the same; the opening quote
    // stays, as only a quote before another character is stripped.
    EXPECT_EQ(Parse(RawCommandLineFromArgs({"-process", "a /b"}))[1], "\"a");
}

}  // namespace
}  // namespace flowloom
