#include "GridTestSupport.h"

#include <QVBoxLayout>

#include <algorithm>

namespace flowloom::grid::testing {

std::int32_t ErrorNumber(const std::function<void()>& call, std::string* source) {
    try {
        call();
    } catch (const VbError& error) {
        if (source) *source = error.Source();
        return error.Number();
    }
    return 0;
}

bool RecordingEvents::Logged(const std::string& entry) const { return std::find(log.begin(), log.end(), entry) != log.end(); }

std::size_t RecordingEvents::Count(const std::string& prefix) const {
    return static_cast<std::size_t>(std::count_if(log.begin(), log.end(), [&](const std::string& e) { return e.rfind(prefix, 0) == 0; }));
}

std::vector<Property*> ShownRows(PropertyList& grid) {
    const QWidget* viewport = grid.findChild<QAbstractScrollArea*>("lst")->viewport();
    std::vector<Property*> shown;
    for (int y = 0; y < viewport->height(); ++y) {
        const QPoint at = viewport->mapTo(&grid, QPoint(10, y));
        Property* row = grid.HitTest(at.x(), at.y());
        if (row && (shown.empty() || shown.back() != row)) shown.push_back(row);
    }
    return shown;
}

GridHarness::GridHarness() : window_(std::make_unique<QWidget>()) {
    auto* layout = new QVBoxLayout(window_.get());
    grid_ = new PropertyList(window_.get());
    layout->addWidget(grid_);
    window_->resize(360, 300);
    window_->show();
    QApplication::setActiveWindow(window_.get());
    grid_->setFocus();
    grid_->SetCallbackSink(&sink);
}

GridHarness::~GridHarness() { grid_->SetCallbackSink(nullptr); }

QWidget* GridHarness::List() const { return grid_->findChild<QAbstractScrollArea*>("lst")->viewport(); }
QLineEdit* GridHarness::Edit() const { return grid_->findChild<QLineEdit*>("txtValue"); }
QWidget* GridHarness::Button() const { return grid_->findChild<QWidget*>("pic"); }
QWidget* GridHarness::DropList() const { return grid_->findChild<QWidget*>("cbo"); }
QListWidget* GridHarness::DropEntries() const { return DropList()->findChild<QListWidget*>(); }
QWidget* GridHarness::Memo() const { return grid_->findChild<QWidget*>("txt"); }

QPoint GridHarness::Cell(int visibleIndex, bool value) const {
    int seen = -1;
    for (int y = 0; y < List()->height(); ++y) {
        const QPoint inGrid = List()->mapTo(grid_, QPoint(10, y));
        Property* row = grid_->HitTest(inGrid.x(), inGrid.y());
        Property* above = y > 0 ? grid_->HitTest(inGrid.x(), inGrid.y() - 1) : nullptr;
        if (row && row != above && ++seen == visibleIndex)
            return QPoint(value ? grid_->DividerLeft() + 20 : grid_->DividerLeft() / 2, y + 4);
    }
    return {};
}

void GridHarness::ClickCell(int visibleIndex, bool value) { QTest::mouseClick(List(), Qt::LeftButton, {}, Cell(visibleIndex, value)); }

void GridHarness::DoubleClickCell(int visibleIndex, bool value) {
    const QPoint at = Cell(visibleIndex, value);
    QTest::mouseClick(List(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(List(), Qt::LeftButton, {}, at);
}

void GridHarness::ClickButton(QPoint at) {
    QTest::mouseClick(Button(), Qt::LeftButton, {}, at.isNull() ? Button()->rect().center() : at);
}

void GridHarness::Key(QWidget* target, Qt::Key key, Qt::KeyboardModifiers modifiers) { QTest::keyClick(target, key, modifiers); }

}  // namespace flowloom::grid::testing
