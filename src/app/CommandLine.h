#pragma once

#include <string>
#include <string_view>
#include <vector>

// mCommandLine and mCommandLineConfig: the options the designer is started with.
namespace flowloom {

// A further option is one more word here; the values follow its order.
inline constexpr const char* kCommandLineOptions = "xmlfile;process;activeobject;fields";
inline constexpr const char* kCommandLinePrefixes = "-;/";

enum CommandLineIndex : std::size_t { ArgXmlFile = 0, ArgProcess = 1, ArgActiveObject = 2, ArgFields = 3 };

// The stand-in for an option given without a value.
inline constexpr const char* kEmptyValue = "{empty}";

// The value of each option by its place in the option list; "" where the
// option was not given.
class CommandLineArguments {
public:
    // The value at an index; "" before parsing or above the last index.
    const std::string& Value(std::size_t index) const;
    std::size_t Size() const noexcept { return values_.size(); }

    // Parses a raw command line. Options are found anywhere, without regard
    // to case, with "-" or "/" in front; a value runs to the next blank and
    // prefix outside quotes, loses its enclosing double quotes, and is
    // "{empty}" when nothing is left.
    void Parse(std::string_view commandLine);

private:
    std::vector<std::string> values_;
};

// The shared arguments of the program (gCommandLineArguments).
CommandLineArguments& gCommandLineArguments();

// The program's raw command line: set once at start from the arguments.
void SetRawCommandLine(std::string commandLine);
// Fills the shared arguments from the raw command line and hands that line
// back through the argument. Failures are reported and leave the values read
// so far.
void GetCommandLineArguments(std::string& commandLine);

// Joins program arguments into a raw command line: option words ("-xmlfile",
// "/PROCESS", ...) stay bare, every other argument is put in double quotes
// so that paths starting with "/" and values with blanks survive the parser.
std::string RawCommandLineFromArgs(const std::vector<std::string>& args);

}  // namespace flowloom
