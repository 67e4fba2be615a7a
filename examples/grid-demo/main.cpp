// Try the property grid by hand: every row type, with the events logged
// beside it.
#include "DemoGrid.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QPlainTextEdit>

using flowloom::grid::PropertyList;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle("Property grid");
    auto* layout = new QHBoxLayout(&window);
    auto* grid = new PropertyList(&window);
    auto* log = new QPlainTextEdit(&window);
    log->setReadOnly(true);
    layout->addWidget(grid, 3);
    layout->addWidget(log, 2);

    flowloom::grid::demo::LoggingSink sink([log](const std::string& line) { log->appendPlainText(QString::fromStdString(line)); });
    grid->SetCallbackSink(&sink);
    QObject::connect(grid, &PropertyList::Click, [log] { log->appendPlainText("Click"); });
    QObject::connect(grid, &PropertyList::DblClick, [log] { log->appendPlainText("DblClick"); });
    QObject::connect(grid, &PropertyList::Scroll, [log] { log->appendPlainText("Scroll"); });
    QObject::connect(grid, &PropertyList::ErrorRaised, [log](const flowloom::VbError& error) {
        log->appendPlainText(QString::fromStdString("Error " + std::to_string(error.Number()) + " " + error.Description() + " (" + error.Source() + ")"));
    });
    flowloom::grid::demo::FillDemoGrid(*grid);

    window.resize(760, 480);
    window.show();
    const int result = app.exec();
    grid->SetCallbackSink(nullptr);
    return result;
}
