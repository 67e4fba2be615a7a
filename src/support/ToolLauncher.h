#pragma once

#include <optional>
#include <string>

namespace flowloom {

// Starts the external editor tool and keeps track of it: the platform's part
// of editing a mail body or a template outside the designer. Only one tool
// runs at a time. The window's implementation starts a process; the session
// simulates one.
class ToolLauncher {
public:
    virtual ~ToolLauncher() = default;
    // Starts `program` with `arguments`, the switches as one command-line
    // text (" /p /file \"PATH\""). False when the program could not start.
    virtual bool Start(const std::string& program, const std::string& arguments) = 0;
    // Waits at most `milliseconds` for the started tool to show its window
    // and gives the window's title; nullopt when no window was shown in time.
    virtual std::optional<std::string> WaitForWindow(int milliseconds) = 0;
    // Brings the tool's window in front of the designer; false when the tool
    // has no window any more.
    virtual bool BringToFront() = 0;
    // Whether the started tool still runs.
    virtual bool Running() const = 0;
};

// A launcher that cannot start anything: the default until a front end
// installs its own.
class NoToolLauncher : public ToolLauncher {
public:
    bool Start(const std::string&, const std::string&) override { return false; }
    std::optional<std::string> WaitForWindow(int) override { return std::nullopt; }
    bool BringToFront() override { return false; }
    bool Running() const override { return false; }
};

// The launcher in use; never null.
ToolLauncher& CurrentToolLauncher();
// Installs `launcher` (not owned; nullptr restores the default) and returns
// the previous one.
ToolLauncher* SetCurrentToolLauncher(ToolLauncher* launcher);

}  // namespace flowloom
