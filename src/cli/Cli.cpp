#include "cli/Cli.h"

#include "cli/CliContext.h"
#include "cli/Session.h"
#include "support/TextCompare.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/AppPaths.h"

#include <functional>
#include <iostream>
#include <map>

namespace flowloom::cli {

namespace {

const char* const kHelp =
    "usage: flowloom-cli COMMAND [ARGUMENTS]\n"
    "\n"
    "Commands:\n"
    "  list FILE                 load FILE and print the name of each process\n"
    "  xml FILE                  load FILE and write the processes file as it would be saved\n"
    "  save FILE OUT             load FILE and save it as OUT (with a backup of an existing OUT)\n"
    "  verify FILE PROCESS       verify the process named PROCESS (case does not matter) and\n"
    "                            print the report, or \"Everything is Ok\"\n"
    "  verify-all FILE           verify every process; each report under \"== NAME\"\n"
    "  codegen FILE PROCESS [--mode classes|xml]\n"
    "                            print the macro that runs PROCESS: \"classes\" (the default)\n"
    "                            rebuilds the process object by object, \"xml\" loads it by\n"
    "                            name from FILE at run time\n"
    "  objects DBFILE            print the forms, tables, queries and reports of the Access\n"
    "                            database DBFILE: four lines 'Forms: ', 'Tables: ', 'Queries: ',\n"
    "                            'Reports: ', each with its names joined by ';' in the order of\n"
    "                            the system table, system and hidden objects left out\n"
    "  fields DBFILE TABLE       print the fields of TABLE (case does not matter) joined by\n"
    "                            ';', auto-increment fields left out; exit 1 when there is no\n"
    "                            such table\n"
    "  parse-command-line TEXT   parse TEXT as the designer's command line and print\n"
    "                            xmlfile, process, activeobject and fields, one per line\n"
    "  show FILE PROCESS [ITEM]  print the property sheet of PROCESS or of one of its items:\n"
    "                            ITEM is process, database:N, datasource:N or activity:N\n"
    "                            (N counts from 1, as the strips show them); FILE is not\n"
    "                            written, even where selecting the item changes the model\n"
    "  set FILE PROCESS ITEM KEY VALUE\n"
    "                            select the item as the designer would, commit VALUE into\n"
    "                            the row whose key (or number) is KEY as an edit in the\n"
    "                            grid, and save FILE (with a backup) when the model changed;\n"
    "                            exit 1 when the edit was refused or the save failed\n"
    "  session [DESIGNER-ARGUMENTS]\n"
    "                            run the designer without a window: start it with the\n"
    "                            designer's own arguments (-xmlfile, -process, ...), then\n"
    "                            carry out one action per line of standard input and\n"
    "                            print a transcript of what the window shows\n"
    "  --help                    show this text\n"
    "  --version                 show the version\n"
    "\n"
    "Loading works as the designer's Open: a file of an older format version is\n"
    "converted and written back at once. Message boxes go to stderr as\n"
    "'message: TEXT', reported errors as 'error NUMBER: DESCRIPTION'. Reports and\n"
    "macros are written as the text window would show them, with CR LF line ends.\n"
    "A file that does not load as a processes file is replaced by an empty one; a\n"
    "line on stderr tells where its backup keeps the old content.\n"
    "Exit codes: 0 success (verify: nothing found), 1 the command ran and found a\n"
    "problem (verify: findings; save: the new content did not reach OUT; any\n"
    "command whose load had to rewrite the file and could not), 2 bad arguments,\n"
    "an unknown process or a file that could not be read (objects, fields: no\n"
    "readable Access database).\n"
    "\n"
    "Session script lines (empty lines and lines starting with # are skipped):\n"
    "  answers, queued for the prompt they answer:\n"
    "    answer ok|cancel|yes|no|abort|retry|ignore   the next message box\n"
    "    input TEXT                the next input box\n"
    "    file [PATH]               the next file dialog; no PATH cancels it\n"
    "  actions (STRIP is database, datasource or activity):\n"
    "    list N, list-right N, list-key CODE          the list of processes\n"
    "    cell STRIP R C, cell-right STRIP R C         a cell of a strip's table\n"
    "    strip-click STRIP, strip-right STRIP         the empty part of a strip\n"
    "    key STRIP CODE            a key down in the strip's focused cell\n"
    "    focus list|database|datasource|activity|grid|info\n"
    "    menu NAME                 open the menu holding entry NAME and choose it\n"
    "    toolbar N, grid-row N     a toolbar button, a row of the property grid\n"
    "    row N VALUE               click row N of the grid and commit VALUE (all after the\n"
    "                              blank that ends N; \\n is a line break) as the user's\n"
    "                              edit; a refused edit prints 'cancelled: row N'\n"
    "    browse N                  click row N and press its browse button (a dialog, the\n"
    "                              mail-body tool, or for a file row the next file dialog)\n"
    "    drop N                    click row N and print its drop list ('drop: row N: ...')\n"
    "    close                     close the window\n"
    "    dump, xml                 print the window's state, the processes file\n"
    "  while a dialog is open (row, browse and drop then act on its grid, if it has one):\n"
    "    dialog-set CONTROL TEXT   type TEXT into a combo or text box\n"
    "    dialog-pick CONTROL N     pick entry N (from 0) of a list or combo box\n"
    "    dialog-click BUTTON       press a button (cmdOK, cmdCancel, cmdFieldValueAdd, ...)\n"
    "    dialog-close              the dialog's close box\n"
    "  while the mail-body tool runs:\n"
    "    tool-close TEXT           leave TEXT (\\n a line break) in its file and end it\n"
    "Boxes, dialogs and errors of a session are lines of its transcript on standard\n"
    "output. The session ends when the window unloads (exit 1 if it failed at start-up)\n"
    "or at the end of input; a line it cannot read ends it with exit 2.\n";

// When loading replaced a file that was no processes file: one line that says
// so and where the old content is.
void TellReplaced(Context& ctx, const std::string& file, const Processes& processes) {
    const Processes::LoadRewrite& rewrite = processes.LastLoadRewrite();
    if (rewrite.notLoadedReason.empty()) return;
    ctx.err << "flowloom-cli: " << file << " could not be read as a processes file ("
            << OneLine(rewrite.notLoadedReason) << "); it was replaced by an empty one, the old content is in "
            << rewrite.backup << '\n';
}

}  // namespace

namespace {

// Set by KeepModelsUntilExit; the list itself is never destroyed when the
// program ends without running destructors.
bool keepModels = false;
std::vector<std::shared_ptr<Processes>>& KeptModels() {
    static std::vector<std::shared_ptr<Processes>> kept;
    return kept;
}

}  // namespace

void KeepModelsUntilExit() { keepModels = true; }

std::shared_ptr<Processes> LoadFile(Context& ctx, const std::string& file, int& status) {
    auto processes = Processes::Create();
    if (keepModels) KeptModels().push_back(processes);
    const int errorsBefore = ctx.prompts.ErrorCount();
    const int messagesBefore = ctx.prompts.MessageCount();
    processes->Load(file);
    TellReplaced(ctx, file, *processes);
    if (processes->Complete() != Processes::Loaded) {
        if (!processes->ErrorString().empty())
            ctx.err << "flowloom-cli: cannot read " << file << ": " << OneLine(processes->ErrorString()) << '\n';
        else if (ctx.prompts.ErrorCount() == errorsBefore)
            ctx.err << "flowloom-cli: cannot read " << file << '\n';
        status = kUsage;
        return nullptr;
    }
    const bool quiet = ctx.prompts.ErrorCount() == errorsBefore && ctx.prompts.MessageCount() == messagesBefore;
    status = quiet && !LoadRewriteFailed(*processes) ? kOk : kProblem;
    return processes;
}

bool LoadRewriteFailed(const Processes& processes) {
    const Processes::LoadRewrite& rewrite = processes.LastLoadRewrite();
    return rewrite.attempted && !rewrite.written;
}

std::shared_ptr<Process> FindProcess(Context& ctx, const Processes& processes, const std::string& name) {
    for (const auto& process : processes.Snapshot())
        if (EqualsNoCase(process->name(), name)) return process;
    ctx.err << "flowloom-cli: no process named '" << name << "'\n";
    return nullptr;
}

bool ExpectArgs(Context& ctx, std::size_t count, const char* usage) {
    if (ctx.args.size() == count + 1) return true;
    ctx.err << "usage: flowloom-cli " << usage << '\n';
    return false;
}

namespace {

int List(Context& ctx) {
    if (!ExpectArgs(ctx, 1, "list FILE")) return kUsage;
    int status = kOk;
    auto processes = LoadFile(ctx, ctx.args[1], status);
    if (!processes) return status;
    for (const auto& process : processes->Snapshot()) ctx.out << process->name() << '\n';
    return status;
}

int Xml(Context& ctx) {
    if (!ExpectArgs(ctx, 1, "xml FILE")) return kUsage;
    int status = kOk;
    auto processes = LoadFile(ctx, ctx.args[1], status);
    if (!processes) return status;
    // Straight to the output: a large file's text is never held whole.
    const bool written = processes->WriteXml([&](std::string_view piece) {
        ctx.out.write(piece.data(), static_cast<std::streamsize>(piece.size()));
        return static_cast<bool>(ctx.out);
    });
    return written ? status : kProblem;
}

int Save(Context& ctx) {
    if (!ExpectArgs(ctx, 2, "save FILE OUT")) return kUsage;
    int status = kOk;
    auto processes = LoadFile(ctx, ctx.args[1], status);
    if (!processes) return status;
    // An older OUT may well exist: only the result tells whether the new content reached it.
    return processes->Save(ctx.args[2]) ? status : kProblem;
}

}  // namespace

int ParseCommandLineCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
int ObjectsCommand(Context& ctx);
int FieldsCommand(Context& ctx);

int Run(const std::vector<std::string>& args, std::ostream& out, std::ostream& err) {
    return Run(args, std::cin, out, err);
}

int Run(const std::vector<std::string>& args, std::istream& in, std::ostream& out, std::ostream& err) {
    if (args.empty()) {
        err << kHelp;
        return kUsage;
    }
    if (args[0] == "--help" || args[0] == "-h") {
        out << kHelp;
        return kOk;
    }
    if (args[0] == "--version") {
        out << "flowloom-cli " << AppVersion() << '\n';
        return kOk;
    }
    CliPrompts prompts(out, err);
    ScopedPrompts scope(prompts);
    Context ctx{args, out, err, prompts};
    const std::map<std::string, std::function<int(Context&)>> commands = {
        {"list", List},
        {"xml", Xml},
        {"save", Save},
        {"verify", VerifyCommand},
        {"verify-all", VerifyAllCommand},
        {"codegen", CodegenCommand},
        {"show", ShowCommand},
        {"set", SetCommand},
        {"objects", ObjectsCommand},
        {"fields", FieldsCommand},
        {"parse-command-line", [](Context& c) { return ParseCommandLineCommand(c.args, c.out, c.err); }},
        {"session",
         [&in](Context& c) { return RunSession({c.args.begin() + 1, c.args.end()}, in, c.out, c.err); }},
    };
    auto it = commands.find(args[0]);
    if (it == commands.end()) {
        err << "flowloom-cli: unknown command '" << args[0] << "'\n" << kHelp;
        return kUsage;
    }
    try {
        return it->second(ctx);
    } catch (const std::exception& e) {
        err << "flowloom-cli: " << e.what() << '\n';
        return kUsage;
    }
}

}  // namespace flowloom::cli
