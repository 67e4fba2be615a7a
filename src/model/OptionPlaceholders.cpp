#include "model/OptionPlaceholders.h"

#include "support/TextCompare.h"
#include "model/Database.h"
#include "model/Databases.h"
#include "model/Processes.h"
#include "options/Options.h"
#include "support/PathText.h"

namespace flowloom {

namespace {

// A folder from the file locations, else the database folder + `fallback`.
std::string LocationOr(const Processes& processes, std::string_view name, const std::string& databaseFolder,
                       std::string_view fallback) {
    std::string folder = OptionValue(processes.Options().get(), "FileLocations", name);
    if (folder.empty() && !databaseFolder.empty()) folder = databaseFolder + std::string(fallback);
    return folder;
}

}  // namespace

std::string OptionValue(const Options* options, std::string_view group, std::string_view name) {
    if (!options) return {};
    const auto item = options->Find(group);
    if (!item || !item->Attributes) return {};
    const auto value = item->Attributes->Find(name);
    if (!value || value->value.IsObject()) return {};
    return value->value.Text();
}

std::string DatabaseFolder(const Processes& processes) {
    const auto databases = processes.Databases();
    if (!databases || databases->Count() == 0) return {};
    const std::string& location = databases->Item(1)->Location;
    std::string folder = pathtext::GetParentFolderName(location);
    if (!folder.empty() && !pathtext::IsSeparator(folder.back())) folder += pathtext::SeparatorOf(location);
    return folder;
}

std::string ReplaceOptionPlaceholders(std::string_view value, const Processes& processes) {
    const std::string databaseFolder = DatabaseFolder(processes);
    std::string text = ReplaceNoCase(value, "{DatabaseFolder}", databaseFolder);
    text = ReplaceNoCase(text, "{Templates}", LocationOr(processes, "TemplateFolder", databaseFolder, "templates"));
    text = ReplaceNoCase(text, "{Documents}", LocationOr(processes, "DocumentFolder", databaseFolder, "documents"));
    const std::string tools = databaseFolder.empty() ? std::string() : databaseFolder + "tools";
    return ReplaceNoCase(text, "{Tools}", tools);
}

}  // namespace flowloom
