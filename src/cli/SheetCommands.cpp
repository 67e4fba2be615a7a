// `show` and `set`: the property sheet of one item of a processes file,
// printed or edited by the designer's own code, without a window.
#include "cli/CliContext.h"
#include "cli/Session.h"

#include "app/CommandLine.h"
#include "grid/Properties.h"
#include "model/Activities.h"
#include "model/Databases.h"
#include "model/Datasources.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/TextCompare.h"

#include <charconv>
#include <filesystem>
#include <optional>
#include <random>

namespace flowloom::cli {

namespace {

namespace fs = std::filesystem;
using designer::Strip;

// An item as the command line names it: "process", or a strip and a
// 1-based position in its collection.
struct ItemName {
    std::optional<Strip> strip;
    int position = 0;
};

std::optional<int> PositiveNumber(std::string_view text) {
    int value = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (ec != std::errc{} || end != text.data() + text.size() || value < 1) return std::nullopt;
    return value;
}

std::optional<ItemName> ParseItem(const std::string& text) {
    if (text == "process") return ItemName{};
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) return std::nullopt;
    const std::string strip = text.substr(0, colon);
    const auto position = PositiveNumber(std::string_view(text).substr(colon + 1));
    if (!position) return std::nullopt;
    if (strip == "database") return ItemName{Strip::Database, *position};
    if (strip == "datasource") return ItemName{Strip::Datasource, *position};
    if (strip == "activity") return ItemName{Strip::Activity, *position};
    return std::nullopt;
}

// The designer's main window without a window, with the prompts of the
// command line (boxes on stderr).
class Designer {
public:
    Designer() : form_(grid_, view_) { grid_.SetEvents(&form_); }

    // Opens the file as `flowloom -xmlfile FILE` does; false when it could not.
    bool Open(const std::string& file) {
        if (!form_.Form_Load(RawCommandLineFromArgs({"-xmlfile", file})) || form_.FailedAtStart()) return false;
        form_.Form_Activate();
        return !form_.Unloaded();
    }

    // Clicks the process in the list (its name without regard to case).
    bool SelectProcess(const std::string& name) {
        const auto& list = form_.lstProcesses();
        for (int i = 1; i < list.ListCount(); ++i) {
            if (!EqualsNoCase(list.List(i), name)) continue;
            form_.ListClick(i);
            return true;
        }
        return false;
    }

    // Clicks the item's cell; false when the process has no such item.
    bool SelectItem(const ItemName& item) {
        if (!item.strip) return true;
        if (item.position > ItemCount(*item.strip)) return false;
        if (*item.strip == Strip::Activity) return form_.CellClick(Strip::Activity, (item.position - 1) * 3 + 1, 0);
        return form_.CellClick(*item.strip, 1, item.position - 1);
    }

    // The row whose tag is `key` (without regard to case) or whose index it is; 0 when none.
    int RowOf(const std::string& key) {
        grid::Properties& rows = grid_.Rows();
        if (const auto index = PositiveNumber(key)) return *index <= rows.Count() ? *index : 0;
        for (int i = 1; i <= rows.Count(); ++i)
            if (rows.Item(i).Tag().IsText() && EqualsNoCase(rows.Item(i).Tag().Text(), key)) return i;
        return 0;
    }

    bool CommitRow(int index, const std::string& value) {
        form_.GridRowClick(index);
        grid_.ClickRow(index, [this] { form_.PropList_Click(); });
        return index <= grid_.Rows().Count() && grid_.CommitEdit(grid_.Rows().Item(index), value);
    }

    void WriteSheet(std::ostream& out) { cli::WriteSheet(form_, grid_, out); }
    std::shared_ptr<Processes> Model() const { return form_.CurrentProcesses(); }

private:
    int ItemCount(Strip strip) const {
        const auto process = form_.CurrentProcess();
        switch (strip) {
        case Strip::Database: return Model()->Databases()->Count();
        case Strip::Datasource: return process ? process->Datasources()->Count() : 0;
        case Strip::Activity: return process ? process->Activities()->Count() : 0;
        }
        return 0;
    }

