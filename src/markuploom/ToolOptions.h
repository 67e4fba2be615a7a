#pragma once

#include <QString>
#include <QStringList>

namespace flowloom::markuploom {

// What the command line asks for.
struct ToolOptions {
    bool plainText = false;  // /p
    QString file;            // /file PATH
    QString arguments;       // /args TEXT, handed on by the caller as they stand
    bool noConvert = false;  // /noconvert
    bool help = false;       // --help
    bool version = false;    // --version
    QString error;           // set when the command line is unusable
};

// Reads the switches (without the program's name). Switch names disregard
// case; an argument in a switch's place that holds several words is read as
// a command line of its own, so that the switches may come as one text.
ToolOptions ParseToolArguments(QStringList arguments);

QString UsageText();

}  // namespace flowloom::markuploom
