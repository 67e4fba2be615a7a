#pragma once

#include <cstddef>
#include <string>

namespace flowloom::bench {

// A deterministic processes file of about `targetBytes` bytes: many
// processes, every activity kind, datasources, documents, groups, field
// values, databases and options, in the form the writer produces.
std::string MakeSyntheticProcessesFile(std::size_t targetBytes);

}  // namespace flowloom::bench
