// Measures loading and writing a large processes file against pugixml on the
// same file: whole programs in fresh processes (cold, interleaved), then the
// steps in one process (warm, medians), the unsaved-change check, and the
// scaling from 2 to 40 MB.
#include "BenchTiming.h"
#include "FreshProcess.h"
#include "SyntheticFile.h"

#include "support/TextCompare.h"
#include "codegen/CCodeGenerator.h"
#include "verify/ProcessVerifier.h"
#include "model/Activities.h"
#include "model/Process.h"
#include "model/Processes.h"
#include "app/XmlDocument.h"
#include "support/Prompts.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

using flowloom::bench::ChildRun;
using flowloom::bench::MedianMs;
using flowloom::bench::RunFresh;
using Clock = std::chrono::steady_clock;

double MsSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

double Median(std::vector<double> values) {
    if (values.empty()) return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

struct StdoutWriter : pugi::xml_writer {
    void write(const void* data, size_t size) override { std::fwrite(data, 1, size, stdout); }
};

struct StringWriter : pugi::xml_writer {
    std::string text;
    void write(const void* data, size_t size) override { text.append(static_cast<const char*>(data), size); }
};

// The unsaved-change check as the designer makes it.
bool UnsavedChanges(flowloom::Processes& processes, const std::string& saved) {
    return processes.EditedSinceLoadOrSave() && !processes.XmlEqualsNoCase(saved);
}

// --- the programs run in fresh processes

// A bare program: reads the file and parses it; prints the milliseconds.
int BareParse(const char* file) {
    const auto start = Clock::now();
    pugi::xml_document document;
    document.load_file(file);
    std::printf("%.3f\n", MsSince(start));
    return 0;
}

// A bare program: reads, parses and saves the file to standard output.
int BareSave(const char* file) {
    pugi::xml_document document;
    document.load_file(file);
    StdoutWriter out;
    document.save(out, "", pugi::format_raw);
    return 0;
}

// The model in a fresh process: Load, XML and the teardown, each timed.
int ColdModel(const char* file) {
    flowloom::SilentPrompts silent;
    flowloom::ScopedPrompts scope(silent);
    auto start = Clock::now();
    auto processes = flowloom::Processes::Create();
    processes->Load(file);
    const double load = MsSince(start);
    start = Clock::now();
    const std::string xml = processes->XML();
    const double write = MsSince(start);
    start = Clock::now();
    processes->Dispose();
    processes.reset();
    const double teardown = MsSince(start);
    std::printf("%.3f %.3f %.3f %zu\n", load, write, teardown, xml.size());
    return 0;
}

// --- the parent

struct FreshFigures {
    double bareParseMs = 0, bareParseWall = 0, bareSaveWall = 0, cliWall = 0;
    double coldLoad = 0, coldXml = 0, coldTeardown = 0;
    long bareParsePeak = 0, bareSavePeak = 0, cliPeak = 0, modelPeak = 0;
};

// Whole programs in fresh processes, interleaved round by round: medians.
FreshFigures MeasureFresh(const std::string& self, const std::string& file, int rounds) {
    std::vector<double> parseMs, parseWall, saveWall, cliWall, load, xml, teardown;
    FreshFigures f;
    for (int r = 0; r < rounds; ++r) {
        ChildRun run = RunFresh({self, "--child", "bare-parse", file}, false);
        parseMs.push_back(std::strtod(run.output.c_str(), nullptr));
        parseWall.push_back(run.wallMs);
        f.bareParsePeak = std::max(f.bareParsePeak, run.peakKb);
        run = RunFresh({self, "--child", "bare-save", file}, true);
        saveWall.push_back(run.wallMs);
        f.bareSavePeak = std::max(f.bareSavePeak, run.peakKb);
        run = RunFresh({FLOWLOOM_CLI, "xml", file}, true);
        cliWall.push_back(run.wallMs);
        f.cliPeak = std::max(f.cliPeak, run.peakKb);
        run = RunFresh({self, "--child", "model", file}, false);
        std::istringstream in(run.output);
        double l = 0, x = 0, t = 0;
        in >> l >> x >> t;
        load.push_back(l);
        xml.push_back(x);
        teardown.push_back(t);
        f.modelPeak = std::max(f.modelPeak, run.peakKb);
    }
    f.bareParseMs = Median(parseMs);
    f.bareParseWall = Median(parseWall);
    f.bareSaveWall = Median(saveWall);
    f.cliWall = Median(cliWall);
    f.coldLoad = Median(load);
    f.coldXml = Median(xml);
    f.coldTeardown = Median(teardown);
    return f;
}

std::filesystem::path WriteSynthetic(std::size_t megabytes, std::string& text) {
    text = flowloom::bench::MakeSyntheticProcessesFile(megabytes * 1000 * 1000);
    const auto path = std::filesystem::temp_directory_path() / ("flowloom-bench-" + std::to_string(megabytes) + ".xml");
    std::ofstream(path, std::ios::binary) << text;
    return path;
}

struct WarmFigures {
    double load = 0, teardown = 0;
};

// Load without its teardown, and the teardown alone; leaves the last model loaded.
WarmFigures MeasureWarmLoad(const std::string& file, int repetitions,
                            std::shared_ptr<flowloom::Processes>& processes) {
    std::vector<double> loads, teardowns;
    for (int i = 0; i < repetitions; ++i) {
        if (processes) {
            const auto start = Clock::now();
            processes->Dispose();
            processes.reset();
            teardowns.push_back(MsSince(start));
        }
        const auto start = Clock::now();
        processes = flowloom::Processes::Create();
        processes->Load(file);
        loads.push_back(MsSince(start));
    }
    return {Median(loads), Median(teardowns)};
}

// The last activity of the last process: an edit there is found last.
std::shared_ptr<flowloom::Activity> LastActivity(const flowloom::Processes& processes) {
    const auto all = processes.Snapshot();
    if (all.empty() || all.back()->Activities()->Count() == 0) return nullptr;
    const auto activities = all.back()->Activities();
    return activities->Item(flowloom::CollectionPosition{activities->Count()});
}

int Scaling(const std::string& self, int repetitions) {
    flowloom::SilentPrompts silent;
    flowloom::ScopedPrompts scope(silent);
    std::printf("%6s %10s %10s %10s %10s %10s %10s %10s\n", "MB", "parse", "cold load", "load", "load/MB", "XML",
                "XML/MB", "peak/file");
    for (const std::size_t mb : {2, 5, 10, 20, 40}) {
        std::string text;
        const auto path = WriteSynthetic(mb, text);
        const double parse = MedianMs(repetitions, [&] {
            pugi::xml_document document;
            document.load_buffer(text.data(), text.size());
        });
        const FreshFigures fresh = MeasureFresh(self, path.string(), 1);
        std::shared_ptr<flowloom::Processes> processes;
        const WarmFigures warm = MeasureWarmLoad(path.string(), repetitions, processes);
        const double xml = MedianMs(repetitions, [&] { (void)processes->XML(); });
        const double size = static_cast<double>(text.size()) / 1e6;
        std::printf("%6.1f %8.1fms %8.1fms %8.1fms %10.2f %8.1fms %10.2f %10.2f\n", size, parse, fresh.coldLoad,
                    warm.load, warm.load / size, xml, xml / size, fresh.modelPeak * 1024.0 / text.size());
        processes->Dispose();
        std::filesystem::remove(path);
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::string self = std::filesystem::canonical("/proc/self/exe").string();
    if (argc == 4 && std::string(argv[1]) == "--child") {
        const std::string kind = argv[2];
        if (kind == "bare-parse") return BareParse(argv[3]);
        if (kind == "bare-save") return BareSave(argv[3]);
        if (kind == "model") return ColdModel(argv[3]);
        return 2;
    }
    if (argc == 4 && std::string(argv[1]) == "--write") {  // the synthetic file alone, for profiling
        std::ofstream(argv[2], std::ios::binary) << flowloom::bench::MakeSyntheticProcessesFile(std::strtoul(argv[3], nullptr, 10) * 1000 * 1000);
        return 0;
    }
    if (argc >= 2 && std::string(argv[1]) == "--scaling")
        return Scaling(self, std::max(1, argc > 2 ? std::atoi(argv[2]) : 3));
    const std::size_t megabytes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 20;
    const int repetitions = std::max(1, argc > 2 ? std::atoi(argv[2]) : 5);
    std::string text;
    const auto path = WriteSynthetic(megabytes, text);
    const FreshFigures fresh = MeasureFresh(self, path.string(), repetitions);

    const double parse = MedianMs(repetitions, [&] {
        pugi::xml_document document;
        document.load_buffer(text.data(), text.size());
    });
    flowloom::SilentPrompts silent;
    flowloom::ScopedPrompts scope(silent);
    std::shared_ptr<flowloom::Processes> processes;
    const WarmFigures warm = MeasureWarmLoad(path.string(), repetitions, processes);

    double pugiSave = 0;
    double serialise = 0;
    {
        // Only while it is measured: a second large tree in memory would slow
        // what follows with cache and page misses that are not its own.
        pugi::xml_document parsed;
        parsed.load_buffer(text.data(), text.size());
        pugiSave = MedianMs(repetitions, [&] {
            StringWriter out;
            out.text.reserve(text.size() + 4096);
            parsed.save(out, "", pugi::format_raw);
        });
        serialise = MedianMs(repetitions, [&] { (void)flowloom::SerializeNode(parsed); });
    }
    std::string xml;
    const double generate = MedianMs(repetitions, [&] { xml = processes->XML(); });

    const std::string saved = xml;
    const double checkUnedited = MedianMs(repetitions, [&] {
        if (UnsavedChanges(*processes, saved)) std::puts("unexpected change");
    });
    const auto last = LastActivity(*processes);
    const std::string description = last ? last->Description() : std::string();
    int round = 0;
    const double checkEdited = MedianMs(repetitions, [&] {
        if (last) last->SetDescription(description + " edited " + std::to_string(++round));
        if (!UnsavedChanges(*processes, saved)) std::puts("missed change");
    });
    if (last) last->SetDescription(description);

    // Verification and code generation of every process, as the menu
    // commands do them one process at a time.
    const auto all = processes->Snapshot();
    std::size_t findings = 0;
    const double verify = MedianMs(repetitions, [&] {
        findings = 0;
        for (const auto& process : all) {
            flowloom::ProcessVerifier verifier(true);
            verifier.Run(process);
            findings += verifier.Findings().size();
        }
    });
    std::size_t macroBytes = 0;
    const double codegen = MedianMs(repetitions, [&] {
        macroBytes = 0;
        for (const auto& process : all) {
            flowloom::CCodeGenerator generator;
            generator.SetProcesses(processes);
            macroBytes += generator.GenerateCode(process, {}).size();
        }
    });
    const double perProcess = 1000.0 / static_cast<double>(std::max<std::size_t>(all.size(), 1));
    const double fileMb = static_cast<double>(text.size()) / 1e6;
    const auto perFile = [&](long kb) { return kb * 1024.0 / static_cast<double>(text.size()); };

    std::printf("file size            %.1f MB (%d processes), medians of %d\n", fileMb, processes->Count(), repetitions);
    std::printf("fresh processes, interleaved (wall time, peak RSS / file size):\n");
    std::printf("  pugixml read+parse        %8.1f ms  %5.2f\n", fresh.bareParseWall, perFile(fresh.bareParsePeak));
    std::printf("  pugixml read+parse+save   %8.1f ms  %5.2f\n", fresh.bareSaveWall, perFile(fresh.bareSavePeak));
    std::printf("  flowloom-cli xml          %8.1f ms  %5.2f   cli/bare save %.2f (target <= 2.0), peak target <= 4\n",
                fresh.cliWall, perFile(fresh.cliPeak), fresh.cliWall / fresh.bareSaveWall);
    std::printf("  cold pugixml read+parse   %8.1f ms\n", fresh.bareParseMs);
    std::printf("  cold Processes.Load       %8.1f ms  load/parse %.2f (target <= 2.0)\n", fresh.coldLoad,
                fresh.coldLoad / fresh.bareParseMs);
    std::printf("  cold Processes.XML        %8.1f ms\n", fresh.coldXml);
    std::printf("  cold teardown             %8.1f ms\n", fresh.coldTeardown);
    std::printf("  Load+XML program peak     %8.1f MB  %5.2f\n", fresh.modelPeak / 1024.0, perFile(fresh.modelPeak));
    std::printf("warm, in one process:\n");
    std::printf("  pugixml parse             %8.1f ms\n", parse);
    std::printf("  Processes.Load            %8.1f ms  load/parse %.2f  (without teardown)\n", warm.load,
                warm.load / parse);
    std::printf("  teardown                  %8.1f ms\n", warm.teardown);
    std::printf("  pugixml save (raw)        %8.1f ms\n", pugiSave);
    std::printf("  SerializeNode (checked)   %8.1f ms\n", serialise);
    std::printf("  Processes.XML             %8.1f ms  XML/pugixml save %.2f (target <= 1.2)\n", generate,
                generate / pugiSave);
    std::printf("  unsaved check, no edit    %8.3f ms  (target < 1)\n", checkUnedited);
    std::printf("  unsaved check, last edited%8.3f ms  (target < 50)\n", checkEdited);
    std::printf("  verify every process      %8.1f ms  %.1f us per process (%zu findings)\n", verify,
                verify * perProcess, findings);
    std::printf("  codegen every process     %8.1f ms  %.1f us per process (%.1f MB of macros)\n", codegen,
                codegen * perProcess, static_cast<double>(macroBytes) / 1e6);
    processes->Dispose();
    std::filesystem::remove(path);
    return 0;
}
