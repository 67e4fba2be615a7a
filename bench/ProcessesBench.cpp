// Measures loading and writing a large processes file against pugixml's own
// parse and serialisation, in one run: median of several repetitions.
#include "BenchTiming.h"
#include "SyntheticFile.h"

#include "support/TextCompare.h"
#include "codegen/CCodeGenerator.h"
#include "verify/ProcessVerifier.h"
#include "model/Processes.h"
#include "app/XmlDocument.h"
#include "support/Prompts.h"

#include <sys/resource.h>

#include <algorithm>
#include <utility>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

using flowloom::bench::MedianMs;

long PeakRssKb() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

// The designer's path in a fresh process: open the file, then build the
// text of the unsaved-change check once. Prints the peak resident memory in KB.
int MeasurePeak(const char* file) {
    const long before = PeakRssKb();
    flowloom::SilentPrompts silent;
    flowloom::ScopedPrompts scope(silent);
    auto processes = flowloom::Processes::Create();
    processes->Load(file);
    const std::string xml = processes->XML();
    std::printf("%ld %ld %zu\n", PeakRssKb(), before, xml.size());
    processes->Dispose();
    return 0;
}

// Runs this program again as "--peak FILE" and reads what it prints.
std::pair<long, long> PeakOfFreshProcess(const char* self, const std::string& file) {
    const std::string command = std::string("'") + self + "' --peak '" + file + "'";
    FILE* pipe = popen(command.c_str(), "r");
    long peak = 0, base = 0;
    std::size_t size = 0;
    if (pipe) {
        if (std::fscanf(pipe, "%ld %ld %zu", &peak, &base, &size) != 3) peak = base = 0;
        pclose(pipe);
    }
    return {peak, base};
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 3 && std::string(argv[1]) == "--peak") return MeasurePeak(argv[2]);
    if (argc == 4 && std::string(argv[1]) == "--write") {  // the synthetic file alone, for profiling
        std::ofstream(argv[2], std::ios::binary) << flowloom::bench::MakeSyntheticProcessesFile(std::strtoul(argv[3], nullptr, 10) * 1000 * 1000);
        return 0;
    }
    const std::size_t megabytes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 20;
    const int repetitions = std::max(1, argc > 2 ? std::atoi(argv[2]) : 5);
    const std::string text = flowloom::bench::MakeSyntheticProcessesFile(megabytes * 1000 * 1000);
    const auto path = std::filesystem::temp_directory_path() / "flowloom-bench.xml";
    std::ofstream(path, std::ios::binary) << text;
    const auto [peakKb, baseKb] = PeakOfFreshProcess(argv[0], path.string());

    const double parse = MedianMs(repetitions, [&] {
        pugi::xml_document document;
        document.load_buffer(text.data(), text.size());
    });

    flowloom::SilentPrompts silent;
    flowloom::ScopedPrompts scope(silent);
    std::shared_ptr<flowloom::Processes> processes;
    const double load = MedianMs(repetitions, [&] {
        if (processes) processes->Dispose();
        processes = flowloom::Processes::Create();
        processes->Load(path.string());
    });

    pugi::xml_document parsed;
    parsed.load_buffer(text.data(), text.size());
    const double serialise = MedianMs(repetitions, [&] { (void)flowloom::SerializeNode(parsed); });

    std::string xml;
    const double generate = MedianMs(repetitions, [&] { xml = processes->XML(); });
    const std::string kept = xml;
    const double unsavedCheck = MedianMs(repetitions, [&] {
        const bool same = flowloom::EqualsNoCase(processes->XML(), kept);
        if (!same) std::puts("unexpected change");
    });

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

    std::printf("file size            %.1f MB (%d processes)\n", text.size() / 1e6, processes->Count());
    std::printf("pugixml parse        %8.1f ms\n", parse);
    std::printf("Processes.Load       %8.1f ms   load/parse      %.2f (target <= 2.5)\n", load, load / parse);
    std::printf("pugixml serialise    %8.1f ms\n", serialise);
    std::printf("Processes.XML        %8.1f ms   XML/serialise   %.2f (target <= 2.5)\n", generate, generate / serialise);
    std::printf("unsaved-change check %8.1f ms\n", unsavedCheck);
    std::printf("verify every process %8.1f ms   %.1f us per process (%zu findings)\n", verify, verify * perProcess,
                findings);
    std::printf("codegen every process%8.1f ms   %.1f us per process (%.1f MB of macros)\n", codegen,
                codegen * perProcess, macroBytes / 1e6);
    std::printf("peak memory          %.1f MB      peak/file size  %.2f (target <= 6)\n", peakKb / 1024.0,
                peakKb * 1024.0 / text.size());
    std::printf("  (open and one change check in a fresh process; %.1f MB of it before loading)\n", baseKb / 1024.0);
    processes->Dispose();
    std::filesystem::remove(path);
    return 0;
}
