#pragma once

#include <QByteArray>
#include <QObject>

class QSocketNotifier;

namespace flowloom::markuploom {

// Reads commands from standard input, one per line, without blocking the
// window: the caller's way to reach the tool's window. End of input just
// stops the reading.
class StdinCommands : public QObject {
    Q_OBJECT
public:
    explicit StdinCommands(QObject* parent = nullptr);

signals:
    // A line without its line end and surrounding blanks.
    void command(const QString& line);

private:
    void ReadAvailable();

    QSocketNotifier* notifier_;
    QByteArray pending_;
};

}  // namespace flowloom::markuploom
