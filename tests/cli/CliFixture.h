#pragma once

#include "cli/Cli.h"

#include "support/AppPaths.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

namespace flowloom::test {

// flowloom-cli driven through its entry point, with a temporary program
// folder and the output of the last run.
class CliFixture : public ::testing::Test {
protected:
    CliFixture() { SetProgramFolder(folder.Path()); }
    ~CliFixture() override { SetProgramFolder({}); }

    int Run(std::vector<std::string> args) {
        out.str({});
        err.str({});
        return cli::Run(args, out, err);
    }
    // A fresh copy of the bundled example.
    std::string Example() {
        const auto path = folder / "letters.xml";
        std::filesystem::copy_file(SourceDir() / "examples/letters.xml", path,
                                   std::filesystem::copy_options::overwrite_existing);
        return path.string();
    }

    TempFolder folder;
    std::ostringstream out;
    std::ostringstream err;
};

}  // namespace flowloom::test
