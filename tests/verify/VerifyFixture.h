#pragma once

#include "model/ModelFixture.h"
#include "model/Process.h"
#include "support/Printers.h"
#include "verify/ProcessVerifier.h"

#include <string>
#include <vector>

namespace flowloom::test {

// Printers the tests decide on.
class FakePrinters : public PrinterSource {
public:
    bool Enumerate(std::vector<std::string>& out) override {
        out = names;
        return succeeds;
    }
    std::vector<std::string> names;
    bool succeeds = true;
};

// Loads a file with one process and verifies it in the gathering mode.
class VerifyFixture : public ModelFixture {
protected:
    // `process`: the Process element; `rest`: Databases, Options and the like.
    std::shared_ptr<Process> LoadProcess(const std::string& process, const std::string& rest = {}) {
        processes = LoadText(Document(process + rest));
        return processes->Item(1);
    }

    std::vector<std::string> Findings(const std::string& process, const std::string& rest = {}) {
        ProcessVerifier verifier(true);
        verifier.Run(LoadProcess(process, rest));
        std::vector<std::string> texts;
        for (const auto& finding : verifier.Findings()) texts.push_back(finding.text);
        return texts;
    }

    // A process whose own parts pass every rule, around the given activities.
    static std::string Sound(const std::string& activities, const std::string& documents = {}) {
        return R"(<Process Name="P" MainDatasourceName="Customers"><Activities>)" + activities +
               R"(</Activities><Datasources><Datasource Name="Customers" Type="Table" ObjectName="Customers"/>)"
               R"(</Datasources><Documents>)" + documents + "</Documents></Process>";
    }

    std::shared_ptr<Processes> processes;
    FakePrinters printers;
    ScopedPrinterSource printerScope{printers};
};

}  // namespace flowloom::test
