#include "StdinCommands.h"

#include <QSocketNotifier>
#include <QString>

#include <cerrno>
#include <unistd.h>

namespace flowloom::markuploom {

StdinCommands::StdinCommands(QObject* parent)
    : QObject(parent), notifier_(new QSocketNotifier(STDIN_FILENO, QSocketNotifier::Read, this)) {
    connect(notifier_, &QSocketNotifier::activated, this, &StdinCommands::ReadAvailable);
}

void StdinCommands::ReadAvailable() {
    char buffer[4096];
    const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
    if (count < 0 && (errno == EINTR || errno == EAGAIN)) return;
    if (count <= 0) {
        notifier_->setEnabled(false);  // the caller closed its end
        return;
    }
    pending_.append(buffer, count);
    qsizetype end;
    while ((end = pending_.indexOf('\n')) >= 0) {
        const QString line = QString::fromUtf8(pending_.left(end)).trimmed();
        pending_.remove(0, end + 1);
        if (!line.isEmpty()) emit command(line);
    }
}

}  // namespace flowloom::markuploom
