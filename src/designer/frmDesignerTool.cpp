// Editing a mail body in the external tool: starting it on the body, keeping
// it in front of the disabled window while it runs, and taking its text back
// into the SendMail once it ends.
#include "designer/FrmDesignerParts.h"

#include "grid/Properties.h"
#include "grid/Property.h"
#include "model/OptionPlaceholders.h"
#include "model/Processes.h"
#include "model/SendMail.h"
#include "options/dialog/frmOptions.h"
#include "sheets/PropertySheets.h"
#include "support/TextCompare.h"
#include "support/ToolLauncher.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace flowloom::designer {

namespace {

constexpr int kSendMailKind = 14;
constexpr std::int32_t kBodyRow = 9;

// The style the tool starts in, from what the Body row shows: plain text for
// "(Plain Text)" and a field reference, HTML for "(HTML)" and anything else;
// an empty row goes by the option's default style.
bool PlainTextStyle(const std::string& shown, const Options* options) {
    const std::string lower = ToLower(shown);
    if (lower == "(html)") return false;
    if (lower == "(plain text)") return true;
    if (lower.starts_with("[field:") && lower.ends_with("]")) return true;  // a field reference
    if (lower.empty()) return EqualsNoCase(OptionValue(options, "Email", "DefaultStyle"), "Plain text");
    return false;
}

options::frmOptions* OptionsWithTool(ModalDialog* dialog) {
    auto* form = dynamic_cast<options::frmOptions*>(dialog);
    return form && form->ToolRunning() ? form : nullptr;
}

}  // namespace

void frmDesigner::SetEnabled(bool enabled) {
    if (enabled_ == enabled) return;
    enabled_ = enabled;
    Notify(changed::Enabled);
}

void frmDesigner::EditSendMailBody(grid::Property& row) {
    if (std::atoi(propListTag_.c_str()) != kSendMailKind || row.Tag().Text() != "Body") return;
    const Options* options = Processes_ ? Processes_->Options().get() : nullptr;
    const bool plain = PlainTextStyle(row.value(), options);
    auto sendMail = std::dynamic_pointer_cast<SendMail>(SelectedActivity());
    if (!sendMail) return;
    mHtmlEditorSendMail = sendMail;
    std::string text = sendMail->Body();
    if (text.empty())
        text = OptionValue(options, "Email", plain ? "DefaultEmailTemplatePlainText" : "DefaultEmailTemplateHTML");
    mHtmlEditorFile.clear();
    mHtmlEditorWindow = editor::OpenHtmlEditor(*this, text, mHtmlEditorFile, plain, "", false);
}

bool frmDesigner::ToolWatched() const noexcept { return timerInterval_ != 0 || OptionsWithTool(dialog_.get()); }

void frmDesigner::ToolEnded() {
    if (options::frmOptions* form = OptionsWithTool(dialog_.get())) {
        form->ToolEnded();
        Notify(changed::Dialog);
        return;
    }
    if (mHtmlEditorWindow == 0 && timerInterval_ == 0) return;
    view_.BringToFront();
    HtmlEditorClosed();
}

void frmDesigner::Timer1_Timer(bool designerInFront) {
    if (options::frmOptions* form = OptionsWithTool(dialog_.get())) {
        form->Timer1_Timer(designerInFront, CurrentToolLauncher().Running());
        return;
    }
    if (timerInterval_ == 0) return;
    if (!designerInFront) {
        if (!CurrentToolLauncher().Running()) {
            view_.BringToFront();
            HtmlEditorClosed();
        }
        return;
    }
    // The person came back to the disabled window: the tool goes in front.
    if (!CurrentToolLauncher().BringToFront()) HtmlEditorClosed();
}

void frmDesigner::HtmlEditorClosed() {
    timerInterval_ = 0;
    mHtmlEditorWindow = 0;
    try {
        if (mHtmlEditorSendMail) {
            const std::string text = editor::ReadToolResult(mHtmlEditorFile);
            if (text != mHtmlEditorSendMail->Body()) {
                mHtmlEditorSendMail->SetBody(text);
                if (std::atoi(propListTag_.c_str()) == kSendMailKind && grid_.Rows().Count() >= kBodyRow) {
                    grid_.Rows().Item(kBodyRow).SetValue(sheets::BodyShownText(text));
                    Notify(changed::Sheet);
                }
            }
            mHtmlEditorSendMail.reset();
        }
    } catch (...) {
    }
    std::error_code ignored;
    if (!mHtmlEditorFile.empty()) std::filesystem::remove(mHtmlEditorFile, ignored);
    SetEnabled(true);
}

}  // namespace flowloom::designer
