#include "cli/CliContext.h"
#include "cli/Session.h"

#include "app/CommandLine.h"

namespace flowloom::cli {

void SessionView::ShowPopupMenu() {
    if (menus_) out_ << PopupLine(*menus_) << '\n';
}

Session::Session(std::ostream& out)
    : out_(out),
      prompts_(out),
      promptsInUse_(prompts_),
      tool_(out),
      previousTool_(SetCurrentToolLauncher(&tool_)),
      view_(out),
      designer_(grid_, view_) {
    grid_.SetEvents(&designer_);
    view_.SetMenus(&designer_.Menus());
}

Session::~Session() { SetCurrentToolLauncher(previousTool_); }

bool Session::Start(const std::vector<std::string>& designerArgs) {
    const bool loaded = designer_.Form_Load(RawCommandLineFromArgs(designerArgs));
    failedStart_ = !loaded || designer_.FailedAtStart();
    if (failedStart_ || Ended()) return false;
    designer_.Form_Activate();
    return !Ended();
}

bool Session::Ended() const noexcept { return designer_.Unloaded() || view_.Unloaded(); }

int Session::ExitCode() const noexcept { return failedStart_ ? kProblem : kOk; }

int RunSession(const std::vector<std::string>& designerArgs, std::istream& in, std::ostream& out,
               std::ostream& err) {
    Session session(out);
    if (!session.Start(designerArgs)) return session.ExitCode();
    std::string line;
    int number = 0;
    while (!session.Ended() && std::getline(in, line)) {
        ++number;
        try {
            session.Execute(line);
        } catch (const ScriptError& e) {
            out.flush();
            err << "flowloom-cli: line " << number << ": " << e.what() << '\n';
            return kUsage;
        }
    }
    return session.ExitCode();
}

}  // namespace flowloom::cli
