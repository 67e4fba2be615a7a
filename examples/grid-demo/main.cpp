// Try the property grid by hand: every row type, with the events logged
// beside it.
#include "DemoGrid.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QVBoxLayout>

using flowloom::grid::PropertyList;

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget window;
    window.setWindowTitle("Property grid");
    auto* layout = new QHBoxLayout(&window);
    auto* grid = new PropertyList(&window);
    auto* log = new QPlainTextEdit(&window);
    log->setReadOnly(true);
    log->setFocusPolicy(Qt::ClickFocus);
    auto* note = new QLineEdit(&window);  // somewhere for Tab to go
    note->setPlaceholderText("Tab leaves the grid for this box");
    auto* side = new QVBoxLayout;
    side->addWidget(log);
    side->addWidget(note);
    layout->addWidget(grid, 3);
    layout->addLayout(side, 2);

    const auto append = [log](const QString& line) {
        log->appendPlainText(line);
        log->verticalScrollBar()->setValue(log->verticalScrollBar()->maximum());
    };
    flowloom::grid::demo::LoggingSink sink([append](const std::string& line) { append(QString::fromStdString(line)); });
    grid->SetCallbackSink(&sink);
    QObject::connect(grid, &PropertyList::Click, [append] { append("Click"); });
    QObject::connect(grid, &PropertyList::DblClick, [append] { append("DblClick"); });
    QObject::connect(grid, &PropertyList::Scroll, [append] { append("Scroll"); });
    QObject::connect(grid, &PropertyList::ErrorRaised, [append](const flowloom::VbError& error) {
        append(QString::fromStdString("Error " + std::to_string(error.Number()) + " " + error.Description() + " (" + error.Source() + ")"));
    });
    flowloom::grid::demo::FillDemoGrid(*grid);

    window.resize(760, 480);
    window.show();
    const int result = app.exec();
    grid->SetCallbackSink(nullptr);
    return result;
}
