// markuploom: edits a mail body in a file and writes it back on closing.
#include "EditorWindow.h"
#include "StdinCommands.h"
#include "ToolOptions.h"

#include <QApplication>

#include <algorithm>
#include <cstdio>

namespace {

using flowloom::markuploom::ParseToolArguments;
using flowloom::markuploom::ToolOptions;
using flowloom::markuploom::UsageText;

QStringList ArgumentsOf(int argc, char** argv) {
    QStringList arguments;
    for (int i = 1; i < argc; ++i) arguments << QString::fromLocal8Bit(argv[i]);
    return arguments;
}

// Help and version need no display; anything else is answered here when the
// command line is unusable. Whether the program is done.
bool Answered(const ToolOptions& options, int& exitCode) {
    if (options.help) {
        std::fputs(qPrintable(UsageText()), stdout);
        exitCode = 0;
    } else if (options.version) {
        std::fputs("markuploom " MARKUPLOOM_VERSION "\n", stdout);
        exitCode = 0;
    } else if (!options.error.isEmpty()) {
        std::fprintf(stderr, "markuploom: %s\n%s", qPrintable(options.error), qPrintable(UsageText()));
        exitCode = 2;
    } else {
        return false;
    }
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    int exitCode = 0;
    const QStringList raw = ArgumentsOf(argc, argv);
    ToolOptions early = ParseToolArguments(raw);
    // An option of the toolkit ("-platform offscreen") is no error before the toolkit has taken it.
    const bool toolkitOptions = std::any_of(raw.begin(), raw.end(), [](const QString& a) { return a.startsWith(u'-'); });
    if (toolkitOptions) early.error.clear();
    if (Answered(early, exitCode)) return exitCode;

    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("markuploom"));
    QApplication::setApplicationVersion(QStringLiteral(MARKUPLOOM_VERSION));
    // Read again without the toolkit's own options (-platform, -style, ...).
    const ToolOptions options = ParseToolArguments(QApplication::arguments().mid(1));
    if (Answered(options, exitCode)) return exitCode;

    flowloom::markuploom::EditorWindow window(options);
    QString error;
    if (!window.Load(error)) {
        std::fprintf(stderr, "markuploom: cannot read %s: %s\n", qPrintable(options.file), qPrintable(error));
        return 1;
    }
    flowloom::markuploom::StdinCommands commands;
    QObject::connect(&commands, &flowloom::markuploom::StdinCommands::command, &window,
                     &flowloom::markuploom::EditorWindow::RunCommand);
    window.show();
    const int result = QApplication::exec();
    return window.SaveFailed() ? 1 : result;
}
