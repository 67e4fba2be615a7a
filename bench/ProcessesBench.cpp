// Measures loading and writing a large processes file against pugixml's own
// parse and serialisation, in one run: median of several repetitions.
#include "SyntheticFile.h"

#include "app/TextCompare.h"
#include "model/Processes.h"
#include "model/xml/XmlDocument.h"
#include "support/Prompts.h"

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double MedianMs(int repetitions, const std::function<void()>& work) {
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        const auto start = Clock::now();
        work();
        times.push_back(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

long PeakRssKb() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

}  // namespace

int main(int argc, char** argv) {
    const std::size_t megabytes = argc > 1 ? std::strtoul(argv[1], nullptr, 10) : 20;
    const int repetitions = argc > 2 ? std::atoi(argv[2]) : 5;
    const std::string text = flowloom::bench::MakeSyntheticProcessesFile(megabytes * 1000 * 1000);
    const auto path = std::filesystem::temp_directory_path() / "flowloom-bench.xml";
    std::ofstream(path, std::ios::binary) << text;
    const long rssBefore = PeakRssKb();

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
    const long peakKb = PeakRssKb();

    std::printf("file size            %.1f MB (%d processes)\n", text.size() / 1e6, processes->Count());
    std::printf("pugixml parse        %8.1f ms\n", parse);
    std::printf("Processes.Load       %8.1f ms   load/parse      %.2f (target <= 2.5)\n", load, load / parse);
    std::printf("pugixml serialise    %8.1f ms\n", serialise);
    std::printf("Processes.XML        %8.1f ms   XML/serialise   %.2f (target <= 2.5)\n", generate, generate / serialise);
    std::printf("unsaved-change check %8.1f ms\n", unsavedCheck);
    std::printf("peak memory          %.1f MB      peak/file size  %.2f (target <= 6); before loading %.1f MB\n",
                peakKb / 1024.0, peakKb * 1024.0 / text.size(), rssBefore / 1024.0);
    processes->Dispose();
    std::filesystem::remove(path);
    return 0;
}
