#include "support/Printers.h"

#include "support/TextCompare.h"
#include "support/AppPaths.h"
#include "support/Prompts.h"

#include <cups/cups.h>

#include <algorithm>
#include <utility>

namespace flowloom {

namespace {

// The destinations the printing service knows, instances as "name/instance".
// No running service is no failure: the machine then has no printers.
class CupsPrinterSource : public PrinterSource {
public:
    bool Enumerate(std::vector<std::string>& names) override {
        cups_dest_t* dests = nullptr;
        const int count = cupsGetDests2(CUPS_HTTP_DEFAULT, &dests);
        for (int i = 0; i < count; ++i) {
            std::string name = dests[i].name ? dests[i].name : "";
            if (dests[i].instance) name += std::string("/") + dests[i].instance;
            if (!name.empty()) names.push_back(std::move(name));
        }
        cupsFreeDests(count, dests);
        return count > 0 || !IsFailure(cupsLastError());
    }

private:
    static bool IsFailure(ipp_status_t status) {
        if (status <= IPP_STATUS_OK_EVENTS_COMPLETE) return false;
        return status != IPP_STATUS_ERROR_NOT_FOUND && status != IPP_STATUS_ERROR_SERVICE_UNAVAILABLE &&
               status != IPP_STATUS_ERROR_INTERNAL;  // the client's word for "cannot connect"
    }
};

CupsPrinterSource& ServiceSource() {
    static CupsPrinterSource source;
    return source;
}

PrinterSource* gSource = nullptr;

}  // namespace

PrinterSource& CurrentPrinterSource() { return gSource ? *gSource : ServiceSource(); }

PrinterSource* SetPrinterSource(PrinterSource* source) { return std::exchange(gSource, source); }

std::vector<std::string> GetPrinters() {
    std::vector<std::string> names;
    if (!CurrentPrinterSource().Enumerate(names)) {
        MsgBox("Could not successfully enumerate the printes.", msgbox::Exclamation, AppTitle());
        return {};
    }
    return names;
}

std::vector<std::string> GetPrinterChoices() {
    std::vector<std::string> choices{"(Default printer)"};
    for (auto& name : GetPrinters()) choices.push_back(std::move(name));
    return choices;
}

bool PrinterExists(const std::string& name) {
    const auto printers = GetPrinters();
    return std::any_of(printers.begin(), printers.end(),
                       [&](const std::string& printer) { return EqualsNoCase(printer, name); });
}

}  // namespace flowloom
