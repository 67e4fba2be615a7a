#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace flowloom::cli {

// Runs flowloom-cli with its arguments (without the program name). Exit
// codes: 0 success, 1 the command ran and found a problem, 2 bad arguments or
// a file that could not be read. A session reads its script from standard input.
int Run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
// The same with the script of a session read from `in`.
int Run(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err);

// From now on the models that commands load are kept until the program
// ends instead of being freed when a command is done: freeing a large model
// object by object takes nearly as long as loading it, and a program that
// ends at once (see main) hands its memory back to the system in one go.
void KeepModelsUntilExit();

}  // namespace flowloom::cli
