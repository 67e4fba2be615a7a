#include "WindowFixture.h"

#include "app/CommandLine.h"
#include "grid/widget/PropertyList.h"
#include "grid/widget/RowListView.h"

#include <QApplication>

#include <filesystem>

namespace flowloom::designer::window::testing {

namespace {

// One application object for the whole run, made before the first test.
class QtEnvironment : public ::testing::Environment {
public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
        app_ = std::make_unique<QApplication>(argc_, argv_);
    }
    void TearDown() override { app_.reset(); }

private:
    int argc_ = 1;
    char name_[32] = "designer_window_tests";
    char* argv_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> app_;
};

[[maybe_unused]] const auto* const kEnvironment = ::testing::AddGlobalTestEnvironment(new QtEnvironment);

}  // namespace

void WindowTest::SetUp() {
    const auto file = folder / "letters.xml";
    std::filesystem::copy_file(test::SourceDir() / "examples/letters.xml", file);
    window_ = std::make_unique<MainWindow>();
    ASSERT_TRUE(window_->Load(RawCommandLineFromArgs({"-xmlfile", file.string()})));
    window_->show();
    QApplication::setActiveWindow(window_.get());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    Settle();
}

void WindowTest::TearDown() {
    // Nothing was edited that should be saved: leave without the question.
    window_.reset();
}

int WindowTest::ClickGridRow(grid::PropertyList& grid, const std::string& caption) {
    for (int y = 0; y < grid.height(); ++y) {
        const grid::Property* row = grid.HitTest(10, y);
        if (!row || row->Caption() != caption) continue;
        auto* list = grid.findChild<grid::RowListView*>();
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->viewport()->mapFrom(&grid, QPoint(10, y + 2)));
        return y;
    }
    return -1;
}

void WindowTest::Settle() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
}

void WindowTest::ClickCell(Strip strip, int row, int cell, Qt::MouseButton button) {
    CanvasView& canvas = Canvas(strip);
    const auto rect = canvas.CellRect(row, cell);
    ASSERT_TRUE(rect.has_value()) << "no cell " << row << "," << cell;
    QTest::mouseClick(canvas.viewport(), button, {}, rect->center());
    Settle();
}

void WindowTest::Key(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    QTest::keyClick(focus, key, modifiers);
    Settle();
}

}  // namespace flowloom::designer::window::testing
