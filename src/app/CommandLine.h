#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// mCommandLine and mCommandLineConfig: the options the designer is started
// with by hand or by the add-on inside Microsoft Access.
namespace flowloom {

// A further option is one more word in the list; the values follow its order.
inline constexpr std::string_view kCommandLineOptions = "xmlfile;process;activeobject;fields";
inline constexpr std::string_view kCommandLinePrefixes = "-;/";

// The place of each option's value, by its position in the option list.
enum CommandLineIndex : std::size_t { ArgXmlFile = 0, ArgProcess = 1, ArgActiveObject = 2, ArgFields = 3 };

// The stand-in for an option that was given without a value.
inline constexpr std::string_view kEmptyValue = "{empty}";

// The value of each option by its place in the option list; "" where the
// option was not given.
class CommandLineArguments {
public:
    // The value at an index; "" before parsing or above the last index.
    const std::string& Value(std::size_t index) const;
    std::size_t Size() const noexcept { return values_.size(); }

    // Replaces all values with those of a raw command line. An option is found
    // anywhere in the line, without regard to case, with "-" or "/" in front;
    // its value runs to the next blank and prefix outside quotes, loses its
    // enclosing double quotes, and is "{empty}" when nothing is left.
    void Parse(std::string_view commandLine);

private:
    std::vector<std::string> values_;
};

// The program's shared arguments (gCommandLineArguments), written once at start.
CommandLineArguments& gCommandLineArguments();

// The program's raw command line, without the program itself; set once at
// start (see RawCommandLineFromArgs).
void SetRawCommandLine(std::string commandLine);

// Fills the shared arguments from the raw command line and hands that line
// back through the argument. A failure is reported and leaves the values that
// were read before it.
void GetCommandLineArguments(std::string& commandLine);

// True for "-xmlfile", "/PROCESS" and the like: a prefix followed by an
// option name, compared without regard to case.
bool IsOptionWord(std::string_view argument);

// Joins the program's arguments (without the program itself) into a raw
// command line: option words stay bare, every other argument goes into double
// quotes, so that paths beginning with "/" and values with blanks survive the
// parser.
std::string RawCommandLineFromArgs(const std::vector<std::string>& args);

}  // namespace flowloom
