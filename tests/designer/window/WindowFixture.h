#pragma once

#include "designer/window/CanvasView.h"
#include "designer/window/MainWindow.h"
#include "testsupport/ScriptedPrompts.h"
#include "testsupport/TempFolder.h"

#include <QtTest/QTest>

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace flowloom::grid {
class PropertyList;
}

namespace flowloom::designer::window::testing {

// The designer's window on a copy of the example file, shown offscreen and
// active, with every box answered by a script.
class WindowTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    MainWindow& Window() { return *window_; }
    frmDesigner& Core() { return window_->Core(); }
    CanvasView& Canvas(Strip strip) { return window_->Canvas(strip); }
    // Clicks the middle of a cell of a canvas with the mouse button.
    void ClickCell(Strip strip, int row, int cell, Qt::MouseButton button = Qt::LeftButton);
    // Types a key into whatever has the keyboard focus.
    void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    // Clicks the row of the grid with that caption; its top in pixels, or -1.
    static int ClickGridRow(grid::PropertyList& grid, const std::string& caption);
    // Lets queued layout and painting happen.
    static void Settle();

    test::ScriptedPrompts prompts;
    test::TempFolder folder;

private:
    std::unique_ptr<MainWindow> window_;
};

}  // namespace flowloom::designer::window::testing
