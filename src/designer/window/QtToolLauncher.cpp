#include "designer/window/QtToolLauncher.h"

#include <QDeadlineTimer>
#include <QProcess>

#include <string>

namespace flowloom::designer::window {

namespace {
constexpr int kStartMilliseconds = 5000;
constexpr int kCloseMilliseconds = 3000;
const QByteArray kWindowPrefix = "window: ";
}  // namespace

QtToolLauncher::QtToolLauncher(QObject* parent) : QObject(parent) {}

QtToolLauncher::~QtToolLauncher() {
    if (!Running()) return;
    disconnect(process_.get(), nullptr, this, nullptr);
    if (!Close() || !process_->waitForFinished(kCloseMilliseconds)) {
        process_->kill();
        process_->waitForFinished(kCloseMilliseconds);
    }
}

bool QtToolLauncher::Start(const std::string& program, const std::string& arguments) {
    if (Running()) return false;
    if (process_) disconnect(process_.get(), nullptr, this, nullptr);
    process_ = std::make_unique<QProcess>();
    pending_.clear();
    title_.reset();
    process_->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_->setProgram(QString::fromStdString(program));
    process_->setArguments(QProcess::splitCommand(QString::fromStdString(arguments)));
    connect(process_.get(), &QProcess::finished, this, [this] { emit finished(); });
    process_->start();
    return process_->waitForStarted(kStartMilliseconds);
}

bool QtToolLauncher::ReadWindowLines() {
    pending_ += process_->readAllStandardOutput();
    bool shown = false;
    qsizetype end;
    while ((end = pending_.indexOf('\n')) >= 0) {
        const QByteArray line = pending_.left(end).trimmed();
        pending_.remove(0, end + 1);
        if (!line.startsWith(kWindowPrefix)) continue;
        title_ = line.mid(kWindowPrefix.size()).toStdString();
        shown = true;
    }
    return shown;
}

std::optional<std::string> QtToolLauncher::WaitForWindow(int milliseconds) {
    if (!process_) return std::nullopt;
    const QDeadlineTimer deadline(milliseconds);
    bool shown = ReadWindowLines();
    while (!shown && Running() && !deadline.hasExpired()) {
        if (!process_->waitForReadyRead(static_cast<int>(deadline.remainingTime()))) break;
        shown = ReadWindowLines();
    }
    if (!Running()) {
        ReadWindowLines();
        return std::nullopt;  // its window went with it
    }
    return title_;
}

bool QtToolLauncher::SendLine(const char* line) {
    if (!Running()) return false;
    const qint64 size = static_cast<qint64>(std::char_traits<char>::length(line));
    // Written at once, so that the tool sees the line even while the
    // designer's event loop is not running.
    return process_->write(line, size) == size && process_->waitForBytesWritten(kCloseMilliseconds);
}

bool QtToolLauncher::BringToFront() { return SendLine("raise\n"); }

bool QtToolLauncher::Close() { return SendLine("close\n"); }

bool QtToolLauncher::Running() const { return process_ && process_->state() != QProcess::NotRunning; }

}  // namespace flowloom::designer::window
