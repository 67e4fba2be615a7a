#pragma once

#include "grid/widget/PropertyList.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace flowloom::grid::testing {

// Logs every window-free notification and lets a test decide the answers,
// as a property sheet would handle them.
class RecordingEvents : public virtual PropertyEvents {
public:
    std::vector<std::string> log;
    bool cancel = false;
    std::vector<std::string> listItems;
    std::function<void(Property&, std::string&)> onValueChanged;
    std::function<void(Property&, std::string&)> onBrowse;

    void KeyDownEdit(int& code, int) override { log.push_back("KeyDownEdit " + std::to_string(code)); }
    void KeyPressEdit(int& ascii) override { log.push_back("KeyPressEdit " + std::to_string(ascii)); }
    void KeyUpEdit(int, int) override {}
    void NeedData(Property& row, std::vector<std::string>& items) override {
        log.push_back("NeedData " + row.name());
        items = listItems;
    }
    void SelChange(Property* oldRow, Property* newRow) override { log.push_back("SelChange " + oldRow->name() + ">" + newRow->name()); }
    void ValueChanged(Property& row, std::string& value, bool& Cancel) override {
        log.push_back("ValueChanged " + row.name() + "=" + value);
        Cancel = cancel;
        if (onValueChanged) onValueChanged(row, value);
    }
    void QueryCustomData(Property&, std::string&) override {}
    void GetPredefinedStrings(Property&, std::vector<std::string>&) override {}
    void ShowEditControl(Property&, int, int, int, int, bool&) override {}
    void HideEditControl() override {}
    void Expand(Property& row) override { log.push_back("Expand " + row.name()); }
    void Collapse(Property& row) override { log.push_back("Collapse " + row.name()); }
    void ODCommitPending(Property& row) override { log.push_back("ODCommitPending " + row.name()); }
    void Browse(Property& row, std::string& fillWith) override {
        log.push_back("Browse " + row.name());
        if (onBrowse) onBrowse(row, fillWith);
    }
    void DropdownPick(Property& row, int index) override { log.push_back("DropdownPick " + row.name() + " " + std::to_string(index)); }
    void PreExpand(Property& row) override { log.push_back("PreExpand " + row.name()); }

    bool Logged(const std::string& entry) const;
    std::size_t Count(const std::string& prefix) const;
};

// The window-free handler joined with the painting hook, as an owner gives
// it to the control.
class RecordingSink : public RecordingEvents, public IPropEventSink {
public:
    void DrawItem(Property& row, QPainter&, int, int, int, int, int, int) override { log.push_back("DrawItem " + row.name()); }
};

// The number of the error a call raises (0 for none), and its source.
std::int32_t ErrorNumber(const std::function<void()>& call, std::string* source = nullptr);

// The rows the grid's list shows now, top to bottom.
std::vector<Property*> ShownRows(PropertyList& grid);

// A shown, active window holding one grid, with ways to reach its parts.
class GridHarness {
public:
    GridHarness();
    ~GridHarness();

    PropertyList& grid() { return *grid_; }
    RecordingSink sink;

    QWidget* List() const;
    QLineEdit* Edit() const;
    QWidget* Button() const;
    QWidget* DropList() const;
    QListWidget* DropEntries() const;
    QWidget* Memo() const;

    // Centre of the caption or value cell of a visible row (0-based).
    QPoint Cell(int visibleIndex, bool value) const;
    void ClickCell(int visibleIndex, bool value);
    void DoubleClickCell(int visibleIndex, bool value);
    void ClickButton(QPoint at = {});
    void Key(QWidget* target, Qt::Key key, Qt::KeyboardModifiers modifiers = {});
    // Selects a row by clicking it, showing its editors.
    void Select(int visibleIndex) { ClickCell(visibleIndex, false); }

private:
    std::unique_ptr<QWidget> window_;
    PropertyList* grid_;
};

}  // namespace flowloom::grid::testing

// Readable QString values in failure messages.
inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
