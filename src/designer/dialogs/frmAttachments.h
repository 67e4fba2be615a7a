#pragma once

#include "support/ModalDialog.h"

#include <functional>
#include <string>

namespace flowloom::dialogs {

// Edits the attachments of a mail, one path or expression a line. A path
// may be listed once; the file choices ("[SelectFile]", "[SelectFileOnce]")
// as often as wanted, since each asks for another file.
class frmAttachments : public ModalDialog {
public:
    // `attachments`: the present ones, "\r\n" between them.
    explicit frmAttachments(const std::string& attachments);

    // The lines with "\r\n" between them, as cmdOK left them.
    std::string Result() const { return result_; }

    // Run by cmdHelp.
    std::function<void()> OnHelp;

protected:
    void Changed(DialogControl& control) override;
    void Picked(DialogControl& control) override;
    void Clicked(DialogControl& button) override;

private:
    void AddLine();
    void EditLine();
    void RemoveLine();
    // Whether the expression may join the list; tells the person why not.
    bool MayBeAdded(const std::string& expression) const;
    void UpdateEnabling();

    std::string result_;
};

}  // namespace flowloom::dialogs
