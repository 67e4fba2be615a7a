#pragma once

#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"
#include "model/Processes.h"
#include "support/AppPaths.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace flowloom::test {

// A temporary program folder (so errorlog.txt and default files stay in it)
// and scripted prompts for every test of the model.
class ModelFixture : public ::testing::Test {
protected:
    ModelFixture() { SetProgramFolder(folder.Path()); }
    ~ModelFixture() override { SetProgramFolder({}); }

    // Writes `text` to a file in the temporary folder and loads it.
    std::shared_ptr<Processes> LoadText(const std::string& text, const std::string& name = "processes.xml") {
        const auto path = folder / name;
        WriteAll(path, text);
        auto processes = Processes::Create();
        processes->Load(path.string());
        return processes;
    }

    static std::string Document(const std::string& body) {
        return R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1">)" + body + "</Processes>";
    }

    TempFolder folder;
    ScriptedPrompts prompts;
};

}  // namespace flowloom::test
