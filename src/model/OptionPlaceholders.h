#pragma once

#include <string>
#include <string_view>

namespace flowloom {

class Options;
class Processes;

// A value of the options: the attribute `name` of the group `group`, or ""
// when the options, the group or the value is missing. Readers of options
// take their defaults then.
std::string OptionValue(const Options* options, std::string_view group, std::string_view name);

// The folder of the first database's Location with its closing separator;
// "" when the file has no database.
std::string DatabaseFolder(const Processes& processes);

// A default value as the options dialog shows it: "{DatabaseFolder}",
// "{Templates}", "{Documents}" and "{Tools}" replaced, in that order and
// without regard to case. The values in the model keep their placeholders.
std::string ReplaceOptionPlaceholders(std::string_view value, const Processes& processes);

}  // namespace flowloom
