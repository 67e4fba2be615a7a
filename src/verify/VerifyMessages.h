#pragma once

#include <string>

namespace flowloom {

// The text of a verification finding, with "{%1}", "{%2}", ... where its
// arguments go. A number outside 0 to 57 gives "Error not specified".
std::string VerifyMessage(int number);

// Numbers of the findings after which the stop-at-first-error mode offers a
// download.
namespace verifymsg {
inline constexpr int DistillerMissing = 43;
inline constexpr int SaveAsPdfMissing = 47;
}  // namespace verifymsg

// The executable's extension that belongs to an application: "Microsoft
// Access" for accdb, mdb, mde, adp, ade (without the compiled mde and ade
// when `noCompiled`), else "". Compared exactly: "MDB" is not known.
std::string ApplicationOfExtension(const std::string& extension, bool noCompiled);

}  // namespace flowloom
