#pragma once

#include "support/ToolLauncher.h"

#include <QByteArray>
#include <QObject>

#include <memory>
#include <optional>
#include <string>

class QProcess;

namespace flowloom::designer::window {

// Starts the editor tool as a child process and follows it through its
// standard streams: the tool writes "window: TITLE" once its window shows
// and takes "raise" and "close" as lines on its input.
class QtToolLauncher : public QObject, public ToolLauncher {
    Q_OBJECT
public:
    explicit QtToolLauncher(QObject* parent = nullptr);
    // A tool that still runs is asked to close (it saves its file), and
    // stopped when it does not end soon.
    ~QtToolLauncher() override;

    // `arguments` is one command line, split as the tool's own would be.
    // False while another tool runs or when the program does not start.
    bool Start(const std::string& program, const std::string& arguments) override;
    // The title of the tool's window: at once when the tool announces it
    // within the time; the title announced before when the time runs out
    // with the tool still running; nullopt when it never showed a window.
    std::optional<std::string> WaitForWindow(int milliseconds) override;
    bool BringToFront() override;
    bool Running() const override;

    // Asks the tool to save its file and end; false when none runs.
    bool Close();

signals:
    // The started tool has ended.
    void finished();

private:
    // Takes the complete lines the tool has written; whether one named a window.
    bool ReadWindowLines();
    bool SendLine(const char* line);

    std::unique_ptr<QProcess> process_;
    QByteArray pending_;
    std::optional<std::string> title_;
};

}  // namespace flowloom::designer::window
