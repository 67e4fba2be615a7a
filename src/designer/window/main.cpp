// flowloom: the designer window.
#include "app/CommandLine.h"
#include "designer/window/LaunchOptions.h"
#include "designer/window/MainWindow.h"
#include "designer/window/QtPrompts.h"
#include "support/AppPaths.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QTimer>

#include <iostream>

namespace {

using flowloom::designer::window::MainWindow;

// Shows the window, lets it paint, and saves what it shows.
int Screenshot(QApplication& app, MainWindow& window, const QString& file) {
    window.show();
    int result = 1;
    QTimer::singleShot(300, &window, [&] {
        QApplication::processEvents();
        if (window.grab().save(file, "PNG")) {
            std::cout << file.toStdString() << '\n';
            result = 0;
        } else {
            std::cerr << "flowloom: could not write " << file.toStdString() << '\n';
        }
        app.quit();
    });
    app.exec();
    return result;
}

// Prints the time from the program's start to the first paint of the
// window, then ends the program: the start-up a person waits for.
class FirstPaintTimer : public QObject {
public:
    explicit FirstPaintTimer(const QElapsedTimer& since) : since_(since) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !reported_) {
            reported_ = true;
            std::cout << "first paint after " << since_.elapsed() << " ms\n";
            QTimer::singleShot(0, qApp, &QApplication::quit);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    const QElapsedTimer& since_;
    bool reported_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    std::vector<std::string> args(argv + (argc > 0 ? 1 : 0), argv + argc);
    const auto options = flowloom::designer::window::ParseLaunchOptions(args);
    if (!options.error.empty()) {
        std::cerr << "flowloom: " << options.error << "\n\n" << flowloom::designer::window::UsageText();
        return 2;
    }
    if (options.help) {
        std::cout << flowloom::designer::window::UsageText();
        return 0;
    }
    if (options.version) {
        std::cout << flowloom::AppTitle() << ' ' << flowloom::AppVersion() << '\n';
        return 0;
    }

    QApplication app(argc, argv);
    QApplication::setApplicationName(QString::fromStdString(flowloom::AppTitle()));
    QApplication::setApplicationVersion(QString::fromStdString(flowloom::AppVersion()));
    flowloom::designer::window::QtPrompts prompts;
    flowloom::ScopedPrompts installed(prompts);

    MainWindow window;
    prompts.SetParent(&window);
    QObject::connect(&window, &MainWindow::Unloaded, &app, &QApplication::quit, Qt::QueuedConnection);
    if (!window.Load(flowloom::RawCommandLineFromArgs(options.designerArgs))) return 1;
    if (options.screenshot) return Screenshot(app, window, QString::fromStdString(*options.screenshot));
    FirstPaintTimer firstPaint(sinceStart);
    if (options.startupTime) window.installEventFilter(&firstPaint);
    window.show();
    return app.exec();
}
