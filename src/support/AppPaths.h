#pragma once

#include <filesystem>
#include <string>

namespace flowloom {

// The title the program shows in its boxes and uses as the source of errors.
std::string AppTitle();
std::string AppVersion();

// The folder of the running executable (where "messages.xml" and the help
// file live). Tests may point it elsewhere.
std::filesystem::path ProgramFolder();
void SetProgramFolder(const std::filesystem::path& folder);  // empty restores the real one

// Where the program writes files that belong beside it (errorlog.txt, the
// default processes file, icons): the program's folder when it is writable,
// else $XDG_STATE_HOME/flowloom (~/.local/state/flowloom), created on demand.
std::filesystem::path WritableProgramFolder();
// A folder of files the program makes for itself and can make again (the
// cell pictures): NAME in the program's folder where that can be written,
// else $XDG_CACHE_HOME/flowloom/NAME (~/.cache/flowloom/NAME). Created on demand.
std::filesystem::path WritableProgramSubfolder(const std::string& name);

}  // namespace flowloom
