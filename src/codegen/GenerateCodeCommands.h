#pragma once

#include <memory>
#include <optional>
#include <string>

namespace flowloom {

class Process;
class Processes;

// "Use process classes only": the macro rebuilds the process object by
// object. Returns the macro, which has also gone to the text window.
std::string GenerateCodeWithoutXML(const std::shared_ptr<Processes>& processes, const std::shared_ptr<Process>& process);

// "Load process from XML": the macro names the process and loads it from
// the processes file at run time, so both must have a name. Otherwise a
// message box says which is missing and nothing is generated (nullopt).
std::optional<std::string> GenerateCodeWithXML(const std::shared_ptr<Processes>& processes,
                                               const std::shared_ptr<Process>& process);

}  // namespace flowloom
