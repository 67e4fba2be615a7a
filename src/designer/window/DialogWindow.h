#pragma once

#include <QDialog>

#include <map>
#include <string>

namespace flowloom {
class ModalDialog;
struct DialogControl;
}  // namespace flowloom

namespace flowloom::designer {
class frmDesigner;
}

namespace flowloom::designer::window {

// A modal dialog of the designer on the screen: one widget per control of
// the dialog's data, laid out by the controls' cells. What a person does
// goes to the designer's Dialog... calls; the widgets then show the data
// again. The window closes when the designer has let go of the dialog.
class DialogWindow : public QDialog {
    Q_OBJECT
public:
    // `grid` is the widget of a control of kind Grid (or null); the window
    // shows it while it is open and hands it back unowned when it closes.
    DialogWindow(frmDesigner& core, ModalDialog& dialog, QWidget* grid, QWidget* parent);
    ~DialogWindow() override;

    // The widgets show the dialog's data again.
    void Sync();
    QWidget* Control(const std::string& name) const;

protected:
    void reject() override;
    void changeEvent(QEvent* event) override;

private:
    QWidget* MakeWidget(const DialogControl& control);
    void SyncWidget(const DialogControl& control, QWidget* widget);
    // After each action: closes when the dialog is done, else shows it again.
    void Acted();

    frmDesigner& core_;
    ModalDialog& dialog_;
    QWidget* grid_ = nullptr;
    std::map<std::string, QWidget*> widgets_;
    bool syncing_ = false;
    bool done_ = false;
};

}  // namespace flowloom::designer::window