    grid::HeadlessGrid grid_;
    designer::DesignerView view_;
    designer::frmDesigner form_;
};

// A copy of the file in a folder of its own, removed with it: `show` works
// on the copy, so that neither loading nor selecting writes the file.
class ScratchCopy {
public:
    explicit ScratchCopy(const std::string& file) {
        std::random_device random;
        folder_ = fs::temp_directory_path() / ("flowloom-show-" + std::to_string(random()));
        fs::create_directories(folder_);
        path_ = folder_ / fs::path(file).filename();
        fs::copy_file(file, path_);
    }
    ~ScratchCopy() {
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    ScratchCopy(const ScratchCopy&) = delete;
    ScratchCopy& operator=(const ScratchCopy&) = delete;
    std::string Path() const { return path_.string(); }

private:
    fs::path folder_;
    fs::path path_;
};

bool Open(Context& ctx, Designer& designer, const std::string& file) {
    if (designer.Open(file)) return true;
    ctx.err << "flowloom-cli: cannot open " << ctx.args[1] << '\n';
    return false;
}

// Selects the process and the item as a person would; false (with the
// reason on stderr) when one of them is not there.
bool SelectItem(Context& ctx, Designer& designer, const std::string& process, const ItemName& item,
                const std::string& itemText) {
    if (!designer.SelectProcess(process)) {
        ctx.err << "flowloom-cli: no process named '" << process << "'\n";
        return false;
    }
    if (!designer.SelectItem(item)) {
        ctx.err << "flowloom-cli: process '" << process << "' has no " << itemText << '\n';
        return false;
    }
    return true;
}

bool FileReadable(Context& ctx, const std::string& file) {
    std::error_code error;
    if (fs::is_regular_file(file, error)) return true;
    ctx.err << "flowloom-cli: cannot read " << file << '\n';
    return false;
}

}  // namespace

int ShowCommand(Context& ctx) {
    if (ctx.args.size() != 3 && ctx.args.size() != 4) {
        ctx.err << "usage: flowloom-cli show FILE PROCESS [ITEM]\n";
        return kUsage;
    }
    const std::string itemText = ctx.args.size() == 4 ? ctx.args[3] : "process";
    const auto item = ParseItem(itemText);
    if (!item) {
        ctx.err << "flowloom-cli: '" << itemText << "' is no item (process, database:N, datasource:N, activity:N)\n";
        return kUsage;
    }
    if (!FileReadable(ctx, ctx.args[1])) return kUsage;
    const ScratchCopy copy(ctx.args[1]);
    Designer designer;
    if (!Open(ctx, designer, copy.Path()) || !SelectItem(ctx, designer, ctx.args[2], *item, itemText)) return kUsage;
    designer.WriteSheet(ctx.out);
    return kOk;
}

int SetCommand(Context& ctx) {
    if (!ExpectArgs(ctx, 5, "set FILE PROCESS ITEM KEY VALUE")) return kUsage;
    const std::string& file = ctx.args[1];
    const auto item = ParseItem(ctx.args[3]);
    if (!item) {
        ctx.err << "flowloom-cli: '" << ctx.args[3] << "' is no item (process, database:N, datasource:N, activity:N)\n";
        return kUsage;
    }
    if (!FileReadable(ctx, file)) return kUsage;
    Designer designer;
    if (!Open(ctx, designer, file)) return kUsage;
    // What the file holds as loaded: selecting an item may change the model too.
    const std::string loaded = designer.Model()->XML();
    if (!SelectItem(ctx, designer, ctx.args[2], *item, ctx.args[3])) return kUsage;
    const int row = designer.RowOf(ctx.args[4]);
    if (row == 0) {
        ctx.err << "flowloom-cli: the sheet of " << ctx.args[3] << " has no row '" << ctx.args[4] << "'\n";
        return kUsage;
    }
    if (!designer.CommitRow(row, ctx.args[5])) {
        ctx.err << "flowloom-cli: the edit of row " << row << " was refused\n";
        return kProblem;
    }
    if (designer.Model()->XML() == loaded) return kOk;
    return designer.Model()->Save(file) ? kOk : kProblem;
}

}  // namespace flowloom::cli
