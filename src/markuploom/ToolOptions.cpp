#include "ToolOptions.h"

#include <QProcess>

namespace flowloom::markuploom {

namespace {

bool Is(const QString& argument, const char* name) { return argument.compare(QLatin1String(name), Qt::CaseInsensitive) == 0; }

// A whole command line given as one argument, split in place.
void SplitCommandLineAt(QStringList& arguments, qsizetype index) {
    const QString argument = arguments.at(index);
    if (!argument.contains(u' ') || !argument.trimmed().startsWith(u'/')) return;
    const QStringList parts = QProcess::splitCommand(argument);
    arguments.removeAt(index);
    for (qsizetype i = 0; i < parts.size(); ++i) arguments.insert(index + i, parts.at(i));
}

// The value after the switch at `index`; sets the error when it is missing.
QString ValueAfter(const QStringList& arguments, qsizetype& index, ToolOptions& options) {
    if (index + 1 >= arguments.size()) {
        options.error = arguments.at(index) + QStringLiteral(" needs a value");
        return {};
    }
    return arguments.at(++index);
}

}  // namespace

ToolOptions ParseToolArguments(QStringList arguments) {
    ToolOptions options;
    for (qsizetype i = 0; i < arguments.size() && options.error.isEmpty(); ++i) {
        SplitCommandLineAt(arguments, i);
        const QString argument = arguments.at(i);
        if (Is(argument, "--help") || Is(argument, "-h") || Is(argument, "/?")) options.help = true;
        else if (Is(argument, "--version")) options.version = true;
        else if (Is(argument, "/p")) options.plainText = true;
        else if (Is(argument, "/noconvert")) options.noConvert = true;
        else if (Is(argument, "/file")) options.file = ValueAfter(arguments, i, options);
        else if (Is(argument, "/args")) options.arguments = ValueAfter(arguments, i, options);
        else options.error = QStringLiteral("unknown argument: ") + argument;
    }
    if (options.error.isEmpty() && !options.help && !options.version && options.file.isEmpty())
        options.error = QStringLiteral("no file given (/file PATH)");
    return options;
}

QString UsageText() {
    return QStringLiteral(
        "Usage: markuploom [/p] /file PATH [/args TEXT] [/noconvert]\n"
        "       markuploom --help | --version\n"
        "\n"
        "Edits the mail body in PATH and writes it back when the window closes.\n"
        "  /p           the text is plain text (line ends marked with <P> are read back as lines)\n"
        "  /file PATH   the file to edit\n"
        "  /args TEXT   arguments of the caller, kept as they stand\n"
        "  /noconvert   an HTML text is kept as it is: no plain text is turned into HTML\n"
        "\n"
        "Standard output gets 'window: TITLE' once the window shows; standard input\n"
        "takes 'raise' (bring the window to the front) and 'close' (save and quit).\n");
}

}  // namespace flowloom::markuploom
