#pragma once

#include "model/Processes.h"
#include "support/AppPaths.h"
#include "support/ModalDialog.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace flowloom::test {

// Scripted prompts that also keep what each input box asked.
class RecordingPrompts : public ScriptedPrompts {
public:
    struct Input {
        std::string prompt, title, defaultText;
    };
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title,
                                        const std::string& defaultText) override {
        asked.push_back({prompt, title, defaultText});
        return ScriptedPrompts::InputBox(prompt, title, defaultText);
    }
    std::vector<Input> asked;
};

// A processes file loaded from text in a temporary program folder, with
// prompts that answer from a script.
class DialogFixture : public ::testing::Test {
protected:
    DialogFixture() { SetProgramFolder(folder.Path()); }
    ~DialogFixture() override {
        if (processes) processes->Dispose();
        SetProgramFolder({});
    }

    // Loads <Processes> with `body` inside.
    std::shared_ptr<Processes> Load(const std::string& body) {
        WriteAll(folder / "processes.xml",
                 R"(<?xml version="1.0" encoding="UTF-8"?><Processes Version="1">)" + body + "</Processes>");
        processes = Processes::Create();
        processes->Load((folder / "processes.xml").string());
        return processes;
    }

    static const std::vector<std::string>& Entries(const ModalDialog& dialog, const char* name) {
        return dialog.Find(name)->entries;
    }
    static const std::string& Text(const ModalDialog& dialog, const char* name) { return dialog.Find(name)->text; }
    static bool Enabled(const ModalDialog& dialog, const char* name) { return dialog.Find(name)->enabled; }

    TempFolder folder;
    RecordingPrompts prompts;
    std::shared_ptr<Processes> processes;
};

}  // namespace flowloom::test
