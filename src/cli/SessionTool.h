#pragma once

#include "support/ToolLauncher.h"

#include <optional>
#include <ostream>
#include <string>

namespace flowloom::cli {

// The mail-body tool of a session: starting it prints a transcript line and
// "shows" its window at once, titled as the real tool titles it; the script
// ends it with `tool-close TEXT`, which leaves TEXT in the exchange file.
class SessionToolLauncher : public ToolLauncher {
public:
    explicit SessionToolLauncher(std::ostream& out) : out_(out) {}
    // A session that ends while the tool "runs" leaves no exchange file.
    ~SessionToolLauncher() override;
    SessionToolLauncher(const SessionToolLauncher&) = delete;
    SessionToolLauncher& operator=(const SessionToolLauncher&) = delete;

    bool Start(const std::string& program, const std::string& arguments) override;
    std::optional<std::string> WaitForWindow(int milliseconds) override;
    bool BringToFront() override { return running_; }
    bool Running() const override { return running_; }

    // Writes `text` into the exchange file named by the switches and ends
    // the tool; false when no tool runs.
    bool Close(const std::string& text);

private:
    std::ostream& out_;
    bool running_ = false;
    bool plainText_ = false;
    std::string file_;
};

}  // namespace flowloom::cli
