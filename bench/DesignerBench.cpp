// Measures the designer's core on a large process: selecting it in the list
// (three strips and the process sheet), clicking an activity (its sheet),
// and an edit in the grid that renames the activity's cell on the canvas.
#include "BenchTiming.h"
#include "grid/HeadlessGrid.h"
#include "designer/frmDesigner.h"
#include "model/Activities.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "support/Prompts.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace {

using flowloom::bench::MedianMs;
using flowloom::designer::Strip;

// A file with a process of `count` activities of every kind and a small one.
std::string WriteFile(int count) {
    auto processes = flowloom::Processes::Create();
    auto big = flowloom::Process::Create();
    big->SetName("Big");
    for (int i = 0; i < count; ++i) {
        auto activity = flowloom::CreateActivity(flowloom::kActivityKinds[static_cast<std::size_t>(i) % 7]);
        activity->SetDescription("Step " + std::to_string(i + 1));
        big->Activities()->Add(activity);
    }
    processes->Add(big);
    auto small = flowloom::Process::Create();
    small->SetName("Small");
    processes->Add(small);
    const auto path = std::filesystem::temp_directory_path() / "flowloom-designer-bench.xml";
    processes->Save(path.string());
    return path.string();
}

}  // namespace

int main(int argc, char** argv) {
    const int activities = argc > 1 ? std::atoi(argv[1]) : 500;
    const int repetitions = std::max(1, argc > 2 ? std::atoi(argv[2]) : 9);
    flowloom::SilentPrompts silent;
    flowloom::ScopedPrompts scope(silent);
    const std::string file = WriteFile(activities);

    flowloom::grid::HeadlessGrid grid;
    flowloom::designer::DesignerView view;
    flowloom::designer::frmDesigner designer(grid, view);
    grid.SetEvents(&designer);
    designer.Form_Load("-xmlfile \"" + file + "\" -process \"Small\"");
    designer.Form_Activate();

    // Each selection comes from the other process, so the strips are rebuilt.
    const double select = MedianMs(repetitions, [&] {
        designer.ListClick(2);
        designer.ListClick(1);
    });
    const double selectSmall = MedianMs(repetitions, [&] { designer.ListClick(2); });
    designer.ListClick(1);

    // Alternate between two activities so that every click opens a sheet.
    int row = 0;
    const double click = MedianMs(repetitions, [&] {
        row = row == 0 ? 3 * (activities / 2) : 0;
        designer.CellClick(Strip::Activity, row, 0);
    });

    // The description of the activity on show, which is also its caption.
    designer.CellClick(Strip::Activity, 0, 0);
    int edits = 0;
    const double edit = MedianMs(repetitions, [&] {
        grid.ClickRow(1, {});
        grid.CommitEdit(grid.Rows().Item(1), "Edited " + std::to_string(++edits));
    });

    // A SaveAs's input document: the sheet is built again for it.
    designer.CellClick(Strip::Activity, 3, 0);
    const double rebuild = MedianMs(repetitions, [&] {
        grid.ClickRow(2, {});
        grid.CommitEdit(grid.Rows().Item(2), edits++ % 2 == 0 ? "Letter" : "");
    });

    std::printf("process of %d activities\n", activities);
    std::printf("select it in the list  %8.2f ms (target <= 30)\n", select - selectSmall);
    std::printf("click an activity      %8.2f ms (target <= 30)\n", click);
    std::printf("edit a description     %8.3f ms (target <= 30)\n", edit);
    std::printf("edit that rebuilds     %8.3f ms (target <= 30)\n", rebuild);
    std::printf("sheet kind after edits %s\n", designer.PropListTag().c_str());
    std::filesystem::remove(file);
    return 0;
}
